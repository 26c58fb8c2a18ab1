#pragma once
// The info file on each medium of a spanned set (DiskInfo.bkN for recipes,
// DiskY.Mbk for a year's menu plan): six records of 30 bytes, Windows-1252
// text padded with blanks, no length bytes.
//
//   1  set name: "Recipe" or "MPlan"
//   2  number of this disk, from 1, as text without a blank ("1")
//   3  number of the next disk; equal to record 2 on the last disk
//   4  records held on this disk
//   5  total records of the set, on disk 1 only (zero bytes on later disks)
//   6  format mark "T1"
//
// The first generation of recipe disks wrote 15-byte records and no mark.
#include "backup/logic/backupmedium.h"

#include <QByteArray>
#include <QString>

inline constexpr int kDiskInfoRecord = 30;
inline constexpr int kOldDiskInfoRecord = 15;
inline constexpr const char* kDiskInfoMark = "T1";

struct DiskInfo {
    QString setName;
    int disk = 0;
    int nextDisk = 0;
    qint64 count = 0;
    qint64 total = 0;
    QString mark;

    bool isLastDisk() const { return disk == nextDisk; }
    bool operator==(const DiskInfo&) const = default;
};

// Records 1 and 6, written at the start of every medium so that the later
// records fall inside bytes the file already holds.
bool StartDiskInfo(BackupMedium& medium, const QString& fileName, const QString& setName);
// Records 1 to 4 and 6, and record 5 on disk 1.
bool WriteDiskInfo(BackupMedium& medium, const QString& fileName, const DiskInfo& info);

// The info file's bytes as read: each record trimmed, numbers by Val. A
// missing file reads as empty values.
DiskInfo ParseDiskInfo(QByteArrayView bytes, int recordLength = kDiskInfoRecord);
DiskInfo ReadDiskInfo(const QString& folder, const QString& fileName, int recordLength = kDiskInfoRecord);
// True when the folder holds the file and its record 6 is not "T1": the
// first generation's disks.
bool IsOldFormatInfo(const QString& folder, const QString& fileName);
