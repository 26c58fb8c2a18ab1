#include "backup/logic/diskinfo.h"
#include "test_bytes.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QByteArray Rec(const QByteArray& text)
{
    return text + QByteArray(kDiskInfoRecord - text.size(), ' ');
}

TEST(DiskInfoFile, TheFirstDiskHoldsAllSixRecords)
{
    QTemporaryDir dir;
    BackupMedium medium(dir.path());
    ASSERT_TRUE(WriteDiskInfo(medium, "DiskInfo.bk1", {"Recipe", 1, 2, 41, 120, "T1"}));
    medium.closeAll();
    QFile file(dir.filePath("DiskInfo.bk1"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), Rec("Recipe") + Rec("1") + Rec("2") + Rec("41") + Rec("120") + Rec("T1"));
}

TEST(DiskInfoFile, LaterDisksLeaveTheTotalAsZeroBytes)
{
    QTemporaryDir dir;
    BackupMedium medium(dir.path());
    ASSERT_TRUE(StartDiskInfo(medium, "Disk2026.Mbk", "MPlan"));
    ASSERT_TRUE(WriteDiskInfo(medium, "Disk2026.Mbk", {"MPlan", 2, 2, 7, 99, "T1"}));
    medium.closeAll();
    QFile file(dir.filePath("Disk2026.Mbk"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), Rec("MPlan") + Rec("2") + Rec("2") + Rec("7") + QByteArray(30, '\0') + Rec("T1"));
}

TEST(DiskInfoFile, StartWritesRecordsOneAndSixOnly)
{
    QTemporaryDir dir;
    BackupMedium medium(dir.path());
    ASSERT_TRUE(StartDiskInfo(medium, "DiskInfo.bk4", "Recipe"));
    medium.closeAll();
    QFile file(dir.filePath("DiskInfo.bk4"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), Rec("Recipe") + QByteArray(120, '\0') + Rec("T1"));
}

TEST(DiskInfoFile, ReadsTrimmedTextAndNumbersByVal)
{
    const DiskInfo info = ParseDiskInfo(Rec("  Recipe") + Rec(" 3") + Rec("4abc") + Rec("&H10") + Rec("") + Rec("T1"));
    EXPECT_EQ(info, (DiskInfo{"Recipe", 3, 4, 16, 0, "T1"}));
    EXPECT_FALSE(info.isLastDisk());
}

TEST(DiskInfoFile, FirstGenerationRecordsAreFifteenBytes)
{
    QByteArray bytes;
    for (const QByteArray text : {"Recipe", "1", "1", "12", "12"})
        bytes += text + QByteArray(15 - text.size(), ' ');
    const DiskInfo info = ParseDiskInfo(bytes, kOldDiskInfoRecord);
    EXPECT_EQ(info, (DiskInfo{"Recipe", 1, 1, 12, 12, ""}));
}

TEST(DiskInfoFile, AMissingFileReadsEmpty)
{
    QTemporaryDir dir;
    EXPECT_EQ(ReadDiskInfo(dir.path(), "DiskInfo.bk1"), DiskInfo{});
    EXPECT_FALSE(IsOldFormatInfo(dir.path(), "DiskInfo.bk1"));
}

TEST(DiskInfoFileFuzz, RandomBytesNeverCrash)
{
    std::mt19937 random(16);
    for (int round = 0; round < 500; ++round) {
        const DiskInfo info = ParseDiskInfo(RandomBytes(random, random() % 400));
        EXPECT_GE(info.count, 0);
        EXPECT_GE(info.total, 0);
        EXPECT_GE(info.disk, 0);
        EXPECT_LE(info.count, qint64(1e9));
    }
}

TEST(DiskInfoFileFuzz, EveryCutOfAGoodFileReadsItsRecordsSoFar)
{
    const QByteArray good = Rec("Recipe") + Rec("1") + Rec("1") + Rec("5") + Rec("5") + Rec("T1");
    for (qsizetype size = 0; size <= good.size(); ++size) {
        const DiskInfo info = ParseDiskInfo(good.left(size));
        EXPECT_EQ(info.mark == "T1", size >= 152) << size;
        EXPECT_EQ(info.setName.isEmpty(), size == 0) << size;
    }
}

TEST(DiskInfoFileFuzz, AbsurdNumbersAreKeptInRange)
{
    const DiskInfo info = ParseDiskInfo(Rec("Recipe") + Rec("99999999999") + Rec("-5") + Rec("1E300") + Rec("-1"));
    EXPECT_LE(info.disk, 1000000);
    EXPECT_EQ(info.nextDisk, 0);
    EXPECT_EQ(info.count, qint64(1e9));
    EXPECT_EQ(info.total, 0);
}

} // namespace
