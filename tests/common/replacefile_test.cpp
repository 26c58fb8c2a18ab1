// One file taking another's place in a single rename.
#include "common/filewrites.h"

#include "temp_program_folder.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

TEST(ReplaceFile, TheNewFileTakesTheOldNameAndItsOwnNameIsGone)
{
    TempProgramFolder folder;
    folder.writeBytes("Old.db1", "old bytes");
    folder.writeBytes("New.db1", "new bytes");
    EXPECT_TRUE(ReplaceFile(folder.filePath("New.db1"), folder.filePath("Old.db1")));
    EXPECT_EQ(folder.bytesOf("Old.db1"), "new bytes");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({"Old.db1"}));
}

TEST(ReplaceFile, AMissingNewFileLeavesTheOldOne)
{
    TempProgramFolder folder;
    folder.writeBytes("Old.db1", "old bytes");
    EXPECT_FALSE(ReplaceFile(folder.filePath("New.db1"), folder.filePath("Old.db1")));
    EXPECT_EQ(folder.bytesOf("Old.db1"), "old bytes");
}

TEST(ReplaceFile, AFolderOfTheOldNameFailsAndBothStay)
{
    TempProgramFolder folder;
    ASSERT_TRUE(QDir().mkdir(folder.filePath("Old.db1")));
    folder.writeBytes("New.db1", "new bytes");
    EXPECT_FALSE(ReplaceFile(folder.filePath("New.db1"), folder.filePath("Old.db1")));
    EXPECT_TRUE(QFileInfo(folder.filePath("Old.db1")).isDir());
    EXPECT_EQ(folder.bytesOf("New.db1"), "new bytes");
}

TEST(ReplaceFile, TheWriteSeamCanRefuseItAndIsToldWhenItHeld)
{
    TempProgramFolder folder;
    folder.writeBytes("Old.db1", "old bytes");
    folder.writeBytes("New.db1", "new bytes");
    QStringList held;
    bool allow = false;
    FileWriteSeam::set([&](const QString&) { return allow; }, [&](const QString& name) { held << name; });
    EXPECT_FALSE(ReplaceFile(folder.filePath("New.db1"), folder.filePath("Old.db1")));
    EXPECT_EQ(folder.bytesOf("Old.db1"), "old bytes");
    allow = true;
    EXPECT_TRUE(ReplaceFile(folder.filePath("New.db1"), folder.filePath("Old.db1")));
    FileWriteSeam::clear();
    EXPECT_EQ(held, QStringList({folder.filePath("Old.db1")}));
}
