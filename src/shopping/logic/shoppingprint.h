#pragma once
// The shopping list on paper, composed on a PageBuilder (twips, page width W
// and height H): a checklist of two columns side by side, with a box to tick
// before every item, or a blank ruled worksheet to fill in by hand.
//
// The checklist walks the grid rows 1 to the number of entries, in the order
// the grid shows them. Each page starts with a head: the title and the
// projected date, centred, then the headings of the left half. A column is
// full when the next line would pass H - 400: the left half goes on at the
// top of the right half under headings of its own, and a full right half
// takes a new page with the whole head again.
#include "common/textfont.h"
#include "shopping/logic/shoppinglist.h"

#include <QList>
#include <QString>
#include <functional>

class PageBuilder;

struct ShoppingPrintout {
    QString familyName;      // empty: the title is "Grocery Shopping List" alone
    QString dateBox;         // the projected date as the date box holds it
    QList<GridRow> rows;     // grid rows 1 on, as shown
    int entryCount = 0;      // rows 1 to this are walked
    bool dividers = true;    // "Print Divider Lines (Every 5 Items)"
    bool printDate = true;   // "Print Date on each page"
};

void ComposeShoppingList(PageBuilder& page, const ShoppingPrintout& list, const TextFont& font);
void ComposeShoppingWorksheet(PageBuilder& page, const TextFont& font);

// Whether there is anything to print: an item in rows 1 to the number of
// entries, and an item in the grid at all (the grid's own sort may have
// moved rows).
bool HasPrintableRows(const QList<GridRow>& rows, int entryCount);

// What follows the tick box: the left-trimmed name in a left-aligned field
// of 28 characters, so the columns stand in line. A cell of 27 or more
// characters as shown prints as three blanks and the name's first 26
// characters, whole.
QString PrintedItemText(QStringView itemCell);

// The font the list prints in: the screen fonts "MS Sans Serif" and
// "MS Serif" become "Times New Roman" 12; a font that cannot be had gives
// way to "Times New Roman", and that to "Courier".
TextFont ListPrintFont(const TextFont& font, const std::function<bool(const QString& family)>& available);
