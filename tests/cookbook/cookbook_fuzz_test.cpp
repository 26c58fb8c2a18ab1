// Random and cut-off files in place of a cookbook's files: nothing may crash,
// and every value read stays within what its slot can hold.
#include "cookbook/logic/cookbookfiles.h"
#include "test_bytes.h"
#include "cookbook/logic/nameentry.h"

#include "layout_bytes.h"
#include "temp_program_folder.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// Fixed, so a failure repeats.
constexpr std::mt19937::result_type kRandomStart = 20061;

// Random bytes biased towards what the readers look at: plausible lengths,
// kind 8, marks that are almost "Full1".
QByteArray NearlyValidBytes(std::mt19937& random, qsizetype size)
{
    QByteArray bytes = RandomBytes(random, size);
    std::uniform_int_distribution<int> pick(0, 7);
    for (qsizetype at = 0; at + 5 <= bytes.size(); at += 5) {
        switch (pick(random)) {
        case 0: bytes.replace(at, 5, "Full1"); break;
        case 1: bytes.replace(at, 5, "fULL1"); break;
        case 2: bytes.replace(at, 2, layout::U16(8)); break;
        case 3: bytes.replace(at, 2, layout::U16(int(random() % 300))); break;
        case 4: bytes.replace(at, 5, QByteArray(5, ' ')); break;
        default: break;
        }
    }
    return bytes;
}

void ExpectSaneRecipe(const StoredRecipe& stored)
{
    const RecipeRecord& record = stored.record;
    for (int row = 0; row < RecipeRecord::kRows; ++row) {
        EXPECT_LE(record.amounts[row].text().size(), 5);
        EXPECT_LE(record.amountTypes[row].text().size(), 10);
        EXPECT_LE(record.ingredients[row].text().size(), 35);
    }
    EXPECT_LE(record.directions.text().size(), 1000);
    EXPECT_LE(record.ovenTemperature.text().size(), 4);
    EXPECT_LE(record.yieldAmount.text().size(), 5);
    EXPECT_LE(record.cookingTime.text().size(), 20);
    EXPECT_LE(record.yieldType.text().size(), 11);
    EXPECT_LE(stored.picturePath.size(), 246);
}

TEST(CookbookFuzz, RandomRecipeAndExtraFilesReadAsSaneValues)
{
    std::mt19937 random(kRandomStart);
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        TempProgramFolder folder;
        const qsizetype recipes = qsizetype(random() % (12 * 2045));
        const qsizetype extras = qsizetype(random() % (12 * 250));
        folder.writeBytes("Recipe2.db1", round % 2 ? RandomBytes(random, recipes) : NearlyValidBytes(random, recipes));
        folder.writeBytes("Recipe4.db1", round % 2 ? RandomBytes(random, extras) : NearlyValidBytes(random, extras));

        for (int slot = -1; slot <= 14; ++slot)
            ExpectSaneRecipe(ReadRecipe(1, RecordNumber(slot)));
        const RecordNumber free = FindFreeSlot(1);
        EXPECT_GE(free, 1);
        EXPECT_LE(free, recipes / 2045 + 2);
        EXPECT_FALSE(ReadRecipe(1, free).record.isUsed());
    }
}

TEST(CookbookFuzz, RandomNameFilesReadAsSaneEntries)
{
    std::mt19937 random(kRandomStart + 1);
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        TempProgramFolder folder;
        const qsizetype size = qsizetype(random() % (50 * 60));
        folder.writeBytes("Dipsnfil.db1", round % 2 ? RandomBytes(random, size) : NearlyValidBytes(random, size));

        const QStringList entries = ReadNameList(1, RecipeType::Dips);
        EXPECT_LE(entries.size(), (size + 59) / 60);
        for (const QString& entry : entries) {
            EXPECT_LE(entry.size(), 58);
            EXPECT_FALSE(IsBlankText(entry));
            const RecordNumber number = RecordNumberOf(entry);
            EXPECT_GE(number, 0);
            EXPECT_LE(RecipeNameOf(entry).size(), 40);
        }
        // A rebuild from what was read keeps every entry.
        RebuildNameFile(1, RecipeType::Dips, entries);
        EXPECT_EQ(ReadNameList(1, RecipeType::Dips), entries);
    }
}

TEST(CookbookFuzz, ValidFilesCutAtEveryLengthNeverCrash)
{
    TempProgramFolder folder;
    RecipeRecord record = RecipeRecord::Cleared();
    record.directions.setText(u"Stir.");
    record.markUsed();
    const QByteArray recipes = record.toBytes().repeated(2);
    const QByteArray extras = layout::ExtraSlot("a.jpg") + layout::ExtraSlot(QByteArray(246, 'p'));
    const QByteArray names = layout::NameSlot(layout::Entry("Pie", 1)) + layout::NameSlot(layout::Entry("Cake", 30001));

    for (qsizetype cut = 0; cut <= recipes.size(); cut += 7) {
        folder.writeBytes("Recipe2.db1", recipes.left(cut));
        folder.writeBytes("Recipe4.db1", extras.left(cut % (extras.size() + 1)));
        ExpectSaneRecipe(ReadRecipe(1, 1));
        ExpectSaneRecipe(ReadRecipe(1, 2));
        const RecordNumber free = FindFreeSlot(1);
        EXPECT_EQ(free, cut < 2045 ? 1 : cut < 2 * 2045 ? 2 : 3);
    }
    for (qsizetype cut = 0; cut <= names.size(); ++cut) {
        folder.writeBytes("Pastnfil.db1", names.left(cut));
        const QStringList entries = ReadNameList(1, RecipeType::PastryAndPies);
        EXPECT_LE(entries.size(), 2);
        for (const QString& entry : entries)
            EXPECT_LE(entry.size(), 58);
    }
}

TEST(CookbookFuzz, RandomTextsMakeEntriesThatReadBack)
{
    std::mt19937 random(kRandomStart + 2);
    std::uniform_int_distribution<int> length(0, 80);
    std::uniform_int_distribution<int> character(0x20, 0xFF);
    std::uniform_int_distribution<int> number(1, 32767);
    for (int round = 0; round < 2000; ++round) {
        QString name;
        for (int i = length(random); i > 0; --i)
            name.append(QChar(character(random)));
        const RecordNumber recordNumber = RecordNumber(number(random));
        const QString entry = MakeNameEntry(name, recordNumber);
        ASSERT_LE(entry.size(), 57);
        EXPECT_EQ(RecordNumberOf(entry), recordNumber) << name.toStdString();
        EXPECT_TRUE(name.startsWith(RecipeNameOf(entry)) || RecipeNameOf(entry).isEmpty());

        QString garbage;
        for (int i = length(random); i > 0; --i)
            garbage.append(QChar(character(random)));
        const RecordNumber read = RecordNumberOf(garbage);
        EXPECT_GE(read, 0);
    }
}

} // namespace
