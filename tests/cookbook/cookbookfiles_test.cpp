#include "common/filewrites.h"
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"

#include "layout_bytes.h"
#include "temp_program_folder.h"

#include <QCoreApplication>
#include <QFile>
#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

using layout::Entry;
using layout::NameSlot;
using layout::Zeros;

RecipeRecord UsedRecord(QStringView firstIngredient)
{
    RecipeRecord record = RecipeRecord::Cleared();
    record.amounts[0].setText(u"2");
    record.amountTypes[0].setText(u"cups");
    record.ingredients[0].setText(firstIngredient);
    record.markUsed();
    return record;
}

layout::Recipe UsedLayout(const QByteArray& firstIngredient)
{
    layout::Recipe recipe;
    recipe.amounts[0] = "2";
    recipe.amountTypes[0] = "cups";
    recipe.ingredients[0] = firstIngredient;
    recipe.slotMark = "Full1";
    return recipe;
}

QByteArray RecipeSlotOfMark(const QByteArray& mark)
{
    return QByteArray(2040, ' ') + mark;
}

TEST(WriteRecipe, WritesTheRecipeSlotAndTheExtraSlot)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteRecipe(2, 3, UsedRecord(u"flour"), u"C:\\pie.jpg"));

    const QByteArray recipes = folder.bytesOf("Recipe2.db2");
    ASSERT_EQ(recipes.size(), 3 * 2045);
    EXPECT_EQ(recipes.left(2 * 2045), Zeros(2 * 2045));
    EXPECT_EQ(recipes.mid(2 * 2045), layout::RecipeSlot(UsedLayout("flour")));

    const QByteArray extras = folder.bytesOf("Recipe4.db2");
    ASSERT_EQ(extras.size(), 3 * 250);
    EXPECT_EQ(extras.left(500), Zeros(500));
    EXPECT_EQ(extras.mid(500), layout::ExtraSlot("C:\\pie.jpg"));
}

TEST(WriteRecipe, OverwritesOnlyItsOwnSlots)
{
    TempProgramFolder folder;
    for (int slot = 1; slot <= 3; ++slot)
        WriteRecipe(1, RecordNumber(slot), UsedRecord(QString("item %1").arg(slot)), QString("p%1").arg(slot));
    const QByteArray recipesBefore = folder.bytesOf("Recipe2.db1");
    const QByteArray extrasBefore = folder.bytesOf("Recipe4.db1");

    ASSERT_TRUE(WriteRecipe(1, 2, UsedRecord(u"sugar"), u""));

    const QByteArray recipes = folder.bytesOf("Recipe2.db1");
    EXPECT_EQ(recipes.left(2045), recipesBefore.left(2045));
    EXPECT_EQ(recipes.mid(2045, 2045), layout::RecipeSlot(UsedLayout("sugar")));
    EXPECT_EQ(recipes.mid(4090), recipesBefore.mid(4090));
    const QByteArray extras = folder.bytesOf("Recipe4.db1");
    EXPECT_EQ(extras.mid(250, 250), layout::ExtraSlot(""));
    EXPECT_EQ(extras.left(250), extrasBefore.left(250));
    EXPECT_EQ(extras.mid(500), extrasBefore.mid(500));
}

TEST(WriteRecipe, PathOver246IsNotWrittenButTheRecipeIs)
{
    TempProgramFolder folder;
    WriteRecipe(1, 1, UsedRecord(u"flour"), u"old.jpg");
    EXPECT_FALSE(WriteRecipe(1, 1, UsedRecord(u"sugar"), QString(247, u'x')));

    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), layout::RecipeSlot(UsedLayout("sugar")));
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), layout::ExtraSlot("old.jpg"));
    EXPECT_EQ(ReadRecipe(1, 1).picturePath, "old.jpg");
}

TEST(WriteRecipe, SlotBelowOneWritesNothing)
{
    TempProgramFolder folder;
    EXPECT_FALSE(WriteRecipe(1, 0, UsedRecord(u"flour"), u"a.jpg"));
    EXPECT_FALSE(WriteRecipe(1, -4, UsedRecord(u"flour"), u"a.jpg"));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), QByteArray());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), QByteArray());
}

TEST(ReadRecipe, GivesBackTheRecordAndThePicturePath)
{
    TempProgramFolder folder;
    const RecipeRecord record = UsedRecord(QString::fromUtf8("Crème brûlée"));
    WriteRecipe(4, 7, record, QString::fromUtf8("C:\\Photos\\Crème.jpg"));

    const StoredRecipe stored = ReadRecipe(4, 7);
    EXPECT_EQ(stored.record, record);
    EXPECT_EQ(stored.record.ingredients[0].text(), QString::fromUtf8("Crème brûlée"));
    EXPECT_EQ(stored.picturePath, QString::fromUtf8("C:\\Photos\\Crème.jpg"));
    EXPECT_EQ(folder.bytesOf("Recipe2.db4").mid(6 * 2045 + 1304, 12), "Cr\xE8me br\xFBl\xE9" "e");
}

TEST(ReadRecipe, SlotsPastTheEndAndBelowOneAreEmpty)
{
    TempProgramFolder folder;
    WriteRecipe(1, 1, UsedRecord(u"flour"), u"a.jpg");
    for (int slot : {0, -1, 2, 30001, 32767}) {
        SCOPED_TRACE(slot);
        const StoredRecipe stored = ReadRecipe(1, RecordNumber(slot));
        EXPECT_EQ(stored.record, RecipeRecord{});
        EXPECT_FALSE(stored.record.isUsed());
        EXPECT_EQ(stored.picturePath, "");
    }
}

TEST(ReadRecipe, MissingFilesAreCreatedEmpty)
{
    TempProgramFolder folder;
    const StoredRecipe stored = ReadRecipe(6, 1);
    EXPECT_EQ(stored.record, RecipeRecord{});
    EXPECT_TRUE(QFile::exists(folder.filePath("Recipe2.db6")));
    EXPECT_TRUE(QFile::exists(folder.filePath("Recipe4.db6")));
    EXPECT_EQ(folder.bytesOf("Recipe2.db6").size(), 0);
}

TEST(ReadRecipe, FilesCopiedFromWindowsInUpperCaseAreFound)
{
    TempProgramFolder folder;
    folder.writeBytes("RECIPE2.DB1", layout::RecipeSlot(UsedLayout("flour")));
    folder.writeBytes("RECIPE4.DB1", layout::ExtraSlot("pie.jpg"));
    const StoredRecipe stored = ReadRecipe(1, 1);
    EXPECT_EQ(stored.record.ingredients[0].text(), "flour");
    EXPECT_EQ(stored.picturePath, "pie.jpg");
    EXPECT_FALSE(QFile::exists(folder.filePath("Recipe2.db1")));
}

TEST(ClearRecipe, LeavesBlanksTheDeletedMarkAndAnEmptyPath)
{
    TempProgramFolder folder;
    WriteRecipe(1, 1, UsedRecord(u"flour"), u"a.jpg");
    WriteRecipe(1, 2, UsedRecord(u"sugar"), u"b.jpg");
    ASSERT_TRUE(ClearRecipe(1, 1));

    const QByteArray recipes = folder.bytesOf("Recipe2.db1");
    EXPECT_EQ(recipes.left(2045), QByteArray(2040, ' ') + "**** ");
    EXPECT_EQ(recipes.mid(2045), layout::RecipeSlot(UsedLayout("sugar")));
    const QByteArray extras = folder.bytesOf("Recipe4.db1");
    EXPECT_EQ(extras.left(250), layout::U16(8) + layout::U16(0) + Zeros(246));
    EXPECT_EQ(extras.mid(250), layout::ExtraSlot("b.jpg"));
    EXPECT_EQ(ReadRecipe(1, 1).picturePath, "");
    EXPECT_FALSE(ReadRecipe(1, 1).record.isUsed());
}

TEST(FindFreeSlot, EmptyCookbookGivesSlotOneAndCreatesTheRecipeFile)
{
    TempProgramFolder folder;
    EXPECT_EQ(FindFreeSlot(3), 1);
    EXPECT_TRUE(QFile::exists(folder.filePath("Recipe2.db3")));
}

TEST(FindFreeSlot, FirstSlotPastTheEndWhenAllAreUsed)
{
    TempProgramFolder folder;
    folder.writeBytes("Recipe2.db1", RecipeSlotOfMark("Full1").repeated(4));
    EXPECT_EQ(FindFreeSlot(1), 5);
}

TEST(FindFreeSlot, LowestFreeSlotWins)
{
    TempProgramFolder folder;
    folder.writeBytes("Recipe2.db1", RecipeSlotOfMark("Full1") + RecipeSlotOfMark("FULL1")
                                         + RecipeSlotOfMark("**** ") + RecipeSlotOfMark("Full1")
                                         + RecipeSlotOfMark("**** "));
    EXPECT_EQ(FindFreeSlot(1), 3);
}

TEST(FindFreeSlot, EveryMarkButFull1IsFree)
{
    const QByteArray freeMarks[] = {"**** ", "Full ", "     ", Zeros(5), "Full2", "FULL"};
    for (const QByteArray& mark : freeMarks) {
        SCOPED_TRACE(mark.toStdString());
        TempProgramFolder folder;
        folder.writeBytes("Recipe2.db1", RecipeSlotOfMark("full1") + RecipeSlotOfMark(mark.leftJustified(5, '\0'))
                                             + RecipeSlotOfMark("Full1"));
        EXPECT_EQ(FindFreeSlot(1), 2);
    }
}

TEST(FindFreeSlot, AShortLastRecordIsFree)
{
    TempProgramFolder folder;
    folder.writeBytes("Recipe2.db1", RecipeSlotOfMark("Full1") + RecipeSlotOfMark("Full1").left(2044));
    EXPECT_EQ(FindFreeSlot(1), 2);
}

TEST(FindFreeSlot, AHoleDeepInALargeFileIsFound)
{
    TempProgramFolder folder;
    QByteArray bytes = RecipeSlotOfMark("Full1").repeated(1000);
    bytes.replace(776 * 2045 + 2040, 5, "**** ");
    folder.writeBytes("Recipe2.db1", bytes);
    EXPECT_EQ(FindFreeSlot(1), 777);
}

TEST(FindFreeSlot, ThirtyThousandUsedSlotsGive30001)
{
    TempProgramFolder folder;
    folder.writeBytes("Recipe2.db1", RecipeSlotOfMark("Full1").repeated(30000));
    EXPECT_EQ(FindFreeSlot(1), 30001);

    // Slot 30001 is taken again by every later new recipe: the scan stops at 30000.
    WriteRecipe(1, 30001, UsedRecord(u"flour"), u"");
    EXPECT_EQ(FindFreeSlot(1), 30001);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").size(), 30001 * 2045);
}

TEST(ReadNameList, MissingFileIsCreatedAndGivesNoEntries)
{
    TempProgramFolder folder;
    EXPECT_TRUE(ReadNameList(2, RecipeType::Breads).isEmpty());
    EXPECT_TRUE(QFile::exists(folder.filePath("Breanfil.db2")));
    EXPECT_EQ(folder.bytesOf("Breanfil.db2").size(), 0);
}

TEST(ReadNameList, GivesEntriesInSlotOrderSkippingClearedSlotsWhereverTheyLie)
{
    TempProgramFolder folder;
    folder.writeBytes("Dessnfil.db1", NameSlot(" ") + NameSlot(Entry("Zucchini Bread", 4)) + NameSlot(" ")
                                          + NameSlot(" ") + NameSlot(Entry("Apple Pie", 17)) + NameSlot("   ")
                                          + NameSlot(""));
    const QStringList entries = ReadNameList(1, RecipeType::Desserts);
    EXPECT_EQ(entries, QStringList({Entry("Zucchini Bread", 4), Entry("Apple Pie", 17)}));
}

TEST(ReadNameList, ZeroFilledAndImplausibleSlotsAreSkipped)
{
    TempProgramFolder folder;
    folder.writeBytes("Dessnfil.db1", Zeros(60) + NameSlot(Entry("Pie", 1)) + layout::U16(300) + Zeros(58)
                                          + NameSlot(Entry("Cake", 2)));
    EXPECT_EQ(ReadNameList(1, RecipeType::Desserts), QStringList({Entry("Pie", 1), Entry("Cake", 2)}));
}

TEST(ReadNameList, ReadsPastManyBlocks)
{
    TempProgramFolder folder;
    QByteArray bytes;
    QStringList expected;
    for (int i = 1; i <= 9000; ++i) {
        const QByteArray entry = Entry("Recipe " + QByteArray::number(i), i);
        bytes += i % 1000 == 0 ? NameSlot(" ") : NameSlot(entry);
        if (i % 1000 != 0)
            expected.append(QString::fromLatin1(entry));
    }
    folder.writeBytes("Soupnfil.db1", bytes);
    EXPECT_EQ(ReadNameList(1, RecipeType::SoupsAndSauces), expected);
}

TEST(ReadNameList, CookbooksAndTypesDoNotShareNameFiles)
{
    TempProgramFolder folder;
    folder.writeBytes("Dessnfil.db1", NameSlot(Entry("Pie", 1)));
    EXPECT_TRUE(ReadNameList(2, RecipeType::Desserts).isEmpty());
    EXPECT_TRUE(ReadNameList(1, RecipeType::Dips).isEmpty());
    EXPECT_EQ(ReadNameList(1, RecipeType::Desserts).size(), 1);
}

TEST(ReadNameSlot, TellsAFileWithoutSlotsFromAFileOfBlanks)
{
    TempProgramFolder folder;
    EXPECT_EQ(ReadNameSlot(1, RecipeType::Stews, 1), "");
    folder.writeBytes("Stewnfil.db1", NameSlot(" ") + NameSlot(" "));
    EXPECT_EQ(ReadNameSlot(1, RecipeType::Stews, 1), " ");
    EXPECT_EQ(ReadNameSlot(1, RecipeType::Stews, 3), "");
}

TEST(RebuildNameFile, ByteExactOnAnEmptyFileWithANewEntry)
{
    TempProgramFolder folder;
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Cookies, {}, MakeNameEntry(u"Ginger Snaps", 1)));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(Entry("Ginger Snaps", 1)));
}

TEST(RebuildNameFile, BlanksEveryOldSlotAddsOneAndWritesTheListThenTheNewEntry)
{
    TempProgramFolder folder;
    folder.writeBytes("Cooknfil.db1", NameSlot(Entry("Oat", 3)) + NameSlot(" ") + NameSlot(Entry("Fig", 9)));
    const QStringList list = {QString::fromLatin1(Entry("Fig", 9)), QString::fromLatin1(Entry("Oat", 3))};
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Cookies, list, QString::fromLatin1(Entry("Nut", 10))));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"),
              NameSlot(Entry("Fig", 9)) + NameSlot(Entry("Oat", 3)) + NameSlot(Entry("Nut", 10)) + NameSlot(" "));
}

TEST(RebuildNameFile, WithoutANewEntryTheTailStaysBlank)
{
    TempProgramFolder folder;
    folder.writeBytes("Cooknfil.db1", NameSlot(Entry("Oat", 3)) + NameSlot(Entry("Fig", 9)));
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Cookies, {QString::fromLatin1(Entry("Fig", 9))}));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(Entry("Fig", 9)) + NameSlot(" ") + NameSlot(" "));
}

TEST(RebuildNameFile, AnEmptyListWithoutNewEntryLeavesOnlyBlanks)
{
    TempProgramFolder folder;
    folder.writeBytes("Cooknfil.db1", NameSlot(Entry("Oat", 3)));
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Cookies, {}));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(" ") + NameSlot(" "));
    EXPECT_TRUE(ReadNameList(1, RecipeType::Cookies).isEmpty());
}

TEST(RebuildNameFile, StopsAtTheFirstEmptyListItem)
{
    TempProgramFolder folder;
    const QStringList list = {QString::fromLatin1(Entry("A", 1)), QString(), QString::fromLatin1(Entry("B", 2))};
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Cookies, list, QString::fromLatin1(Entry("C", 3))));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(Entry("A", 1)) + NameSlot(Entry("C", 3)));
}

TEST(RebuildNameFile, NeverShortensTheFile)
{
    TempProgramFolder folder;
    QByteArray bytes;
    for (int i = 1; i <= 5; ++i)
        bytes += NameSlot(Entry("R" + QByteArray::number(i), i));
    folder.writeBytes("Cooknfil.db1", bytes);
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Cookies, {QString::fromLatin1(Entry("R2", 2))}));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(Entry("R2", 2)) + NameSlot(" ").repeated(5));
}

TEST(RebuildNameFile, AShortLastSlotIsBlankedWhole)
{
    TempProgramFolder folder;
    folder.writeBytes("Cooknfil.db1", NameSlot(Entry("Oat", 3)) + NameSlot(Entry("Fig", 9)).left(30));
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Cookies, {}));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(" ").repeated(3));
}

TEST(RebuildNameFile, AnEntryThatDoesNotFitIsSkippedAndItsSlotStaysBlank)
{
    TempProgramFolder folder;
    folder.writeBytes("Cooknfil.db1", NameSlot(Entry("Old", 7)).repeated(3));
    const QStringList list = {QString::fromLatin1(Entry("A", 1)), QString(59, u'x'),
                              QString::fromLatin1(Entry("B", 2))};
    EXPECT_FALSE(RebuildNameFile(1, RecipeType::Cookies, list));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"),
              NameSlot(Entry("A", 1)) + NameSlot(" ") + NameSlot(Entry("B", 2)) + NameSlot(" "));
}

TEST(RebuildNameFile, AnEntryThatDoesNotFitPastTheOldEndLeavesABlankSlot)
{
    TempProgramFolder folder;
    const QStringList list = {QString::fromLatin1(Entry("A", 1)), QString(59, u'x'),
                              QString::fromLatin1(Entry("B", 2))};
    EXPECT_FALSE(RebuildNameFile(1, RecipeType::Cookies, list));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(Entry("A", 1)) + NameSlot(" ") + NameSlot(Entry("B", 2)));
    EXPECT_EQ(ReadNameList(1, RecipeType::Cookies).size(), 2);
}

// The file goes from the old list to the new one in a single write: there is
// no moment when it holds only blanks, and no event runs in between.
TEST(RebuildNameFile, TheFileChangesInOneStep)
{
    TempProgramFolder folder;
    folder.writeBytes("Cooknfil.db1", NameSlot(Entry("Oat", 3)));
    QList<QByteArray> seen;
    FileWriteSeam::set([&](const QString&) {
        seen << folder.bytesOf("Cooknfil.db1");
        return true;
    }, [&](const QString&) { seen << folder.bytesOf("Cooknfil.db1"); });
    bool ran = false;
    QMetaObject::invokeMethod(QCoreApplication::instance(), [&] { ran = true; }, Qt::QueuedConnection);
    const WriteOutcome outcome = RebuildNameFile(1, RecipeType::Cookies, {QString::fromLatin1(Entry("Oat", 3)),
                                                                          QString::fromLatin1(Entry("Rye", 4))});
    FileWriteSeam::clear();
    EXPECT_TRUE(outcome.held());
    EXPECT_FALSE(ran);
    QCoreApplication::processEvents();
    ASSERT_EQ(seen.size(), 2) << "one write, and what the file held before and after it";
    EXPECT_EQ(seen[0], NameSlot(Entry("Oat", 3)));
    EXPECT_EQ(seen[1], NameSlot(Entry("Oat", 3)) + NameSlot(Entry("Rye", 4)));
}

TEST(RebuildNameFile, AWriteThatFailsLeavesTheOldFileAndNamesIt)
{
    TempProgramFolder folder;
    folder.writeBytes("Cooknfil.db1", NameSlot(Entry("Oat", 3)));
    FileWriteSeam::set([](const QString&) { return false; }, {});
    const WriteOutcome outcome = RebuildNameFile(1, RecipeType::Cookies, {}, QString::fromLatin1(Entry("Rye", 4)));
    FileWriteSeam::clear();
    EXPECT_FALSE(outcome.held());
    EXPECT_TRUE(outcome.failedFile.endsWith(QStringLiteral("Cooknfil.db1")));
    EXPECT_EQ(folder.bytesOf("Cooknfil.db1"), NameSlot(Entry("Oat", 3)));
}

TEST(RebuildNameFile, AFolderWhereTheFileShouldBeFailsTheWrite)
{
    TempProgramFolder folder;
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("Cooknfil.db1")));
    EXPECT_FALSE(RebuildNameFile(1, RecipeType::Cookies, {}, QString::fromLatin1(Entry("Rye", 4))).held());
    EXPECT_TRUE(QFileInfo(QStringLiteral("Cooknfil.db1")).isDir());
}

TEST(RebuildNameFile, EntriesWithAccentsAreWindows1252)
{
    TempProgramFolder folder;
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Desserts, {}, MakeNameEntry(QString::fromUtf8("Crème brûlée"), 12)));
    EXPECT_EQ(folder.bytesOf("Dessnfil.db1"), NameSlot(Entry("Cr\xE8me br\xFBl\xE9" "e", 12)));
    EXPECT_EQ(RecipeNameOf(ReadNameList(1, RecipeType::Desserts).value(0)), QString::fromUtf8("Crème brûlée"));
}

} // namespace

TEST(CookbookHasRecipes, AnyUsedSlotCounts)
{
    TempProgramFolder folder;
    EXPECT_FALSE(CookbookHasRecipes(1));
    ASSERT_TRUE(WriteRecipe(1, 3, RecipeRecord::Cleared(), {}));
    EXPECT_FALSE(CookbookHasRecipes(1)) << "deleted and empty slots are no recipes";
    RecipeRecord used = RecipeRecord::Cleared();
    used.markUsed();
    ASSERT_TRUE(WriteRecipe(1, 2, used, {}));
    EXPECT_TRUE(CookbookHasRecipes(1));
    EXPECT_FALSE(CookbookHasRecipes(2));
}
