// The storage screen's working state: load and save of each kind (markers,
// needs, indents), the family size the kinds share, the categories, the
// default titles and amounts and clearing the last actions.
#include "storage/logic/storageedits.h"
#include "storage/logic/storagefiles.h"

#include "storage_fixture.h"

namespace {

class StorageModelTest : public StorageFolderTest {
protected:
    StorageModel loaded(StorageKind kind)
    {
        StorageModel model(kind);
        model.load();
        return model;
    }
};

} // namespace

// ---- Markers ------------------------------------------------------------------------------

TEST_F(StorageModelTest, EverySaveInTheAllViewRestoresTheMarkersOfEachKind)
{
    for (const StorageKind kind : kStorageKinds) {
        StorageTable scribbled;
        for (int row = 1; row <= kStorageRows; ++row)
            for (int column = 0; column < kStorageColumns; ++column)
                scribbled.setCell(row, column, QStringLiteral("x"));
        ASSERT_TRUE(WriteTableFile(kind, scribbled));
        StorageModel model = loaded(kind);
        ASSERT_TRUE(model.save().saved());
        const StorageTable saved = ReadTableFile(kind);
        for (int row = 1; row <= kStorageRows; ++row)
            for (int column = 0; column < kStorageColumns; ++column)
                EXPECT_EQ(saved.cell(row, column) == kNotApplicable, IsMarkerCell(kind, row, column))
                    << int(kind) << " row " << row << " column " << column;
    }
}

TEST_F(StorageModelTest, ASaveFromACategoryWritesNoMarkersAndReturnsToAll)
{
    StorageModel model = loaded(StorageKind::Emergency);
    model.showCategory(3);
    EXPECT_FALSE(model.allView());
    ASSERT_TRUE(model.save().saved());
    EXPECT_TRUE(model.allView());
    EXPECT_EQ(ReadTableFile(StorageKind::Emergency).cell(12, kFamilyColumn), "");
    ASSERT_TRUE(model.save().saved());
    EXPECT_EQ(ReadTableFile(StorageKind::Emergency).cell(12, kFamilyColumn), "*");
}

// ---- Needs on load ----------------------------------------------------------------------------

TEST_F(StorageModelTest, LoadWorksOutTheNeedOfEveryCalculatedRow)
{
    for (const StorageKind kind : kStorageKinds) {
        StorageTable table;
        for (int row = 1; row <= kStorageRows; ++row)
            table.setCell(row, kPerPersonColumn, QStringLiteral("2.5 lbs"));
        ASSERT_TRUE(WriteTableFile(kind, table));
        ASSERT_TRUE(WriteFamilyFile("3"));
        const StorageModel model = loaded(kind);
        for (int row = 1; row <= kStorageRows; ++row) {
            const bool calculated = IsCalculatedRow(kind, row);
            EXPECT_EQ(model.table().cell(row, kNeededColumn), calculated ? "7.5 lbs" : "") << int(kind) << " " << row;
            EXPECT_EQ(model.table().cell(row, kFamilyColumn), calculated ? "3" : "") << int(kind) << " " << row;
        }
    }
}

TEST_F(StorageModelTest, FamilySize0InTheFileBecomes1OnLoad)
{
    ASSERT_TRUE(WriteFamilyFile("0"));
    StorageTable table;
    table.setCell(34, kPerPersonColumn, QStringLiteral("8 lbs"));
    ASSERT_TRUE(WriteTableFile(StorageKind::Basic, table));
    const StorageModel model = loaded(StorageKind::Basic);
    EXPECT_EQ(model.familySize(), "1");
    EXPECT_EQ(model.table().cell(34, kNeededColumn), "8 lbs");
}

TEST_F(StorageModelTest, TheFamilySizeIsSharedButAnotherKindsColumn1WaitsForItsLoad)
{
    copyStoredFiles();
    StorageModel basic = loaded(StorageKind::Basic);
    basic.setFamilySize("5");
    EXPECT_EQ(basic.table().cell(1, kNeededColumn), "1500 lbs");
    ASSERT_TRUE(basic.save().saved());
    EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), QByteArray("\"5\"\r\n"));
    EXPECT_EQ(folder.bytesOf("EmerE1.Fil"), TestDataBytes("EmerE1.Fil")) << "column 1 stays as stored";
    EXPECT_EQ(ReadTableFile(StorageKind::Emergency).cell(2, kFamilyColumn), "4");
    const StorageModel emergency = loaded(StorageKind::Emergency);
    EXPECT_EQ(emergency.familySize(), "5");
    EXPECT_EQ(emergency.table().cell(2, kFamilyColumn), "5");
    EXPECT_EQ(emergency.table().cell(2, kNeededColumn), "15 cans");
}

TEST_F(StorageModelTest, ANewFamilySizeIsAChangeAndRecalculatesInTheAllViewOnly)
{
    copyStoredFiles();
    StorageModel model = loaded(StorageKind::Basic);
    EXPECT_FALSE(model.dataChanged());
    model.setFamilySize("4");
    EXPECT_FALSE(model.dataChanged()) << "the same size";
    model.showCategory(2);
    model.setFamilySize("2");
    EXPECT_TRUE(model.dataChanged());
    EXPECT_EQ(model.table().cell(1, kNeededColumn), "1200 lbs");
    model.showCategory(kAllCategory);
    model.setFamilySize("0");
    EXPECT_EQ(model.table().cell(1, kNeededColumn), "1200 lbs") << "0 has no effect";
    model.setFamilySize("2");
    EXPECT_EQ(model.table().cell(1, kNeededColumn), "600 lbs");
}

// ---- Indents ----------------------------------------------------------------------------------

TEST_F(StorageModelTest, BasicLoadStripsStoredBlanksAndIndentsSubItems)
{
    StorageTable table;
    RestoreMarkers(table, StorageKind::Basic);
    table.setCell(1, kItemColumn, QStringLiteral("  Grains"));
    table.setCell(2, kItemColumn, QStringLiteral("Wheat"));
    table.setCell(3, kItemColumn, QStringLiteral("        Rice"));
    table.setCell(34, kItemColumn, QStringLiteral("   Salt"));
    ASSERT_TRUE(WriteTableFile(StorageKind::Basic, table));
    const StorageModel model = loaded(StorageKind::Basic);
    EXPECT_EQ(model.table().cell(1, kItemColumn), "Grains");
    EXPECT_EQ(model.table().cell(2, kItemColumn), "    Wheat");
    EXPECT_EQ(model.table().cell(3, kItemColumn), "    Rice");
    EXPECT_EQ(model.table().cell(34, kItemColumn), "Salt");
    EXPECT_EQ(model.table().cell(4, kItemColumn), "") << "an empty name stays empty";
}

TEST_F(StorageModelTest, AdditionalLoadIndentsRows34_42_47_55AsTheLayoutSays)
{
    StorageTable table;
    RestoreMarkers(table, StorageKind::Additional);
    for (const int row : {2, 17, 33, 34, 42, 47, 55})
        table.setCell(row, kItemColumn, QStringLiteral("    Item %1").arg(row));
    ASSERT_TRUE(WriteTableFile(StorageKind::Additional, table));
    StorageModel model = loaded(StorageKind::Additional);
    const std::pair<int, const char*> expected[] = {{2, "    Item 2"},  {17, "Item 17"},     {33, "Item 33"},
                                                    {34, "    Item 34"}, {42, "Item 42"}, {47, "Item 47"},
                                                    {55, "    Item 55"}};
    for (const auto& [row, name] : expected)
        EXPECT_EQ(model.table().cell(row, kItemColumn), name) << row;
    // Saved and loaded again, no name gains blanks.
    ASSERT_TRUE(model.save().saved());
    model.load();
    for (const auto& [row, name] : expected)
        EXPECT_EQ(model.table().cell(row, kItemColumn), name) << row;
}

TEST_F(StorageModelTest, EmergencyLoadKeepsNamesAsStored)
{
    StorageTable table;
    table.setCell(2, kItemColumn, QStringLiteral("  Canned Meat"));
    table.setCell(2, kFamilyColumn, kNotApplicable);
    ASSERT_TRUE(WriteTableFile(StorageKind::Emergency, table));
    EXPECT_EQ(loaded(StorageKind::Emergency).table().cell(2, kItemColumn), "  Canned Meat");
}

TEST_F(StorageModelTest, EnteredSubItemNamesOf17And18CharactersSaveAsShown)
{
    StorageTable marked;
    RestoreMarkers(marked, StorageKind::Basic);
    ASSERT_TRUE(WriteTableFile(StorageKind::Basic, marked));
    StorageModel model = loaded(StorageKind::Basic);
    model.commit(2, kItemColumn, QString(17, u'a'));
    model.commit(3, kItemColumn, QString(18, u'b'));
    EXPECT_EQ(model.table().cell(2, kItemColumn), "    " + QString(17, u'a'));
    EXPECT_EQ(model.table().cell(3, kItemColumn), QString(18, u'b'));
    ASSERT_TRUE(model.save().saved());
    const StorageTable saved = ReadTableFile(StorageKind::Basic);
    EXPECT_EQ(saved.cell(2, kItemColumn), "    " + QString(17, u'a')) << "indents are written";
    EXPECT_EQ(saved.cell(3, kItemColumn), QString(18, u'b'));
    model.load();
    EXPECT_EQ(model.table().cell(3, kItemColumn), "    " + QString(18, u'b')) << "a load indents every sub-item";
}

// ---- Categories -------------------------------------------------------------------------------

TEST_F(StorageModelTest, CategoriesMapGridRowsToTableRows)
{
    StorageModel model = loaded(StorageKind::Basic);
    EXPECT_EQ(model.tableRow(0), 1);
    EXPECT_EQ(model.tableRow(59), 60);
    EXPECT_EQ(model.tableRow(60), 0);
    model.showCategory(6);
    EXPECT_EQ(model.shownRows(), (RowRange{40, 53}));
    EXPECT_EQ(model.tableRow(0), 40);
    EXPECT_EQ(model.tableRow(13), 53);
    EXPECT_EQ(model.tableRow(14), 0);
    EXPECT_EQ(model.tableRow(-1), 0);
    StorageModel additional = loaded(StorageKind::Additional);
    additional.showCategory(7);
    EXPECT_TRUE(additional.allView()) << "a hidden button shows nothing new";
}

TEST_F(StorageModelTest, ThePieFollowsTheCategoryInBasicOnly)
{
    copyStoredFiles();
    StorageModel model = loaded(StorageKind::Basic);
    EXPECT_FALSE(model.pie());
    model.showCategory(1);
    ASSERT_TRUE(model.pie());
    EXPECT_EQ(model.pie()->onHand, 150.5);
    model.showCategory(8);
    EXPECT_FALSE(model.pie());
}

// ---- Defaults and clearing ----------------------------------------------------------------------

TEST_F(StorageModelTest, DefaultTitlesReplaceColumn0WithBasicSubItemsIndented)
{
    QStringList titles;
    for (int row = 1; row <= 60; ++row)
        titles << QStringLiteral("Title %1").arg(row);
    folder.writeBytes("FdsB3.Fil", QuotedLines(titles));
    StorageTable table;
    RestoreMarkers(table, StorageKind::Basic);
    ASSERT_TRUE(WriteTableFile(StorageKind::Basic, table));
    StorageModel model = loaded(StorageKind::Basic);
    model.applyDefaultTitles();
    EXPECT_TRUE(model.dataChanged());
    EXPECT_EQ(model.table().cell(1, kItemColumn), "Title 1");
    EXPECT_EQ(model.table().cell(2, kItemColumn), "    Title 2");
    EXPECT_EQ(model.table().cell(60, kItemColumn), "Title 60");
}

TEST_F(StorageModelTest, DefaultTitlesPastTheFilesEndKeepTheirNames)
{
    folder.writeBytes("EmerE3.Fil", QuotedLines({"First", "Second"}));
    StorageTable table;
    table.setCell(3, kItemColumn, QStringLiteral("Kept"));
    ASSERT_TRUE(WriteTableFile(StorageKind::Emergency, table));
    StorageModel model = loaded(StorageKind::Emergency);
    model.applyDefaultTitles();
    EXPECT_EQ(model.table().cell(2, kItemColumn), "Second");
    EXPECT_EQ(model.table().cell(3, kItemColumn), "Kept");
}

TEST_F(StorageModelTest, DefaultAmountsGoOntoTheirRowsWithoutLeadingBlanksAndRecalculate)
{
    folder.writeBytes("FdsB4.Fil", QuotedLines({" 300 lbs", "16 lbs", "60 lbs", "8 lbs", "20 lbs", "60 lbs",
                                                "14 gals", "1 lbs"}));
    ASSERT_TRUE(WriteFamilyFile("2"));
    StorageModel model = loaded(StorageKind::Basic);
    model.applyDefaultAmounts();
    EXPECT_TRUE(model.dataChanged());
    const std::pair<int, const char*> expected[] = {{1, "300 lbs"}, {13, "16 lbs"}, {22, "60 lbs"}, {34, "8 lbs"},
                                                    {35, "20 lbs"}, {40, "60 lbs"}, {54, "14 gals"}, {55, "1 lbs"}};
    for (const auto& [row, amount] : expected)
        EXPECT_EQ(model.table().cell(row, kPerPersonColumn), amount) << row;
    EXPECT_EQ(model.table().cell(1, kNeededColumn), "600 lbs");
    EXPECT_EQ(model.table().cell(54, kNeededColumn), "28 gals");
    EXPECT_EQ(model.table().cell(56, kPerPersonColumn), "");
}

TEST_F(StorageModelTest, DefaultAmountsPastTheFilesEndKeepColumn2)
{
    folder.writeBytes("AddA4.Fil", QuotedLines({"20 lbs"}));
    StorageTable table;
    table.setCell(17, kPerPersonColumn, QStringLiteral("9 lbs"));
    ASSERT_TRUE(WriteTableFile(StorageKind::Additional, table));
    StorageModel model = loaded(StorageKind::Additional);
    model.applyDefaultAmounts();
    EXPECT_EQ(model.table().cell(1, kPerPersonColumn), "20 lbs");
    EXPECT_EQ(model.table().cell(17, kPerPersonColumn), "9 lbs");
}

TEST_F(StorageModelTest, TheStarCellsSurviveClearLastActionColumns)
{
    copyStoredFiles();
    StorageModel model = loaded(StorageKind::Basic);
    model.clearLastActions();
    EXPECT_TRUE(model.dataChanged());
    for (int row = 1; row <= kStorageRows; ++row) {
        for (const int column : {kDateColumn, kAddedColumn, kUsedColumn}) {
            const QString expected = IsMarkerCell(StorageKind::Basic, row, column) ? "*" : "";
            EXPECT_EQ(model.table().cell(row, column), expected) << row << " " << column;
        }
    }
    EXPECT_EQ(model.table().cell(2, kOnHandColumn), "100 lbs") << "the stock stays";
}

TEST_F(StorageModelTest, SwitchingKindLoadsTheOtherTable)
{
    copyStoredFiles();
    StorageModel model = loaded(StorageKind::Basic);
    model.commit(60, kItemColumn, "Changed");
    model.switchKind(StorageKind::Additional);
    EXPECT_EQ(model.kind(), StorageKind::Additional);
    EXPECT_FALSE(model.dataChanged());
    EXPECT_EQ(model.table().cell(1, kItemColumn), "Meats");
    EXPECT_EQ(model.caption(), "Additional Storage [Could substitute for some sugar, fat, or lentils]");
}
