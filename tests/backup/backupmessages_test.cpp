// Every message of the backup screen, word for word, with its buttons and
// default; the run tests script the prompts through these builders.
#include "backup/logic/backupmessages.h"
#include "backup/logic/backupsets.h"
#include "backup/logic/backuptexts.h"

#include <gtest/gtest.h>

namespace {

TEST(BackupMessages, DeleteQuestionBeforeABackupDefaultsToNo)
{
    EXPECT_EQ(DeleteBeforeBackupQuestion("Basic", "/media/usb/"),
              (Message{"Delete Files",
                       "This utility will first Delete all existing Basic files\nlocated in Path: /media/usb/\n\nProceed?",
                       Buttons::YesNoCancel, Icon::Question, 2}));
    EXPECT_EQ(DeleteBeforeBackupQuestion("", "/x").text,
              "This utility will first Delete all existing  files\nlocated in Path: /x\n\nProceed?");
}

TEST(BackupMessages, DeleteQuestionBeforeARestore)
{
    EXPECT_EQ(DeleteBeforeRestoreQuestion("Auto"),
              (Message{"Delete Files",
                       "This utility will first Delete all existing Auto files\nlocated in Brindlepot Program!\n\nProceed?",
                       Buttons::YesNoCancel, Icon::Question, 2}));
}

TEST(BackupMessages, FullDiskQuestionHasSixLines)
{
    const Message m = FullDiskQuestion();
    EXPECT_EQ(m.title, "Backup Disk");
    EXPECT_EQ(m.buttons, Buttons::OkCancel);
    EXPECT_EQ(m.text, "Disk is either Full, or there is not enough room\n"
                      "remaining for the requested backup files!\n"
                      "Please Insert a New Blank Formatted\n"
                      "Backup Disk and then Click on OK.\n"
                      "CAUTION: Wait till Disk Drive light goes out and\n"
                      "Be sure New Disk is inserted before Clicking OK");
}

TEST(BackupMessages, CancellationKeepsItsSpelling)
{
    const Message m = BackupCancelledMessage();
    EXPECT_EQ(m.title, "Backup Proceedure Cancelation");
    EXPECT_EQ(m.buttons, Buttons::Ok);
    EXPECT_EQ(m.text, "You have cancelled the backup proceedure!\n"
                      "If backup files were on this disk they have been deleted!\n"
                      "May we suggest you initiate Backup for these files again!");
}

TEST(BackupMessages, SpanningAndRestoreMessages)
{
    EXPECT_EQ(DiskAccessMessage(),
              (Message{"Disk Error",
                       "Unable to access Disk or Disk is Full!\nMake sure Disk is in Drive and Not Write Protected!",
                       Buttons::OkCancel, Icon::Exclamation, 1}));
    EXPECT_EQ(SpanDiskFullMessage(2),
              (Message{"Backup Disk",
                       "Disk is Full.\nPlease Insert Backup Disk #2\nCAUTION: Wait till Disk Drive light goes out and "
                       "Be sure New Disk is inserted before Clicking OK",
                       Buttons::Ok, Icon::Exclamation, 1}));
    EXPECT_EQ(RestoreFileMissingMessage().text,
              "Unable to find Backup Disk or Location containing requested files!\n"
              "Please insert another backup Disk into selected Drive and Try again.");
    EXPECT_EQ(RestoreDiskOneMissingMessage().text,
              "Unable to find Backup Disk #1 or Backup files!\nPlease insert Disk #1 into selected Drive and Try again.");
    EXPECT_EQ(RestoreDiskOneMissingMessage().title, "Disk Error");
    EXPECT_EQ(RestoreDiskAccessMessage(),
              (Message{"Disk Error", "Unable to access Disk. Make sure Disk is in Drive!", Buttons::OkCancel,
                       Icon::Exclamation, 1}));
    EXPECT_EQ(RestoreNextDiskMessage(3).title, "Restore Function");
    EXPECT_EQ(RestoreNextDiskMessage(3).text, "Please insert Backup Disk #3");
    EXPECT_EQ(DriveUnavailableMessage().title, "Device/Drive Error");
    EXPECT_EQ(DriveUnavailableMessage().text, "Device/Drive is Unavailable!");
}

TEST(BackupMessages, StatusTexts)
{
    EXPECT_EQ(BackupStatus::MakingRecipeDisk(2), "Making Recipe Backup Disk #2");
    EXPECT_EQ(BackupStatus::MakingMenuPlanDisk(1), "Making Menu Plan Backup Disk #1");
}

TEST(BackupScreenTexts, BackingUpRecipes)
{
    const BackupScreenTexts texts = BackupScreenTextsFor(*BackupSetFor(0, {4, 0}));
    EXPECT_EQ(texts.title, "Backup Recipes from Cookbook # 4");
    EXPECT_EQ(texts.text, "This utility allows you to make a backup of the Recipes from Cookbook # 4 contained within "
                          "this program.  To make the backup , first create a folder on your hard drive or flash card "
                          "etc., then select Drive or location from the Drives and or Folders lists below, then Click "
                          "the &Make Backup Button and follow directions as they appear.");
    EXPECT_EQ(texts.caution, "");
    EXPECT_EQ(texts.runCaption, "&Make Backup");
}

TEST(BackupScreenTexts, RestoringAMenuPlan)
{
    const BackupScreenTexts texts = BackupScreenTextsFor(*BackupSetFor(35, {1, 2026}));
    EXPECT_EQ(texts.title, "Restore  Menu Planner File from Backup Media");
    EXPECT_EQ(texts.caution,
              "CAUTION: RESTORE FUNCTION WILL FIRST ERASE ALL EXISTING  Menu Planner File IN THE PROGRAM AND THEN "
              "RESTORE FILES.");
    EXPECT_EQ(texts.text, "To restore, first place backup disk in Drive a: or select Folder/files location, then "
                          "select Drive and or folder from the Drive/Folders lists below, then Click &Restore  Menu "
                          "Planner File Button and follow directions as they appear.");
    EXPECT_EQ(texts.runCaption, "&Restore  Menu Planner File");
}

TEST(BackupScreenTexts, TheTargetPathEndsInASeparator)
{
    EXPECT_EQ(TargetPath("/media/usb"), "/media/usb/");
    EXPECT_EQ(TargetPath("/"), "/");
}

} // namespace
