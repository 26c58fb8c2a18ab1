// The meal lists: order, capacity, the rule for a line offered to a list,
// the list files byte for byte, and the list editor's texts.
#include "planner/logic/menuitemlist.h"
#include "test_bytes.h"

#include "temp_program_folder.h"
#include "test_data.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

QStringList Numbered(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items.append(QStringLiteral("Dish %1").arg(i, 4, 10, QLatin1Char('0')));
    return items;
}

} // namespace

TEST(MenuItemList, TheFilesAreNamedByMeal)
{
    EXPECT_EQ(MenuListFileName(Meal::Breakfast), QStringLiteral("Menu1.Fil"));
    EXPECT_EQ(MenuListFileName(Meal::Lunch), QStringLiteral("Menu2.Fil"));
    EXPECT_EQ(MenuListFileName(Meal::Dinner), QStringLiteral("Menu3.Fil"));
}

TEST(MenuItemList, ALoadedListIsInAlphabeticalOrderWithoutRegardToCase)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    const MenuItemList list = MenuItemList::Load(Meal::Breakfast);
    EXPECT_EQ(list.items(), (QStringList{"bacon", "Bagel", QStringLiteral("Caf\u00e9 cr\u00e8me"), "eggs and toast",
                                         "Oatmeal", "Pancakes", "Waffles"}));
}

TEST(MenuItemList, TheListFileIsFoundInAnyCase)
{
    TempProgramFolder folder;
    folder.writeBytes(QStringLiteral("menu3.fil"), QuotedLineBytes({"Stew"}));
    EXPECT_EQ(MenuItemList::Load(Meal::Dinner).items(), QStringList{"Stew"});
    ASSERT_TRUE(MenuItemList({"Stew", "Roast"}).save(Meal::Dinner));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("menu3.fil")), QuotedLineBytes({"Roast", "Stew"}));
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Menu3.Fil"))));
}

TEST(MenuItemList, AMissingListIsEmpty)
{
    TempProgramFolder folder;
    EXPECT_EQ(MenuItemList::Load(Meal::Lunch).count(), 0);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Menu2.Fil")))) << "reading creates nothing";
}

TEST(MenuItemList, AddingWritesTheWholeListInItsOrderByteForByte)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    MenuItemList list = MenuItemList::Load(Meal::Breakfast);
    EXPECT_EQ(OfferLine(list, QStringLiteral("French toast  ")), LineOffer::Added);
    ASSERT_TRUE(list.save(Meal::Breakfast));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("Menu1.Fil")),
              QByteArray("\"bacon\"\r\n\"Bagel\"\r\n\"Caf\xe9 cr\xe8me\"\r\n\"eggs and toast\"\r\n\"French toast\"\r\n"
                         "\"Oatmeal\"\r\n\"Pancakes\"\r\n\"Waffles\"\r\n"));
}

TEST(MenuItemList, ALongerFileLoadsItsFirstThousandItems)
{
    TempProgramFolder folder;
    QStringList items = Numbered(1005);
    std::reverse(items.begin(), items.end());
    folder.writeBytes(QStringLiteral("Menu2.Fil"), QuotedLineBytes(items));
    const MenuItemList list = MenuItemList::Load(Meal::Lunch);
    ASSERT_EQ(list.count(), 1000);
    EXPECT_EQ(list.items().first(), QStringLiteral("Dish 0005")) << "the file's first thousand, sorted";
    EXPECT_EQ(list.items().last(), QStringLiteral("Dish 1004"));
}

TEST(MenuItemList, AFullListTakesNoMoreSilently)
{
    MenuItemList list(Numbered(1000));
    ASSERT_TRUE(list.isFull());
    EXPECT_FALSE(list.insert(QStringLiteral("Aardvark stew")));
    EXPECT_EQ(OfferLine(list, QStringLiteral("Aardvark stew")), LineOffer::ListFull);
    EXPECT_EQ(list.count(), 1000);
    EXPECT_EQ(list.find(QStringLiteral("Aardvark stew")), -1);
}

// Edge case: a list item of one character typed in a line is kept in the day
// but never enters the list.
TEST(MenuItemList, AOneCharacterLineNeverEntersTheList)
{
    MenuItemList list({"Toast"});
    EXPECT_EQ(OfferLine(list, QStringLiteral("X")), LineOffer::TooShort);
    EXPECT_EQ(OfferLine(list, QStringLiteral("X    ")), LineOffer::TooShort) << "right-trimmed first";
    EXPECT_EQ(OfferLine(list, QString()), LineOffer::TooShort);
    EXPECT_EQ(list.items(), QStringList{"Toast"});
    EXPECT_EQ(OfferLine(list, QStringLiteral("Xi")), LineOffer::Added);
}

// Edge case: an item typed in another case than its list entry is not added
// a second time.
TEST(MenuItemList, AnItemInAnotherCaseIsNotAddedAgain)
{
    MenuItemList list({"Eggs Benedict"});
    EXPECT_EQ(OfferLine(list, QStringLiteral("EGGS benedict ")), LineOffer::Listed);
    EXPECT_EQ(list.items(), QStringList{"Eggs Benedict"});
    EXPECT_EQ(list.find(QStringLiteral("eggs BENEDICT")), 0);
}

TEST(MenuItemList, RemovingFindsTheItemInAnyCase)
{
    MenuItemList list({"Apple pie", "Banana bread", "Cherry tart"});
    EXPECT_TRUE(list.remove(QStringLiteral("BANANA BREAD")));
    EXPECT_EQ(list.items(), (QStringList{"Apple pie", "Cherry tart"}));
    EXPECT_FALSE(list.remove(QStringLiteral("Doughnut")));
    EXPECT_EQ(list.count(), 2);
}

TEST(MenuItemList, ItemsEqualButForCaseKeepTheirOrder)
{
    MenuItemList list({"soup", "Soup", "SOUP"});
    EXPECT_EQ(list.items(), (QStringList{"soup", "Soup", "SOUP"}));
    ASSERT_TRUE(list.insert(QStringLiteral("sOUP")));
    EXPECT_EQ(list.items().last(), QStringLiteral("sOUP"));
}

TEST(MenuItemList, AListThatCannotBeWrittenLeavesTheOldFile)
{
    TempProgramFolder folder;
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("Menu1.Fil")));
    EXPECT_FALSE(MenuItemList({"Toast"}).save(Meal::Breakfast));
}

TEST(MenuItemList, TheEditorNamesEachMealsList)
{
    EXPECT_EQ(EditListHeading(Meal::Breakfast), QStringLiteral("Edit Breakfast List"));
    EXPECT_EQ(EditListHeading(Meal::Lunch), QStringLiteral("Edit Lunch List"));
    EXPECT_EQ(EditListHeading(Meal::Dinner), QStringLiteral("Edit Dinner List"));
    EXPECT_EQ(EditListInstructions(Meal::Lunch),
              QStringLiteral("To Add a New Lunch Item:\nType New Lunch Item and then\nPress the Enter Key.\n\n"
                             "To Delete an Existing Lunch Item:\nFirst select Lunch Item from Drop-Down list.\n"
                             "Then Click Delete Command Button"));
    EXPECT_EQ(EditListInstructions(Meal::Dinner).split(u'\n').size(), 7);
    EXPECT_TRUE(EditListInstructions(Meal::Breakfast).startsWith(QStringLiteral("To Add a New Breakfast Item:")));
}
