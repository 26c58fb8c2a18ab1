#pragma once
// The two sets copied record by record across media, recipes and a year's
// menu plan, and the first generation's recipe disks (read only): which
// files, which record lengths, which names on the medium.
#include "backup/logic/backupsets.h"

#include <QStringList>
#include <functional>

struct RecordStream {
    QString programName;
    // The name on the medium; the first generation named it by the disk.
    std::function<QString(int disk)> mediumName;
    int recordLength = 0;
};

struct SpanLayout {
    QString setName;     // info record 1
    QString infoFile;
    int infoRecordLength = 0;
    // Copied whole before the records, the first one alone (recipes: the
    // 22 name files, "Appenfil" first).
    QStringList headFiles;
    QList<RecordStream> streams;
    // Deleted at the target before disk 1, and on every later disk.
    QStringList firstDiskSuffixes;
    QStringList laterDiskSuffixes;
    QStringList mediumNames;  // deleted by name at the start of every disk
    // Deleted from the program folder before a restore.
    QStringList programSuffixes;
    QStringList programNames;
    std::function<QString(int disk)> diskStatus;
};

SpanLayout RecipeLayout(int cookbook);
SpanLayout MenuPlanLayout(int year);
SpanLayout OldRecipeLayout();
SpanLayout LayoutOf(const BackupSet& set);

// The highest record number the 22 name files of the cookbook list: the
// count of records a recipe backup copies. A missing name file is created
// empty, as opening a random file does.
qint64 HighestListedRecord(int cookbook);

// The record lengths of the first generation's recipe disks.
inline constexpr int kOldRecipeRecord = 1545;
inline constexpr int kOldExtraRecord = 250;
