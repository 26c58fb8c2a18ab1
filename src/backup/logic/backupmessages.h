#pragma once
// The backup screen's questions and messages, word for word as users have
// always seen them (spellings included), and its status texts.
#include "common/dialogs.h"

#include <QString>

Message DeleteBeforeBackupQuestion(const QString& word, const QString& path);
Message DeleteBeforeRestoreQuestion(const QString& word);
Message FullDiskQuestion();
Message BackupCancelledMessage();
Message DiskAccessMessage();
Message SpanDiskFullMessage(int nextDisk);
Message RestoreFileMissingMessage();
Message RestoreDiskOneMissingMessage();
Message RestoreDiskAccessMessage();
Message RestoreNextDiskMessage(int disk);
Message DriveUnavailableMessage();
// Our own: a backup onto, or a restore from, the program's own folder would
// delete the very files it means to keep.
Message ProgramFolderRefusedMessage();

// The title of the folder chooser where the next medium is mounted.
QString NextDiskChooserTitle(int disk);

namespace BackupStatus {
inline const QString DeletingOldFiles = QStringLiteral("Deleting Old Files");
inline const QString Complete = QStringLiteral("Backup Complete");
inline const QString Terminated = QStringLiteral("Backup Terminated by User");
inline const QString RestorationCompleted = QStringLiteral("Restoration Completed");
QString MakingRecipeDisk(int disk);
QString MakingMenuPlanDisk(int disk);
} // namespace BackupStatus
