// Trimming and fixed widths as the old runtime did them: only spaces count
// as blanks.
#include "common/blanktext.h"

#include <gtest/gtest.h>

TEST(BlankText, TrimRemovesSpacesOnlyAndLeavesTabsAndLineBreaks)
{
    EXPECT_EQ(LTrim(u"  a b  "), "a b  ");
    EXPECT_EQ(RTrim(u"  a b  "), "  a b");
    EXPECT_EQ(Trim(u"  a b  "), "a b");
    EXPECT_EQ(Trim(u"\ta\t"), "\ta\t");
    EXPECT_EQ(Trim(u" \r\n "), "\r\n");
    EXPECT_EQ(Trim(u"    "), "");
    EXPECT_EQ(Trim(u""), "");
}

TEST(BlankText, ABlankTextHoldsNothingButSpaces)
{
    EXPECT_TRUE(IsBlank(u""));
    EXPECT_TRUE(IsBlank(u"   "));
    EXPECT_FALSE(IsBlank(u" x "));
    EXPECT_FALSE(IsBlank(u"\t"));
}

TEST(BlankText, AFixedWidthIsFilledWithSpacesOrCut)
{
    EXPECT_EQ(FixedWidth(u"Tea", 6), "Tea   ");
    EXPECT_EQ(FixedWidth(u"Teaspoon", 3), "Tea");
    EXPECT_EQ(FixedWidth(u"", 2), "  ");
    EXPECT_EQ(PaddedTo(u"Tea", 5), "Tea  ");
    EXPECT_EQ(PaddedTo(u"Teaspoon", 3), "Teaspoon") << "a longer text stays whole";
}
