// The recipe screen's working state without its widgets: the cookbook, the
// type's lists, the recipe on the screen, and what save, delete and rename
// write and say.
#include "recipetools/logic/recipescreenmodel.h"

#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"
#include "raw_slots.h"
#include "temp_program_folder.h"

#include <gtest/gtest.h>

namespace {

const QString kStews = QStringLiteral("Stews");

RecipeFields Stew(const QString& amount)
{
    RecipeFields fields;
    fields.amounts[0] = amount;
    fields.units[0] = QStringLiteral("lbs.");
    fields.ingredients[0] = QStringLiteral("beef");
    fields.directions = QStringLiteral("Simmer.");
    fields.yieldAmount = QStringLiteral("4");
    fields.yieldType = QStringLiteral("Serving(s)");
    return fields;
}

struct ModelTest : ::testing::Test {
    ModelTest()
    {
        WriteSlotText(GColor4, 1, u" 1");
        model.loadCookbook();
    }

    // A new Stews recipe typed in Create and saved.
    SaveOutcome saveNew(const QString& name, const QString& amount = QStringLiteral("2"))
    {
        model.chooseType(kStews);
        model.setMode(RecipeMode::Create);
        model.amountWorkList()[0] = amount;
        model.markChanged();
        return model.save(Stew(amount), name, SaveRoad::Command);
    }

    void viewFirstStew()
    {
        model.readTypeLists();
        model.loadRecipe(RecordNumberOf(model.pickEntries().first()), 0);
    }

    TempProgramFolder folder;
    RecipeScreenModel model;
};

} // namespace

TEST_F(ModelTest, TheCookbookAndItsTitlesComeFromTheSettings)
{
    WriteSlotText(GColor4, 1, u" 3");
    WriteSlotText(GColor4, 4, u"Holidays");
    model.loadCookbook();
    EXPECT_EQ(model.cookbook(), 3);
    EXPECT_EQ(model.title(3), "Holidays");
    EXPECT_EQ(model.titles().size(), 8);
}

TEST_F(ModelTest, ANewRecipeWithoutANameIsRefusedAndNothingIsWritten)
{
    const SaveOutcome outcome = saveNew(QString());
    EXPECT_EQ(outcome.result, SaveOutcome::Result::Refused);
    ASSERT_TRUE(outcome.notice);
    EXPECT_EQ(*outcome.notice, (Message{"Save", "Please enter Recipe Name in order to save!", Buttons::Ok,
                                        Icon::Information, 1}));
    EXPECT_TRUE(model.state().recipeChanged) << "the typed recipe stays";
    EXPECT_FALSE(CookbookHasRecipes(1));
    EXPECT_TRUE(ReadNameList(1, RecipeType::Stews).isEmpty());
}

TEST_F(ModelTest, ANewRecipeTakesTheFirstFreeSlotAndJoinsTheCurrentNames)
{
    const SaveOutcome outcome = saveNew(QStringLiteral("Beef Stew"));
    EXPECT_EQ(outcome.result, SaveOutcome::Result::Saved);
    EXPECT_FALSE(model.state().recipeChanged);
    ASSERT_EQ(model.currentNames().size(), 1);
    EXPECT_EQ(RecordNumberOf(model.currentNames().first()), 1);
    EXPECT_EQ(ReadNameList(1, RecipeType::Stews), model.currentNames());
    EXPECT_EQ(ReadRecipe(1, 1).record.ingredients[0].text(), "beef");
}

TEST_F(ModelTest, ANewRecipeWithoutATypeWritesNothing)
{
    model.setMode(RecipeMode::Create);
    model.markChanged();
    const SaveOutcome outcome = model.save(Stew("1"), QStringLiteral("Beef Stew"), SaveRoad::Command);
    EXPECT_EQ(outcome.result, SaveOutcome::Result::NothingWritten);
    EXPECT_FALSE(CookbookHasRecipes(1));
}

TEST_F(ModelTest, LoadingARecipeKeepsItsDecimalsInTheWorkList)
{
    saveNew(QStringLiteral("Beef Stew"), QStringLiteral("1.5"));
    viewFirstStew();
    EXPECT_EQ(model.state().mode, RecipeMode::View);
    EXPECT_TRUE(model.state().recipeShown);
    EXPECT_EQ(model.recordNumber(), 1);
    EXPECT_EQ(model.listIndex(), 0);
    EXPECT_EQ(model.amountWorkList()[0], "1.5");
}

TEST_F(ModelTest, AModifiedRecipeGoesBackToItsSlotAndTheNameFileStays)
{
    saveNew(QStringLiteral("Beef Stew"));
    viewFirstStew();
    const QStringList names = ReadNameList(1, RecipeType::Stews);
    model.setMode(RecipeMode::Modify);
    model.amountWorkList()[0] = QStringLiteral("3");
    model.markChanged();
    EXPECT_EQ(model.save(Stew("9"), QString(), SaveRoad::Command).result, SaveOutcome::Result::Saved);
    EXPECT_EQ(ReadRecipe(1, 1).record.amounts[0].text(), "3") << "the work list, not the box, is saved";
    EXPECT_EQ(FindFreeSlot(1), 2);
    EXPECT_EQ(ReadNameList(1, RecipeType::Stews), names);
}

TEST_F(ModelTest, TheRenamesSaveQuestionWritesTheRecordAlone)
{
    saveNew(QStringLiteral("Beef Stew"));
    viewFirstStew();
    model.amountWorkList()[0] = QStringLiteral("6");
    model.setAmountsRecalculated(true);
    EXPECT_EQ(model.save(Stew("6"), QString(), SaveRoad::RecordOnly).result, SaveOutcome::Result::Saved);
    EXPECT_EQ(ReadRecipe(1, 1).record.amounts[0].text(), "6");
    EXPECT_EQ(model.state().mode, RecipeMode::View);
}

TEST_F(ModelTest, RenameRefusesAnEmptyNameAndRebuildsTheListOtherwise)
{
    saveNew(QStringLiteral("Beef Stew"));
    saveNew(QStringLiteral("Lamb Stew"));
    viewFirstStew();
    const RenameOutcome refused = model.rename(QString());
    EXPECT_FALSE(refused.renamed);
    ASSERT_TRUE(refused.notice);
    EXPECT_EQ(refused.notice->title, "Recipe Name Change");
    EXPECT_EQ(refused.notice->text, "No Change Recipe Name has been entered!");

    EXPECT_TRUE(model.rename(QStringLiteral("Zesty Stew")).renamed);
    ASSERT_EQ(model.pickEntries().size(), 2);
    EXPECT_EQ(RecipeNameOf(model.pickEntries()[0]), "Lamb Stew");
    EXPECT_EQ(RecipeNameOf(model.pickEntries()[1]), "Zesty Stew");
    EXPECT_EQ(RecordNumberOf(model.pickEntries()[1]), 1) << "the same slot under its new name";
    EXPECT_EQ(model.currentNames(), model.pickEntries());
    EXPECT_EQ(ReadNameList(1, RecipeType::Stews).size(), 2);
}

TEST_F(ModelTest, DeleteClearsTheSlotAndLeavesNothingOfTheRecipe)
{
    saveNew(QStringLiteral("Beef Stew"));
    viewFirstStew();
    model.deleteRecipe();
    EXPECT_FALSE(ReadRecipe(1, 1).record.isUsed());
    EXPECT_TRUE(model.pickEntries().isEmpty());
    EXPECT_EQ(model.state().mode, RecipeMode::Idle);
    EXPECT_FALSE(model.state().recipeShown);
    EXPECT_EQ(model.amountWorkList()[0], "");
    EXPECT_FALSE(model.typeHasNoNameSlots()) << "a name file of blanks is not empty";
}

TEST_F(ModelTest, AnotherCookbookForgetsTheTypeTheListsAndTheRecipe)
{
    saveNew(QStringLiteral("Beef Stew"));
    viewFirstStew();
    model.selectCookbook(2);
    EXPECT_EQ(model.cookbook(), 2);
    EXPECT_EQ(ReadSlotText(GColor4, 1), " 2");
    EXPECT_TRUE(model.pickEntries().isEmpty());
    EXPECT_TRUE(model.currentNames().isEmpty());
    EXPECT_FALSE(model.type());
    EXPECT_TRUE(model.currentTypeName().isEmpty());
    EXPECT_EQ(model.state().mode, RecipeMode::Idle);
    EXPECT_FALSE(model.hasUnsavedWork());
}

TEST_F(ModelTest, TheListsAreSortedAndAnEntryIsFoundByItsText)
{
    saveNew(QStringLiteral("zucchini stew"));
    saveNew(QStringLiteral("Beef Stew"));
    model.readTypeLists();
    ASSERT_EQ(model.pickEntries().size(), 2);
    EXPECT_EQ(RecipeNameOf(model.pickEntries()[0]), "Beef Stew");
    EXPECT_EQ(model.indexOfEntryHolding(QStringLiteral("zucchini")), 1);
    EXPECT_EQ(model.indexOfEntryHolding(QStringLiteral("Goulash")), -1);
    model.chooseType(QStringLiteral("Soups and sauces"));
    EXPECT_TRUE(model.typeHasNoNameSlots());
    model.chooseType(QStringLiteral("Not a type"));
    EXPECT_FALSE(model.type());
}
