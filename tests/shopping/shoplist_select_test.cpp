// The shopping list's select panels on a small cookbook: Recipe Select with
// its types, recipes, ingredient boxes, add commands and cookbook, and Quick
// Select with its 90 groceries.
#include "shoplist_select_fixture.h"

#include "shopping/logic/groceryentry.h"
#include "shopping/logic/quickselect.h"
#include "shopping/screens/amountpanel.h"

#include <QGroupBox>
#include <QLabel>
#include <QMenu>

namespace {

const char* const kOffWhileSelecting[] = {"mNewList", "mOpenList", "mDeleteList", "mPrintOptions", "mSave",
                                          "mClearGrid", "mGridBackground", "mGridTextColor", "mPanelColor",
                                          "mWorksheet", "mDeleteItem"};

} // namespace

TEST_F(ShoplistSelectTest, RecipeSelectOpensWithTheTypesTheStatusAndTheTick)
{
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mRecipeSelect")->trigger();
    RecipeSelectPanel* panel = recipePanel(*form);
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->captionLabel()->text(), "Recipe Select Screen");
    EXPECT_EQ(form->openPanel(), ShoplistPanel::RecipeSelect);
    EXPECT_EQ(status(*form), "     Recipe Select from Cookbook #1 - Family Favorites");
    EXPECT_TRUE(act(*form, "mRecipeSelect")->isChecked());
    QStringList types;
    for (int i = 0; i < panel->typeList()->count(); ++i)
        types.append(panel->typeList()->itemText(i));
    EXPECT_EQ(types, RecipeTypeNames());
    EXPECT_EQ(types.size(), 22);
    for (const char* off : kOffWhileSelecting)
        EXPECT_FALSE(act(*form, off)->isEnabled()) << off;
    EXPECT_FALSE(act(*form, "mQuickSelect")->isEnabled());
    EXPECT_TRUE(form->findChild<QMenu*>("mSelectCookbook")->isEnabled());
    EXPECT_TRUE(act(*form, "mRecipeSelect")->isEnabled());
    EXPECT_FALSE(panel->command(RecipeSelectPanel::kSelectAll)->isEnabled());
    EXPECT_FALSE(panel->command(RecipeSelectPanel::kAddNames)->isEnabled());
    EXPECT_TRUE(panel->command(RecipeSelectPanel::kLeave)->hasFocus());
    EXPECT_EQ(panel->command(0)->text(), "E&xit and Add All Checked Selections to Item Grid");
    EXPECT_EQ(panel->command(1)->text(), "E&xit and Add All Checked Selections And Amount Needed to Item Grid");
    EXPECT_EQ(panel->command(2)->text(), "E&xit Without Adding Checked Selections to Item Grid");
    EXPECT_EQ(panel->command(3)->text(), "Select All Ingredients");
}

TEST_F(ShoplistSelectTest, PressingRecipeSelectAgainClosesItAndGivesTheCommandsBack)
{
    auto form = open();
    button(*form, "Command1_5")->click();
    ASSERT_TRUE(recipePanel(*form)->isVisible());
    button(*form, "Command1_5")->click();
    EXPECT_FALSE(recipePanel(*form)->isVisible());
    EXPECT_FALSE(act(*form, "mRecipeSelect")->isChecked());
    EXPECT_EQ(status(*form), "Shopping List Maker");
    for (const char* on : {"mNewList", "mOpenList", "mQuickSelect", "mPrintOptions", "mPanelColor"})
        EXPECT_TRUE(act(*form, on)->isEnabled()) << on;
    EXPECT_FALSE(act(*form, "mSave")->isEnabled()) << "Save comes back only where it was on";
    EXPECT_FALSE(form->findChild<QMenu*>("mSelectCookbook")->isEnabled());
}

TEST_F(ShoplistSelectTest, ATypeWithoutRecipesTellsThatNoneWereFound)
{
    auto form = open();
    act(*form, "mRecipeSelect")->trigger();
    dialogs.expectMessage("Type Select", "No Breads were found in Cookbook #1 - Family Favorites");
    choose(recipePanel(*form)->typeList(), "Breads");
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_EQ(recipePanel(*form)->recipeList()->count(), 0);
}

TEST_F(ShoplistSelectTest, TheRecipeListBeforeATypeAsksForTheTypeFirst)
{
    auto form = open();
    act(*form, "mRecipeSelect")->trigger();
    dialogs.expectMessage("Recipe Select", "First Select Recipe Type!");
    QTest::mousePress(recipePanel(*form)->recipeList(), Qt::LeftButton);
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    recipePanel(*form)->typeList()->hidePopup();
}

TEST_F(ShoplistSelectTest, ARecipesIngredientsAreBoxesWithNameAmountAndUnitWithoutGaps)
{
    auto form = open();
    act(*form, "mRecipeSelect")->trigger();
    choose(recipePanel(*form)->typeList(), "Desserts");
    QStringList recipes;
    for (int i = 0; i < recipePanel(*form)->recipeList()->count(); ++i)
        recipes.append(recipePanel(*form)->recipeList()->itemText(i));
    EXPECT_EQ(recipes, QStringList({"Apple Crisp", "Broken Entry", "Lemon Bars"}));
    choose(recipePanel(*form)->recipeList(), "Lemon Bars");
    RecipeSelectPanel* panel = recipePanel(*form);
    EXPECT_EQ(panel->shownCaptions(), LemonBarsCaptions());
    for (int box = 0; box < 20; ++box) {
        EXPECT_EQ(panel->choice(box)->isVisible(), box < 6) << box;
        EXPECT_FALSE(panel->choice(box)->isChecked()) << box;
    }
    EXPECT_EQ(panel->choice(0)->font().family(), "New Times Roman");
    EXPECT_TRUE(panel->heading()->isVisible());
    EXPECT_EQ(panel->heading()->text(), "Ingredients => Amount Needed:");
    EXPECT_TRUE(panel->command(RecipeSelectPanel::kSelectAll)->isEnabled());
    EXPECT_FALSE(panel->command(RecipeSelectPanel::kAddNamesAndAmounts)->isEnabled());
    EXPECT_TRUE(panel->command(RecipeSelectPanel::kLeave)->hasFocus());
}

TEST_F(ShoplistSelectTest, AnEntryWhoseSlotNumberIs0DoesNothing)
{
    auto form = open();
    showRecipe(*form, "Desserts", "Lemon Bars");
    choose(recipePanel(*form)->recipeList(), "Broken Entry");
    EXPECT_EQ(recipePanel(*form)->shownCaptions(), LemonBarsCaptions()) << "the boxes stay as they were";
}

TEST_F(ShoplistSelectTest, SelectAllThenAddNamesAndAmountsAppendsEveryBoxAndClosesThePanel)
{
    auto form = open();
    addItem(*form, "Milk");
    showRecipe(*form, "Desserts", "Lemon Bars");
    RecipeSelectPanel* panel = recipePanel(*form);
    panel->command(RecipeSelectPanel::kSelectAll)->click();
    for (int box = 0; box < 6; ++box)
        EXPECT_TRUE(panel->choice(box)->isChecked()) << box;
    ASSERT_TRUE(panel->command(RecipeSelectPanel::kAddNamesAndAmounts)->isEnabled());
    panel->command(RecipeSelectPanel::kAddNamesAndAmounts)->click();
    EXPECT_EQ(form->list().entryList(),
              QStringList({"Milk", MakeGroceryEntry(u"Sugar", u"1/4 Cup"), MakeGroceryEntry(u"Flour", u"2  Cups"),
                           MakeGroceryEntry(u"Butter", u"1  Pound"), "Milk  Cup",
                           MakeGroceryEntry(u"(optional) nuts", u"2"), MakeGroceryEntry(u"Salt", u"1 1/8 tsp.")}));
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(form->openPanel(), ShoplistPanel::None);
    EXPECT_TRUE(form->list().dirty());
    EXPECT_EQ(cell(*form, 2, 0), "  Sugar");
    EXPECT_EQ(cell(*form, 2, 1), "1/4 Cup");
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    EXPECT_EQ(panel->recipeList()->count(), 0) << "the panel is reset";
    for (int box = 0; box < 20; ++box)
        EXPECT_TRUE(panel->choice(box)->isHidden() && !panel->choice(box)->isChecked()) << box;
}

TEST_F(ShoplistSelectTest, ASelectPanelOpensOnTheItemBoxesNotOnAnAmountBeingEntered)
{
    auto form = open();
    addItem(*form, "Milk");
    clickCell(*form, 1, 1);
    ASSERT_TRUE(form->amountPanel()->isVisible());
    showRecipe(*form, "Desserts", "Lemon Bars");
    recipePanel(*form)->command(RecipeSelectPanel::kLeave)->click();
    EXPECT_FALSE(form->amountPanel()->isVisible());
    EXPECT_TRUE(itemBox(*form)->isVisible());
}

TEST_F(ShoplistSelectTest, CheckedBoxesAddTheirNamesOnly)
{
    auto form = open();
    showRecipe(*form, "Desserts", "Lemon Bars");
    RecipeSelectPanel* panel = recipePanel(*form);
    panel->choice(1)->click();
    EXPECT_TRUE(panel->command(RecipeSelectPanel::kAddNames)->isEnabled());
    panel->choice(3)->click();
    panel->choice(1)->click();
    panel->choice(1)->click();
    panel->choice(3)->click();
    panel->choice(1)->click();
    EXPECT_FALSE(panel->command(RecipeSelectPanel::kAddNames)->isEnabled()) << "none checked";
    panel->choice(1)->click();
    panel->choice(3)->click();
    panel->command(RecipeSelectPanel::kAddNames)->click();
    EXPECT_EQ(form->list().entryList(), QStringList({"Flour", "Milk  Cup"}));
}

TEST_F(ShoplistSelectTest, LeavingWithoutAddingAddsNothingAndForgetsTheChecks)
{
    auto form = open();
    showRecipe(*form, "Desserts", "Lemon Bars");
    recipePanel(*form)->choice(0)->click();
    recipePanel(*form)->command(RecipeSelectPanel::kLeave)->click();
    EXPECT_FALSE(recipePanel(*form)->isVisible());
    EXPECT_TRUE(form->list().entryList().isEmpty());
    EXPECT_FALSE(form->list().dirty());
    act(*form, "mRecipeSelect")->trigger();
    EXPECT_TRUE(recipePanel(*form)->shownCaptions().isEmpty());
}

TEST_F(ShoplistSelectTest, SelectCookbookStoresSlot11AndListsTheFirstTypeOfTheNewBook)
{
    auto form = open();
    EXPECT_FALSE(act(*form, "mCookbook2")->isEnabled()) << "only with the panel open";
    showRecipe(*form, "Desserts", "Lemon Bars");
    EXPECT_EQ(act(*form, "mCookbook2")->text(), "Cookbook #2 - Holidays");
    act(*form, "mCookbook2")->trigger();
    EXPECT_EQ(ReadSlotText(GColor4, 11), " 2");
    EXPECT_EQ(form->cookbook(), 2);
    EXPECT_TRUE(act(*form, "mCookbook2")->isChecked());
    EXPECT_FALSE(act(*form, "mCookbook1")->isChecked());
    EXPECT_EQ(status(*form), "     Recipe Select from Cookbook #2 - Holidays");
    RecipeSelectPanel* panel = recipePanel(*form);
    EXPECT_TRUE(panel->shownCaptions().isEmpty());
    EXPECT_FALSE(panel->heading()->isVisible());
    EXPECT_EQ(panel->typeList()->currentText(), "Appetizers and beverages");
    ASSERT_EQ(panel->recipeList()->count(), 1);
    EXPECT_EQ(panel->recipeList()->itemText(0), "Cranberry Punch");
    choose(panel->recipeList(), "Cranberry Punch");
    EXPECT_EQ(panel->shownCaptions(), QStringList({" Cranberry juice            "}));
    // The next opening reads slot 11 again.
    act(*form, "mRecipeSelect")->trigger();
    auto again = open();
    EXPECT_EQ(again->cookbook(), 2);
}

TEST_F(ShoplistSelectTest, QuickSelectShowsNinetyGroceriesUnderFiveHeadings)
{
    auto form = open();
    act(*form, "mQuickSelect")->trigger();
    QuickSelectPanel* panel = quickPanel(*form);
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->captionLabel()->text(), "Quick Select Screen");
    EXPECT_EQ(form->openPanel(), ShoplistPanel::QuickSelect);
    EXPECT_TRUE(act(*form, "mQuickSelect")->isChecked());
    EXPECT_FALSE(act(*form, "mRecipeSelect")->isEnabled());
    for (const char* off : kOffWhileSelecting)
        EXPECT_FALSE(act(*form, off)->isEnabled()) << off;
    const QStringList items = QuickSelectItems();
    ASSERT_EQ(items.size(), 90);
    for (int box = 0; box < 90; ++box)
        EXPECT_EQ(panel->choice(box)->text(), items[box]) << box;
    EXPECT_EQ(panel->choice(0)->text(), "1% Milk");
    EXPECT_EQ(panel->choice(15)->text(), "Bacon");
    EXPECT_EQ(panel->choice(30)->text(), "Apples");
    EXPECT_EQ(panel->choice(60)->text(), "Bread");
    EXPECT_EQ(panel->choice(69)->text(), "Baking Powder");
    EXPECT_EQ(panel->choice(89)->text(), "Vinegar");
    const char* const headings[] = {"Dairy Products", "Poultry, Fish, Meat Products", "Fruits and Vegetables",
                                    "Breads and Cereals", "Miscellaneous"};
    for (int group = 0; group < 5; ++group)
        EXPECT_EQ(form->findChild<QGroupBox*>(QStringLiteral("Frame2_%1").arg(group))->title(), headings[group]);
    EXPECT_TRUE(panel->command(QuickSelectPanel::kLeave)->hasFocus());
    EXPECT_FALSE(panel->command(QuickSelectPanel::kAddAll)->isEnabled());
    EXPECT_EQ(panel->command(QuickSelectPanel::kAddAll)->text(), "E&xit and Add All Checked Selections to Item Grid");
    EXPECT_EQ(panel->command(QuickSelectPanel::kLeave)->text(), "E&xit Without Adding Checked Selections to Item Grid");
}

TEST_F(ShoplistSelectTest, QuickSelectAddsTheCheckedGroceriesInBoxOrder)
{
    auto form = open();
    addItem(*form, "Tea");
    act(*form, "mQuickSelect")->trigger();
    QuickSelectPanel* panel = quickPanel(*form);
    for (int box : {89, 3, 40})
        panel->choice(box)->click();
    ASSERT_TRUE(panel->command(QuickSelectPanel::kAddAll)->isEnabled());
    panel->command(QuickSelectPanel::kAddAll)->click();
    EXPECT_EQ(form->list().entryList(), QStringList({"Tea", "Cheese", "Cucumbers", "Vinegar"}));
    EXPECT_FALSE(panel->isVisible());
    EXPECT_FALSE(act(*form, "mQuickSelect")->isChecked());
    EXPECT_TRUE(form->list().dirty());
    for (int box = 0; box < 90; ++box)
        EXPECT_FALSE(panel->choice(box)->isChecked()) << box;
}

TEST_F(ShoplistSelectTest, LeavingQuickSelectWithoutAddingKeepsTheChecksForTheNextOpening)
{
    auto form = open();
    act(*form, "mQuickSelect")->trigger();
    quickPanel(*form)->choice(7)->click();
    quickPanel(*form)->command(QuickSelectPanel::kLeave)->click();
    EXPECT_TRUE(form->list().entryList().isEmpty());
    EXPECT_EQ(form->openPanel(), ShoplistPanel::None);
    act(*form, "mQuickSelect")->trigger();
    EXPECT_TRUE(quickPanel(*form)->choice(7)->isChecked());
    EXPECT_TRUE(quickPanel(*form)->command(QuickSelectPanel::kAddAll)->isEnabled());
    act(*form, "mQuickSelect")->trigger();
    EXPECT_FALSE(quickPanel(*form)->isVisible()) << "the command closes it again";
}
