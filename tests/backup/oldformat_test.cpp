// Restore of the first generation's recipe disks: 15-byte info records, no
// format mark, record files named by the disk number, 1545-byte recipes.
#include "backup/logic/backupmessages.h"
#include "backup_files.h"
#include "backup_fixture.h"
#include "cookbook/logic/cookbooknames.h"
#include "layout_bytes.h"

namespace {

using layout::PatternRecords;

QByteArray OldInfo(int disk, int next, int count, int total)
{
    QByteArray bytes;
    for (const QByteArray& text : {QByteArray("Recipe"), QByteArray::number(disk), QByteArray::number(next),
                                   QByteArray::number(count), QByteArray::number(total)})
        bytes += layout::Padded(text, 15);
    return bytes;
}

class OldFormatRestore : public BackupTest {
protected:
    // An old disk of `count` records starting at record `first` of the set.
    QString oldDisk(const QString& name, int disk, int next, int first, int count, int total)
    {
        const QString folder = medium(name);
        const QDir dir(folder);
        EXPECT_TRUE(WriteFileBytes(dir.filePath("DiskInfo.bk1"), OldInfo(disk, next, count, total)));
        EXPECT_TRUE(WriteFileBytes(dir.filePath(QStringLiteral("Recipe2.bk%1").arg(disk)),
                                   PatternRecords(first + count - 1, 1545).mid((first - 1) * 1545)));
        EXPECT_TRUE(WriteFileBytes(dir.filePath(QStringLiteral("Recipe4.bk%1").arg(disk)),
                                   PatternRecords(first + count - 1, 250).mid((first - 1) * 250)));
        if (disk == 1) {
            for (const QString& file : CookbookFileNames(1).mid(2))
                EXPECT_TRUE(WriteFileBytes(dir.filePath(file), layout::NameFile({layout::Entry(file.toLatin1(), 1)})));
        }
        return folder;
    }
};

TEST_F(OldFormatRestore, AnOldSetOfTwoDisksComesBackIntoCookbookOne)
{
    const QString one = oldDisk("one", 1, 2, 1, 3, 5);
    const QString two = oldDisk("two", 2, 2, 4, 2, 5);
    program.writeBytes("Recipe2.db1", "newer");
    program.writeBytes("Stray.DB1", "gone too");
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Recipe").text, Answer::Yes);
    dialogs.expectMessage("Restore Function", RestoreNextDiskMessage(2).text);
    dialogs.expectFolder(two);
    EXPECT_EQ(run(1, one), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf("Recipe2.db1"), PatternRecords(5, 1545));
    EXPECT_EQ(program.bytesOf("Recipe4.db1"), PatternRecords(5, 250));
    EXPECT_EQ(program.bytesOf("Appenfil.db1"), layout::NameFile({layout::Entry("Appenfil.db1", 1)}));
    EXPECT_FALSE(QFile::exists(program.filePath("Stray.DB1")));
}

TEST_F(OldFormatRestore, FilesOfBrokenRecordsAreNoOldDisk)
{
    const QString one = oldDisk("one", 1, 1, 1, 2, 2);
    ASSERT_TRUE(WriteFileBytes(QDir(one).filePath("Recipe2.bk1"), QByteArray(1545 + 7, 'x')));
    program.writeBytes("Recipe2.db1", "kept");
    dialogs.expectMessage("Disk Error", RestoreDiskOneMissingMessage().text);
    EXPECT_EQ(run(1, one), RunEnd::NotStarted);
    EXPECT_EQ(program.bytesOf("Recipe2.db1"), "kept");
}

TEST_F(OldFormatRestore, OnlyCookbookOneLooksForOldDisks)
{
    const QString one = oldDisk("one", 1, 1, 1, 2, 2);
    dialogs.expectMessage("Disk Error", RestoreDiskOneMissingMessage().text);
    EXPECT_EQ(run(1, one, {2, 0}), RunEnd::NotStarted);
}

} // namespace
