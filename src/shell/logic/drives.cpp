#include "shell/logic/drives.h"

#include <QDir>

namespace {

bool Holds(const QString& root, const QString& folder)
{
    if (root == folder)
        return true;
    const QString prefix = root.endsWith(u'/') ? root : root + u'/';
    return folder.startsWith(prefix);
}

} // namespace

bool IsPseudoFileSystem(QByteArrayView type)
{
    static const QByteArrayView kPseudo[] = {
        "autofs",  "binfmt_misc", "bpf",       "cgroup",  "cgroup2", "configfs", "debugfs", "devpts",
        "devtmpfs", "efivarfs",   "fusectl",   "hugetlbfs", "mqueue", "nsfs",    "proc",    "pstore",
        "ramfs",   "rpc_pipefs",  "securityfs", "squashfs", "sysfs",  "tmpfs",   "tracefs",
    };
    for (QByteArrayView pseudo : kPseudo) {
        if (type == pseudo)
            return true;
    }
    return false;
}

QList<DriveEntry> DriveEntries(const QString& homePath, const QList<QStorageInfo>& volumes)
{
    QList<DriveEntry> drives = {{QStringLiteral("C:"), QDir::cleanPath(homePath)}};
    for (const QStorageInfo& volume : volumes) {
        if (!volume.isValid() || !volume.isReady() || IsPseudoFileSystem(volume.fileSystemType()))
            continue;
        const QString root = QDir::cleanPath(volume.rootPath());
        const QString name = volume.name();
        drives.append({name.isEmpty() ? root : root + QStringLiteral(" [") + name + u']', root});
    }
    return drives;
}

int DriveOf(const QList<DriveEntry>& drives, const QString& folder)
{
    const QString clean = QDir::cleanPath(folder);
    int best = -1;
    for (int i = 0; i < int(drives.size()); ++i) {
        if (Holds(drives[i].rootPath, clean) && (best < 0 || drives[i].rootPath.size() > drives[best].rootPath.size()))
            best = i;
    }
    return best;
}
