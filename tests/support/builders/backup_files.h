#pragma once
// File sets for the backup tests and benchmarks: record files whose records
// all differ, so a record out of place shows, and cookbooks whose name files
// list a chosen highest record.
#include <QByteArray>
#include <QString>
#include <QStringList>

namespace layout {

// Record `number` of `length` bytes: its number and a byte pattern of it.
QByteArray PatternRecord(qint64 number, int length);
// Records 1..count, one after the other.
QByteArray PatternRecords(qint64 count, int length);

// Writes Recipe2 and Recipe4 of `records` pattern records and the 22 name
// files of `cookbook` into `folder`; the entries list records 1..highest,
// one type after another, so that `highest` is the largest number listed.
// False when a file could not be written.
bool WriteBackupCookbook(const QString& folder, int cookbook, qint64 records, qint64 highest);

// The weight tracker list of `names` and one file per individual.
bool WriteWeightTracker(const QString& folder, const QStringList& names, int fileSize);

} // namespace layout
