#include "backup/logic/backupmessages.h"

#include <QStringList>

namespace {

const QString kDiskError = QStringLiteral("Disk Error");
const QString kBackupDisk = QStringLiteral("Backup Disk");

QString Lines(const QStringList& lines)
{
    return lines.join(u'\n');
}

} // namespace

Message DeleteBeforeBackupQuestion(const QString& word, const QString& path)
{
    return {QStringLiteral("Delete Files"),
            QStringLiteral("This utility will first Delete all existing ") + word + QStringLiteral(" files\n") +
                QStringLiteral("located in Path: ") + path + QStringLiteral("\n\nProceed?"),
            Buttons::YesNoCancel, Icon::Question, 2};
}

Message DeleteBeforeRestoreQuestion(const QString& word)
{
    return {QStringLiteral("Delete Files"),
            QStringLiteral("This utility will first Delete all existing ") + word + QStringLiteral(" files\n") +
                QStringLiteral("located in Brindlepot Program!\n\nProceed?"),
            Buttons::YesNoCancel, Icon::Question, 2};
}

Message FullDiskQuestion()
{
    return {kBackupDisk,
            Lines({QStringLiteral("Disk is either Full, or there is not enough room"),
                   QStringLiteral("remaining for the requested backup files!"),
                   QStringLiteral("Please Insert a New Blank Formatted"),
                   QStringLiteral("Backup Disk and then Click on OK."),
                   QStringLiteral("CAUTION: Wait till Disk Drive light goes out and"),
                   QStringLiteral("Be sure New Disk is inserted before Clicking OK")}),
            Buttons::OkCancel, Icon::Exclamation, 1};
}

Message BackupCancelledMessage()
{
    return {QStringLiteral("Backup Proceedure Cancelation"),
            Lines({QStringLiteral("You have cancelled the backup proceedure!"),
                   QStringLiteral("If backup files were on this disk they have been deleted!"),
                   QStringLiteral("May we suggest you initiate Backup for these files again!")}),
            Buttons::Ok, Icon::Exclamation, 1};
}

Message DiskAccessMessage()
{
    return {kDiskError,
            Lines({QStringLiteral("Unable to access Disk or Disk is Full!"),
                   QStringLiteral("Make sure Disk is in Drive and Not Write Protected!")}),
            Buttons::OkCancel, Icon::Exclamation, 1};
}

Message SpanDiskFullMessage(int nextDisk)
{
    return {kBackupDisk,
            Lines({QStringLiteral("Disk is Full."), QStringLiteral("Please Insert Backup Disk #%1").arg(nextDisk),
                   QStringLiteral("CAUTION: Wait till Disk Drive light goes out and Be sure New Disk is "
                                  "inserted before Clicking OK")}),
            Buttons::Ok, Icon::Exclamation, 1};
}

Message RestoreFileMissingMessage()
{
    return {kDiskError,
            Lines({QStringLiteral("Unable to find Backup Disk or Location containing requested files!"),
                   QStringLiteral("Please insert another backup Disk into selected Drive and Try again.")}),
            Buttons::Ok, Icon::Exclamation, 1};
}

Message RestoreDiskOneMissingMessage()
{
    return {kDiskError,
            Lines({QStringLiteral("Unable to find Backup Disk #1 or Backup files!"),
                   QStringLiteral("Please insert Disk #1 into selected Drive and Try again.")}),
            Buttons::Ok, Icon::Exclamation, 1};
}

Message RestoreDiskAccessMessage()
{
    return {kDiskError, QStringLiteral("Unable to access Disk. Make sure Disk is in Drive!"), Buttons::OkCancel,
            Icon::Exclamation, 1};
}

Message RestoreNextDiskMessage(int disk)
{
    return {QStringLiteral("Restore Function"), QStringLiteral("Please insert Backup Disk #%1").arg(disk),
            Buttons::Ok, Icon::Information, 1};
}

Message DriveUnavailableMessage()
{
    return {QStringLiteral("Device/Drive Error"), QStringLiteral("Device/Drive is Unavailable!"), Buttons::Ok,
            Icon::Exclamation, 1};
}

Message ProgramFolderRefusedMessage()
{
    return {kDiskError,
            Lines({QStringLiteral("The selected folder is the Brindlepot program folder itself."),
                   QStringLiteral("Please select another Drive or Folder for the backup files.")}),
            Buttons::Ok, Icon::Exclamation, 1};
}

QString NextDiskChooserTitle(int disk)
{
    return QStringLiteral("Backup Disk #%1").arg(disk);
}

QString BackupStatus::MakingRecipeDisk(int disk)
{
    return QStringLiteral("Making Recipe Backup Disk #%1").arg(disk);
}

QString BackupStatus::MakingMenuPlanDisk(int disk)
{
    return QStringLiteral("Making Menu Plan Backup Disk #%1").arg(disk);
}
