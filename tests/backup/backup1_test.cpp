// Backup1 on screen, offscreen: its texts in each direction, the commands
// it leaves off, a run through its button, and RunBackup1.
#include "backup/logic/backupmessages.h"
#include "backup/logic/backuptexts.h"
#include "backup/screens/backup1.h"
#include "backup_files.h"
#include "backup_fixture.h"
#include "fit_check.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace {

class Backup1Test : public BackupTest {
protected:
    template <typename T> static T* child(QWidget& screen, const char* name)
    {
        T* found = screen.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    static QString text(QWidget& screen, const char* label) { return child<QLabel>(screen, label)->text(); }
};

TEST_F(Backup1Test, BackupModeTextsAndTheRestoreCommandOff)
{
    Backup1 screen(dialogs, *BackupSetFor(16, {}));
    EXPECT_EQ(screen.windowTitle(), "Backup Emergency Food Storage Files");
    EXPECT_EQ(text(screen, "Label1"), "Backup Emergency Food Storage Files");
    EXPECT_EQ(text(screen, "Label2"), BackupScreenTextsFor(*BackupSetFor(16, {})).text);
    EXPECT_EQ(screen.findChild<QLabel*>("Label3"), nullptr);
    EXPECT_EQ(child<QPushButton>(screen, "Command1")->text(), "&Make Backup");
    EXPECT_EQ(child<QPushButton>(screen, "Command2")->text(), "E&xit");
    EXPECT_TRUE(child<QAction>(screen, "mMakeBackup")->isEnabled());
    EXPECT_FALSE(child<QAction>(screen, "mRestore")->isEnabled());
    EXPECT_EQ(child<QAction>(screen, "mRestore")->text(), "&Restore Files from Disk");
    EXPECT_EQ(child<QAction>(screen, "mMakeBackup")->text(), "&Make Backup Disk");
    EXPECT_TRUE(child<QAction>(screen, "mExit")->isEnabled());
}

TEST_F(Backup1Test, RestoreModeTextsAndTheBackupCommandOff)
{
    Backup1 screen(dialogs, *BackupSetFor(1, {2, 0}));
    EXPECT_EQ(screen.windowTitle(), "Restore Recipes from Cookbook # 2 from Backup Media");
    EXPECT_EQ(text(screen, "Label3"), "CAUTION: RESTORE FUNCTION WILL FIRST ERASE ALL EXISTING Recipes from Cookbook "
                                      "# 2 IN THE PROGRAM AND THEN RESTORE FILES.");
    EXPECT_EQ(child<QPushButton>(screen, "Command1")->text(), "&Restore Recipes from Cookbook # 2");
    EXPECT_FALSE(child<QAction>(screen, "mMakeBackup")->isEnabled());
    EXPECT_TRUE(child<QAction>(screen, "mRestore")->isEnabled());
}

TEST_F(Backup1Test, FitsTheSmallWindows)
{
    Backup1 screen(dialogs, *BackupSetFor(43, {}));
    screen.show();
    for (const FitSize& fit : kFitSizes)
        EXPECT_EQ(FitProblemsAt(&screen, fit.size), "") << fit.name;
}

TEST_F(Backup1Test, TheButtonRunsABackupIntoTheChosenFolder)
{
    program.writeBytes("AddA1.Fil", "one");
    const QString disk = medium("disk");
    Backup1 screen(dialogs, *BackupSetFor(18, {}));
    screen.setFolder(disk);
    dialogs.expectMessage("Delete Files", DeleteBeforeBackupQuestion("Additional", TargetPath(disk)).text, Answer::Yes);
    child<QPushButton>(screen, "Command1")->click();
    EXPECT_EQ(mediumBytes(disk, "AddA1.Ada"), QByteArray());  // names stay as the set spells them
    EXPECT_EQ(mediumBytes(disk, "AddA1.AdA"), "one");
    EXPECT_EQ(text(screen, "SSPanel1"), "Backup Complete");
    EXPECT_FALSE(child<QProgressBar>(screen, "ProgressBar1")->isVisibleTo(&screen));
    EXPECT_TRUE(child<QPushButton>(screen, "Command1")->isEnabled());
}

TEST_F(Backup1Test, ACompletedRestoreTurnsItsCommandOff)
{
    const QString disk = medium("disk");
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("AddA1.AdA"), "back"));
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("AddA3.AdA"), "back"));
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("AddA4.AdA"), "back"));
    Backup1 screen(dialogs, *BackupSetFor(19, {}));
    screen.setFolder(disk);
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Addt'l.").text, Answer::Yes);
    child<QAction>(screen, "mRestore")->trigger();
    EXPECT_TRUE(screen.restoreCompleted());
    EXPECT_EQ(text(screen, "SSPanel1"), "Restoration Completed");
    EXPECT_FALSE(child<QPushButton>(screen, "Command1")->isEnabled());
    EXPECT_FALSE(child<QAction>(screen, "mRestore")->isEnabled());
    EXPECT_EQ(program.bytesOf("AddA4.Fil"), "back");
}

TEST_F(Backup1Test, RunBackup1RefusesCodesNoScreenSets)
{
    EXPECT_FALSE(RunBackup1(nullptr, dialogs, 20, {}));
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(Backup1Test, RunBackup1ShowsTheScreenModallyAndSaysWhenARestoreCompleted)
{
    const QString disk = medium("disk");
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("WeightTrker.Wtp"), "\"Dad\"\r\n"));
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("Dad.Wtp"), "weights"));
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::Yes);
    QString shownTitle;
    QTimer::singleShot(0, [&] {
        auto* screen = qobject_cast<Backup1*>(QApplication::activeModalWidget());
        ASSERT_NE(screen, nullptr);
        shownTitle = screen->windowTitle();
        screen->setFolder(disk);
        screen->findChild<QPushButton*>("Command1")->click();
        screen->findChild<QPushButton*>("Command2")->click();
    });
    EXPECT_TRUE(RunBackup1(nullptr, dialogs, 43, {}));
    EXPECT_EQ(shownTitle, "Restore Weight Tracker Files from Backup Media");
    EXPECT_EQ(program.bytesOf("Dad.Fil"), "weights");
}

} // namespace
