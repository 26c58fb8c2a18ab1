// The stored cookbook of tests/cookbook/data, cookbook 1 of a data folder in
// use: three recipes with a deleted slot (2) and a never-written one (4)
// between them, their picture paths, and the name file of "Appetizers and
// beverages". Read with the record operations, then written back and
// compared with the stored files byte for byte.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"

#include "layout_bytes.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace {

constexpr int kBook = 1;
constexpr RecipeType kType = RecipeType::AppetizersAndBeverages;
const QString kRecipeFile = QStringLiteral("Recipe2.db1");
const QString kExtraFile = QStringLiteral("Recipe4.db1");
const QString kNameFile = QStringLiteral("Appenfil.db1");

constexpr RecordNumber kDeletedSlot = 2;
constexpr RecordNumber kNeverWrittenSlot = 4;
constexpr std::array<RecordNumber, 3> kUsedSlots = {1, 3, 5};
constexpr int kStoredSlots = 5;

void CopyStoredCookbook(const TempProgramFolder& folder)
{
    for (const QString& name : {kRecipeFile, kExtraFile, kNameFile})
        folder.copyIn(TestDataFile(name));
}

QByteArray SlotOf(const QByteArray& file, int slot, int slotLength)
{
    return file.mid(qsizetype(slot - 1) * slotLength, slotLength);
}

// `file` with slot `slot` replaced by `bytes`.
QByteArray WithSlot(QByteArray file, int slot, int slotLength, const QByteArray& bytes)
{
    return file.replace(qsizetype(slot - 1) * slotLength, slotLength, bytes);
}

struct Row {
    QString amount;
    QString unit;
    QString ingredient;
};

// Every one of the 20 rows: the given ones (by row number from 1) hold
// their texts, all others are blank.
void ExpectRows(const RecipeRecord& record, const std::map<int, Row>& rows)
{
    for (int row = 1; row <= RecipeRecord::kRows; ++row) {
        SCOPED_TRACE(row);
        const auto found = rows.find(row);
        const Row expected = found == rows.end() ? Row{} : found->second;
        EXPECT_EQ(record.amounts[row - 1].text(), expected.amount);
        EXPECT_EQ(record.amountTypes[row - 1].text(), expected.unit);
        EXPECT_EQ(record.ingredients[row - 1].text(), expected.ingredient);
    }
}

std::map<RecordNumber, StoredRecipe> ReadStoredSlots()
{
    std::map<RecordNumber, StoredRecipe> stored;
    for (int slot = 1; slot <= kStoredSlots; ++slot)
        stored[RecordNumber(slot)] = ReadRecipe(kBook, RecordNumber(slot));
    return stored;
}

TEST(StoredCookbook, ReadsEveryFieldOfARecipeWithLineBreaksInItsDirections)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);
    const StoredRecipe stored = ReadRecipe(kBook, 1);
    const RecipeRecord& record = stored.record;

    ExpectRows(record, {{1, {"2", "quarts", "cranberry juice"}},
                        {2, {"1", "can", "frozen lemonade"}},
                        {3, {".5", "cup", "sugar"}},
                        {11, {"1", "bottle", "ginger ale"}},
                        {12, {".25", "tsp.", "nutmeg"}}});
    EXPECT_EQ(record.directions.text(), "Stir the juice, lemonade and sugar until the sugar dissolves.\r\n"
                                        "Chill.\r\nAdd the ginger ale just before serving.");
    EXPECT_EQ(record.ovenTemperature.text(), "");
    EXPECT_EQ(record.cookingTime.text(), "10 minutes");
    EXPECT_EQ(record.yieldAmount.text(), "24");
    EXPECT_EQ(record.yieldType.text(), "Serving(s)");
    EXPECT_EQ(record.slotMark.text(), "Full1");
    EXPECT_TRUE(record.isUsed());
    EXPECT_EQ(stored.picturePath, "C:\\My Recipes\\Pictures\\Cranberry Punch.jpg");
}

TEST(StoredCookbook, ReadsFieldsFilledToTheirWidthsAndAccentedText)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);
    const StoredRecipe stored = ReadRecipe(kBook, 3);
    const RecipeRecord& record = stored.record;

    ExpectRows(record, {{1, {"1.125", "cups", QString::fromUtf8("crème fraîche")}},
                        {2, {"8", "oz.", "cream cheese, softened"}},
                        {3, {"6", "oz.", "fresh crab meat, drained and flaked"}},
                        {10, {"1", "tablespoon", "lemon juice"}},
                        {20, {".125", "tsp.", "paprika"}}});
    EXPECT_EQ(record.directions.text(), "Heat the oven.\r\nStir everything but the paprika together and spread it "
                                        "in a dish.\r\nDust with paprika and bake until bubbly.");
    EXPECT_EQ(record.ovenTemperature.text(), "350");
    EXPECT_EQ(record.cookingTime.text(), "30 minutes");
    EXPECT_EQ(record.yieldAmount.text(), "1");
    EXPECT_EQ(record.yieldType.text(), "Casserole(s");
    EXPECT_TRUE(record.isUsed());
    EXPECT_EQ(stored.picturePath, "**") << "a removed picture";
}

TEST(StoredCookbook, ReadsTheLastRecipeWithoutAPicture)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);
    const StoredRecipe stored = ReadRecipe(kBook, 5);

    ExpectRows(stored.record, {{1, {"2", "pkg.", "frozen chopped spinach"}},
                               {2, {"2", "cups", "herb stuffing mix"}},
                               {3, {"4", "large", "eggs, beaten"}},
                               {4, {"1", "small", "onion, chopped"}}});
    EXPECT_EQ(stored.record.directions.text(), "Mix, roll into balls and bake on a greased sheet.");
    EXPECT_EQ(stored.record.ovenTemperature.text(), "375");
    EXPECT_EQ(stored.record.cookingTime.text(), "15 minutes");
    EXPECT_EQ(stored.record.yieldAmount.text(), "4");
    EXPECT_EQ(stored.record.yieldType.text(), "Dozen");
    EXPECT_TRUE(stored.record.isUsed());
    EXPECT_EQ(stored.picturePath, "");
}

TEST(StoredCookbook, TheDeletedAndTheNeverWrittenSlotsAreFreeInTheirOrder)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);

    const StoredRecipe deleted = ReadRecipe(kBook, kDeletedSlot);
    EXPECT_EQ(deleted.record, RecipeRecord::Cleared());
    EXPECT_FALSE(deleted.record.isUsed());
    EXPECT_EQ(deleted.picturePath, "");
    const StoredRecipe neverWritten = ReadRecipe(kBook, kNeverWrittenSlot);
    EXPECT_EQ(neverWritten.record, RecipeRecord{});
    EXPECT_EQ(neverWritten.picturePath, "");

    EXPECT_EQ(FindFreeSlot(kBook), kDeletedSlot);
    const StoredRecipe first = ReadRecipe(kBook, 1);
    ASSERT_TRUE(WriteRecipe(kBook, kDeletedSlot, first.record, first.picturePath));
    EXPECT_EQ(FindFreeSlot(kBook), kNeverWrittenSlot);
    ASSERT_TRUE(WriteRecipe(kBook, kNeverWrittenSlot, first.record, first.picturePath));
    EXPECT_EQ(FindFreeSlot(kBook), kStoredSlots + 1);
}

TEST(StoredCookbook, NameListGivesEveryEntryAndSkipsTheClearedTail)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);
    const QStringList entries = ReadNameList(kBook, kType);

    struct Expected {
        QString name;
        RecordNumber number;
    };
    const Expected expected[] = {
        {"Cranberry Punch", 1},
        {"Hot Crab Dip", 3},
        {QString::fromUtf8("Jalapeño Poppers"), kNeverWrittenSlot},
        {"Party Mix", 0},
        {"Spinach Balls", 5},
    };
    ASSERT_EQ(entries.size(), qsizetype(std::size(expected)));
    for (qsizetype i = 0; i < entries.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(entries[i].size(), 52 + QString::number(expected[i].number).size());
        EXPECT_EQ(RecipeNameOf(entries[i]), expected[i].name);
        EXPECT_EQ(RecordNumberOf(entries[i]), expected[i].number);
    }
    EXPECT_EQ(ReadNameSlot(kBook, kType, 6), " ");
    EXPECT_EQ(ReadNameSlot(kBook, kType, 7), " ");
    EXPECT_EQ(ReadNameSlot(kBook, kType, 8), "");

    // Neither the entry numbered 0 nor the one at the never-written slot
    // finds a recipe: both read as an empty record.
    EXPECT_EQ(ReadRecipe(kBook, RecordNumberOf(entries[2])).record, RecipeRecord{});
    EXPECT_EQ(ReadRecipe(kBook, RecordNumberOf(entries[3])).record, RecipeRecord{});
}

TEST(StoredCookbook, WritingTheStoredRecipesBackGivesTheStoredFiles)
{
    std::map<RecordNumber, StoredRecipe> stored;
    {
        TempProgramFolder copy;
        CopyStoredCookbook(copy);
        stored = ReadStoredSlots();
    }
    TempProgramFolder folder;
    for (RecordNumber slot : kUsedSlots)
        ASSERT_TRUE(WriteRecipe(kBook, slot, stored[slot].record, stored[slot].picturePath));
    ASSERT_TRUE(ClearRecipe(kBook, kDeletedSlot));

    EXPECT_EQ(folder.bytesOf(kRecipeFile), TestDataBytes(kRecipeFile));
    EXPECT_EQ(folder.bytesOf(kExtraFile), TestDataBytes(kExtraFile));
}

TEST(StoredCookbook, WritingOneRecipeLeavesEveryOtherByte)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);
    const StoredRecipe first = ReadRecipe(kBook, 1);
    ASSERT_TRUE(WriteRecipe(kBook, kNeverWrittenSlot, first.record, first.picturePath));

    const QByteArray recipes = TestDataBytes(kRecipeFile);
    const QByteArray extras = TestDataBytes(kExtraFile);
    EXPECT_EQ(folder.bytesOf(kRecipeFile),
              WithSlot(recipes, kNeverWrittenSlot, RecipeRecord::kSize, SlotOf(recipes, 1, RecipeRecord::kSize)));
    EXPECT_EQ(folder.bytesOf(kExtraFile), WithSlot(extras, kNeverWrittenSlot, RecipeExtraRecord::kSize,
                                                   SlotOf(extras, 1, RecipeExtraRecord::kSize)));
    EXPECT_EQ(folder.bytesOf(kNameFile), TestDataBytes(kNameFile));
}

TEST(StoredCookbook, ClearingOneRecipeLeavesEveryOtherByte)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);
    ASSERT_TRUE(ClearRecipe(kBook, 3));

    // Slot 3 now holds what the stored deleted slot holds.
    const QByteArray recipes = TestDataBytes(kRecipeFile);
    const QByteArray extras = TestDataBytes(kExtraFile);
    EXPECT_EQ(folder.bytesOf(kRecipeFile),
              WithSlot(recipes, 3, RecipeRecord::kSize, SlotOf(recipes, kDeletedSlot, RecipeRecord::kSize)));
    EXPECT_EQ(folder.bytesOf(kExtraFile),
              WithSlot(extras, 3, RecipeExtraRecord::kSize, SlotOf(extras, kDeletedSlot, RecipeExtraRecord::kSize)));
}

TEST(StoredCookbook, RebuildingTheNameFileFromItsListAddsOneBlankSlot)
{
    TempProgramFolder folder;
    CopyStoredCookbook(folder);
    ASSERT_TRUE(RebuildNameFile(kBook, kType, ReadNameList(kBook, kType)));
    EXPECT_EQ(folder.bytesOf(kNameFile), TestDataBytes(kNameFile) + layout::NameSlot(" "));
}

TEST(StoredCookbook, ThreeSavesOfTheRebuiltEntriesGiveTheStoredNameFile)
{
    QStringList entries;
    {
        TempProgramFolder copy;
        CopyStoredCookbook(copy);
        for (const QString& entry : ReadNameList(kBook, kType))
            entries << MakeNameEntry(RecipeNameOf(entry), RecordNumberOf(entry));
    }
    // Each save blanks every slot and one more, then writes the five
    // entries: five slots after the first save, six, then seven, the last
    // two of them blank.
    TempProgramFolder folder;
    for (int save = 1; save <= 3; ++save)
        ASSERT_TRUE(RebuildNameFile(kBook, kType, entries));
    EXPECT_EQ(folder.bytesOf(kNameFile), TestDataBytes(kNameFile));
}

} // namespace
