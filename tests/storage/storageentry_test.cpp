// Entry on the storage grid: the cursor's rules cell by cell, the input
// box's characters, the unit an amount keeps, and committing a value.
#include "storage/logic/storageentry.h"

#include "common/dates.h"

#include <gtest/gtest.h>

namespace {

using Then = CursorOutcome::Then;

// Basic storage with a group (row 1), a sub-item (row 2), Salt (row 34) and
// an unnamed single item (row 55).
StorageTable SampleTable()
{
    StorageTable table;
    const QStringList group{"Grains", "4", "300 lbs", "1200 lbs", "100 lbs", "*", "*", "*"};
    const QStringList subItem{"    Wheat", "*", "*", "*", "100 lbs", "4/3/26", "25", ""};
    const QStringList salt{"Salt", "4", "8 lbs", "32 lbs", "", "", "", ""};
    for (int column = 0; column < kStorageColumns; ++column) {
        table.setCell(1, column, group[column]);
        table.setCell(2, column, subItem[column]);
        table.setCell(34, column, salt[column]);
    }
    table.setCell(55, kPerPersonColumn, QStringLiteral("1 lbs"));
    return table;
}

struct CursorRow {
    const char* name;
    int row;
    int column;
    bool allView;
    Then then;
    const char* noticeTitle;  // nullptr: no notice
    const char* noticeText;
    int entryColumn;
    const char* inputText;
    bool closeCalendar;
};

class Cursor : public ::testing::TestWithParam<CursorRow> {};

const char* const kNameFirst = "Please enter Storage Item Name First!";
const char* const kAllOnly = "These entries can only be entered or changed when All data is selected!";
const char* const kNothingToUse = "There is No Amount On Hand Total for this Storage Item\nfrom which to Remove Amount Used!";

} // namespace

TEST_P(Cursor, RuleOfTheCellReached)
{
    const CursorRow& row = GetParam();
    const CursorOutcome outcome = CursorRuleFor(SampleTable(), row.row, row.column, row.allView);
    EXPECT_EQ(outcome.then, row.then);
    if (row.noticeTitle) {
        ASSERT_TRUE(outcome.notice);
        EXPECT_EQ(outcome.notice->title, QString::fromLatin1(row.noticeTitle));
        EXPECT_EQ(outcome.notice->text, QString::fromLatin1(row.noticeText));
        EXPECT_EQ(outcome.notice->buttons, Buttons::Ok);
    } else {
        EXPECT_FALSE(outcome.notice);
    }
    EXPECT_EQ(outcome.entryColumn, row.entryColumn);
    EXPECT_EQ(outcome.inputText, QString::fromLatin1(row.inputText));
    EXPECT_EQ(outcome.closeCalendar, row.closeCalendar);
}

INSTANTIATE_TEST_SUITE_P(
    StorageEntry, Cursor,
    ::testing::Values(
        CursorRow{"CategoryColumns1To3AnswerAllDataOnly", 34, 2, false, Then::Nothing, "Grid Entry", kAllOnly, -1, "",
                  true},
        CursorRow{"CategoryColumn1", 34, 1, false, Then::Nothing, "Grid Entry", kAllOnly, -1, "", true},
        CursorRow{"CategoryColumn3", 34, 3, false, Then::Nothing, "Grid Entry", kAllOnly, -1, "", true},
        CursorRow{"CategoryItemColumnFollowsTheRules", 34, 0, false, Then::LoadInput, nullptr, "", 0, "Salt", true},
        CursorRow{"AStarSendsTheCursorToColumn0", 1, 5, true, Then::ToItemColumn, nullptr, "", -1, "", false},
        CursorRow{"AStarInTheNeedOfASubItem", 2, 2, true, Then::ToItemColumn, nullptr, "", -1, "", true},
        CursorRow{"Column0LoadsTheName", 2, 0, true, Then::LoadInput, nullptr, "", 0, "    Wheat", true},
        CursorRow{"Column1GivesTheFamilyField", 34, 1, true, Then::FocusFamily, nullptr, "", -1, "", true},
        CursorRow{"Column2LoadsTheAmount", 34, 2, true, Then::LoadInput, nullptr, "", 2, "8 lbs", true},
        CursorRow{"Column3EntersColumn2", 34, 3, true, Then::LoadInput, nullptr, "", 2, "8 lbs", true},
        CursorRow{"Column2WithoutANameAsksForItFirst", 55, 2, true, Then::ToItemColumn, "Food Storage Entry",
                  kNameFirst, -1, "", true},
        CursorRow{"Column3WithoutAName", 55, 3, true, Then::ToItemColumn, "Food Storage Entry", kNameFirst, -1, "",
                  true},
        CursorRow{"Column4TakesNoEntry", 34, 4, true, Then::Nothing, nullptr, "", -1, "", true},
        CursorRow{"Column5OpensTheCalendar", 2, 5, true, Then::OpenCalendar, nullptr, "", 5, "4/3/26", false},
        CursorRow{"Column5WithoutAName", 55, 5, true, Then::ToItemColumn, "Food Storage Entry", kNameFirst, -1, "",
                  false},
        CursorRow{"Column6LoadsTheAddedAmount", 2, 6, true, Then::LoadInput, nullptr, "", 6, "25", true},
        CursorRow{"Column6WithoutAName", 55, 6, true, Then::ToItemColumn, "Food Storage Entry", kNameFirst, -1, "",
                  true},
        CursorRow{"Column7WithStock", 2, 7, true, Then::LoadInput, nullptr, "", 7, "", true},
        CursorRow{"Column7WithoutStockIsRefused", 34, 7, true, Then::Nothing, "Food Storage Entry", kNothingToUse, -1,
                  "", true}),
    [](const ::testing::TestParamInfo<CursorRow>& info) { return std::string(info.param.name); });

TEST(StorageEntry, TheCalendarOpensOnTheCellsDateOrToday)
{
    SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    StorageTable table = SampleTable();
    EXPECT_EQ(CursorRuleFor(table, 2, kDateColumn, true).calendarDate, QDate(2026, 4, 3));
    table.setCell(2, kDateColumn, QString());
    EXPECT_FALSE(CursorRuleFor(table, 2, kDateColumn, true).calendarDate.isValid()) << "today";
    SetDateLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    table.setCell(2, kDateColumn, QStringLiteral("3/4/26"));
    EXPECT_EQ(CursorRuleFor(table, 2, kDateColumn, true).calendarDate, QDate(2026, 4, 3));
    SetDateLocale(QLocale::system());
}

TEST(StorageEntry, InputBoxCharactersByColumn)
{
    for (const QChar c : QStringLiteral("./0123456789"))
        for (int column = 1; column < kStorageColumns; ++column)
            EXPECT_TRUE(InputAccepts(column, c)) << column;
    for (const int column : {1, 3, 4, 5, 6, 7})
        for (const QChar c : QStringLiteral("a -,+eE*"))
            EXPECT_FALSE(InputAccepts(column, c)) << column << " " << c.toLatin1();
    for (const int column : {0, 2})
        for (const QChar c : QStringLiteral("aZ -*&"))
            EXPECT_TRUE(InputAccepts(column, c)) << column;
}

TEST(StorageEntry, ADoubleQuoteIsRefusedEverywhere)
{
    for (int column = 0; column < kStorageColumns; ++column)
        EXPECT_FALSE(InputAccepts(column, u'"')) << column;
    EXPECT_FALSE(FamilyAccepts(u'"'));
}

TEST(StorageEntry, TheFamilyFieldTakesDigitsOnly)
{
    for (const QChar c : QStringLiteral("0123456789"))
        EXPECT_TRUE(FamilyAccepts(c));
    for (const QChar c : QStringLiteral("./- a"))
        EXPECT_FALSE(FamilyAccepts(c));
}

TEST(StorageEntry, KeptUnitIsGalsOrTheLastThreeCharacters)
{
    EXPECT_EQ(KeptUnit("14 gals"), "gals");
    EXPECT_EQ(KeptUnit("25 lbs"), "lbs");
    EXPECT_EQ(KeptUnit("2 cans"), "ans") << "as the old program cut it";
    EXPECT_EQ(KeptUnit("1 qt"), "qt");
    EXPECT_EQ(KeptUnit("25"), "") << "no blank, no unit";
    EXPECT_EQ(KeptUnit(""), "");
}

// ---- Commit ---------------------------------------------------------------------------------

TEST(StorageEntry, Typing5IntoColumn2WhenTheCellHeld25LbsGives5Lbs)
{
    StorageTable table = SampleTable();
    table.setCell(34, kPerPersonColumn, QStringLiteral("25 lbs"));
    const CommitOutcome outcome = CommitValue(table, StorageKind::Basic, 34, kPerPersonColumn, "5", "4", true);
    EXPECT_TRUE(outcome.recalculated);
    EXPECT_EQ(table.cell(34, kPerPersonColumn), "5 lbs");
    EXPECT_EQ(table.cell(34, kNeededColumn), "20 lbs");
}

TEST(StorageEntry, ANewAmountKeepsGalsCansAsAnsAndNothingWithoutABlank)
{
    StorageTable table = SampleTable();
    table.setCell(55, kPerPersonColumn, QStringLiteral("14 gals"));
    CommitValue(table, StorageKind::Basic, 55, kPerPersonColumn, "2", "1", true);
    EXPECT_EQ(table.cell(55, kPerPersonColumn), "2 gals");
    table.setCell(55, kPerPersonColumn, QStringLiteral("2 cans"));
    CommitValue(table, StorageKind::Basic, 55, kPerPersonColumn, "5", "1", true);
    EXPECT_EQ(table.cell(55, kPerPersonColumn), "5 ans");
    table.setCell(55, kPerPersonColumn, QStringLiteral("25"));
    CommitValue(table, StorageKind::Basic, 55, kPerPersonColumn, "7", "1", true);
    EXPECT_EQ(table.cell(55, kPerPersonColumn), "7");
    CommitValue(table, StorageKind::Basic, 55, kPerPersonColumn, "3 qts", "1", true);
    EXPECT_EQ(table.cell(55, kPerPersonColumn), "3 qts") << "a typed unit stands";
    EXPECT_EQ(table.cell(55, kNeededColumn), "3 qts");
}

TEST(StorageEntry, AnAmountOf0OrLessEmptiesTheNeedOfTheRow)
{
    StorageTable table = SampleTable();
    CommitValue(table, StorageKind::Basic, 34, kPerPersonColumn, "0", "4", true);
    for (const int column : {kFamilyColumn, kPerPersonColumn, kNeededColumn})
        EXPECT_EQ(table.cell(34, column), "") << column;
    // A group row keeps no last action: its need stays.
    CommitValue(table, StorageKind::Basic, 1, kPerPersonColumn, "0", "4", true);
    EXPECT_EQ(table.cell(1, kPerPersonColumn), "0 lbs");
    EXPECT_EQ(table.cell(1, kNeededColumn), "1200 lbs");
}

TEST(StorageEntry, ANegativeValueFromColumn3OnIsRefused)
{
    StorageTable table = SampleTable();
    const StorageTable before = table;
    EXPECT_TRUE(CommitValue(table, StorageKind::Basic, 2, kAddedColumn, "-5", "4", true).refused);
    EXPECT_TRUE(CommitValue(table, StorageKind::Basic, 2, kDateColumn, "-1", "4", true).refused);
    EXPECT_EQ(table, before);
}

TEST(StorageEntry, ASubItemNameUnder18CharactersIsIndented)
{
    StorageTable table = SampleTable();
    CommitValue(table, StorageKind::Basic, 2, kItemColumn, "Hard Red Wheat", "4", true);
    EXPECT_EQ(table.cell(2, kItemColumn), "    Hard Red Wheat");
    CommitValue(table, StorageKind::Basic, 2, kItemColumn, QString(17, u'w'), "4", true);
    EXPECT_EQ(table.cell(2, kItemColumn), "    " + QString(17, u'w'));
    CommitValue(table, StorageKind::Basic, 2, kItemColumn, "    Wheat", "4", true);
    EXPECT_EQ(table.cell(2, kItemColumn), "    Wheat") << "the indent is not doubled";
}

TEST(StorageEntry, ASubItemNameOf18CharactersOrMoreGetsNoIndent)
{
    StorageTable table = SampleTable();
    CommitValue(table, StorageKind::Basic, 2, kItemColumn, QString(18, u'w'), "4", true);
    EXPECT_EQ(table.cell(2, kItemColumn), QString(18, u'w'));
    CommitValue(table, StorageKind::Basic, 2, kItemColumn, "Whole Wheat Berries Red", "4", true);
    EXPECT_EQ(table.cell(2, kItemColumn), "Whole Wheat Berries Red");
}

TEST(StorageEntry, OtherRowsKeepTheNameAsTyped)
{
    StorageTable table = SampleTable();
    CommitValue(table, StorageKind::Basic, 34, kItemColumn, "Iodized Salt", "4", true);
    EXPECT_EQ(table.cell(34, kItemColumn), "Iodized Salt");
    table.setCell(2, kFamilyColumn, kNotApplicable);
    CommitValue(table, StorageKind::Emergency, 2, kItemColumn, "Canned Soup", "4", true);
    EXPECT_EQ(table.cell(2, kItemColumn), "Canned Soup") << "Emergency storage indents nothing";
}

TEST(StorageEntry, AdditionalIndentsByRow)
{
    StorageTable table;
    for (int row = 2; row <= 16; ++row)
        table.setCell(row, kFamilyColumn, kNotApplicable);
    table.setCell(33, kFamilyColumn, kNotApplicable);
    table.setCell(47, kFamilyColumn, kNotApplicable);
    const std::pair<int, const char*> rows[] = {{2, "    Tuna"},    {34, "Soup Base"}, {35, "    Spices"},
                                                {42, "Water"},     {43, "    Barrel"}, {47, "Equipment"},
                                                {54, "    Bags"},  {55, "Towels"},    {33, "Misc"}};
    for (const auto& [row, shown] : rows) {
        const QString typed = QString::fromLatin1(shown).trimmed();
        CommitValue(table, StorageKind::Additional, row, kItemColumn, typed, "4", true);
        EXPECT_EQ(table.cell(row, kItemColumn), QString::fromLatin1(shown)) << row;
    }
}

TEST(StorageEntry, AddedRunsAddAndUsedRunsUse)
{
    StorageTable table = SampleTable();
    CommitOutcome outcome = CommitValue(table, StorageKind::Basic, 2, kAddedColumn, "20", "4", true);
    EXPECT_TRUE(outcome.stockChanged);
    EXPECT_EQ(table.cell(2, kAddedColumn), "20");
    EXPECT_EQ(table.cell(2, kOnHandColumn), "120 lbs");
    EXPECT_EQ(table.cell(1, kOnHandColumn), "120 lbs");
    outcome = CommitValue(table, StorageKind::Basic, 2, kUsedColumn, "30", "4", true);
    EXPECT_TRUE(outcome.stockChanged);
    EXPECT_EQ(table.cell(2, kUsedColumn), "30");
    EXPECT_EQ(table.cell(2, kAddedColumn), "");
    EXPECT_EQ(table.cell(2, kOnHandColumn), "90 lbs");
    outcome = CommitValue(table, StorageKind::Basic, 2, kAddedColumn, "0", "4", true);
    EXPECT_FALSE(outcome.stockChanged) << "Add takes an amount above 0";
    EXPECT_EQ(table.cell(2, kOnHandColumn), "90 lbs");
}

TEST(StorageEntry, NoNeedIsWorkedOutOutsideTheAllView)
{
    StorageTable table = SampleTable();
    const CommitOutcome outcome = CommitValue(table, StorageKind::Basic, 34, kPerPersonColumn, "5", "4", false);
    EXPECT_FALSE(outcome.recalculated);
    EXPECT_EQ(table.cell(34, kPerPersonColumn), "5 lbs");
    EXPECT_EQ(table.cell(34, kNeededColumn), "32 lbs");
}

TEST(StorageEntry, ADateIsCommittedAsTyped)
{
    StorageTable table = SampleTable();
    CommitValue(table, StorageKind::Basic, 2, kDateColumn, "12/31/26", "4", true);
    EXPECT_EQ(table.cell(2, kDateColumn), "12/31/26");
}
