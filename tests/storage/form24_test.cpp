// The food storage screen driven offscreen: its kinds, captions, grid and
// commands, and entry through the one input box.
#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/startfrm.h"
#include "storage/logic/storagefiles.h"
#include "command_doors.h"
#include "form24_fixture.h"
#include "raw_slots.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>

namespace {

QStringList MenuEntries(Form24& form, const char* menu)
{
    QStringList entries;
    for (const QAction* action : form.findChild<QMenu*>(menu)->actions())
        entries << (action->isSeparator() ? QStringLiteral("-") : action->text());
    return entries;
}

QStringList CategoryCaptions(Form24& form)
{
    QStringList captions;
    for (int index = 0; index < kCategoryButtons; ++index)
        captions << (form.categoryButton(index)->isVisibleTo(&form) ? form.categoryButton(index)->text() : "-");
    return captions;
}

class LargeScreen final : public ScreenMetrics {
public:
    QSize sizeTwips() const override { return {28800, 16200}; }
};

const QColor kYellow = ColorFromColorref(QBColor(14));

} // namespace

// ---- Kinds and captions --------------------------------------------------------------------

TEST_F(Form24Test, TheMainScreensEmergencyStorageButtonOpensEmergencyStorage)
{
    Process().SplashShown = true;
    LargeScreen screen;
    Startfrm main(dialogs, screen);
    main.registerActivity(MainCommand::Emergency, [this] { return new Form24(dialogs, StorageKind::Emergency); });
    QPushButton* storage = nullptr;
    for (QPushButton* each : main.findChildren<QPushButton*>())
        if (each->text() == "&Emergency Storage")
            storage = each;
    ASSERT_NE(storage, nullptr);
    ASSERT_TRUE(storage->isEnabled());
    storage->click();
    Form24* form = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Form24*>(window); found && found->isVisible())
            form = found;
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->objectName(), "Form24");
    EXPECT_EQ(form->kind(), StorageKind::Emergency);
    EXPECT_EQ(form->windowTitle(), "Emergency Storage");
    QSignalSpy closed(form, &ActivityWindow::closed);
    form->close();
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(Form24Test, EachKindShowsItsCaptionAndCategoryButtons)
{
    auto basic = open(StorageKind::Basic);
    EXPECT_EQ(basic->windowTitle(), "Basic Food Storage");
    EXPECT_EQ(CategoryCaptions(*basic), QStringList({"&All", "&Grains", "&Dairy", "S&ugar", "Sal&t", "&Fats",
                                                     "&Legumes", "&Water", "&Misc."}));
    auto emergency = open(StorageKind::Emergency);
    EXPECT_EQ(emergency->windowTitle(), "Emergency Storage");
    EXPECT_EQ(CategoryCaptions(*emergency), QStringList({"&All", "&Food", "&Water", "&Equip.", "&Bedding",
                                                         "&Clothing", "Fuel/&L.", "Pe&rs.", "Ot&her"}));
    auto additional = open(StorageKind::Additional);
    EXPECT_EQ(additional->windowTitle(), "Additional Storage [Could substitute for some sugar, fat, or lentils]");
    EXPECT_EQ(CategoryCaptions(*additional),
              QStringList({"&All", "&Meats", "&F/V", "&Misc.", "&Water", "&Equip.", "Othe&r", "-", "-"}));
    EXPECT_EQ(additional->findChild<QLabel*>("SSPanel1")->text(), additional->windowTitle());
}

TEST_F(Form24Test, RollupIsOnTheMenuBarOfBasicStorageOnly)
{
    auto basic = open(StorageKind::Basic);
    QAction* rollup = act(*basic, "mRollup");
    EXPECT_TRUE(basic->menuBar()->actions().contains(rollup));
    EXPECT_TRUE(rollup->isVisible());
    EXPECT_TRUE(rollup->isEnabled());
    auto emergency = open(StorageKind::Emergency);
    EXPECT_FALSE(act(*emergency, "mRollup")->isVisible());
    EXPECT_FALSE(act(*emergency, "mRollup")->isEnabled());
}

TEST_F(Form24Test, TheStorageKindMenuTicksTheKindAndSwitches)
{
    auto form = open(StorageKind::Emergency);
    EXPECT_TRUE(act(*form, "mKindEmergency")->isChecked());
    EXPECT_EQ(MenuEntries(*form, "mKind"),
              QStringList({"&Basic Food Storage", "&Emergency Storage",
                           "&Additional Storage [Could substitute for some sugar, fat, or lentils]"}));
    act(*form, "mKindAdditional")->trigger();
    EXPECT_EQ(form->kind(), StorageKind::Additional);
    EXPECT_EQ(form->windowTitle(), "Additional Storage [Could substitute for some sugar, fat, or lentils]");
    EXPECT_TRUE(act(*form, "mKindAdditional")->isChecked());
    EXPECT_EQ(cell(*form, 0, 0), "Meats");
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(Form24Test, SwitchingKindWithChangesAsksTheExitQuestion)
{
    auto form = openShown(StorageKind::Emergency);
    enterAt(*form, 59, 0, "Board Games");
    dialogs.expectMessage("Food Storage", "Save changes made to Food Storage data before exiting?", Answer::Cancel);
    act(*form, "mKindBasic")->trigger();
    EXPECT_EQ(form->kind(), StorageKind::Emergency) << "Cancel stays";
    EXPECT_TRUE(act(*form, "mKindEmergency")->isChecked());
    EXPECT_EQ(cell(*form, 59, 0), "Board Games");
    dialogs.expectMessage("Food Storage", "Save changes made to Food Storage data before exiting?", Answer::Yes);
    act(*form, "mKindBasic")->trigger();
    EXPECT_EQ(form->kind(), StorageKind::Basic);
    EXPECT_EQ(ReadTableFile(StorageKind::Emergency).cell(60, kItemColumn), "Board Games");
    EXPECT_TRUE(dialogs.scriptDone());
}

// ---- The grid ------------------------------------------------------------------------------

TEST_F(Form24Test, TheGridShowsEveryRowWithStackedHeadingsAndTakesNoTyping)
{
    auto form = open();
    ScreenGrid* grid = form->grid();
    EXPECT_EQ(grid->objectName(), "VSGd1");
    ASSERT_EQ(grid->rowCount(), 60);
    ASSERT_EQ(grid->columnCount(), 8);
    EXPECT_EQ(grid->headings(), GridHeadings("USA"));
    EXPECT_EQ(grid->rowTexts(0), QStringList({"Grains", "4", "300 lbs", "1200 lbs", "150.5 lbs", "*", "*", "*"}));
    EXPECT_EQ(grid->rowTexts(1), QStringList({"    Wheat", "*", "*", "*", "100 lbs", "4/3/26", "25", ""}));
    EXPECT_EQ(grid->editTriggers(), QAbstractItemView::NoEditTriggers);
    for (int column = 0; column < 8; ++column)
        EXPECT_FALSE(grid->item(0, column)->flags() & Qt::ItemIsEditable);
    EXPECT_GT(grid->horizontalHeader()->sizeHint().height(), 3 * grid->fontMetrics().height()) << "four stacked lines";
}

TEST_F(Form24Test, TheDateHeadingFollowsTheDateForm)
{
    Process().DateFormatMode = "OTHER";
    auto form = open();
    EXPECT_EQ(form->grid()->headings()[5], "Last\nAction\nDate\n(dd/mm/yy)");
    Process().DateFormatMode = "USA";
    auto again = open();
    EXPECT_EQ(again->grid()->headings()[5], "Last\nAction\nDate\n(mm/dd/yy)");
}

TEST_F(Form24Test, EveryCommandHasItsCaptionsAndDoors)
{
    auto form = open();
    ExpectDoors(*form, {
        {"mGridBackground", "Grid &Background Selector", "", false},
        {"mGridTextColor", "Grid &Text  Color", "", true},
        {"mPanelColor", "Panel C&olor", "", true},
        {"mApproxAmounts", "&Approximate Amounts", "&Approx. Amts.", true},
        {"mClearLastActions", "&Clear Last Action Columns", "", false},
        {"mItemDefaults", "&Item Defaults", "&Item Defaults", true},
        {"mCopy", "Cop&y", "", true},
        {"mPrint", "&Print Options", "&Print", true},
        {"mSave", "&Save", "&Save", true},
        {"mExit", "E&xit", "E&xit", true},
        {"mEditCopy", "&Copy", "", false},
        {"mRollup", "&Rollup", "", true},
        {"mBackup", "&Backup Files to Disk", "", false},
        {"mRestore", "&Restore Files from Disk", "", false},
        {"mExport", "Export File in Excel/Spreadsheet Format", "", false},
        {"mHelp", "", "", true},
    });
    for (int index = 0; index < 5; ++index)
        EXPECT_NE(button(*form, index), nullptr) << index;
    EXPECT_EQ(button(*form, 0)->text(), "&Print");
    EXPECT_EQ(button(*form, 4)->text(), "E&xit");
}

TEST_F(Form24Test, MenusHoldTheirEntriesInOrder)
{
    auto form = open();
    EXPECT_EQ(MenuEntries(*form, "mOptions"),
              QStringList({"Grid &Background Selector", "Grid &Text  Color", "-", "Panel C&olor", "-",
                           "&Approximate Amounts", "&Clear Last Action Columns", "&Item Defaults", "-", "Cop&y",
                           "&Print Options", "-", "&Save", "-", "E&xit"}));
    EXPECT_EQ(MenuEntries(*form, "mEdit"), QStringList({"&Copy"}));
    EXPECT_EQ(MenuEntries(*form, "mUtilities"), QStringList({"&Backup Files to Disk", "&Restore Files from Disk", "-",
                                                              "Export File in Excel/Spreadsheet Format"}));
    QStringList titles;
    for (const QAction* title : form->menuBar()->actions())
        titles << title->text();
    EXPECT_EQ(titles, QStringList({"&Options", "&Edit", "&Rollup", "&Utilities", "Storage &Kind"}));
}

TEST_F(Form24Test, HelpIsTopic1070OnF1)
{
    auto form = open();
    EXPECT_EQ(Form24::kHelpTopic, 1070);
    EXPECT_EQ(act(*form, "mHelp")->shortcut(), QKeySequence(Qt::Key_F1));
    QFile page(":/help/1070.html");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().contains("Food Storage"));
}

TEST_F(Form24Test, ThePanelColourIsGColor1Slot70)
{
    WriteSlotText(GColor1, 70, u"255");
    auto form = open();
    EXPECT_EQ(form->findChild<QLabel*>("SSPanel1")->palette().color(QPalette::Window), QColor(255, 0, 0));
    EXPECT_EQ(form->findChild<QFrame*>("SSPanel4")->palette().color(QPalette::Window), QColor(255, 0, 0));
}

// ---- The input box --------------------------------------------------------------------------

TEST_F(Form24Test, TheInputBoxTakesTheCellsTextInYellowWithTheKeyboard)
{
    auto form = openShown();
    moveTo(*form, 33, 2);
    EXPECT_EQ(form->inputBox()->text(), "8 lbs");
    EXPECT_TRUE(form->inputBox()->hasFocus());
    EXPECT_EQ(form->inputBox()->selectedText(), "8 lbs");
    EXPECT_EQ(form->inputBox()->palette().color(QPalette::Base), kYellow);
    EXPECT_EQ(form->entryRow(), 34);
    EXPECT_EQ(form->entryColumn(), 2);
}

TEST_F(Form24Test, TypingWithoutAChosenCellAsksForOne)
{
    auto form = openShown();
    form->inputBox()->setFocus();
    dialogs.expectMessage("Grid Entry Routine", "Please first select Grid location for input.");
    QTest::keyClicks(form->inputBox(), "5");
    EXPECT_EQ(form->inputBox()->text(), "");
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(Form24Test, NumberColumnsTakeOnlyPointSlashAndDigits)
{
    auto form = openShown();
    moveTo(*form, 1, 6);
    QTest::keyClicks(form->inputBox(), "1a2.-5/x\"");
    EXPECT_EQ(form->inputBox()->text(), "12.5/");
    moveTo(*form, 33, 2);
    form->inputBox()->clear();
    QTest::keyClicks(form->inputBox(), "2 \"qts\"");
    EXPECT_EQ(form->inputBox()->text(), "2 qts") << "any text but a double quote";
}

TEST_F(Form24Test, APastedDoubleQuoteIsTakenOut)
{
    auto form = openShown();
    moveTo(*form, 0, 0);
    form->inputBox()->selectAll();
    form->inputBox()->insert(QStringLiteral("12\" Pans"));
    emit form->inputBox()->textEdited(form->inputBox()->text());
    EXPECT_EQ(form->inputBox()->text(), "12 Pans");
}

TEST_F(Form24Test, EnterCommitsClearsTheBoxAndTheKeyboardGoesToSave)
{
    auto form = openShown();
    enterAt(*form, 59, 0, "Cider Vinegar");
    EXPECT_EQ(cell(*form, 59, 0), "Cider Vinegar");
    EXPECT_EQ(form->model().table().cell(60, 0), "Cider Vinegar");
    EXPECT_TRUE(form->model().dataChanged());
    EXPECT_EQ(form->inputBox()->text(), "");
    EXPECT_TRUE(button(*form, 3)->hasFocus());
}

TEST_F(Form24Test, Typing5IntoAmountPerPersonWhenTheCellHeld25LbsGives5Lbs)
{
    auto form = openShown();
    enterAt(*form, 33, 2, "25");
    EXPECT_EQ(cell(*form, 33, 2), "25 lbs");
    EXPECT_EQ(cell(*form, 33, 3), "100 lbs");
    enterAt(*form, 33, 2, "5");
    EXPECT_EQ(cell(*form, 33, 2), "5 lbs");
    EXPECT_EQ(cell(*form, 33, 3), "20 lbs");
    EXPECT_EQ(cell(*form, 33, 1), "4");
}

TEST_F(Form24Test, TheNeedColumnIsEnteredThroughTheAmountPerPerson)
{
    auto form = openShown();
    moveTo(*form, 53, 3);
    EXPECT_EQ(form->grid()->currentColumn(), 2);
    EXPECT_EQ(form->inputBox()->text(), "14 gals");
    enter(*form, "2");
    EXPECT_EQ(cell(*form, 53, 2), "2 gals");
    EXPECT_EQ(cell(*form, 53, 3), "8 gals");
}

TEST_F(Form24Test, AnAmountOf0EmptiesTheRowsNeed)
{
    auto form = openShown();
    enterAt(*form, 54, 2, "0");
    EXPECT_EQ(form->grid()->rowTexts(54).mid(1, 3), QStringList({"", "", ""}));
}

TEST_F(Form24Test, AStarCellSendsTheCursorToTheItem)
{
    auto form = openShown();
    moveTo(*form, 0, 6);
    EXPECT_EQ(form->grid()->currentColumn(), 0);
    EXPECT_EQ(form->inputBox()->text(), "Grains");
    EXPECT_EQ(form->entryColumn(), 0);
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(Form24Test, AnEmptyNameIsAskedForFirst)
{
    auto form = openShown();
    enterAt(*form, 59, 0, "");
    form->grid()->setCurrentCell(58, 0);
    ASSERT_EQ(cell(*form, 59, 0), "");
    dialogs.expectMessage("Food Storage Entry", "Please enter Storage Item Name First!");
    moveTo(*form, 59, 6);
    EXPECT_EQ(form->grid()->currentColumn(), 0);
    EXPECT_EQ(form->entryColumn(), 0);
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(Form24Test, UsedWithoutStockIsRefused)
{
    auto form = openShown();
    dialogs.expectMessage("Food Storage Entry",
                          "There is No Amount On Hand Total for this Storage Item\nfrom which to Remove Amount Used!");
    moveTo(*form, 54, 7);
    EXPECT_EQ(form->entryRow(), 0);
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(Form24Test, AddedAndUsedChangeTheStockAndTheGroupTotal)
{
    auto form = openShown();
    enterAt(*form, 2, 6, "20");
    EXPECT_EQ(cell(*form, 2, 4), "70.5 lbs");
    EXPECT_EQ(cell(*form, 2, 6), "20");
    EXPECT_EQ(cell(*form, 2, 7), "") << "one last action";
    EXPECT_EQ(cell(*form, 0, 4), "170.5 lbs");
    enterAt(*form, 1, 7, "100");
    EXPECT_EQ(cell(*form, 1, 4), "");
    EXPECT_EQ(cell(*form, 1, 6), "");
    EXPECT_EQ(cell(*form, 0, 4), "70.5 lbs");
}

TEST_F(Form24Test, ANegativePastedAmountIsRefusedAndStaysInTheBox)
{
    auto form = openShown();
    moveTo(*form, 2, 6);
    form->inputBox()->setText("-5");
    QTest::keyClick(form->inputBox(), Qt::Key_Return);
    EXPECT_EQ(form->inputBox()->text(), "-5");
    EXPECT_TRUE(form->inputBox()->hasFocus());
    EXPECT_EQ(cell(*form, 2, 6), "");
    EXPECT_FALSE(form->model().dataChanged());
}

TEST_F(Form24Test, TheFamilyColumnGivesTheKeyboardToTheFamilyField)
{
    auto form = openShown();
    moveTo(*form, 0, 1);
    EXPECT_TRUE(form->familyField()->hasFocus());
    EXPECT_EQ(form->familyField()->palette().color(QPalette::Base), kYellow);
}

TEST_F(Form24Test, TheFamilyFieldTakesDigitsAndWorksOutEveryNeed)
{
    auto form = openShown();
    EXPECT_EQ(form->familyField()->objectName(), "Text2");
    EXPECT_EQ(form->familyField()->text(), "4");
    form->familyField()->setFocus();
    form->familyField()->selectAll();
    QTest::keyClicks(form->familyField(), "a1.2-");
    EXPECT_EQ(form->familyField()->text(), "12");
    QTest::keyClick(form->familyField(), Qt::Key_Return);
    EXPECT_EQ(cell(*form, 0, 1), "12");
    EXPECT_EQ(cell(*form, 0, 3), "3600 lbs");
    EXPECT_EQ(cell(*form, 53, 3), "168 gals");
    EXPECT_TRUE(form->model().dataChanged());
    form->familyField()->setFocus();
    form->familyField()->selectAll();
    QTest::keyClicks(form->familyField(), "0");
    form->inputBox()->setFocus();
    EXPECT_EQ(form->model().familySize(), "0") << "kept on leaving the field";
    EXPECT_EQ(cell(*form, 0, 3), "3600 lbs") << "0 has no effect";
}

TEST_F(Form24Test, ARightClickOnARowTellsItsNumberAndItem)
{
    auto form = openShown();
    const QRect at = form->grid()->visualRect(form->grid()->model()->index(1, 3));
    emit form->grid()->customContextMenuRequested(at.center());
    EXPECT_EQ(form->screenStatusBar()->activity(), " Row 2:  Wheat");
    form->findChild<QPushButton*>("Command2_7")->click();
    const QRect water = form->grid()->visualRect(form->grid()->model()->index(0, 0));
    emit form->grid()->customContextMenuRequested(water.center());
    EXPECT_EQ(form->screenStatusBar()->activity(), " Row 54:  Water (2 weeks)");
}

TEST_F(Form24Test, TheStatusBarTellsTheKind)
{
    auto form = open(StorageKind::Emergency);
    EXPECT_EQ(form->screenStatusBar()->activity(), "Emergency Storage");
}
