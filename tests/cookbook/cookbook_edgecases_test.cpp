// The cookbook's known edge cases, each driven the way the recipe screen
// drives the files: a new recipe takes a free slot, writes the recipe file,
// then the extra file, and only then rebuilds the name file with the new
// entry last; a deletion clears the slot and rebuilds the name file from the
// remaining list.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"

#include "layout_bytes.h"
#include "temp_program_folder.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

using layout::Entry;
using layout::NameSlot;

RecipeRecord RecipeWithIngredient(const QString& ingredient)
{
    RecipeRecord record = RecipeRecord::Cleared();
    record.amounts[0].setText(u"1");
    record.ingredients[0].setText(ingredient);
    record.markUsed();
    return record;
}

// Saves a new recipe as the recipe screen does; `names` is the type's list
// on the screen, which gets the new entry as the screen's list does.
RecordNumber SaveNewRecipe(int cookbook, RecipeType type, QStringList& names, const QString& name,
                           const RecipeRecord& record)
{
    const RecordNumber slot = FindFreeSlot(cookbook);
    WriteRecipe(cookbook, slot, record, {});
    const QString entry = MakeNameEntry(name, slot);
    RebuildNameFile(cookbook, type, names, entry);
    names.append(entry);
    return slot;
}

void DeleteRecipe(int cookbook, RecipeType type, QStringList& names, qsizetype listIndex)
{
    ClearRecipe(cookbook, RecordNumberOf(names[listIndex]));
    names.removeAt(listIndex);
    RebuildNameFile(cookbook, type, names);
}

TEST(CookbookEdgeCases, NewRecipeInAnEmptyCookbookCreatesTheFilesAndTakesSlotOne)
{
    TempProgramFolder folder;
    ASSERT_FALSE(QFile::exists(folder.filePath("Recipe2.db1")));
    QStringList names = ReadNameList(1, RecipeType::Breads);
    ASSERT_TRUE(names.isEmpty());

    const RecordNumber slot = SaveNewRecipe(1, RecipeType::Breads, names, "Corn Bread", RecipeWithIngredient("cornmeal"));

    EXPECT_EQ(slot, 1);
    EXPECT_TRUE(QFile::exists(folder.filePath("Recipe2.db1")));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").size(), 2045);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(2040), "Full1");
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), layout::ExtraSlot(""));
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"), NameSlot(Entry("Corn Bread", 1)));
    EXPECT_EQ(ReadNameList(1, RecipeType::Breads), QStringList{QString::fromLatin1(Entry("Corn Bread", 1))});
}

TEST(CookbookEdgeCases, DeletedSlotFiveOfNineIsReusedAndSlotsSixToNineAreUntouched)
{
    TempProgramFolder folder;
    QStringList names;
    for (int i = 1; i <= 9; ++i)
        SaveNewRecipe(1, RecipeType::Meats, names, QString("Meat %1").arg(i), RecipeWithIngredient(QString("cut %1").arg(i)));
    const QByteArray recipesBefore = folder.bytesOf("Recipe2.db1");
    const QByteArray extrasBefore = folder.bytesOf("Recipe4.db1");
    ASSERT_EQ(recipesBefore.size(), 9 * 2045);

    const qsizetype index = names.indexOf(MakeNameEntry(u"Meat 5", 5));
    ASSERT_GE(index, 0);
    DeleteRecipe(1, RecipeType::Meats, names, index);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(4 * 2045, 2045), QByteArray(2040, ' ') + "**** ");

    const RecordNumber slot = SaveNewRecipe(1, RecipeType::Meats, names, "Pot Roast", RecipeWithIngredient("roast"));

    EXPECT_EQ(slot, 5);
    const QByteArray recipes = folder.bytesOf("Recipe2.db1");
    ASSERT_EQ(recipes.size(), 9 * 2045);
    EXPECT_EQ(recipes.left(4 * 2045), recipesBefore.left(4 * 2045));
    EXPECT_EQ(recipes.mid(5 * 2045), recipesBefore.mid(5 * 2045));
    EXPECT_EQ(ReadRecipe(1, 5).record.ingredients[0].text(), "roast");
    EXPECT_EQ(folder.bytesOf("Recipe4.db1").mid(5 * 250), extrasBefore.mid(5 * 250));
    EXPECT_TRUE(ReadNameList(1, RecipeType::Meats).contains(MakeNameEntry(u"Pot Roast", 5)));
    EXPECT_FALSE(ReadNameList(1, RecipeType::Meats).contains(MakeNameEntry(u"Meat 5", 5)));
}

TEST(CookbookEdgeCases, NameFileOfBlanksOnlyGivesAnEmptyList)
{
    TempProgramFolder folder;
    folder.writeBytes("Fruinfil.db1", NameSlot(" ").repeated(6));
    EXPECT_TRUE(ReadNameList(1, RecipeType::Fruits).isEmpty());

    // Deleting the last recipe of a type leaves such a file.
    QStringList names;
    SaveNewRecipe(1, RecipeType::Fruits, names, "Fruit Cup", RecipeWithIngredient("fruit"));
    DeleteRecipe(1, RecipeType::Fruits, names, 0);
    EXPECT_TRUE(ReadNameList(1, RecipeType::Fruits).isEmpty());
    EXPECT_EQ(ReadNameSlot(1, RecipeType::Fruits, 1), " ");
}

TEST(CookbookEdgeCases, FiveDigitRecordNumberFitsTwoPlus57BytesInASlotOf60)
{
    TempProgramFolder folder;
    const QString longestName(41, u'L');
    const QString entry = MakeNameEntry(longestName, 30001);
    ASSERT_EQ(entry.size(), 57);
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Stews, {}, entry));

    const QByteArray bytes = folder.bytesOf("Stewnfil.db1");
    EXPECT_EQ(bytes, layout::U16(57) + QByteArray(41, 'L') + QByteArray(11, ' ') + "30001" + '\0');
    EXPECT_EQ(RecordNumberOf(ReadNameList(1, RecipeType::Stews).value(0)), 30001);
}

TEST(CookbookEdgeCases, CasseroleYieldTypeSavedAndViewedComesBackAsCasseroleS)
{
    TempProgramFolder folder;
    RecipeRecord record = RecipeWithIngredient("noodles");
    record.yieldAmount.setText(u"2");
    record.yieldType.setText(u"Casserole(s)");
    ASSERT_TRUE(WriteRecipe(1, 1, record, {}));

    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(2029, 11), "Casserole(s");
    EXPECT_EQ(ReadRecipe(1, 1).record.yieldType.text(), "Casserole(s");
}

TEST(CookbookEdgeCases, TwoRecipesOfTheSameNameInOneTypeDifferByRecordNumber)
{
    TempProgramFolder folder;
    QStringList names;
    const RecordNumber first = SaveNewRecipe(1, RecipeType::CakesFrostingsAndFillings, names, "Pound Cake",
                                             RecipeWithIngredient("butter"));
    const RecordNumber second = SaveNewRecipe(1, RecipeType::CakesFrostingsAndFillings, names, "Pound Cake",
                                              RecipeWithIngredient("margarine"));
    EXPECT_NE(first, second);
    const QStringList entries = ReadNameList(1, RecipeType::CakesFrostingsAndFillings);
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(RecipeNameOf(entries[0]), RecipeNameOf(entries[1]));
    EXPECT_EQ(RecordNumberOf(entries[0]), first);
    EXPECT_EQ(RecordNumberOf(entries[1]), second);
    EXPECT_EQ(ReadRecipe(1, RecordNumberOf(entries[0])).record.ingredients[0].text(), "butter");
    EXPECT_EQ(ReadRecipe(1, RecordNumberOf(entries[1])).record.ingredients[0].text(), "margarine");
}

TEST(CookbookEdgeCases, AnEntryExistsInExactlyOneNameFile)
{
    TempProgramFolder folder;
    QStringList soups;
    QStringList stews;
    const RecordNumber soup = SaveNewRecipe(1, RecipeType::SoupsAndSauces, soups, "Chowder", RecipeWithIngredient("clams"));
    const RecordNumber stew = SaveNewRecipe(1, RecipeType::Stews, stews, "Chowder", RecipeWithIngredient("fish"));
    EXPECT_NE(soup, stew); // one number space for all types

    for (RecordNumber slot : {soup, stew}) {
        SCOPED_TRACE(slot);
        int listedIn = 0;
        for (RecipeType type : AllRecipeTypes()) {
            for (const QString& entry : ReadNameList(1, type))
                listedIn += RecordNumberOf(entry) == slot ? 1 : 0;
        }
        EXPECT_EQ(listedIn, 1);
    }
}

} // namespace
