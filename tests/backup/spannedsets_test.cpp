// Recipes and menu plans copied record by record across media, and back.
#include "backup/logic/backupmessages.h"
#include "backup/logic/diskinfo.h"
#include "backup_files.h"
#include "backup/logic/backuptexts.h"
#include "backup_fixture.h"
#include "cookbook/logic/cookbooknames.h"
#include "planner/logic/menuplanfile.h"

namespace {

using layout::PatternRecord;
using layout::PatternRecords;

constexpr int kRecipe = 2045;
constexpr int kExtra = 250;
constexpr qint64 kInfoBytes = 180;

QByteArray Rec(const QByteArray& text)
{
    return text + QByteArray(30 - text.size(), ' ');
}

QByteArray InfoBytes(int disk, int next, int count, int total)
{
    return Rec("Recipe") + Rec(QByteArray::number(disk)) + Rec(QByteArray::number(next)) +
           Rec(QByteArray::number(count)) + (disk == 1 ? Rec(QByteArray::number(total)) : QByteArray(30, '\0')) +
           Rec("T1");
}

// Records first..first+count-1 of a pattern file.
QByteArray Records(qint64 first, qint64 count, int length)
{
    return PatternRecords(first + count - 1, length).mid((first - 1) * length);
}

class SpannedSets : public BackupTest {
protected:
    // The bytes of the 22 name files of cookbook 1.
    qint64 nameBytes() const
    {
        qint64 total = 0;
        for (const QString& name : CookbookFileNames(1).mid(2))
            total += program.bytesOf(name).size();
        return total;
    }
    void expectRecipeBackup(const QString& folder)
    {
        dialogs.expectMessage("Delete Files", DeleteBeforeBackupQuestion("Recipe", TargetPath(folder)).text, Answer::Yes);
    }
    void expectDiskChange(int disk, const QString& folder)
    {
        dialogs.expectMessage("Backup Disk", SpanDiskFullMessage(disk).text);
        dialogs.expectFolder(folder);
    }
    void expectRecipeRestore()
    {
        dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Recipe").text, Answer::Yes);
    }
    void expectNextRestoreDisk(int disk, const QString& folder)
    {
        dialogs.expectMessage("Restore Function", RestoreNextDiskMessage(disk).text);
        dialogs.expectFolder(folder);
    }
    // A disk that holds the name files, the info file and `records` records.
    qint64 firstDiskFor(qint64 records) const { return kInfoBytes + nameBytes() + records * (kRecipe + kExtra); }
};

TEST_F(SpannedSets, ARecipeSetThatFitsOnOneDiskHasRecordsTwoAndThreeEqualToOne)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 12, 12));
    const QString disk = medium("disk");
    expectRecipeBackup(disk);
    ASSERT_EQ(run(0, disk), RunEnd::Completed);
    EXPECT_EQ(mediumBytes(disk, "DiskInfo.bk1"), InfoBytes(1, 1, 12, 12));
    EXPECT_EQ(mediumBytes(disk, "Recipe2.bk1"), PatternRecords(12, kRecipe));
    EXPECT_EQ(mediumBytes(disk, "Recipe4.bk1"), PatternRecords(12, kExtra));
    for (const QString& name : CookbookFileNames(1).mid(2))
        EXPECT_EQ(mediumBytes(disk, name), program.bytesOf(name)) << name.toStdString();
    EXPECT_EQ(progress.statuses,
              (QStringList{"Deleting Old Files", "Making Recipe Backup Disk #1", "Backup Complete"}));
    EXPECT_EQ(progress.maximums.last(), 12);
    EXPECT_FALSE(progress.barShown);
}

TEST_F(SpannedSets, TheTotalIsTheHighestListedRecordAndEmptyRecordsAreCopied)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 2, 5, 8));
    const QString disk = medium("disk");
    expectRecipeBackup(disk);
    ASSERT_EQ(run(0, disk, {2, 0}), RunEnd::Completed);
    EXPECT_EQ(mediumBytes(disk, "Recipe2.bk2"), PatternRecords(5, kRecipe) + QByteArray(3 * kRecipe, '\0'));
    EXPECT_EQ(ParseDiskInfo(mediumBytes(disk, "DiskInfo.bk2")).total, 8);
}

TEST_F(SpannedSets, AMissingNameFileIsCreatedEmptyAndCopied)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 3, 3));
    QFile::remove(program.filePath("Vegenfil.db1"));
    const QString disk = medium("disk");
    expectRecipeBackup(disk);
    ASSERT_EQ(run(0, disk), RunEnd::Completed);
    EXPECT_TRUE(QFile::exists(program.filePath("Vegenfil.db1")));
    EXPECT_TRUE(QFile::exists(QDir(disk).filePath("Vegenfil.db1")));
}

TEST_F(SpannedSets, OldCookbookAndBackupFilesAtTheTargetAreDeletedCaseBlind)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 2, 2));
    const QString disk = medium("disk");
    for (const char* name : {"OLD.DB1", "Recipe2.BK1", "other.bk2", "notes.txt"})
        ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath(name), "old"));
    expectRecipeBackup(disk);
    ASSERT_EQ(run(0, disk), RunEnd::Completed);
    const QStringList left = QDir(disk).entryList(QDir::Files);
    EXPECT_FALSE(left.contains("OLD.DB1"));
    EXPECT_FALSE(left.contains("Recipe2.BK1"));
    EXPECT_TRUE(left.contains("other.bk2"));
    EXPECT_TRUE(left.contains("notes.txt"));
    EXPECT_EQ(mediumBytes(disk, "Recipe2.bk1"), PatternRecords(2, kRecipe));
}

TEST_F(SpannedSets, ASetSpansThreeDisksAndComesBackWithADiskOutOfOrderRefused)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 25, 25));
    const QByteArray recipes = program.bytesOf("Recipe2.db1");
    const QByteArray extras = program.bytesOf("Recipe4.db1");
    const QByteArray appetizers = program.bytesOf("Appenfil.db1");
    const qint64 capacity = firstDiskFor(10);
    const QString one = medium("one"), two = medium("two"), three = medium("three");
    expectRecipeBackup(one);
    expectDiskChange(2, two);
    expectDiskChange(3, three);
    ASSERT_EQ(run(0, one, {}, Limited(capacity)), RunEnd::Completed);
    EXPECT_EQ(mediumBytes(one, "DiskInfo.bk1"), InfoBytes(1, 2, 10, 25));
    EXPECT_EQ(mediumBytes(two, "DiskInfo.bk1"), InfoBytes(2, 3, 10, 25));
    EXPECT_EQ(mediumBytes(three, "DiskInfo.bk1"), InfoBytes(3, 3, 5, 25));
    EXPECT_EQ(mediumBytes(one, "Recipe2.bk1"), Records(1, 10, kRecipe));
    EXPECT_EQ(mediumBytes(two, "Recipe2.bk1"), Records(11, 10, kRecipe));
    EXPECT_EQ(mediumBytes(three, "Recipe2.bk1"), Records(21, 5, kRecipe));
    EXPECT_EQ(mediumBytes(three, "Recipe4.bk1"), Records(21, 5, kExtra));
    EXPECT_EQ(progress.statuses,
              (QStringList{"Deleting Old Files", "Making Recipe Backup Disk #1", "Deleting Old Files",
                           "Making Recipe Backup Disk #2", "Deleting Old Files", "Making Recipe Backup Disk #3",
                           "Backup Complete"}));
    EXPECT_EQ(dialogs.folderRequests().first(), (FolderRequest{"Backup Disk #2", one}));

    program.writeBytes("Recipe2.db1", "changed");
    expectRecipeRestore();
    expectNextRestoreDisk(2, three);
    expectNextRestoreDisk(2, two);
    expectNextRestoreDisk(3, three);
    EXPECT_EQ(run(1, one), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf("Recipe2.db1"), recipes);
    EXPECT_EQ(program.bytesOf("Recipe4.db1"), extras);
    EXPECT_EQ(program.bytesOf("Appenfil.db1"), appetizers);
    EXPECT_EQ(progress.statuses.mid(7), (QStringList{"Restoring Recipe Files", "Restoration Completed"}));
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(SpannedSets, IfTheDiskFillsExactlyAtTheLastRecordTheNextDiskHoldsACountOfOne)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 11, 11));
    const qint64 capacity = firstDiskFor(10);
    const QString one = medium("one"), two = medium("two");
    expectRecipeBackup(one);
    expectDiskChange(2, two);
    ASSERT_EQ(run(0, one, {}, Limited(capacity)), RunEnd::Completed);
    EXPECT_EQ(mediumBytes(one, "DiskInfo.bk1"), InfoBytes(1, 2, 10, 11));
    EXPECT_EQ(mediumBytes(two, "DiskInfo.bk1"), InfoBytes(2, 2, 1, 11));
    EXPECT_EQ(mediumBytes(two, "Recipe2.bk1"), PatternRecord(11, kRecipe));
}

TEST_F(SpannedSets, ADiskOutOfOrderInRestoreIsRefusedWithTheSamePrompt)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 6, 6));
    const QString one = medium("one"), two = medium("two"), three = medium("three");
    expectRecipeBackup(one);
    expectDiskChange(2, two);
    expectDiskChange(3, three);
    ASSERT_EQ(run(0, one, {}, Limited(firstDiskFor(2))), RunEnd::Completed);
    ASSERT_EQ(ParseDiskInfo(mediumBytes(three, "DiskInfo.bk1")).disk, 3);

    expectRecipeRestore();
    expectNextRestoreDisk(2, three);  // disk 3 before disk 2
    expectNextRestoreDisk(2, one);    // disk 1 again
    dialogs.expectMessage("Restore Function", RestoreNextDiskMessage(2).text);
    dialogs.expectFolder(std::nullopt);
    EXPECT_EQ(run(1, one), RunEnd::Stopped);
    // Only disk 1's records arrived.
    EXPECT_EQ(program.bytesOf("Recipe2.db1"), PatternRecords(2, kRecipe));
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(SpannedSets, CancelAtTheNextDiskTerminatesTheBackup)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 11, 11));
    const QString one = medium("one");
    expectRecipeBackup(one);
    dialogs.expectMessage("Backup Disk", SpanDiskFullMessage(2).text);
    dialogs.expectFolder(std::nullopt);
    EXPECT_EQ(run(0, one, {}, Limited(firstDiskFor(4))), RunEnd::Stopped);
    EXPECT_EQ(progress.statuses.last(), "Backup Terminated by User");
    EXPECT_EQ(ParseDiskInfo(mediumBytes(one, "DiskInfo.bk1")).count, 4);
}

TEST_F(SpannedSets, ADiskWithoutRoomForTheFirstNameFileEndsTheBackup)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 3, 3));
    const QString one = medium("one");
    expectRecipeBackup(one);
    dialogs.expectMessage("Disk Error", DiskAccessMessage().text, Answer::Ok);
    EXPECT_EQ(run(0, one, {}, Limited(kInfoBytes + 10)), RunEnd::Stopped);
    EXPECT_FALSE(QFile::exists(QDir(one).filePath("Appenfil.db1")));
}

TEST_F(SpannedSets, ABlankFolderGivesTheFirstDiskMessageAndDeletesNothing)
{
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 3, 3));
    const QByteArray recipes = program.bytesOf("Recipe2.db1");
    dialogs.expectMessage("Disk Error", RestoreDiskOneMissingMessage().text);
    EXPECT_EQ(run(1, medium("blank")), RunEnd::NotStarted);
    EXPECT_EQ(program.bytesOf("Recipe2.db1"), recipes);
    EXPECT_EQ(QDir(program.path()).entryList({"*.db1"}, QDir::Files).size(), 24);
}

TEST_F(SpannedSets, ARestoreWhoseMediumFailsAfterTheDeletionLeavesTheCookbookWithoutRecords)
{
    const QString disk = medium("disk");
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("DiskInfo.bk1"), InfoBytes(1, 1, 3, 3)));
    ASSERT_TRUE(layout::WriteBackupCookbook(program.path(), 1, 3, 3));
    expectRecipeRestore();
    dialogs.expectMessage("Disk Error", RestoreDiskAccessMessage().text, Answer::Cancel);
    EXPECT_EQ(run(1, disk), RunEnd::Stopped);
    EXPECT_TRUE(QDir(program.path()).entryList({"*.db1"}, QDir::Files).isEmpty());
}

TEST_F(SpannedSets, CountsBeyondWhatTheBackupHoldsAreClamped)
{
    const QString disk = medium("disk");
    ASSERT_TRUE(layout::WriteBackupCookbook(disk, 1, 3, 3));
    QFile::rename(QDir(disk).filePath("Recipe2.db1"), QDir(disk).filePath("Recipe2.bk1"));
    QFile::rename(QDir(disk).filePath("Recipe4.db1"), QDir(disk).filePath("Recipe4.bk1"));
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("DiskInfo.bk1"), InfoBytes(1, 1, 900000000, 900000000)));
    expectRecipeRestore();
    EXPECT_EQ(run(1, disk), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf("Recipe2.db1"), PatternRecords(3, kRecipe));
    EXPECT_EQ(program.bytesOf("Recipe4.db1"), PatternRecords(3, kExtra));

    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("DiskInfo.bk1"), InfoBytes(1, 1, 0, 0)));
    expectRecipeRestore();
    EXPECT_EQ(run(1, disk), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf("Recipe2.db1"), QByteArray());
}

TEST_F(SpannedSets, AMenuPlanRoundTripsAcrossTwoDisks)
{
    const QString yearFile = MenuPlanFileName(2026);
    program.writeBytes(yearFile, PatternRecords(9, 700));
    const QString one = medium("one"), two = medium("two");
    dialogs.expectMessage("Delete Files", DeleteBeforeBackupQuestion("", TargetPath(one)).text, Answer::Yes);
    dialogs.expectMessage("Backup Disk", SpanDiskFullMessage(2).text);
    dialogs.expectFolder(two);
    ASSERT_EQ(run(34, one, {1, 2026}, Limited(kInfoBytes + 5 * 700)), RunEnd::Completed);
    const QByteArray mplan = Rec("MPlan");
    EXPECT_EQ(mediumBytes(one, "Disk2026.Mbk").left(30), mplan);
    EXPECT_EQ(ParseDiskInfo(mediumBytes(one, "Disk2026.Mbk")), (DiskInfo{"MPlan", 1, 2, 5, 9, "T1"}));
    EXPECT_EQ(ParseDiskInfo(mediumBytes(two, "Disk2026.Mbk")), (DiskInfo{"MPlan", 2, 2, 4, 0, "T1"}));
    EXPECT_EQ(mediumBytes(two, " 2026.Mb1"), Records(6, 4, 700));
    EXPECT_TRUE(progress.statuses.contains("Making Menu Plan Backup Disk #2"));

    program.writeBytes(yearFile, "changed");
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Menu Planner").text, Answer::Yes);
    expectNextRestoreDisk(2, two);
    EXPECT_EQ(run(35, one, {1, 2026}), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf(yearFile), PatternRecords(9, 700));
    EXPECT_TRUE(progress.statuses.contains("Restoring Menu Planner Files"));
}

TEST_F(SpannedSets, AShortLastMenuRecordCounts)
{
    program.writeBytes(MenuPlanFileName(2025), PatternRecords(2, 700) + "short");
    const QString disk = medium("disk");
    dialogs.expectMessage("Delete Files", DeleteBeforeBackupQuestion("", TargetPath(disk)).text, Answer::Yes);
    ASSERT_EQ(run(34, disk, {1, 2025}), RunEnd::Completed);
    EXPECT_EQ(ParseDiskInfo(mediumBytes(disk, "Disk2025.Mbk")).total, 3);
    EXPECT_EQ(mediumBytes(disk, " 2025.Mb1"), PatternRecords(2, 700) + "short" + QByteArray(695, '\0'));
}

TEST_F(SpannedSets, AMenuRestoreNeedsDiskOneOfAMenuPlan)
{
    const QString disk = medium("disk");
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("Disk2026.Mbk"), InfoBytes(1, 1, 1, 1)));
    program.writeBytes(MenuPlanFileName(2026), "kept");
    dialogs.expectMessage("Disk Error", RestoreFileMissingMessage().text);
    EXPECT_EQ(run(35, disk, {1, 2026}), RunEnd::NotStarted);
    EXPECT_EQ(program.bytesOf(MenuPlanFileName(2026)), "kept");
}

} // namespace
