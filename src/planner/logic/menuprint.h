#pragma once
// The planner's printout, composed on a PageBuilder in twips from the page's
// width W and height H, margins at 0.
//
// Every page opens with its head: the family name and "Menu Planner" centred
// at the body size plus 2, then "Printed on" and today's long date centred
// at the body size less 2 (an empty line instead when the date is not
// printed). Each saved day is a block: the day's long date in bold at the
// left, with grid lines a line across the page, the headings "Breakfast",
// "Lunch" and "Dinner" centred on W / 6.5, W / 2.05 and W / 1.22, another
// line, and up to seven rows of the three meals' lines written at 30,
// W / 2.95 and W / 1.5, a row being the height of "P" and 10 twips; rows
// where all three lines are blank take no room. A day never saved takes one
// line: the day in bold and "No menu items were found for this date.".
//
// Pages break before a day that starts too low (less than 1200 twips left
// for a saved day, 700 for an empty one) and after any row that ends less
// than 700 twips from the bottom; a day broken before its seventh row goes
// on under its date and " [Continued]". Each page ends with "Page n" centred
// 200 twips from the bottom, never larger than 10 points. With grid lines,
// each block's columns are parted by lines at W / 3.04 and W / 1.52.
#include "common/slotvalues.h"
#include "common/textfont.h"
#include "planner/logic/menuplanfile.h"

#include <QDate>
#include <QString>

class PageBuilder;

struct MenuPrintRequest {
    QDate start;
    int following = 0;        // days after the start; 0 prints the start day alone
    TextFont font;            // the body font
    bool printDate = true;    // "Print Date on each page"
    bool gridLines = true;    // "Print Grid Lines"
    QString familyName;
    QDate today;
};

// The page title: the family name and a blank, when there is one, then
// "Menu Planner".
QString MenuPrintTitle(const QString& familyName);

void ComposeMenuPages(PageBuilder& page, const MenuPrintRequest& request,
                      const DayReader& read = [](QDate date) { return ReadDay(date); });

// The print font the planner keeps (GColor4.Fil slots 26 and 27) over
// `current`: the stored name, where there is one, with "MS Sans Serif" and
// "MS Serif" printing as "Times New Roman"; the stored size (a tagged
// integer, or a number as text), and 14 for a size outside 4 to 30, an
// empty slot included.
TextFont ReadMenuPrintFont(const TextFont& current);
// The same rules over the two stored values.
TextFont MenuPrintFontFrom(const TextFont& current, const TaggedValue& name, const TaggedValue& size);
