// A whole file written in one step: all of the new bytes, or the old file.
#include "common/filewrites.h"

#include "file_size_limit.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

TEST(WholeFileAt, ReplacesTheFileWithEveryByte)
{
    TempProgramFolder folder;
    folder.writeBytes("Sheet.xls", "an older and longer content");
    const QByteArray bytes("a\tb\r\n\xe9\0z", 8);
    EXPECT_TRUE(WriteWholeFileAt(folder.filePath("Sheet.xls"), bytes));
    EXPECT_EQ(folder.bytesOf("Sheet.xls"), bytes);
}

TEST(WholeFileAt, AFolderOfTheFilesNameFailsTheWrite)
{
    TempProgramFolder folder;
    ASSERT_TRUE(QDir().mkdir(folder.filePath("Sheet.xls")));
    EXPECT_FALSE(WriteWholeFileAt(folder.filePath("Sheet.xls"), "x"));
    EXPECT_TRUE(QFileInfo(folder.filePath("Sheet.xls")).isDir());
}

TEST(WholeFileAt, AWriteThatFailsPartWayLeavesTheOldFile)
{
    TempProgramFolder folder;
    folder.writeBytes("Sheet.xls", "old");
    bool written = true;
    {
        const FileSizeLimit limit(16);
        ASSERT_TRUE(limit.active());
        written = WriteWholeFileAt(folder.filePath("Sheet.xls"), QByteArray(200, 'n'));
    }
    EXPECT_FALSE(written);
    EXPECT_EQ(folder.bytesOf("Sheet.xls"), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({"Sheet.xls"}));
}
