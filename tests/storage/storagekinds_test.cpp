// The layout of the three storage tables: files, category buttons, the cells
// each save marks "*", the rows whose need is worked out, the groups, and
// which item names stand indented.
#include "storage/logic/storagekinds.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using Cells = std::set<std::pair<int, int>>;

Cells MarkersOf(StorageKind kind)
{
    Cells cells;
    for (int row = 1; row <= kStorageRows; ++row)
        for (int column = 0; column < kStorageColumns; ++column)
            if (IsMarkerCell(kind, row, column))
                cells.insert({row, column});
    return cells;
}

Cells Block(std::initializer_list<int> rows, int firstColumn, int lastColumn)
{
    Cells cells;
    for (const int row : rows)
        for (int column = firstColumn; column <= lastColumn; ++column)
            cells.insert({row, column});
    return cells;
}

Cells Rows(int first, int last, int firstColumn, int lastColumn, std::set<int> except = {})
{
    Cells cells;
    for (int row = first; row <= last; ++row)
        if (!except.contains(row))
            for (int column = firstColumn; column <= lastColumn; ++column)
                cells.insert({row, column});
    return cells;
}

Cells Join(std::initializer_list<Cells> parts)
{
    Cells all;
    for (const Cells& part : parts)
        all.insert(part.begin(), part.end());
    return all;
}

std::vector<int> CalculatedRows(StorageKind kind)
{
    std::vector<int> rows;
    for (int row = 1; row <= kStorageRows; ++row)
        if (IsCalculatedRow(kind, row))
            rows.push_back(row);
    return rows;
}

std::vector<int> Range(int first, int last, std::set<int> except = {})
{
    std::vector<int> rows;
    for (int row = first; row <= last; ++row)
        if (!except.contains(row))
            rows.push_back(row);
    return rows;
}

struct CategoryRow {
    StorageKind kind;
    int button;
    const char* caption;
    int first;
    int last;
};

class Categories : public ::testing::TestWithParam<CategoryRow> {};

std::string CategoryName(const ::testing::TestParamInfo<CategoryRow>& info)
{
    const char* const kinds[] = {"Basic", "Emergency", "Additional"};
    return std::string(kinds[int(info.param.kind)]) + "Button" + std::to_string(info.param.button);
}

} // namespace

TEST(StorageKinds, FilesCaptionsAndBackupModes)
{
    const StorageKindInfo& basic = KindInfo(StorageKind::Basic);
    EXPECT_STREQ(basic.caption, "Basic Food Storage");
    EXPECT_STREQ(basic.tableFile, "FdsB1.Fil");
    EXPECT_STREQ(basic.titlesFile, "FdsB3.Fil");
    EXPECT_STREQ(basic.amountsFile, "FdsB4.Fil");
    EXPECT_EQ(basic.backupMode, 14);
    const StorageKindInfo& emergency = KindInfo(StorageKind::Emergency);
    EXPECT_STREQ(emergency.caption, "Emergency Storage");
    EXPECT_STREQ(emergency.tableFile, "EmerE1.Fil");
    EXPECT_STREQ(emergency.titlesFile, "EmerE3.Fil");
    EXPECT_STREQ(emergency.amountsFile, "EmerE4.Fil");
    EXPECT_EQ(emergency.backupMode, 16);
    const StorageKindInfo& additional = KindInfo(StorageKind::Additional);
    EXPECT_STREQ(additional.caption, "Additional Storage [Could substitute for some sugar, fat, or lentils]");
    EXPECT_STREQ(additional.tableFile, "AddA1.Fil");
    EXPECT_STREQ(additional.titlesFile, "AddA3.Fil");
    EXPECT_STREQ(additional.amountsFile, "AddA4.Fil");
    EXPECT_EQ(additional.backupMode, 18);
    EXPECT_STREQ(kFamilyFile, "FdsB2.Fil");
}

TEST_P(Categories, ButtonCaptionAndRows)
{
    const CategoryRow& row = GetParam();
    const CategoryButton& button = KindInfo(row.kind).categories[size_t(row.button)];
    if (!row.caption) {
        EXPECT_EQ(button.caption, nullptr) << "hidden";
        EXPECT_EQ(CategoryRows(row.kind, row.button).count(), 0);
        return;
    }
    EXPECT_STREQ(button.caption, row.caption);
    EXPECT_EQ(CategoryRows(row.kind, row.button), (RowRange{row.first, row.last}));
}

INSTANTIATE_TEST_SUITE_P(
    StorageKinds, Categories,
    ::testing::Values(
        CategoryRow{StorageKind::Basic, 0, "&All", 1, 60}, CategoryRow{StorageKind::Basic, 1, "&Grains", 1, 12},
        CategoryRow{StorageKind::Basic, 2, "&Dairy", 13, 21}, CategoryRow{StorageKind::Basic, 3, "S&ugar", 22, 33},
        CategoryRow{StorageKind::Basic, 4, "Sal&t", 34, 34}, CategoryRow{StorageKind::Basic, 5, "&Fats", 35, 39},
        CategoryRow{StorageKind::Basic, 6, "&Legumes", 40, 53}, CategoryRow{StorageKind::Basic, 7, "&Water", 54, 54},
        CategoryRow{StorageKind::Basic, 8, "&Misc.", 55, 60},
        CategoryRow{StorageKind::Emergency, 0, "&All", 1, 60}, CategoryRow{StorageKind::Emergency, 1, "&Food", 1, 10},
        CategoryRow{StorageKind::Emergency, 2, "&Water", 11, 11},
        CategoryRow{StorageKind::Emergency, 3, "&Equip.", 12, 24},
        CategoryRow{StorageKind::Emergency, 4, "&Bedding", 25, 32},
        CategoryRow{StorageKind::Emergency, 5, "&Clothing", 33, 38},
        CategoryRow{StorageKind::Emergency, 6, "Fuel/&L.", 39, 45},
        CategoryRow{StorageKind::Emergency, 7, "Pe&rs.", 46, 54},
        CategoryRow{StorageKind::Emergency, 8, "Ot&her", 55, 60},
        CategoryRow{StorageKind::Additional, 0, "&All", 1, 60},
        CategoryRow{StorageKind::Additional, 1, "&Meats", 1, 16},
        CategoryRow{StorageKind::Additional, 2, "&F/V", 17, 32},
        CategoryRow{StorageKind::Additional, 3, "&Misc.", 33, 41},
        CategoryRow{StorageKind::Additional, 4, "&Water", 42, 46},
        CategoryRow{StorageKind::Additional, 5, "&Equip.", 47, 54},
        CategoryRow{StorageKind::Additional, 6, "Othe&r", 55, 60},
        CategoryRow{StorageKind::Additional, 7, nullptr, 0, 0}, CategoryRow{StorageKind::Additional, 8, nullptr, 0, 0}),
    CategoryName);

TEST(StorageKinds, TwoKindsNeverShareRowsEachKindHasItsOwnFileAndLayout)
{
    EXPECT_NE(MarkersOf(StorageKind::Basic), MarkersOf(StorageKind::Emergency));
    EXPECT_NE(MarkersOf(StorageKind::Basic), MarkersOf(StorageKind::Additional));
    EXPECT_STRNE(KindInfo(StorageKind::Basic).tableFile, KindInfo(StorageKind::Emergency).tableFile);
    EXPECT_STRNE(KindInfo(StorageKind::Emergency).tableFile, KindInfo(StorageKind::Additional).tableFile);
}

TEST(StorageKinds, BasicMarksGroupRowsLastActionsAndSubItemsNeeds)
{
    const Cells expected = Join({Block({1, 13, 22, 35, 40}, 5, 7),
                                 Rows(2, 53, 1, 3, {13, 22, 34, 35, 40})});
    EXPECT_EQ(MarkersOf(StorageKind::Basic), expected);
    for (int column = 0; column < kStorageColumns; ++column) {
        EXPECT_FALSE(IsMarkerCell(StorageKind::Basic, 34, column)) << "Salt has every column";
        for (int row = 54; row <= 60; ++row)
            EXPECT_FALSE(IsMarkerCell(StorageKind::Basic, row, column)) << row;
    }
}

TEST(StorageKinds, EmergencyMarksItsHeadingRowsFromColumn1)
{
    EXPECT_EQ(MarkersOf(StorageKind::Emergency), Block({1, 12, 25, 33, 39, 46}, 1, 7));
}

TEST(StorageKinds, AdditionalMarksGroupsSubItemsAndHeadings)
{
    const Cells expected = Join({Block({1, 17, 42}, 5, 7), Rows(2, 16, 1, 3), Rows(18, 32, 1, 3),
                                 Block({33, 47}, 1, 7)});
    EXPECT_EQ(MarkersOf(StorageKind::Additional), expected);
}

TEST(StorageKinds, CalculatedRowsOfEachKind)
{
    std::vector<int> basic{1, 13, 22, 34, 35, 40};
    for (int row = 54; row <= 60; ++row)
        basic.push_back(row);
    EXPECT_EQ(CalculatedRows(StorageKind::Basic), basic);
    EXPECT_EQ(CalculatedRows(StorageKind::Emergency), Range(1, 60, {1, 12, 25, 33, 39, 46}));
    std::vector<int> additional{1, 17};
    for (int row = 34; row <= 52; ++row)
        additional.push_back(row);
    for (int row = 55; row <= 60; ++row)
        additional.push_back(row);
    EXPECT_EQ(CalculatedRows(StorageKind::Additional), additional);
    EXPECT_FALSE(IsCalculatedRow(StorageKind::Emergency, 0));
    EXPECT_FALSE(IsCalculatedRow(StorageKind::Emergency, 61));
}

TEST(StorageKinds, BasicGroupsAreTheCategoriesFromGrainsToLegumesSaltAndWaterStandAlone)
{
    const std::pair<int, StorageGroup> groups[] = {{1, {1, 12}},   {12, {1, 12}},  {13, {13, 21}}, {21, {13, 21}},
                                                   {22, {22, 33}}, {33, {22, 33}}, {35, {35, 39}}, {39, {35, 39}},
                                                   {40, {40, 53}}, {53, {40, 53}}};
    for (const auto& [row, group] : groups)
        EXPECT_EQ(GroupOf(StorageKind::Basic, row), group) << row;
    for (const int row : {34, 54, 55, 60})
        EXPECT_EQ(GroupOf(StorageKind::Basic, row), std::nullopt) << row;
}

TEST(StorageKinds, AdditionalHasTwoGroupsAndRow42HasNoTotal)
{
    EXPECT_EQ(GroupOf(StorageKind::Additional, 5), (StorageGroup{1, 16}));
    EXPECT_EQ(GroupOf(StorageKind::Additional, 32), (StorageGroup{17, 32}));
    for (const int row : {33, 42, 43, 46, 50})
        EXPECT_EQ(GroupOf(StorageKind::Additional, row), std::nullopt) << row;
    for (int row = 1; row <= kStorageRows; ++row)
        EXPECT_EQ(GroupOf(StorageKind::Emergency, row), std::nullopt) << row;
    EXPECT_TRUE(RunsGroupTotal(StorageKind::Additional, 32));
    EXPECT_FALSE(RunsGroupTotal(StorageKind::Additional, 33));
    EXPECT_TRUE(RunsGroupTotal(StorageKind::Basic, 60));
    EXPECT_FALSE(RunsGroupTotal(StorageKind::Emergency, 2));
}

TEST(StorageKinds, LoadIndentsBasicSubItemsByTheirMarker)
{
    EXPECT_TRUE(IndentsOnLoad(StorageKind::Basic, 2, "*"));
    EXPECT_FALSE(IndentsOnLoad(StorageKind::Basic, 1, "4"));
    EXPECT_FALSE(IndentsOnLoad(StorageKind::Basic, 55, ""));
    EXPECT_FALSE(IndentsOnLoad(StorageKind::Emergency, 2, "*"));
}

TEST(StorageKinds, LoadIndentsAdditionalSubItemsAndTheLowerRowsBut33_42And47)
{
    EXPECT_TRUE(IndentsOnLoad(StorageKind::Additional, 2, "*"));
    EXPECT_FALSE(IndentsOnLoad(StorageKind::Additional, 17, "4"));
    for (const int row : {34, 41, 43, 46, 48, 55, 60})
        EXPECT_TRUE(IndentsOnLoad(StorageKind::Additional, row, "")) << row;
    for (const int row : {33, 42, 47})
        EXPECT_FALSE(IndentsOnLoad(StorageKind::Additional, row, "*")) << row;
}

TEST(StorageKinds, EntryIndentsNamesUnder18CharactersWhereTheKindSays)
{
    const QString seventeen(17, u'x');
    const QString eighteen(18, u'x');
    EXPECT_TRUE(IndentsOnEntry(StorageKind::Basic, 2, "*", seventeen));
    EXPECT_FALSE(IndentsOnEntry(StorageKind::Basic, 2, "*", eighteen));
    EXPECT_FALSE(IndentsOnEntry(StorageKind::Basic, 1, "4", "Grains"));
    EXPECT_FALSE(IndentsOnEntry(StorageKind::Emergency, 2, "*", "Cans"));
    EXPECT_TRUE(IndentsOnEntry(StorageKind::Additional, 2, "*", "Tuna"));
    EXPECT_TRUE(IndentsOnEntry(StorageKind::Additional, 35, "1", "Spices"));
    EXPECT_TRUE(IndentsOnEntry(StorageKind::Additional, 54, "", "Bags"));
    EXPECT_FALSE(IndentsOnEntry(StorageKind::Additional, 35, "1", eighteen));
    for (const int row : {33, 34, 42, 47, 55, 60})
        EXPECT_FALSE(IndentsOnEntry(StorageKind::Additional, row, "*", "Name")) << row;
}

TEST(StorageKinds, DefaultAmountRows)
{
    EXPECT_EQ(DefaultAmountRows(StorageKind::Basic), QList<int>({1, 13, 22, 34, 35, 40, 54, 55}));
    EXPECT_EQ(DefaultAmountRows(StorageKind::Emergency).size(), 54);
    const QList<int> additional = DefaultAmountRows(StorageKind::Additional);
    EXPECT_EQ(additional.size(), 27);
    EXPECT_EQ(additional.first(), 1);
    EXPECT_TRUE(additional.contains(47));
    EXPECT_FALSE(additional.contains(53));
}
