// Saving, deleting and renaming recipes, checked against the bytes the
// record layouts give: recipe slots of 2045 bytes, extra slots of 250, name
// slots of 60.
#include "recipetools/logic/recipelifecycle.h"

#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/amountformat.h"

#include "cookbook_files.h"
#include "recipe_samples.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

using layout::Entry;
using layout::EntryText;
using layout::ExtraSlot;
using layout::NameFile;
using samples::ClearedSlot;

constexpr RecipeType kType = RecipeType::Desserts;
const char* const kNameFile = "Dessnfil.db1";

QString Blanks(int count)
{
    return QString(count, u' ');
}

// --- BuildRecipeRecord and FieldsOfRecord ---------------------------------

TEST(BuildRecipeRecord, BytesFollowTheLayout)
{
    const samples::Sample lemon = samples::LemonBars();
    EXPECT_EQ(BuildRecipeRecord(lemon.fields).toBytes(), lemon.savedBytes());
}

TEST(BuildRecipeRecord, EveryRowOfAFullRecipeFollowsTheLayout)
{
    const samples::Sample full = samples::FullRecipe();
    EXPECT_EQ(BuildRecipeRecord(full.fields).toBytes(), full.savedBytes());
}

TEST(BuildRecipeRecord, EmptyFieldsGiveABlankUsedRecord)
{
    EXPECT_EQ(BuildRecipeRecord(RecipeFields{}).toBytes(), QByteArray(2040, ' ') + "Full1");
}

TEST(BuildRecipeRecord, FieldsAreCutToTheirWidths)
{
    RecipeFields fields;
    fields.amounts[0] = "1.3333";              // the box takes 7, the record 5
    fields.units[0] = "tablespoons";           // 11 into 10
    fields.ingredients[19] = QString(40, u'i'); // 40 into 35
    fields.directions = QString(1005, u'd');
    fields.ovenTemperature = "12345";
    fields.cookingTime = QString(25, u't');
    fields.yieldAmount = "123456";
    fields.yieldType = "Casserole(s)";

    layout::Recipe expected;
    expected.amounts[0] = "1.333";
    expected.amountTypes[0] = "tablespoon";
    expected.ingredients[19] = QByteArray(35, 'i');
    expected.directions = QByteArray(1000, 'd');
    expected.ovenTemperature = "1234";
    expected.cookingTime = QByteArray(20, 't');
    expected.yieldAmount = "12345";
    expected.yieldType = "Casserole(s";
    expected.slotMark = "Full1";
    EXPECT_EQ(BuildRecipeRecord(fields).toBytes(), layout::RecipeSlot(expected));
}

TEST(BuildRecipeRecord, CasseroleIsSavedAndViewedAgainAsCasseroleWithoutItsLastLetter)
{
    TempProgramFolder folder;
    RecipeFields fields = samples::LemonBars().fields;
    fields.yieldType = "Casserole(s)";
    ASSERT_TRUE(SaveExistingRecipe(1, 1, fields, {}));

    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(2029, 11), "Casserole(s");
    EXPECT_EQ(FieldsOfRecord(ReadRecipe(1, 1).record).yieldType, "Casserole(s");
}

TEST(BuildRecipeRecord, AccentedLettersAreOneByteEach)
{
    RecipeFields fields;
    fields.ingredients[0] = QString::fromUtf8("crème fraîche");
    const QByteArray bytes = BuildRecipeRecord(fields).toBytes();
    EXPECT_EQ(bytes.mid(1304, 35), layout::Padded("cr\xe8me fra\xee" "che", 35));
}

TEST(FieldsOfRecord, RoundTripsTheScreensFields)
{
    for (const samples::Sample& sample :
         {samples::LemonBars(), samples::AppleCrisp(), samples::Brownies(), samples::Fudge(), samples::FullRecipe()}) {
        EXPECT_EQ(FieldsOfRecord(BuildRecipeRecord(sample.fields)), sample.fields);
    }
}

TEST(FieldsOfRecord, TrailingBlanksGoLeadingBlanksStay)
{
    layout::Recipe slot;
    slot.amounts[3] = " 1.5";
    slot.directions = "Stir.\r\n   ";
    slot.ingredients[3] = "  salt   ";
    slot.yieldType = "Dozen";
    slot.slotMark = "Full1";
    const RecipeFields fields = FieldsOfRecord(RecipeRecord::FromBytes(layout::RecipeSlot(slot)));
    EXPECT_EQ(fields.amounts[3], " 1.5");
    EXPECT_EQ(fields.directions, "Stir.\r\n");
    EXPECT_EQ(fields.ingredients[3], "  salt");
    EXPECT_EQ(fields.yieldType, "Dozen");
    EXPECT_EQ(fields.units[3], "");
}

TEST(FieldsOfRecord, SlotPastTheEndGivesEmptyFields)
{
    TempProgramFolder folder;
    EXPECT_EQ(FieldsOfRecord(ReadRecipe(1, 7).record), RecipeFields{});
    EXPECT_EQ(FieldsOfRecord(RecipeRecord::Cleared()), RecipeFields{});
}

// --- SortEntries -----------------------------------------------------------

TEST(SortEntries, CaseBlindByTheWholeEntry)
{
    QStringList entries = {EntryText("banana bread", 4), EntryText("Apple Pie", 2), EntryText("cherry cobbler", 1),
                           EntryText("Pie Crust", 7), EntryText("Pie", 9), EntryText("Zucchini Loaf", 3)};
    SortEntries(entries);
    EXPECT_EQ(entries, (QStringList{EntryText("Apple Pie", 2), EntryText("banana bread", 4),
                                    EntryText("cherry cobbler", 1), EntryText("Pie", 9), EntryText("Pie Crust", 7),
                                    EntryText("Zucchini Loaf", 3)}));
}

TEST(SortEntries, EntriesEqualButForCaseKeepTheirOrder)
{
    QStringList entries = {EntryText("PIE", 4), EntryText("cake", 1), EntryText("pie", 4), EntryText("Pie", 4)};
    SortEntries(entries);
    EXPECT_EQ(entries, (QStringList{EntryText("cake", 1), EntryText("PIE", 4), EntryText("pie", 4),
                                    EntryText("Pie", 4)}));
}

TEST(SortEntries, SameNameSortsByTheNumberAsText)
{
    QStringList entries = {EntryText("Stew", 9), EntryText("Stew", 10), EntryText("Stew", 100)};
    SortEntries(entries);
    EXPECT_EQ(entries, (QStringList{EntryText("Stew", 10), EntryText("Stew", 100), EntryText("Stew", 9)}));
}

// --- SaveNewRecipe ---------------------------------------------------------

TEST(SaveNewRecipe, NewRecipeInAnEmptyCookbookGoesToSlotOne)
{
    TempProgramFolder folder;
    const samples::Sample lemon = samples::LemonBars();
    const SavedNewRecipe saved = SaveNewRecipe(1, kType, "Lemon Bars", lemon.fields, "bars.jpg", {});

    EXPECT_EQ(saved.recordNumber, 1);
    EXPECT_EQ(saved.entry, EntryText("Lemon Bars", 1));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), lemon.savedBytes());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), ExtraSlot("bars.jpg"));
    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({Entry("Lemon Bars", 1)}));
}

TEST(SaveNewRecipe, SaveInCreateModeWithABlankNameWritesNothing)
{
    {
        TempProgramFolder folder;
        const SavedNewRecipe saved = SaveNewRecipe(1, kType, "", samples::LemonBars().fields, {}, {});
        EXPECT_EQ(saved.recordNumber, 0);
        EXPECT_TRUE(saved.entry.isEmpty());
        EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files).isEmpty());
    }
    {
        TempProgramFolder folder;
        const SavedNewRecipe first = SaveNewRecipe(1, kType, "Apple Crisp", samples::AppleCrisp().fields, {}, {});
        ASSERT_EQ(first.recordNumber, 1);
        const QByteArray recipes = folder.bytesOf("Recipe2.db1");
        const QByteArray extras = folder.bytesOf("Recipe4.db1");
        const QByteArray names = folder.bytesOf(kNameFile);

        const SavedNewRecipe saved =
            SaveNewRecipe(1, kType, "", samples::LemonBars().fields, "bars.jpg", {first.entry});

        EXPECT_EQ(saved.recordNumber, 0);
        EXPECT_EQ(folder.bytesOf("Recipe2.db1"), recipes);
        EXPECT_EQ(folder.bytesOf("Recipe4.db1"), extras);
        EXPECT_EQ(folder.bytesOf(kNameFile), names);
    }
}

TEST(SaveNewRecipe, FortyCharacterNameGivesAnEntryWithTwelveBlanksBeforeTheNumber)
{
    TempProgramFolder folder;
    const QString name = "Grandmother's Famous Lemon Coconut Bars!";
    ASSERT_EQ(name.size(), 40);
    const SavedNewRecipe saved = SaveNewRecipe(1, kType, name, samples::LemonBars().fields, {}, {});

    EXPECT_EQ(saved.entry, name + Blanks(12) + "1");
    EXPECT_EQ(folder.bytesOf(kNameFile), layout::U16(53) + name.toLatin1() + QByteArray(12, ' ') + "1" + layout::Zeros(5));
    EXPECT_EQ(RecordNumberOf(ReadNameList(1, kType).value(0)), 1);
    EXPECT_EQ(RecipeNameOf(ReadNameList(1, kType).value(0)), name);
}

TEST(SaveNewRecipe, NameIsCutTo41AndLosesItsTrailingBlanks)
{
    TempProgramFolder folder;
    const QString fortyFive = "Chocolate Peanut Butter No Bake Oatmeal Drops";
    ASSERT_EQ(fortyFive.size(), 45);
    const SavedNewRecipe first = SaveNewRecipe(1, kType, fortyFive, samples::Fudge().fields, {}, {});
    EXPECT_EQ(first.entry, fortyFive.left(41) + Blanks(11) + "1");

    const SavedNewRecipe second = SaveNewRecipe(1, kType, "Fudge   ", samples::Fudge().fields, {}, {first.entry});
    EXPECT_EQ(second.entry, "Fudge" + Blanks(47) + "2");

    // Blanks that end up last after the cut go too.
    const QString cutAtBlank = QString(40, u'x') + "  tail";
    const SavedNewRecipe third =
        SaveNewRecipe(1, kType, cutAtBlank, samples::Fudge().fields, {}, {first.entry, second.entry});
    EXPECT_EQ(third.entry, QString(40, u'x') + Blanks(12) + "3");

    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({Entry(fortyFive.left(41).toLatin1(), 1), Entry("Fudge", 2),
                                                   Entry(QByteArray(40, 'x'), 3)}));
}

TEST(SaveNewRecipe, TakesTheLowestFreeSlot)
{
    TempProgramFolder folder;
    const samples::Sample apple = samples::AppleCrisp();
    const samples::Sample brownies = samples::Brownies();
    folder.writeBytes("Recipe2.db1", apple.savedBytes() + ClearedSlot() + brownies.savedBytes());

    const SavedNewRecipe saved = SaveNewRecipe(1, kType, "Lemon Bars", samples::LemonBars().fields, {}, {});

    EXPECT_EQ(saved.recordNumber, 2);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"),
              apple.savedBytes() + samples::LemonBars().savedBytes() + brownies.savedBytes());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), layout::Zeros(250) + ExtraSlot(""));
}

TEST(SaveNewRecipe, NameFileGetsTheCurrentNamesInTheirOrderAndTheNewEntryLast)
{
    TempProgramFolder folder;
    // The file's order has no meaning; what the list holds is written.
    folder.writeBytes(kNameFile, NameFile({Entry("Zabaglione", 4), " ", Entry("Apple Crisp", 2), Entry("Mousse", 3)}));
    const QStringList currentNames = {EntryText("Apple Crisp", 2), EntryText("Mousse", 3), EntryText("Zabaglione", 4)};

    const SavedNewRecipe saved =
        SaveNewRecipe(1, kType, "Brownies", samples::Brownies().fields, {}, currentNames);

    ASSERT_EQ(saved.recordNumber, 1);
    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({Entry("Apple Crisp", 2), Entry("Mousse", 3), Entry("Zabaglione", 4),
                                                   Entry("Brownies", 1), " "}));
}

TEST(SaveNewRecipe, TwoRecipesOfTheSameNameAreBothKept)
{
    TempProgramFolder folder;
    const SavedNewRecipe first = SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, {}, {});
    const SavedNewRecipe second = SaveNewRecipe(1, kType, "Fudge", samples::Brownies().fields, {}, {first.entry});
    EXPECT_EQ(first.recordNumber, 1);
    EXPECT_EQ(second.recordNumber, 2);
    EXPECT_EQ(ReadNameList(1, kType), (QStringList{EntryText("Fudge", 1), EntryText("Fudge", 2)}));
}

// A path that cannot be stored would be lost without a word: the save stops
// there, says which file, and leaves no recipe listed or used.
TEST(SaveNewRecipe, PictureOver246CharactersStopsTheSaveAndNamesTheExtraFile)
{
    TempProgramFolder folder;
    const SavedNewRecipe saved =
        SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, QString(247, u'p'), {});
    EXPECT_EQ(saved.recordNumber, 0);
    EXPECT_TRUE(saved.entry.isEmpty());
    EXPECT_TRUE(saved.outcome.failedFile.endsWith(QStringLiteral("Recipe4.db1")));
    EXPECT_FALSE(CookbookHasRecipes(1));
    EXPECT_TRUE(ReadNameList(1, kType).isEmpty());
    EXPECT_EQ(FindFreeSlot(1), 1);
}

// --- SaveExistingRecipe ----------------------------------------------------

TEST(SaveExistingRecipe, SaveAfterTheCalculatorOnAViewedRecipeOverwritesItsSlotAndLeavesTheNameFileUnchanged)
{
    TempProgramFolder folder;
    const SavedNewRecipe apple = SaveNewRecipe(1, kType, "Apple Crisp", samples::AppleCrisp().fields, "apple.jpg", {});
    const SavedNewRecipe lemon =
        SaveNewRecipe(1, kType, "Lemon Bars", samples::LemonBars().fields, "bars.jpg", {apple.entry});
    const SavedNewRecipe fudge =
        SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, {}, {apple.entry, lemon.entry});
    ASSERT_EQ(lemon.recordNumber, 2);
    const QByteArray namesBefore = folder.bytesOf(kNameFile);

    // Viewing the recipe, the calculator doubles the yield; the screen holds
    // the new decimals in its work list and saves them at the recipe's slot.
    const StoredRecipe viewed = ReadRecipe(1, lemon.recordNumber);
    ASSERT_EQ(FieldsOfRecord(viewed.record), samples::LemonBars().fields);
    ASSERT_TRUE(SaveExistingRecipe(1, lemon.recordNumber, samples::LemonBarsDoubled().fields, viewed.picturePath));

    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), samples::AppleCrisp().savedBytes()
                                                 + samples::LemonBarsDoubled().savedBytes()
                                                 + samples::Fudge().savedBytes());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), ExtraSlot("apple.jpg") + ExtraSlot("bars.jpg") + ExtraSlot(""));
    EXPECT_EQ(folder.bytesOf(kNameFile), namesBefore);
    EXPECT_EQ(ReadNameList(1, kType), (QStringList{apple.entry, lemon.entry, fudge.entry}));
}

TEST(SaveExistingRecipe, ModifyShowsPoint33WhereViewShowedOneThirdAndSavingKeepsPoint33)
{
    TempProgramFolder folder;
    const SavedNewRecipe lemon = SaveNewRecipe(1, kType, "Lemon Bars", samples::LemonBars().fields, {}, {});

    // View shows the fraction; Modify shows the decimal of the work list.
    const RecipeFields viewed = FieldsOfRecord(ReadRecipe(1, lemon.recordNumber).record);
    EXPECT_EQ(FormatAmount(viewed.amounts[11]), "1/3");
    EXPECT_EQ(viewed.amounts[11], ".33");

    RecipeFields modified = viewed;
    modified.ingredients[11] = "fresh lemon juice";
    ASSERT_TRUE(SaveExistingRecipe(1, lemon.recordNumber, modified, {}));

    const QByteArray slot = folder.bytesOf("Recipe2.db1");
    EXPECT_EQ(slot.mid(11 * 5, 5), ".33  ");
    EXPECT_EQ(slot.mid(1304 + 11 * 35, 35), layout::Padded("fresh lemon juice", 35));
    EXPECT_EQ(FieldsOfRecord(ReadRecipe(1, lemon.recordNumber).record).amounts[11], ".33");
}

TEST(SaveExistingRecipe, WritesOnlyItsOwnSlotsEvenPastTheEnd)
{
    TempProgramFolder folder;
    ASSERT_TRUE(SaveExistingRecipe(1, 3, samples::Fudge().fields, "fudge.png"));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), layout::Zeros(2 * 2045) + samples::Fudge().savedBytes());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), layout::Zeros(2 * 250) + ExtraSlot("fudge.png"));
    EXPECT_FALSE(QFile::exists(folder.filePath(kNameFile)));
}

TEST(SaveExistingRecipe, RecordNumberZeroWritesNothing)
{
    TempProgramFolder folder;
    EXPECT_FALSE(SaveExistingRecipe(1, 0, samples::Fudge().fields, {}));
    EXPECT_TRUE(folder.bytesOf("Recipe2.db1").isEmpty());
    EXPECT_TRUE(folder.bytesOf("Recipe4.db1").isEmpty());
}

// --- DeleteRecipe ----------------------------------------------------------

TEST(DeleteRecipe, ClearsTheSlotAndRebuildsTheNameFileWithoutTheEntry)
{
    TempProgramFolder folder;
    const SavedNewRecipe apple = SaveNewRecipe(1, kType, "Apple Crisp", samples::AppleCrisp().fields, "a.jpg", {});
    const SavedNewRecipe brownies =
        SaveNewRecipe(1, kType, "Brownies", samples::Brownies().fields, "b.jpg", {apple.entry});
    const SavedNewRecipe fudge =
        SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, "f.jpg", {apple.entry, brownies.entry});
    const QStringList pickList = {apple.entry, brownies.entry, fudge.entry};

    const QStringList after = DeleteRecipe(1, kType, brownies.recordNumber, pickList, 1).pickList;

    EXPECT_EQ(after, (QStringList{apple.entry, fudge.entry}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"),
              samples::AppleCrisp().savedBytes() + ClearedSlot() + samples::Fudge().savedBytes());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), ExtraSlot("a.jpg") + ExtraSlot("") + ExtraSlot("f.jpg"));
    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({Entry("Apple Crisp", 1), Entry("Fudge", 3), " ", " "}));
}

TEST(DeleteRecipe, DeleteTheLastRecipeOfATypeLeavesBlanksOnly)
{
    TempProgramFolder folder;
    const SavedNewRecipe fudge = SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, {}, {});
    ASSERT_EQ(folder.bytesOf(kNameFile), NameFile({Entry("Fudge", 1)}));

    const QStringList after = DeleteRecipe(1, kType, fudge.recordNumber, {fudge.entry}, 0).pickList;

    EXPECT_TRUE(after.isEmpty());
    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({" ", " "}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), ClearedSlot());
    // Viewing the type: empty lists, and no "No Recipes" message because the
    // first slot's text is a blank, not empty.
    EXPECT_TRUE(ReadNameList(1, kType).isEmpty());
    EXPECT_EQ(ReadNameSlot(1, kType, 1), " ");
}

TEST(DeleteRecipe, IndexOutsideTheListRemovesNothingButStillRebuilds)
{
    TempProgramFolder folder;
    const SavedNewRecipe fudge = SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, {}, {});
    const QStringList after = DeleteRecipe(1, kType, fudge.recordNumber, {fudge.entry}, 5).pickList;
    EXPECT_EQ(after, QStringList{fudge.entry});
    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({Entry("Fudge", 1), " "}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), ClearedSlot());
}

TEST(DeleteRecipe, DeletedSlotIsTakenByTheNextNewRecipe)
{
    TempProgramFolder folder;
    QStringList names;
    for (int i = 1; i <= 9; ++i)
        names << SaveNewRecipe(1, kType, QString("Dessert %1").arg(i), samples::Fudge().fields, {}, names).entry;
    const QByteArray before = folder.bytesOf("Recipe2.db1");

    names = DeleteRecipe(1, kType, 5, names, 4).pickList;
    const SavedNewRecipe saved = SaveNewRecipe(1, kType, "Lemon Bars", samples::LemonBars().fields, {}, names);

    EXPECT_EQ(saved.recordNumber, 5);
    const QByteArray after = folder.bytesOf("Recipe2.db1");
    EXPECT_EQ(after.left(4 * 2045), before.left(4 * 2045));
    EXPECT_EQ(after.mid(4 * 2045, 2045), samples::LemonBars().savedBytes());
    EXPECT_EQ(after.mid(5 * 2045), before.mid(5 * 2045));
}

// --- RenameRecipe ----------------------------------------------------------

TEST(RenameRecipe, ReplacesTheEntryKeepsTheNumberAndSorts)
{
    TempProgramFolder folder;
    const SavedNewRecipe apple = SaveNewRecipe(1, kType, "Apple Crisp", samples::AppleCrisp().fields, {}, {});
    const SavedNewRecipe brownies = SaveNewRecipe(1, kType, "Brownies", samples::Brownies().fields, {}, {apple.entry});
    const SavedNewRecipe fudge =
        SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, {}, {apple.entry, brownies.entry});
    const QByteArray recipes = folder.bytesOf("Recipe2.db1");
    const QByteArray extras = folder.bytesOf("Recipe4.db1");

    const QStringList after =
        RenameRecipe(1, kType, apple.recordNumber, {apple.entry, brownies.entry, fudge.entry}, 0, "caramel apples").pickList;

    EXPECT_EQ(after, (QStringList{brownies.entry, EntryText("caramel apples", 1), fudge.entry}));
    EXPECT_EQ(folder.bytesOf(kNameFile),
              NameFile({Entry("Brownies", 2), Entry("caramel apples", 1), Entry("Fudge", 3), " "}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), recipes);
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), extras);
}

TEST(RenameRecipe, NewNameIsCutTo41AndLosesItsTrailingBlanks)
{
    TempProgramFolder folder;
    const QString longName = "Old Fashioned Buttermilk Chocolate Sheet Cake";
    const QStringList after = RenameRecipe(1, kType, 12, {EntryText("Cake", 12)}, 0, longName).pickList;
    EXPECT_EQ(after, QStringList{longName.left(41) + Blanks(11) + "12"});

    const QStringList again = RenameRecipe(1, kType, 12, after, 0, "Sheet Cake    ").pickList;
    EXPECT_EQ(again, QStringList{"Sheet Cake" + Blanks(42) + "12"});
    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({Entry("Sheet Cake", 12), " "}));
}

TEST(RenameRecipe, EmptyPickListPutsTheEntryInSlotOne)
{
    TempProgramFolder folder;
    const QStringList after = RenameRecipe(1, kType, 4, {}, 0, "Mousse").pickList;
    EXPECT_EQ(after, QStringList{EntryText("Mousse", 4)});
    EXPECT_EQ(folder.bytesOf(kNameFile), NameFile({Entry("Mousse", 4)}));
}

TEST(RenameRecipe, EmptyNewNameChangesNothing)
{
    TempProgramFolder folder;
    const SavedNewRecipe fudge = SaveNewRecipe(1, kType, "Fudge", samples::Fudge().fields, {}, {});
    const QByteArray names = folder.bytesOf(kNameFile);
    EXPECT_EQ(RenameRecipe(1, kType, fudge.recordNumber, {fudge.entry}, 0, "").pickList, QStringList{fudge.entry});
    EXPECT_EQ(folder.bytesOf(kNameFile), names);
}

} // namespace
