// The yield and amount calculator: rescaling the work list, snapping each
// result to a kitchen fraction, fitting the unit words, and the rules of the
// new yield box.
#include "recipetools/logic/amountcalculator.h"
#include "recipetools/logic/amountformat.h"
#include "fraction_lines.h"

#include <QString>
#include <QStringList>
#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>
#include <vector>

namespace {

struct Row {
    QString amount;
    QString unit;
};

CalculatorInput Input(const QString& from, const QString& to, std::initializer_list<Row> rows,
                      bool modifyMode = false)
{
    CalculatorInput input;
    input.currentYield = from;
    input.newYield = to;
    int i = 0;
    for (const Row& row : rows) {
        input.workList[i] = row.amount;
        input.units[i] = row.unit;
        ++i;
    }
    input.modifyMode = modifyMode;
    return input;
}

// The first row of a calculation from one yield to another.
struct OneRow {
    CalculatorOutcome outcome;
    QString box;
    QString workList;
    QString unit;
};

OneRow CalculateOne(const QString& from, const QString& to, const QString& amount, const QString& unit,
                    bool modifyMode = false)
{
    const CalculatorResult result = CalculateNewAmounts(Input(from, to, {{amount, unit}}, modifyMode));
    return {result.outcome, result.amountBoxes[0], result.workList[0], result.units[0]};
}

// What a table compared with doubles would snap a rest to: the snapping the
// program must not do.
double SnappedInDoublePrecision(double amount)
{
    const double rest = amount - std::trunc(amount);
    if (rest < 0.1)
        return 0;
    if (rest < 0.2)
        return 0.125;
    if (rest < 0.3)
        return 0.25;
    if (rest <= 0.4)
        return 0.33;
    if (rest <= 0.6)
        return 0.5;
    if (rest <= 0.7)
        return 0.67;
    if (rest <= 0.85)
        return 0.75;
    return 1;
}

// ---- The cases every rescale must get right -------------------------------------------

TEST(AmountCalculatorEdgeCases, OneCupFromYieldFourToSixIsOneAndAHalfCups)
{
    const OneRow row = CalculateOne("4", "6", "1", "cup");
    EXPECT_EQ(row.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(row.box, "1 1/2");
    EXPECT_EQ(row.workList, "1.5");
    EXPECT_EQ(row.unit, "cups");
}

TEST(AmountCalculatorEdgeCases, OnePointOneCupsIsAnEighthOverOneAndSingular)
{
    const OneRow row = CalculateOne("4", "4", "1.1", "cups");
    EXPECT_EQ(row.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(row.box, "1 1/8");
    EXPECT_EQ(row.workList, "1.125");
    EXPECT_EQ(row.unit, "cup");
}

TEST(AmountCalculatorEdgeCases, PointZeroFourClearsTheAmountAndStaysBlank)
{
    CalculatorInput input = Input("4", "4", {{".04", "cups"}, {"2", "cups"}});
    CalculatorResult first = CalculateNewAmounts(input);
    EXPECT_EQ(first.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(first.amountBoxes[0], "");
    EXPECT_EQ(first.workList[0], "");
    // The unit still follows the (tiny) amount; the row itself stays.
    EXPECT_EQ(first.units[0], "cup");
    EXPECT_EQ(first.workList[1], "2");

    // Scaled up tenfold, the lost amount does not come back.
    input.workList = first.workList;
    input.units = first.units;
    input.currentYield = "4";
    input.newYield = "40";
    const CalculatorResult second = CalculateNewAmounts(input);
    EXPECT_EQ(second.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(second.amountBoxes[0], "");
    EXPECT_EQ(second.workList[0], "");
    EXPECT_EQ(second.workList[1], "20");
}

TEST(AmountCalculatorEdgeCases, TwoPointNineIsThree)
{
    const OneRow row = CalculateOne("4", "4", "2.9", "cups");
    EXPECT_EQ(row.box, "3");
    EXPECT_EQ(row.workList, "3");
}

TEST(AmountCalculatorEdgeCases, NineHundredNinetyNinePointNineNineIsOneThousandInDecimalForm)
{
    const OneRow view = CalculateOne("4", "4", "999.99", "cups");
    EXPECT_EQ(view.workList, "1000");
    EXPECT_EQ(view.box, "1000");
    const OneRow modify = CalculateOne("4", "4", "999.99", "cups", true);
    EXPECT_EQ(modify.workList, "1000");
    EXPECT_EQ(modify.box, "1000");
}

TEST(AmountCalculatorEdgeCases, TwelveHundredFiftyReadsBackAsOne)
{
    // 1,250.00 is read up to its thousands separator. The unit goes by the
    // unrounded amount, so it is plural.
    const OneRow row = CalculateOne("1", "10", "125", "cup");
    EXPECT_EQ(row.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(row.workList, "1");
    EXPECT_EQ(row.box, "1");
    EXPECT_EQ(row.unit, "cups");
    EXPECT_EQ(CalculateOne("4", "4", "1250", "cups").workList, "1");
}

TEST(AmountCalculatorEdgeCases, NewYieldFromPointFiveTo999)
{
    EXPECT_EQ(CalculateOne("2", ".5", "1", "cup").outcome, CalculatorOutcome::Done);
    EXPECT_EQ(CalculateOne("2", ".49", "1", "cup").outcome, CalculatorOutcome::YieldOutOfRange);
    EXPECT_EQ(CalculateOne("2", "1000", "1", "cup").outcome, CalculatorOutcome::YieldOutOfRange);
    // An empty box reads 0.
    EXPECT_EQ(CalculateOne("2", "", "1", "cup").outcome, CalculatorOutcome::YieldOutOfRange);
    EXPECT_EQ(CalculateOne("2", "999", "1", "cup").outcome, CalculatorOutcome::Done);
    EXPECT_EQ(CalculateOne("2", "999.01", "1", "cup").outcome, CalculatorOutcome::YieldOutOfRange);
}

TEST(AmountCalculatorEdgeCases, ARefusedYieldChangesNothing)
{
    const CalculatorResult result = CalculateNewAmounts(Input("2", ".49", {{"1.5", "cups"}}));
    EXPECT_EQ(result.outcome, CalculatorOutcome::YieldOutOfRange);
    EXPECT_EQ(result.rowsDone, 0);
    EXPECT_FALSE(result.newYieldTaken);
    EXPECT_EQ(result.workList[0], "1.5");
    EXPECT_EQ(result.units[0], "cups");
    EXPECT_EQ(result.amountBoxes[0], "1 1/2");
}

TEST(AmountCalculatorEdgeCases, FourToEightAndBackOfAThird)
{
    CalculatorInput input = Input("4", "8", {{".33", "cup"}});
    const CalculatorResult up = CalculateNewAmounts(input);
    EXPECT_EQ(up.workList[0], ".67");   // .66 snaps to two thirds
    EXPECT_EQ(up.amountBoxes[0], "2/3");

    input.workList = up.workList;
    input.units = up.units;
    input.currentYield = "8";
    input.newYield = "4";
    const CalculatorResult down = CalculateNewAmounts(input);
    EXPECT_EQ(down.workList[0], ".33");  // .335 snaps to a third
    EXPECT_EQ(down.amountBoxes[0], "1/3");
}

TEST(AmountCalculatorEdgeCases, WholeLargeAndDozenAreNeverTouched)
{
    for (const char* unit : {"whole", "WHOLE", "Whole", "large", "Large", "LARGE", "dozen", "Dozen", "DOZEN",
                             "small", "SMALL", "medium", "Medium"}) {
        for (const char* amount : {".5", "1", "3"}) {
            SCOPED_TRACE(std::string(unit) + " at " + amount);
            EXPECT_EQ(CalculateOne("1", "1", amount, unit).unit, unit);
        }
    }
}

TEST(AmountCalculatorEdgeCases, PackageGoesPluralWithItsPointAndBack)
{
    EXPECT_EQ(CalculateOne("1", "1", "3", "pkg.").unit, "pkgs.");
    EXPECT_EQ(CalculateOne("1", "1", "1", "pkgs.").unit, "pkg.");
}

// ---- Every hundredth ------------------------------------------------------------------

// Every whole part 0 to 999 with every hundredth, twenty rows to a
// calculation at a ratio of 1: through the standard format, the reading
// back, the split and the snap, the decimal and the kitchen form land on the
// line of the fraction table that covers the hundredths.
TEST(AmountCalculatorSnap, EveryHundredthOfWholePartsZeroTo999)
{
    struct Amount {
        int whole;
        int hundredths;
    };
    std::vector<Amount> amounts;
    for (int whole = 0; whole <= 999; ++whole)
        for (int hundredths = 0; hundredths <= 99; ++hundredths)
            amounts.push_back({whole, hundredths});
    ASSERT_EQ(amounts.size() % kRecipeRows, 0u);

    int failures = 0;
    for (size_t first = 0; first < amounts.size(); first += kRecipeRows) {
        CalculatorInput input;
        input.currentYield = "4";
        input.newYield = "4";
        for (int row = 0; row < kRecipeRows; ++row)
            input.workList[row] = fraction_lines::DecimalOf(amounts[first + row].whole, amounts[first + row].hundredths);
        const CalculatorResult viewed = CalculateNewAmounts(input);
        input.modifyMode = true;
        const CalculatorResult modified = CalculateNewAmounts(input);
        ASSERT_EQ(viewed.outcome, CalculatorOutcome::Done);
        ASSERT_EQ(viewed.rowsDone, kRecipeRows);

        for (int row = 0; row < kRecipeRows; ++row) {
            const auto [whole, hundredths] = amounts[first + row];
            const fraction_lines::CoveredLine line = fraction_lines::LineForHundredths(hundredths);
            const QString wholeText = whole == 0 ? QString() : QString::number(whole);
            QString decimal;
            QString shown;
            if (line.nextWhole) {
                decimal = shown = QString::number(whole + 1);
            } else if (line.fractionText.isEmpty()) {
                decimal = shown = wholeText;
            } else {
                decimal = wholeText + line.snappedSuffix;
                shown = whole == 0 ? line.fractionText : wholeText + ' ' + line.fractionText;
            }
            const bool ok = viewed.workList[row] == decimal && viewed.amountBoxes[row] == shown
                && modified.amountBoxes[row] == decimal && modified.workList[row] == decimal;
            if (!ok && ++failures <= 20)
                ADD_FAILURE() << input.workList[row].toStdString() << " gives \""
                              << viewed.workList[row].toStdString() << "\" shown \""
                              << viewed.amountBoxes[row].toStdString() << "\" (in Modify \""
                              << modified.amountBoxes[row].toStdString() << "\"), expected \""
                              << decimal.toStdString() << "\" shown \"" << shown.toStdString() << '"';
        }
    }
    EXPECT_EQ(failures, 0);
}

struct SnapRow {
    const char* label;
    double amount;
    QString decimal;
};

TEST(AmountCalculatorSnap, DecimalFormOfResults)
{
    const SnapRow rows[] = {
        {"an eighth, though the standard format shows 0.13", 0.125, ".125"},
        {"a quarter over one", 1.25, "1.25"},
        {"a third over two", 2.33, "2.33"},
        {"a whole number", 3, "3"},
        {"nothing", 0, ""},
        {"a negative result", -1.5, ""},
        {"below .005 the standard format is 0.00", 0.004, ""},
        {"below .10 is lost", 0.09, ""},
        {".10 is kept as an eighth", 0.1, ".125"},
        {"whole and snapped fraction are added", 999.99, "1000"},
        {"1,250.00 reads 1", 1250, "1"},
        {"a result that rounds to 1,000.00 reads 1 as well", 999.996, "1"},
        {"a result just below that rounds to 999.99", 999.994, "1000"},
        {"2,500.50 reads 2", 2500.5, "2"},
        {"a huge result reads up to its first separator", 1e140, "100"},
        {"a half", 0.5, ".5"},
        {"two thirds", 0.67, ".67"},
        {"three quarters over one", 1.8, "1.75"},
        {".86 makes one", 0.86, "1"},
    };
    for (const SnapRow& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(SnappedAmountText(row.amount), row.decimal) << row.amount;
    }
}

TEST(AmountCalculatorSnap, SnappedFractionAndFractionTextShareOneTable)
{
    struct Line {
        const char* label;
        float rest;
        double snapped;
        QString text;
    };
    const Line lines[] = {
        {"zero", 0.0f, 0, ""},
        {"just below .1", std::nextafter(0.1f, 0.0f), 0, ""},
        {".1", 0.1f, 0.125, "1/8"},
        {"just below .2", std::nextafter(0.2f, 0.0f), 0.125, "1/8"},
        {".2", 0.2f, 0.25, "1/4"},
        {"just below .3", std::nextafter(0.3f, 0.0f), 0.25, "1/4"},
        {".3", 0.3f, 0.33, "1/3"},
        {".4", 0.4f, 0.33, "1/3"},
        {"just above .4", std::nextafter(0.4f, 1.0f), 0.5, "1/2"},
        {".6", 0.6f, 0.5, "1/2"},
        {"just above .6", std::nextafter(0.6f, 1.0f), 0.67, "2/3"},
        {".7", 0.7f, 0.67, "2/3"},
        {"just above .7", std::nextafter(0.7f, 1.0f), 0.75, "3/4"},
        {".85", 0.85f, 0.75, "3/4"},
        {"just above .85", std::nextafter(0.85f, 1.0f), 1, ""},
        {"just below 1", std::nextafter(1.0f, 0.0f), 1, ""},
        {"negative", -0.5f, 0, ""},
    };
    for (const Line& line : lines) {
        SCOPED_TRACE(line.label);
        EXPECT_EQ(SnappedFraction(line.rest), line.snapped);
        EXPECT_EQ(FractionText(line.rest), line.text);
    }
    // Every hundredth: the fraction text names the snapped value.
    for (int hundredths = 0; hundredths <= 99; ++hundredths) {
        const float rest = float(hundredths) / 100.0f;
        const fraction_lines::CoveredLine line = fraction_lines::LineForHundredths(hundredths);
        SCOPED_TRACE(hundredths);
        EXPECT_EQ(FractionText(rest), line.fractionText);
        EXPECT_EQ(SnappedFraction(rest), line.nextWhole ? 1.0 : line.snappedSuffix.isEmpty() ? 0.0
                                                                                              : line.snappedSuffix.toDouble());
    }
}

TEST(AmountCalculatorSnap, TheSnappedFractionIsADoubleSoTheTextStaysShort)
{
    // 2 + .33 as doubles reads "2.33"; with a single .33 it would not.
    EXPECT_EQ(SnappedFraction(0.33f), 0.33);
    EXPECT_EQ(CalculateOne("4", "4", "2.35", "cups").workList, "2.33");
    EXPECT_EQ(CalculateOne("4", "4", "998.65", "cups").workList, "998.67");
}

// ---- Single precision decides the boundaries ------------------------------------------

struct PrecisionRow {
    const char* label;
    QString amount;        // the work list entry, at a ratio of 1
    QString decimal;       // what the calculator makes of it
    QString shown;
};

// Each amount's rest in double precision lies just on the other side of a
// boundary; rounded to a single it is the boundary itself, and the table
// decides as the hundredths say.
TEST(AmountCalculatorSnap, SinglePrecisionRestsFallOnTheBoundaries)
{
    const PrecisionRow rows[] = {
        {"8.1: a rest of .1 is an eighth", "8.1", "8.125", "8 1/8"},
        {"1.2: a rest of .2 is a quarter", "1.2", "1.25", "1 1/4"},
        {"2.3: a rest of .3 is a third", "2.3", "2.33", "2 1/3"},
        {"4.4: a rest of .4 is a third", "4.4", "4.33", "4 1/3"},
        {"1.6: a rest of .6 is a half", "1.6", "1.5", "1 1/2"},
        {"2.7: a rest of .7 is two thirds", "2.7", "2.67", "2 2/3"},
        {"1.85: a rest of .85 is three quarters", "1.85", "1.75", "1 3/4"},
    };
    for (const PrecisionRow& row : rows) {
        SCOPED_TRACE(row.label);
        const double amount = row.amount.toDouble();
        const AmountParts parts = SplitAmount(amount);
        // In double precision the rest is not the boundary, and a table of
        // doubles would have snapped it elsewhere.
        EXPECT_NE(amount - std::trunc(amount), double(parts.fractionPart));
        EXPECT_NE(SnappedInDoublePrecision(amount), SnappedFraction(parts.fractionPart));
        const OneRow result = CalculateOne("4", "4", row.amount, "cups");
        EXPECT_EQ(result.workList, row.decimal);
        EXPECT_EQ(result.box, row.shown);
    }
}

TEST(AmountCalculatorSnap, TheRatioIsASingleWidenedToADouble)
{
    // 3.3 from a yield of 3 to 1: with an exact ratio the amount would be
    // 1.1 or a hair below, singular. The single 1/3 is a little more than a
    // third, so the amount is a hair above 1.1 and the unit goes plural.
    ASSERT_LE(3.3 * (1.0 / 3.0), 1.1);
    ASSERT_GT(3.3 * double(float(1.0 / 3.0)), 1.1);
    const OneRow row = CalculateOne("3", "1", "3.3", "cup");
    EXPECT_EQ(row.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(row.unit, "cups");
    EXPECT_EQ(row.workList, "1.125");
    EXPECT_EQ(row.box, "1 1/8");
}

// ---- Modes, errors and the whole recipe ------------------------------------------------

TEST(AmountCalculator, ModifyModeKeepsDecimalsInTheBoxes)
{
    const CalculatorResult result = CalculateNewAmounts(
        Input("2", "3", {{"1", "cup"}, {".5", "tsp."}, {"2", "cups"}, {".04", "dash"}}, true));
    EXPECT_EQ(result.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(result.amountBoxes[0], "1.5");
    EXPECT_EQ(result.amountBoxes[1], ".75");
    EXPECT_EQ(result.amountBoxes[2], "3");
    EXPECT_EQ(result.amountBoxes[3], "");
    EXPECT_EQ(result.workList[0], "1.5");
    EXPECT_EQ(result.workList[1], ".75");
    EXPECT_EQ(result.workList[2], "3");
    EXPECT_EQ(result.workList[3], "");
}

TEST(AmountCalculator, ViewModeShowsFractions)
{
    const CalculatorResult result = CalculateNewAmounts(
        Input("2", "3", {{"1", "cup"}, {".5", "tsp."}, {"2", "cups"}}, false));
    EXPECT_EQ(result.amountBoxes[0], "1 1/2");
    EXPECT_EQ(result.amountBoxes[1], "3/4");
    EXPECT_EQ(result.amountBoxes[2], "3");
    EXPECT_EQ(result.workList[0], "1.5");
    EXPECT_EQ(result.workList[1], ".75");
}

TEST(AmountCalculator, AWholeRecipeOfTwentyRows)
{
    CalculatorInput input;
    input.currentYield = "4";
    input.newYield = "2";
    for (int row = 0; row < kRecipeRows; ++row) {
        input.workList[row] = QString::number(row + 1);
        input.units[row] = "cups";
    }
    const CalculatorResult result = CalculateNewAmounts(input);
    EXPECT_EQ(result.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(result.rowsDone, kRecipeRows);
    EXPECT_TRUE(result.newYieldTaken);
    EXPECT_EQ(result.workList[0], ".5");
    EXPECT_EQ(result.amountBoxes[0], "1/2");
    EXPECT_EQ(result.units[0], "cup");
    EXPECT_EQ(result.workList[1], "1");
    EXPECT_EQ(result.units[1], "cup");
    EXPECT_EQ(result.workList[2], "1.5");
    EXPECT_EQ(result.units[2], "cups");
    EXPECT_EQ(result.workList[19], "10");
    EXPECT_EQ(result.amountBoxes[19], "10");
}

TEST(AmountCalculator, EmptyRowsStayEmpty)
{
    const CalculatorResult result = CalculateNewAmounts(Input("1", "5", {{"", ""}, {"", "cups"}}));
    EXPECT_EQ(result.outcome, CalculatorOutcome::Done);
    EXPECT_EQ(result.workList[0], "");
    EXPECT_EQ(result.amountBoxes[0], "");
    EXPECT_EQ(result.units[0], "");
    // An amount of nothing is singular.
    EXPECT_EQ(result.units[1], "cup");
    EXPECT_EQ(result.workList[5], "");
}

TEST(AmountCalculator, DivisionByZeroIsACalculationError)
{
    for (const char* current : {"0", "", "abc", "0.00"}) {
        SCOPED_TRACE(current);
        const CalculatorResult result = CalculateNewAmounts(Input(current, "4", {{"1", "cup"}}));
        EXPECT_EQ(result.outcome, CalculatorOutcome::CalculationError);
        EXPECT_EQ(result.rowsDone, 0);
        EXPECT_FALSE(result.newYieldTaken);
        EXPECT_EQ(result.workList[0], "1");
        EXPECT_EQ(result.units[0], "cup");
    }
}

TEST(AmountCalculator, ARatioNotPositiveOrTooLargeIsACalculationError)
{
    // A negative current yield gives a negative ratio.
    EXPECT_EQ(CalculateOne("-4", "4", "1", "cup").outcome, CalculatorOutcome::CalculationError);
    // 999 / 1E-40 is beyond a single.
    EXPECT_EQ(CalculateOne("1E-40", "999", "1", "cup").outcome, CalculatorOutcome::CalculationError);
    // A current yield too large to read at all.
    EXPECT_EQ(CalculateOne("9E999", "4", "1", "cup").outcome, CalculatorOutcome::CalculationError);
    // 1 / 1E+300 is a positive double but 0 as a single.
    EXPECT_EQ(CalculateOne("1E300", "1", "1", "cup").outcome, CalculatorOutcome::CalculationError);
}

TEST(AmountCalculator, AnErrorMidwayKeepsTheRowsDone)
{
    const CalculatorResult result = CalculateNewAmounts(
        Input("1", "2", {{"1", "cup"}, {"2", "cup"}, {"9E999", "cup"}, {"3", "cup"}}));
    EXPECT_EQ(result.outcome, CalculatorOutcome::CalculationError);
    EXPECT_EQ(result.rowsDone, 2);
    EXPECT_TRUE(result.newYieldTaken);
    EXPECT_EQ(result.workList[0], "2");
    EXPECT_EQ(result.units[0], "cups");
    EXPECT_EQ(result.workList[1], "4");
    EXPECT_EQ(result.amountBoxes[1], "4");
    // Not reached: as they were.
    EXPECT_EQ(result.workList[2], "9E999");
    EXPECT_EQ(result.units[2], "cup");
    EXPECT_EQ(result.workList[3], "3");
    EXPECT_EQ(result.units[3], "cup");
    EXPECT_EQ(result.amountBoxes[3], "3");
}

TEST(AmountCalculator, AnAmountBeyondADoubleStopsTheCalculation)
{
    const CalculatorResult result = CalculateNewAmounts(Input("1", "2", {{"1", "cup"}, {"1E308", "cup"}}));
    EXPECT_EQ(result.outcome, CalculatorOutcome::CalculationError);
    EXPECT_EQ(result.rowsDone, 1);
    EXPECT_EQ(result.workList[0], "2");
}

TEST(AmountCalculator, ANewYieldTooLargeToReadIsOutOfRange)
{
    EXPECT_EQ(CalculateOne("4", "9E999", "1", "cup").outcome, CalculatorOutcome::YieldOutOfRange);
}

TEST(AmountCalculator, TheNewYieldIsReadAsANumberAtItsFront)
{
    // "6 servings" reads 6, as the box could only hold it when pasted.
    EXPECT_EQ(CalculateOne("4", "6 servings", "1", "cup").box, "1 1/2");
    EXPECT_EQ(CalculateOne("4 servings", "6", "1", "cup").box, "1 1/2");
}

TEST(AmountCalculator, MessagesAreWordForWord)
{
    EXPECT_STREQ(kNoServingInformationTitle, "Calculate Serving Information");
    EXPECT_STREQ(kNoServingInformationText,
                 "There is no current Serving Information\nto perform new calculations on!");
    EXPECT_STREQ(kYieldEntryErrorTitle, "Yield Entry Error");
    EXPECT_STREQ(kYieldEntryErrorText, "New Yield Amounts can only be between .5 and 999.");
    EXPECT_STREQ(kCalculatorErrorTitle, "Amount Calculator Error");
    EXPECT_STREQ(kCalculatorErrorText,
                 "A calculation Error has occured! Most likely an incorreect number was used for the Recipe "
                 "Yield or the amount boxes contain an inappropriate number or the maximun amount limit of 999 "
                 "was exceeded");
}

// ---- The unit word ----------------------------------------------------------------------

struct UnitRow {
    const char* label;
    QString unit;
    double amount;
    QString fitted;
};

TEST(AmountCalculatorUnitWord, TableOfUnits)
{
    const UnitRow rows[] = {
        {"cup goes plural", "cup", 3, "cups"},
        {"cups goes singular", "cups", 1, "cup"},
        {"cups stays plural", "cups", 3, "cups"},
        {"cup stays singular", "cup", 0.5, "cup"},
        {"1.1 itself is singular", "cups", 1.1, "cup"},
        {"a hair above 1.1 is plural", "cup", std::nextafter(1.1, 2.0), "cups"},
        {"nothing is singular", "cups", 0, "cup"},
        {"dash takes a plain s", "dash", 3, "dashs"},
        {"dashes loses only its last letter", "dashes", 1, "dashe"},
        {"dashes stays plural", "dashes", 3, "dashes"},
        {"Tbsp. goes plural before its point", "Tbsp.", 3, "Tbsps."},
        {"Tbsps. goes singular", "Tbsps.", 1, "Tbsp."},
        {"lb. goes plural", "lb.", 2, "lbs."},
        {"lbs. goes singular", "lbs.", 1, "lb."},
        {"tsp. stays singular", "tsp.", 0.5, "tsp."},
        {"tsps. stays plural", "tsps.", 2, "tsps."},
        {"pkg. goes plural", "pkg.", 3, "pkgs."},
        {"pkgs. goes singular", "pkgs.", 1, "pkg."},
        {"slice goes plural", "slice", 1.5, "slices"},
        {"nine characters may go plural", "container", 3, "containers"},
        {"ten characters never go plural", "tablespoon", 3, "tablespoon"},
        {"ten characters with a point never go plural", "container.", 3, "container."},
        {"ten characters may go singular", "containers", 1, "container"},
        {"nine characters with a point go plural", "envelope.", 3, "envelopes."},
        {"trailing blanks are trimmed first", "cup   ", 3, "cups"},
        {"trailing blanks are trimmed when singular", "cups  ", 1, "cup"},
        {"a lone s would leave nothing: no change", "s", 1, "s"},
        {"a lone s. leaves its point", "s.", 1, "."},
        {"an empty unit stays empty", "", 3, ""},
        {"letters only: a capital S is no plural", "CUPS", 1, "CUPS"},
        {"letters only: a capital word gets a small s", "CUP", 3, "CUPs"},
        {"letters only: a yield-like word", "can(s)", 3, "can(s)s"},
        {"whole stays", "whole", 3, "whole"},
        {"Large stays", "Large", 3, "Large"},
        {"DOZEN stays", "DOZEN", 0.5, "DOZEN"},
        {"medium with blanks stays as it was", "medium  ", 3, "medium  "},
        {"a result of 1,250 is plural although it shows 1", "cup", 1250, "cups"},
    };
    for (const UnitRow& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(FitUnitWord(row.unit, row.amount), row.fitted);
    }
}

TEST(AmountCalculatorUnitWord, TheDropListsWordsFollowTheRule)
{
    // The singular and the plural drop list go into one another by the rule,
    // except where the rule is on the letters alone: "dash" goes "dashs" and
    // "dashes" goes "dashe".
    const QStringList singular = {"bottle", "can", "cup", "dash", "gallon", "large", "lb.", "medium", "oz.",
                                  "piece", "pkg.", "quart", "slice", "small", "Tbsp.", "tsp.", "whole"};
    const QStringList plural = {"bottles", "cans", "cups", "dashes", "gallons", "large", "lbs.", "medium", "ozs.",
                                "pieces", "pkgs.", "quarts", "slices", "small", "Tbsps.", "tsps.", "whole"};
    ASSERT_EQ(singular.size(), plural.size());
    for (int i = 0; i < singular.size(); ++i) {
        SCOPED_TRACE(singular[i].toStdString());
        const bool dash = singular[i] == "dash";
        EXPECT_EQ(FitUnitWord(singular[i], 3), dash ? QString("dashs") : plural[i]);
        EXPECT_EQ(FitUnitWord(plural[i], 1), dash ? QString("dashe") : singular[i]);
        // Already right for the amount: no change.
        EXPECT_EQ(FitUnitWord(singular[i], 1), singular[i]);
        EXPECT_EQ(FitUnitWord(plural[i], 3), plural[i]);
    }
}

// ---- The new yield box ------------------------------------------------------------------

struct LabelRow {
    const char* label;
    QString typed;
    QString before;
    QString after;
};

TEST(AmountCalculatorYieldLabel, TableOfLabels)
{
    const LabelRow rows[] = {
        {"Serving(s) stays at 1", "1", "Serving(s)", "Serving(s)"},
        {"Serving(s) stays at 2", "2", "Serving(s)", "Serving(s)"},
        {"Loaf(s) stays", "3", "Loaf(s)", "Loaf(s)"},
        {"Cake goes plural above 1", "2", "Cake", "Cakes"},
        {"Pie goes plural at 1.5", "1.5", "Pie", "Pies"},
        {"just above 1 is plural", "1.01", "Cake", "Cakes"},
        {"Cakes goes singular at 1", "1", "Cakes", "Cake"},
        {"Cakes goes singular at .5", ".5", "Cakes", "Cake"},
        {"an empty box reads 0", "", "Cakes", "Cake"},
        {"Pieces goes singular", "1", "Pieces", "Piece"},
        {"Pieces stays plural", "4", "Pieces", "Pieces"},
        {"Dozen stays", "2", "Dozen", "Dozen"},
        {"DOZEN stays", "2", "DOZEN", "DOZEN"},
        {"dozen stays", "2", "dozen", "dozen"},
        {"Dozen at 1 stays too", "1", "Dozen", "Dozen"},
        {"an empty label stays empty", "3", "", ""},
        {"a label of one s goes empty", "1", "s", ""},
        {"a capital S is no plural", "1", "CAKES", "CAKES"},
        {"a point alone reads 0", ".", "Cakes", "Cake"},
    };
    for (const LabelRow& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(YieldTypeForTyped(row.typed, row.before), row.after);
    }
}

struct FilterRow {
    const char* label;
    QString typed;
    QString kept;
};

TEST(AmountCalculatorYieldFilter, TableOfKeys)
{
    const FilterRow rows[] = {
        {"empty", "", ""},
        {"a digit", "2", "2"},
        {"a point", ".", "."},
        {"a decimal", "1.5", "1.5"},
        {"a letter after a digit is cut", "2a", "2"},
        {"a slash after a digit is cut", "1/", "1"},
        {"a blank after a digit is cut", "12 ", "12"},
        {"a minus after a digit is cut", "1-", "1"},
        {"a single letter empties the box", "a", ""},
        {"a single slash empties the box", "/", ""},
        {"a single minus empties the box", "-", ""},
        {"only the last character is tested", "1a5", "1a5"},
        {"only one character is cut", "2ab", "2a"},
        {"a digit of another script is no digit", QString("2") + QChar(0x0663), "2"},
    };
    for (const FilterRow& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(FilterYieldBox(row.typed), row.kept);
    }
}

} // namespace
