#pragma once
// The steps the backup and restore runs share; internal to the engine.
#include "backup/logic/backuprun.h"

#include <memory>

// The medium of a backup run, which changes when the user mounts the next.
struct MediumInUse {
    QString folder;
    std::unique_ptr<BackupMedium> medium;
};

// True when `folder` is the program folder itself.
bool IsProgramFolder(const QString& folder);

// After the prompt for the next medium: the folder where it is mounted,
// chosen from the current one. Nothing when the user cancels (the run ends).
// The program folder is refused and the choice asked again.
std::optional<QString> ChooseNextMedium(BackupContext& context, const QString& title, const QString& current);

// Copies `files` from the program folder onto the medium under the full-disk
// rule: a file that fails leaves no part behind and brings the full-disk
// question; OK goes on with the next file on the medium the user mounts
// (`onNewMedium` prepares it), Cancel shows the cancellation message. A file
// missing from the program folder is skipped. False when the run ends.
bool CopyUnderFullDiskRule(const QList<BackupFile>& files, BackupContext& context, MediumInUse& media,
                           const std::function<bool(BackupMedium&)>& onNewMedium = {});

// The file copy's progress on the bar, by bytes.
std::function<void(qint64, qint64)> BarByBytes(BackupProgress& progress);

RunEnd BackupFileCopySet(const BackupSet& set, BackupContext& context);
RunEnd RestoreFileCopySet(const BackupSet& set, BackupContext& context);
RunEnd BackupSpannedSet(const BackupSet& set, BackupContext& context);
RunEnd RestoreSpannedSet(const BackupSet& set, BackupContext& context);
