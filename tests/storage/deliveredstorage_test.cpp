// The food storage files that come with the program: the default titles
// and amounts of each kind, and the tables a new program folder starts with.
#include "common/numbertext.h"
#include "shell/logic/deliveredfiles.h"
#include "storage/logic/storageedits.h"
#include "storage/logic/storagefiles.h"

#include "storage_fixture.h"

#include <QFile>

namespace {

class DeliveredStorage : public StorageFolderTest {
protected:
    DeliveredStorage() { InstallDeliveredFiles(folder.path()); }
};

} // namespace

TEST_F(DeliveredStorage, EveryKindHas60TitlesAndAnAmountForEachRowThatTakesOne)
{
    for (const StorageKind kind : kStorageKinds) {
        const QStringList titles = ReadDefaultTitles(kind);
        EXPECT_EQ(titles.size(), 60) << int(kind);
        for (const QString& title : titles) {
            EXPECT_FALSE(title.trimmed().isEmpty()) << int(kind);
            EXPECT_LE(title.size(), 32 - 4) << title.toStdString() << ": fits the copied item column, indented";
        }
        EXPECT_EQ(ReadDefaultAmounts(kind).size(), DefaultAmountRows(kind).size()) << int(kind);
    }
}

TEST_F(DeliveredStorage, TitlesFitTheirCategories)
{
    const QStringList basic = ReadDefaultTitles(StorageKind::Basic);
    EXPECT_TRUE(basic[12].startsWith("Dairy")) << "row 13 shows its first five letters in the percent list";
    EXPECT_TRUE(basic[53].startsWith("Water")) << "row 54 likewise";
    EXPECT_EQ(basic[0], "Grains");
    EXPECT_EQ(basic[33], "Salt");
    const QStringList additional = ReadDefaultTitles(StorageKind::Additional);
    EXPECT_EQ(additional[41], "Water Storage");
    EXPECT_EQ(ReadDefaultAmounts(StorageKind::Additional)[DefaultAmountRows(StorageKind::Additional).indexOf(47)], "*")
        << "the heading row 47 keeps its marker";
    const QStringList amounts = ReadDefaultAmounts(StorageKind::Basic);
    EXPECT_EQ(amounts[6], "14 gals");
    for (const QString& amount : amounts)
        EXPECT_GT(Val(amount), 0) << amount.toStdString();
}

TEST_F(DeliveredStorage, SubItemTitlesAreShortEnoughForTheirIndent)
{
    const QStringList basic = ReadDefaultTitles(StorageKind::Basic);
    for (int row = 1; row <= 60; ++row) {
        if (IsMarkerCell(StorageKind::Basic, row, kFamilyColumn)) {
            EXPECT_LT(basic[row - 1].size(), 18) << row;
        }
    }
}

// The delivered tables are what the program makes of its own defaults: the
// markers, the titles as a load shows them, the amounts, the needs of a
// family of one.
TEST_F(DeliveredStorage, TheTablesAreBuiltFromTheDefaultsWithMarkers)
{
    for (const StorageKind kind : kStorageKinds) {
        StorageTable built;
        RestoreMarkers(built, kind);
        ApplyDefaultTitles(built, kind, ReadDefaultTitles(kind));
        IndentItemNames(built, kind);
        ApplyDefaultAmounts(built, kind, ReadDefaultAmounts(kind));
        RecalculateAll(built, kind, QStringLiteral("1"));
        EXPECT_EQ(ReadTableFile(kind), built) << TableFileOf(kind).toStdString();
        StorageModel model(kind);
        model.load();
        EXPECT_EQ(model.familySize(), "1");
        ASSERT_TRUE(model.save().saved());
        EXPECT_EQ(folder.bytesOf(TableFileOf(kind)), ReadFileBytes(":/delivered/" + TableFileOf(kind)))
            << "a save writes the delivered bytes back";
    }
}

TEST_F(DeliveredStorage, AFamilysOwnFilesAreNeverOverwritten)
{
    TempProgramFolder own;
    own.writeBytes("EMERE1.FIL", "\"our own\"\r\n");
    own.writeBytes("fdsb3.fil", "\"our title\"\r\n");
    InstallDeliveredFiles(own.path());
    EXPECT_EQ(own.bytesOf("EMERE1.FIL"), "\"our own\"\r\n");
    EXPECT_EQ(own.bytesOf("fdsb3.fil"), "\"our title\"\r\n");
    EXPECT_FALSE(QFile::exists(own.filePath("EmerE1.Fil")));
    EXPECT_TRUE(QFile::exists(own.filePath("AddA1.Fil")));
    EXPECT_FALSE(QFile::exists(own.filePath("FdsB2.Fil"))) << "no family file: the family is 1";
}
