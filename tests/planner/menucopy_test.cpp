// The day as clipboard text, padded by a measurer: with the fixed measurer
// every character is as wide as every other, so the padding is counted in
// characters.
#include "planner/logic/menucopy.h"

#include "fixed_measurer.h"
#include "pinned_dates.h"

#include <gtest/gtest.h>

namespace {

// A measurer in which a blank is narrower than a letter, as in most fonts.
class NarrowBlanks final : public TextMeasurer {
public:
    double textWidth(const TextFont&, const QString& text) const override
    {
        double width = 0;
        for (const QChar c : text)
            width += c == u' ' ? 3 : 10;
        return width;
    }
    double lineHeight(const TextFont&) const override { return 100; }
};

} // namespace

TEST(MenuCopy, TheDayInColumnsPaddedToTheWidestLine)
{
    const PinnedDates dates(kUsa);
    MenuLines lines;
    lines[0] = QStringLiteral("Scrambled eggs");   // 14, wider than "Breakfast"
    lines[2] = QStringLiteral("Tea  ");
    lines[7] = QStringLiteral("Soup");              // "Lunch" is the widest of its column
    lines[14] = QStringLiteral("Roast beef");
    lines[16] = QStringLiteral("Trifle");
    const FixedMeasurer measurer;
    const QString text = MenuCopyText(QDate(2026, 4, 3), lines, measurer, TextFont{});
    EXPECT_EQ(text, QStringLiteral("Menu Planner for  Friday, April 3, 2026:\r\n"
                                   "\r\n"
                                   "Breakfast     \tLunch\tDinner\r\n"
                                   "\r\n"
                                   "Scrambled eggs\tSoup \tRoast beef\r\n"
                                   "Tea           \t     \tTrifle\r\n"));
}

TEST(MenuCopy, ARowWithThreeBlankLinesIsLeftOut)
{
    const PinnedDates dates(kBritain);
    MenuLines lines;
    lines[6] = QStringLiteral("Cocoa");
    const FixedMeasurer measurer;
    const QString text = MenuCopyText(QDate(2026, 4, 3), lines, measurer, TextFont{});
    EXPECT_EQ(text, QStringLiteral("Menu Planner for  Friday, 3 April 2026:\r\n\r\n"
                                   "Breakfast\tLunch\tDinner\r\n\r\n"
                                   "Cocoa    \t     \t\r\n"));
}

TEST(MenuCopy, PaddingFollowsTheMeasuredWidthNotTheCharacterCount)
{
    const PinnedDates dates(kUsa);
    MenuLines lines;
    lines[0] = QStringLiteral("Waffles and cream");  // 15 letters and 2 blanks: 156
    lines[1] = QStringLiteral("Jam");                 // 30: 42 blanks make it 156
    const NarrowBlanks measurer;
    const QStringList rows = MenuCopyText(QDate(2026, 4, 3), lines, measurer, TextFont{}).split(QStringLiteral("\r\n"));
    ASSERT_GE(rows.size(), 6);
    EXPECT_EQ(rows[5], QStringLiteral("Jam") + QString(42, u' ') + QStringLiteral("\t") + QString(17, u' ')
                           + QStringLiteral("\t"));
    EXPECT_EQ(rows[2].section(u'\t', 0, 0), QStringLiteral("Breakfast") + QString(22, u' '))
        << "90 and 22 blanks of 3 reach 156";
}
