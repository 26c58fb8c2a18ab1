// The sums of a storage table: the need of each row from the family size,
// group totals, Add and Use, the percent list and the category pie.
#include "storage/logic/storagecalc.h"

#include <gtest/gtest.h>

namespace {

struct NeedRow {
    const char* name;
    const char* family;
    const char* perPerson;
    const char* oldNeed;
    const char* need;        // column 3 afterwards
    const char* familyCell;  // column 1 afterwards
};

class RowNeed : public ::testing::TestWithParam<NeedRow> {};

// Basic row 54 (water) is a calculated single item.
constexpr int kWater = 54;

} // namespace

TEST_P(RowNeed, IsFamilyTimesAmountWithTheUnit)
{
    const NeedRow& row = GetParam();
    StorageTable table;
    table.setCell(kWater, kPerPersonColumn, QString::fromUtf8(row.perPerson));
    table.setCell(kWater, kNeededColumn, QString::fromUtf8(row.oldNeed));
    table.setCell(kWater, kFamilyColumn, QStringLiteral("old"));
    RecalculateAll(table, StorageKind::Basic, QString::fromUtf8(row.family));
    EXPECT_EQ(table.cell(kWater, kNeededColumn), QString::fromUtf8(row.need));
    EXPECT_EQ(table.cell(kWater, kFamilyColumn), QString::fromUtf8(row.familyCell));
}

INSTANTIATE_TEST_SUITE_P(
    StorageCalc, RowNeed,
    ::testing::Values(
        NeedRow{"WithUnit", "4", "14 gals", "", "56 gals", "4"},
        NeedRow{"AnAmountPerPersonOf25WithoutUnitGivesANeedWithNoUnit", "4", "25", "", "100", "4"},
        NeedRow{"ThreePersonsAt07LbsNeed21LbsWithoutRounding", "3", "0.7 lbs", "", "2.1 lbs", "3"},
        NeedRow{"ThePointOnlyAmount", "3", ".5 lbs", "", "1.5 lbs", "3"},
        NeedRow{"TheUnitIsEverythingAfterTheFirstBlank", "2", "5 lb bags", "", "10 lb bags", "2"},
        NeedRow{"ABlankWithNothingAfterIt", "2", "5 ", "", "10 ", "2"},
        NeedRow{"ARowWhoseColumn2HoldsAStarKeepsItsColumn3", "4", "*", "9 lbs", "9 lbs", "old"},
        NeedRow{"ARowWhoseColumn2IsEmptyKeepsItsColumn3", "4", "", "9 lbs", "9 lbs", "old"},
        NeedRow{"AZeroAmountKeepsColumn3", "4", "0 lbs", "9 lbs", "9 lbs", "old"},
        NeedRow{"ANegativeAmountKeepsColumn3", "4", "-2 lbs", "9 lbs", "9 lbs", "old"},
        NeedRow{"TextThatIsNoNumberKeepsColumn3", "4", "lots", "9", "9", "old"},
        NeedRow{"FamilyZeroHasNoEffect", "0", "5 lbs", "9 lbs", "9 lbs", "old"},
        NeedRow{"FamilyThatIsNoNumberHasNoEffect", "many", "5 lbs", "9 lbs", "9 lbs", "old"},
        NeedRow{"ASingleOverflowLeavesColumn3AsItWas", "1000000", "1e35 lbs", "9 lbs", "9 lbs", "1000000"},
        NeedRow{"AFamilyBeyondASingleHasNoEffect", "1e39", "5 lbs", "9 lbs", "9 lbs", "old"},
        NeedRow{"SingleRoundingShowsSevenDigits", "3", "0.1", "", "0.3", "3"}),
    [](const ::testing::TestParamInfo<NeedRow>& info) { return std::string(info.param.name); });

TEST(StorageCalc, OnlyCalculatedRowsAreWorkedOut)
{
    StorageTable table;
    table.setCell(2, kPerPersonColumn, QStringLiteral("5 lbs")); // a Basic sub-item
    table.setCell(1, kPerPersonColumn, QStringLiteral("5 lbs"));
    RecalculateAll(table, StorageKind::Basic, QStringLiteral("2"));
    EXPECT_EQ(table.cell(2, kNeededColumn), "");
    EXPECT_EQ(table.cell(1, kNeededColumn), "10 lbs");
}

TEST(StorageCalc, FamilySizeZeroInTheFileBecomes1OnLoad)
{
    EXPECT_EQ(FamilySizeOnLoad("0"), "1");
    EXPECT_EQ(FamilySizeOnLoad(""), "1");
    EXPECT_EQ(FamilySizeOnLoad("-3"), "1");
    EXPECT_EQ(FamilySizeOnLoad("abc"), "1");
    EXPECT_EQ(FamilySizeOnLoad("5"), "5");
    EXPECT_EQ(FamilySizeOf(u"4 people"), 4.0F);
    EXPECT_EQ(FamilySizeOf(u"0"), std::nullopt);
}

TEST(StorageCalc, UnitIsWhatFollowsTheFirstBlank)
{
    EXPECT_EQ(UnitOf(u"25 lbs"), "lbs");
    EXPECT_EQ(UnitOf(u"25"), "");
    EXPECT_EQ(UnitOf(u"2 lb bags"), "lb bags");
    EXPECT_EQ(UnitOf(u" 3 qt"), "3 qt");
}

// ---- Group totals ----------------------------------------------------------------------

TEST(StorageCalc, GroupTotalSumsSubItemsWithTheGroupsUnit)
{
    StorageTable table;
    table.setCell(1, kNeededColumn, QStringLiteral("1200 lbs"));
    table.setCell(2, kOnHandColumn, QStringLiteral("100"));
    table.setCell(3, kOnHandColumn, QStringLiteral("50.5 lbs"));
    table.setCell(5, kOnHandColumn, QStringLiteral("0.25"));
    RunGroupTotal(table, StorageKind::Basic, 3);
    EXPECT_EQ(table.cell(1, kOnHandColumn), "150.75 lbs");
    EXPECT_EQ(table.cell(2, kOnHandColumn), "100 lbs");
    EXPECT_EQ(table.cell(3, kOnHandColumn), "50.5 lbs");
    EXPECT_EQ(table.cell(4, kOnHandColumn), "") << "an empty sub-item stays empty";
    EXPECT_EQ(table.cell(5, kOnHandColumn), "0.25 lbs");
    EXPECT_EQ(table.cell(13, kOnHandColumn), "") << "another group";
}

TEST(StorageCalc, GroupTotalWithoutAUnitHasNoTrailingBlank)
{
    StorageTable table;
    table.setCell(13, kNeededColumn, QStringLiteral("64"));
    table.setCell(14, kOnHandColumn, QStringLiteral("3 cans"));
    RunGroupTotal(table, StorageKind::Basic, 14);
    EXPECT_EQ(table.cell(13, kOnHandColumn), "3");
    EXPECT_EQ(table.cell(14, kOnHandColumn), "3");
}

TEST(StorageCalc, SaltAndRowsFrom54HaveNoGroupTotal)
{
    StorageTable table;
    table.setCell(34, kOnHandColumn, QStringLiteral("4"));
    table.setCell(55, kOnHandColumn, QStringLiteral("2"));
    const StorageTable before = table;
    for (const int row : {34, 54, 55, 60})
        RunGroupTotal(table, StorageKind::Basic, row);
    EXPECT_EQ(table, before);
}

TEST(StorageCalc, AdditionalGroupsTotalAndRow42HasNone)
{
    StorageTable table;
    table.setCell(17, kNeededColumn, QStringLiteral("240 lbs"));
    table.setCell(20, kOnHandColumn, QStringLiteral("12"));
    table.setCell(32, kOnHandColumn, QStringLiteral("3"));
    RunGroupTotal(table, StorageKind::Additional, 20);
    EXPECT_EQ(table.cell(17, kOnHandColumn), "15 lbs");
    table.setCell(43, kOnHandColumn, QStringLiteral("7"));
    RunGroupTotal(table, StorageKind::Additional, 43);
    EXPECT_EQ(table.cell(42, kOnHandColumn), "");
    EXPECT_EQ(table.cell(43, kOnHandColumn), "7");
}

TEST(StorageCalc, AGroupTotalBeyondASingleChangesNothing)
{
    StorageTable table;
    table.setCell(1, kNeededColumn, QStringLiteral("10 lbs"));
    table.setCell(1, kOnHandColumn, QStringLiteral("5 lbs"));
    table.setCell(2, kOnHandColumn, QStringLiteral("3e38"));
    table.setCell(3, kOnHandColumn, QStringLiteral("3e38"));
    const StorageTable before = table;
    RunGroupTotal(table, StorageKind::Basic, 2);
    EXPECT_EQ(table, before);
}

// ---- Add and Use ------------------------------------------------------------------------

TEST(StorageCalc, AddingToAnItemWhoseOnHandIsEmptyStartsItAtTheAmount)
{
    StorageTable table;
    table.setCell(56, kUsedColumn, QStringLiteral("2"));
    AddToStock(table, StorageKind::Basic, 56, 3.5F);
    EXPECT_EQ(table.cell(56, kOnHandColumn), "3.5");
    EXPECT_EQ(table.cell(56, kUsedColumn), "") << "a row shows one last action";
}

TEST(StorageCalc, UsingMoreThanTheStockEmptiesTheCellNoNegativeStockExists)
{
    StorageTable table;
    table.setCell(56, kOnHandColumn, QStringLiteral("3"));
    table.setCell(56, kAddedColumn, QStringLiteral("3"));
    UseFromStock(table, StorageKind::Basic, 56, 5);
    EXPECT_EQ(table.cell(56, kOnHandColumn), "");
    EXPECT_EQ(table.cell(56, kAddedColumn), "");
    table.setCell(56, kOnHandColumn, QStringLiteral("3"));
    UseFromStock(table, StorageKind::Basic, 56, 3);
    EXPECT_EQ(table.cell(56, kOnHandColumn), "") << "0 is empty too";
}

TEST(StorageCalc, AddAndUseInSinglePrecision)
{
    StorageTable table;
    table.setCell(56, kOnHandColumn, QStringLiteral("0.1"));
    AddToStock(table, StorageKind::Basic, 56, 0.2F);
    EXPECT_EQ(table.cell(56, kOnHandColumn), "0.3");
    UseFromStock(table, StorageKind::Basic, 56, 0.1F);
    EXPECT_EQ(table.cell(56, kOnHandColumn), "0.2");
}

TEST(StorageCalc, EmergencyAppendsTheUnitOfTheNeedToAPositiveAmount)
{
    StorageTable table;
    table.setCell(2, kNeededColumn, QStringLiteral("12 cans"));
    AddToStock(table, StorageKind::Emergency, 2, 5);
    EXPECT_EQ(table.cell(2, kOnHandColumn), "5 cans");
    UseFromStock(table, StorageKind::Emergency, 2, 2);
    EXPECT_EQ(table.cell(2, kOnHandColumn), "3 cans");
    UseFromStock(table, StorageKind::Emergency, 2, 3);
    EXPECT_EQ(table.cell(2, kOnHandColumn), "") << "no unit without an amount";
    table.setCell(3, kNeededColumn, QStringLiteral("12"));
    AddToStock(table, StorageKind::Emergency, 3, 1);
    EXPECT_EQ(table.cell(3, kOnHandColumn), "1");
}

TEST(StorageCalc, AddInBasicRunsTheGroupTotal)
{
    StorageTable table;
    table.setCell(22, kNeededColumn, QStringLiteral("240 lbs"));
    table.setCell(23, kOnHandColumn, QStringLiteral("10 lbs"));
    AddToStock(table, StorageKind::Basic, 24, 4);
    EXPECT_EQ(table.cell(24, kOnHandColumn), "4 lbs");
    EXPECT_EQ(table.cell(22, kOnHandColumn), "14 lbs");
    UseFromStock(table, StorageKind::Basic, 23, 10);
    EXPECT_EQ(table.cell(23, kOnHandColumn), "");
    EXPECT_EQ(table.cell(22, kOnHandColumn), "4 lbs");
}

TEST(StorageCalc, AddInAdditionalFromRow33OnRunsNoGroupTotal)
{
    StorageTable table;
    table.setCell(42, kNeededColumn, QStringLiteral("56 gals"));
    AddToStock(table, StorageKind::Additional, 43, 5);
    EXPECT_EQ(table.cell(43, kOnHandColumn), "5");
    EXPECT_EQ(table.cell(42, kOnHandColumn), "");
}

TEST(StorageCalc, OnHandDataIsNeitherEmptyNorAStar)
{
    StorageTable table;
    EXPECT_FALSE(TableHasOnHandData(table));
    table.setCell(1, kOnHandColumn, kNotApplicable);
    table.setCell(2, kOnHandColumn, QStringLiteral("  "));
    EXPECT_FALSE(TableHasOnHandData(table));
    table.setCell(60, kOnHandColumn, QStringLiteral("0"));
    EXPECT_TRUE(HasOnHandData(table, 60));
    EXPECT_TRUE(TableHasOnHandData(table));
}

// ---- Percent of need -----------------------------------------------------------------------

TEST(StorageCalc, PercentListHasOneLinePerGroupAndSingleItem)
{
    StorageTable table;
    const char* names[] = {"Grains", "Dairy Products", "Sugars", "Salt", "  Fats and Oils  ", "Legumes",
                           "Water (2 weeks)"};
    for (int i = 0; i < 7; ++i)
        table.setCell(kPercentRows[i], kItemColumn, QString::fromLatin1(names[i]));
    table.setCell(1, kNeededColumn, QStringLiteral("1200 lbs"));
    table.setCell(1, kOnHandColumn, QStringLiteral("300.4 lbs"));
    const QList<PercentLine> lines = PercentOfNeed(table);
    ASSERT_EQ(lines.size(), 7);
    QStringList items;
    for (const PercentLine& line : lines)
        items << line.item;
    EXPECT_EQ(items, QStringList({"Grains", "Dairy", "Sugars", "Salt", "Fats and Oils", "Legumes", "Water"}));
    EXPECT_EQ(lines[0].need, "1200 lbs");
    EXPECT_EQ(lines[0].onHand, "300");
    EXPECT_EQ(lines[0].percent, "25%");
    EXPECT_NEAR(lines[0].bar, 25.0333, 0.001);
    EXPECT_EQ(lines[1].need, "0") << "an empty need";
    EXPECT_EQ(lines[1].onHand, "0");
    EXPECT_EQ(lines[1].percent, "0%");
    EXPECT_EQ(PercentCaption("4"), "Percent of Basic Food Storage You Have For 4");
}

TEST(StorageCalc, HalfAPercentOfStockShows1Percent)
{
    StorageTable table;
    table.setCell(34, kNeededColumn, QStringLiteral("1000 lbs"));
    table.setCell(34, kOnHandColumn, QStringLiteral("5 lbs"));
    EXPECT_EQ(PercentOfNeed(table)[3].percent, "1%");
    table.setCell(34, kOnHandColumn, QStringLiteral("0.001 lbs"));
    EXPECT_EQ(PercentOfNeed(table)[3].percent, "1%") << "any stock never shows 0%";
    table.setCell(34, kOnHandColumn, QStringLiteral("15 lbs"));
    EXPECT_EQ(PercentOfNeed(table)[3].percent, "2%") << "whole percent, rounded";
}

TEST(StorageCalc, ANeedOf0KeepsThePercentOfTheLineBefore)
{
    StorageTable table;
    table.setCell(22, kNeededColumn, QStringLiteral("100"));
    table.setCell(22, kOnHandColumn, QStringLiteral("40"));
    table.setCell(34, kOnHandColumn, QStringLiteral("3"));  // no need
    const QList<PercentLine> lines = PercentOfNeed(table);
    EXPECT_EQ(lines[2].percent, "40%");
    EXPECT_EQ(lines[3].percent, "40%") << "the division is skipped";
    EXPECT_EQ(lines[3].need, "0");
    StorageTable first;
    first.setCell(1, kOnHandColumn, QStringLiteral("7"));
    EXPECT_EQ(PercentOfNeed(first)[0].percent, "0%") << "the first line starts at 0";
}

TEST(StorageCalc, NoStockShows0PercentWhateverTheShare)
{
    StorageTable table;
    table.setCell(1, kNeededColumn, QStringLiteral("100"));
    table.setCell(1, kOnHandColumn, QStringLiteral("50"));
    table.setCell(13, kNeededColumn, QStringLiteral("0"));
    const QList<PercentLine> lines = PercentOfNeed(table);
    EXPECT_EQ(lines[1].percent, "0%");
    EXPECT_EQ(lines[1].bar, 0);
}

// ---- Category pie --------------------------------------------------------------------------

TEST(StorageCalc, PieShowsOnHandAndWhatIsStillNeeded)
{
    StorageTable table;
    table.setCell(13, kNeededColumn, QStringLiteral("64 lbs"));
    table.setCell(13, kOnHandColumn, QStringLiteral("16 lbs"));
    const std::optional<PieSlices> pie = CategoryPie(table, StorageKind::Basic, 2);
    ASSERT_TRUE(pie);
    EXPECT_EQ(*pie, (PieSlices{16, 48, "On Hand (25.0%)", "Need (75.0%)"}));
}

TEST(StorageCalc, PieAtOrAboveTheNeedShows100Percent)
{
    StorageTable table;
    table.setCell(54, kNeededColumn, QStringLiteral("56 gals"));
    table.setCell(54, kOnHandColumn, QStringLiteral("70 gals"));
    EXPECT_EQ(*CategoryPie(table, StorageKind::Basic, 7), (PieSlices{70, 0, "On Hand (100.0%)", "Need (0.0%)"}));
    table.setCell(54, kOnHandColumn, QStringLiteral("56"));
    EXPECT_EQ(CategoryPie(table, StorageKind::Basic, 7)->onHandLabel, "On Hand (100.0%)");
}

TEST(StorageCalc, PieOnlyForBasicCategories1To7)
{
    const StorageTable table;
    EXPECT_FALSE(CategoryPie(table, StorageKind::Basic, 0));
    EXPECT_FALSE(CategoryPie(table, StorageKind::Basic, 8));
    EXPECT_TRUE(CategoryPie(table, StorageKind::Basic, 4));
    EXPECT_FALSE(CategoryPie(table, StorageKind::Emergency, 1));
    EXPECT_FALSE(CategoryPie(table, StorageKind::Additional, 1));
}
