// The conversion rules as tables of named rows. Every expected value here was
// worked out by hand from the printed conversion table (the results with a
// small script applying the same rules to the printed factors), never read
// back from the program's own table.
#include "guides/logic/conversions.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

const ConversionOption& Option(int index)
{
    const ConversionOption* option = FindConversionOption(index);
    EXPECT_NE(option, nullptr) << index;
    return *option;
}

QString Q(const char* text)
{
    return QString::fromUtf8(text);
}

// ---- Edge cases -------------------------------------------------------------

TEST(ConversionEdgeCases, OneTablespoonToCupsIsSixteenthWithSingularTablespoon)
{
    const SingleConversion single = ConvertSingle(Option(10), 1, RoundMode::None);
    EXPECT_EQ(single.resultText, u".0625");
    EXPECT_EQ(single.fromLabel, u"Tablespoon = ");
    EXPECT_EQ(single.toLabel, u"Cups");
}

TEST(ConversionEdgeCases, ZeroCelsiusIsThirtyTwoFahrenheit)
{
    const EntryReading reading = ReadEntry(u"0", 18);
    EXPECT_EQ(reading.value, 0);
    EXPECT_EQ(reading.boxText, QStringLiteral("0"));
    EXPECT_EQ(ConvertSingle(Option(18), reading.value, RoundMode::None).resultText, u"32");
}

TEST(ConversionEdgeCases, ZeroCupsIsReplacedByOneAndGivesEightOunces)
{
    const EntryReading reading = ReadEntry(u"0", 12);
    EXPECT_EQ(reading.value, 1);
    EXPECT_EQ(reading.boxText, QStringLiteral("1"));
    const SingleConversion single = ConvertSingle(Option(12), reading.value, RoundMode::None);
    EXPECT_EQ(single.resultText, u"8");
    EXPECT_EQ(single.fromLabel, u"Cup = ");
    EXPECT_EQ(single.toLabel, u"Ounces");
}

TEST(ConversionEdgeCases, TwoHundredTwelveFahrenheitIsOneHundredWithoutFraction)
{
    EXPECT_EQ(ConvertSingle(Option(19), 212, RoundMode::None).resultText, u"100");
    EXPECT_EQ(ConvertSingle(Option(19), 212, RoundMode::Tenth).resultText, u"100");
}

TEST(ConversionEdgeCases, MultipleEntryFromFiveToTwoRunsTwoToFiveAndRewritesNoBox)
{
    const EntryRange range = ReadRange(5, u"2");
    EXPECT_EQ(range.beginning, 2);
    EXPECT_EQ(range.ending, 5);
    EXPECT_FALSE(range.endingBoxText.has_value());
    const QList<ConversionRow> rows = ConvertRange(Option(12), range, RoundMode::None);
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows.first().amount, u"2");
    EXPECT_EQ(rows.last().amount, u"5");
}

TEST(ConversionEdgeCases, MultipleEntryFromOneToFiveThousandEndsAtOneThousand)
{
    const EntryRange range = ReadRange(1, u"5000");
    EXPECT_EQ(range.beginning, 1);
    EXPECT_EQ(range.ending, 1000);
    EXPECT_EQ(range.endingBoxText, QStringLiteral("1000"));
    const QList<ConversionRow> rows = ConvertRange(Option(0), range, RoundMode::None);
    ASSERT_EQ(rows.size(), 1000);
    EXPECT_EQ(rows.last().amount, u"1,000");
}

TEST(ConversionEdgeCases, HundredthModeCutsAfterTwoPlacesAndLeavesTextWithoutPoint)
{
    EXPECT_EQ(ConvertSingle(Option(0), 1.23456, RoundMode::Hundredth).resultText, u"1.23");
    EXPECT_EQ(RoundResultText(QStringLiteral("2"), RoundMode::Hundredth), u"2");
    EXPECT_EQ(ConvertSingle(Option(0), 2, RoundMode::Hundredth).resultText, u"2");
}

// ---- The table: captions, units, groups ---------------------------------------

struct CaptionRow {
    int index;
    const char* caption;
    const char* fromUnit;
    const char* toUnit;
};
const CaptionRow kCaptionRows[] = {
    {0, "8 oz. to Cups", "8 oz. Cans", "Cups"},
    {1, "14 to 15 oz. to Cups", "14-15 oz. Cans", "Cups"},
    {2, "16 to 17 oz. to Cups", "16-17 oz. Cans", "Cups"},
    {3, "20 oz. (18 floz) to Cup", "20 oz. Cans", "Cups"},
    {4, "29 oz. to Cups", "29 oz. Cans", "Cups"},
    {5, "Pound of In Shell Walnuts to Shelled Cups", "lb(s). Walnuts (In Shells)", "Shelled Cups"},
    {8, "Teaspoons to TBsp.", "Teaspoons", "Tablespoons"},
    {9, "Tablespoon to Tsp.", "Tablespoons", "Teaspoons"},
    {10, "Tablespoons to Cups", "Tablespoons", "Cups"},
    {11, "Cups to Tablespoons", "Cups", "Tablespoons"},
    {12, "Cups to Ounces", "Cups", "Ounces"},
    {13, "Ounces to Cups", "Ounces", "Cups"},
    {14, "Cups to Pints", "Cups", "Pints"},
    {15, "Pints to Cups", "Pints", "Cups"},
    {16, "Cups to Quarts", "Cups", "Quarts"},
    {17, "Quarts to Cups", "Quarts", "Cups"},
    {18, "Celcius to Fahreheit", "Degrees Celcius", "Degrees Fahrenheit"},
    {19, "Fahreheit to Celcius", "Degrees Fahrenheit", "Degrees Celcius"},
    {20, "Full Square Chocolate to Ounces", "Full Square", "Ounces"},
    {21, "Cups of Fine Crumbs to Graham Crackers", "Cups", "Graham Crackers"},
    {22, "Cups of Fine Crumbs to Salted Crackers", "Cups", "Salted Crackers"},
    {23, "Tbsp. Cornstarch to Tbsp. Flour", "Tablespoon(s) Cornstarch", "Tablespoon(s) Flour"},
    {24, "Cups of Chopped Nuts to Pounds", "Cups", "Pounds"},
    {25, "Marshmallows to Pounds", "Marshmallows", "Pounds"},
    {26, "Tablespoons Butter to Ounces", "Tablespoons", "Ounces"},
    {27, "Ounces Butter to Tablespoons", "Ounces", "Tablespoons"},
    {28, "Sticks of Butter to Cups", "Stick (1/4 lb.)", "Cups"},
    {29, "Slices of Bread to Cups Soft Bread Crumbs", "Bread Slices", "Cup(s) Soft Bread Crumbs"},
    {30, "Slices of Bread to Fine Dry Bread Crumbs", "Bread Slices", "Cup(s) Fine Dry Bread Crumbs"},
    {31, "Juice of Lemons to Tablespoons", "Lemons", "Tablespoons"},
    {32, "Grated Peel of Lemons to Teaspoons", "Lemons", "Teaspoons"},
    {33, "Juice of Oranges to Cups (approx.)", "Oranges", "Cups"},
    {34, "Grated Peel of Oranges to Teaspoons (approx.)", "Oranges", "Teaspoons"},
    {35, "Medium Apples Chopped to Cups (approx.)", "Medium Apples", "Cups"},
    {36, "Medium Bananas Mashed to Cups (approx.)", "Medium Bananas", "Cups"},
    {37, "Medium Onions Chopped to Cups (approx.)", "Medium Onions", "Cups"},
    {38, "Grams to Ounces", "Grams", "Ounces"},
    {41, "Ounces to Grams", "Ounces", "Grams"},
    {44, "Quarts to Gallons", "Quarts", "Gallons"},
    {45, "Gallons to Quarts", "Gallons", "Quarts"},
    {49, "Pound of Cheese Shredded to Cups", "Pounds", "Cups"},
    {50, "Egg Yolks to Cups", "Egg Yolks", "Cups"},
    {51, "Egg Whites to Cups", "Egg Whites", "Cups"},
};

TEST(ConversionTable, HasFortyThreeOptionsInIndexOrderWithTheirGaps)
{
    ASSERT_EQ(ConversionOptions().size(), 43u);
    for (int gap : {6, 7, 39, 40, 42, 43, 46, 47, 48, 52, -1, 99})
        EXPECT_EQ(FindConversionOption(gap), nullptr) << gap;
    int i = 0;
    for (const ConversionOption& option : ConversionOptions())
        EXPECT_EQ(option.index, kCaptionRows[i++].index);
}

TEST(ConversionTable, CaptionsAndUnitsStandAsPrinted)
{
    for (const CaptionRow& row : kCaptionRows) {
        const ConversionOption& option = Option(row.index);
        EXPECT_STREQ(option.caption, row.caption) << row.index;
        EXPECT_STREQ(option.fromUnit, row.fromUnit) << row.index;
        EXPECT_STREQ(option.toUnit, row.toUnit) << row.index;
    }
    EXPECT_STREQ(Option(18).caption, "Celcius to Fahreheit");
    EXPECT_STREQ(Option(8).caption, "Teaspoons to TBsp.");
}

TEST(ConversionTable, RoundedFactorsAreKept)
{
    EXPECT_EQ(Option(8).factor, .3334);
    EXPECT_EQ(Option(33).factor, .334);
    EXPECT_EQ(Option(36).factor, .334);
    EXPECT_EQ(Option(50).factor, .0834);
    EXPECT_EQ(Option(29).factor, .667);
    EXPECT_EQ(Option(25).factor, .0167);
    EXPECT_EQ(ConvertValue(Option(8), 3), 3 * .3334);
}

TEST(ConversionTable, FiveGroupsHoldEveryOptionOnce)
{
    struct Group {
        ConversionGroup group;
        const char* caption;
        QList<int> indices;
    };
    const Group groups[] = {
        {ConversionGroup::CanSizes, "Can Sizes", {0, 1, 2, 3, 4}},
        {ConversionGroup::WeightsAndMeasures, "Weights and Measures", {8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 38, 41, 44, 45}},
        {ConversionGroup::Temperature, "Temperature", {18, 19}},
        {ConversionGroup::EasyEquivalents, "Easy Equivalents", {20, 21, 22, 23, 26, 27, 28, 50, 51}},
        {ConversionGroup::HowMuchHowMany, "How Much = How Many", {5, 24, 25, 29, 30, 31, 32, 33, 34, 35, 36, 37, 49}},
    };
    QSet<int> seen;
    for (const Group& group : groups) {
        EXPECT_EQ(GroupCaption(group.group), QString::fromLatin1(group.caption));
        QList<int> indices;
        for (const ConversionOption* option : OptionsOfGroup(group.group)) {
            indices.append(option->index);
            seen.insert(option->index);
        }
        EXPECT_EQ(indices, group.indices) << group.caption;
    }
    EXPECT_EQ(seen.size(), 43);
}

TEST(ConversionTable, OnlyTheTwoTemperaturesAreTemperatures)
{
    for (const CaptionRow& row : kCaptionRows)
        EXPECT_EQ(IsTemperatureOption(row.index), row.index == 18 || row.index == 19) << row.index;
}

// ---- Every option, entries 1 and 7.3, every rounding mode --------------------

struct SingleRow {
    int index;
    double entry;
    int mode;
    const char* fromLabel;
    const char* toLabel;
    const char* result;
};
const SingleRow kSingleRows[] = {
    {0, 1, 1, "8 oz. Can = ", "Cup", "1"},
    {0, 1, 2, "8 oz. Can = ", "Cup", "1"},
    {0, 1, 3, "8 oz. Can = ", "Cup", "1"},
    {0, 1, 4, "8 oz. Can = ", "Cup", "1"},
    {0, 1, 5, "8 oz. Can = ", "Cup", "1"},
    {0, 7.3, 1, "8 oz. Cans = ", "Cups", "7.3"},
    {0, 7.3, 2, "8 oz. Cans = ", "Cups", "7"},
    {0, 7.3, 3, "8 oz. Cans = ", "Cups", "7.3"},
    {0, 7.3, 4, "8 oz. Cans = ", "Cups", "7.3"},
    {0, 7.3, 5, "8 oz. Cans = ", "Cups", "7.3"},
    {1, 1, 1, "14-15 oz. Can = ", "Cups", "1.75"},
    {1, 1, 2, "14-15 oz. Can = ", "Cups", "2"},
    {1, 1, 3, "14-15 oz. Can = ", "Cups", "1.8"},
    {1, 1, 4, "14-15 oz. Can = ", "Cups", "1.75"},
    {1, 1, 5, "14-15 oz. Can = ", "Cups", "1.75"},
    {1, 7.3, 1, "14-15 oz. Cans = ", "Cups", "12.775"},
    {1, 7.3, 2, "14-15 oz. Cans = ", "Cups", "13"},
    {1, 7.3, 3, "14-15 oz. Cans = ", "Cups", "12.8"},
    {1, 7.3, 4, "14-15 oz. Cans = ", "Cups", "12.78"},
    {1, 7.3, 5, "14-15 oz. Cans = ", "Cups", "12.775"},
    {2, 1, 1, "16-17 oz. Can = ", "Cups", "2"},
    {2, 1, 2, "16-17 oz. Can = ", "Cups", "2"},
    {2, 1, 3, "16-17 oz. Can = ", "Cups", "2"},
    {2, 1, 4, "16-17 oz. Can = ", "Cups", "2"},
    {2, 1, 5, "16-17 oz. Can = ", "Cups", "2"},
    {2, 7.3, 1, "16-17 oz. Cans = ", "Cups", "14.6"},
    {2, 7.3, 2, "16-17 oz. Cans = ", "Cups", "15"},
    {2, 7.3, 3, "16-17 oz. Cans = ", "Cups", "14.6"},
    {2, 7.3, 4, "16-17 oz. Cans = ", "Cups", "14.6"},
    {2, 7.3, 5, "16-17 oz. Cans = ", "Cups", "14.6"},
    {3, 1, 1, "20 oz. Can = ", "Cups", "2.5"},
    {3, 1, 2, "20 oz. Can = ", "Cups", "3"},
    {3, 1, 3, "20 oz. Can = ", "Cups", "2.5"},
    {3, 1, 4, "20 oz. Can = ", "Cups", "2.5"},
    {3, 1, 5, "20 oz. Can = ", "Cups", "2.5"},
    {3, 7.3, 1, "20 oz. Cans = ", "Cups", "18.25"},
    {3, 7.3, 2, "20 oz. Cans = ", "Cups", "18"},
    {3, 7.3, 3, "20 oz. Cans = ", "Cups", "18.3"},
    {3, 7.3, 4, "20 oz. Cans = ", "Cups", "18.25"},
    {3, 7.3, 5, "20 oz. Cans = ", "Cups", "18.25"},
    {4, 1, 1, "29 oz. Can = ", "Cups", "3.5"},
    {4, 1, 2, "29 oz. Can = ", "Cups", "4"},
    {4, 1, 3, "29 oz. Can = ", "Cups", "3.5"},
    {4, 1, 4, "29 oz. Can = ", "Cups", "3.5"},
    {4, 1, 5, "29 oz. Can = ", "Cups", "3.5"},
    {4, 7.3, 1, "29 oz. Cans = ", "Cups", "25.55"},
    {4, 7.3, 2, "29 oz. Cans = ", "Cups", "26"},
    {4, 7.3, 3, "29 oz. Cans = ", "Cups", "25.6"},
    {4, 7.3, 4, "29 oz. Cans = ", "Cups", "25.55"},
    {4, 7.3, 5, "29 oz. Cans = ", "Cups", "25.55"},
    {5, 1, 1, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "1.5"},
    {5, 1, 2, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "2"},
    {5, 1, 3, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "1.5"},
    {5, 1, 4, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "1.5"},
    {5, 1, 5, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "1.5"},
    {5, 7.3, 1, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "10.95"},
    {5, 7.3, 2, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "11"},
    {5, 7.3, 3, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "11"},
    {5, 7.3, 4, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "10.95"},
    {5, 7.3, 5, "lb(s). Walnuts (In Shells) = ", "Shelled Cups", "10.95"},
    {8, 1, 1, "Teaspoon = ", "Tablespoons", ".3334"},
    {8, 1, 2, "Teaspoon = ", "Tablespoons", "0"},
    {8, 1, 3, "Teaspoon = ", "Tablespoons", ".3"},
    {8, 1, 4, "Teaspoon = ", "Tablespoons", ".33"},
    {8, 1, 5, "Teaspoon = ", "Tablespoons", ".333"},
    {8, 7.3, 1, "Teaspoons = ", "Tablespoons", "2.43382"},
    {8, 7.3, 2, "Teaspoons = ", "Tablespoons", "2"},
    {8, 7.3, 3, "Teaspoons = ", "Tablespoons", "2.4"},
    {8, 7.3, 4, "Teaspoons = ", "Tablespoons", "2.43"},
    {8, 7.3, 5, "Teaspoons = ", "Tablespoons", "2.434"},
    {9, 1, 1, "Tablespoon = ", "Teaspoons", "3"},
    {9, 1, 2, "Tablespoon = ", "Teaspoons", "3"},
    {9, 1, 3, "Tablespoon = ", "Teaspoons", "3"},
    {9, 1, 4, "Tablespoon = ", "Teaspoons", "3"},
    {9, 1, 5, "Tablespoon = ", "Teaspoons", "3"},
    {9, 7.3, 1, "Tablespoons = ", "Teaspoons", "21.9"},
    {9, 7.3, 2, "Tablespoons = ", "Teaspoons", "22"},
    {9, 7.3, 3, "Tablespoons = ", "Teaspoons", "21.9"},
    {9, 7.3, 4, "Tablespoons = ", "Teaspoons", "21.9"},
    {9, 7.3, 5, "Tablespoons = ", "Teaspoons", "21.9"},
    {10, 1, 1, "Tablespoon = ", "Cups", ".0625"},
    {10, 1, 2, "Tablespoon = ", "Cups", "0"},
    {10, 1, 3, "Tablespoon = ", "Cups", ".1"},
    {10, 1, 4, "Tablespoon = ", "Cups", ".06"},
    {10, 1, 5, "Tablespoon = ", "Cups", ".063"},
    {10, 7.3, 1, "Tablespoons = ", "Cups", ".45625"},
    {10, 7.3, 2, "Tablespoons = ", "Cups", "0"},
    {10, 7.3, 3, "Tablespoons = ", "Cups", ".5"},
    {10, 7.3, 4, "Tablespoons = ", "Cups", ".46"},
    {10, 7.3, 5, "Tablespoons = ", "Cups", ".456"},
    {11, 1, 1, "Cup = ", "Tablespoons", "16"},
    {11, 1, 2, "Cup = ", "Tablespoons", "16"},
    {11, 1, 3, "Cup = ", "Tablespoons", "16"},
    {11, 1, 4, "Cup = ", "Tablespoons", "16"},
    {11, 1, 5, "Cup = ", "Tablespoons", "16"},
    {11, 7.3, 1, "Cups = ", "Tablespoons", "116.8"},
    {11, 7.3, 2, "Cups = ", "Tablespoons", "117"},
    {11, 7.3, 3, "Cups = ", "Tablespoons", "116.8"},
    {11, 7.3, 4, "Cups = ", "Tablespoons", "116.8"},
    {11, 7.3, 5, "Cups = ", "Tablespoons", "116.8"},
    {12, 1, 1, "Cup = ", "Ounces", "8"},
    {12, 1, 2, "Cup = ", "Ounces", "8"},
    {12, 1, 3, "Cup = ", "Ounces", "8"},
    {12, 1, 4, "Cup = ", "Ounces", "8"},
    {12, 1, 5, "Cup = ", "Ounces", "8"},
    {12, 7.3, 1, "Cups = ", "Ounces", "58.4"},
    {12, 7.3, 2, "Cups = ", "Ounces", "58"},
    {12, 7.3, 3, "Cups = ", "Ounces", "58.4"},
    {12, 7.3, 4, "Cups = ", "Ounces", "58.4"},
    {12, 7.3, 5, "Cups = ", "Ounces", "58.4"},
    {13, 1, 1, "Ounce = ", "Cups", ".125"},
    {13, 1, 2, "Ounce = ", "Cups", "0"},
    {13, 1, 3, "Ounce = ", "Cups", ".1"},
    {13, 1, 4, "Ounce = ", "Cups", ".13"},
    {13, 1, 5, "Ounce = ", "Cups", ".125"},
    {13, 7.3, 1, "Ounces = ", "Cups", ".9125"},
    {13, 7.3, 2, "Ounces = ", "Cup", "1"},
    {13, 7.3, 3, "Ounces = ", "Cups", ".9"},
    {13, 7.3, 4, "Ounces = ", "Cups", ".91"},
    {13, 7.3, 5, "Ounces = ", "Cups", ".913"},
    {14, 1, 1, "Cup = ", "Pints", ".5"},
    {14, 1, 2, "Cup = ", "Pint", "1"},
    {14, 1, 3, "Cup = ", "Pints", ".5"},
    {14, 1, 4, "Cup = ", "Pints", ".5"},
    {14, 1, 5, "Cup = ", "Pints", ".5"},
    {14, 7.3, 1, "Cups = ", "Pints", "3.65"},
    {14, 7.3, 2, "Cups = ", "Pints", "4"},
    {14, 7.3, 3, "Cups = ", "Pints", "3.7"},
    {14, 7.3, 4, "Cups = ", "Pints", "3.65"},
    {14, 7.3, 5, "Cups = ", "Pints", "3.65"},
    {15, 1, 1, "Pint = ", "Cups", "2"},
    {15, 1, 2, "Pint = ", "Cups", "2"},
    {15, 1, 3, "Pint = ", "Cups", "2"},
    {15, 1, 4, "Pint = ", "Cups", "2"},
    {15, 1, 5, "Pint = ", "Cups", "2"},
    {15, 7.3, 1, "Pints = ", "Cups", "14.6"},
    {15, 7.3, 2, "Pints = ", "Cups", "15"},
    {15, 7.3, 3, "Pints = ", "Cups", "14.6"},
    {15, 7.3, 4, "Pints = ", "Cups", "14.6"},
    {15, 7.3, 5, "Pints = ", "Cups", "14.6"},
    {16, 1, 1, "Cup = ", "Quarts", ".25"},
    {16, 1, 2, "Cup = ", "Quarts", "0"},
    {16, 1, 3, "Cup = ", "Quarts", ".3"},
    {16, 1, 4, "Cup = ", "Quarts", ".25"},
    {16, 1, 5, "Cup = ", "Quarts", ".25"},
    {16, 7.3, 1, "Cups = ", "Quarts", "1.825"},
    {16, 7.3, 2, "Cups = ", "Quarts", "2"},
    {16, 7.3, 3, "Cups = ", "Quarts", "1.8"},
    {16, 7.3, 4, "Cups = ", "Quarts", "1.83"},
    {16, 7.3, 5, "Cups = ", "Quarts", "1.825"},
    {17, 1, 1, "Quart = ", "Cups", "4"},
    {17, 1, 2, "Quart = ", "Cups", "4"},
    {17, 1, 3, "Quart = ", "Cups", "4"},
    {17, 1, 4, "Quart = ", "Cups", "4"},
    {17, 1, 5, "Quart = ", "Cups", "4"},
    {17, 7.3, 1, "Quarts = ", "Cups", "29.2"},
    {17, 7.3, 2, "Quarts = ", "Cups", "29"},
    {17, 7.3, 3, "Quarts = ", "Cups", "29.2"},
    {17, 7.3, 4, "Quarts = ", "Cups", "29.2"},
    {17, 7.3, 5, "Quarts = ", "Cups", "29.2"},
    {18, 1, 1, "Degrees Celcius = ", "Degrees Fahrenheit", "33.8"},
    {18, 1, 2, "Degrees Celcius = ", "Degrees Fahrenheit", "34"},
    {18, 1, 3, "Degrees Celcius = ", "Degrees Fahrenheit", "33.8"},
    {18, 1, 4, "Degrees Celcius = ", "Degrees Fahrenheit", "33.8"},
    {18, 1, 5, "Degrees Celcius = ", "Degrees Fahrenheit", "33.8"},
    {18, 7.3, 1, "Degrees Celcius = ", "Degrees Fahrenheit", "45.14"},
    {18, 7.3, 2, "Degrees Celcius = ", "Degrees Fahrenheit", "45"},
    {18, 7.3, 3, "Degrees Celcius = ", "Degrees Fahrenheit", "45.1"},
    {18, 7.3, 4, "Degrees Celcius = ", "Degrees Fahrenheit", "45.14"},
    {18, 7.3, 5, "Degrees Celcius = ", "Degrees Fahrenheit", "45.14"},
    {19, 1, 1, "Degrees Fahrenheit = ", "Degrees Celcius", "-17.2222222222222"},
    {19, 1, 2, "Degrees Fahrenheit = ", "Degrees Celcius", "-17"},
    {19, 1, 3, "Degrees Fahrenheit = ", "Degrees Celcius", "-17.1"},
    {19, 1, 4, "Degrees Fahrenheit = ", "Degrees Celcius", "-17.21"},
    {19, 1, 5, "Degrees Fahrenheit = ", "Degrees Celcius", "-17.221"},
    {19, 7.3, 1, "Degrees Fahrenheit = ", "Degrees Celcius", "-13.7222222222222"},
    {19, 7.3, 2, "Degrees Fahrenheit = ", "Degrees Celcius", "-14"},
    {19, 7.3, 3, "Degrees Fahrenheit = ", "Degrees Celcius", "-13.6"},
    {19, 7.3, 4, "Degrees Fahrenheit = ", "Degrees Celcius", "-13.71"},
    {19, 7.3, 5, "Degrees Fahrenheit = ", "Degrees Celcius", "-13.721"},
    {20, 1, 1, "Full Square = ", "Ounce", "1"},
    {20, 1, 2, "Full Square = ", "Ounce", "1"},
    {20, 1, 3, "Full Square = ", "Ounce", "1"},
    {20, 1, 4, "Full Square = ", "Ounce", "1"},
    {20, 1, 5, "Full Square = ", "Ounce", "1"},
    {20, 7.3, 1, "Full Square = ", "Ounces", "7.3"},
    {20, 7.3, 2, "Full Square = ", "Ounces", "7"},
    {20, 7.3, 3, "Full Square = ", "Ounces", "7.3"},
    {20, 7.3, 4, "Full Square = ", "Ounces", "7.3"},
    {20, 7.3, 5, "Full Square = ", "Ounces", "7.3"},
    {21, 1, 1, "Cup = ", "Graham Crackers", "12"},
    {21, 1, 2, "Cup = ", "Graham Crackers", "12"},
    {21, 1, 3, "Cup = ", "Graham Crackers", "12"},
    {21, 1, 4, "Cup = ", "Graham Crackers", "12"},
    {21, 1, 5, "Cup = ", "Graham Crackers", "12"},
    {21, 7.3, 1, "Cups = ", "Graham Crackers", "87.6"},
    {21, 7.3, 2, "Cups = ", "Graham Crackers", "88"},
    {21, 7.3, 3, "Cups = ", "Graham Crackers", "87.6"},
    {21, 7.3, 4, "Cups = ", "Graham Crackers", "87.6"},
    {21, 7.3, 5, "Cups = ", "Graham Crackers", "87.6"},
    {22, 1, 1, "Cup = ", "Salted Crackers", "20"},
    {22, 1, 2, "Cup = ", "Salted Crackers", "20"},
    {22, 1, 3, "Cup = ", "Salted Crackers", "20"},
    {22, 1, 4, "Cup = ", "Salted Crackers", "20"},
    {22, 1, 5, "Cup = ", "Salted Crackers", "20"},
    {22, 7.3, 1, "Cups = ", "Salted Crackers", "146"},
    {22, 7.3, 2, "Cups = ", "Salted Crackers", "146"},
    {22, 7.3, 3, "Cups = ", "Salted Crackers", "146"},
    {22, 7.3, 4, "Cups = ", "Salted Crackers", "146"},
    {22, 7.3, 5, "Cups = ", "Salted Crackers", "146"},
    {23, 1, 1, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "2"},
    {23, 1, 2, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "2"},
    {23, 1, 3, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "2"},
    {23, 1, 4, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "2"},
    {23, 1, 5, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "2"},
    {23, 7.3, 1, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "14.6"},
    {23, 7.3, 2, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "15"},
    {23, 7.3, 3, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "14.6"},
    {23, 7.3, 4, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "14.6"},
    {23, 7.3, 5, "Tablespoon(s) Cornstarch = ", "Tablespoon(s) Flour", "14.6"},
    {24, 1, 1, "Cup = ", "Pounds", ".25"},
    {24, 1, 2, "Cup = ", "Pounds", "0"},
    {24, 1, 3, "Cup = ", "Pounds", ".3"},
    {24, 1, 4, "Cup = ", "Pounds", ".25"},
    {24, 1, 5, "Cup = ", "Pounds", ".25"},
    {24, 7.3, 1, "Cups = ", "Pounds", "1.825"},
    {24, 7.3, 2, "Cups = ", "Pounds", "2"},
    {24, 7.3, 3, "Cups = ", "Pounds", "1.8"},
    {24, 7.3, 4, "Cups = ", "Pounds", "1.83"},
    {24, 7.3, 5, "Cups = ", "Pounds", "1.825"},
    {25, 1, 1, "Marshmallow = ", "Pounds", ".0167"},
    {25, 1, 2, "Marshmallow = ", "Pounds", "0"},
    {25, 1, 3, "Marshmallow = ", "Pounds", "0.0"},
    {25, 1, 4, "Marshmallow = ", "Pounds", ".02"},
    {25, 1, 5, "Marshmallow = ", "Pounds", ".017"},
    {25, 7.3, 1, "Marshmallows = ", "Pounds", ".12191"},
    {25, 7.3, 2, "Marshmallows = ", "Pounds", "0"},
    {25, 7.3, 3, "Marshmallows = ", "Pounds", ".1"},
    {25, 7.3, 4, "Marshmallows = ", "Pounds", ".12"},
    {25, 7.3, 5, "Marshmallows = ", "Pounds", ".122"},
    {26, 1, 1, "Tablespoon = ", "Ounces", ".5"},
    {26, 1, 2, "Tablespoon = ", "Ounce", "1"},
    {26, 1, 3, "Tablespoon = ", "Ounces", ".5"},
    {26, 1, 4, "Tablespoon = ", "Ounces", ".5"},
    {26, 1, 5, "Tablespoon = ", "Ounces", ".5"},
    {26, 7.3, 1, "Tablespoons = ", "Ounces", "3.65"},
    {26, 7.3, 2, "Tablespoons = ", "Ounces", "4"},
    {26, 7.3, 3, "Tablespoons = ", "Ounces", "3.7"},
    {26, 7.3, 4, "Tablespoons = ", "Ounces", "3.65"},
    {26, 7.3, 5, "Tablespoons = ", "Ounces", "3.65"},
    {27, 1, 1, "Ounce = ", "Tablespoons", "2"},
    {27, 1, 2, "Ounce = ", "Tablespoons", "2"},
    {27, 1, 3, "Ounce = ", "Tablespoons", "2"},
    {27, 1, 4, "Ounce = ", "Tablespoons", "2"},
    {27, 1, 5, "Ounce = ", "Tablespoons", "2"},
    {27, 7.3, 1, "Ounces = ", "Tablespoons", "14.6"},
    {27, 7.3, 2, "Ounces = ", "Tablespoons", "15"},
    {27, 7.3, 3, "Ounces = ", "Tablespoons", "14.6"},
    {27, 7.3, 4, "Ounces = ", "Tablespoons", "14.6"},
    {27, 7.3, 5, "Ounces = ", "Tablespoons", "14.6"},
    {28, 1, 1, "Stick (1/4 lb.) = ", "Cups", ".5"},
    {28, 1, 2, "Stick (1/4 lb.) = ", "Cup", "1"},
    {28, 1, 3, "Stick (1/4 lb.) = ", "Cups", ".5"},
    {28, 1, 4, "Stick (1/4 lb.) = ", "Cups", ".5"},
    {28, 1, 5, "Stick (1/4 lb.) = ", "Cups", ".5"},
    {28, 7.3, 1, "Stick (1/4 lb.) = ", "Cups", "3.65"},
    {28, 7.3, 2, "Stick (1/4 lb.) = ", "Cups", "4"},
    {28, 7.3, 3, "Stick (1/4 lb.) = ", "Cups", "3.7"},
    {28, 7.3, 4, "Stick (1/4 lb.) = ", "Cups", "3.65"},
    {28, 7.3, 5, "Stick (1/4 lb.) = ", "Cups", "3.65"},
    {29, 1, 1, "Bread Slice = ", "Cup(s) Soft Bread Crumbs", ".667"},
    {29, 1, 2, "Bread Slice = ", "Cup(s) Soft Bread Crumb", "1"},
    {29, 1, 3, "Bread Slice = ", "Cup(s) Soft Bread Crumbs", ".7"},
    {29, 1, 4, "Bread Slice = ", "Cup(s) Soft Bread Crumbs", ".67"},
    {29, 1, 5, "Bread Slice = ", "Cup(s) Soft Bread Crumbs", ".667"},
    {29, 7.3, 1, "Bread Slices = ", "Cup(s) Soft Bread Crumbs", "4.8691"},
    {29, 7.3, 2, "Bread Slices = ", "Cup(s) Soft Bread Crumbs", "5"},
    {29, 7.3, 3, "Bread Slices = ", "Cup(s) Soft Bread Crumbs", "4.9"},
    {29, 7.3, 4, "Bread Slices = ", "Cup(s) Soft Bread Crumbs", "4.87"},
    {29, 7.3, 5, "Bread Slices = ", "Cup(s) Soft Bread Crumbs", "4.869"},
    {30, 1, 1, "Bread Slice = ", "Cup(s) Fine Dry Bread Crumbs", ".25"},
    {30, 1, 2, "Bread Slice = ", "Cup(s) Fine Dry Bread Crumbs", "0"},
    {30, 1, 3, "Bread Slice = ", "Cup(s) Fine Dry Bread Crumbs", ".3"},
    {30, 1, 4, "Bread Slice = ", "Cup(s) Fine Dry Bread Crumbs", ".25"},
    {30, 1, 5, "Bread Slice = ", "Cup(s) Fine Dry Bread Crumbs", ".25"},
    {30, 7.3, 1, "Bread Slices = ", "Cup(s) Fine Dry Bread Crumbs", "1.825"},
    {30, 7.3, 2, "Bread Slices = ", "Cup(s) Fine Dry Bread Crumbs", "2"},
    {30, 7.3, 3, "Bread Slices = ", "Cup(s) Fine Dry Bread Crumbs", "1.8"},
    {30, 7.3, 4, "Bread Slices = ", "Cup(s) Fine Dry Bread Crumbs", "1.83"},
    {30, 7.3, 5, "Bread Slices = ", "Cup(s) Fine Dry Bread Crumbs", "1.825"},
    {31, 1, 1, "Lemon = ", "Tablespoons", "3"},
    {31, 1, 2, "Lemon = ", "Tablespoons", "3"},
    {31, 1, 3, "Lemon = ", "Tablespoons", "3"},
    {31, 1, 4, "Lemon = ", "Tablespoons", "3"},
    {31, 1, 5, "Lemon = ", "Tablespoons", "3"},
    {31, 7.3, 1, "Lemons = ", "Tablespoons", "21.9"},
    {31, 7.3, 2, "Lemons = ", "Tablespoons", "22"},
    {31, 7.3, 3, "Lemons = ", "Tablespoons", "21.9"},
    {31, 7.3, 4, "Lemons = ", "Tablespoons", "21.9"},
    {31, 7.3, 5, "Lemons = ", "Tablespoons", "21.9"},
    {32, 1, 1, "Lemon = ", "Teaspoon", "1"},
    {32, 1, 2, "Lemon = ", "Teaspoon", "1"},
    {32, 1, 3, "Lemon = ", "Teaspoon", "1"},
    {32, 1, 4, "Lemon = ", "Teaspoon", "1"},
    {32, 1, 5, "Lemon = ", "Teaspoon", "1"},
    {32, 7.3, 1, "Lemons = ", "Teaspoons", "7.3"},
    {32, 7.3, 2, "Lemons = ", "Teaspoons", "7"},
    {32, 7.3, 3, "Lemons = ", "Teaspoons", "7.3"},
    {32, 7.3, 4, "Lemons = ", "Teaspoons", "7.3"},
    {32, 7.3, 5, "Lemons = ", "Teaspoons", "7.3"},
    {33, 1, 1, "Orange = ", "Cups", ".334"},
    {33, 1, 2, "Orange = ", "Cups", "0"},
    {33, 1, 3, "Orange = ", "Cups", ".3"},
    {33, 1, 4, "Orange = ", "Cups", ".33"},
    {33, 1, 5, "Orange = ", "Cups", ".334"},
    {33, 7.3, 1, "Oranges = ", "Cups", "2.4382"},
    {33, 7.3, 2, "Oranges = ", "Cups", "2"},
    {33, 7.3, 3, "Oranges = ", "Cups", "2.4"},
    {33, 7.3, 4, "Oranges = ", "Cups", "2.44"},
    {33, 7.3, 5, "Oranges = ", "Cups", "2.438"},
    {34, 1, 1, "Orange = ", "Teaspoons", "2"},
    {34, 1, 2, "Orange = ", "Teaspoons", "2"},
    {34, 1, 3, "Orange = ", "Teaspoons", "2"},
    {34, 1, 4, "Orange = ", "Teaspoons", "2"},
    {34, 1, 5, "Orange = ", "Teaspoons", "2"},
    {34, 7.3, 1, "Oranges = ", "Teaspoons", "14.6"},
    {34, 7.3, 2, "Oranges = ", "Teaspoons", "15"},
    {34, 7.3, 3, "Oranges = ", "Teaspoons", "14.6"},
    {34, 7.3, 4, "Oranges = ", "Teaspoons", "14.6"},
    {34, 7.3, 5, "Oranges = ", "Teaspoons", "14.6"},
    {35, 1, 1, "Medium Apple = ", "Cup", "1"},
    {35, 1, 2, "Medium Apple = ", "Cup", "1"},
    {35, 1, 3, "Medium Apple = ", "Cup", "1"},
    {35, 1, 4, "Medium Apple = ", "Cup", "1"},
    {35, 1, 5, "Medium Apple = ", "Cup", "1"},
    {35, 7.3, 1, "Medium Apples = ", "Cups", "7.3"},
    {35, 7.3, 2, "Medium Apples = ", "Cups", "7"},
    {35, 7.3, 3, "Medium Apples = ", "Cups", "7.3"},
    {35, 7.3, 4, "Medium Apples = ", "Cups", "7.3"},
    {35, 7.3, 5, "Medium Apples = ", "Cups", "7.3"},
    {36, 1, 1, "Medium Banana = ", "Cups", ".334"},
    {36, 1, 2, "Medium Banana = ", "Cups", "0"},
    {36, 1, 3, "Medium Banana = ", "Cups", ".3"},
    {36, 1, 4, "Medium Banana = ", "Cups", ".33"},
    {36, 1, 5, "Medium Banana = ", "Cups", ".334"},
    {36, 7.3, 1, "Medium Bananas = ", "Cups", "2.4382"},
    {36, 7.3, 2, "Medium Bananas = ", "Cups", "2"},
    {36, 7.3, 3, "Medium Bananas = ", "Cups", "2.4"},
    {36, 7.3, 4, "Medium Bananas = ", "Cups", "2.44"},
    {36, 7.3, 5, "Medium Bananas = ", "Cups", "2.438"},
    {37, 1, 1, "Medium Onion = ", "Cups", ".5"},
    {37, 1, 2, "Medium Onion = ", "Cup", "1"},
    {37, 1, 3, "Medium Onion = ", "Cups", ".5"},
    {37, 1, 4, "Medium Onion = ", "Cups", ".5"},
    {37, 1, 5, "Medium Onion = ", "Cups", ".5"},
    {37, 7.3, 1, "Medium Onions = ", "Cups", "3.65"},
    {37, 7.3, 2, "Medium Onions = ", "Cups", "4"},
    {37, 7.3, 3, "Medium Onions = ", "Cups", "3.7"},
    {37, 7.3, 4, "Medium Onions = ", "Cups", "3.65"},
    {37, 7.3, 5, "Medium Onions = ", "Cups", "3.65"},
    {38, 1, 1, "Gram = ", "Ounces", ".035274"},
    {38, 1, 2, "Gram = ", "Ounces", "0"},
    {38, 1, 3, "Gram = ", "Ounces", "0.0"},
    {38, 1, 4, "Gram = ", "Ounces", ".04"},
    {38, 1, 5, "Gram = ", "Ounces", ".035"},
    {38, 7.3, 1, "Grams = ", "Ounces", ".2575002"},
    {38, 7.3, 2, "Grams = ", "Ounces", "0"},
    {38, 7.3, 3, "Grams = ", "Ounces", ".3"},
    {38, 7.3, 4, "Grams = ", "Ounces", ".26"},
    {38, 7.3, 5, "Grams = ", "Ounces", ".258"},
    {41, 1, 1, "Ounce = ", "Grams", "28.349523"},
    {41, 1, 2, "Ounce = ", "Grams", "28"},
    {41, 1, 3, "Ounce = ", "Grams", "28.3"},
    {41, 1, 4, "Ounce = ", "Grams", "28.35"},
    {41, 1, 5, "Ounce = ", "Grams", "28.35"},
    {41, 7.3, 1, "Ounces = ", "Grams", "206.9515179"},
    {41, 7.3, 2, "Ounces = ", "Grams", "207"},
    {41, 7.3, 3, "Ounces = ", "Grams", "207"},
    {41, 7.3, 4, "Ounces = ", "Grams", "206.95"},
    {41, 7.3, 5, "Ounces = ", "Grams", "206.952"},
    {44, 1, 1, "Quart = ", "Gallons", ".25"},
    {44, 1, 2, "Quart = ", "Gallons", "0"},
    {44, 1, 3, "Quart = ", "Gallons", ".3"},
    {44, 1, 4, "Quart = ", "Gallons", ".25"},
    {44, 1, 5, "Quart = ", "Gallons", ".25"},
    {44, 7.3, 1, "Quarts = ", "Gallons", "1.825"},
    {44, 7.3, 2, "Quarts = ", "Gallons", "2"},
    {44, 7.3, 3, "Quarts = ", "Gallons", "1.8"},
    {44, 7.3, 4, "Quarts = ", "Gallons", "1.83"},
    {44, 7.3, 5, "Quarts = ", "Gallons", "1.825"},
    {45, 1, 1, "Gallon = ", "Quarts", "4"},
    {45, 1, 2, "Gallon = ", "Quarts", "4"},
    {45, 1, 3, "Gallon = ", "Quarts", "4"},
    {45, 1, 4, "Gallon = ", "Quarts", "4"},
    {45, 1, 5, "Gallon = ", "Quarts", "4"},
    {45, 7.3, 1, "Gallons = ", "Quarts", "29.2"},
    {45, 7.3, 2, "Gallons = ", "Quarts", "29"},
    {45, 7.3, 3, "Gallons = ", "Quarts", "29.2"},
    {45, 7.3, 4, "Gallons = ", "Quarts", "29.2"},
    {45, 7.3, 5, "Gallons = ", "Quarts", "29.2"},
    {49, 1, 1, "Pound = ", "Cups", "4"},
    {49, 1, 2, "Pound = ", "Cups", "4"},
    {49, 1, 3, "Pound = ", "Cups", "4"},
    {49, 1, 4, "Pound = ", "Cups", "4"},
    {49, 1, 5, "Pound = ", "Cups", "4"},
    {49, 7.3, 1, "Pounds = ", "Cups", "29.2"},
    {49, 7.3, 2, "Pounds = ", "Cups", "29"},
    {49, 7.3, 3, "Pounds = ", "Cups", "29.2"},
    {49, 7.3, 4, "Pounds = ", "Cups", "29.2"},
    {49, 7.3, 5, "Pounds = ", "Cups", "29.2"},
    {50, 1, 1, "Egg Yolk = ", "Cups", ".0834"},
    {50, 1, 2, "Egg Yolk = ", "Cups", "0"},
    {50, 1, 3, "Egg Yolk = ", "Cups", ".1"},
    {50, 1, 4, "Egg Yolk = ", "Cups", ".08"},
    {50, 1, 5, "Egg Yolk = ", "Cups", ".083"},
    {50, 7.3, 1, "Egg Yolks = ", "Cups", ".60882"},
    {50, 7.3, 2, "Egg Yolks = ", "Cup", "1"},
    {50, 7.3, 3, "Egg Yolks = ", "Cups", ".6"},
    {50, 7.3, 4, "Egg Yolks = ", "Cups", ".61"},
    {50, 7.3, 5, "Egg Yolks = ", "Cups", ".609"},
    {51, 1, 1, "Egg White = ", "Cups", ".1"},
    {51, 1, 2, "Egg White = ", "Cups", "0"},
    {51, 1, 3, "Egg White = ", "Cups", ".1"},
    {51, 1, 4, "Egg White = ", "Cups", ".1"},
    {51, 1, 5, "Egg White = ", "Cups", ".1"},
    {51, 7.3, 1, "Egg Whites = ", "Cups", ".73"},
    {51, 7.3, 2, "Egg Whites = ", "Cup", "1"},
    {51, 7.3, 3, "Egg Whites = ", "Cups", ".7"},
    {51, 7.3, 4, "Egg Whites = ", "Cups", ".73"},
    {51, 7.3, 5, "Egg Whites = ", "Cups", ".73"},
};

TEST(ConversionTable, EveryOptionInEveryRoundingMode)
{
    ASSERT_EQ(std::size(kSingleRows), 43u * 2 * 5);
    for (const SingleRow& row : kSingleRows) {
        const SingleConversion single = ConvertSingle(Option(row.index), row.entry, static_cast<RoundMode>(row.mode));
        const auto where = ::testing::Message() << "option " << row.index << " entry " << row.entry << " mode " << row.mode;
        EXPECT_EQ(single.resultText, Q(row.result)) << where;
        EXPECT_EQ(single.fromLabel, Q(row.fromLabel)) << where;
        EXPECT_EQ(single.toLabel, Q(row.toLabel)) << where;
    }
}

// ---- Rounding on the text -------------------------------------------------------

TEST(ConversionRounding, Rows)
{
    struct Row {
        const char* name;
        const char* text;
        RoundMode mode;
        const char* expected;
    };
    const Row rows[] = {
        {"no rounding leaves the text", "1.23456", RoundMode::None, "1.23456"},
        {"whole adds a half", "2.5", RoundMode::Whole, "3"},
        {"whole drops below a half", "2.49", RoundMode::Whole, "2"},
        {"whole rounds a negative to the nearest", "-17.2222222222222", RoundMode::Whole, "-17"},
        {"whole of a small fraction is 0", "0.3334", RoundMode::Whole, "0"},
        {"tenth", "2.43382", RoundMode::Tenth, "2.4"},
        {"tenth rounds up", "0.0625", RoundMode::Tenth, "0.1"},
        {"tenth carry keeps one digit less", "9.96", RoundMode::Tenth, "10."},
        {"hundredth carry keeps one digit less", "9.996", RoundMode::Hundredth, "10.0"},
        {"thousandth", "206.951518", RoundMode::Thousandth, "206.952"},
        {"thousandth carry", "99.9996", RoundMode::Thousandth, "100.00"},
        {"no point, no change (tenth)", "2", RoundMode::Tenth, "2"},
        {"no point, no change (thousandth)", "1000", RoundMode::Thousandth, "1000"},
        {"short fraction stays short", "0.5", RoundMode::Thousandth, "0.500"},
        {"negative moves toward zero", "-17.2222222222222", RoundMode::Tenth, "-17.1"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(RoundResultText(Q(row.text), row.mode), Q(row.expected)) << row.name;
}

TEST(ConversionRounding, CarryGivesTenInTheResultPanel)
{
    EXPECT_EQ(ResultPanelText(QStringLiteral("10.")), u"10");
    EXPECT_EQ(ConvertSingle(Option(0), 9.96, RoundMode::Tenth).resultText, u"10");
}

TEST(ConversionRounding, MenuCaptions)
{
    EXPECT_EQ(RoundModeCaption(RoundMode::None), u"&No Rounding");
    EXPECT_EQ(RoundModeCaption(RoundMode::Whole), u"&Whole Number");
    EXPECT_EQ(RoundModeCaption(RoundMode::Tenth), u"&1/10th");
    EXPECT_EQ(RoundModeCaption(RoundMode::Hundredth), u"1/100&th");
    EXPECT_EQ(RoundModeCaption(RoundMode::Thousandth), u"1/1000t&h");
}

// ---- Singular units ---------------------------------------------------------------

TEST(ConversionUnits, SingularRows)
{
    const char* rows[][2] = {
        {"Cups", "Cup"},
        {"Tablespoons", "Tablespoon"},
        {"Ounces", "Ounce"},
        {"8 oz. Cans", "8 oz. Can"},
        {"Bread Slices", "Bread Slice"},
        {"Cup(s) Soft Bread Crumbs", "Cup(s) Soft Bread Crumb"},
        {"Degrees Celcius", "Degrees Celcius"},
        {"Degrees Fahrenheit", "Degrees Fahrenheit"},
        {"lb(s). Walnuts (In Shells)", "lb(s). Walnuts (In Shells)"},
        {"Stick (1/4 lb.)", "Stick (1/4 lb.)"},
        {"Tablespoon(s) Cornstarch", "Tablespoon(s) Cornstarch"},
        {"Full Square", "Full Square"},
        {"Inches", "Inch"},
        {"Square Inches", "Square Inch"},
        {"Feet", "Foot"},
        {"Square Feet", "Square Foot"},
        {"Cubic Feet", "Cubit Foot"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(SingularUnit(Q(row[0])), Q(row[1])) << row[0];
}

TEST(ConversionUnits, ResultOfExactlyOneIsSingular)
{
    const SingleConversion single = ConvertSingle(Option(13), 8, RoundMode::None);
    EXPECT_EQ(single.fromLabel, u"Ounces = ");
    EXPECT_EQ(single.toLabel, u"Cup");
    EXPECT_EQ(single.resultText, u"1");
}

TEST(ConversionUnits, CelsiusStaysPluralForOne)
{
    EXPECT_EQ(ConvertSingle(Option(18), 1, RoundMode::None).fromLabel, u"Degrees Celcius = ");
}

// ---- The entry box ----------------------------------------------------------------

TEST(ConversionEntry, ReadingRows)
{
    struct Row {
        const char* name;
        const char* box;
        int option;
        double value;
        const char* shows;  // nullptr: the box keeps its text
    };
    const Row rows[] = {
        {"a plain number", "12", 12, 12, nullptr},
        {"a fraction", "2.5", 12, 2.5, nullptr},
        {"the numeric front", "3 cups", 12, 3, nullptr},
        {"thousands separator stops the number", "1,250", 12, 1, nullptr},
        {"no number", "abc", 12, 1, "1"},
        {"empty", "", 12, 1, "1"},
        {"empty temperature", "", 18, 0, "0"},
        {"zero", "0", 12, 1, "1"},
        {"negative", "-4", 12, 1, "1"},
        {"zero temperature", "0", 19, 0, "0"},
        {"negative temperature", "-40", 18, 1, "1"},
        {"positive temperature", "100", 18, 100, nullptr},
    };
    for (const Row& row : rows) {
        const EntryReading reading = ReadEntry(Q(row.box), row.option);
        EXPECT_EQ(reading.value, row.value) << row.name;
        if (row.shows) {
            EXPECT_EQ(reading.boxText, Q(row.shows)) << row.name;
        } else {
            EXPECT_FALSE(reading.boxText.has_value()) << row.name;
        }
    }
}

TEST(ConversionEntry, BoxRewriteRows)
{
    EXPECT_EQ(EntryBoxText(1), u"1");
    EXPECT_EQ(EntryBoxText(1250), u"1,250");
    EXPECT_EQ(EntryBoxText(1234567), u"1,234,567");
    EXPECT_EQ(EntryBoxText(2.5), u"2.5");
    EXPECT_EQ(EntryBoxText(0.25), u".25");
    EXPECT_EQ(EntryBoxText(1234.125), u"1,234.125");
    EXPECT_EQ(EntryBoxText(0), u"0");
}

TEST(ConversionEntry, ResultPanelRows)
{
    EXPECT_EQ(ResultPanelText(QStringLiteral("0")), u"0");
    EXPECT_EQ(ResultPanelText(QStringLiteral("0.0")), u"0.0");
    EXPECT_EQ(ResultPanelText(QStringLiteral("28349.523")), u"28,349.523");
    EXPECT_EQ(ResultPanelText(QStringLiteral("16000")), u"16,000");
    EXPECT_EQ(ResultPanelText(QStringLiteral("0.125")), u".125");
    EXPECT_EQ(ResultPanelText(QStringLiteral("-17.2222222222222")), u"-17.2222222222222");
}

// ---- Multiple entry -----------------------------------------------------------------

TEST(ConversionRange, Rules)
{
    struct Row {
        const char* name;
        double beginning;
        const char* ending;
        double from, to;
        const char* endingShows;
    };
    const Row rows[] = {
        {"in order", 2, "5", 2, 5, nullptr},
        {"empty ending is beginning plus 1", 3, "", 3, 4, "4"},
        {"zero ending", 3, "0", 3, 4, "4"},
        {"negative ending", 2.5, "-7", 2.5, 3.5, "3.5"},
        {"reversed", 9, "4", 4, 9, nullptr},
        {"exactly 1000 apart is kept", 1, "1001", 1, 1001, nullptr},
        {"1001 apart ends at beginning plus 999", 1, "1002", 1, 1000, "1000"},
        {"reversed and too long", 5000, "1", 1, 1000, "1000"},
        {"same value", 7, "7", 7, 7, nullptr},
    };
    for (const Row& row : rows) {
        const EntryRange range = ReadRange(row.beginning, Q(row.ending));
        EXPECT_EQ(range.beginning, row.from) << row.name;
        EXPECT_EQ(range.ending, row.to) << row.name;
        if (row.endingShows) {
            EXPECT_EQ(range.endingBoxText, Q(row.endingShows)) << row.name;
        } else {
            EXPECT_FALSE(range.endingBoxText.has_value()) << row.name;
        }
    }
}

QList<QStringList> Grid(int option, double beginning, double ending, RoundMode mode)
{
    QList<QStringList> cells;
    for (const ConversionRow& row : ConvertRange(Option(option), EntryRange{beginning, ending, {}}, mode))
        cells.append({row.amount, row.converted});
    return cells;
}

TEST(ConversionRange, GridRows)
{
    using L = QList<QStringList>;
    EXPECT_EQ(Grid(12, 2, 5, RoundMode::None), (L{{"2", "16."}, {"3", "24."}, {"4", "32."}, {"5", "40."}}));
    EXPECT_EQ(Grid(19, 30, 34, RoundMode::None),
              (L{{"30", "-1.11111111111111"}, {"31", "-.555555555555556"}, {"32", "0"}, {"33", ".555555555555556"},
                 {"34", "1.11111111111111"}}));
    EXPECT_EQ(Grid(19, 30, 34, RoundMode::Whole), (L{{"30", "-1"}, {"31", "-1"}, {"32", "0"}, {"33", "1"}, {"34", "1"}}));
    EXPECT_EQ(Grid(19, 30, 34, RoundMode::Tenth),
              (L{{"30", "-1."}, {"31", "-.5"}, {"32", "0"}, {"33", ".6"}, {"34", "1.1"}}));
    EXPECT_EQ(Grid(41, 1.5, 4, RoundMode::Hundredth), (L{{"1.5", "42.52"}, {"2.5", "70.87"}, {"3.5", "99.22"}}));
    EXPECT_EQ(Grid(25, 1, 3, RoundMode::Thousandth), (L{{"1", ".017"}, {"2", ".033"}, {"3", ".05"}}));
    // The whole-number mode shows the amounts whole too.
    EXPECT_EQ(Grid(8, 1.5, 3.5, RoundMode::Whole), (L{{"2", "1"}, {"3", "1"}, {"4", "1"}}));
    EXPECT_EQ(Grid(18, 0, 1, RoundMode::None), (L{{"0", "32."}, {"1", "33.8"}}));
    EXPECT_EQ(Grid(11, 999, 1001, RoundMode::Whole), (L{{"999", "15,984"}, {"1,000", "16,000"}, {"1,001", "16,016"}}));
}

// ---- Texts of the screen ----------------------------------------------------------

TEST(ConversionTexts, CaptionsAndMessage)
{
    EXPECT_EQ(EntryCaption(false), u"Conversion Amount:");
    EXPECT_EQ(EntryCaption(true), u"Beginning Entry:");
    EXPECT_EQ(EndingCaption(), u"Ending Amount:");
    EXPECT_EQ(MultipleEntryHeading(), u"   Amount Converted                 =                Converted Amount    ");
    EXPECT_EQ(InputInformationTitle(), u"Input Information");
    EXPECT_EQ(InputInformationText(), u"After entering data, select action desired\nfrom displayed option buttons.");
}

} // namespace
