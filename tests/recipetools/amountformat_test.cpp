// The kitchen form of a stored decimal amount, as a table of named rows, and
// the whole range the calculator can produce: every hundredth of every whole
// part from 0 to 999 lands where the fraction table says.
#include "recipetools/logic/amountformat.h"
#include "recipetools/logic/recipelifecycle.h"
#include "fraction_lines.h"

#include <QString>
#include <cmath>
#include <gtest/gtest.h>

namespace {

struct FormatRow {
    const char* label;
    QString decimal;
    QString shown;
};

TEST(FormatAmount, TableOfAmounts)
{
    const FormatRow rows[] = {
        // The examples of the recipe screen and the calculator.
        {"a third as the help says to type it", ".33", "1/3"},
        {"a third as the drop list writes it", ".34", "1/3"},
        {"one and a half", "1.5", "1 1/2"},
        {"an eighth", ".125", "1/8"},
        {"one and a third from the drop list", "1.34", "1 1/3"},
        {"above .85 goes up to the next whole, the blank stays", "2.9", "3 "},
        {"below .1 has no fraction text, the blank stays", "3.05", "3 "},
        {"below .1 with no whole part is nothing", ".04", ""},
        {"a whole number alone", "3", "3"},
        {"an empty amount", "", ""},
        {"a blank amount", "     ", ""},
        {"1.1 is an eighth over one", "1.1", "1 1/8"},
        {"the calculator's 999.99 snaps to 1000", "1000", "1000"},
        {"a calculated 2.33", "2.33", "2 1/3"},
        {"a calculated .67", ".67", "2/3"},
        // The edges of each line of the table.
        {"exactly .1 is an eighth", ".1", "1/8"},
        {"exactly .2 is a quarter", ".2", "1/4"},
        {"exactly .3 is a third", ".3", "1/3"},
        {"exactly .4 is still a third", ".4", "1/3"},
        {".41 is a half", ".41", "1/2"},
        {"exactly .6 is still a half", ".6", "1/2"},
        {"exactly .7 is still two thirds", ".7", "2/3"},
        {"exactly .85 is still three quarters", ".85", "3/4"},
        {".86 is one", ".86", "1 "},
        {".99 is one", ".99", "1 "},
        {"zero", "0", ""},
        {"zero with decimals", "0.00", ""},
        {"a leading zero reads the same", "0.5", "1/2"},
        {"leading blanks are skipped", "  1.25", "1 1/4"},
        {"text after the number is ignored", "2.5 cups", "2 1/2"},
        {"not a number", "abc", ""},
        {"a fraction is not a decimal: reading stops at the blank, 1 1/2 reads 1", "1 1/2", "1"},
        {"the largest five-character amount", "99999", "99999"},
    };
    for (const FormatRow& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(FormatAmount(row.decimal), row.shown) << row.decimal.toStdString();
    }
}

TEST(FormatAmount, TooLargeForASingleShowsNothing)
{
    EXPECT_EQ(FormatAmount(u"1E+300"), "");
    EXPECT_EQ(FormatAmount(u"-1E+300"), "");
}

// What the fraction table shows for whole part `whole` and hundredths
// `hundredths` of a raw stored amount.
QString ExpectedForHundredths(int whole, int hundredths)
{
    const fraction_lines::CoveredLine line = fraction_lines::LineForHundredths(hundredths);
    const QString wholeText = QString::number(whole);
    if (line.nextWhole)
        return QString::number(whole + 1) + ' ';
    if (line.fractionText.isEmpty()) {
        if (whole == 0)
            return QString();
        return hundredths == 0 ? wholeText : wholeText + ' ';
    }
    return whole == 0 ? line.fractionText : wholeText + ' ' + line.fractionText;
}

TEST(FormatAmount, EveryHundredthOfWholePartsZeroTo999)
{
    int failures = 0;
    for (int whole = 0; whole <= 999; ++whole) {
        for (int hundredths = 0; hundredths <= 99; ++hundredths) {
            const QString decimal = fraction_lines::DecimalOf(whole, hundredths);
            const QString expected = ExpectedForHundredths(whole, hundredths);
            const QString shown = FormatAmount(decimal);
            if (shown != expected && ++failures <= 20)
                ADD_FAILURE() << decimal.toStdString() << " shows \"" << shown.toStdString() << "\", expected \""
                              << expected.toStdString() << '"';
        }
    }
    EXPECT_EQ(failures, 0);
}

TEST(SplitAmount, WholePartTruncatesAndTheRestIsASingle)
{
    EXPECT_EQ(SplitAmount(1.5).wholePart, 1.0f);
    EXPECT_EQ(SplitAmount(1.5).fractionPart, 0.5f);
    EXPECT_EQ(SplitAmount(3.0).fractionPart, 0.0f);
    EXPECT_EQ(SplitAmount(0.33).wholePart, 0.0f);
    EXPECT_EQ(SplitAmount(0.33).fractionPart, 0.33f);
    // The double rest of 999.4 is 0.39999999999997726; as a single it is .4f.
    EXPECT_LT(999.4 - 999.0, 0.4);
    EXPECT_EQ(SplitAmount(999.4).fractionPart, 0.4f);
    EXPECT_EQ(SplitAmount(999.4).wholePart, 999.0f);
    // Toward zero, not down.
    EXPECT_EQ(SplitAmount(-1.5).wholePart, -1.0f);
    EXPECT_EQ(SplitAmount(-1.5).fractionPart, -0.5f);
}

struct FractionRow {
    const char* label;
    float fractionPart;
    QString text;
};

TEST(FractionText, StrictBelowPoint3InclusiveFromPoint4)
{
    const FractionRow rows[] = {
        {"zero", 0.0f, ""},
        {"just below .1", std::nextafter(0.1f, 0.0f), ""},
        {".1 exactly", 0.1f, "1/8"},
        {"just below .2", std::nextafter(0.2f, 0.0f), "1/8"},
        {".2 exactly", 0.2f, "1/4"},
        {"just below .3", std::nextafter(0.3f, 0.0f), "1/4"},
        {".3 exactly", 0.3f, "1/3"},
        {".4 exactly", 0.4f, "1/3"},
        {"just above .4", std::nextafter(0.4f, 1.0f), "1/2"},
        {".6 exactly", 0.6f, "1/2"},
        {"just above .6", std::nextafter(0.6f, 1.0f), "2/3"},
        {".7 exactly", 0.7f, "2/3"},
        {"just above .7", std::nextafter(0.7f, 1.0f), "3/4"},
        {".85 exactly", 0.85f, "3/4"},
        {"just above .85", std::nextafter(0.85f, 1.0f), ""},
        {"just below 1", std::nextafter(1.0f, 0.0f), ""},
        {"negative", -0.5f, ""},
    };
    for (const FractionRow& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(FractionText(row.fractionPart), row.text);
    }
}

TEST(FractionText, ConstantsAreSinglesNotDoubles)
{
    // The singles .4f, .6f and .85f lie just above the doubles .4, .6 and
    // .85; a rest of exactly .4 (rounded to a single) is a third only because
    // the inclusive tests compare with single constants too.
    ASSERT_GT(double(0.4f), 0.4);
    ASSERT_GT(double(0.6f), 0.6);
    ASSERT_GT(double(0.85f), 0.85);
    EXPECT_EQ(FractionText(0.4f), "1/3");
    EXPECT_EQ(FractionText(0.6f), "1/2");
    EXPECT_EQ(FractionText(0.85f), "3/4");
}

QStringList Decimals()
{
    QStringList decimals;
    for (const AmountPick& pick : AmountPicks())
        decimals << QString::fromLatin1(pick.decimal);
    return decimals;
}

TEST(AmountPickList, FourteenEntriesAndTheirDecimals)
{
    EXPECT_EQ(AmountPickTexts(), (QStringList{"1/8", "1/4", "1/3", "1/2", "2/3", "3/4", "1", "1 1/8", "1 1/4",
                                              "1 1/3", "1 1/2", "1 2/3", "1 3/4", "2"}));
    EXPECT_EQ(Decimals(), (QStringList{".125", ".25", ".34", ".5", ".67", ".75", "1", "1.125", "1.25", "1.34",
                                       "1.5", "1.67", "1.75", "2"}));
}

TEST(AmountPickList, EachDecimalShowsAsItsEntry)
{
    ASSERT_EQ(AmountPicks().size(), 14u);
    for (const AmountPick& pick : AmountPicks()) {
        SCOPED_TRACE(pick.fraction);
        EXPECT_EQ(FormatAmount(QString::fromLatin1(pick.decimal)), QString::fromLatin1(pick.fraction));
        // Every decimal fits the five characters of the record's amount field.
        EXPECT_LE(qstrlen(pick.decimal), uint(kAmountLength));
    }
}

} // namespace
