#pragma once
// What the backup screen says in each direction, assembled from the set's
// name, and the target path as the screen shows it.
#include "backup/logic/backupsets.h"

#include <QString>

struct BackupScreenTexts {
    QString title;    // the caption and the title label
    QString text;     // what to do
    QString caution;  // restore only
    QString runCaption;  // "&Make Backup" or "&Restore " and the set name
};

BackupScreenTexts BackupScreenTextsFor(const BackupSet& set);

// The folder with a separator at its end, as the target path is shown and
// named in the "Delete Files" question.
QString TargetPath(const QString& folder);
