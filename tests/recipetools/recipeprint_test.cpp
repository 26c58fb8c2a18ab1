// The recipe printouts, read back from the composed document: which text
// stands where on which sheet. Text is measured by a simple rule (every
// character 10 twips per point wide, lines 20 twips per point plus 40 high),
// so each expected position is worked out here from the page size and the
// placement rules.
#include "recipetools/logic/recipeprint.h"

#include "common/dates.h"
#include "cookbook/logic/cookbookfiles.h"
#include "print/logic/pagebuilder.h"

#include "fixed_measurer.h"
#include "temp_program_folder.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <algorithm>
#include <random>
#include <ostream>

namespace {

double Width(double size, const QString& text)
{
    return 10 * size * double(text.size());
}

double Line(double size)
{
    return 20 * size + 40;
}

constexpr double kW = 12240;   // letter paper, upright
constexpr double kH = 15840;
const double kL = Line(12);     // a line in the default size 12
const double kTitleLine = Line(14);

const QDate kToday(2024, 3, 5);

struct Fixture {
    FixedMeasurer measurer;
    PageBuilder page;
    explicit Fixture(const PageSetup& setup = {}) : page(measurer, setup) {}
    const PageDocument& doc() const { return page.document(); }
};

PageSetup Landscape()
{
    PageSetup setup;
    setup.orientation = PageOrientation::Landscape;
    return setup;
}

void SetRow(RecipeFields& fields, int row, const QString& amount, const QString& unit, const QString& ingredient)
{
    fields.amounts[row] = amount;
    fields.units[row] = unit;
    fields.ingredients[row] = ingredient;
}

// A viewed recipe: its amount boxes show fractions.
PrintedRecipe LemonBars()
{
    PrintedRecipe recipe;
    recipe.typeName = "Desserts";
    recipe.name = "Lemon Bars";
    SetRow(recipe.fields, 0, "1", "cup", "flour");
    SetRow(recipe.fields, 1, "1/4", "cup", "powdered sugar");
    SetRow(recipe.fields, 2, "1/2", "cup", "butter");
    SetRow(recipe.fields, 10, "2", "large", "eggs");
    SetRow(recipe.fields, 11, "1/3", "cup", "lemon juice");
    recipe.fields.directions = "Press the crust into the pan.";
    recipe.fields.ovenTemperature = "350";
    recipe.fields.cookingTime = "45 minutes";
    recipe.fields.yieldAmount = "16";
    recipe.fields.yieldType = "Bars";
    return recipe;
}

PrintSettings Layout(PrintLayout layout)
{
    PrintSettings settings;
    settings.layout = layout;
    return settings;
}

// The text that reads exactly `text`; fails the test when there is none.
TextItem Find(const Page& page, const QString& text)
{
    const TextItem* found = page.findText(text);
    EXPECT_NE(found, nullptr) << "no text " << text.toStdString();
    return found ? *found : TextItem{};
}

void ExpectAt(const Page& page, const QString& text, double x, double y)
{
    const TextItem item = Find(page, text);
    EXPECT_DOUBLE_EQ(item.x, x) << text.toStdString();
    EXPECT_DOUBLE_EQ(item.y, y) << text.toStdString();
}

QStringList TextsOf(const QList<TextItem>& items)
{
    QStringList texts;
    for (const TextItem& item : items)
        texts.append(item.text);
    return texts;
}

double LowestY(const Page& page)
{
    double lowest = 0;
    for (const TextItem& item : page.texts())
        lowest = std::max(lowest, item.y);
    return lowest;
}

QList<PictureItem> Pictures(const Page& page)
{
    QList<PictureItem> pictures;
    for (const PageItem& item : page.items) {
        if (const auto* picture = std::get_if<PictureItem>(&item))
            pictures.append(*picture);
    }
    return pictures;
}

// Where the table's heading line stands in each layout, for a recipe with
// the yield, time and oven all filled and no picture: the rows of steps
// before the table, added up.
double FullPageTableTop()
{
    // empty line, type, empty line, name (both at size 14), empty line,
    // yield/time line, oven line, "Ingredients:", empty line
    return kL + 3 * kTitleLine + kL + 2 * kL + kL + kL;
}

double HalfPageTableTop(double start)
{
    // type, name, yield/time line, oven line, "Ingredients:"
    return start + 2 * kTitleLine + 3 * kL;
}

// --- BlankRowFlags ---------------------------------------------------------

TEST(RecipePrintBlankRows, RowIsBlankOnlyWhenAllThreeBoxesAreBlankAfterTrimming)
{
    RecipeFields fields;
    SetRow(fields, 0, "1", "cup", "flour");
    SetRow(fields, 1, "  ", " ", "\t");
    SetRow(fields, 2, "", "pinch", "");
    SetRow(fields, 3, "", "", "salt");
    SetRow(fields, 4, ".5", "", "");
    SetRow(fields, 19, " ", "", " ");

    const std::array<bool, kRecipeRows> blank = BlankRowFlags(fields);
    EXPECT_FALSE(blank[0]);
    EXPECT_TRUE(blank[1]);
    EXPECT_FALSE(blank[2]);
    EXPECT_FALSE(blank[3]);
    EXPECT_FALSE(blank[4]);
    for (int row = 5; row < kRecipeRows; ++row)
        EXPECT_TRUE(blank[row]) << row;
}

// --- Fraction to decimal ----------------------------------------------------

struct FractionRow {
    const char* name;
    const char* text;
    const char* expected;
};

void PrintTo(const FractionRow& row, std::ostream* out)
{
    *out << '"' << row.text << "\" -> \"" << row.expected << '"';
}

class RecipePrintFraction : public ::testing::TestWithParam<FractionRow> {};

TEST_P(RecipePrintFraction, Converts)
{
    EXPECT_EQ(FractionTextToDecimal(QString::fromLatin1(GetParam().text)), QString::fromLatin1(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(RecipePrintTable, RecipePrintFraction,
                         ::testing::Values(FractionRow{"OneSixteenth", "1/16", ".06"},
                                           FractionRow{"OneEighth", "1/8", ".125"},
                                           FractionRow{"OneSixth", "1/6", ".17"},
                                           FractionRow{"OneQuarter", "1/4", ".25"},
                                           FractionRow{"OneThird", "1/3", ".33"},
                                           FractionRow{"OneHalf", "1/2", ".5"},
                                           FractionRow{"TwoThirds", "2/3", ".67"},
                                           FractionRow{"ThreeQuarters", "3/4", ".75"},
                                           FractionRow{"SevenEighths", "7/8", ".875"},
                                           FractionRow{"NoSlashWholeNumber", "3", "3"},
                                           FractionRow{"NoSlashDecimal", ".25", ".25"},
                                           FractionRow{"NoSlashEmpty", "", ""},
                                           FractionRow{"WholeNumberZeroIsDropped", "0 1/2", ".5"},
                                           FractionRow{"WholeNumberBelowZeroIsDropped", "-1 1/4", ".25"},
                                           FractionRow{"WholeAndHalf", "1 1/2", "1.5"},
                                           FractionRow{"WholeAndThreeQuarters", "2 3/4", "2.75"},
                                           FractionRow{"WholeAndSixteenth", "12 1/16", "12.06"},
                                           FractionRow{"FractionOutsideTheTable", "1 5/8", "1 5/8"},
                                           FractionRow{"LoneFractionOutsideTheTable", "3/16", "3/16"}),
                         [](const ::testing::TestParamInfo<FractionRow>& info) { return std::string(info.param.name); });

// --- The amount rule ----------------------------------------------------------

struct AmountRow {
    const char* name;
    const char* box;
    bool amountsAreDecimals;
    AmountFormat format;
    const char* expected;
};

void PrintTo(const AmountRow& row, std::ostream* out)
{
    *out << '"' << row.box << "\" -> \"" << row.expected << '"';
}

class RecipePrintAmount : public ::testing::TestWithParam<AmountRow> {};

TEST_P(RecipePrintAmount, FollowsTheModeAndTheFormat)
{
    const AmountRow& row = GetParam();
    EXPECT_EQ(PrintedAmount(QString::fromLatin1(row.box), row.amountsAreDecimals, row.format),
              QString::fromLatin1(row.expected));
}

INSTANTIATE_TEST_SUITE_P(
    RecipePrintTable, RecipePrintAmount,
    ::testing::Values(AmountRow{"ViewedAsFractionsPrintsTheBox", "1 1/2", false, AmountFormat::Fractions, "1 1/2"},
                      AmountRow{"ViewedAsDecimalsConverts", "1 1/2", false, AmountFormat::Decimals, "1.5"},
                      AmountRow{"ViewedAsDecimalsSixteenth", "1/16", false, AmountFormat::Decimals, ".06"},
                      AmountRow{"ModifyAsDecimalsPrintsTheBox", "1.5", true, AmountFormat::Decimals, "1.5"},
                      AmountRow{"ModifyAsDecimalsKeepsAnyText", ".333", true, AmountFormat::Decimals, ".333"},
                      AmountRow{"ModifyAsFractionsFormats", "1.5", true, AmountFormat::Fractions, "1 1/2"},
                      AmountRow{"ModifyAsFractionsThird", ".33", true, AmountFormat::Fractions, "1/3"},
                      AmountRow{"ModifyAsFractionsTrimsTheBlank", "3.05", true, AmountFormat::Fractions, "3"},
                      AmountRow{"ModifyAsFractionsEmpty", "", true, AmountFormat::Fractions, ""}),
    [](const ::testing::TestParamInfo<AmountRow>& info) { return std::string(info.param.name); });

// --- Layout 1: the full page with two ingredient columns --------------------

TEST(RecipePrintFullPage, TitleIsCentredTwoPointsLarger)
{
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::TwoColumn), kToday);
    ASSERT_EQ(f.doc().pageCount(), 1);
    const Page& page = f.doc().pages[0];

    ExpectAt(page, "Desserts", kW / 2 - Width(14, "Desserts") / 2, kL);
    ExpectAt(page, "Lemon Bars", kW / 2 - Width(14, "Lemon Bars") / 2, kL + 2 * kTitleLine);
    EXPECT_EQ(Find(page, "Desserts").font.size, 14);
    EXPECT_EQ(Find(page, "Lemon Bars").font.size, 14);
    EXPECT_EQ(Find(page, "Ingredients:").font.size, 12);
}

TEST(RecipePrintFullPage, InformationLineHasTheYieldLeftAndTimeOverOvenRight)
{
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];

    const double info = kL + 3 * kTitleLine + kL;
    ExpectAt(page, "Recipe Yields: 16 Bars", kW / 30, info);
    ExpectAt(page, "Cooking Time: 45 minutes", kW / 1.448, info);
    ExpectAt(page, "Oven Temperature: 350", kW / 1.448, info + kL);
    ExpectAt(page, "Ingredients:", kW / 30, info + 2 * kL);
}

TEST(RecipePrintFullPage, EmptyTimeLetsTheOvenTakeTheInformationLine)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields.cookingTime.clear();
    recipe.fields.yieldAmount.clear();
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];

    const double info = kL + 3 * kTitleLine + kL;
    ExpectAt(page, "Oven Temperature: 350", kW / 1.448, info);
    ExpectAt(page, "Ingredients:", kW / 30, info + kL);
    EXPECT_FALSE(f.doc().allTexts().join('|').contains("Recipe Yields"));
    EXPECT_FALSE(f.doc().allTexts().join('|').contains("Cooking Time"));
}

TEST(RecipePrintFullPage, EmptyOvenStillTakesItsLine)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields.ovenTemperature.clear();
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];

    const double info = kL + 3 * kTitleLine + kL;
    ExpectAt(page, "Cooking Time: 45 minutes", kW / 1.448, info);
    ExpectAt(page, "Ingredients:", kW / 30, info + 2 * kL);
}

TEST(RecipePrintFullPage, HeadingsStandAtTheColumnsOfBothHalves)
{
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];
    const double top = FullPageTableTop();

    const QList<TextItem> headings = page.textsAt(top);
    ASSERT_EQ(TextsOf(headings), QStringList({"Amt.", "Type", "Ingredient", "Amt.", "Type", "Ingredient"}));
    EXPECT_DOUBLE_EQ(headings[0].x, kW / 20 - Width(12, "Amt.") / 2);
    EXPECT_DOUBLE_EQ(headings[1].x, kW / 10);
    EXPECT_DOUBLE_EQ(headings[2].x, kW / 4.5);
    EXPECT_DOUBLE_EQ(headings[3].x, kW / 1.9 - Width(12, "Amt.") / 2);
    EXPECT_DOUBLE_EQ(headings[4].x, kW / 1.75);
    EXPECT_DOUBLE_EQ(headings[5].x, kW / 1.448);
}

TEST(RecipePrintFullPage, RowsStandAtTheColumnsOfTheirHalf)
{
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];
    const double top = FullPageTableTop();

    // Row 2 on the left and row 12 on the right share the line two below
    // the headings; the amounts are centred on their positions.
    const QList<TextItem> second = page.textsAt(top + 2 * kL);
    ASSERT_EQ(TextsOf(second), QStringList({"1/4", "cup", "powdered sugar", "1/3", "cup", "lemon juice"}));
    EXPECT_DOUBLE_EQ(second[0].x, kW / 20 - Width(12, "1/4") / 2);
    EXPECT_DOUBLE_EQ(second[1].x, kW / 10);
    EXPECT_DOUBLE_EQ(second[2].x, kW / 4.5);
    EXPECT_DOUBLE_EQ(second[3].x, kW / 1.9 - Width(12, "1/3") / 2);
    EXPECT_DOUBLE_EQ(second[4].x, kW / 1.75);
    EXPECT_DOUBLE_EQ(second[5].x, kW / 1.448);

    EXPECT_EQ(TextsOf(page.textsAt(top + kL)), QStringList({"1", "cup", "flour", "2", "large", "eggs"}));
    EXPECT_EQ(TextsOf(page.textsAt(top + 3 * kL)), QStringList({"1/2", "cup", "butter"}));
}

TEST(RecipePrintFullPage, DirectionsFollowTheLeftHalfAndWrapWithinTheIndents)
{
    PrintedRecipe recipe = LemonBars();
    QStringList words;
    for (int i = 0; i < 20; ++i)
        words.append("abcdefghi");
    recipe.fields.directions = words.join(' ');
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];

    // The left half always takes the headings and ten rows.
    const double directions = FullPageTableTop() + 11 * kL + kL;
    ExpectAt(page, "Directions:", kW / 30, directions);

    // Ten words make 99 characters, 11880 twips, more than the 10840
    // between the indents; nine make 89, 10680 twips, so each line takes nine.
    const double room = kW - 2 * 700;
    QStringList lines;
    double y = directions + 2 * kL;
    for (const TextItem& item : page.texts()) {
        if (!item.text.startsWith("abcdefghi"))
            continue;
        EXPECT_DOUBLE_EQ(item.x, 700);
        EXPECT_DOUBLE_EQ(item.y, y);
        EXPECT_LE(item.width, room);
        lines.append(item.text);
        y += kL;
    }
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], QStringList(words.mid(0, 9)).join(' '));
    EXPECT_EQ(lines[1], QStringList(words.mid(9, 9)).join(' '));
    EXPECT_EQ(lines[2], QStringList(words.mid(18)).join(' '));
}

TEST(RecipePrintFullPage, FooterInSizeSixNamesTheProgramAndTheDate)
{
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];

    // "Directions:", an empty line, one line of directions, an empty line.
    const double footer = FullPageTableTop() + 12 * kL + 4 * kL;
    const QString printedOn = "Printed on " + ShortDate(kToday);
    EXPECT_EQ(printedOn, "Printed on 3/5/24");
    ExpectAt(page, "Brindlepot", kW / 30, footer);
    ExpectAt(page, printedOn, kW / 30, footer + Line(6));
    EXPECT_EQ(Find(page, "Brindlepot").font.size, 6);
    EXPECT_EQ(Find(page, printedOn).font.size, 6);
    EXPECT_EQ(f.page.font().size, 12);
}

TEST(RecipePrintFullPage, ChosenFontIsUsedThroughout)
{
    PrintSettings settings = Layout(PrintLayout::TwoColumn);
    settings.font.name = "Courier New";
    settings.font.size = 10;
    settings.font.bold = true;
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), settings, kToday);
    const Page& page = f.doc().pages[0];

    const TextItem type = Find(page, "Desserts");
    EXPECT_EQ(type.font.size, 12);
    EXPECT_EQ(type.font.name, "Courier New");
    EXPECT_TRUE(type.font.bold);
    EXPECT_DOUBLE_EQ(type.y, Line(10));
    const TextItem flour = Find(page, "flour");
    EXPECT_EQ(flour.font.size, 10);
    EXPECT_TRUE(flour.font.bold);
}

// --- The edge cases of the table ------------------------------------------------

TEST(RecipePrintTable, ExactlyTenIngredientsFillTheLeftHalfAndLeaveTheRightItsHeadings)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields = RecipeFields{};
    for (int row = 0; row < 10; ++row)
        SetRow(recipe.fields, row, QString::number(row + 1), "cup", QString("item %1").arg(row + 1));
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];
    // No yield, time or oven: only the oven's empty line on the information line.
    const double top = kL + 3 * kTitleLine + kL + kL + kL + kL;

    EXPECT_EQ(TextsOf(page.textsAt(top)), QStringList({"Amt.", "Type", "Ingredient", "Amt.", "Type", "Ingredient"}));
    for (int row = 0; row < 10; ++row) {
        const QString number = QString::number(row + 1);
        EXPECT_EQ(TextsOf(page.textsAt(top + (row + 1) * kL)),
                  QStringList({number, "cup", QString("item %1").arg(row + 1)}))
            << row;
        ExpectAt(page, QString("item %1").arg(row + 1), kW / 4.5, top + (row + 1) * kL);
    }
    // Nothing of the table in the right half below its headings.
    const double directions = top + 12 * kL;
    ExpectAt(page, "Directions:", kW / 30, directions);
    for (const TextItem& item : page.texts()) {
        if (item.y > top && item.y < directions) {
            EXPECT_LT(item.x, kW / 2) << item.text.toStdString();
        }
    }
}

TEST(RecipePrintTable, EleventhIngredientStandsUnderTheRightHeadingAndLaterRowsPrintNothing)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields = RecipeFields{};
    for (int row = 0; row < 11; ++row)
        SetRow(recipe.fields, row, "1", "cup", QString("item %1").arg(row + 1));
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];
    const double top = kL + 3 * kTitleLine + kL + kL + kL + kL;

    const QList<TextItem> first = page.textsAt(top + kL);
    ASSERT_EQ(TextsOf(first), QStringList({"1", "cup", "item 1", "1", "cup", "item 11"}));
    EXPECT_DOUBLE_EQ(first[3].x, kW / 1.9 - Width(12, "1") / 2);
    EXPECT_DOUBLE_EQ(first[4].x, kW / 1.75);
    EXPECT_DOUBLE_EQ(first[5].x, kW / 1.448);

    const double directions = top + 12 * kL;
    int rightHalf = 0;
    for (const TextItem& item : page.texts()) {
        if (item.y > top + kL && item.y < directions && item.x > kW / 2)
            ++rightHalf;
    }
    EXPECT_EQ(rightHalf, 0);
    ExpectAt(page, "Directions:", kW / 30, directions);
}

TEST(RecipePrintTable, BlankRightRowsTakeNoLine)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields = RecipeFields{};
    SetRow(recipe.fields, 0, "1", "cup", "flour");
    SetRow(recipe.fields, 12, "2", "tsp", "salt");     // rows 11 and 12 blank
    SetRow(recipe.fields, 19, "3", "tbsp", "butter");
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];
    const double top = kL + 3 * kTitleLine + kL + kL + kL + kL;

    EXPECT_EQ(TextsOf(page.textsAt(top + kL)), QStringList({"1", "cup", "flour", "2", "tsp", "salt"}));
    EXPECT_EQ(TextsOf(page.textsAt(top + 2 * kL)), QStringList({"3", "tbsp", "butter"}));
    ExpectAt(page, "butter", kW / 1.448, top + 2 * kL);
    // The short right half does not pull "Directions:" up over the left.
    ExpectAt(page, "Directions:", kW / 30, top + 12 * kL);
}

TEST(RecipePrintTable, FullRightHalfEndsLevelWithTheLeft)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields = RecipeFields{};
    for (int row = 0; row < kRecipeRows; ++row)
        SetRow(recipe.fields, row, "1", "cup", QString("item %1").arg(row + 1));
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];
    const double top = kL + 3 * kTitleLine + kL + kL + kL + kL;

    ExpectAt(page, "item 10", kW / 4.5, top + 10 * kL);
    ExpectAt(page, "item 20", kW / 1.448, top + 10 * kL);
    ExpectAt(page, "Directions:", kW / 30, top + 12 * kL);
}

TEST(RecipePrintTable, DecimalFormatConvertsTheViewedFractions)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields = RecipeFields{};
    SetRow(recipe.fields, 0, "1 1/2", "cup", "flour");
    SetRow(recipe.fields, 1, "1/16", "tsp", "saffron");
    PrintSettings settings = Layout(PrintLayout::TwoColumn);
    settings.amountFormat = AmountFormat::Decimals;
    Fixture f;
    ComposeRecipePage(f.page, recipe, settings, kToday);
    const Page& page = f.doc().pages[0];
    const double top = kL + 3 * kTitleLine + kL + kL + kL + kL;

    ExpectAt(page, "1.5", kW / 20 - Width(12, "1.5") / 2, top + kL);
    ExpectAt(page, ".06", kW / 20 - Width(12, ".06") / 2, top + 2 * kL);
    EXPECT_EQ(page.findText("1 1/2"), nullptr);
    EXPECT_EQ(page.findText("1/16"), nullptr);
}

TEST(RecipePrintTable, ModifyModeAmountsPrintAsFractions)
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields = RecipeFields{};
    recipe.amountsAreDecimals = true;
    SetRow(recipe.fields, 0, "1.5", "cup", "flour");
    SetRow(recipe.fields, 10, ".25", "tsp", "salt");
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::TwoColumn), kToday);
    const Page& page = f.doc().pages[0];
    const double top = kL + 3 * kTitleLine + kL + kL + kL + kL;

    EXPECT_EQ(TextsOf(page.textsAt(top + kL)), QStringList({"1 1/2", "cup", "flour", "1/4", "tsp", "salt"}));
}

// --- Layout 2: one column ---------------------------------------------------------

PrintedRecipe OneColumnSample()
{
    PrintedRecipe recipe = LemonBars();
    recipe.fields = RecipeFields{};
    SetRow(recipe.fields, 0, "1", "cup", "flour");
    SetRow(recipe.fields, 1, "1/2", "cup", "sugar");
    SetRow(recipe.fields, 13, "2", "large", "eggs");    // row 14; rows 11 to 13 blank
    SetRow(recipe.fields, 15, "1/3", "cup", "milk");    // row 16
    recipe.fields.directions = "Stir.";
    recipe.fields.yieldAmount = "4";
    recipe.fields.yieldType = "Servings";
    recipe.fields.cookingTime = "1 hour";
    recipe.fields.ovenTemperature = "325";
    return recipe;
}

TEST(RecipePrintOneColumn, AllRowsRunDownOneColumn)
{
    Fixture f;
    ComposeRecipePage(f.page, OneColumnSample(), Layout(PrintLayout::OneColumn), kToday);
    ASSERT_EQ(f.doc().pageCount(), 1);
    const Page& page = f.doc().pages[0];
    const double top = FullPageTableTop();

    const QList<TextItem> headings = page.textsAt(top);
    ASSERT_EQ(TextsOf(headings), QStringList({"Amt.", "Type", "Ingredient"}));
    EXPECT_DOUBLE_EQ(headings[0].x, kW / 20 - Width(12, "Amt.") / 2);
    EXPECT_DOUBLE_EQ(headings[1].x, kW / 10);
    EXPECT_DOUBLE_EQ(headings[2].x, kW / 4.5);

    EXPECT_EQ(TextsOf(page.textsAt(top + kL)), QStringList({"1", "cup", "flour"}));
    EXPECT_EQ(TextsOf(page.textsAt(top + 2 * kL)), QStringList({"1/2", "cup", "sugar"}));
    // Rows 3 to 10 keep their lines though blank; rows 11 to 13 and 15 take none.
    const QList<TextItem> eggs = page.textsAt(top + 11 * kL);
    ASSERT_EQ(TextsOf(eggs), QStringList({"2", "large", "eggs"}));
    EXPECT_DOUBLE_EQ(eggs[0].x, kW / 20 - Width(12, "2") / 2);
    EXPECT_DOUBLE_EQ(eggs[1].x, kW / 10);
    EXPECT_DOUBLE_EQ(eggs[2].x, kW / 4.5);
    EXPECT_EQ(TextsOf(page.textsAt(top + 12 * kL)), QStringList({"1/3", "cup", "milk"}));

    ExpectAt(page, "Directions:", kW / 30, top + 14 * kL);
    ExpectAt(page, "Stir.", 700, top + 16 * kL);
    ExpectAt(page, "Brindlepot", kW / 30, top + 18 * kL);
    ExpectAt(page, "Printed on " + ShortDate(kToday), kW / 30, top + 18 * kL + Line(6));
    // Nothing of the table, nor anything below it, in the right half.
    for (const TextItem& item : page.texts()) {
        if (item.y >= top) {
            EXPECT_LT(item.x, kW / 2) << item.text.toStdString();
        }
    }
}

TEST(RecipePrintOneColumn, TitleAndInformationAsOnTheTwoColumnPage)
{
    Fixture one;
    ComposeRecipePage(one.page, OneColumnSample(), Layout(PrintLayout::OneColumn), kToday);
    Fixture two;
    ComposeRecipePage(two.page, OneColumnSample(), Layout(PrintLayout::TwoColumn), kToday);

    for (const QString& text : {QString("Desserts"), QString("Lemon Bars"), QString("Recipe Yields: 4 Servings"),
                                QString("Cooking Time: 1 hour"), QString("Oven Temperature: 325"),
                                QString("Ingredients:")}) {
        const TextItem a = Find(one.doc().pages[0], text);
        const TextItem b = Find(two.doc().pages[0], text);
        EXPECT_DOUBLE_EQ(a.x, b.x) << text.toStdString();
        EXPECT_DOUBLE_EQ(a.y, b.y) << text.toStdString();
    }
}

TEST(RecipePrintOneColumn, SingleColumnCompositionIgnoresTheLayoutItIsGiven)
{
    Fixture direct;
    ComposeSingleColumnPage(direct.page, OneColumnSample(), Layout(PrintLayout::TwoColumn), kToday);
    Fixture handed;
    ComposeRecipePage(handed.page, OneColumnSample(), Layout(PrintLayout::OneColumn), kToday);

    const QList<TextItem> a = direct.doc().pages[0].texts();
    const QList<TextItem> b = handed.doc().pages[0].texts();
    ASSERT_EQ(a.size(), b.size());
    for (qsizetype i = 0; i < a.size(); ++i) {
        EXPECT_EQ(a[i].text, b[i].text);
        EXPECT_DOUBLE_EQ(a[i].x, b[i].x);
        EXPECT_DOUBLE_EQ(a[i].y, b[i].y);
    }
}

// --- Layouts 3 and 4: half pages ------------------------------------------------

TEST(RecipePrintHalfPage, TopHalfLeavesOutTheEmptyLinesOfTheFullPage)
{
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::TopHalf), kToday);
    const Page& page = f.doc().pages[0];

    ExpectAt(page, "Desserts", kW / 2 - Width(14, "Desserts") / 2, kL);
    ExpectAt(page, "Lemon Bars", kW / 2 - Width(14, "Lemon Bars") / 2, kL + kTitleLine);
    const double info = kL + 2 * kTitleLine;
    ExpectAt(page, "Recipe Yields: 16 Bars", kW / 30, info);
    ExpectAt(page, "Cooking Time: 45 minutes", kW / 1.448, info);
    ExpectAt(page, "Oven Temperature: 350", kW / 1.448, info + kL);
    ExpectAt(page, "Ingredients:", kW / 30, info + 2 * kL);
    const double top = HalfPageTableTop(kL);
    EXPECT_EQ(TextsOf(page.textsAt(top)), QStringList({"Amt.", "Type", "Ingredient", "Amt.", "Type", "Ingredient"}));
    ExpectAt(page, "Directions:", kW / 30, top + 12 * kL);
    ExpectAt(page, "Press the crust into the pan.", 700, top + 13 * kL);
}

TEST(RecipePrintHalfPage, BottomHalfStartsBelowTheMiddle)
{
    Fixture f;
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::BottomHalf), kToday);
    const Page& page = f.doc().pages[0];

    const double start = kH / 2 + 100;
    ExpectAt(page, "Desserts", kW / 2 - Width(14, "Desserts") / 2, start);
    ExpectAt(page, "Lemon Bars", kW / 2 - Width(14, "Lemon Bars") / 2, start + kTitleLine);
    const double top = HalfPageTableTop(start);
    EXPECT_EQ(TextsOf(page.textsAt(top)), QStringList({"Amt.", "Type", "Ingredient", "Amt.", "Type", "Ingredient"}));
    ExpectAt(page, "Directions:", kW / 30, top + 12 * kL);
}

TEST(RecipePrintHalfPage, LongBottomHalfRunsPastThePageWithoutABreak)
{
    PrintedRecipe recipe = LemonBars();
    QStringList lines;
    for (int i = 1; i <= 40; ++i)
        lines.append(QString("Step %1.").arg(i));
    recipe.fields.directions = lines.join("\r\n");
    Fixture f;
    ComposeRecipePage(f.page, recipe, Layout(PrintLayout::BottomHalf), kToday);

    ASSERT_EQ(f.doc().pageCount(), 1);
    const Page& page = f.doc().pages[0];
    const double start = kH / 2 + 100;
    EXPECT_DOUBLE_EQ(Find(page, "Desserts").y, start);
    const double firstStep = HalfPageTableTop(start) + 13 * kL;
    ExpectAt(page, "Step 1.", 700, firstStep);
    ExpectAt(page, "Step 40.", 700, firstStep + 39 * kL);
    EXPECT_GT(Find(page, "Step 40.").y, kH);
    EXPECT_GT(LowestY(page), kH);
}

TEST(RecipePrintHalfPage, FooterNeverOnHalfPages)
{
    for (PrintLayout layout : {PrintLayout::TopHalf, PrintLayout::BottomHalf}) {
        Fixture f;
        ComposeRecipePage(f.page, LemonBars(), Layout(layout), kToday);
        const QStringList texts = f.doc().allTexts();
        EXPECT_FALSE(texts.contains("Brindlepot")) << int(layout);
        EXPECT_FALSE(texts.join('|').contains("Printed on")) << int(layout);
        // The directions are the last thing on the half page.
        EXPECT_EQ(texts.last(), "Press the crust into the pan.") << int(layout);
    }
    for (PrintLayout layout : {PrintLayout::TwoColumn, PrintLayout::OneColumn}) {
        Fixture f;
        ComposeRecipePage(f.page, LemonBars(), Layout(layout), kToday);
        EXPECT_TRUE(f.doc().allTexts().contains("Brindlepot")) << int(layout);
    }
}

// --- The picture ------------------------------------------------------------------------

TEST(RecipePrintPicture, PortraitRectangleAndTextBelowIt)
{
    PrintedRecipe recipe = LemonBars();
    recipe.picturePath = "C:\\Pictures\\lemon.jpg";
    PrintSettings settings = Layout(PrintLayout::TwoColumn);
    settings.printPicture = true;
    Fixture f;
    ComposeRecipePage(f.page, recipe, settings, kToday);
    const Page& page = f.doc().pages[0];

    const QList<PictureItem> pictures = Pictures(page);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0].file, "C:\\Pictures\\lemon.jpg");
    EXPECT_DOUBLE_EQ(pictures[0].left, 2.125 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].top, 1 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].width, 4 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].height, 2 * 1440);
    // The name stays above; the information line comes after an empty line
    // below the picture.
    EXPECT_DOUBLE_EQ(Find(page, "Lemon Bars").y, kL + 2 * kTitleLine);
    ExpectAt(page, "Recipe Yields: 16 Bars", kW / 30, .26 * kH + kL);
}

TEST(RecipePrintPicture, LandscapeRectangleAndTextBelowIt)
{
    PrintedRecipe recipe = LemonBars();
    recipe.picturePath = "lemon.bmp";
    PrintSettings settings = Layout(PrintLayout::OneColumn);
    settings.printPicture = true;
    Fixture f(Landscape());
    const double width = 15840;
    const double height = 12240;
    ASSERT_DOUBLE_EQ(f.page.pageWidth(), width);
    ComposeRecipePage(f.page, recipe, settings, kToday);
    const Page& page = f.doc().pages[0];

    const QList<PictureItem> pictures = Pictures(page);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_DOUBLE_EQ(pictures[0].left, 3.6 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].top, 1 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].width, 3.5 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].height, 2.5 * 1440);
    ExpectAt(page, "Recipe Yields: 16 Bars", width / 30, .39 * height + kL);
    ExpectAt(page, "Cooking Time: 45 minutes", width / 1.448, .39 * height + kL);
}

TEST(RecipePrintPicture, NothingDrawnWithoutTheCheckOrWithoutAFile)
{
    PrintedRecipe withFile = LemonBars();
    withFile.picturePath = "lemon.jpg";
    PrintSettings unchecked = Layout(PrintLayout::TwoColumn);
    Fixture a;
    ComposeRecipePage(a.page, withFile, unchecked, kToday);
    EXPECT_TRUE(Pictures(a.doc().pages[0]).isEmpty());

    PrintSettings checked = unchecked;
    checked.printPicture = true;
    Fixture b;
    ComposeRecipePage(b.page, LemonBars(), checked, kToday);
    EXPECT_TRUE(Pictures(b.doc().pages[0]).isEmpty());
    EXPECT_DOUBLE_EQ(Find(b.doc().pages[0], "Recipe Yields: 16 Bars").y, kL + 3 * kTitleLine + kL);
}

// --- Additional recipes from the cookbook ------------------------------------------------

RecipeFields CookbookFields(const QString& ingredient, const QString& amount)
{
    RecipeFields fields;
    SetRow(fields, 0, amount, "cup", ingredient);
    fields.directions = "Mix " + ingredient + ".";
    fields.cookingTime = "20 minutes";
    fields.ovenTemperature = "375";
    fields.yieldAmount = "12";
    fields.yieldType = "Muffins";
    return fields;
}

using Queue = std::array<std::optional<AdditionalRecipe>, 10>;

// Recipe n of the cookbook is in slot n, named "Recipe n", with the
// ingredient "ingredient n".
struct QueueCookbook {
    TempProgramFolder folder;
    QueueCookbook()
    {
        for (int n = 1; n <= 10; ++n) {
            EXPECT_TRUE(WriteRecipe(1, RecordNumber(n),
                                    BuildRecipeRecord(CookbookFields(QString("ingredient %1").arg(n), ".5")),
                                    n == 1 ? u"pictures/one.jpg" : u""));
        }
    }
    static AdditionalRecipe Queued(int n, RecipeType type = RecipeType::Breads)
    {
        return AdditionalRecipe{type, RecordNumber(n), QString("Recipe %1").arg(n)};
    }
};

// The page each recipe name stands on (1-based), and its Y there.
struct Placement {
    int page = 0;
    double y = 0;
};

Placement PlacementOf(const PageDocument& doc, const QString& name)
{
    for (int i = 0; i < doc.pageCount(); ++i) {
        if (const TextItem* item = doc.pages[i].findText(name))
            return {i + 1, item->y};
    }
    return {};
}

const double kTopName = kL + kTitleLine;
const double kBottomName = kH / 2 + 100 + kTitleLine;

TEST(RecipePrintAdditional, SlotsZeroAndThreeGoOnTopOfSheetOneAndBottomOfSheetTwo)
{
    QueueCookbook cookbook;
    Queue queue;
    queue[0] = QueueCookbook::Queued(1, RecipeType::Desserts);
    queue[3] = QueueCookbook::Queued(2, RecipeType::Breads);
    Fixture f;
    ComposeAdditionalPages(f.page, 1, queue, PrintSettings{}, kToday);
    const PageDocument& doc = f.doc();

    ASSERT_EQ(doc.pageCount(), 2);
    const Page& first = doc.pages[0];
    const Page& second = doc.pages[1];
    ExpectAt(first, RecipeTypeName(RecipeType::Desserts),
             kW / 2 - Width(14, RecipeTypeName(RecipeType::Desserts)) / 2, kL);
    ExpectAt(first, "Recipe 1", kW / 2 - Width(14, "Recipe 1") / 2, kTopName);
    EXPECT_NE(first.findText("ingredient 1"), nullptr);
    EXPECT_EQ(first.findText("Recipe 2"), nullptr);

    ExpectAt(second, RecipeTypeName(RecipeType::Breads), kW / 2 - Width(14, RecipeTypeName(RecipeType::Breads)) / 2,
             kH / 2 + 100);
    ExpectAt(second, "Recipe 2", kW / 2 - Width(14, "Recipe 2") / 2, kBottomName);
    EXPECT_NE(second.findText("ingredient 2"), nullptr);
    EXPECT_EQ(second.findText("Recipe 1"), nullptr);
    // Nothing on the top half of the second sheet.
    for (const TextItem& item : second.texts())
        EXPECT_GT(item.y, kH / 2) << item.text.toStdString();
}

TEST(RecipePrintAdditional, RecordsAreReadAndTheirDecimalsFollowTheFormat)
{
    QueueCookbook cookbook;
    Queue queue;
    queue[0] = QueueCookbook::Queued(1);
    queue[1] = QueueCookbook::Queued(2);

    Fixture fractions;
    ComposeAdditionalPages(fractions.page, 1, queue, PrintSettings{}, kToday);
    ASSERT_EQ(fractions.doc().pageCount(), 1);
    const Page& page = fractions.doc().pages[0];
    const double top = HalfPageTableTop(kL);
    EXPECT_EQ(TextsOf(page.textsAt(top + kL)), QStringList({"1/2", "cup", "ingredient 1"}));
    ExpectAt(page, "Recipe Yields: 12 Muffins", kW / 30, kL + 2 * kTitleLine);
    ExpectAt(page, "Oven Temperature: 375", kW / 1.448, kL + 2 * kTitleLine + kL);
    ExpectAt(page, "Mix ingredient 1.", 700, top + 13 * kL);
    const double bottomTop = HalfPageTableTop(kH / 2 + 100);
    EXPECT_EQ(TextsOf(page.textsAt(bottomTop + kL)), QStringList({"1/2", "cup", "ingredient 2"}));

    PrintSettings decimals;
    decimals.amountFormat = AmountFormat::Decimals;
    Fixture stored;
    ComposeAdditionalPages(stored.page, 1, queue, decimals, kToday);
    EXPECT_EQ(TextsOf(stored.doc().pages[0].textsAt(top + kL)), QStringList({".5", "cup", "ingredient 1"}));
}

TEST(RecipePrintAdditional, FullQueueMakesFiveSheets)
{
    QueueCookbook cookbook;
    Queue queue;
    for (int i = 0; i < 10; ++i)
        queue[i] = QueueCookbook::Queued(i + 1);
    Fixture f;
    ComposeAdditionalPages(f.page, 1, queue, PrintSettings{}, kToday);

    ASSERT_EQ(f.doc().pageCount(), 5);
    for (int i = 0; i < 10; ++i) {
        const Placement placed = PlacementOf(f.doc(), QString("Recipe %1").arg(i + 1));
        EXPECT_EQ(placed.page, i / 2 + 1) << i;
        EXPECT_DOUBLE_EQ(placed.y, i % 2 == 0 ? kTopName : kBottomName) << i;
    }
}

TEST(RecipePrintAdditional, OddSlotAfterAFilledPartnerSharesItsSheet)
{
    QueueCookbook cookbook;
    Queue queue;
    queue[1] = QueueCookbook::Queued(1);
    queue[2] = QueueCookbook::Queued(2);
    queue[3] = QueueCookbook::Queued(3);
    queue[7] = QueueCookbook::Queued(4);
    Fixture f;
    ComposeAdditionalPages(f.page, 1, queue, PrintSettings{}, kToday);

    ASSERT_EQ(f.doc().pageCount(), 3);
    const Placement one = PlacementOf(f.doc(), "Recipe 1");
    const Placement two = PlacementOf(f.doc(), "Recipe 2");
    const Placement three = PlacementOf(f.doc(), "Recipe 3");
    const Placement four = PlacementOf(f.doc(), "Recipe 4");
    EXPECT_EQ(one.page, 1);
    EXPECT_DOUBLE_EQ(one.y, kBottomName);
    EXPECT_EQ(two.page, 2);
    EXPECT_DOUBLE_EQ(two.y, kTopName);
    EXPECT_EQ(three.page, 2);
    EXPECT_DOUBLE_EQ(three.y, kBottomName);
    EXPECT_EQ(four.page, 3);
    EXPECT_DOUBLE_EQ(four.y, kBottomName);
}

TEST(RecipePrintAdditional, NoBlankSheetBeforeTheFirstQueuedRecipe)
{
    QueueCookbook cookbook;
    Queue queue;
    queue[4] = QueueCookbook::Queued(1);
    queue[9] = QueueCookbook::Queued(2);
    Fixture f;
    ComposeAdditionalPages(f.page, 1, queue, PrintSettings{}, kToday);

    ASSERT_EQ(f.doc().pageCount(), 2);
    const Placement one = PlacementOf(f.doc(), "Recipe 1");
    EXPECT_EQ(one.page, 1);
    EXPECT_DOUBLE_EQ(one.y, kTopName);
    const Placement two = PlacementOf(f.doc(), "Recipe 2");
    EXPECT_EQ(two.page, 2);
    EXPECT_DOUBLE_EQ(two.y, kBottomName);

    Queue onlyOdd;
    onlyOdd[5] = QueueCookbook::Queued(3);
    Fixture g;
    ComposeAdditionalPages(g.page, 1, onlyOdd, PrintSettings{}, kToday);
    ASSERT_EQ(g.doc().pageCount(), 1);
    EXPECT_DOUBLE_EQ(PlacementOf(g.doc(), "Recipe 3").y, kBottomName);
}

TEST(RecipePrintAdditional, EmptyQueueGivesOneEmptySheet)
{
    QueueCookbook cookbook;
    Fixture f;
    ComposeAdditionalPages(f.page, 1, Queue{}, PrintSettings{}, kToday);
    ASSERT_EQ(f.doc().pageCount(), 1);
    EXPECT_TRUE(f.doc().pages[0].items.isEmpty());
}

TEST(RecipePrintAdditional, NoPictureAndNoFooterOnHalfPages)
{
    QueueCookbook cookbook;
    ASSERT_EQ(ReadRecipe(1, 1).picturePath, "pictures/one.jpg");
    Queue queue;
    queue[0] = QueueCookbook::Queued(1);
    queue[1] = QueueCookbook::Queued(2);
    PrintSettings settings;
    settings.layout = PrintLayout::TwoColumn;
    settings.printPicture = true;
    Fixture f;
    ComposeAdditionalPages(f.page, 1, queue, settings, kToday);

    ASSERT_EQ(f.doc().pageCount(), 1);
    EXPECT_TRUE(Pictures(f.doc().pages[0]).isEmpty());
    EXPECT_FALSE(f.doc().allTexts().contains("Brindlepot"));
    EXPECT_FALSE(f.doc().allTexts().join('|').contains("Printed on"));
    EXPECT_DOUBLE_EQ(PlacementOf(f.doc(), "Recipe 1").y, kTopName);
}

// --- The worksheet ----------------------------------------------------------------------

QString WorksheetRow(int number)
{
    const QString prefix = number < 10 ? QString("  %1").arg(number) : QString::number(number);
    return prefix + ". - Amt.: " + QString(6, u'_') + "  Type: " + QString(12, u'_') + "  Ingredient: "
        + QString(38, u'_');
}

TEST(RecipePrintWorksheet, LinesStandAtTheIndentOneUnderTheOther)
{
    Fixture f;
    TextFont font;
    font.name = "Arial";
    ComposeWorksheet(f.page, font);
    ASSERT_EQ(f.doc().pageCount(), 1);
    const Page& page = f.doc().pages[0];

    ExpectAt(page, "Recipe WorkSheet", kW / 2 - Width(12, "Recipe WorkSheet") / 2, 0);
    EXPECT_EQ(Find(page, "Recipe WorkSheet").font.name, "Arial");
    ExpectAt(page, "Recipe Type:  " + QString(48, u'_'), 400, 2 * kL);
    ExpectAt(page, "Recipe Name: " + QString(48, u'_'), 400, 4 * kL);
    ExpectAt(page, "Ingredients:", 400, 6 * kL);

    const double firstRow = 8 * kL;
    for (int number = 1; number <= 20; ++number)
        ExpectAt(page, WorksheetRow(number), 400, firstRow + (number - 1) * (kL + 100));

    const double afterRows = firstRow + 20 * (kL + 100);
    ExpectAt(page, "Directions:", 400, afterRows + kL);
    const double afterDirections = afterRows + 2 * kL + 10 * kL;
    ExpectAt(page, "Oven Temperature: " + QString(17, u'_'), 400, afterDirections + kL);
    ExpectAt(page, "Cooking Time: " + QString(21, u'_'), 400, afterDirections + 3 * kL);
    ExpectAt(page, "Recipe Yield: " + QString(22, u'_'), 400, afterDirections + 5 * kL);
    EXPECT_EQ(page.texts().size(), 1 + 3 + 20 + 1 + 3);
}

TEST(RecipePrintWorksheet, OneDigitRowsArePaddedWithTwoBlanks)
{
    Fixture f;
    ComposeWorksheet(f.page, TextFont{});
    const QStringList texts = f.doc().allTexts();

    EXPECT_TRUE(texts.contains("  1. - Amt.: ______  Type: ____________  Ingredient: "
                               "______________________________________"));
    EXPECT_TRUE(texts.contains("  9. - Amt.: ______  Type: ____________  Ingredient: "
                               "______________________________________"));
    EXPECT_TRUE(texts.contains("10. - Amt.: ______  Type: ____________  Ingredient: "
                               "______________________________________"));
    EXPECT_TRUE(texts.contains("20. - Amt.: ______  Type: ____________  Ingredient: "
                               "______________________________________"));
    EXPECT_FALSE(texts.contains("  10. - Amt.: ______  Type: ____________  Ingredient: "
                                "______________________________________"));
}

TEST(RecipePrintWorksheet, IndentDoesNotLeakIntoTheNextRecipePage)
{
    Fixture f;
    ComposeWorksheet(f.page, TextFont{});
    ComposeRecipePage(f.page, LemonBars(), Layout(PrintLayout::TwoColumn), kToday);
    ExpectAt(f.doc().pages[0], "Press the crust into the pan.", 700, FullPageTableTop() + 14 * kL);
}

} // namespace

TEST(RecipePrintAdditional, DamagedOrShortCookbookFilesPrintWhatTheyHold)
{
    TempProgramFolder folder;
    Queue queue;
    queue[0] = AdditionalRecipe{RecipeType::Breads, 1, "Rolls"};
    queue[1] = AdditionalRecipe{RecipeType::Breads, 32000, "Far Away"};
    std::mt19937 random(20261121);
    for (int round = 0; round < 40; ++round) {
        QByteArray bytes(int(random() % 6000), '\0');
        for (char& byte : bytes)
            byte = char(random() % 256);
        folder.writeBytes(RecipeFileName(1), bytes);
        folder.writeBytes(ExtraFileName(1), bytes.left(int(random() % 300)));
        Fixture f;
        ComposeAdditionalPages(f.page, 1, queue, PrintSettings{}, kToday);
        ASSERT_EQ(f.doc().pageCount(), 1);
        EXPECT_NE(f.doc().pages[0].findText("Rolls"), nullptr);
        EXPECT_NE(f.doc().pages[0].findText("Far Away"), nullptr);
    }
}
