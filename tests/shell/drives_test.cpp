// The drive list of the folder chooser: which volumes it shows and which
// drive a folder lies on.
#include "shell/logic/drives.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(Drives, PseudoFileSystemsAreKnownByType)
{
    for (const char* type : {"proc", "sysfs", "tmpfs", "devtmpfs", "devpts", "cgroup2", "squashfs", "tracefs"})
        EXPECT_TRUE(IsPseudoFileSystem(type)) << type;
    for (const char* type : {"ext4", "vfat", "exfat", "ntfs3", "btrfs", "xfs", "nfs4", "cifs", "overlay", ""})
        EXPECT_FALSE(IsPseudoFileSystem(type)) << type;
}

TEST(Drives, HomeComesFirstAsCThenTheUsableVolumes)
{
    const QStorageInfo root(QDir::rootPath());
    ASSERT_TRUE(root.isValid());
    const QList<DriveEntry> drives =
        DriveEntries(QStringLiteral("/home/anna/"), {QStorageInfo(), QStorageInfo(QStringLiteral("/no/such/place")), root});
    ASSERT_FALSE(drives.isEmpty());
    EXPECT_EQ(drives.first(), (DriveEntry{"C:", "/home/anna"}));
    if (IsPseudoFileSystem(root.fileSystemType())) {
        EXPECT_EQ(drives.size(), 1);
    } else {
        ASSERT_EQ(drives.size(), 2) << "invalid volumes are left out";
        EXPECT_EQ(drives[1].rootPath, "/");
        EXPECT_TRUE(drives[1].caption.startsWith("/"));
        if (!root.name().isEmpty()) {
            EXPECT_EQ(drives[1].caption, "/ [" + root.name() + "]");
        }
    }
}

TEST(Drives, AFolderLiesOnTheDriveThatHoldsItMostClosely)
{
    const QList<DriveEntry> drives = {{"C:", "/home/anna"}, {"/", "/"}, {"/media/anna/STICK [STICK]", "/media/anna/STICK"}};
    EXPECT_EQ(DriveOf(drives, "/home/anna"), 0);
    EXPECT_EQ(DriveOf(drives, "/home/anna/Recipes/Old"), 0);
    EXPECT_EQ(DriveOf(drives, "/home/anna/Recipes/../Backups"), 0);
    EXPECT_EQ(DriveOf(drives, "/home/annabel"), 1) << "a longer name is another folder";
    EXPECT_EQ(DriveOf(drives, "/home"), 1);
    EXPECT_EQ(DriveOf(drives, "/media/anna/STICK/Backup"), 2);
    EXPECT_EQ(DriveOf(drives, "/"), 1);
    EXPECT_EQ(DriveOf({{"C:", "/home/anna"}}, "/tmp"), -1);
}
