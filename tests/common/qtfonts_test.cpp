#include "common/widgets/qtfonts.h"

#include <gtest/gtest.h>

TEST(QtFonts, EveryStyleGoesIntoTheQtFont)
{
    const QFont font = QFontOf(TextFont{QStringLiteral("Liberation Sans"), 13.5, true, true, true, true, 255});
    EXPECT_EQ(font.family(), QStringLiteral("Liberation Sans"));
    EXPECT_EQ(font.pointSizeF(), 13.5);
    EXPECT_TRUE(font.bold());
    EXPECT_TRUE(font.italic());
    EXPECT_TRUE(font.underline());
    EXPECT_TRUE(font.strikeOut());
    EXPECT_EQ(font.hintingPreference(), QFont::PreferNoHinting);
}

TEST(QtFonts, ASizeOfZeroOrLessReadsAsOnePoint)
{
    TextFont font;
    font.size = 0;
    EXPECT_EQ(QFontOf(font).pointSizeF(), 1);
    font.size = -4;
    EXPECT_EQ(QFontOf(font).pointSizeF(), 1);
}

TEST(QtFonts, TheWayBackKeepsEverythingAndTakesTheColour)
{
    const TextFont font{QStringLiteral("Liberation Serif"), 11, false, true, false, true, 0x800000};
    EXPECT_EQ(TextFontOf(QFontOf(font), 0x800000), font);
    EXPECT_EQ(TextFontOf(QFontOf(font), 0).color, 0);
}
