// A storage table as text: the grid's headings, the clipboard's fixed
// columns, the export's name and its tab-delimited bytes.
#include "storage/logic/storageoutput.h"

#include "storage/logic/storageedits.h"
#include "storage_fixture.h"

#include <QDir>

namespace {

class StorageOutput : public StorageFolderTest {};

const char* const kHeadingLines =
    "Storage\r\n"
    "Number  Amount     Total\r\n"
    "Amount         Last              Last       Last\r\n"
    "Item\r\n"
    "In\r\n"
    "Per\r\n"
    "Amount     On\r\n"
    "Action          Amount  Amount\r\n"
    "Family   Person       Needed      Hand             Date             Added    Used\r\n";

} // namespace

TEST_F(StorageOutput, GridHeadingsAreStackedWordsWithTheDateForm)
{
    const QStringList usa = GridHeadings("USA");
    EXPECT_EQ(usa, QStringList({"Storage\nItem", "Number\nIn\nFamily", "Approx.\nAmount\nPer\nPerson",
                                "Total\nAmount\nNeeded", "Amount\nOn\nHand", "Last\nAction\nDate\n(mm/dd/yy)",
                                "Last\nAction\nAmount\nAdded", "Last\nAction\nAmount\nUsed"}));
    EXPECT_EQ(GridHeadings("OTHER")[5], "Last\nAction\nDate\n(dd/mm/yy)");
    EXPECT_TRUE(HeadingWords(8, "USA").isEmpty());
}

TEST_F(StorageOutput, ClipboardTextOfTheStoredBasicTableByteForByte)
{
    copyStoredFiles();
    StorageModel model(StorageKind::Basic);
    model.load();
    const QString text = StorageClipboardText(model.table());
    QString expected = QString::fromLatin1(kHeadingLines);
    // Columns of 32, 9, 13, 12, 17, 17, 9 and 9 characters; "*" is blank.
    expected += QStringLiteral("Grains                          4        300 lbs      1200 lbs    150.5 lbs        "
                               "                                   \r\n");
    expected += QStringLiteral("    Wheat                                                         100 lbs          "
                               "4/3/26           25                \r\n");
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), 9 + 60 + 1) << "every line ends in CR LF";
    EXPECT_TRUE(text.startsWith(expected)) << text.left(expected.size() + 40).toStdString();
    for (int i = 9; i < 69; ++i)
        EXPECT_EQ(lines[i].size(), 32 + 9 + 13 + 12 + 17 + 17 + 9 + 9) << i;
    EXPECT_EQ(lines[9 + 33], QStringLiteral("Salt                            4        8 lbs        32 lbs      5     "
                                            "           2/29/28          5                 "));
    EXPECT_EQ(lines[69], "");
}

TEST_F(StorageOutput, ClipboardCutsALongCellToItsColumn)
{
    StorageTable table;
    table.setCell(1, kItemColumn, QString(40, u'n'));
    table.setCell(1, kFamilyColumn, QStringLiteral("123456789012"));
    const QStringList lines = StorageClipboardText(table).split(QStringLiteral("\r\n"));
    EXPECT_EQ(lines[9].left(41), QString(32, u'n') + "123456789");
    EXPECT_EQ(lines[10], QString(118, u' ')) << "an empty row is blanks";
}

TEST_F(StorageOutput, TheCopyMessage)
{
    EXPECT_EQ(kCopiedMessage.title, "Copy Option");
    EXPECT_EQ(kCopiedMessage.text, "Data has been copied to the Windows Clipboard.");
}

TEST_F(StorageOutput, ProposedNamesComeFromTheCaptionsFirstFiveLetters)
{
    EXPECT_EQ(ProposedExportName("Basic Food Storage"), "BasicStorage.xls");
    EXPECT_EQ(ProposedExportName("Emergency Storage"), "EmergencyStorage.xls");
    EXPECT_EQ(ProposedExportName(QString::fromLatin1(KindInfo(StorageKind::Additional).caption)),
              "AdditionalStorage.xls");
    EXPECT_EQ(ProposedExportName("Menu Planner"), "");
}

TEST_F(StorageOutput, AFileNameEndingInXlsInAnyCaseIsAcceptedOneEndingInTxtIsRefused)
{
    for (const char* name : {"BasicStorage.xls", "BASIC.XLS", "basic.Xls", "  spaced.xLs  ", "a.b.xls"})
        EXPECT_TRUE(IsExportName(QString::fromLatin1(name))) << name;
    for (const char* name : {"BasicStorage.txt", "", "   ", ".xl", "xls", "Storage.xlsx", "sub/Storage.xls",
                             "sub\\Storage.xls", "Sto\trage.xls", "Sto\nrage.xls"})
        EXPECT_FALSE(IsExportName(QString::fromLatin1(name))) << name;
    EXPECT_TRUE(IsExportName(".xls")) << "the old rule asks only for the ending";
}

TEST_F(StorageOutput, TheExportedFileKeepsTheStarMarkersAsTheyAre)
{
    copyStoredFiles();
    StorageModel model(StorageKind::Emergency);
    model.load();
    QList<QStringList> grid;
    for (int row = 1; row <= 2; ++row)
        grid.append(model.table().rowTexts(row));
    const QString path = folder.filePath("EmergencyStorage.xls");
    ASSERT_TRUE(WriteExportFile(path, ExportRows(GridHeadings("USA"), grid)));
    const QByteArray expected =
        "Storage Item\tNumber In Family\tApprox. Amount Per Person\tTotal Amount Needed\tAmount On Hand\t"
        "Last Action Date (mm/dd/yy)\tLast Action Amount Added\tLast Action Amount Used\r\n"
        "Food (3 day supply)\t*\t*\t*\t*\t*\t*\t*\r\n"
        "Canned Meat\t4\t3 cans\t12 cans\t5 cans\t4/3/26\t5\t";
    EXPECT_EQ(folder.bytesOf("EmergencyStorage.xls"), expected);
}

TEST_F(StorageOutput, AnExistingFileIsReplacedWithoutAFurtherQuestion)
{
    folder.writeBytes("BasicStorage.xls", QByteArray(5000, 'o'));
    ASSERT_TRUE(WriteExportFile(folder.filePath("BasicStorage.xls"), {{"Storage Item"}, {"Caf\u00e9"}}));
    EXPECT_EQ(folder.bytesOf("BasicStorage.xls"), QByteArray("Storage Item\r\nCaf\xe9"));
}

TEST_F(StorageOutput, AFileThatCannotBeCreatedFails)
{
    ASSERT_TRUE(QDir().mkdir(folder.filePath("Locked.xls")));
    EXPECT_FALSE(WriteExportFile(folder.filePath("Locked.xls"), {{"x"}}));
    EXPECT_EQ(kExportDeniedMessage.title, "Export Error");
    EXPECT_EQ(kExportDeniedMessage.text, "Permission to create file Denied!\nFile may be in use by another program!\n"
                                         "Close other program and try exporting again");
}
