// Val, Str, StrSingle, ShortestText and ToSingle: the runtime's number and
// text rules, one named row per case.
#include "common/numberformat.h"
#include "common/numbertext.h"

#include <gtest/gtest.h>

#include <cfloat>
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

// ------------------------------------------------------------------ Val

struct ValRow {
    const char* name;
    const char16_t* input;
    double expected;
};

const ValRow kValRows[] = {
    // the reading rule itself
    {"EmptyIsZero", u"", 0},
    {"PlainInteger", u"17", 17},
    {"LeadingBlanksSkipped", u"   42", 42},
    {"LeadingTabsAndLineBreaksSkipped", u"\t\r\n12", 12},
    {"LeadingBlanksBeforeSign", u"  -3", -3},
    {"BlankInsideStops", u" 12 34", 12},
    {"LineBreakInsideStops", u"1\r\n2", 1},
    {"TrailingBlanksIgnored", u"8   ", 8},
    {"FractionWithoutLeadingZero", u".5", 0.5},
    {"CommaStopsReading", u"1,250.00", 1},
    {"MixedFractionReadsWholePart", u"3 1/2", 3},
    {"WordIsZero", u"abc", 0},
    {"TextBeforeNumberIsZero", u"x12", 0},
    {"NegativeSign", u"-2.5", -2.5},
    {"PlusSign", u"+7", 7},
    {"BlankAfterSignIsZero", u"-  3", 0},
    {"DoubleSignIsZero", u"--5", 0},
    {"SecondPointStops", u"1.2.3", 1.2},
    {"LonePointIsZero", u".", 0},
    {"TrailingPoint", u"5.", 5},
    {"BlankBeforePointStops", u"1 . 5", 1},
    {"BlankAfterPointStops", u"1. 5", 1},
    {"LeadingZeros", u"007", 7},
    {"ExponentUpperE", u"1.5E3", 1500},
    {"ExponentLowerE", u"2e-2", 0.02},
    {"ExponentD", u"1D2", 100},
    {"ExponentLowerD", u"3d1", 30},
    {"ExponentPlusSign", u"4E+2", 400},
    {"ExponentWithoutDigitsIsIgnored", u"4E", 4},
    {"ExponentSignWithoutDigitsIsIgnored", u"4E+", 4},
    {"WordStartingWithEAfterNumber", u"4 eggs", 4},
    {"WordStartingWithDAfterNumber", u"4 dozen", 4},
    {"BlankBeforeExponentStops", u"2 D3", 2},
    {"BlankInsideExponentStops", u"2E 3", 2},
    {"ExponentWithoutMantissaIsZero", u"E5", 0},
    {"PointThenExponentIsZero", u".E5", 0},
    {"NegativeZeroReadsAsZero", u"-0", 0},
    {"ManyDigitsRoundToNearestDouble", u"123456789012345678901234567890", 123456789012345678901234567890.0},
    {"LargestDouble", u"1.7976931348623157E308", DBL_MAX},
    {"TinyUnderflowsToZero", u"1E-400", 0},
    {"SmallestDenormal", u"4.9406564584124654E-324", 4.9406564584124654e-324},
    {"NonBreakingSpaceIsNotABlank", u"\u00A012", 0},
    {"FullwidthDigitIsNotADigit", u"\uFF11", 0},
    // hexadecimal and octal
    {"HexPrefix", u"&H1F", 31},
    {"HexLowerCase", u"&h1f", 31},
    {"HexBlankAfterAmpersandIsZero", u"& H1F", 0},
    {"HexBlankAmongDigitsStops", u"&H1 F", 1},
    {"HexAfterLeadingBlanks", u"  &H1F", 31},
    {"HexIntegerTopBitIsSign", u"&HFFFF", -1},
    {"HexIntegerLargest", u"&H7FFF", 32767},
    {"HexIntegerSmallest", u"&H8000", -32768},
    {"HexBeyondIntegerIsLong", u"&H10000", 65536},
    {"HexLongTopBitIsSign", u"&HFFFFFFFF", -1},
    {"HexLongSmallest", u"&H80000000", -2147483648.0},
    {"HexLeadingZerosDoNotCount", u"&H0000000000FF", 255},
    {"HexStopsAtNonHexDigit", u"&H1G", 1},
    {"HexWithoutDigitsIsZero", u"&H", 0},
    {"OctalPrefix", u"&O17", 15},
    {"OctalLowerCase", u"&o777", 511},
    {"OctalStopsAtEight", u"&O18", 1},
    {"OctalIntegerTopBitIsSign", u"&O177777", -1},
    {"AmpersandAloneIsZero", u"&", 0},
    {"AmpersandWithoutRadixLetterIsZero", u"&17", 0},
    {"SignBeforeHexIsZero", u"-&H10", 0},
    // where the program reads numbers
    {"YieldHalfPasses", u".5", 0.5},
    {"YieldBelowHalf", u".49", 0.49},
    {"YieldAboveLimit", u"1000", 1000},
    {"YieldEmptyIsZero", u"", 0},
    {"YieldWithWord", u"4 servings", 4},
    {"StandardAmountReadsBack", u"1.33", 1.33},
    {"StandardAmountWithLeadingZero", u"0.05", 0.05},
    {"StandardAmountOfThousandsReadsAsOne", u"1,250.00", 1},
    {"ShortDateMonthFirst", u"9/30/2006", 9},
    {"ShortDateMonthFirstPadded", u"09/30/06", 9},
    {"ShortDateDayFirst", u"30/09/2006", 30},
    {"ShortDateDayFirstWithDots", u"30.09.2006", 30.09},
    {"ShortDateYearFirst", u"2006-09-30", 2006},
    {"SortedEntryPositionOneDigit", u"  5", 5},
    {"SortedEntryPositionTwoDigits", u" 12", 12},
    {"SortedEntryPositionThreeDigits", u"123", 123},
    {"ListFileNameGivesDay", u"15Nov26.Lst", 15},
    {"ListFileNameWithoutDayIsZero", u"Nov26.Lst", 0},
    {"NameEntryRecordNumber", u"17  ", 17},
    {"AmountBoxDecimal", u"1.5", 1.5},
    {"AmountBoxWithUnitWord", u"2 Bags", 2},
    {"AmountBoxMixedFraction", u"1 1/2", 1},
    {"StoredFractionText", u"1/16", 1},
    {"WeightAsTyped", u"150.5", 150.5},
    {"WeightWithUnit", u"150.5 lbs", 150.5},
    {"WeightWordIsZero", u"N/A", 0},
    {"FamilySize", u"4", 4},
    {"FamilySizeWordIsZero", u"four", 0},
    {"AmountPerPersonWithUnit", u"0.7 lbs", 0.7},
    {"ConversionEntryWithComma", u"1,000", 1},
    {"ConversionEntryNegative", u"-5", -5},
};

TEST(ValTest, ReadsTheLeadingNumber)
{
    for (const ValRow& row : kValRows) {
        SCOPED_TRACE(row.name);
        const double got = Val(QStringView(row.input, std::char_traits<char16_t>::length(row.input)));
        EXPECT_EQ(got, row.expected);
        EXPECT_FALSE(std::signbit(got) && got == 0) << "negative zero";
    }
}

TEST(ValTest, NulInsideTextStops)
{
    const QChar withNul[] = {u'1', QChar(0), u'2'};
    EXPECT_EQ(Val(QStringView(withNul, 3)), 1);
}

TEST(ValTest, MenuSlotFromDayAndMonthTexts)
{
    struct Row {
        const char* name;
        int day;
        int month;
        double slot;
    };
    const Row rows[] = {
        {"FifteenthOfMarch", 15, 3, 153},
        {"FifthOfMarch", 5, 3, 53},
        {"LastOfAugust", 31, 8, 318},
        {"FirstOfJanuary", 1, 1, 11},
        {"LastOfSeptember", 30, 9, 309},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Val(ShortestText(row.day) + ShortestText(row.month)), row.slot);
    }
}

TEST(ValTest, VeryLongTextsStayFinite)
{
    EXPECT_EQ(Val(QString(100000, u'9')), 0) << "beyond a Double: overflow reads 0";
    EXPECT_EQ(Val(QStringLiteral("0.") + QString(100000, u'0') + QStringLiteral("1")), 0);
    EXPECT_EQ(Val(QStringLiteral("1") + QString(300, u'0')), 1e300);
    EXPECT_EQ(Val(QStringLiteral(".") + QString(299, u'0') + QStringLiteral("1")), 1e-300);
    EXPECT_EQ(Val(QStringLiteral("1E") + QString(50000, u'9')), 0);
    EXPECT_EQ(Val(QStringLiteral("1E-") + QString(50000, u'9')), 0);
    EXPECT_EQ(Val(QStringLiteral("0E") + QString(50000, u'9')), 0);
    EXPECT_EQ(Val(QStringLiteral("&H") + QString(5000, u'F')), 0);
    // 800 significant digits and more: the tail still decides a halfway case.
    EXPECT_EQ(Val(QStringLiteral("9007199254740993.") + QString(1000, u'0') + QStringLiteral("1")), 9007199254740994.0);
}

struct CheckedRow {
    const char* name;
    const char16_t* input;
    bool overflows;
    double expected;
};

const CheckedRow kCheckedRows[] = {
    {"InRange", u"1E308", false, 1e308},
    {"DecimalOverflow", u"1E309", true, 0},
    {"NegativeDecimalOverflow", u"-2E308", true, 0},
    {"JustAboveLargestDouble", u"1.7976931348623159E308", true, 0},
    {"UnderflowIsNoOverflow", u"1E-400", false, 0},
    {"HexOfThirtyTwoBits", u"&HFFFFFFFF", false, -1},
    {"HexOfMoreThanThirtyTwoBits", u"&H100000000", true, 0},
    {"OctalOfMoreThanThirtyTwoBits", u"&O40000000000", true, 0},
    {"NoNumber", u"abc", false, 0},
};

TEST(ValCheckedTest, ReportsOverflowWhereTheRuntimeStops)
{
    for (const CheckedRow& row : kCheckedRows) {
        SCOPED_TRACE(row.name);
        const QStringView input(row.input, std::char_traits<char16_t>::length(row.input));
        const std::optional<double> got = ValChecked(input);
        EXPECT_EQ(!got.has_value(), row.overflows);
        if (got) {
            EXPECT_EQ(*got, row.expected);
        }
        EXPECT_EQ(Val(input), row.expected);
    }
}

// ------------------------------------------------------------------ Str

struct StrRow {
    const char* name;
    double value;
    const char* expected;
};

const StrRow kStrRows[] = {
    {"Zero", 0, " 0"},
    {"NegativeZero", -0.0, " 0"},
    {"Integer", 17, " 17"},
    {"NegativeInteger", -17, "-17"},
    {"HalfHasNoLeadingZero", 0.5, " .5"},
    {"NegativeQuarter", -0.25, "-.25"},
    {"Year", 2026, " 2026"},
    {"MixedNumber", 12.75, " 12.75"},
    {"FifteenDigitsStayPlain", 123456789012345, " 123456789012345"},
    {"LargestPlainValue", 999999999999999, " 999999999999999"},
    {"SixteenDigitsGoScientific", 1234567890123456, " 1.23456789012346E+15"},
    {"TenToTheFifteenIsScientific", 1e15, " 1E+15"},
    {"RoundingUpToTenToTheFifteen", 999999999999999.9, " 1E+15"},
    {"NegativeLarge", -2.5e20, "-2.5E+20"},
    {"ThreeDigitExponent", 1e100, " 1E+100"},
    {"LargestDouble", DBL_MAX, " 1.79769313486232E+308"},
    {"TenThousandthStaysPlain", 0.0001, " .0001"},
    {"SmallPlainWithDigits", 0.00012345, " .00012345"},
    {"HundredThousandthIsScientific", 0.00001, " 1E-05"},
    {"SmallWithTwoDigits", 1.5e-5, " 1.5E-05"},
    {"NegativeSmall", -0.00001, "-1E-05"},
    {"SmallestDenormal", 4.9406564584124654e-324, " 4.94065645841247E-324"},
    {"OneThird", 1.0 / 3.0, " .333333333333333"},
    {"TwoThirdsRounded", 2.0 / 3.0, " .666666666666667"},
    {"BinaryNoiseHidden", 0.1 + 0.2, " .3"},
    {"SnappedEighth", 0.125, " .125"},
    {"SnappedQuarterAndOne", 1 + 0.25, " 1.25"},
    {"SnappedThirdAndTwo", 2 + 0.33, " 2.33"},
    {"SnappedWhole", 3, " 3"},
    {"SnappedUpToThousand", 999 + 1.0, " 1000"},
    {"Infinity", std::numeric_limits<double>::infinity(), " 1.#INF"},
    {"NegativeInfinity", -std::numeric_limits<double>::infinity(), "-1.#INF"},
    {"NotANumber", std::numeric_limits<double>::quiet_NaN(), "-1.#IND"},
};

TEST(StrTest, KeepsABlankForTheSign)
{
    for (const StrRow& row : kStrRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Text(Str(row.value)), row.expected);
    }
}

TEST(StrTest, MenuPlanFileNames)
{
    EXPECT_EQ(Text(Str(2026) + QStringLiteral(".Mnu")), " 2026.Mnu");
    EXPECT_EQ(Text(Str(1999) + QStringLiteral(".Mnu")), " 1999.Mnu");
    EXPECT_EQ(Str(2026).size(), 5);
}

TEST(StrTest, TrimmedStrIsTheDecimalFormOfAnAmount)
{
    // The amount box holds the snapped amount without sign blank or leading zero.
    struct Row {
        const char* name;
        double whole;
        double snapped;
        const char* expected;
    };
    const Row rows[] = {
        {"Eighth", 0, 0.125, ".125"},
        {"OneAndAQuarter", 1, 0.25, "1.25"},
        {"TwoAndAThird", 2, 0.33, "2.33"},
        {"TwoPointNineUpToThree", 2, 1, "3"},
        {"NinetyNineNinetyNineToThousand", 999, 1, "1000"},
        {"TwoThirds", 0, 0.67, ".67"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Text(Str(row.whole + row.snapped).trimmed()), row.expected);
    }
}

struct SingleRow {
    const char* name;
    float value;
    const char* str;
    const char* shortest;
};

const SingleRow kSingleRows[] = {
    {"Zero", 0.0f, " 0", "0"},
    {"Tenth", 0.1f, " .1", "0.1"},
    {"Half", 0.5f, " .5", "0.5"},
    {"NegativeHalf", -2.5f, "-2.5", "-2.5"},
    {"SevenDigitsStayPlain", 1234567.0f, " 1234567", "1234567"},
    {"TenToTheSevenIsScientific", 1e7f, " 1E+07", "1E+07"},
    {"EightDigitsGoScientific", 12345678.0f, " 1.234568E+07", "1.234568E+07"},
    {"OneThird", 1.0f / 3.0f, " .3333333", "0.3333333"},
    {"TenThousandthStaysPlain", 0.0001f, " .0001", "0.0001"},
    {"HundredThousandthIsScientific", 0.00001f, " 1E-05", "1E-05"},
    {"FamilySize", 4.0f, " 4", "4"},
    {"ThreePersonsAtPointSeven", 3.0f * 0.7f, " 2.1", "2.1"},
    {"PointSeven", 0.7f, " .7", "0.7"},
    {"LargestSingle", FLT_MAX, " 3.402823E+38", "3.402823E+38"},
};

TEST(StrSingleTest, ShowsSevenSignificantDigits)
{
    for (const SingleRow& row : kSingleRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Text(StrSingle(row.value)), row.str);
    }
}

// ------------------------------------------------------------ ShortestText

TEST(ShortestTextTest, SingleShowsSevenSignificantDigits)
{
    for (const SingleRow& row : kSingleRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Text(ShortestText(row.value)), row.shortest);
    }
}

struct ShortestRow {
    const char* name;
    double value;
    const char* expected;
};

const ShortestRow kShortestRows[] = {
    {"Zero", 0, "0"},
    {"NegativeZero", -0.0, "0"},
    {"HalfKeepsLeadingZero", 0.5, "0.5"},
    {"NegativeQuarter", -0.25, "-0.25"},
    {"Whole", 4, "4"},
    {"Hundred", 100, "100"},
    {"TablespoonsToCups", 1 * 0.0625, "0.0625"},
    {"CelsiusZeroToFahrenheit", 0.0 * 9 / 5 + 32, "32"},
    {"FahrenheitBoilingToCelsius", (212.0 - 32) * 5 / 9, "100"},
    {"OuncesToGrams", 28.349523, "28.349523"},
    {"TeaspoonsToTablespoons", 2 * 0.3334, "0.6668"},
    {"OneThird", 1.0 / 3.0, "0.333333333333333"},
    {"BinaryNoiseHidden", 0.1 + 0.2, "0.3"},
    {"TenToTheFifteen", 1e15, "1E+15"},
    {"FifteenDigits", 123456789012345, "123456789012345"},
    {"SmallScientific", 1.5e-5, "1.5E-05"},
    {"TenThousandth", 0.0001, "0.0001"},
    {"Infinity", std::numeric_limits<double>::infinity(), "1.#INF"},
    {"NegativeInfinity", -std::numeric_limits<double>::infinity(), "-1.#INF"},
    {"NotANumber", std::numeric_limits<double>::quiet_NaN(), "-1.#IND"},
};

TEST(ShortestTextTest, DoubleShowsFifteenSignificantDigits)
{
    for (const ShortestRow& row : kShortestRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Text(ShortestText(row.value)), row.expected);
    }
}

TEST(ShortestTextTest, WholeNumbersOfIntegerTypes)
{
    EXPECT_EQ(Text(ShortestText(2)), "2");
    EXPECT_EQ(Text(ShortestText(qint64(-15))), "-15");
    EXPECT_EQ(Text(ShortestText(0)), "0");
}

TEST(ShortestTextTest, ToSingleRoundsToNearest)
{
    struct Row {
        const char* name;
        double value;
        float expected;
    };
    const Row rows[] = {
        {"Tenth", 0.1, 0.1f},
        {"YieldRatio", 6.0 / 4.0, 1.5f},
        {"ThirdRatio", 4.0 / 3.0, 4.0f / 3.0f},
        {"LargestSingle", static_cast<double>(FLT_MAX), FLT_MAX},
        {"Overflow", 1e39, std::numeric_limits<float>::infinity()},
        {"NegativeOverflow", -1e39, -std::numeric_limits<float>::infinity()},
        {"Underflow", 1e-50, 0.0f},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ToSingle(row.value), row.expected);
    }
    EXPECT_TRUE(std::isnan(ToSingle(std::numeric_limits<double>::quiet_NaN())));
}

TEST(ShortestTextTest, DecimalDigitsOfANumber)
{
    const DecimalDigits d = ToDecimalDigits(-1.25, 15);
    EXPECT_EQ(d.digits.toStdString(), "125");
    EXPECT_EQ(d.pointPosition, 1);
    EXPECT_TRUE(d.negative);

    const DecimalDigits small = ToDecimalDigits(0.000125, 15);
    EXPECT_EQ(small.digits.toStdString(), "125");
    EXPECT_EQ(small.pointPosition, -3);

    const DecimalDigits single = ToDecimalDigits(0.1f, 7);
    EXPECT_EQ(single.digits.toStdString(), "1");
    EXPECT_EQ(single.pointPosition, 0);

    EXPECT_TRUE(ToDecimalDigits(0, 15).digits.isEmpty());
    EXPECT_TRUE(ToDecimalDigits(std::numeric_limits<double>::infinity(), 15).digits.isEmpty());
}

// Weight differences are taken through their decimal text once before they
// are held as a Single.
TEST(ShortestTextTest, WeightDifferenceThroughText)
{
    struct Row {
        const char* name;
        const char16_t* current;
        const char16_t* beginning;
        const char* difference;
        const char* shown;
    };
    const Row rows[] = {
        {"Loss", u"180.2", u"200", "-19.8", "-19.8"},
        {"Gain", u"201.5", u"200", "1.5", "1.5"},
        {"NoChange", u"200", u"200", "0", "."},
        {"SmallLossCarriesSingleNoise", u"199.9", u"200", "-0.1000061", "-.1"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const float current = ToSingle(Val(row.current));
        const double difference = static_cast<double>(current) - Val(row.beginning);
        const float held = ToSingle(Val(ShortestText(difference)));
        EXPECT_EQ(Text(ShortestText(held)), row.difference);
        EXPECT_EQ(Text(Format(held, u"###.#")), row.shown);
    }
}

// Food storage: needed = family size times amount per person, in single
// precision, shown as its shortest text.
TEST(ShortestTextTest, FoodStorageNeed)
{
    struct Row {
        const char* name;
        const char16_t* family;
        const char16_t* perPerson;
        const char* familyText;
        const char* needed;
    };
    const Row rows[] = {
        {"ThreeAtPointSeven", u"3", u"0.7 lbs", "3", "2.1"},
        {"FourAtTwentyFive", u"4", u"25 lbs", "4", "100"},
        {"FamilyWordIsZero", u"many", u"25 lbs", "0", "0"},
        {"FiveAtOneThird", u"5", u".3333", "5", "1.6665"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const float n = ToSingle(Val(row.family));
        const float p = ToSingle(Val(row.perPerson));
        EXPECT_EQ(Text(ShortestText(n)), row.familyText);
        EXPECT_EQ(Text(ShortestText(n * p)), row.needed);
    }
}

// ---------------------------------------------------------------- fuzzing

constexpr std::mt19937::result_type kRandomStart = 20260315;

QString RandomText(std::mt19937& rng, int maxLength)
{
    static const char16_t kAlphabet[] = u"0123456789012345678.,+-eEdDhHoO&/ \t\r\n xyz%$#@!";
    const int alphabetSize = static_cast<int>(std::size(kAlphabet)) - 1;
    std::uniform_int_distribution<int> length(0, maxLength);
    std::uniform_int_distribution<int> pick(0, alphabetSize + 3);
    std::uniform_int_distribution<int> any(0, 0xFFFF);
    QString out;
    const int n = length(rng);
    for (int i = 0; i < n; ++i) {
        const int k = pick(rng);
        out += k < alphabetSize ? QChar(kAlphabet[k]) : QChar(static_cast<char16_t>(any(rng)));
    }
    return out;
}

TEST(ValFuzz, RandomTextsNeverCrashAndStayFinite)
{
    std::mt19937 rng(kRandomStart);
    for (int i = 0; i < 50000; ++i) {
        const QString text = RandomText(rng, 40);
        const double v = Val(text);
        ASSERT_TRUE(std::isfinite(v)) << text.toStdString();
        const std::optional<double> checked = ValChecked(text);
        if (checked) {
            ASSERT_EQ(*checked, v) << text.toStdString();
        }
    }
}

TEST(StrFuzz, TextsReadBackToTheSameText)
{
    std::mt19937_64 rng(kRandomStart);
    for (int i = 0; i < 50000; ++i) {
        const std::uint64_t bits = rng();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value))
            continue;
        const QString shortest = ShortestText(value);
        if (!ValChecked(shortest))
            continue; // the 15-digit text of the largest Doubles lies beyond the range
        ASSERT_EQ(ShortestText(Val(shortest)), shortest) << shortest.toStdString();
        const QString str = Str(value);
        ASSERT_EQ(Str(Val(str)), str) << str.toStdString();
        ASSERT_TRUE(str.startsWith(u' ') || str.startsWith(u'-')) << str.toStdString();

        float single = 0;
        const auto singleBits = static_cast<std::uint32_t>(bits);
        std::memcpy(&single, &singleBits, sizeof single);
        if (std::fpclassify(single) != FP_NORMAL)
            continue;
        // Seven digits do not always single out one Single; they stay within rounding.
        const QString singleText = ShortestText(single);
        const float back = ToSingle(Val(singleText));
        ASSERT_LE(std::fabs(back - single), std::fabs(single) * 1e-6f) << singleText.toStdString();
    }
}

} // namespace
