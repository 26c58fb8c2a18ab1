// The shopping list screen driven offscreen: its controls and commands, what
// is typed and clicked, the amount panel, the files it saves and opens, the
// questions before work is lost. Its settings have a file of their own.
#include "shoplist_fixture.h"

#include "command_doors.h"
#include "test_data.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/startfrm.h"
#include "shell/kit/popupcalendar.h"
#include "shopping/logic/groceryentry.h"
#include "shopping/screens/amountpanel.h"

#include "list_bytes.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QScrollBar>
#include <QToolBar>
#include <QToolTip>

namespace {

const Message kUnsavedBeforeAction{"Grocery List", "Save changes made to Grocery Item Grid before this action?",
                                   Buttons::YesNoCancel, Icon::None, 1};

} // namespace

// ---- Opening -------------------------------------------------------------------

TEST_F(ShoplistTest, OpensWithItsCaptionTodayAnEmptyGridOf16RowsAndNothingToSave)
{
    auto form = open();
    EXPECT_EQ(form->objectName(), "Shoplist");
    EXPECT_EQ(form->windowTitle(), "Shopping List Maker");
    EXPECT_EQ(status(*form), "Shopping List Maker");
    EXPECT_EQ(dateBox(*form)->text(), "11/15/26");
    EXPECT_EQ(rowCount(*form), 16);
    EXPECT_EQ(cell(*form, 0, 0), "Grocery Item");
    EXPECT_EQ(cell(*form, 0, 1), "Amount to Purchase");
    EXPECT_EQ(grid(*form)->horizontalHeader()->defaultAlignment(), Qt::AlignCenter);
    EXPECT_FALSE(form->list().dirty());
    EXPECT_EQ(form->list().sortMode(), SortMode::AsEntered);
    EXPECT_TRUE(form->findChild<QRadioButton*>("Option1_0")->isChecked());
    for (const char* off : {"mSave", "mClearGrid", "mCopy", "mDeleteItem"})
        EXPECT_FALSE(act(*form, off)->isEnabled()) << off;
    EXPECT_FALSE(button(*form, "Command2_0")->isEnabled());
    EXPECT_FALSE(button(*form, "Command2_1")->isEnabled());
    EXPECT_TRUE(button(*form, "Command1_0")->hasFocus() || QApplication::focusWidget() == nullptr);
    EXPECT_TRUE(folder.bytesOf("GColor4.Fil").isEmpty()) << "an empty cookbook slot is read as cookbook 1, nothing written";
    EXPECT_EQ(form->cookbook(), 1);
}

TEST_F(ShoplistTest, ControlsCarryTheirCaptionsPromptsAndLengths)
{
    auto form = open();
    EXPECT_EQ(itemBox(*form)->maxLength(), 25);
    EXPECT_EQ(amountBox(*form)->maxLength(), 12);
    EXPECT_EQ(dateBox(*form)->maxLength(), 20);
    EXPECT_EQ(form->findChild<QGroupBox*>("Frame1")->title(), "Item Grid Display:");
    EXPECT_EQ(form->findChild<QRadioButton*>("Option1_1")->text(), "&Alphabetically");
    EXPECT_EQ(form->findChild<QRadioButton*>("Option1_0")->text(), "&As  Entered/Saved");
    EXPECT_EQ(button(*form, "Command2_0")->text(), "&Add to Item Grid");
    EXPECT_EQ(button(*form, "Command2_1")->text(), "&Delete Item fm File");
    EXPECT_EQ(form->findChild<QLabel*>("Label1")->text(),
              "The Projected Date For This Shopping Trip:  Please Select Desired Date:");
    EXPECT_EQ(form->findChild<QLabel*>("Label3")->text(),
              "The Amount Desired: Enter Amount (i.e. 1 Dozen, 2 Packages, etc.):");
    EXPECT_EQ(form->findChild<QLabel*>("AmountEntryCaption")->text(), "Amount Entry Panel");
    EXPECT_EQ(button(*form, "Command5_0")->text(), "Enter Amount on Item Grid");
    EXPECT_EQ(button(*form, "Command5_1")->text(), "Clear The Amount");
    for (int digit = 0; digit <= 9; ++digit)
        EXPECT_EQ(button(*form, QStringLiteral("Command3_%1").arg(digit))->text(), QString::number(digit));
    EXPECT_EQ(button(*form, "Command4_7")->text(), "Loaf(es)");
    EXPECT_FALSE(form->amountPanel()->isVisible()) << "shown only while an amount is entered";
}

TEST_F(ShoplistTest, EveryCommandHasItsCaptionsAndDoors)
{
    auto form = open();
    ExpectDoors(*form, {
        {"mExit", "E&xit", "E&xit", true},
        {"mClearGrid", "&Clear Grid", "&Clear Grid", false},
        {"mSave", "&Save", "&Save", false},
        {"mPrintOptions", "&Print Options", "&Print Options", true},
        {"mDeleteItem", "&Delete Item from Grid", "&Delete Item from Grid", false},
        {"mRecipeSelect", "&Recipe Select", "&Recipe Select", false},
        {"mQuickSelect", "&Quick Select", "&Quick Select", false},
        {"mNewList", "&New Shopping List", "", true},
        {"mOpenList", "&Open an Existing List", "", true},
        {"mDeleteList", "Delete an &Existing List", "", true},
        {"mGridBackground", "Grid &Background Selector", "", true},
        {"mGridTextColor", "Grid &Text  Color", "", true},
        {"mPanelColor", "Panel &Color", "", true},
        {"mWorksheet", "Print &Worksheet", "", true},
        {"mCopy", "Cop&y", "", true},
        {"mHelp", "Shopping List &Help", "", true},
    });
    const char* const buttons[] = {"E&xit", "&Clear Grid", "&Save", "&Print Options", "&Delete Item from Grid",
                                   "&Recipe Select", "&Quick Select"};
    for (int index = 0; index < 7; ++index)
        EXPECT_EQ(button(*form, QStringLiteral("Command1_%1").arg(index))->text(), buttons[index]);
    QMenu* cookbooks = form->findChild<QMenu*>("mSelectCookbook");
    ASSERT_NE(cookbooks, nullptr);
    EXPECT_EQ(cookbooks->title(), "Select Cook&book");
    EXPECT_EQ(act(*form, "mSave")->shortcut(), QKeySequence(QKeySequence::Save));
    EXPECT_EQ(act(*form, "mPrintOptions")->shortcut(), QKeySequence(QKeySequence::Print));
}

TEST_F(ShoplistTest, TheOptionsMenuRepeatsTheScreensCommandsThenAddsItsOwn)
{
    auto form = open();
    QStringList entries;
    for (QAction* action : form->findChild<QMenu*>("mOptions")->actions()) {
        if (!action->isSeparator())
            entries.append(action->text());
    }
    EXPECT_EQ(entries, QStringList({"E&xit", "&Clear Grid", "&Save", "&Print Options", "&Delete Item from Grid",
                                    "&Recipe Select", "&Quick Select", "&New Shopping List", "&Open an Existing List",
                                    "Delete an &Existing List", "Grid &Background Selector", "Grid &Text  Color",
                                    "Panel &Color", "Select Cook&book", "Print &Worksheet", "Cop&y"}));
}

TEST_F(ShoplistTest, TheSecondToolbarHoldsItsElevenButtonsInOrder)
{
    auto form = open();
    QToolBar* side = form->findChild<QToolBar*>("Toolbar2");
    ASSERT_NE(side, nullptr);
    QStringList names;
    for (QAction* action : side->actions()) {
        if (!action->isSeparator())
            names.append(action->objectName());
    }
    EXPECT_EQ(names, QStringList({"mNewList", "mOpenList", "mDeleteList", "mGridBackground", "mGridTextColor",
                                  "mPanelColor", "mCopy", "mWorksheet", "mPrintOptions", "mHelp", "mExit"}));
}

TEST_F(ShoplistTest, TheHelpTopicIs1040AndItsPageComesWithTheProgram)
{
    auto form = open();
    EXPECT_EQ(Shoplist::kHelpTopic, 1040);
    QFile page(":/help/1040.html");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().contains("Shopping List Maker"));
}

TEST_F(ShoplistTest, TheMainScreensShoppingListButtonOpensTheShoppingList)
{
    class LargeScreen final : public ScreenMetrics {
    public:
        QSize sizeTwips() const override { return {28800, 16200}; }
    };
    Process().SplashShown = true;
    LargeScreen screen;
    Startfrm main(dialogs, screen);
    main.registerActivity(MainCommand::ShoppingList, [this] { return new Shoplist(dialogs); });
    QPushButton* listButton = nullptr;
    for (QPushButton* each : main.findChildren<QPushButton*>())
        if (each->text() == "&Shopping List Maker")
            listButton = each;
    ASSERT_NE(listButton, nullptr);
    ASSERT_TRUE(listButton->isEnabled());
    listButton->click();
    Shoplist* form = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Shoplist*>(window); found && found->isVisible())
            form = found;
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), "Shopping List Maker");
    QSignalSpy closed(form, &ActivityWindow::closed);
    form->close();
    EXPECT_EQ(closed.count(), 1);
}

// ---- Typing items -----------------------------------------------------------------

TEST_F(ShoplistTest, AnItemTypedAndEnteredGoesOnTheGridAndIntoTheCatalogue)
{
    auto form = open();
    addItem(*form, "Milk");
    EXPECT_EQ(cell(*form, 1, 0), "  Milk");
    EXPECT_EQ(cell(*form, 0, 0), "Grocery Items = 1");
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"Milk"}));
    ASSERT_EQ(combo1(*form)->count(), 1);
    EXPECT_EQ(combo1(*form)->itemText(0), "Milk");
    EXPECT_TRUE(itemBox(*form)->text().isEmpty());
    EXPECT_TRUE(form->list().dirty());
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    EXPECT_TRUE(act(*form, "mClearGrid")->isEnabled());
    EXPECT_TRUE(button(*form, "Command1_0")->hasFocus()) << "the keyboard goes to E&xit";
    EXPECT_FALSE(button(*form, "Command2_0")->isEnabled());
}

TEST_F(ShoplistTest, TheAddButtonAndADoubleClickOnTheBoxAddTooAndABlankBoxAddsNothing)
{
    auto form = open();
    type(itemBox(*form), "Bread");
    ASSERT_TRUE(button(*form, "Command2_0")->isEnabled());
    button(*form, "Command2_0")->click();
    type(itemBox(*form), "Eggs");
    QTest::mouseDClick(itemBox(*form), Qt::LeftButton);
    type(itemBox(*form), "   ");
    pressEnter(itemBox(*form));
    EXPECT_EQ(form->list().entryList(), QStringList({"Bread", "Eggs"}));
}

TEST_F(ShoplistTest, TheSameItemTwiceStandsOnTwoRowsAndIsCataloguedOnce)
{
    auto form = open();
    addItem(*form, "Milk");
    addItem(*form, "milk");
    EXPECT_EQ(form->list().entryList(), QStringList({"Milk", "milk"}));
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"Milk"}));
}

TEST_F(ShoplistTest, TypeAheadPutsTheFirstMatchFromTheSecondEntryInTheDropDown)
{
    folder.writeBytes("LISTNAME.Fil", Lines({"Apples", "Applesauce", "Bread"}));
    auto form = open();
    type(itemBox(*form), "app");
    EXPECT_EQ(combo1(*form)->currentText(), "Applesauce");
    itemBox(*form)->clear();
    type(itemBox(*form), "BR");
    EXPECT_EQ(combo1(*form)->currentText(), "Bread");
}

TEST_F(ShoplistTest, APickInTheDropDownMovesTheNameIntoTheItemBoxYellow)
{
    folder.writeBytes("LISTNAME.Fil", Lines({"Tea", "Coffee"}));
    auto form = open();
    ASSERT_EQ(combo1(*form)->itemText(0), "Coffee") << "alphabetical";
    combo1(*form)->setCurrentIndex(1);
    emit combo1(*form)->activated(1);
    EXPECT_EQ(itemBox(*form)->text(), "Tea");
    EXPECT_TRUE(combo1(*form)->currentText().isEmpty());
    EXPECT_EQ(itemBox(*form)->palette().color(QPalette::Base), ColorFromColorref(QBColor(kFocusColorIndex)));
    EXPECT_TRUE(button(*form, "Command2_0")->isEnabled());
    EXPECT_TRUE(button(*form, "Command2_1")->isEnabled());
}

TEST_F(ShoplistTest, EnterInTheDropDownsTextCopiesItAndCataloguesIt)
{
    auto form = open();
    combo1(*form)->setEditText("Honey");
    pressEnter(combo1(*form)->lineEdit());
    EXPECT_EQ(itemBox(*form)->text(), "Honey");
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"Honey"}));
}

TEST_F(ShoplistTest, ClickingAnItemCellThenPickingFromTheDropDownRenamesTheRow)
{
    folder.writeBytes("LISTNAME.Fil", Lines({"Skim Milk"}));
    auto form = open();
    addItem(*form, "Milk");
    addItem(*form, "Eggs");
    clickCell(*form, 1, 0);
    EXPECT_TRUE(form->list().editInPlace());
    EXPECT_TRUE(act(*form, "mDeleteItem")->isEnabled()) << "a filled item cell is selected";
    const int skimMilk = combo1(*form)->findText("Skim Milk");
    combo1(*form)->setCurrentIndex(skimMilk);
    emit combo1(*form)->activated(skimMilk);
    EXPECT_EQ(form->list().entryList(), QStringList({"Skim Milk", "Eggs"}));
    EXPECT_FALSE(form->list().editInPlace());
    EXPECT_TRUE(itemBox(*form)->text().isEmpty());
}

TEST_F(ShoplistTest, ClickingAnItemCellThenTypingAndEnterRenamesTheRow)
{
    auto form = open();
    addItem(*form, "Milk");
    clickCell(*form, 1, 0);
    type(itemBox(*form), "Buttermilk");
    pressEnter(itemBox(*form));
    EXPECT_EQ(form->list().entryList(), QStringList({"Buttermilk"}));
    EXPECT_FALSE(form->list().editInPlace());
    EXPECT_TRUE(itemBox(*form)->text().isEmpty());
    EXPECT_TRUE(folder.bytesOf("LISTNAME.Fil") == Lines({"Milk"})) << "a renamed row is not catalogued";
}

TEST_F(ShoplistTest, ClickingAnItemCellWithTextInTheBoxPutsTheTextThere)
{
    auto form = open();
    addItem(*form, "Milk");
    type(itemBox(*form), "Cream");
    clickCell(*form, 1, 0);
    EXPECT_EQ(form->list().entryList(), QStringList({"Cream"}));
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"Milk", "Cream"}));
    EXPECT_TRUE(itemBox(*form)->text().isEmpty());
    clickCell(*form, 5, 0);
    type(itemBox(*form), "Jam");
    clickCell(*form, 9, 0);
    EXPECT_EQ(form->list().entryList(), QStringList({"Cream", "Jam"})) << "an empty row takes a new entry";
}

// ---- Amounts ------------------------------------------------------------------------

TEST_F(ShoplistTest, ClickingAnAmountCellOpensTheAmountPanelForThatItem)
{
    auto form = open();
    addItem(*form, "Milk");
    clickCell(*form, 1, 1);
    EXPECT_TRUE(form->amountPanel()->isVisible());
    EXPECT_EQ(form->amountPanel()->label()->text(), "Amount of Milk");
    EXPECT_TRUE(amountBox(*form)->hasFocus());
    button(*form, "Command3_2")->click();
    button(*form, "Command4_6")->click();
    EXPECT_EQ(amountBox(*form)->text(), "2 Gallons");
    button(*form, "Command5_0")->click();
    EXPECT_EQ(cell(*form, 1, 1), "2 Gallons");
    EXPECT_EQ(form->list().entryList(), QStringList({MakeGroceryEntry(u"Milk", u"2 Gallons")}));
    EXPECT_TRUE(amountBox(*form)->text().isEmpty());
    EXPECT_TRUE(amountBox(*form)->hasFocus());
    // The row's amount comes back into the box on the next click.
    clickCell(*form, 1, 1);
    EXPECT_EQ(amountBox(*form)->text(), "2 Gallons");
    button(*form, "Command5_1")->click();
    EXPECT_TRUE(amountBox(*form)->text().isEmpty());
    EXPECT_EQ(cell(*form, 1, 1), "2 Gallons") << "Clear The Amount only empties the box";
    // A click on the item column brings the item box back.
    clickCell(*form, 1, 0);
    EXPECT_FALSE(form->amountPanel()->isVisible());
    EXPECT_TRUE(itemBox(*form)->isVisible());
}

TEST_F(ShoplistTest, EnterInTheAmountBoxEntersAnAmountThatIsNotEmpty)
{
    auto form = open();
    addItem(*form, "Eggs");
    clickCell(*form, 1, 1);
    pressEnter(amountBox(*form));
    EXPECT_EQ(form->list().entryList(), QStringList({"Eggs"})) << "an empty box enters nothing";
    type(amountBox(*form), "1 Dozen");
    pressEnter(amountBox(*form));
    EXPECT_EQ(cell(*form, 1, 1), "1 Dozen");
}

TEST_F(ShoplistTest, AnAmountBeforeAnItemIsRefusedAndTheUserSentToTheFirstEmptyRow)
{
    auto form = open();
    addItem(*form, "Milk");
    dialogs.expectMessage("Item Grid", "Please, enter an Item before any Amounts.");
    clickCell(*form, 6, 1);
    EXPECT_EQ(dialogs.messages().last(),
              (Message{"Item Grid", "Please, enter an Item before any Amounts.", Buttons::Ok, Icon::Information, 1}));
    EXPECT_FALSE(form->amountPanel()->isVisible());
    EXPECT_EQ(grid(*form)->currentRow(), 1);
    EXPECT_EQ(grid(*form)->currentColumn(), 0);
}

TEST_F(ShoplistTest, AClickInTheAmountBoxWithoutAnItemOnTheRowTellsTheUser)
{
    auto form = open();
    addItem(*form, "Milk");
    clickCell(*form, 1, 1);
    ASSERT_TRUE(form->amountPanel()->isVisible());
    QTest::mouseClick(amountBox(*form), Qt::LeftButton);  // row 1 has its item: no word
    dialogs.expectMessage("Item Grid", "Please, enter an Item before any Amounts.");
    clickCell(*form, 6, 1);
    ASSERT_TRUE(form->amountPanel()->isVisible()) << "the panel stays while the user is sent to an empty row";
    dialogs.expectMessage("Item Grid", "Please, enter an Item before any Amounts.");
    QTest::mouseClick(amountBox(*form), Qt::LeftButton);
    EXPECT_FALSE(form->amountPanel()->isVisible());
    EXPECT_TRUE(itemBox(*form)->hasFocus());
}

// ---- Deleting ---------------------------------------------------------------------------

TEST_F(ShoplistTest, DeleteItemFromGridAsksAndRemovesOnlyOnYes)
{
    auto form = open();
    addItem(*form, "Milk");
    addItem(*form, "Eggs");
    enterAmount(*form, 2, "1 Dozen");
    clickCell(*form, 2, 0);
    ASSERT_TRUE(act(*form, "mDeleteItem")->isEnabled());
    dialogs.expectMessage("Delete Row", "Delete Item and Amount for - \n  Eggs, 1 Dozen?", Answer::No);
    button(*form, "Command1_4")->click();
    EXPECT_EQ(dialogs.messages().last(), (Message{"Delete Row", "Delete Item and Amount for - \n  Eggs, 1 Dozen?",
                                                  Buttons::YesNoCancel, Icon::None, 2}));
    EXPECT_EQ(form->list().entryList().size(), 2);
    dialogs.expectMessage("Delete Row", "Delete Item and Amount for - \n  Eggs, 1 Dozen?", Answer::Yes);
    button(*form, "Command1_4")->click();
    EXPECT_EQ(form->list().entryList(), QStringList({"Milk"}));
    EXPECT_EQ(rowCount(*form), 16);
    EXPECT_FALSE(act(*form, "mDeleteItem")->isEnabled());
}

TEST_F(ShoplistTest, TheDeleteKeyInABoxDeletesWhileTheCommandIsOn)
{
    auto form = open();
    addItem(*form, "Milk");
    clickCell(*form, 1, 0);
    dialogs.expectMessage("Delete Row", "Delete Item and Amount for - \n  Milk, ?", Answer::Yes);
    QTest::keyClick(itemBox(*form), Qt::Key_Delete);
    EXPECT_TRUE(form->list().entryList().isEmpty());
    QTest::keyClick(itemBox(*form), Qt::Key_Delete);  // the command is off now: no question
}

TEST_F(ShoplistTest, DeleteItemFmFileTakesTheNameOutOfTheCatalogue)
{
    folder.copyIn(TestDataFile("LISTNAME.Fil"));
    auto form = open();
    ASSERT_EQ(combo1(*form)->count(), 5);
    combo1(*form)->setCurrentIndex(combo1(*form)->findText("Eggs"));
    emit combo1(*form)->activated(combo1(*form)->findText("Eggs"));
    button(*form, "Command2_1")->click();
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"Milk", "Bread", "Cr\xE8me fra\xEE" "che", "Apples"}));
    EXPECT_EQ(combo1(*form)->count(), 4);
    EXPECT_EQ(combo1(*form)->findText("Eggs"), -1);
    EXPECT_TRUE(itemBox(*form)->text().isEmpty());
    EXPECT_FALSE(button(*form, "Command2_1")->isEnabled());
    EXPECT_TRUE(form->list().entryList().isEmpty()) << "the list itself does not change";
}

// ---- The display mode and the grid's own sort --------------------------------------------

TEST_F(ShoplistTest, TheAlphabeticalViewShowsTheSortedListAndTheEnteredViewTheOrderOfEntry)
{
    auto form = open();
    for (const char* name : {"pears", "Apples", "milk"})
        addItem(*form, name);
    form->findChild<QRadioButton*>("Option1_1")->click();
    EXPECT_EQ(form->list().sortMode(), SortMode::Alphabetically);
    EXPECT_EQ(cell(*form, 1, 0), "  Apples");
    EXPECT_EQ(cell(*form, 3, 0), "  pears");
    form->findChild<QRadioButton*>("Option1_0")->click();
    EXPECT_EQ(cell(*form, 1, 0), "  pears");
}

TEST_F(ShoplistTest, AHeaderSortKeepsTheListRemovesBlankRowsKeeps16RowsAndMarksItChanged)
{
    auto form = open();
    for (const char* name : {"pears", "Apples", "milk"})
        addItem(*form, name);
    ASSERT_TRUE(act(*form, "mSave")->isEnabled());
    act(*form, "mSave")->trigger();
    ASSERT_FALSE(form->list().dirty());
    grid(*form)->sortBy(0, Qt::AscendingOrder);
    EXPECT_TRUE(form->list().dirty());
    EXPECT_EQ(rowCount(*form), 16);
    EXPECT_EQ(cell(*form, 1, 0), "  Apples");
    EXPECT_EQ(cell(*form, 2, 0), "  milk");
    EXPECT_EQ(cell(*form, 3, 0), "  pears");
    EXPECT_EQ(form->list().entryList(), QStringList({"pears", "Apples", "milk"}));
    EXPECT_TRUE(button(*form, "Command1_0")->hasFocus());
    // Saved as shown.
    dialogs.expectMessage("Save .lst File", "15Nov26.lst\nThis file already already exists.\nDo you want to replace it?",
                          Answer::Yes);
    act(*form, "mSave")->trigger();
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), ListBytes({{"  Apples", ""}, {"  milk", ""}, {"  pears", ""}}));
}

TEST_F(ShoplistTest, WhileTheScrollBarIsDraggedTheTipNamesTheTopRowAndItsItem)
{
    auto form = open();
    ShowActive(*form);
    for (int i = 1; i <= 40; ++i)
        addItem(*form, QStringLiteral("Item %1").arg(i));
    QCoreApplication::processEvents();
    QScrollBar* bar = grid(*form)->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 5);
    bar->setSliderDown(true);
    bar->setValue(5);
    EXPECT_EQ(QToolTip::text(), QStringLiteral(" Row %1:   Item %1 ").arg(grid(*form)->rowAt(0) + 1));
    bar->setSliderDown(false);
}

// ---- The date box -------------------------------------------------------------------------

TEST_F(ShoplistTest, TheDateBoxTakesDigitsAndSlashesOnly)
{
    auto form = open();
    QLineEdit* box = dateBox(*form);
    box->clear();
    type(box, "x12a/0b5/26-");
    EXPECT_EQ(box->text(), "12/05/26");
}

TEST_F(ShoplistTest, TheDateBoxTakesTheSeparatorOfTheSystemsShortDateToo)
{
    SetDateLocale(QLocale(QLocale::German, QLocale::Germany));
    auto form = open();
    QLineEdit* box = dateBox(*form);
    EXPECT_EQ(box->text(), "15.11.26");
    box->clear();
    type(box, "16.11.26/");
    EXPECT_EQ(box->text(), "16.11.26/");
}

TEST_F(ShoplistTest, AClickOnTheDateBoxOpensTheCalendarAndAPickedDateMarksTheListChanged)
{
    auto form = open();
    QTest::mouseClick(dateBox(*form), Qt::LeftButton);
    PopupCalendar* calendar = form->calendar();
    ASSERT_TRUE(calendar->isOpen());
    EXPECT_EQ(calendar->calendar()->selectedDate(), QDate(2026, 11, 15));
    emit calendar->calendar()->clicked(QDate(2026, 11, 21));
    EXPECT_FALSE(calendar->isOpen());
    EXPECT_EQ(dateBox(*form)->text(), "11/21/26");
    EXPECT_TRUE(form->list().dirty());
    EXPECT_TRUE(itemBox(*form)->hasFocus());
}

// ---- The boxes ------------------------------------------------------------------------------

TEST_F(ShoplistTest, TheBoxWithTheKeyboardIsYellowUntilAnotherBoxTakesIt)
{
    auto form = open();
    ShowActive(*form);
    const QColor yellow = ColorFromColorref(QBColor(kFocusColorIndex));
    itemBox(*form)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(itemBox(*form)->palette().color(QPalette::Base), yellow);
    button(*form, "Command1_0")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(itemBox(*form)->palette().color(QPalette::Base), yellow) << "a button does not take the colour away";
    dateBox(*form)->setFocus(Qt::TabFocusReason);
    form->calendar()->hide();
    EXPECT_EQ(dateBox(*form)->palette().color(QPalette::Base), yellow);
    EXPECT_NE(itemBox(*form)->palette().color(QPalette::Base), yellow);
}

TEST_F(ShoplistTest, NoDoubleQuoteGetsIntoAnyOfTheThreeBoxesTypedOrPasted)
{
    auto form = open();
    addItem(*form, "Ham");
    clickCell(*form, 1, 1);
    for (QLineEdit* box : {itemBox(*form), dateBox(*form), amountBox(*form)}) {
        SCOPED_TRACE(box->objectName().toStdString());
        box->clear();
        type(box, "1\"2");
        EXPECT_FALSE(box->text().contains(u'"'));
        box->clear();
        box->insert("3\"4");
        emit box->textEdited(box->text());
        EXPECT_FALSE(box->text().contains(u'"'));
    }
}

TEST_F(ShoplistTest, TheAmountBoxTakesLongerTextsFromItsButtonsThanFromTheKeyboard)
{
    auto form = open();
    addItem(*form, "Flour");
    clickCell(*form, 1, 1);
    for (const char* digit : {"Command3_1", "Command3_2", "Command3_3", "Command3_4"})
        button(*form, digit)->click();
    button(*form, "Command4_10")->click();
    EXPECT_EQ(amountBox(*form)->text(), "1234 Packages") << "13 characters, whole";
    type(amountBox(*form), "x");
    EXPECT_EQ(amountBox(*form)->text(), "1234 Packages") << "typing stops at the box's length";
    amountBox(*form)->clear();
    type(amountBox(*form), "12345678901234");
    EXPECT_EQ(amountBox(*form)->text(), "123456789012");
}
