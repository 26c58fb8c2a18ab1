// The saved lists: names made from the date, the chooser's name checked and
// read back into a date under month-first and day-first systems, and the
// files byte for byte.
#include "shopping/logic/groceryentry.h"
#include "shopping/logic/listfiles.h"
#include "shopping/logic/shoppinglist.h"

#include "common/dates.h"
#include "test_data.h"
#include "temp_program_folder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

class ListFilesTest : public ::testing::Test {
protected:
    ListFilesTest() { SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~ListFilesTest() override { SetDateLocale(QLocale()); }

    TempProgramFolder folder;
};

} // namespace

TEST_F(ListFilesTest, AListIsNamedByItsDateDdMmmYy)
{
    EXPECT_EQ(ListFileBase(u"11/15/26"), "15Nov26");
    EXPECT_EQ(ListFileBase(u"9/3/2026"), "03Sep26");
    EXPECT_EQ(ListFileName(u"15Nov26"), "15Nov26.Lst");
    EXPECT_EQ(ListFileBase(u"not a date"), "");
    EXPECT_EQ(ListFileBase(u""), "");
}

TEST_F(ListFilesTest, TheReplaceQuestionHasThreeLinesAndTheNameInLowerCaseExtension)
{
    EXPECT_EQ(ReplaceListQuestion(u"15Nov26"),
              "15Nov26.lst\nThis file already already exists.\nDo you want to replace it?");
}

TEST_F(ListFilesTest, AChosenNameMustStartWithANumberAndEndInLst)
{
    EXPECT_TRUE(IsListFileName(u"15Nov26.Lst"));
    EXPECT_TRUE(IsListFileName(u"01JAN27.LST"));
    EXPECT_TRUE(IsListFileName(u"3x.lst"));
    EXPECT_FALSE(IsListFileName(u"Nov15.Lst")) << "Val is 0";
    EXPECT_FALSE(IsListFileName(u"00Nov26.Lst")) << "Val is 0";
    EXPECT_FALSE(IsListFileName(u"15Nov26.txt"));
    EXPECT_FALSE(IsListFileName(u""));
}

TEST_F(ListFilesTest, TheDateComesBackFromTheNameMonthFirst)
{
    EXPECT_EQ(DateBoxTextOfListName(u"15Nov26.Lst"), "11/15/26");
    EXPECT_EQ(DateBoxTextOfListName(u"03SEP26.LST"), "9/3/26");
}

TEST_F(ListFilesTest, TheDateComesBackFromTheNameDayFirst)
{
    SetDateLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    EXPECT_EQ(DateBoxTextOfListName(u"15Nov26.Lst"), "15/11/2026");
    EXPECT_EQ(ListFileBase(DateBoxTextOfListName(u"15Nov26.Lst")), "15Nov26") << "saved again under the same name";
}

TEST_F(ListFilesTest, ANameThatIsNoDateGivesItsComposedText)
{
    EXPECT_EQ(DateBoxTextOfListName(u"99Xyz26.Lst"), "Xyz/99/26");
}

TEST_F(ListFilesTest, ThreeItemsOnSixteenRowsAreFifteenPairsTwelveOfThemEmpty)
{
    ShoppingList list;
    list.load({MakeGroceryEntry(u"Milk", u"2 Gallons"), "Bread", MakeGroceryEntry(u"Eggs", u"1 Dozen")});
    ASSERT_TRUE(WriteListFile("15Nov26.Lst", list.fileValues()));
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), TestDataBytes("15Nov26.Lst"));
}

TEST_F(ListFilesTest, TheStoredListReadsBackIntoItsEntries)
{
    folder.copyIn(TestDataFile("15Nov26.Lst"));
    const ReadList read = ReadListFile("15nov26.lst");
    ASSERT_TRUE(read.opened);
    EXPECT_FALSE(read.tooLong);
    EXPECT_EQ(read.entries,
              QStringList({MakeGroceryEntry(u"Milk", u"2 Gallons"), "Bread", MakeGroceryEntry(u"Eggs", u"1 Dozen")}));
}

TEST_F(ListFilesTest, ReadingSkipsPairsWithoutAnItemEvenWithAnAmountAndCutsItemsTo30)
{
    const QStringList values{"", "3 Cans", "  Abcdefghijklmnopqrstuvwxyz1234567", "", "   ", "x", "  Tea"};
    EXPECT_EQ(EntriesOfListValues(values), QStringList({"Abcdefghijklmnopqrstuvwxyz1234", "Tea"}));
}

TEST_F(ListFilesTest, AFileThatCannotBeReadIsNotOpened)
{
    EXPECT_FALSE(ReadListFile("01Jan27.Lst").opened);
    ASSERT_TRUE(QDir().mkdir("02Jan27.Lst"));
    EXPECT_FALSE(ReadListFile("02Jan27.Lst").opened);
}

TEST_F(ListFilesTest, AFileOfMoreThan999ItemsIsRefusedWhole)
{
    QStringList values;
    for (int i = 0; i < 1000; ++i)
        values << QStringLiteral("  Item %1").arg(i) << QString();
    ASSERT_TRUE(WriteListFile("04Jan27.Lst", values));
    const ReadList read = ReadListFile("04Jan27.Lst");
    EXPECT_TRUE(read.opened);
    EXPECT_TRUE(read.tooLong);
    EXPECT_TRUE(read.entries.isEmpty());
    values.resize(999 * 2);
    ASSERT_TRUE(WriteListFile("05Jan27.Lst", values));
    EXPECT_EQ(ReadListFile("05Jan27.Lst").entries.size(), 999);
}

TEST_F(ListFilesTest, AFailedWriteLeavesTheOldFile)
{
    folder.copyIn(TestDataFile("15Nov26.Lst"));
    ASSERT_TRUE(QDir().mkdir("16Nov26.Lst"));
    EXPECT_FALSE(WriteListFile("16Nov26.Lst", {"  Tea", ""}));
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), TestDataBytes("15Nov26.Lst"));
}

TEST_F(ListFilesTest, TheSavedListsAreTheLstFilesInAnyCaseByName)
{
    for (const char* name : {"15Nov26.Lst", "01JAN27.LST", "03feb27.lst", "notes.txt", "GColor1.Fil"})
        folder.writeBytes(name, "\"\"\r\n");
    ASSERT_TRUE(QDir().mkdir("folder.lst"));
    EXPECT_EQ(SavedListFiles(), QStringList({"01JAN27.LST", "03feb27.lst", "15Nov26.Lst"}));
}
