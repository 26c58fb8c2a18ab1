#pragma once
// The drive list of the folder chooser. The old program's lists began at
// drive C:; here "C:" stands for the user's home folder, and the mounted
// volumes a user can keep files on (disks, flash cards, network shares)
// follow under their root paths. The kernel's own file systems (proc, sysfs,
// tmpfs …) are left out.
#include <QByteArrayView>
#include <QList>
#include <QStorageInfo>
#include <QString>

struct DriveEntry {
    QString caption;   // "C:", or the root path and the volume's name
    QString rootPath;  // the folder the drive starts at; nothing above it is shown

    bool operator==(const DriveEntry&) const = default;
};

bool IsPseudoFileSystem(QByteArrayView type);

// "C:" for `homePath` first, then every volume that is valid, ready and not
// a pseudo file system, captioned by its root path with its name in
// brackets when it has one ("/media/anna/STICK [STICK]").
QList<DriveEntry> DriveEntries(const QString& homePath, const QList<QStorageInfo>& volumes);

// The drive that holds `folder` most closely (home before the volume home
// lies on); -1 when none does. Paths are compared whole folder by folder:
// "/home/anna" holds "/home/anna/Recipes", not "/home/annabel".
int DriveOf(const QList<DriveEntry>& drives, const QString& folder);
