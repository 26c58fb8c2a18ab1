#pragma once
// The printouts of the recipe tools, composed on a PageBuilder: a recipe on a
// full page (ingredients in two columns or in one), a recipe on the top or
// the bottom half of a sheet, a queue of half-page recipes read from the
// cookbook two to a sheet, and the blank recipe worksheet.
//
// Every position is in twips and derives from the page's width W and height
// H. A composition places each text by setting the horizontal position and
// writing a line; the vertical position is remembered and reused where
// columns are written one over the other. Nothing here breaks a page on its
// own: a bottom-half recipe too long for the sheet runs past its bottom.
#include "cookbook/logic/cookbooknames.h"
#include "common/textfont.h"
#include "recipetools/logic/recipelifecycle.h"

#include <QDate>
#include <QString>
#include <array>
#include <optional>

class PageBuilder;

enum class PrintLayout { TwoColumn = 1, OneColumn = 2, TopHalf = 3, BottomHalf = 4 };
enum class AmountFormat { Fractions = 0, Decimals = 1 };

// The choices of the print options panel.
struct PrintSettings {
    PrintLayout layout = PrintLayout::TwoColumn;
    AmountFormat amountFormat = AmountFormat::Fractions;
    TextFont font;                 // size 12 unless chosen otherwise
    bool printPicture = false;     // "Print Picture"; only full pages show it
};

// The recipe as it is printed: the texts of the screen's boxes, or of a
// stored record.
struct PrintedRecipe {
    QString typeName;              // the recipe type's name as shown, e.g. "Desserts"
    QString name;
    RecipeFields fields;           // amounts as the amount boxes hold them
    // True when the amounts are decimal texts (Modify mode, and records read
    // from the file); false for a viewed recipe whose boxes show fractions.
    bool amountsAreDecimals = false;
    QString picturePath;           // empty: no picture
};

// One flag per ingredient row: amount, unit and ingredient all blank after
// trimming.
std::array<bool, kRecipeRows> BlankRowFlags(const RecipeFields& fields);

// A fraction text as a decimal: "1 1/2" gives "1.5", "1/16" gives ".06",
// "2 3/4" gives "2.75". Known fractions are 1/16, 1/8, 1/6, 1/4, 1/3, 1/2,
// 2/3, 3/4 and 7/8; any other leaves the text as it is, and so does a text
// without "/". A whole number of 0 or less in front is dropped.
QString FractionTextToDecimal(const QString& text);

// The text the amount column prints for an amount box:
//   fraction box, Fractions  the box's text
//   fraction box, Decimals   FractionTextToDecimal
//   decimal box,  Decimals   the box's text
//   decimal box,  Fractions  FormatAmount, trimmed
QString PrintedAmount(const QString& boxText, bool amountsAreDecimals, AmountFormat format);

// One recipe as one document, in the layout of `settings`; the one-column
// layout is handed to ComposeSingleColumnPage.
void ComposeRecipePage(PageBuilder& page, const PrintedRecipe& recipe, const PrintSettings& settings, QDate today);
// One recipe on a full page with all 20 ingredient rows in one column.
void ComposeSingleColumnPage(PageBuilder& page, const PrintedRecipe& recipe, const PrintSettings& settings,
                             QDate today);

// One filled slot of "Select Additional Recipes". The record holds neither
// name nor type, so both come from the pick lists the slot was filled from.
struct AdditionalRecipe {
    RecipeType type = RecipeType::AppetizersAndBeverages;
    RecordNumber recordNumber = 0;
    QString name;
};

// The queued recipes of `cookbook` as one document, two to a sheet: even
// slots on the top half, odd slots on the bottom half. A new sheet starts
// before each filled even slot from 2 on, and before a filled odd slot above
// 1 whose even partner is empty, but never while the sheet is still empty.
// Empty slots are skipped. Half pages show no picture and no footer.
void ComposeAdditionalPages(PageBuilder& page, int cookbook,
                            const std::array<std::optional<AdditionalRecipe>, 10>& queue,
                            const PrintSettings& settings, QDate today);

// The blank "Recipe WorkSheet" form to fill in by hand.
void ComposeWorksheet(PageBuilder& page, const TextFont& font);
