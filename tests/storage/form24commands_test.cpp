// The storage screen's whole-table commands: default titles and amounts,
// clearing the last actions, copying, saving (and a save that fails), the
// exit question, backup and restore, the grid's colours and Escape.
#include "common/writefailure.h"
#include "shell/screens/backgroundselector.h"
#include "storage/logic/storagefiles.h"
#include "storage/logic/storageoutput.h"
#include "form24_fixture.h"
#include "raw_slots.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>

namespace {

const char* const kExitQuestion = "Save changes made to Food Storage data before exiting?";
const char* const kBackupQuestion = "Save changes made to Food Storage data before making backup?";

} // namespace

// ---- Defaults --------------------------------------------------------------------------------

TEST_F(Form24Test, ItemDefaultsAsksWithNoAsTheDefaultAndNoChangesNothing)
{
    folder.writeBytes("FdsB3.Fil", QuotedLines({"New Grains", "New Wheat"}));
    auto form = open();
    dialogs.expectMessage("Default Setting", "Replace Item Titles with Default Titles?", Answer::No);
    button(*form, 1)->click();
    const Message asked = dialogs.messages().last();
    EXPECT_EQ(asked.buttons, Buttons::YesNo);
    EXPECT_EQ(asked.defaultButton, 2);
    EXPECT_EQ(cell(*form, 0, 0), "Grains");
    EXPECT_FALSE(form->model().dataChanged());
    dialogs.expectMessage("Default Setting", "Replace Item Titles with Default Titles?", Answer::Yes);
    act(*form, "mItemDefaults")->trigger();
    EXPECT_EQ(cell(*form, 0, 0), "New Grains");
    EXPECT_EQ(cell(*form, 1, 0), "    New Wheat");
    EXPECT_EQ(cell(*form, 2, 0), "    White Rice") << "past the file's end";
    EXPECT_TRUE(form->model().dataChanged());
}

TEST_F(Form24Test, ApproximateAmountsAsksAndReplacesTheAmountsAndNeeds)
{
    folder.writeBytes("EmerE4.Fil", QuotedLines({"2 cans", "1 gals"}));
    auto form = open(StorageKind::Emergency);
    const QString question = "Replace Approximate Amount Per Person\nwith Default Amounts?";
    dialogs.expectMessage("Default Setting", question, Answer::No);
    button(*form, 2)->click();
    EXPECT_EQ(cell(*form, 1, 2), "3 cans");
    EXPECT_EQ(dialogs.messages().last().defaultButton, 2);
    dialogs.expectMessage("Default Setting", question, Answer::Yes);
    act(*form, "mApproxAmounts")->trigger();
    EXPECT_EQ(cell(*form, 1, 2), "2 cans");
    EXPECT_EQ(cell(*form, 1, 3), "8 cans");
    EXPECT_EQ(cell(*form, 2, 2), "1 gals");
    EXPECT_EQ(cell(*form, 10, 2), "3 gals") << "past the file's end";
    EXPECT_TRUE(form->model().dataChanged());
}

// ---- Clear last action columns ---------------------------------------------------------------

TEST_F(Form24Test, ClearLastActionColumnsOffersYesNoCancelWithNoTheDefaultAndOnlyYesClears)
{
    auto form = open();
    const QString question = "Delete All Last Action Data,\n(Last 3 Columns of Data)?";
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        dialogs.expectMessage("Delete Data", question, answer);
        act(*form, "mClearLastActions")->trigger();
        EXPECT_EQ(cell(*form, 1, 5), "4/3/26");
    }
    EXPECT_EQ(dialogs.messages().last().buttons, Buttons::YesNoCancel);
    EXPECT_EQ(dialogs.messages().last().defaultButton, 2);
    dialogs.expectMessage("Delete Data", question, Answer::Yes);
    act(*form, "mClearLastActions")->trigger();
    EXPECT_EQ(form->grid()->rowTexts(1).mid(5), QStringList({"", "", ""}));
    EXPECT_EQ(form->grid()->rowTexts(0).mid(5), QStringList({"*", "*", "*"})) << "the markers survive";
    EXPECT_TRUE(form->model().dataChanged());
}

// ---- Copy ------------------------------------------------------------------------------------

TEST_F(Form24Test, CopyPutsTheTableOnTheClipboardAndSaysSo)
{
    auto form = open();
    QGuiApplication::clipboard()->clear();
    dialogs.expectMessage("Copy Option", "Data has been copied to the Windows Clipboard.");
    act(*form, "mCopy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), StorageClipboardText(form->model().table()));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("Storage\r\nNumber  Amount     Total\r\n"));
    QGuiApplication::clipboard()->clear();
    dialogs.expectMessage("Copy Option", "Data has been copied to the Windows Clipboard.");
    act(*form, "mEditCopy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().size(), StorageClipboardText(form->model().table()).size());
    EXPECT_TRUE(dialogs.scriptDone());
}

// ---- Save and exit ------------------------------------------------------------------------------

TEST_F(Form24Test, SaveWritesTheTableAndTheFamily)
{
    auto form = openShown();
    enterAt(*form, 59, 0, "Cider Vinegar");
    button(*form, 3)->click();
    EXPECT_FALSE(form->model().dataChanged());
    EXPECT_EQ(ReadTableFile(StorageKind::Basic).cell(60, 0), "Cider Vinegar");
    EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), QByteArray("\"4\"\r\n"));
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(act(*form, "mSave")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
}

TEST_F(Form24Test, SaveTakesAFamilySizeTypedButNotYetLeft)
{
    auto form = openShown();
    form->familyField()->setFocus();
    form->familyField()->selectAll();
    QTest::keyClicks(form->familyField(), "6");
    act(*form, "mSave")->trigger();
    EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), QByteArray("\"6\"\r\n"));
    EXPECT_EQ(cell(*form, 0, 3), "1800 lbs");
    EXPECT_FALSE(form->model().dataChanged());
}

TEST_F(Form24Test, AFailedSaveTellsTheUserKeepsTheValueAndTheChangeAndTheOldFile)
{
    auto form = openShown();
    enterAt(*form, 59, 0, "Cider Vinegar");
    ASSERT_TRUE(QFile::remove(folder.filePath("FdsB1.Fil")));
    ASSERT_TRUE(QDir().mkdir(folder.filePath("FdsB1.Fil")));
    const Message failed = WriteFailedMessage("FdsB1.Fil");
    dialogs.expectMessage(failed.title, failed.text);
    act(*form, "mSave")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(form->model().dataChanged());
    EXPECT_EQ(cell(*form, 59, 0), "Cider Vinegar");
    EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), TestDataBytes("FdsB2.Fil"));
    EXPECT_EQ(folder.bytesOf("EmerE1.Fil"), TestDataBytes("EmerE1.Fil"));
    // Leaving asks again, and a save that fails keeps the screen open.
    dialogs.expectMessage("Food Storage", kExitQuestion, Answer::Yes);
    dialogs.expectMessage(failed.title, failed.text);
    form->close();
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(Form24Test, LeavingWithChangesAsksYesSavesNoLeavesCancelStays)
{
    auto form = openShown();
    enterAt(*form, 59, 0, "Cider Vinegar");
    dialogs.expectMessage("Food Storage", kExitQuestion, Answer::Cancel);
    button(*form, 4)->click();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(dialogs.messages().last().buttons, Buttons::YesNoCancel);
    dialogs.expectMessage("Food Storage", kExitQuestion, Answer::No);
    QSignalSpy closed(form.get(), &ActivityWindow::closed);
    act(*form, "mExit")->trigger();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(folder.bytesOf("FdsB1.Fil"), TestDataBytes("FdsB1.Fil"));

    auto again = openShown();
    enterAt(*again, 59, 0, "Malt Vinegar");
    dialogs.expectMessage("Food Storage", kExitQuestion, Answer::Yes);
    again->close();
    EXPECT_FALSE(again->isVisible());
    EXPECT_EQ(ReadTableFile(StorageKind::Basic).cell(60, 0), "Malt Vinegar");
}

TEST_F(Form24Test, LeavingWithoutChangesAsksNothing)
{
    auto form = openShown();
    QSignalSpy closed(form.get(), &ActivityWindow::closed);
    form->pressEscape();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

// ---- Backup and restore ----------------------------------------------------------------------------

TEST_F(Form24Test, BackupAndRestoreStayOffWithoutABackupScreen)
{
    auto form = open();
    EXPECT_FALSE(act(*form, "mBackup")->isEnabled());
    EXPECT_FALSE(act(*form, "mRestore")->isEnabled());
}

TEST_F(Form24Test, BackupAsksAboutChangesThenOpensTheBackupScreenWithTheKindsMode)
{
    QList<int> modes;
    for (const auto& [kind, mode] : {std::pair{StorageKind::Basic, 14}, std::pair{StorageKind::Emergency, 16},
                                     std::pair{StorageKind::Additional, 18}}) {
        auto form = open(kind);
        form->setBackupOpener([&modes](int opened) { modes << opened; });
        ASSERT_TRUE(act(*form, "mBackup")->isEnabled());
        act(*form, "mBackup")->trigger();
        EXPECT_EQ(modes.last(), mode);
    }
    EXPECT_TRUE(dialogs.messages().isEmpty()) << "nothing changed, nothing asked";

    auto form = openShown(StorageKind::Emergency);
    form->setBackupOpener([&modes](int opened) { modes << opened; });
    enterAt(*form, 59, 0, "Board Games");
    dialogs.expectMessage("Food Storage", kBackupQuestion, Answer::Cancel);
    act(*form, "mBackup")->trigger();
    EXPECT_EQ(modes.size(), 3) << "Cancel opens nothing";
    dialogs.expectMessage("Food Storage", kBackupQuestion, Answer::Yes);
    act(*form, "mBackup")->trigger();
    EXPECT_EQ(modes.last(), 16);
    EXPECT_EQ(ReadTableFile(StorageKind::Emergency).cell(60, 0), "Board Games") << "saved before the backup";
}

TEST_F(Form24Test, RestoreOpensTheBackupScreenThenShowsTheRestoredTable)
{
    auto form = open(StorageKind::Additional);
    form->setBackupOpener([this](int mode) {
        EXPECT_EQ(mode, 19);
        StorageTable restored;
        restored.setCell(1, kItemColumn, QStringLiteral("Restored Meats"));
        WriteTableFile(StorageKind::Additional, restored);
    });
    act(*form, "mRestore")->trigger();
    EXPECT_EQ(cell(*form, 0, 0), "Restored Meats");
    EXPECT_FALSE(form->model().dataChanged());
}

// ---- Grid colours --------------------------------------------------------------------------------

TEST_F(Form24Test, TheGridTakesItsColoursFromGColor1Slots71And72)
{
    WriteSlotText(GColor1, 71, u"65280");
    WriteSlotText(GColor1, 72, u"255");
    WriteSlotText(GColor1, 28, u"16711680");
    auto form = open();
    EXPECT_EQ(form->grid()->palette().color(QPalette::Base), QColor(0, 255, 0));
    EXPECT_EQ(form->grid()->palette().color(QPalette::Text), QColor(255, 0, 0));
}

TEST_F(Form24Test, GridTextColorStoresTheNumberInSlot72)
{
    auto form = open();
    dialogs.expectColor(32768);
    act(*form, "mGridTextColor")->trigger();
    EXPECT_EQ(ReadSlotText(GColor1, 72), "32768");
    EXPECT_EQ(form->grid()->palette().color(QPalette::Text), QColor(0, 128, 0));
    dialogs.expectColor(std::nullopt);
    act(*form, "mGridTextColor")->trigger();
    EXPECT_EQ(ReadSlotText(GColor1, 72), "32768") << "Cancel changes nothing";
}

TEST_F(Form24Test, GridBackgroundSelectorStoresAPictureAColourOrDefaultInSlot71)
{
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(10, 200, 30));
    ASSERT_TRUE(picture.save(folder.filePath("WP3.jpg")));
    auto form = openShown();
    BackgroundSelector* selector = form->gridBackgroundSelector();
    act(*form, "mGridBackground")->trigger();
    ASSERT_TRUE(selector->isOpen());
    QTest::mouseClick(selector->thumbnail(2), Qt::LeftButton);
    EXPECT_EQ(form->grid()->palette().brush(QPalette::Base).texture().size(), QSize(40, 30)) << "shown at once";
    EXPECT_EQ(ReadSlotText(GColor1, 71), "") << "a click stores nothing";
    QTest::mouseClick(selector->findChild<QPushButton*>("Command2_2"), Qt::LeftButton);
    EXPECT_EQ(ReadSlotText(GColor1, 71), "WP3");
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), QByteArray()) << "the main background stays";

    act(*form, "mGridBackground")->trigger();
    EXPECT_TRUE(selector->marker()->isVisible()) << "the stored picture is marked";
    dialogs.expectColor(255);
    QTest::mouseClick(selector->findChild<QPushButton*>("Command2_0"), Qt::LeftButton);
    EXPECT_EQ(ReadSlotText(GColor1, 71), "255");
    EXPECT_EQ(form->grid()->palette().color(QPalette::Base), QColor(255, 0, 0));

    act(*form, "mGridBackground")->trigger();
    QTest::mouseClick(selector->findChild<QPushButton*>("Command2_1"), Qt::LeftButton);
    EXPECT_EQ(ReadSlotText(GColor1, 71), "Default");
    EXPECT_TRUE(form->grid()->palette().brush(QPalette::Base).texture().isNull());
}

TEST_F(Form24Test, EscapeClosesTheGridBackgroundSelectorFirst)
{
    auto form = openShown();
    act(*form, "mGridBackground")->trigger();
    ASSERT_TRUE(form->gridBackgroundSelector()->isOpen());
    form->pressEscape();
    EXPECT_FALSE(form->gridBackgroundSelector()->isOpen());
    EXPECT_TRUE(form->isVisible());
}
