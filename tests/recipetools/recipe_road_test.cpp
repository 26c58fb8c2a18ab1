// The road of a recipe through the files, step by step as the recipe screen
// takes it: create in an empty cookbook, read back, modify and save, rename,
// delete, and a new recipe into the hole. After every step the recipe file,
// the extra file and the type's name file are compared byte for byte with
// what the record layouts say they hold.
#include "recipetools/logic/recipelifecycle.h"

#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/cookbookselection.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/amountformat.h"

#include "cookbook_files.h"
#include "recipe_samples.h"
#include "temp_program_folder.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

using layout::Entry;
using layout::EntryText;
using layout::ExtraSlot;
using layout::NameFile;
using samples::ClearedSlot;

constexpr RecipeType kType = RecipeType::Desserts;

// The pick list the screen shows after choosing the type.
QStringList ChooseType(int cookbook, RecipeType type)
{
    QStringList list = ReadNameList(cookbook, type);
    SortEntries(list);
    return list;
}

struct Files {
    QByteArray recipes;
    QByteArray extras;
    QByteArray names;
};

void ExpectFiles(const TempProgramFolder& folder, const Files& expected, const char* step)
{
    SCOPED_TRACE(step);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), expected.recipes);
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), expected.extras);
    EXPECT_EQ(folder.bytesOf("Dessnfil.db1"), expected.names);
}

TEST(RecipeRoad, CreateReadModifyRenameDeleteAndFillTheHole)
{
    TempProgramFolder folder;
    const samples::Sample lemon = samples::LemonBars();
    const samples::Sample lemonDoubled = samples::LemonBarsDoubled();
    const samples::Sample apple = samples::AppleCrisp();
    const samples::Sample brownies = samples::Brownies();
    const samples::Sample fudge = samples::Fudge();

    // Create in an empty cookbook: the files appear, the recipe takes slot 1.
    QStringList currentNames = ChooseType(1, kType);
    ASSERT_TRUE(currentNames.isEmpty());
    const SavedNewRecipe first = SaveNewRecipe(1, kType, "Lemon Bars", lemon.fields, {}, currentNames);
    ASSERT_EQ(first.recordNumber, 1);
    ExpectFiles(folder, {lemon.savedBytes(), ExtraSlot(""), NameFile({Entry("Lemon Bars", 1)})}, "first recipe");

    currentNames = ChooseType(1, kType);
    const SavedNewRecipe second = SaveNewRecipe(1, kType, "Apple Crisp", apple.fields, "apple.jpg", currentNames);
    ASSERT_EQ(second.recordNumber, 2);
    ExpectFiles(folder,
                {lemon.savedBytes() + apple.savedBytes(), ExtraSlot("") + ExtraSlot("apple.jpg"),
                 NameFile({Entry("Lemon Bars", 1), Entry("Apple Crisp", 2)})},
                "second recipe");

    currentNames = ChooseType(1, kType);
    const SavedNewRecipe third = SaveNewRecipe(1, kType, "Brownies", brownies.fields, {}, currentNames);
    ASSERT_EQ(third.recordNumber, 3);
    // The file now holds the sorted list of before, the new entry last.
    ExpectFiles(folder,
                {lemon.savedBytes() + apple.savedBytes() + brownies.savedBytes(),
                 ExtraSlot("") + ExtraSlot("apple.jpg") + ExtraSlot(""),
                 NameFile({Entry("Apple Crisp", 2), Entry("Lemon Bars", 1), Entry("Brownies", 3)})},
                "third recipe");

    // Read back: choose the type, pick Lemon Bars.
    QStringList pickList = ChooseType(1, kType);
    ASSERT_EQ(pickList,
              (QStringList{EntryText("Apple Crisp", 2), EntryText("Brownies", 3), EntryText("Lemon Bars", 1)}));
    const int lemonIndex = 2;
    const RecordNumber lemonNumber = RecordNumberOf(pickList[lemonIndex]);
    ASSERT_EQ(lemonNumber, 1);
    const StoredRecipe viewed = ReadRecipe(1, lemonNumber);
    EXPECT_EQ(FieldsOfRecord(viewed.record), lemon.fields);
    EXPECT_EQ(viewed.picturePath, "");
    EXPECT_EQ(FormatAmount(FieldsOfRecord(viewed.record).amounts[1]), "1/4");
    EXPECT_EQ(ReadRecipe(1, 2).picturePath, "apple.jpg");

    // Modify: new amounts and yield, and a picture; saved at its own slot.
    ASSERT_TRUE(SaveExistingRecipe(1, lemonNumber, lemonDoubled.fields, "lemon.jpg"));
    const QByteArray namesAfterModify = NameFile({Entry("Apple Crisp", 2), Entry("Lemon Bars", 1), Entry("Brownies", 3)});
    ExpectFiles(folder,
                {lemonDoubled.savedBytes() + apple.savedBytes() + brownies.savedBytes(),
                 ExtraSlot("lemon.jpg") + ExtraSlot("apple.jpg") + ExtraSlot(""), namesAfterModify},
                "modified");
    EXPECT_EQ(FieldsOfRecord(ReadRecipe(1, lemonNumber).record), lemonDoubled.fields);

    // Rename: same slot, new entry, the list sorted and written in full.
    pickList = ChooseType(1, kType);
    pickList = RenameRecipe(1, kType, lemonNumber, pickList, lemonIndex, "Zesty Lemon Bars").pickList;
    EXPECT_EQ(pickList,
              (QStringList{EntryText("Apple Crisp", 2), EntryText("Brownies", 3), EntryText("Zesty Lemon Bars", 1)}));
    ExpectFiles(folder,
                {lemonDoubled.savedBytes() + apple.savedBytes() + brownies.savedBytes(),
                 ExtraSlot("lemon.jpg") + ExtraSlot("apple.jpg") + ExtraSlot(""),
                 NameFile({Entry("Apple Crisp", 2), Entry("Brownies", 3), Entry("Zesty Lemon Bars", 1), " "})},
                "renamed");

    // Delete Brownies: its slot is cleared and stays in the file as a hole.
    pickList = ChooseType(1, kType);
    const int browniesIndex = 1;
    ASSERT_EQ(RecordNumberOf(pickList[browniesIndex]), 3);
    pickList = DeleteRecipe(1, kType, 3, pickList, browniesIndex).pickList;
    EXPECT_EQ(pickList, (QStringList{EntryText("Apple Crisp", 2), EntryText("Zesty Lemon Bars", 1)}));
    ExpectFiles(folder,
                {lemonDoubled.savedBytes() + apple.savedBytes() + ClearedSlot(),
                 ExtraSlot("lemon.jpg") + ExtraSlot("apple.jpg") + ExtraSlot(""),
                 NameFile({Entry("Apple Crisp", 2), Entry("Zesty Lemon Bars", 1), " ", " ", " "})},
                "deleted");

    // A new recipe goes into the hole; the files do not grow.
    currentNames = ChooseType(1, kType);
    const SavedNewRecipe refill = SaveNewRecipe(1, kType, "Fudge", fudge.fields, {}, currentNames);
    EXPECT_EQ(refill.recordNumber, 3);
    ExpectFiles(folder,
                {lemonDoubled.savedBytes() + apple.savedBytes() + fudge.savedBytes(),
                 ExtraSlot("lemon.jpg") + ExtraSlot("apple.jpg") + ExtraSlot(""),
                 NameFile({Entry("Apple Crisp", 2), Entry("Zesty Lemon Bars", 1), Entry("Fudge", 3), " ", " ", " "})},
                "hole filled");

    EXPECT_EQ(ChooseType(1, kType), (QStringList{EntryText("Apple Crisp", 2), EntryText("Fudge", 3),
                                                 EntryText("Zesty Lemon Bars", 1)}));
    // Nothing but the cookbook's two files and the type's name file was touched.
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files, QDir::Name),
              (QStringList{"Dessnfil.db1", "Recipe2.db1", "Recipe4.db1"}));
}

TEST(RecipeRoad, RecipeSavedInCookbookTwoLandsInItsOwnFiles)
{
    TempProgramFolder folder;
    WriteCurrentCookbook(1);
    const SavedNewRecipe inOne =
        SaveNewRecipe(ReadCurrentCookbook(), kType, "Lemon Bars", samples::LemonBars().fields, {}, {});
    ASSERT_EQ(inOne.recordNumber, 1);
    const QByteArray recipesOne = folder.bytesOf("Recipe2.db1");
    const QByteArray extrasOne = folder.bytesOf("Recipe4.db1");
    const QByteArray namesOne = folder.bytesOf("Dessnfil.db1");

    // Select cookbook 2; the screen reads the number back on loading.
    WriteCurrentCookbook(2);
    const int cookbook = ReadCurrentCookbook();
    ASSERT_EQ(cookbook, 2);
    EXPECT_TRUE(ChooseType(cookbook, kType).isEmpty());
    const SavedNewRecipe inTwo = SaveNewRecipe(cookbook, kType, "Fudge", samples::Fudge().fields, "fudge.jpg",
                                               ChooseType(cookbook, kType));

    // Cookbooks share nothing: the first slot of cookbook 2 is free.
    EXPECT_EQ(inTwo.recordNumber, 1);
    EXPECT_EQ(folder.bytesOf("Recipe2.db2"), samples::Fudge().savedBytes());
    EXPECT_EQ(folder.bytesOf("Recipe4.db2"), ExtraSlot("fudge.jpg"));
    EXPECT_EQ(folder.bytesOf("Dessnfil.db2"), NameFile({Entry("Fudge", 1)}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), recipesOne);
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), extrasOne);
    EXPECT_EQ(folder.bytesOf("Dessnfil.db1"), namesOne);

    // Types of one cookbook share its slots: a candy takes slot 2 of cookbook 2.
    const SavedNewRecipe candy = SaveNewRecipe(cookbook, RecipeType::Candies, "Peanut Brittle",
                                               samples::Brownies().fields, {}, ChooseType(cookbook, RecipeType::Candies));
    EXPECT_EQ(candy.recordNumber, 2);
    EXPECT_EQ(folder.bytesOf("Candnfil.db2"), NameFile({Entry("Peanut Brittle", 2)}));
    EXPECT_EQ(folder.bytesOf("Dessnfil.db2"), NameFile({Entry("Fudge", 1)}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db2"), samples::Fudge().savedBytes() + samples::Brownies().savedBytes());
}

} // namespace
