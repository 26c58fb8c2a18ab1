// Random, cut-off and odd-length files in place of an older recipe file:
// neither the check nor the conversion may crash, and the converted file
// holds a used recipe exactly where the old one had a "Full" mark.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/olddatabase.h"

#include "layout_bytes.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <gtest/gtest.h>
#include <random>

namespace {

constexpr int kOldSize = 1545;
constexpr int kNewSize = 2045;
constexpr int kMarkAt = 1540;

// Fixed, so a failure repeats.
constexpr std::mt19937::result_type kRandomStart = 19931;

// Random bytes with marks planted where old records keep them: some used,
// some nearly so.
QByteArray RandomOldFile(std::mt19937& random, qsizetype size)
{
    QByteArray bytes(size, '\0');
    std::uniform_int_distribution<int> byte(0, 255);
    for (char& b : bytes)
        b = char(byte(random));
    const QByteArray marks[] = {"Full ", " Full", "FULL ", "Full1", "     "};
    std::uniform_int_distribution<int> pick(0, 6);
    for (qsizetype at = kMarkAt; at + 5 <= size; at += kOldSize) {
        if (const int which = pick(random); which < 5)
            bytes.replace(at, 5, marks[which]);
    }
    return bytes;
}

// The slots whose mark, trimmed of blanks at both ends, is "Full".
QList<int> FullSlotsOf(const QByteArray& old)
{
    QList<int> found;
    for (qsizetype at = kMarkAt; at < old.size(); at += kOldSize) {
        QByteArray mark = old.mid(at, 5);
        mark.append(QByteArray(5 - mark.size(), '\0'));
        if (mark == "Full " || mark == " Full")
            found << int(at / kOldSize) + 1;
    }
    return found;
}

void ExpectSaneRecord(const RecipeRecord& record)
{
    for (int row = 0; row < RecipeRecord::kRows; ++row) {
        EXPECT_LE(record.amounts[row].text().size(), 5);
        EXPECT_LE(record.amountTypes[row].text().size(), 10);
        EXPECT_LE(record.ingredients[row].text().size(), 35);
    }
    EXPECT_LE(record.directions.text().size(), 800) << "no more than the old directions";
    EXPECT_EQ(record.slotMark.text(), "Full1");
}

// Converts what the folder's recipe file holds and checks the result
// against the old bytes.
void ConvertAndCompare(const TempProgramFolder& folder, const QByteArray& old)
{
    const QList<int> full = FullSlotsOf(old);
    ASSERT_TRUE(ConvertOldRecipeFile().held());
    const QByteArray converted = folder.bytesOf("Recipe2.db1");
    EXPECT_EQ(converted.size(), full.isEmpty() ? 0 : full.last() * kNewSize);
    for (int slot = 1; slot <= converted.size() / kNewSize; ++slot) {
        SCOPED_TRACE(slot);
        const RecipeRecord record = ReadRecipe(1, RecordNumber(slot)).record;
        EXPECT_EQ(record.isUsed(), full.contains(slot));
        if (record.isUsed())
            ExpectSaneRecord(record);
    }
}

TEST(OldDatabaseFuzz, RandomOldFilesOfOddLengthsNeverCrashTheCheckOrTheConversion)
{
    std::mt19937 random(kRandomStart);
    for (int round = 0; round < 16; ++round) {
        SCOPED_TRACE(round);
        TempProgramFolder folder;
        const qsizetype size = qsizetype(random() % (9 * kOldSize)) + round % 2;
        const QByteArray old = RandomOldFile(random, size);
        folder.writeBytes("Recipe2.db1", old);

        const int pending = CheckOldDatabase(1);
        EXPECT_TRUE(pending == 0 || pending == kConversionPending);
        (void)RecipeFileIsCurrent();
        ConvertAndCompare(folder, old);
    }
}

TEST(OldDatabaseFuzz, TheFixtureCutAtAnyLengthIsFoundOnlyWithSlotTwosWholeMark)
{
    TempProgramFolder folder;
    const QByteArray old = TestDataBytes("old_recipe2.db1");
    ASSERT_EQ(old.size(), 5 * kOldSize);
    const qsizetype wholeMark = kOldSize + kMarkAt + 5;
    for (qsizetype cut = 0; cut <= old.size(); cut += 13) {
        SCOPED_TRACE(cut);
        folder.writeBytes("Recipe2.db1", old.left(cut));
        EXPECT_EQ(CheckOldDatabase(1), cut >= wholeMark ? kConversionPending : 0);
    }
    for (const qsizetype cut : {wholeMark - 1, wholeMark, wholeMark + 1, qsizetype(old.size()) - 1}) {
        SCOPED_TRACE(cut);
        folder.writeBytes("Recipe2.db1", old.left(cut));
        EXPECT_EQ(CheckOldDatabase(1), cut >= wholeMark ? kConversionPending : 0);
        ConvertAndCompare(folder, old.left(cut));
    }
}

TEST(OldDatabaseFuzz, RandomRecordsConvertToRecordsThatReadBack)
{
    std::mt19937 random(kRandomStart + 1);
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        const QByteArray bytes = RandomOldFile(random, kOldSize);
        const RecipeRecord record = ConvertOldRecord(OldRecipeRecord::FromBytes(bytes));
        const RecipeRecord again = RecipeRecord::FromBytes(record.toBytes());
        EXPECT_EQ(again, record);
        EXPECT_EQ(record.toBytes().count('\0'), 0) << "every field is padded with blanks";
    }
}

} // namespace
