// The catalogue of item names and its file LISTNAME.Fil, byte for byte; the
// type-ahead of the item box.
#include "shopping/logic/itemcatalogue.h"

#include "test_data.h"
#include "temp_program_folder.h"

#include "list_bytes.h"

#include <QDir>

#include <gtest/gtest.h>

TEST(ItemCatalogue, AMissingFileIsAnEmptyCatalogue)
{
    TempProgramFolder folder;
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.count(), 0);
    EXPECT_TRUE(catalogue.dropDownEntries().isEmpty());
}

TEST(ItemCatalogue, TheStoredFileReadsInItsOrderAndTheDropDownIsSorted)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile("LISTNAME.Fil"));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.names(), QStringList({"Milk", "Bread", "Eggs", QString::fromUtf8("Crème fraîche"), "Apples"}));
    EXPECT_EQ(catalogue.dropDownEntries(),
              QStringList({"Apples", "Bread", QString::fromUtf8("Crème fraîche"), "Eggs", "Milk"}));
}

TEST(ItemCatalogue, NamesAreTrimmedOnReading)
{
    TempProgramFolder folder;
    folder.writeBytes("LISTNAME.Fil", Lines({"  Tea  ", "Coffee "}));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.names(), QStringList({"Tea", "Coffee"}));
}

TEST(ItemCatalogue, AnUnknownNameIsAddedAndTheFileRewrittenByteForByte)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile("LISTNAME.Fil"));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.check("Yogurt"), ItemCatalogue::Change::Changed);
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), TestDataBytes("LISTNAME.Fil") + Lines({"Yogurt"}));
}

TEST(ItemCatalogue, AKnownNameIsFoundWithCaseAndTrailingBlanksIgnored)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile("LISTNAME.Fil"));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_TRUE(catalogue.contains(u"MILK  "));
    EXPECT_EQ(catalogue.check("mILk "), ItemCatalogue::Change::None);
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), TestDataBytes("LISTNAME.Fil")) << "nothing written";
}

TEST(ItemCatalogue, DeletingMovesTheLaterNamesUpAndRewritesTheFile)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile("LISTNAME.Fil"));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.remove(u"bread"), ItemCatalogue::Change::Changed);
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"Milk", "Eggs", "Cr\xE8me fra\xEE" "che", "Apples"}));
    EXPECT_EQ(catalogue.remove(u"Butter"), ItemCatalogue::Change::None);
}

TEST(ItemCatalogue, DeletingTheLastNameLeavesOneBlankPlaceThatTheNextNameTakes)
{
    TempProgramFolder folder;
    folder.writeBytes("LISTNAME.Fil", Lines({"Tea"}));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.remove(u"TEA"), ItemCatalogue::Change::Changed);
    EXPECT_EQ(catalogue.count(), 1);
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), QByteArray("\"\"\r\n"));
    ItemCatalogue reread;
    reread.load();
    EXPECT_EQ(reread.names(), QStringList({""}));
    EXPECT_EQ(reread.check("Coffee"), ItemCatalogue::Change::Changed);
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"Coffee"}));
}

TEST(ItemCatalogue, AFullCatalogueAddsNothingAndKeepsItsFile)
{
    TempProgramFolder folder;
    QList<QByteArray> names;
    for (int i = 0; i < kCatalogueCapacity; ++i)
        names.append("Item " + QByteArray::number(i));
    folder.writeBytes("LISTNAME.Fil", Lines(names));
    ItemCatalogue catalogue;
    catalogue.load();
    ASSERT_TRUE(catalogue.isFull());
    EXPECT_EQ(catalogue.check("Something new"), ItemCatalogue::Change::Full);
    EXPECT_EQ(catalogue.count(), kCatalogueCapacity);
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines(names));
}

TEST(ItemCatalogue, AFileOfMoreThan9000NamesIsKeptWholeWhenANameIsDeleted)
{
    TempProgramFolder folder;
    QList<QByteArray> names;
    for (int i = 0; i < kCatalogueCapacity + 5; ++i)
        names.append("Item " + QByteArray::number(i));
    folder.writeBytes("LISTNAME.Fil", Lines(names));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.count(), kCatalogueCapacity + 5);
    EXPECT_EQ(catalogue.remove(u"Item 0"), ItemCatalogue::Change::Changed);
    names.removeFirst();
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines(names));
}

TEST(ItemCatalogue, AFailedWriteLeavesCatalogueAndFileAsTheyWere)
{
    TempProgramFolder folder;
    ASSERT_TRUE(QDir().mkdir("LISTNAME.Fil"));
    ItemCatalogue catalogue;
    catalogue.load();
    EXPECT_EQ(catalogue.check("Tea"), ItemCatalogue::Change::WriteFailed);
    EXPECT_EQ(catalogue.count(), 0);
    EXPECT_FALSE(catalogue.contains(u"Tea"));
}

TEST(TypeAheadMatch, TheFirstEntryFromTheSecondOnThatBeginsWithTheTypedText)
{
    const QStringList entries{"Apples", "Applesauce", "Apricots", "Bread", "Butter"};
    EXPECT_EQ(TypeAheadMatch(entries, u"ap"), "Applesauce") << "the walk starts at the second entry";
    EXPECT_EQ(TypeAheadMatch(entries, u"  APR"), "Apricots");
    EXPECT_EQ(TypeAheadMatch(entries, u"bu"), "Butter");
    EXPECT_EQ(TypeAheadMatch(entries, u"Cheese"), "");
    EXPECT_EQ(TypeAheadMatch(entries, u""), "");
    EXPECT_EQ(TypeAheadMatch(entries, u"   "), "");
}
