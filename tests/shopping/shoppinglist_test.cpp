// The shopping list's working state: EntryList and SortedEntryList, the grid
// laid out by rebuild, storing a name into a row, clicks on cells, amounts,
// deleting and clearing.
#include "shopping/logic/groceryentry.h"
#include "shopping/logic/shoppinglist.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace {

ShoppingList ListOf(const QStringList& entries, SortMode mode = SortMode::AsEntered)
{
    ShoppingList list;
    list.load(entries);
    list.setSortMode(mode);
    return list;
}

QStringList ItemColumn(const ShoppingList& list)
{
    QStringList items;
    for (int row = 1; row < list.rowCount(); ++row)
        items.append(list.cell(row, 0));
    return items;
}

} // namespace

TEST(ShoppingList, AFreshGridHas16RowsAndTheHeadingsGroceryItemAndAmountToPurchase)
{
    const ShoppingList list;
    EXPECT_EQ(list.rowCount(), 16);
    EXPECT_EQ(list.cell(0, 0), "Grocery Item");
    EXPECT_EQ(list.cell(0, 1), "Amount to Purchase");
    EXPECT_FALSE(list.dirty());
    EXPECT_FALSE(list.editInPlace());
    EXPECT_EQ(list.sortMode(), SortMode::AsEntered);
    for (int row = 1; row < 16; ++row)
        EXPECT_TRUE(list.cell(row, 0).isEmpty() && list.cell(row, 1).isEmpty()) << row;
}

TEST(ShoppingList, RebuildCountsTheEntriesInTheHeaderWithoutABlank)
{
    ShoppingList list;
    for (int i = 0; i < 12; ++i)
        ASSERT_TRUE(list.appendName(QStringLiteral("Item %1").arg(i)));
    list.rebuild();
    EXPECT_EQ(list.header(), "Grocery Items = 12");
    EXPECT_EQ(list.cell(0, 0), "Grocery Items = 12");
}

TEST(ShoppingList, RowCountIs16BelowSixteenEntriesAndEntriesPlusOneFromSixteenOn)
{
    const struct {
        int entries;
        int rows;
    } table[] = {{0, 16}, {1, 16}, {15, 16}, {16, 17}, {40, 41}};
    for (const auto& row : table) {
        ShoppingList list;
        for (int i = 0; i < row.entries; ++i)
            list.appendName(QStringLiteral("Item %1").arg(i));
        list.rebuild();
        EXPECT_EQ(list.rowCount(), row.rows) << row.entries;
    }
}

TEST(ShoppingList, ClearGridLeaves15RowsUntilTheNextRebuild)
{
    ShoppingList list = ListOf({"Milk", "Eggs"});
    list.setDirty(true);
    list.setEditInPlace(true);
    list.clear();
    EXPECT_EQ(list.rowCount(), 15);
    EXPECT_EQ(list.header(), "Grocery Item");
    EXPECT_TRUE(list.entryList().isEmpty());
    EXPECT_TRUE(list.sortedEntryList().isEmpty());
    EXPECT_FALSE(list.dirty());
    EXPECT_FALSE(list.editInPlace());
    list.rebuild();
    EXPECT_EQ(list.rowCount(), 16);
}

TEST(ShoppingList, RebuildShowsTwoBlanksAnd26CharactersAndTheTrimmedAmount)
{
    const ShoppingList list = ListOf({MakeGroceryEntry(u"Abcdefghijklmnopqrstuvwxyz12", u"2 Cans")});
    EXPECT_EQ(list.cell(1, 0), "  Abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(list.cell(1, 1), "2 Cans");
}

TEST(ShoppingList, SortedEntryListPadsTo60AndPutsThePositionBehind)
{
    const ShoppingList list = ListOf({"pears", "Apples", "milk"});
    ASSERT_EQ(list.sortedEntryList().size(), 3);
    EXPECT_EQ(list.sortedEntryList()[0], QString("Apples").leftJustified(60) + "1");
    EXPECT_EQ(list.sortedEntryList()[1], QString("milk").leftJustified(60) + "2");
    EXPECT_EQ(list.sortedEntryList()[2], QString("pears").leftJustified(60) + "0");
}

TEST(ShoppingList, TheAlphabeticalViewSortsCaseBlindAndTheEnteredViewKeepsTheOrder)
{
    ShoppingList list = ListOf({"pears", "Apples", "milk"});
    EXPECT_EQ(ItemColumn(list).mid(0, 3), QStringList({"  pears", "  Apples", "  milk"}));
    list.setSortMode(SortMode::Alphabetically);
    EXPECT_EQ(ItemColumn(list).mid(0, 3), QStringList({"  Apples", "  milk", "  pears"}));
    EXPECT_EQ(list.entryList(), QStringList({"pears", "Apples", "milk"})) << "EntryList keeps its order";
}

TEST(ShoppingList, ThePositionIsReadBackFromTheLastThreeCharactersUpTo999)
{
    EXPECT_EQ(PositionInSortedText(SortedEntryText(u"Milk", 0)), 0);
    EXPECT_EQ(PositionInSortedText(SortedEntryText(u"Milk", 7)), 7);
    EXPECT_EQ(PositionInSortedText(SortedEntryText(u"Milk", 42)), 42);
    EXPECT_EQ(PositionInSortedText(SortedEntryText(u"Milk", 998)), 998);
    EXPECT_EQ(PositionInSortedText(SortedEntryText(u"Milk", 999)), 999);
    // An entry near 60 characters still keeps the position apart from its text.
    const QString longEntry = MakeGroceryEntry(u"Olive oil", u"two bottles of the green one!");
    ASSERT_GE(longEntry.size(), 58);
    EXPECT_EQ(PositionInSortedText(SortedEntryText(longEntry, 5)), 5);
}

TEST(ShoppingList, AList999EntriesLongMapsEveryAlphabeticalRowToItsEntry)
{
    QStringList entries;
    for (int i = 0; i < 999; ++i)
        entries.append(QStringLiteral("Item %1").arg(998 - i, 3, 10, QLatin1Char('0')));
    const ShoppingList list = ListOf(entries, SortMode::Alphabetically);
    ASSERT_EQ(list.rowCount(), 1000);
    for (int row = 1; row <= 999; ++row) {
        const int position = list.positionOfRow(row);
        ASSERT_EQ(position, 999 - row) << row;
        EXPECT_EQ(ItemCellOf(list.entryList()[position]), list.cell(row, 0));
    }
}

TEST(ShoppingList, TheListHoldsAt999Entries)
{
    ShoppingList list;
    for (int i = 0; i < 999; ++i)
        ASSERT_TRUE(list.appendName(u"x"));
    EXPECT_TRUE(list.isFull());
    EXPECT_FALSE(list.appendName(u"one more"));
    EXPECT_FALSE(list.appendEntry(QStringLiteral("one more")));
    EXPECT_EQ(list.entryList().size(), 999);
}

TEST(ShoppingList, RebuildMarksAnyListWithEntriesChangedAndAnEmptyOneNot)
{
    ShoppingList list;
    list.load({"Milk"});
    EXPECT_FALSE(list.dirty()) << "a list just read is saved";
    list.rebuild();
    EXPECT_TRUE(list.dirty());
    list.clear();
    list.rebuild();
    EXPECT_FALSE(list.dirty());
}

TEST(ShoppingList, RemovingTheLastEntryClearsTheChangedMark)
{
    ShoppingList list = ListOf({"Milk"});
    list.setDirty(true);
    list.deleteRow(1);
    EXPECT_TRUE(list.entryList().isEmpty());
    EXPECT_FALSE(list.dirty());
}

TEST(ShoppingList, StoringIntoAnEmptyRowAppendsTheName)
{
    ShoppingList list = ListOf({"Milk"});
    list.storeIntoRow(5, u"Bread");
    EXPECT_EQ(list.entryList(), QStringList({"Milk", "Bread"}));
    EXPECT_EQ(list.cell(2, 0), "  Bread");
}

TEST(ShoppingList, StoringIntoAFilledRowReplacesItsEntryAndKeepsTheAmount)
{
    ShoppingList list = ListOf({"Milk", MakeGroceryEntry(u"Eggs", u"1 Dozen")});
    list.storeIntoRow(2, u"Brown Eggs");
    EXPECT_EQ(list.entryList()[1], MakeGroceryEntry(u"Brown Eggs", u"1 Dozen"));
    list.storeIntoRow(1, u"Skim Milk");
    EXPECT_EQ(list.entryList()[0], "Skim Milk");
}

TEST(ShoppingList, StoringInTheAlphabeticalViewReplacesTheEntryOfTheRowShown)
{
    ShoppingList list = ListOf({"pears", "Apples", "milk"}, SortMode::Alphabetically);
    list.storeIntoRow(3, u"Nashi pears");  // the row that shows "pears"
    EXPECT_EQ(list.entryList(), QStringList({"Nashi pears", "Apples", "milk"}));
}

TEST(ShoppingList, StoringCutsTheNameTo30AndABlankNameChangesNothing)
{
    ShoppingList list = ListOf({"Milk"});
    list.storeIntoRow(1, u"Abcdefghijklmnopqrstuvwxyz1234567");
    EXPECT_EQ(list.entryList()[0], "Abcdefghijklmnopqrstuvwxyz1234");
    list.storeIntoRow(1, u"   ");
    EXPECT_EQ(list.entryList()[0], "Abcdefghijklmnopqrstuvwxyz1234");
}

TEST(ShoppingList, ClickingTheHeaderCountsAsRowOne)
{
    ShoppingList list = ListOf({"Milk"});
    const CellClickOutcome outcome = list.clickCell(0, 1, u"");
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(outcome.kind, CellClickOutcome::Kind::EnterAmount);
    EXPECT_EQ(outcome.itemName, "Milk");
}

TEST(ShoppingList, ClickingAnItemCellWithTextInTheItemBoxStoresItThere)
{
    ShoppingList list = ListOf({"Milk", "Eggs"});
    const CellClickOutcome outcome = list.clickCell(2, 0, u"Bread");
    EXPECT_EQ(outcome.kind, CellClickOutcome::Kind::StoredFromBox);
    EXPECT_EQ(list.entryList(), QStringList({"Milk", "Bread"}));
    EXPECT_TRUE(list.dirty());
}

TEST(ShoppingList, ClickingAnItemCellWithAnEmptyItemBoxWaitsForTheNewName)
{
    ShoppingList list = ListOf({"Milk"});
    CellClickOutcome outcome = list.clickCell(1, 0, u"");
    EXPECT_EQ(outcome.kind, CellClickOutcome::Kind::AwaitingName);
    EXPECT_TRUE(outcome.deleteItemAllowed);
    EXPECT_TRUE(list.editInPlace());
    outcome = list.clickCell(4, 0, u"");
    EXPECT_EQ(outcome.kind, CellClickOutcome::Kind::AwaitingName);
    EXPECT_FALSE(outcome.deleteItemAllowed) << "an empty cell has nothing to delete";
}

TEST(ShoppingList, ClickingTheAmountOfARowWithoutAnItemSendsTheUserToTheFirstEmptyRow)
{
    ShoppingList list = ListOf({"Milk", "Eggs"});
    const CellClickOutcome outcome = list.clickCell(7, 1, u"");
    EXPECT_EQ(outcome.kind, CellClickOutcome::Kind::ItemFirst);
    EXPECT_EQ(outcome.firstEmptyRow, 3);
}

TEST(ShoppingList, ClickingTheAmountOfAnItemOpensTheAmountWithItsText)
{
    ShoppingList list = ListOf({"Milk", MakeGroceryEntry(u"Eggs", u"1 Dozen")});
    const CellClickOutcome outcome = list.clickCell(2, 1, u"");
    EXPECT_EQ(outcome.kind, CellClickOutcome::Kind::EnterAmount);
    EXPECT_EQ(outcome.itemName, "Eggs");
    EXPECT_EQ(outcome.amount, "1 Dozen");
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_EQ(list.currentColumn(), 1);
}

TEST(ShoppingList, EnteringAnAmountGivesTheRowsEntryThatAmount)
{
    ShoppingList list = ListOf({"Milk", "Eggs"});
    list.clickCell(1, 1, u"");
    list.enterAmount(u"2 Gallons");
    EXPECT_EQ(list.entryList()[0], MakeGroceryEntry(u"Milk", u"2 Gallons"));
    EXPECT_EQ(list.cell(1, 1), "2 Gallons");
    EXPECT_TRUE(list.dirty());
    // An empty amount takes the amount away again.
    list.enterAmount(u"");
    EXPECT_EQ(list.entryList()[0], "Milk");
}

TEST(ShoppingList, TheDeleteQuestionNamesItemAndAmountOrAsksForTheRow)
{
    const ShoppingList list = ListOf({MakeGroceryEntry(u"Eggs", u"1 Dozen")});
    EXPECT_EQ(list.deleteQuestion(1), "Delete Item and Amount for - \n  Eggs, 1 Dozen?");
    EXPECT_EQ(list.deleteQuestion(4), "Delete This Row?");
}

TEST(ShoppingList, DeletingAnEmptyRowRemovesOnlyTheRow)
{
    ShoppingList list = ListOf({"Milk", "Eggs"});
    list.deleteRow(9);
    EXPECT_EQ(list.entryList(), QStringList({"Milk", "Eggs"}));
    EXPECT_EQ(list.rowCount(), 16);
}

TEST(ShoppingList, AHeaderSortKeepsEntryListDropsRowsWithoutItemsAndKeeps16Rows)
{
    ShoppingList list = ListOf({"pears", "Apples"});
    QList<GridRow> sorted = list.rows();
    std::rotate(sorted.begin(), sorted.begin() + 2, sorted.end());  // the blank rows first, as an ascending sort
    std::swap(sorted[13], sorted[14]);
    list.adoptHeaderSort(sorted);
    EXPECT_TRUE(list.dirty());
    EXPECT_EQ(list.rowCount(), 16);
    EXPECT_EQ(list.cell(1, 0), "  Apples");
    EXPECT_EQ(list.cell(2, 0), "  pears");
    EXPECT_EQ(list.entryList(), QStringList({"pears", "Apples"}));
    // A row clicked after the sort changes its own entry.
    list.clickCell(1, 1, u"");
    list.enterAmount(u"3 Pounds");
    EXPECT_EQ(list.entryList(), QStringList({"pears", MakeGroceryEntry(u"Apples", u"3 Pounds")}));
}

TEST(ShoppingList, WhatASaveWritesIsEveryGridRowItemThenAmount)
{
    const ShoppingList list = ListOf({"Milk", MakeGroceryEntry(u"Eggs", u"1 Dozen")});
    const QStringList values = list.fileValues();
    ASSERT_EQ(values.size(), 30);
    EXPECT_EQ(values.mid(0, 6), QStringList({"  Milk", "", "  Eggs", "1 Dozen", "", ""}));
}
