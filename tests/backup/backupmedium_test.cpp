#include "backup/logic/backupmedium.h"
#include "scratch_folder.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

TEST(LimitedMedium, AWriteThatWouldPassTheCapacityFailsWhole)
{
    QTemporaryDir dir;
    LimitedMedium medium(dir.path(), 100);
    EXPECT_TRUE(medium.writeAt("A.bk1", 0, QByteArray(60, 'a')));
    EXPECT_FALSE(medium.writeAt("B.bk1", 0, QByteArray(41, 'b')));
    EXPECT_EQ(ReadFileBytes(dir.filePath("B.bk1")), QByteArray());
    EXPECT_TRUE(medium.writeAt("B.bk1", 0, QByteArray(40, 'b')));
    medium.closeAll();
    EXPECT_EQ(ReadFileBytes(dir.filePath("A.bk1")), QByteArray(60, 'a'));
    EXPECT_EQ(medium.used(), 100);
}

TEST(LimitedMedium, RewritingExistingBytesIsFree)
{
    QTemporaryDir dir;
    LimitedMedium medium(dir.path(), 50);
    ASSERT_TRUE(medium.writeAt("A", 0, QByteArray(50, 'a')));
    EXPECT_TRUE(medium.writeAt("A", 10, QByteArray(20, 'z')));
    EXPECT_FALSE(medium.writeAt("A", 40, QByteArray(11, 'z')));
}

TEST(LimitedMedium, CountsWhatTheFolderAlreadyHoldsAndWhatIsDeleted)
{
    QTemporaryDir dir;
    ASSERT_TRUE(WriteFileBytes(dir.filePath("old.bk2"), QByteArray(70, 'o')));
    LimitedMedium medium(dir.path(), 100);
    EXPECT_EQ(medium.used(), 70);
    EXPECT_FALSE(medium.writeAt("new", 0, QByteArray(31, 'n')));
    medium.removeEndingIn({".BK2"});
    EXPECT_EQ(medium.used(), 0);
    EXPECT_TRUE(medium.writeAt("new", 0, QByteArray(100, 'n')));
}

TEST(BackupMediumFiles, NamesAreFoundCaseBlind)
{
    QTemporaryDir dir;
    ASSERT_TRUE(WriteFileBytes(dir.filePath("RECIPE2.BK1"), "old"));
    BackupMedium medium(dir.path());
    EXPECT_EQ(medium.pathOf("Recipe2.bk1"), dir.filePath("RECIPE2.BK1"));
    medium.remove("recipe2.bk1");
    EXPECT_FALSE(QFile::exists(dir.filePath("RECIPE2.BK1")));
}

TEST(BackupMediumFiles, AFailedCopyLeavesNoPartBehind)
{
    QTemporaryDir source, target;
    const QByteArray big(3 * 1024 * 1024 + 5, 'x');
    ASSERT_TRUE(WriteFileBytes(source.filePath("big.Fil"), big));
    LimitedMedium medium(target.path(), 2 * 1024 * 1024);
    QList<qint64> steps;
    EXPECT_EQ(CopyOntoMedium(source.filePath("big.Fil"), medium, "big.Fds", [&](qint64 done, qint64) { steps << done; }),
              CopyResult::Failed);
    EXPECT_FALSE(QFile::exists(target.filePath("big.Fds")));
    EXPECT_EQ(steps.size(), 32);  // 64 KiB chunks up to the capacity
    EXPECT_EQ(medium.used(), 0);
}

TEST(BackupMediumFiles, ACopyReplacesTheOldCopyByteForByte)
{
    QTemporaryDir source, target;
    ASSERT_TRUE(WriteFileBytes(source.filePath("a.Fil"), "short"));
    ASSERT_TRUE(WriteFileBytes(target.filePath("A.FDS"), "a much longer old copy"));
    BackupMedium medium(target.path());
    EXPECT_EQ(CopyOntoMedium(source.filePath("a.Fil"), medium, "a.Fds"), CopyResult::Copied);
    medium.closeAll();
    const QStringList files = QDir(target.path()).entryList(QDir::Files);
    EXPECT_EQ(files, QStringList{"a.Fds"});
    EXPECT_EQ(ReadFileBytes(target.filePath("a.Fds")), "short");
    EXPECT_EQ(CopyOntoMedium(source.filePath("none"), medium, "b.Fds"), CopyResult::SourceMissing);
}

} // namespace
