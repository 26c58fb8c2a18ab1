#pragma once
// The backup and restore runs of every file set. A run talks to the user
// through Dialogs (questions, disk changes, the folder where the next medium
// is mounted) and shows its progress through BackupProgress; every write
// onto the medium, and into the program folder when restoring, goes through
// a BackupMedium from the context's factory.
//
// The program folder is the current directory, as everywhere.
#include "backup/logic/backupmedium.h"
#include "backup/logic/backupsets.h"
#include "common/dialogs.h"

class BackupProgress {
public:
    virtual ~BackupProgress() = default;
    virtual void setStatus(const QString& text) = 0;
    // Shows the bar with the range 0..maximum.
    virtual void showBar(qint64 maximum) = 0;
    virtual void setBar(qint64 value) = 0;
    virtual void hideBar() = 0;
};

struct BackupContext {
    Dialogs& dialogs;
    BackupProgress& progress;
    // Where the backup goes, or where the restore reads: an absolute folder.
    QString folder;
    MediumFactory media = PlainMedia();
};

enum class RunEnd {
    NotStarted,  // refused, or the question answered other than Yes
    Completed,
    Stopped,     // ended part way: cancelled, or the medium failed
};

RunEnd RunBackup(const BackupSet& set, BackupContext& context);
RunEnd RunRestore(const BackupSet& set, BackupContext& context);
