// The order of a sorted list box: whole texts, case ignored, equal texts in
// the order they came.
#include "common/listorder.h"

#include <gtest/gtest.h>

TEST(ListOrder, TextsSortCaseBlindByTheWholeText)
{
    QStringList texts{"pears", "Apples", "apple pie", "Apple", "banana"};
    SortListTexts(texts);
    EXPECT_EQ(texts, QStringList({"Apple", "apple pie", "Apples", "banana", "pears"}));
}

TEST(ListOrder, TextsThatDifferOnlyInCaseKeepTheirOrder)
{
    QStringList texts{"MILK", "milk", "Milk"};
    SortListTexts(texts);
    EXPECT_EQ(texts, QStringList({"MILK", "milk", "Milk"}));
    EXPECT_FALSE(ListTextLess(u"milk", u"MILK"));
    EXPECT_TRUE(ListTextLess(u"Ham", u"honey"));
}
