#include "recipetools/logic/recipeprint.h"

#include "common/dates.h"
#include "cookbook/logic/cookbookfiles.h"
#include "recipetools/logic/amountformat.h"
#include "print/logic/pagebuilder.h"

#include <QStringList>
#include <algorithm>

namespace {

// Rows of the ingredient table in one half of the two-column layout.
constexpr int kRowsPerHalf = kRecipeRows / 2;

// The three fields of the table, printed one after the other.
enum class TableField { Amount, Unit, Ingredient };

// Where one column of the table stands: the amount centred on `amountX`, the
// unit and the ingredient starting at their positions.
struct ColumnPositions {
    double amountX = 0;
    double unitX = 0;
    double ingredientX = 0;
};

bool IsFullPage(PrintLayout layout)
{
    return layout == PrintLayout::TwoColumn || layout == PrintLayout::OneColumn;
}

// A fresh document in the settings' font, margins at 0 and no indents.
void StartDocument(PageBuilder& page, const TextFont& font)
{
    page.setFont(font);
    page.zeroMargins();
    page.setIndentLeft(0);
    page.setIndentRight(0);
    page.startDoc();
}

void WriteAt(PageBuilder& page, double x, const QString& text)
{
    page.setCurrentX(x);
    page.printLine(text);
}

void WriteCentred(PageBuilder& page, const QString& text)
{
    WriteAt(page, page.pageWidth() / 2 - page.textWidth(text) / 2, text);
}

void EmptyLine(PageBuilder& page)
{
    page.printLine(QString());
}

// The picture above the text, in a rectangle that suits the sheet's
// orientation; the text goes on below it.
void DrawPicture(PageBuilder& page, const QString& file)
{
    const double height = page.pageHeight();
    if (page.pageWidth() < height) {
        page.drawPicture(file, 2.125, 1, 4, 2);
        page.setCurrentY(.26 * height);
    } else {
        page.drawPicture(file, 3.6, 1, 3.5, 2.5);
        page.setCurrentY(.39 * height);
    }
}

// One cell of the table: the amount is centred on its position, the others
// start at theirs.
void WriteCell(PageBuilder& page, TableField field, const ColumnPositions& column, const QString& text)
{
    switch (field) {
    case TableField::Amount:
        WriteAt(page, column.amountX - page.textWidth(text) / 2, text);
        break;
    case TableField::Unit:
        WriteAt(page, column.unitX, text);
        break;
    case TableField::Ingredient:
        WriteAt(page, column.ingredientX, text);
        break;
    }
}

QString HeadingOf(TableField field)
{
    switch (field) {
    case TableField::Amount:
        return QStringLiteral("Amt.");
    case TableField::Unit:
        return QStringLiteral("Type");
    case TableField::Ingredient:
        return QStringLiteral("Ingredient");
    }
    return {};
}

QString CellText(const PrintedRecipe& recipe, AmountFormat format, TableField field, int row)
{
    switch (field) {
    case TableField::Amount:
        return PrintedAmount(recipe.fields.amounts[row], recipe.amountsAreDecimals, format);
    case TableField::Unit:
        return recipe.fields.units[row];
    case TableField::Ingredient:
        return recipe.fields.ingredients[row];
    }
    return {};
}

// One column of one field: its heading, then the rows `first` to `last`
// (0-based). Rows 0 to 9 always take their line so the left column keeps its
// shape; a blank row further down is left out altogether.
void WriteColumn(PageBuilder& page, const PrintedRecipe& recipe, AmountFormat format,
                 const std::array<bool, kRecipeRows>& blank, TableField field, const ColumnPositions& column,
                 int first, int last)
{
    WriteCell(page, field, column, HeadingOf(field));
    for (int row = first; row <= last; ++row) {
        if (row >= kRowsPerHalf && blank[row])
            continue;
        WriteCell(page, field, column, CellText(recipe, format, field, row));
    }
}

// The ingredient table, one field at a time from the top of the table. The
// position afterwards is below the longer of the columns.
void WriteTable(PageBuilder& page, const PrintedRecipe& recipe, const PrintSettings& settings, bool oneColumn)
{
    const double width = page.pageWidth();
    const ColumnPositions left{width / 20, width / 10, width / 4.5};
    const ColumnPositions right{width / 1.9, width / 1.75, width / 1.448};
    const std::array<bool, kRecipeRows> blank = BlankRowFlags(recipe.fields);
    const double top = page.currentY();
    double bottom = top;

    for (TableField field : {TableField::Amount, TableField::Unit, TableField::Ingredient}) {
        page.setCurrentY(top);
        if (oneColumn) {
            WriteColumn(page, recipe, settings.amountFormat, blank, field, left, 0, kRecipeRows - 1);
            bottom = std::max(bottom, page.currentY());
            continue;
        }
        WriteColumn(page, recipe, settings.amountFormat, blank, field, left, 0, kRowsPerHalf - 1);
        bottom = std::max(bottom, page.currentY());
        page.setCurrentY(top);
        WriteColumn(page, recipe, settings.amountFormat, blank, field, right, kRowsPerHalf, kRecipeRows - 1);
        bottom = std::max(bottom, page.currentY());
    }
    page.setCurrentY(bottom);
}

// Everything of a recipe from the title down to the footer, written from the
// current position of an open document. `settings.layout` decides the blank
// lines, the table's columns and the footer; half pages start at the middle
// of the sheet when they are the bottom one.
void WriteRecipe(PageBuilder& page, const PrintedRecipe& recipe, const PrintSettings& settings, QDate today)
{
    const PrintLayout layout = settings.layout;
    const bool fullPage = IsFullPage(layout);
    const double width = page.pageWidth();
    const RecipeFields& fields = recipe.fields;

    if (layout == PrintLayout::BottomHalf)
        page.setCurrentY(page.pageHeight() / 2 + 100);
    else
        EmptyLine(page);

    page.setFontSize(settings.font.size + 2);
    WriteCentred(page, recipe.typeName);
    if (fullPage)
        EmptyLine(page);
    WriteCentred(page, recipe.name);
    page.setFontSize(settings.font.size);

    // A half sheet has no room for the picture.
    if (settings.printPicture && fullPage && !recipe.picturePath.isEmpty())
        DrawPicture(page, recipe.picturePath);
    if (fullPage)
        EmptyLine(page);

    // The yield on the left; cooking time and oven temperature on the right
    // of the same line, the temperature under the time.
    const double infoLine = page.currentY();
    if (!fields.yieldAmount.isEmpty())
        WriteAt(page, width / 30, QStringLiteral("Recipe Yields: ") + fields.yieldAmount + u' ' + fields.yieldType);
    page.setCurrentY(infoLine);
    if (!fields.cookingTime.isEmpty())
        WriteAt(page, width / 1.448, QStringLiteral("Cooking Time: ") + fields.cookingTime);
    if (!fields.ovenTemperature.isEmpty())
        WriteAt(page, width / 1.448, QStringLiteral("Oven Temperature: ") + fields.ovenTemperature);
    else
        EmptyLine(page);

    WriteAt(page, width / 30, QStringLiteral("Ingredients:"));
    if (fullPage)
        EmptyLine(page);
    WriteTable(page, recipe, settings, layout == PrintLayout::OneColumn);

    EmptyLine(page);
    WriteAt(page, width / 30, QStringLiteral("Directions:"));
    if (fullPage)
        EmptyLine(page);
    page.setIndentLeft(700);
    page.setIndentRight(700);
    page.printParagraph(fields.directions);
    page.setIndentLeft(0);
    page.setIndentRight(0);

    if (fullPage) {
        EmptyLine(page);
        page.setFontSize(6);
        WriteAt(page, width / 30, QStringLiteral("Brindlepot"));
        WriteAt(page, width / 30, QStringLiteral("Printed on ") + ShortDate(today));
        page.setFontSize(settings.font.size);
    }
}

// The decimal of each fraction a stored or typed amount may hold; wider than
// the fractions the screen shows.
QString DecimalOfFraction(const QString& fraction)
{
    static const std::array<std::pair<const char*, const char*>, 9> table{{
        {"1/16", ".06"},
        {"1/8", ".125"},
        {"1/6", ".17"},
        {"1/4", ".25"},
        {"1/3", ".33"},
        {"1/2", ".5"},
        {"2/3", ".67"},
        {"3/4", ".75"},
        {"7/8", ".875"},
    }};
    for (const auto& [text, decimal] : table) {
        if (fraction == QLatin1String(text))
            return QString::fromLatin1(decimal);
    }
    return {};
}

QString RowNumberText(int number)
{
    // Two blanks in front of the one-digit numbers line the dots up.
    return number < 10 ? QStringLiteral("  ") + QString::number(number) : QString::number(number);
}

} // namespace

std::array<bool, kRecipeRows> BlankRowFlags(const RecipeFields& fields)
{
    std::array<bool, kRecipeRows> blank{};
    for (int row = 0; row < kRecipeRows; ++row) {
        blank[row] = fields.amounts[row].trimmed().isEmpty() && fields.units[row].trimmed().isEmpty()
            && fields.ingredients[row].trimmed().isEmpty();
    }
    return blank;
}

QString FractionTextToDecimal(const QString& text)
{
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 0)
        return text;

    // The fraction runs from the blank in front of it; what stands before
    // that blank is the whole number.
    const qsizetype blank = text.lastIndexOf(u' ', slash);
    const QString wholeText = blank < 0 ? QString() : text.left(blank).trimmed();
    const QString fraction = text.mid(blank + 1).trimmed();

    const QString decimal = DecimalOfFraction(fraction);
    if (decimal.isEmpty())
        return text;

    bool isNumber = false;
    const double whole = wholeText.toDouble(&isNumber);
    if (!isNumber || whole <= 0)
        return decimal;
    return wholeText + decimal;
}

QString PrintedAmount(const QString& boxText, bool amountsAreDecimals, AmountFormat format)
{
    if (amountsAreDecimals)
        return format == AmountFormat::Decimals ? boxText : FormatAmount(boxText).trimmed();
    return format == AmountFormat::Decimals ? FractionTextToDecimal(boxText) : boxText;
}

void ComposeRecipePage(PageBuilder& page, const PrintedRecipe& recipe, const PrintSettings& settings, QDate today)
{
    if (settings.layout == PrintLayout::OneColumn) {
        ComposeSingleColumnPage(page, recipe, settings, today);
        return;
    }
    StartDocument(page, settings.font);
    WriteRecipe(page, recipe, settings, today);
    page.endDoc();
}

void ComposeSingleColumnPage(PageBuilder& page, const PrintedRecipe& recipe, const PrintSettings& settings,
                             QDate today)
{
    PrintSettings oneColumn = settings;
    oneColumn.layout = PrintLayout::OneColumn;
    StartDocument(page, settings.font);
    WriteRecipe(page, recipe, oneColumn, today);
    page.endDoc();
}

void ComposeAdditionalPages(PageBuilder& page, int cookbook,
                            const std::array<std::optional<AdditionalRecipe>, 10>& queue,
                            const PrintSettings& settings, QDate today)
{
    StartDocument(page, settings.font);
    bool sheetUsed = false;
    for (int index = 0; index < int(queue.size()); ++index) {
        if (!queue[index])
            continue;
        const bool top = index % 2 == 0;
        const bool startsSheet = top ? index >= 2 : index > 1 && !queue[index - 1];
        if (startsSheet && sheetUsed)
            page.newPage();

        const AdditionalRecipe& queued = *queue[index];
        const StoredRecipe stored = ReadRecipe(cookbook, queued.recordNumber);
        PrintedRecipe recipe;
        recipe.typeName = RecipeTypeName(queued.type);
        recipe.name = queued.name;
        recipe.fields = FieldsOfRecord(stored.record);
        recipe.amountsAreDecimals = true;
        recipe.picturePath = stored.picturePath;

        PrintSettings half = settings;
        half.layout = top ? PrintLayout::TopHalf : PrintLayout::BottomHalf;
        half.printPicture = false;
        page.setFont(settings.font);
        WriteRecipe(page, recipe, half, today);
        sheetUsed = true;
    }
    page.endDoc();
}

void ComposeWorksheet(PageBuilder& page, const TextFont& font)
{
    StartDocument(page, font);
    page.setIndentLeft(400);

    // Each part of the form stands after an empty line.
    const auto part = [&page](const QString& text) {
        EmptyLine(page);
        page.printLine(text);
    };
    WriteCentred(page, QStringLiteral("Recipe WorkSheet"));
    part(QStringLiteral("Recipe Type:  ________________________________________________"));
    part(QStringLiteral("Recipe Name: ________________________________________________"));
    part(QStringLiteral("Ingredients:"));
    EmptyLine(page);
    for (int number = 1; number <= kRecipeRows; ++number) {
        page.printLine(RowNumberText(number)
                       + QStringLiteral(
                           ". - Amt.: ______  Type: ____________  Ingredient: ______________________________________"));
        page.setCurrentY(page.currentY() + 100);
    }
    part(QStringLiteral("Directions:"));
    for (int line = 0; line < 10; ++line)
        EmptyLine(page);
    part(QStringLiteral("Oven Temperature: _________________"));
    part(QStringLiteral("Cooking Time: _____________________"));
    part(QStringLiteral("Recipe Yield: ______________________"));
    page.endDoc();
}
