// The recipe file of the earlier versions: its 1545-byte record, the move of
// its rows into the current record, the search for it in cookbook 1 and the
// conversion of the whole file. Expected bytes are built from the two layout
// tables by hand (layout_bytes.h), never by the structs under test.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/olddatabase.h"

#include "layout_bytes.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

using layout::OldRecipeSlot;
using layout::OldSampleRecipe;
using layout::RecipeSlot;
using layout::Zeros;

constexpr int kOldSize = 1545;
constexpr int kNewSize = 2045;

// The current record the table of row moves makes of an old one: rows 1 to
// 7 stay, rows 8 to 14 go to 11 to 17, every other row is blank; the mark
// gets its "1".
layout::Recipe Converted(const layout::Recipe& old)
{
    layout::Recipe recipe;
    for (int oldRow = 1; oldRow <= 14; ++oldRow) {
        const int newRow = oldRow <= 7 ? oldRow : oldRow + 3;
        recipe.amounts[newRow - 1] = old.amounts[oldRow - 1];
        recipe.amountTypes[newRow - 1] = old.amountTypes[oldRow - 1];
        recipe.ingredients[newRow - 1] = old.ingredients[oldRow - 1];
    }
    recipe.directions = old.directions;
    recipe.ovenTemperature = old.ovenTemperature;
    recipe.yieldAmount = old.yieldAmount;
    recipe.cookingTime = old.cookingTime;
    recipe.yieldType = old.yieldType;
    recipe.slotMark = old.slotMark.trimmed() + "1";
    return recipe;
}

// An old file whose only used recipe stands in slot `slot`.
QByteArray OldFileWithRecipeAt(int slot, const QByteArray& mark = "Full ")
{
    layout::Recipe recipe = OldSampleRecipe(7);
    recipe.slotMark = mark;
    const QByteArray record = OldRecipeSlot(recipe);
    EXPECT_EQ(record.size(), kOldSize);
    return Zeros((slot - 1) * kOldSize) + record;
}

void CopyOldFixture(const TempProgramFolder& folder)
{
    folder.writeBytes("Recipe2.db1", TestDataBytes("old_recipe2.db1"));
    folder.copyIn(TestDataFile("Recipe4.db1"));
    folder.copyIn(TestDataFile("Appenfil.db1"));
}

QStringList FilesIn(const TempProgramFolder& folder)
{
    return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
}

TEST(OldRecipeRecord, ReadsEveryFieldAtItsOffset)
{
    const QByteArray bytes = OldRecipeSlot(OldSampleRecipe(2));
    ASSERT_EQ(bytes.size(), kOldSize);
    const OldRecipeRecord record = OldRecipeRecord::FromBytes(bytes);

    EXPECT_EQ(record.amounts[0].text(), "2.01");
    EXPECT_EQ(record.amounts[13].text(), "2.14");
    EXPECT_EQ(record.amountTypes[6].text(), "unit 2-07");
    EXPECT_EQ(record.ingredients[7].text(), "ingredient 08 of recipe 2");
    EXPECT_EQ(record.ingredients[13].text(), "ingredient 14 of recipe 2");
    EXPECT_EQ(record.directions.text().size(), 800);
    EXPECT_TRUE(record.directions.text().startsWith(QString::fromUtf8("Stir the crème of recipe 2. ")));
    EXPECT_EQ(record.ovenTemperature.text(), "350");
    EXPECT_EQ(record.yieldAmount.text(), "2");
    EXPECT_EQ(record.cookingTime.text(), "20 minutes");
    EXPECT_EQ(record.yieldType.text(), "Serving(s)");
    EXPECT_EQ(record.slotMark.text(), "Full");
    // The whole record is the bytes as they came.
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(&record), kOldSize), bytes);
}

TEST(OldRecipeRecord, ShortInputReadsAsZerosPastItsEnd)
{
    const OldRecipeRecord record = OldRecipeRecord::FromBytes(QByteArray("7    ", 5));
    EXPECT_EQ(record.amounts[0].text(), "7");
    EXPECT_EQ(record.amounts[1].text(), "");
    EXPECT_EQ(QByteArray(record.slotMark.bytes.data(), 5), Zeros(5));
}

TEST(OldRecipeRecord, MarksThatCountAsUsed)
{
    const struct {
        QByteArray mark;
        bool endsFull;
        bool trimsToFull;
    } rows[] = {
        {"Full ", true, true},   {" Full", false, true},  {"FULL ", false, false}, {"full ", false, false},
        {"Full1", false, false}, {"**** ", false, false},  {Zeros(5), false, false}, {QByteArray("Full\0", 5), false, false},
        {"     ", false, false}, {"Fulll", false, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mark.toStdString());
        ASSERT_EQ(row.mark.size(), 5);
        EXPECT_EQ(OldRecipeRecord::MarkEndsFull(row.mark.constData()), row.endsFull);
        EXPECT_EQ(OldRecipeRecord::MarkTrimsToFull(row.mark.constData()), row.trimsToFull);
    }
}

TEST(ConvertOldRecord, GivesTheCurrentRecordByteForByte)
{
    const layout::Recipe old = OldSampleRecipe(5);
    const QByteArray converted = ConvertOldRecord(OldRecipeRecord::FromBytes(OldRecipeSlot(old))).toBytes();
    ASSERT_EQ(converted.size(), kNewSize);
    EXPECT_EQ(converted, RecipeSlot(Converted(old)));
    EXPECT_EQ(converted.mid(100 + 800, 200), QByteArray(200, ' ')) << "the directions padded to 1000";
    EXPECT_EQ(converted.mid(2040), "Full1");
}

TEST(ConvertOldRecord, ARecipeWithFourteenIngredientsPutsRowEightInRowElevenAndLeavesEightToTenBlank)
{
    const RecipeRecord record = ConvertOldRecord(OldRecipeRecord::FromBytes(OldRecipeSlot(OldSampleRecipe(2))));
    EXPECT_EQ(record.ingredients[10].text(), "ingredient 08 of recipe 2");
    EXPECT_EQ(record.amounts[10].text(), "2.08");
    EXPECT_EQ(record.amountTypes[10].text(), "unit 2-08");
    EXPECT_EQ(record.ingredients[6].text(), "ingredient 07 of recipe 2");
    EXPECT_EQ(record.ingredients[16].text(), "ingredient 14 of recipe 2");
    for (int row : {7, 8, 9, 17, 18, 19}) {
        SCOPED_TRACE(row + 1);
        EXPECT_EQ(QByteArray(record.amounts[row].bytes.data(), 5), "     ");
        EXPECT_EQ(QByteArray(record.amountTypes[row].bytes.data(), 10), QByteArray(10, ' '));
        EXPECT_EQ(QByteArray(record.ingredients[row].bytes.data(), 35), QByteArray(35, ' '));
    }
}

TEST(CheckOldDatabase, CookbookTwoIsCurrentTheCheckDoesNothingWhateverCookbookOneHolds)
{
    TempProgramFolder folder;
    CopyOldFixture(folder);
    EXPECT_EQ(CheckOldDatabase(2), 0);
    EXPECT_EQ(CheckOldDatabase(8), 0);
    EXPECT_EQ(CheckOldDatabase(1), kConversionPending) << "the same files are found from cookbook 1";
}

TEST(CheckOldDatabase, AnEmptyRecipeFileFindsNoFullAndNothingIsConverted)
{
    TempProgramFolder folder;
    folder.writeBytes("Recipe2.db1", {});
    EXPECT_EQ(CheckOldDatabase(1), 0);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), QByteArray());
}

TEST(CheckOldDatabase, FindsTheOldFixture)
{
    TempProgramFolder folder;
    CopyOldFixture(folder);
    EXPECT_EQ(CheckOldDatabase(1), kConversionPending);
}

TEST(CheckOldDatabase, FindsFullAtSlotOneThousand)
{
    TempProgramFolder folder;
    folder.writeBytes("Recipe2.db1", OldFileWithRecipeAt(kOldSlotsChecked));
    EXPECT_EQ(CheckOldDatabase(1), kConversionPending);
}

TEST(CheckOldDatabase, ASlotAboveOneThousandWithTheOnlyUsedRecordIsMissedAndNothingIsConverted)
{
    TempProgramFolder folder;
    const QByteArray old = OldFileWithRecipeAt(kOldSlotsChecked + 1);
    folder.writeBytes("Recipe2.db1", old);
    EXPECT_EQ(CheckOldDatabase(1), 0);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), old);
}

TEST(CheckOldDatabase, MarksInAnotherCaseOrOfTheCurrentFormatAreNotFound)
{
    TempProgramFolder folder;
    for (const QByteArray mark : {"FULL ", "full ", "Full1", "**** "}) {
        SCOPED_TRACE(mark.toStdString());
        folder.writeBytes("Recipe2.db1", OldFileWithRecipeAt(3, mark));
        EXPECT_EQ(CheckOldDatabase(1), 0);
    }
}

TEST(RecipeFileIsCurrent, ACurrentFileWithFullAtTheOldMarkOffsetIsCurrent)
{
    TempProgramFolder folder;
    // Row 7's ingredient of record 1 holds "Full " at characters 27 to 31:
    // byte 1540 of the file, where an old record 1 keeps its mark.
    layout::Recipe recipe;
    recipe.ingredients[6] = QByteArray(26, 'x') + "Full ";
    recipe.slotMark = "Full1";
    const QByteArray current = RecipeSlot(recipe);
    ASSERT_EQ(current.mid(1540, 5), "Full ");
    folder.writeBytes("Recipe2.db1", current);

    EXPECT_EQ(CheckOldDatabase(1), kConversionPending) << "the check alone is fooled";
    EXPECT_TRUE(RecipeFileIsCurrent());
}

TEST(RecipeFileIsCurrent, AnOldFileIsNotCurrent)
{
    TempProgramFolder folder;
    CopyOldFixture(folder);
    EXPECT_FALSE(RecipeFileIsCurrent());
}

TEST(ConvertOldRecipeFile, AnOldFileWithRecipesInSlotsTwoAndFiveOnlyKeepsThemThereAndFreesTheOthers)
{
    TempProgramFolder folder;
    CopyOldFixture(folder);
    const QByteArray extrasBefore = folder.bytesOf("Recipe4.db1");
    const QByteArray namesBefore = folder.bytesOf("Appenfil.db1");

    ASSERT_TRUE(ConvertOldRecipeFile().held());

    const QByteArray converted = folder.bytesOf("Recipe2.db1");
    ASSERT_EQ(converted.size(), 5 * kNewSize);
    EXPECT_EQ(converted.mid(1 * kNewSize, kNewSize), RecipeSlot(Converted(OldSampleRecipe(2))));
    EXPECT_EQ(converted.mid(4 * kNewSize, kNewSize), RecipeSlot(Converted(OldSampleRecipe(5))));
    for (int hole : {1, 3, 4}) {
        SCOPED_TRACE(hole);
        EXPECT_EQ(converted.mid((hole - 1) * kNewSize, kNewSize), Zeros(kNewSize));
    }
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), extrasBefore);
    EXPECT_EQ(folder.bytesOf("Appenfil.db1"), namesBefore);
    EXPECT_EQ(FilesIn(folder), QStringList({"Appenfil.db1", "Recipe2.db1", "Recipe4.db1"}));
    EXPECT_EQ(FindFreeSlot(1), 1);
    EXPECT_EQ(ReadRecipe(1, 5).record.ingredients[16].text(), "ingredient 14 of recipe 5");
    EXPECT_EQ(CheckOldDatabase(1), 0) << "a converted file is not found again";
}

TEST(ConvertOldRecipeFile, PassesEverySlotToTheEndThenCopiesThenReplaces)
{
    TempProgramFolder folder;
    CopyOldFixture(folder);
    const QByteArray old = folder.bytesOf("Recipe2.db1");
    QList<int> passed;
    QStringList order;
    const OldConversionSteps steps{
        .slotPassed = [&](int slot) { passed << slot; },
        .copied =
            [&] {
                order << "copied";
                EXPECT_EQ(folder.bytesOf("Recipe2.db1"), old) << "still the old file";
                EXPECT_EQ(folder.bytesOf("Recipe3.db1").size(), 5 * kNewSize);
            },
        .replaced =
            [&] {
                order << "replaced";
                EXPECT_FALSE(QFile::exists(folder.filePath("Recipe3.db1")));
                EXPECT_EQ(folder.bytesOf("Recipe2.db1").size(), 5 * kNewSize);
            },
    };
    ASSERT_TRUE(ConvertOldRecipeFile(steps).held());

    ASSERT_EQ(passed.size(), kOldSlotsConverted);
    for (int i = 0; i < passed.size(); ++i)
        ASSERT_EQ(passed[i], i + 1);
    EXPECT_EQ(order, QStringList({"copied", "replaced"}));
}

TEST(ConvertOldRecipeFile, AnUpperCaseOldFileIsTheOneConvertedAndReplaced)
{
    TempProgramFolder folder;
    folder.writeBytes("RECIPE2.DB1", TestDataBytes("old_recipe2.db1"));
    ASSERT_EQ(CheckOldDatabase(1), kConversionPending);

    ASSERT_TRUE(ConvertOldRecipeFile().held());

    EXPECT_EQ(FilesIn(folder), QStringList({"RECIPE2.DB1"}));
    EXPECT_EQ(folder.bytesOf("RECIPE2.DB1").mid(kNewSize, kNewSize), RecipeSlot(Converted(OldSampleRecipe(2))));
}

TEST(ConvertOldRecipeFile, ALeftoverNewFileLeavesNoStaleRecipeInAHole)
{
    TempProgramFolder folder;
    CopyOldFixture(folder);
    layout::Recipe stale;
    stale.ingredients[0] = "stale";
    stale.slotMark = "Full1";
    folder.writeBytes("recipe3.DB1", RecipeSlot(stale).repeated(6));

    ASSERT_TRUE(ConvertOldRecipeFile().held());

    const QByteArray converted = folder.bytesOf("Recipe2.db1");
    EXPECT_EQ(converted.size(), 5 * kNewSize);
    EXPECT_EQ(converted.left(kNewSize), Zeros(kNewSize));
    EXPECT_EQ(FindFreeSlot(1), 1);
    EXPECT_EQ(FilesIn(folder), QStringList({"Appenfil.db1", "Recipe2.db1", "Recipe4.db1"}));
}

TEST(ConvertOldRecipeFile, AFailingWriteLeavesTheOldFileAndRemovesTheNewOne)
{
    for (int failing = 1; failing <= 3; ++failing) {
        SCOPED_TRACE(failing);
        TempProgramFolder folder;
        CopyOldFixture(folder);
        const QByteArray old = folder.bytesOf("Recipe2.db1");
        // Writes: slot 2, slot 5, then the rename over the old file.
        int writes = 0;
        FileWriteSeam::set([&](const QString&) { return ++writes != failing; }, {});
        const WriteOutcome outcome = ConvertOldRecipeFile();
        FileWriteSeam::clear();

        EXPECT_FALSE(outcome.held());
        EXPECT_EQ(folder.bytesOf("Recipe2.db1"), old);
        EXPECT_EQ(FilesIn(folder), QStringList({"Appenfil.db1", "Recipe2.db1", "Recipe4.db1"}));
        EXPECT_EQ(CheckOldDatabase(1), kConversionPending) << "tried again next time";
    }
}

TEST(ConvertOldRecipeFile, AFolderInTheNewFilesPlaceFailsAndTheOldFileStays)
{
    TempProgramFolder folder;
    CopyOldFixture(folder);
    const QByteArray old = folder.bytesOf("Recipe2.db1");
    ASSERT_TRUE(QDir().mkdir(folder.filePath("Recipe3.db1")));
    int passed = 0;

    const WriteOutcome outcome = ConvertOldRecipeFile({.slotPassed = [&](int) { ++passed; }});

    EXPECT_EQ(outcome, WriteOutcome::FailedOn("Recipe3.db1"));
    EXPECT_EQ(passed, 0) << "nothing was read";
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), old);
}

} // namespace
