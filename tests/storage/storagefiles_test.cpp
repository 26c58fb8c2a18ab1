// The storage files byte for byte: the stored tables read and saved back,
// FdsB2.Fil, short, long, missing and unwritable files.
#include "storage/logic/storagefiles.h"

#include "file_size_limit.h"
#include "storage_fixture.h"

#include <QDir>

namespace {

class StorageFiles : public StorageFolderTest {};

} // namespace

TEST_F(StorageFiles, TheStoredBasicTableReadsCellByCell)
{
    copyStoredFiles();
    const StorageTable table = ReadTableFile(StorageKind::Basic);
    EXPECT_EQ(table.rowTexts(1), QStringList({"Grains", "4", "300 lbs", "1200 lbs", "150.5 lbs", "*", "*", "*"}));
    EXPECT_EQ(table.rowTexts(2), QStringList({"    Wheat", "*", "*", "*", "100 lbs", "4/3/26", "25", ""}));
    EXPECT_EQ(table.rowTexts(34), QStringList({"Salt", "4", "8 lbs", "32 lbs", "5", "2/29/28", "5", ""}));
    EXPECT_EQ(table.cell(58, kItemColumn), QStringLiteral("Jalape\u00f1o Peppers")) << "Windows-1252";
    EXPECT_EQ(ReadFamilyFile(), "4");
}

TEST_F(StorageFiles, EveryKindSavesBackTheStoredBytes)
{
    copyStoredFiles();
    for (const StorageKind kind : kStorageKinds) {
        const QByteArray stored = TestDataBytes(TableFileOf(kind));
        StorageModel model(kind);
        model.load();
        ASSERT_TRUE(model.save().saved());
        EXPECT_EQ(folder.bytesOf(TableFileOf(kind)), stored) << TableFileOf(kind).toStdString();
        EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), QByteArray("\"4\"\r\n"));
    }
}

TEST_F(StorageFiles, ATableFileIs480QuotedLinesRowByRow)
{
    StorageTable table;
    for (int row = 1; row <= kStorageRows; ++row)
        for (int column = 0; column < kStorageColumns; ++column)
            table.setCell(row, column, QStringLiteral("r%1c%2").arg(row).arg(column));
    ASSERT_TRUE(WriteTableFile(StorageKind::Emergency, table));
    const QByteArray bytes = folder.bytesOf("EmerE1.Fil");
    const QList<QByteArray> lines = bytes.split('\n');
    ASSERT_EQ(lines.size(), 481) << "480 lines and nothing after the last line end";
    EXPECT_EQ(lines[0], "\"r1c0\"\r");
    EXPECT_EQ(lines[7], "\"r1c7\"\r");
    EXPECT_EQ(lines[8], "\"r2c0\"\r");
    EXPECT_EQ(lines[479], "\"r60c7\"\r");
    EXPECT_TRUE(bytes.endsWith("\"r60c7\"\r\n"));
}

TEST_F(StorageFiles, TheFamilyFileIsOneQuotedLine)
{
    ASSERT_TRUE(WriteFamilyFile("6"));
    EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), QByteArray("\"6\"\r\n"));
}

TEST_F(StorageFiles, AMissingTableIsEmptyAndAMissingFamilyIs1)
{
    EXPECT_EQ(ReadTableFile(StorageKind::Basic), StorageTable());
    EXPECT_EQ(ReadFamilyFile(), "");
    StorageModel model(StorageKind::Basic);
    model.load();
    EXPECT_EQ(model.familySize(), "1");
    EXPECT_EQ(model.table(), StorageTable());
    EXPECT_FALSE(model.dataChanged());
}

TEST_F(StorageFiles, AShortFileLeavesTheRemainingCellsEmpty)
{
    folder.writeBytes("AddA1.Fil", QuotedLines({"Meats", "4", "20 lbs", "80 lbs", "12", "", "", "", "Tuna"}));
    const StorageTable table = ReadTableFile(StorageKind::Additional);
    EXPECT_EQ(table.cell(1, kOnHandColumn), "12");
    EXPECT_EQ(table.cell(2, kItemColumn), "Tuna");
    EXPECT_EQ(table.cell(2, kFamilyColumn), "");
    EXPECT_EQ(table.cell(60, kUsedColumn), "");
}

TEST_F(StorageFiles, A100000ValueFileReads480)
{
    QStringList values;
    for (int i = 0; i < 100000; ++i)
        values << QString::number(i);
    folder.writeBytes("FdsB1.Fil", QuotedLines(values));
    const StorageTable table = ReadTableFile(StorageKind::Basic);
    EXPECT_EQ(table.values().size(), 480);
    EXPECT_EQ(table.cell(1, 0), "0");
    EXPECT_EQ(table.cell(60, 7), "479") << "values past 480 are ignored";
}

TEST_F(StorageFiles, DefaultFilesGiveAsManyValuesAsTheyShouldHold)
{
    QStringList values;
    for (int i = 0; i < 70; ++i)
        values << QStringLiteral("title %1").arg(i);
    folder.writeBytes("EmerE3.Fil", QuotedLines(values));
    folder.writeBytes("FdsB4.Fil", QuotedLines(values));
    EXPECT_EQ(ReadDefaultTitles(StorageKind::Emergency).size(), 60);
    EXPECT_EQ(ReadDefaultAmounts(StorageKind::Basic).size(), 8) << "a row of the default file in excess is ignored";
    EXPECT_TRUE(ReadDefaultTitles(StorageKind::Additional).isEmpty());
}

TEST_F(StorageFiles, NamesInAnyCaseAreTheSameFile)
{
    folder.writeBytes("FDSB1.FIL", QuotedLines({"Grains"}));
    folder.writeBytes("fdsb2.fil", QuotedLines({"3"}));
    EXPECT_EQ(ReadTableFile(StorageKind::Basic).cell(1, 0), "Grains");
    EXPECT_EQ(ReadFamilyFile(), "3");
    ASSERT_TRUE(WriteFamilyFile("5"));
    EXPECT_EQ(folder.bytesOf("fdsb2.fil"), QByteArray("\"5\"\r\n"));
    EXPECT_FALSE(QFile::exists(folder.filePath("FdsB2.Fil")));
}

// ---- Writes that fail ---------------------------------------------------------------------

TEST_F(StorageFiles, AFailedTableSaveNamesTheFileKeepsTheChangeAndWritesNoFamily)
{
    copyStoredFiles();
    StorageModel model(StorageKind::Emergency);
    model.load();
    model.setFamilySize("6");
    ASSERT_TRUE(QFile::remove(folder.filePath("EmerE1.Fil")));
    ASSERT_TRUE(QDir().mkdir(folder.filePath("EmerE1.Fil")));
    const StorageSaveResult result = model.save();
    EXPECT_FALSE(result.saved());
    EXPECT_EQ(result.failedFile, "EmerE1.Fil");
    EXPECT_TRUE(model.dataChanged());
    EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), TestDataBytes("FdsB2.Fil")) << "no later step runs";
    EXPECT_EQ(folder.bytesOf("FdsB1.Fil"), TestDataBytes("FdsB1.Fil"));
}

TEST_F(StorageFiles, AFailedFamilySaveNamesFdsB2AndKeepsTheChange)
{
    copyStoredFiles();
    StorageModel model(StorageKind::Basic);
    model.load();
    model.setFamilySize("6");
    ASSERT_TRUE(QFile::remove(folder.filePath("FdsB2.Fil")));
    ASSERT_TRUE(QDir().mkdir(folder.filePath("FdsB2.Fil")));
    const StorageSaveResult result = model.save();
    EXPECT_EQ(result.failedFile, "FdsB2.Fil");
    EXPECT_TRUE(model.dataChanged());
}

TEST_F(StorageFiles, ASaveCutOffByAFullDiskKeepsTheOldTableWhole)
{
    copyStoredFiles();
    StorageModel model(StorageKind::Basic);
    model.load();
    model.commit(60, kItemColumn, "Vinegar");
    StorageSaveResult result;
    {
        const FileSizeLimit limit(1000);
        ASSERT_TRUE(limit.active());
        result = model.save();
    }
    EXPECT_EQ(result.failedFile, "FdsB1.Fil");
    EXPECT_EQ(folder.bytesOf("FdsB1.Fil"), TestDataBytes("FdsB1.Fil"));
    EXPECT_TRUE(model.dataChanged());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), kStoredStorageFiles.size()) << "no leftovers";
}
