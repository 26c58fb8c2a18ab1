// A shopping list row kept as one text: the name in columns 1 to 30, the
// amount from 31 on, and the two cells the grid shows of it.
#include "shopping/logic/groceryentry.h"


#include <gtest/gtest.h>

namespace {

struct EntryRow {
    const char* name;
    const char* item;
    const char* amount;
    const char* entry;
    const char* itemCell;
    const char* amountCell;
};

// One named row per case.
const EntryRow kRows[] = {
    {"bare name", "Milk", "", "Milk", "  Milk", ""},
    {"name and amount", "Milk", "2 Gallons", "Milk                          2 Gallons", "  Milk", "2 Gallons"},
    {"name of 30 with amount", "Abcdefghijklmnopqrstuvwxyz1234", "1",
     "Abcdefghijklmnopqrstuvwxyz12341", "  Abcdefghijklmnopqrstuvwxyz", "1"},
    {"name of 33 is cut to 30", "Abcdefghijklmnopqrstuvwxyz1234567", "",
     "Abcdefghijklmnopqrstuvwxyz1234", "  Abcdefghijklmnopqrstuvwxyz", ""},
    {"blanks inside the first 26 are trimmed", "  Eggs  ", "1 Dozen",
     "  Eggs                        1 Dozen", "  Eggs", "1 Dozen"},
    {"amount with blanks around it", "Ham", "  3 Pounds ", "Ham                             3 Pounds ", "  Ham",
     "3 Pounds"},
};

} // namespace

TEST(GroceryEntry, EveryRowOfTheTable)
{
    for (const EntryRow& row : kRows) {
        SCOPED_TRACE(row.name);
        const QString entry = MakeGroceryEntry(QString::fromLatin1(row.item), QString::fromLatin1(row.amount));
        EXPECT_EQ(entry, QString::fromLatin1(row.entry));
        EXPECT_EQ(ItemCellOf(entry), QString::fromLatin1(row.itemCell));
        EXPECT_EQ(AmountCellOf(entry), QString::fromLatin1(row.amountCell));
    }
}

TEST(GroceryEntry, AnEntryWithAnAmountHasItsNamePaddedToExactly30)
{
    const QString entry = MakeGroceryEntry(u"Tea", u"1 Box");
    EXPECT_EQ(entry.size(), 30 + 5);
    EXPECT_EQ(entry.mid(30), "1 Box");
    EXPECT_EQ(entry.left(30).trimmed(), "Tea");
}
