// The shopping list screen and its files: save and replace, open, delete,
// new, clear, leaving the screen, and every write that fails.
#include "shoplist_fixture.h"

#include "test_data.h"

#include "shopping/logic/groceryentry.h"
#include "shopping/screens/amountpanel.h"

#include "common/writefailure.h"

#include "list_bytes.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString kReplace = "15Nov26.lst\nThis file already already exists.\nDo you want to replace it?";
const QString kBeforeAction = "Save changes made to Grocery Item Grid before this action?";
const QString kBeforeExiting = "Save changes made to Grocery Item Grid before exiting?";

} // namespace

TEST_F(ShoplistTest, SaveWritesTheGridUnderTheDatesNameWithoutAWord)
{
    auto form = open();
    addItem(*form, "Milk");
    addItem(*form, "Bread");
    addItem(*form, "Eggs");
    enterAmount(*form, 1, "2 Gallons");
    enterAmount(*form, 3, "1 Dozen");
    button(*form, "Command1_2")->click();
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), TestDataBytes("15Nov26.Lst"));
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_FALSE(form->list().dirty());
}

TEST_F(ShoplistTest, ReplacingAListAsksYesOrNoWithNoAsDefault)
{
    folder.writeBytes("15NOV26.LST", ListBytes({{"  Tea", ""}}));
    auto form = open();
    addItem(*form, "Coffee");
    dialogs.expectMessage("Save .lst File", kReplace, Answer::Yes);
    act(*form, "mSave")->trigger();
    EXPECT_EQ(dialogs.messages().last(), (Message{"Save .lst File", kReplace, Buttons::YesNo, Icon::Exclamation, 2}));
    EXPECT_EQ(folder.bytesOf("15NOV26.LST"), ListBytes({{"  Coffee", ""}})) << "the existing file, found case-blind";
    EXPECT_FALSE(QFileInfo::exists(folder.filePath("15Nov26.Lst")) && !QFileInfo::exists(folder.filePath("15NOV26.LST")));
}

TEST_F(ShoplistTest, ADateBoxThatIsNoDateNamesNoFileAndSaveRefuses)
{
    auto form = open();
    addItem(*form, "Milk");
    dateBox(*form)->setText("99/99/99");
    dialogs.expectMessage("Save .lst File", "The Projected Date is not a date, so the list has no file name.\n"
                                            "Please select the date of this shopping trip, then save again.");
    act(*form, "mSave")->trigger();
    EXPECT_TRUE(form->list().dirty());
    EXPECT_EQ(QDir().entryList({"*.Lst"}, QDir::Files), QStringList());
}

TEST_F(ShoplistTest, AFailedSaveTellsTheUserAndKeepsTheListAndItsChangedFlag)
{
    folder.copyIn(TestDataFile("LISTNAME.Fil"));
    ASSERT_TRUE(QDir().mkdir("15Nov26.Lst"));
    auto form = open();
    addItem(*form, "Milk");
    const QByteArray catalogue = folder.bytesOf("LISTNAME.Fil");
    const Message failed = WriteFailedMessage("15Nov26.Lst");
    dialogs.expectMessage(failed.title, failed.text);
    act(*form, "mSave")->trigger();
    EXPECT_EQ(dialogs.messages().last(), failed);
    EXPECT_TRUE(form->list().dirty());
    EXPECT_EQ(form->list().entryList(), QStringList({"Milk"}));
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), catalogue);
    // Leaving asks again, and a save that fails keeps the screen open.
    dialogs.expectMessage("Grocery List", kBeforeExiting, Answer::Yes);
    dialogs.expectMessage(failed.title, failed.text);
    act(*form, "mExit")->trigger();
    EXPECT_TRUE(form->isVisible());
}

TEST_F(ShoplistTest, AFailedCatalogueWriteTellsTheUserAndTheItemStaysOnTheList)
{
    ASSERT_TRUE(QDir().mkdir("LISTNAME.Fil"));
    auto form = open();
    const Message failed = WriteFailedMessage("LISTNAME.Fil");
    dialogs.expectMessage(failed.title, failed.text);
    addItem(*form, "Milk");
    EXPECT_EQ(form->list().entryList(), QStringList({"Milk"}));
    EXPECT_EQ(combo1(*form)->count(), 0);
}

TEST_F(ShoplistTest, AFailedCatalogueDeleteKeepsTheNameInTheBox)
{
    folder.writeBytes("LISTNAME.Fil", Lines({"Tea"}));
    auto form = open();
    ASSERT_TRUE(QFile::remove("LISTNAME.Fil"));
    ASSERT_TRUE(QDir().mkdir("LISTNAME.Fil"));
    type(itemBox(*form), "Tea");
    const Message failed = WriteFailedMessage("LISTNAME.Fil");
    dialogs.expectMessage(failed.title, failed.text);
    button(*form, "Command2_1")->click();
    EXPECT_EQ(itemBox(*form)->text(), "Tea");
    EXPECT_EQ(combo1(*form)->count(), 1);
}

TEST_F(ShoplistTest, OpenReadsTheChosenListSetsTheDateAndIsSaved)
{
    folder.copyIn(TestDataFile("15Nov26.Lst"));
    clock.set(QDateTime(QDate(2026, 11, 1), QTime(8, 0)));
    auto form = open();
    ASSERT_EQ(dateBox(*form)->text(), "11/1/26");
    chooser.expect(ListChoice::Open, "15Nov26.Lst");
    act(*form, "mOpenList")->trigger();
    EXPECT_EQ(dateBox(*form)->text(), "11/15/26");
    EXPECT_EQ(form->list().entryList(),
              QStringList({MakeGroceryEntry(u"Milk", u"2 Gallons"), "Bread", MakeGroceryEntry(u"Eggs", u"1 Dozen")}));
    EXPECT_EQ(cell(*form, 0, 0), "Grocery Items = 3");
    EXPECT_EQ(cell(*form, 3, 1), "1 Dozen");
    EXPECT_FALSE(form->list().dirty());
    for (const char* on : {"mSave", "mClearGrid"})
        EXPECT_TRUE(act(*form, on)->isEnabled()) << on;
}

TEST_F(ShoplistTest, OpenAsksAboutUnsavedChangesAndCancelKeepsEverything)
{
    folder.copyIn(TestDataFile("15Nov26.Lst"));
    auto form = open();
    addItem(*form, "Tea");
    dialogs.expectMessage("Grocery List", kBeforeAction, Answer::Cancel);
    act(*form, "mOpenList")->trigger();
    EXPECT_EQ(dialogs.messages().last(), (Message{"Grocery List", kBeforeAction, Buttons::YesNoCancel, Icon::None, 1}));
    EXPECT_EQ(form->list().entryList(), QStringList({"Tea"}));
    // No: the list is dropped and the chosen one read.
    dialogs.expectMessage("Grocery List", kBeforeAction, Answer::No);
    chooser.expect(ListChoice::Open, "15nov26.lst");
    act(*form, "mOpenList")->trigger();
    EXPECT_EQ(form->list().entryList().size(), 3);
}

TEST_F(ShoplistTest, OpenWithYesSavesFirst)
{
    folder.writeBytes("20Nov26.Lst", ListBytes({{"  Jam", ""}}));
    auto form = open();
    addItem(*form, "Tea");
    dialogs.expectMessage("Grocery List", kBeforeAction, Answer::Yes);
    chooser.expect(ListChoice::Open, "20Nov26.Lst");
    act(*form, "mOpenList")->trigger();
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), ListBytes({{"  Tea", ""}}));
    EXPECT_EQ(form->list().entryList(), QStringList({"Jam"}));
    EXPECT_EQ(dateBox(*form)->text(), "11/20/26");
}

TEST_F(ShoplistTest, OpenWithoutSavedListsTellsTheUserAndCancelDoesNothing)
{
    auto form = open();
    addItem(*form, "Tea");
    ASSERT_TRUE(act(*form, "mSave")->isEnabled());
    form->findChild<QAction*>("mSave")->trigger();
    chooser.expect(ListChoice::Open, "Nothing");
    dialogs.expectMessage("Open/Delete List Action", "Currently, there are No Saved Lists");
    act(*form, "mOpenList")->trigger();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    chooser.expect(ListChoice::Open, "");
    act(*form, "mOpenList")->trigger();
    EXPECT_EQ(form->list().entryList(), QStringList({"Tea"}));
}

TEST_F(ShoplistTest, AnInvalidNameTellsTheUserWithTheGridAlreadyCleared)
{
    folder.writeBytes("notes.lst", ListBytes({{"  Jam", ""}}));
    auto form = open();
    addItem(*form, "Tea");
    act(*form, "mSave")->trigger();
    chooser.expect(ListChoice::Open, "notes.lst");
    dialogs.expectMessage("File Error", "An Invalid File has been Selected!");
    act(*form, "mOpenList")->trigger();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Stop);
    EXPECT_TRUE(form->list().entryList().isEmpty());
    EXPECT_EQ(rowCount(*form), 15);
    EXPECT_EQ(cell(*form, 0, 0), "Grocery Item");
}

TEST_F(ShoplistTest, AListThatCannotBeReadEndsTheOpenSilently)
{
    ASSERT_TRUE(QDir().mkdir("21Nov26.Lst"));
    auto form = open();
    chooser.expect(ListChoice::Open, "21Nov26.Lst");
    act(*form, "mOpenList")->trigger();
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_TRUE(form->list().entryList().isEmpty());
    EXPECT_EQ(dateBox(*form)->text(), "11/21/26");
}

// Open offers Clear Grid, Save and Copy for what it opened, even a list
// whose rows are all empty; a cleared grid takes them back.
TEST_F(ShoplistTest, AnOpenedListWithoutItemsCanStillBeSavedClearedAndCopied)
{
    folder.writeBytes("24Nov26.Lst", ListBytes({{"", "2 Cans"}, {"", ""}}));
    auto form = open();
    chooser.expect(ListChoice::Open, "24Nov26.Lst");
    act(*form, "mOpenList")->trigger();
    ASSERT_TRUE(form->list().entryList().isEmpty());
    EXPECT_FALSE(form->list().dirty());
    for (const char* on : {"mClearGrid", "mSave", "mCopy"})
        EXPECT_TRUE(act(*form, on)->isEnabled()) << on;
    dialogs.expectMessage("Clear Grid", "Do you really want To Clear the Grid?", Answer::Yes);
    act(*form, "mClearGrid")->trigger();
    for (const char* off : {"mClearGrid", "mSave", "mCopy"})
        EXPECT_FALSE(act(*form, off)->isEnabled()) << off;
}

TEST_F(ShoplistTest, AListOfMoreThan999ItemsIsRefusedAndItsFileUnchanged)
{
    QList<std::pair<QByteArray, QByteArray>> rows;
    for (int i = 0; i < 1200; ++i)
        rows.append({"  Item " + QByteArray::number(i), ""});
    const QByteArray bytes = ListBytes(rows, 1200);
    folder.writeBytes("22Nov26.Lst", bytes);
    auto form = open();
    chooser.expect(ListChoice::Open, "22Nov26.Lst");
    dialogs.expectMessage("Open Shopping List",
                          "22Nov26.Lst\nThis list holds more than 999 items, more than the grid can show. "
                          "It has not been opened, and the file is unchanged.");
    act(*form, "mOpenList")->trigger();
    EXPECT_TRUE(form->list().entryList().isEmpty());
    EXPECT_EQ(folder.bytesOf("22Nov26.Lst"), bytes);
}

TEST_F(ShoplistTest, DeleteListAsksAndDeletesOnlyOnYesAndTheGridStays)
{
    folder.copyIn(TestDataFile("15Nov26.Lst"));
    auto form = open();
    addItem(*form, "Tea");
    chooser.expect(ListChoice::Delete, "15Nov26.Lst");
    dialogs.expectMessage("Delete File", "Do you Really want to Delete - \n15Nov26.Lst?", Answer::No);
    act(*form, "mDeleteList")->trigger();
    EXPECT_EQ(dialogs.messages().last(), (Message{"Delete File", "Do you Really want to Delete - \n15Nov26.Lst?",
                                                  Buttons::YesNoCancel, Icon::None, 2}));
    EXPECT_TRUE(QFileInfo::exists("15Nov26.Lst"));
    chooser.expect(ListChoice::Delete, "15Nov26.Lst");
    dialogs.expectMessage("Delete File", "Do you Really want to Delete - \n15Nov26.Lst?", Answer::Yes);
    act(*form, "mDeleteList")->trigger();
    EXPECT_FALSE(QFileInfo::exists("15Nov26.Lst"));
    EXPECT_EQ(form->list().entryList(), QStringList({"Tea"}));
    EXPECT_TRUE(form->list().dirty());
    chooser.expect(ListChoice::Delete, "Nothing");
    dialogs.expectMessage("Open/Delete List Action", "Currently, there are No Saved Lists");
    act(*form, "mDeleteList")->trigger();
}

TEST_F(ShoplistTest, NewListAsksSetsTodayAndClearsTheGrid)
{
    auto form = open();
    addItem(*form, "Tea");
    dateBox(*form)->setText("12/24/26");
    dialogs.expectMessage("Grocery List", kBeforeAction, Answer::No);
    act(*form, "mNewList")->trigger();
    EXPECT_EQ(dateBox(*form)->text(), "11/15/26");
    EXPECT_TRUE(form->list().entryList().isEmpty());
    EXPECT_FALSE(form->list().dirty());
    EXPECT_EQ(rowCount(*form), 15);
    EXPECT_TRUE(button(*form, "Command1_0")->hasFocus());
}

TEST_F(ShoplistTest, ClearGridAsksAboutChangesThenWhetherToClear)
{
    auto form = open();
    addItem(*form, "Tea");
    dialogs.expectMessage("Grocery List", kBeforeAction, Answer::No);
    dialogs.expectMessage("Clear Grid", "Do you really want To Clear the Grid?", Answer::No);
    button(*form, "Command1_1")->click();
    EXPECT_EQ(dialogs.messages().last(), (Message{"Clear Grid", "Do you really want To Clear the Grid?",
                                                  Buttons::YesNoCancel, Icon::None, 2}));
    EXPECT_EQ(form->list().entryList(), QStringList({"Tea"}));
    dialogs.expectMessage("Grocery List", kBeforeAction, Answer::No);
    dialogs.expectMessage("Clear Grid", "Do you really want To Clear the Grid?", Answer::Yes);
    button(*form, "Command1_1")->click();
    EXPECT_TRUE(form->list().entryList().isEmpty());
    EXPECT_EQ(rowCount(*form), 15);
    EXPECT_EQ(cell(*form, 0, 0), "Grocery Item");
    EXPECT_FALSE(form->list().dirty());
    EXPECT_EQ(grid(*form)->currentRow(), -1) << "no cell of the old list stays selected";
}

TEST_F(ShoplistTest, ExitAsksYesNoCancelAndCancelStays)
{
    auto form = open();
    addItem(*form, "Tea");
    dialogs.expectMessage("Grocery List", kBeforeExiting, Answer::Cancel);
    button(*form, "Command1_0")->click();
    EXPECT_EQ(dialogs.messages().last(), (Message{"Grocery List", kBeforeExiting, Buttons::YesNoCancel, Icon::None, 1}));
    EXPECT_TRUE(form->isVisible());
    dialogs.expectMessage("Grocery List", kBeforeExiting, Answer::No);
    button(*form, "Command1_0")->click();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(dialogs.messages().size(), 2) << "asked once, not again by the window's closing";
    EXPECT_TRUE(QDir().entryList({"*.Lst"}, QDir::Files).isEmpty());
}

TEST_F(ShoplistTest, ExitWithYesSavesAndLeaves)
{
    auto form = open();
    addItem(*form, "Tea");
    dialogs.expectMessage("Grocery List", kBeforeExiting, Answer::Yes);
    act(*form, "mExit")->trigger();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), ListBytes({{"  Tea", ""}}));
}

TEST_F(ShoplistTest, ClosingTheWindowOtherwiseAsksYesOrNoOnly)
{
    auto form = open();
    addItem(*form, "Tea");
    dialogs.expectMessage("Grocery List", kBeforeExiting, Answer::Yes);
    form->close();
    EXPECT_EQ(dialogs.messages().last(), (Message{"Grocery List", kBeforeExiting, Buttons::YesNo, Icon::None, 1}));
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), ListBytes({{"  Tea", ""}}));
}

TEST_F(ShoplistTest, AnUnchangedListLeavesWithoutAQuestion)
{
    auto form = open();
    act(*form, "mExit")->trigger();
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(ShoplistTest, AFullListRefusesTheNextItemWithAMessage)
{
    QList<std::pair<QByteArray, QByteArray>> rows;
    for (int i = 0; i < 999; ++i)
        rows.append({"  Item " + QByteArray::number(i), ""});
    folder.writeBytes("23Nov26.Lst", ListBytes(rows, 999));
    auto form = open();
    chooser.expect(ListChoice::Open, "23Nov26.Lst");
    act(*form, "mOpenList")->trigger();
    ASSERT_EQ(form->list().entryList().size(), 999);
    dialogs.expectMessage("Item Grid", "The list is full: a shopping list holds at most 999 items.\n"
                                       "Save it, and start a new list for the rest.");
    addItem(*form, "One more");
    EXPECT_EQ(form->list().entryList().size(), 999);
    EXPECT_EQ(itemBox(*form)->text(), "One more") << "what was typed stays in the box";
}
