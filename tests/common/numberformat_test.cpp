// Format and FormatText: the runtime's number and text patterns as the
// screens and printouts use them, one named row per case.
#include "common/numberformat.h"
#include "common/numbertext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace {

std::string Text(const QString& s)
{
    return s.toStdString();
}

// The conversion guide's patterns: whole numbers, a typed entry with a
// fraction, a result with a fraction, and a row of the multiple-entry grid.
constexpr char16_t kWhole[] = u"###,###,###,###,###,###";
constexpr char16_t kEntry[] = u"###,###,###,###,###,###.########################";
constexpr char16_t kResult[] = u"###,###,###,###,###,###.############################################";
constexpr char16_t kGridRow[] = u"###,###,###,###,###,###.##################";

struct FormatRow {
    const char* name;
    double value;
    const char16_t* pattern;
    const char* expected;
};

void CheckRows(const FormatRow* begin, const FormatRow* end)
{
    for (const FormatRow* row = begin; row != end; ++row) {
        SCOPED_TRACE(row->name);
        EXPECT_EQ(Text(Format(row->value, row->pattern)), row->expected);
    }
}

// ------------------------------------------------------ one decimal place

const FormatRow kOneDecimalRows[] = {
    {"WeightWithDecimal", 150.4, u"###.#", "150.4"},
    {"WholeNumberKeepsPoint", 5, u"###.#", "5."},
    {"WholeWeightKeepsPoint", 150, u"###.#", "150."},
    {"ZeroIsALonePoint", 0, u"###.#", "."},
    {"HalfHasNoLeadingZero", 0.5, u"###.#", ".5"},
    {"NegativeChange", -2.5, u"###.#", "-2.5"},
    {"NegativeWholeChange", -3, u"###.#", "-3."},
    {"RoundsHalfUpOnTheDecimalDigits", 150.45, u"###.#", "150.5"},
    {"RoundsDownBelowHalf", 150.44, u"###.#", "150.4"},
    {"NegativeRoundsAwayFromZero", -150.45, u"###.#", "-150.5"},
    {"RoundingCarriesIntoTheWholePart", 4.96, u"###.#", "5."},
    {"NoSeparatorsWithoutComma", 1234.56, u"###.#", "1234.6"},
    {"MoreDigitsThanPlaceholders", 123456.7, u"###.#", "123456.7"},
    {"TinyNegativeKeepsItsSign", -0.04, u"###.#", "-."},
};

TEST(FormatTest, OneDecimalPlace)
{
    CheckRows(std::begin(kOneDecimalRows), std::end(kOneDecimalRows));
}

// --------------------------------------------------------------- percents

const FormatRow kPercentRows[] = {
    {"Quarter", 0.25, u"0%", "25%"},
    {"HalfPercentRoundsUp", 0.005, u"0%", "1%"},
    {"JustBelowHalfPercent", 0.0049, u"0%", "0%"},
    {"Whole", 1, u"0%", "100%"},
    {"Zero", 0, u"0%", "0%"},
    {"MoreThanNeeded", 1.5, u"0%", "150%"},
    {"OneThird", 1.0 / 3.0, u"0%", "33%"},
    {"TwoThirds", 2.0 / 3.0, u"0%", "67%"},
    {"HalfwayRoundsUp", 0.125, u"0%", "13%"},
    {"OneDecimalHalf", 0.5, u"0.0%", "50.0%"},
    {"OneDecimalWhole", 1, u"0.0%", "100.0%"},
    {"OneDecimalTwoThirds", 2.0 / 3.0, u"0.0%", "66.7%"},
    {"OneDecimalOneThird", 1.0 / 3.0, u"0.0%", "33.3%"},
    {"OneDecimalDigitsKept", 0.1234, u"0.0%", "12.3%"},
    {"OneDecimalZero", 0, u"0.0%", "0.0%"},
    {"OneDecimalTinyShare", 0.0005, u"0.0%", "0.1%"},
    {"NegativePercent", -0.25, u"0%", "-25%"},
};

TEST(FormatTest, Percent)
{
    CheckRows(std::begin(kPercentRows), std::end(kPercentRows));
}

// The storage percent is a Single: its digits are the Single's seven.
TEST(FormatTest, PercentOfASingle)
{
    struct Row {
        const char* name;
        float value;
        const char16_t* pattern;
        const char* expected;
    };
    const Row rows[] = {
        {"AnyStockShowsOnePercent", 0.01f, u"0%", "1%"},
        {"HalfwayOfTheSingleRoundsUp", 0.285f, u"0%", "29%"},
        {"OnHandOverNeed", 3.0f / 8.0f, u"0%", "38%"},
        {"PieSliceOnHand", 0.375f, u"0.0%", "37.5%"},
        {"PieSliceMissing", 1.0f - 0.375f, u"0.0%", "62.5%"},
        {"PieSliceFull", 1.0f, u"0.0%", "100.0%"},
        {"WholeOnHandFormat", 12.5f, u"0", "13"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Text(Format(row.value, row.pattern)), row.expected);
    }
}

// --------------------------------------------- two decimals with separators

const FormatRow kStandardRows[] = {
    {"Thousands", 1250, u"Standard", "1,250.00"},
    {"TwoDecimals", 1.33, u"Standard", "1.33"},
    {"LeadingZero", 0.05, u"Standard", "0.05"},
    {"OneDecimalPadded", 1.5, u"Standard", "1.50"},
    {"Zero", 0, u"Standard", "0.00"},
    {"Negative", -1250.5, u"Standard", "-1,250.50"},
    {"Millions", 1234567.891, u"Standard", "1,234,567.89"},
    {"HalfCentRoundsUp", 0.005, u"Standard", "0.01"},
    {"DecimalHalfRoundsUpDespiteBinary", 1.005, u"Standard", "1.01"},
    {"AnotherDecimalHalf", 2.675, u"Standard", "2.68"},
    {"CarryIntoThousands", 999.999, u"Standard", "1,000.00"},
    {"NameInAnyCase", 1250, u"standard", "1,250.00"},
    {"SamePatternWrittenOut", 1250, u"#,##0.00", "1,250.00"},
    {"WrittenOutLeadingZero", 0.05, u"#,##0.00", "0.05"},
    {"WrittenOutNegative", -0.5, u"#,##0.00", "-0.50"},
    {"NegativeRoundingToZeroKeepsSign", -0.001, u"#,##0.00", "-0.00"},
};

TEST(FormatTest, StandardTwoDecimals)
{
    CheckRows(std::begin(kStandardRows), std::end(kStandardRows));
}

// A recalculated amount is shown in the standard format and read back by its
// leading number; from 1,000 on the comma cuts it to its thousands.
TEST(FormatTest, RecalculatedAmountReadsBack)
{
    struct Row {
        const char* name;
        double amount;
        const char* shown;
        double readBack;
    };
    const Row rows[] = {
        {"OneAndAHalf", 1.0 * (6.0 / 4.0), "1.50", 1.5},
        {"OnePointOne", 1.1, "1.10", 1.1},
        {"TooSmallToShow", 0.04, "0.04", 0.04},
        {"AlmostThree", 2.9, "2.90", 2.9},
        {"AlmostAThousand", 999.99, "999.99", 999.99},
        {"ThousandsAreCut", 1250, "1,250.00", 1},
        {"ExactlyAThousand", 1000, "1,000.00", 1},
        {"ThirdDoubled", 0.33 * 2, "0.66", 0.66},
        {"TwoThirdsHalved", 0.67 * 0.5, "0.34", 0.34},
        {"FourThirds", 1.0 * (4.0 / 3.0), "1.33", 1.33},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QString shown = Format(row.amount, u"Standard");
        EXPECT_EQ(Text(shown), row.shown);
        EXPECT_EQ(Val(shown), row.readBack);
    }
}

// ------------------------------------------------------ conversion guide

const FormatRow kConversionRows[] = {
    {"WholeResult", 212, kWhole, "212"},
    {"BoilingPointInCelsius", (212.0 - 32) * 5 / 9, kWhole, "100"},
    {"FreezingPointInFahrenheit", 0.0 * 9 / 5 + 32, kWhole, "32"},
    {"CupsToOunces", 1.0 * 8, kWhole, "8"},
    {"WholeThousands", 1000, kWhole, "1,000"},
    {"WholeMillions", 1234567, kWhole, "1,234,567"},
    {"WholeZeroIsEmpty", 0, kWhole, ""},
    {"WholeBelowHalfIsEmpty", 0.4, kWhole, ""},
    {"WholeHalfRoundsUp", 0.5, kWhole, "1"},
    {"WholeTenToTheFifteen", 1e15, kWhole, "1,000,000,000,000,000"},
    {"WholeBeyondFifteenDigits", 123456789012345678.0, kWhole, "123,456,789,012,346,000"},
    {"WholeMoreDigitsThanPlaceholders", 1e21, kWhole, "1,000,000,000,000,000,000,000"},
    {"EntryWithFraction", 1.5, kEntry, "1.5"},
    {"EntryWithThousands", 1234.5, kEntry, "1,234.5"},
    {"EntryBelowOne", 0.25, kEntry, ".25"},
    {"EntryOneThird", 1.0 / 3.0, kEntry, ".333333333333333"},
    {"ResultTablespoonsToCups", 1 * 0.0625, kResult, ".0625"},
    {"ResultTwoThirds", 2.0 / 3.0, kResult, ".666666666666667"},
    {"ResultCans", 3 * 1.75, kResult, "5.25"},
    {"ResultOuncesToGrams", 1 * 28.349523, kResult, "28.349523"},
    {"ResultGramsToOunces", 100 * 0.035274, kResult, "3.5274"},
    {"ResultBinaryNoiseHidden", 0.1 + 0.2, kResult, ".3"},
    {"ResultLargeWithFraction", 1234567.25, kResult, "1,234,567.25"},
    {"ResultTinyFraction", 1.5e-5, kResult, ".000015"},
    {"GridRowFraction", 1.23, kGridRow, "1.23"},
    {"GridRowWholeKeepsPoint", 10, kGridRow, "10."},
    {"GridRowMarshmallows", 3 * 0.0167, kGridRow, ".0501"},
};

TEST(FormatTest, ConversionGuidePatterns)
{
    CheckRows(std::begin(kConversionRows), std::end(kConversionRows));
}

// Rounding a result works on its text: cut the shortest text some places
// after the point found before the rounding addend was added.
TEST(FormatTest, ConversionRoundingOnText)
{
    struct Row {
        const char* name;
        double result;
        double addend;
        int keep;
        const char* cut;
        const char* grid;
    };
    const Row rows[] = {
        {"HundredthsOfAnEntry", 1.23456, 0.005, 2, "1.23", "1.23"},
        {"TenthsCarryLosesADigit", 9.96, 0.05, 1, "10.", "10."},
        {"ThousandthsOfAThird", 1.0 / 3.0, 0.0005, 3, "0.333", ".333"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const qsizetype point = ShortestText(row.result).indexOf(u'.') + 1;
        ASSERT_GT(point, 0);
        const QString cut = ShortestText(row.result + row.addend).left(point + row.keep);
        EXPECT_EQ(Text(cut), row.cut);
        EXPECT_EQ(Text(Format(Val(cut), kGridRow)), row.grid);
    }
    EXPECT_EQ(ShortestText(2.0).indexOf(u'.'), -1) << "2 has no point and stays 2";
}

// ---------------------------------------------------- the pattern language

const FormatRow kPatternRows[] = {
    {"ZeroPlaceholder", 0, u"0", "0"},
    {"HashOnlyZeroIsEmpty", 0, u"###", ""},
    {"HashRoundsHalfUp", 2.5, u"###", "3"},
    {"ZeroRoundsHalfAwayFromZero", -2.5, u"0", "-3"},
    {"ZerosPad", 5.5, u"00.00", "05.50"},
    {"OptionalSecondDecimal", 1.5, u"#0.0#", "1.5"},
    {"BothDecimals", 1.25, u"#0.0#", "1.25"},
    {"RequiredFirstDecimal", 1, u"#0.0#", "1.0"},
    {"NegativeSection", -5, u"0;(0)", "(5)"},
    {"PositiveWithNegativeSection", 5, u"0;(0)", "5"},
    {"ZeroSection", 0, u"0;(0);\"none\"", "none"},
    {"EmptyNegativeSectionUsesFirst", -5, u"0;;\"none\"", "-5"},
    {"QuotedLiteral", 1234, u"\"$\"#,##0", "$1,234"},
    {"EscapedPercentDoesNotScale", 5, u"0\\%", "5%"},
    {"LiteralsBetweenDigits", 5551234567, u"(###) ###-####", "(555) 123-4567"},
    {"ThousandsScaling", 1234567, u"#,##0,", "1,235"},
    {"ScalingBeforePoint", 1234567, u"0,.0", "1234.6"},
    {"Scientific", 1234.5, u"0.00E+00", "1.23E+03"},
    {"ScientificSmall", 0.00012, u"0.00E+00", "1.20E-04"},
    {"ScientificCarry", 9.999, u"0.00E+00", "1.00E+01"},
    {"ScientificMinusOnlyForNegativeExponent", 1234.5, u"0.0E-00", "1.2E03"},
    {"ScientificZero", 0, u"0.00E+00", "0.00E+00"},
    {"NamedScientific", 1234.5, u"Scientific", "1.23E+03"},
    {"NamedFixed", 1234.5, u"Fixed", "1234.50"},
    {"NamedPercent", 0.1234, u"Percent", "12.34%"},
    {"NamedCurrency", 1234.5, u"Currency", "$1,234.50"},
    {"NamedCurrencyNegative", -1234.5, u"Currency", "($1,234.50)"},
    {"NamedGeneralNumber", 0.5, u"General Number", "0.5"},
    {"NamedYesNoZero", 0, u"Yes/No", "No"},
    {"NamedYesNo", 3, u"Yes/No", "Yes"},
    {"NamedTrueFalse", -1, u"True/False", "True"},
    {"NamedOnOff", 0, u"On/Off", "Off"},
    {"EmptyPatternIsShortestText", 1.5, u"", "1.5"},
    {"EmptyPatternSmall", 1.5e-5, u"", "1.5E-05"},
    {"NoIntegerPlaceholders", 1.5, u".00", "1.50"},
    {"InfinityAsText", std::numeric_limits<double>::infinity(), u"###.#", "1.#INF"},
};

TEST(FormatTest, PatternLanguage)
{
    CheckRows(std::begin(kPatternRows), std::end(kPatternRows));
}

TEST(FormatTest, IntegerAndSingleArguments)
{
    EXPECT_EQ(Text(Format(1250, u"Standard")), "1,250.00");
    EXPECT_EQ(Text(Format(qint64(0), u"###")), "");
    EXPECT_EQ(Text(Format(0.7f, u"###.#")), ".7");
    EXPECT_EQ(Text(Format(3.0f * 0.7f, u"0.00")), "2.10");
}

// ------------------------------------------------------------------ texts

struct TextRow {
    const char* name;
    const char16_t* text;
    const char16_t* pattern;
    const char* expected;
};

constexpr char16_t kItemField[] = u"!@@@@@@@@@@@@@@@@@@@@@@@@@@@@";

const TextRow kTextRows[] = {
    {"LeftAlignedPadsRight", u"ab", u"!@@@@", "ab  "},
    {"LeftAlignedCutsRight", u"abcdef", u"!@@@", "abc"},
    {"LeftAlignedExactFit", u"abc", u"!@@@", "abc"},
    {"LeftAlignedEmptyText", u"", u"!@@@", "   "},
    {"RightAlignedPadsLeft", u"ab", u"@@@@", "  ab"},
    {"RightAlignedKeepsLongerText", u"abcdef", u"@@@", "abcdef"},
    {"AmpersandWritesNothingWhenShort", u"ab", u"&&&&", "ab"},
    {"AmpersandFromTheLeft", u"ab", u"!&&&&", "ab"},
    {"Uppercase", u"Milk", u">", "MILK"},
    {"Lowercase", u"Milk", u"<", "milk"},
    {"UppercaseInField", u"ab", u">!@@@", "AB "},
    {"LiteralBetweenPlaceholders", u"5551234", u"@@@-@@@@", "555-1234"},
    {"LiteralsLeftAligned", u"ab", u"!\"[\"@@@\"]\"", "[ab ]"},
    {"EscapedLiteral", u"ab", u"!\\<@@@\\>", "<ab >"},
    {"SecondSectionForEmptyText", u"", u"@@;\"none\"", "none"},
    {"FirstSectionForText", u"x", u"@@;\"none\"", " x"},
    {"NoPlaceholdersAppendsText", u"abc", u"\"-\"", "-abc"},
    {"ItemFieldShortName", u"Milk", kItemField, "Milk                        "},
    {"ItemFieldTwentyEight", u"abcdefghijklmnopqrstuvwxyz12", kItemField, "abcdefghijklmnopqrstuvwxyz12"},
    {"ItemFieldLongNameLosesItsTail", u"   abcdefghijklmnopqrstuvwxyz", kItemField,
     "   abcdefghijklmnopqrstuvwxy"},
};

TEST(FormatTextTest, TextPatterns)
{
    for (const TextRow& row : kTextRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Text(FormatText(row.text, row.pattern)), row.expected);
    }
}

// A shopping item of 27 characters or more becomes three blanks and its first
// 26 characters; the 28-character field then keeps the columns in line.
TEST(FormatTextTest, ShoppingItemFieldKeepsItsWidth)
{
    const QString longName = QStringLiteral("Extra Virgin Olive Oil, Cold Pressed");
    const QString item = QStringLiteral("   ") + longName.left(26);
    const QString field = FormatText(item, kItemField);
    EXPECT_EQ(field.size(), 28);
    EXPECT_EQ(Text(field), "   Extra Virgin Olive Oil, C");
    EXPECT_EQ(FormatText(u"Eggs", kItemField).size(), 28);
}

// ---------------------------------------------------------------- fuzzing

constexpr std::mt19937::result_type kRandomStart = 19980615;

double RandomValue(std::mt19937_64& rng)
{
    switch (rng() % 4) {
    case 0: { // any bit pattern: NaN, infinities, subnormals included
        const std::uint64_t bits = rng();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    case 1:
        return static_cast<double>(static_cast<std::int64_t>(rng() % 2000001) - 1000000) / 100.0;
    case 2:
        return std::ldexp(static_cast<double>(rng() % 1000000), static_cast<int>(rng() % 200) - 100);
    default:
        return static_cast<double>(static_cast<std::int64_t>(rng()));
    }
}

QString RandomPattern(std::mt19937_64& rng)
{
    static const char16_t kAlphabet[] = u"0#.,%Ee+-\\\";$()@&!<> abxDHmy";
    const auto size = std::size(kAlphabet) - 1;
    QString out;
    const auto length = rng() % 24;
    for (std::uint64_t i = 0; i < length; ++i)
        out += QChar(kAlphabet[rng() % size]);
    return out;
}

TEST(FormatFuzz, RandomValuesAndPatternsNeverCrash)
{
    const QString programPatterns[] = {
        QStringView(kWhole).toString(), QStringView(kEntry).toString(), QStringView(kResult).toString(),
        QStringView(kGridRow).toString(), QStringLiteral("###.#"), QStringLiteral("0%"),
        QStringLiteral("0.0%"), QStringLiteral("Standard"), QStringLiteral("#,##0.00"),
    };
    std::mt19937_64 rng(kRandomStart);
    for (int i = 0; i < 15000; ++i) {
        const double value = RandomValue(rng);
        for (const QString& pattern : programPatterns) {
            const QString shown = Format(value, pattern);
            ASSERT_LT(shown.size(), 600) << pattern.toStdString();
        }
        const QString pattern = RandomPattern(rng);
        const QString shown = Format(value, pattern);
        ASSERT_LT(shown.size(), 2000) << pattern.toStdString();
        Format(ToSingle(value), pattern);
        const QString text = ShortestText(value);
        FormatText(text, pattern);
        FormatText(text, kItemField);
    }
}

// Whole numbers in the whole-number pattern read back through the separators
// once the commas are taken out.
TEST(FormatFuzz, WholeNumbersSurviveTheSeparators)
{
    std::mt19937_64 rng(kRandomStart);
    for (int i = 0; i < 20000; ++i) {
        const auto value = static_cast<double>(static_cast<std::int64_t>(rng() % 1'000'000'000'000'000ULL) + 1);
        QString shown = Format(value, kWhole);
        shown.remove(u',');
        ASSERT_EQ(Val(shown), value) << shown.toStdString();
    }
}

} // namespace
