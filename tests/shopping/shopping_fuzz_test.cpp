// The readers of the shopping files against damaged input: random bytes,
// every cut of a good file, absurd sizes. Nothing may crash, and what comes
// back stays within the list's and the catalogue's bounds.
#include "shopping/logic/itemcatalogue.h"
#include "test_bytes.h"
#include "shopping/logic/listfiles.h"
#include "shopping/logic/shoppinglist.h"

#include "test_data.h"
#include "temp_program_folder.h"


#include <gtest/gtest.h>
#include <random>

namespace {

// A list read and shown: the grid never holds more rows than entries and
// the header, and every row maps to an entry or to none.
void ExpectShownWithinBounds(const ReadList& read)
{
    ASSERT_LE(read.entries.size(), ShoppingList::kMaxEntries);
    ShoppingList list;
    list.load(read.entries);
    list.setSortMode(SortMode::Alphabetically);
    ASSERT_EQ(list.rowCount(), qMax<int>(16, int(read.entries.size()) + 1));
    for (int row = 1; row < list.rowCount(); ++row) {
        const int position = list.positionOfRow(row);
        ASSERT_LT(position, int(read.entries.size()));
        ASSERT_LE(list.cell(row, 0).size(), 28);
    }
}

} // namespace

TEST(ShoppingListFilesFuzz, RandomBytesNeverCrashTheListReader)
{
    TempProgramFolder folder;
    std::mt19937 random(20261115);
    for (int round = 0; round < 300; ++round) {
        folder.writeBytes("01Jan27.Lst", RandomBytes(random, round * 7));
        const ReadList read = ReadListFile("01Jan27.Lst");
        ASSERT_TRUE(read.opened);
        ExpectShownWithinBounds(read);
    }
}

TEST(ShoppingListFilesFuzz, EveryCutOfTheStoredListReads)
{
    TempProgramFolder folder;
    const QByteArray good = TestDataBytes("15Nov26.Lst");
    for (int length = 0; length <= good.size(); ++length) {
        folder.writeBytes("15Nov26.Lst", good.left(length));
        const ReadList read = ReadListFile("15Nov26.Lst");
        ASSERT_TRUE(read.opened) << length;
        ASSERT_LE(read.entries.size(), 3) << length;
        ExpectShownWithinBounds(read);
    }
}

TEST(ShoppingListFilesFuzz, AnUnclosedQuoteAndHugeValuesStayWithinTheirFields)
{
    TempProgramFolder folder;
    folder.writeBytes("02Jan27.Lst", "\"  Milk\r\n\"2 Gallons" + QByteArray(100000, 'x'));
    ReadList read = ReadListFile("02Jan27.Lst");
    ASSERT_TRUE(read.opened);
    ExpectShownWithinBounds(read);
    folder.writeBytes("03Jan27.Lst", "\"" + QByteArray(1000000, 'y') + "\"\r\n\"" + QByteArray(1000000, 'z') + "\"\r\n");
    read = ReadListFile("03Jan27.Lst");
    ASSERT_EQ(read.entries.size(), 1);
    EXPECT_EQ(read.entries[0].left(30), QString(30, u'y'));
    ExpectShownWithinBounds(read);
}

TEST(ShoppingListFilesFuzz, ATenMegabyteListIsRefusedWhole)
{
    TempProgramFolder folder;
    QByteArray bytes;
    while (bytes.size() < 10 * 1024 * 1024)
        bytes += "\"  Item\"\r\n\"1\"\r\n";
    folder.writeBytes("04Jan27.Lst", bytes);
    const ReadList read = ReadListFile("04Jan27.Lst");
    EXPECT_TRUE(read.opened);
    EXPECT_TRUE(read.tooLong);
    EXPECT_TRUE(read.entries.isEmpty());
}

TEST(ShoppingListFilesFuzz, RandomBytesNeverCrashTheCatalogueReader)
{
    TempProgramFolder folder;
    std::mt19937 random(1040);
    for (int round = 0; round < 300; ++round) {
        folder.writeBytes("LISTNAME.Fil", RandomBytes(random, round * 5));
        ItemCatalogue catalogue;
        catalogue.load();
        ASSERT_LE(catalogue.count(), round * 5);
        for (const QString& name : catalogue.names())
            ASSERT_FALSE(name.startsWith(u' ') || name.endsWith(u' '));
        ASSERT_EQ(catalogue.dropDownEntries().size(), catalogue.count());
    }
}

TEST(ShoppingListFilesFuzz, EveryCutOfTheStoredCatalogueReads)
{
    TempProgramFolder folder;
    const QByteArray good = TestDataBytes("LISTNAME.Fil");
    for (int length = 0; length <= good.size(); ++length) {
        folder.writeBytes("LISTNAME.Fil", good.left(length));
        ItemCatalogue catalogue;
        catalogue.load();
        ASSERT_LE(catalogue.count(), 5) << length;
        // A cut file is written back whole once a name is added.
        if (catalogue.check("Zucchini") == ItemCatalogue::Change::Changed) {
            ItemCatalogue again;
            again.load();
            ASSERT_EQ(again.names(), catalogue.names()) << length;
        }
    }
}

TEST(ShoppingListFilesFuzz, ATenMegabyteCatalogueLoads)
{
    TempProgramFolder folder;
    QByteArray bytes;
    int lines = 0;
    while (bytes.size() < 10 * 1024 * 1024) {
        bytes += "\"Name " + QByteArray::number(lines++) + "\"\r\n";
    }
    folder.writeBytes("LISTNAME.Fil", bytes);
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.count(), lines);
    EXPECT_TRUE(catalogue.isFull());
    EXPECT_EQ(catalogue.check("Something new"), ItemCatalogue::Change::Full);
}
