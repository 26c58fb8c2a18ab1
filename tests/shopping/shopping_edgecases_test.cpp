// The edge cases of the shopping list, its files and its select panels, one
// named test each, walked on the screen as the user meets them.
#include "shoplist_select_fixture.h"

#include "test_data.h"

#include "shopping/logic/groceryentry.h"

#include "list_bytes.h"

#include <QDir>
#include <QRadioButton>

namespace {

const QString kReplace = "15Nov26.lst\nThis file already already exists.\nDo you want to replace it?";

} // namespace

class ShoppingEdgeCases : public ShoplistSelectTest {
protected:
    // Adds the Lemon Bars box `box` with its amount and returns the entry.
    QString addLemonBarsBox(Shoplist& form, int box, bool withAmounts)
    {
        showRecipe(form, "Desserts", "Lemon Bars");
        recipePanel(form)->choice(box)->click();
        recipePanel(form)->command(withAmounts ? RecipeSelectPanel::kAddNamesAndAmounts
                                               : RecipeSelectPanel::kAddNames)
            ->click();
        return form.list().entryList().last();
    }
};

// ---- The list and its files ----------------------------------------------------------

TEST_F(ShoppingEdgeCases, SavingTwiceOnOneDateOffersReplacementAndNoLeavesTheOldFileByteForByte)
{
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mSave")->trigger();
    const QByteArray first = folder.bytesOf("15Nov26.Lst");
    ASSERT_EQ(first, ListBytes({{"  Milk", ""}}));
    addItem(*form, "Eggs");
    dialogs.expectMessage("Save .lst File", kReplace, Answer::No);
    act(*form, "mSave")->trigger();
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), first);
    EXPECT_TRUE(form->list().dirty());
}

TEST_F(ShoppingEdgeCases, AnItemOf28CharactersFromARecipeIsShownWith26AndSavedWith26WithItsTwoLeadingBlanks)
{
    layout::CookbookFiles third;
    layout::Recipe recipe;
    recipe.ingredients[0] = "shredded sharp cheddar chees";
    recipe.amounts[0] = "2";
    recipe.amountTypes[0] = "cups";
    recipe.slotMark = "Full1";
    third.record(1, recipe);
    third.names(RecipeType::Casseroles, {layout::Entry("Cheesy Bake", 1)});
    ASSERT_TRUE(third.write(folder.path(), 3));
    WriteSlotText(GColor4, 11, u" 3");
    auto form = open();
    showRecipe(*form, "Casseroles", "Cheesy Bake");
    recipePanel(*form)->command(RecipeSelectPanel::kSelectAll)->click();
    recipePanel(*form)->command(RecipeSelectPanel::kAddNames)->click();
    ASSERT_EQ(form->list().entryList(), QStringList({"Shredded sharp cheddar chees"}));
    EXPECT_EQ(cell(*form, 1, 0), "  Shredded sharp cheddar che");
    act(*form, "mSave")->trigger();
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), ListBytes({{"  Shredded sharp cheddar che", ""}}));
}

TEST_F(ShoppingEdgeCases, AnItemWithAmountReadFromAListKeepsTheAmountOnTheRightRowInBothDisplayModes)
{
    folder.writeBytes("15Nov26.Lst",
                      ListBytes({{"  Milk", "2 Gallons"}, {"  apples", ""}, {"  Cheese", "1 Pound"}}));
    auto form = open();
    chooser.expect(ListChoice::Open, "15Nov26.Lst");
    act(*form, "mOpenList")->trigger();
    const auto rows = [&] {
        QStringList shown;
        for (int row = 1; row <= 3; ++row)
            shown << cell(*form, row, 0) + "|" + cell(*form, row, 1);
        return shown;
    };
    EXPECT_EQ(rows(), QStringList({"  Milk|2 Gallons", "  apples|", "  Cheese|1 Pound"}));
    form->findChild<QRadioButton*>("Option1_1")->click();
    EXPECT_EQ(rows(), QStringList({"  apples|", "  Cheese|1 Pound", "  Milk|2 Gallons"}));
    form->findChild<QRadioButton*>("Option1_0")->click();
    EXPECT_EQ(rows(), QStringList({"  Milk|2 Gallons", "  apples|", "  Cheese|1 Pound"}));
}

TEST_F(ShoppingEdgeCases, DeletingARowInAlphabeticalModeRemovesTheRightEntryFromEntryList)
{
    auto form = open();
    for (const char* name : {"pears", "Apples", "milk", "Bread"})
        addItem(*form, name);
    form->findChild<QRadioButton*>("Option1_1")->click();
    ASSERT_EQ(cell(*form, 3, 0), "  milk");
    clickCell(*form, 3, 0);
    dialogs.expectMessage("Delete Row", "Delete Item and Amount for - \n  milk, ?", Answer::Yes);
    act(*form, "mDeleteItem")->trigger();
    EXPECT_EQ(form->list().entryList(), QStringList({"pears", "Apples", "Bread"}));
    EXPECT_EQ(cell(*form, 3, 0), "  pears");
}

TEST_F(ShoppingEdgeCases, SwitchingTheDisplayModeOfANonEmptyListTurnsOnTheQuestionAboutUnsavedChanges)
{
    folder.copyIn(TestDataFile("15Nov26.Lst"));
    auto form = open();
    chooser.expect(ListChoice::Open, "15Nov26.Lst");
    act(*form, "mOpenList")->trigger();
    ASSERT_FALSE(form->list().dirty());
    form->findChild<QRadioButton*>("Option1_1")->click();
    EXPECT_TRUE(form->list().dirty());
    dialogs.expectMessage("Grocery List", "Save changes made to Grocery Item Grid before exiting?", Answer::Cancel);
    act(*form, "mExit")->trigger();
    EXPECT_TRUE(form->isVisible());
}

TEST_F(ShoppingEdgeCases, ADigitPressedAfter1DozenReplacesTheWholeAmount)
{
    auto form = open();
    addItem(*form, "Eggs");
    clickCell(*form, 1, 1);
    button(*form, "Command3_1")->click();
    button(*form, "Command4_5")->click();
    ASSERT_EQ(amountBox(*form)->text(), "1 Dozen");
    button(*form, "Command3_2")->click();
    EXPECT_EQ(amountBox(*form)->text(), "2");
}

TEST_F(ShoppingEdgeCases, AUnitPressedAfter2Gives2BagsAfter1Or1BagAndOnNothingABlankAndBag)
{
    auto form = open();
    addItem(*form, "Chips");
    clickCell(*form, 1, 1);
    button(*form, "Command3_2")->click();
    button(*form, "Command4_0")->click();
    EXPECT_EQ(amountBox(*form)->text(), "2 Bags");
    button(*form, "Command5_1")->click();
    button(*form, "Command3_1")->click();
    button(*form, "Command4_0")->click();
    EXPECT_EQ(amountBox(*form)->text(), "1 Bag");
    button(*form, "Command5_1")->click();
    button(*form, "Command4_0")->click();
    EXPECT_EQ(amountBox(*form)->text(), " Bag");
}

TEST_F(ShoppingEdgeCases, TypingADoubleQuoteInTheItemBoxLeavesNoTraceOfIt)
{
    auto form = open();
    addItem(*form, "12\" Pizza");
    EXPECT_EQ(form->list().entryList(), QStringList({"12 Pizza"}));
    EXPECT_EQ(folder.bytesOf("LISTNAME.Fil"), Lines({"12 Pizza"}));
    act(*form, "mSave")->trigger();
    EXPECT_FALSE(folder.bytesOf("15Nov26.Lst").contains("\"\" Pizza"));
    EXPECT_EQ(folder.bytesOf("15Nov26.Lst"), ListBytes({{"  12 Pizza", ""}}));
}

TEST_F(ShoppingEdgeCases, OpeningAListSetsTheDateBoxFromTheFileNameAndSavingItAgainWritesToTheSameFile)
{
    for (const QLocale& locale : {QLocale(QLocale::English, QLocale::UnitedStates),
                                  QLocale(QLocale::English, QLocale::UnitedKingdom)}) {
        SCOPED_TRACE(locale.name().toStdString());
        SetDateLocale(locale);
        folder.writeBytes("03Dec26.Lst", ListBytes({{"  Tea", ""}}));
        auto form = open();
        chooser.expect(ListChoice::Open, "03Dec26.Lst");
        act(*form, "mOpenList")->trigger();
        EXPECT_EQ(dateBox(*form)->text(), ShortDate(QDate(2026, 12, 3)));
        addItem(*form, "Honey");
        dialogs.expectMessage("Save .lst File",
                              "03Dec26.lst\nThis file already already exists.\nDo you want to replace it?", Answer::Yes);
        act(*form, "mSave")->trigger();
        EXPECT_EQ(folder.bytesOf("03Dec26.Lst"), ListBytes({{"  Tea", ""}, {"  Honey", ""}}));
        EXPECT_EQ(QDir().entryList({"*.lst"}, QDir::Files), QStringList({"03Dec26.Lst"}));
    }
}

// ---- Recipes and the catalogue -----------------------------------------------------------

TEST_F(ShoppingEdgeCases, Amount025WithUnitCupShowsTheSeparatorAndAQuarterCupAndYieldsARowWithThoseTwoTexts)
{
    auto form = open();
    showRecipe(*form, "Desserts", "Lemon Bars");
    EXPECT_EQ(recipePanel(*form)->choice(0)->text(), " Sugar => 1/4 Cup       ");
    EXPECT_EQ(addLemonBarsBox(*form, 0, true), MakeGroceryEntry(u"Sugar", u"1/4 Cup"));
    EXPECT_EQ(cell(*form, 1, 0), "  Sugar");
    EXPECT_EQ(cell(*form, 1, 1), "1/4 Cup");
}

TEST_F(ShoppingEdgeCases, Amount19Shows2WithTwoBlanksBeforeTheUnit)
{
    auto form = open();
    showRecipe(*form, "Desserts", "Lemon Bars");
    EXPECT_EQ(recipePanel(*form)->choice(1)->text(), " Flour  => 2  Cups      ");
    EXPECT_EQ(addLemonBarsBox(*form, 1, true), MakeGroceryEntry(u"Flour", u"2  Cups"));
}

TEST_F(ShoppingEdgeCases, Amount095GivesWhole1WithNoFractionSoTheRowsAmountBegins1)
{
    auto form = open();
    EXPECT_EQ(addLemonBarsBox(*form, 2, true), MakeGroceryEntry(u"Butter", u"1  Pound"));
    EXPECT_TRUE(cell(*form, 1, 1).startsWith("1"));
}

TEST_F(ShoppingEdgeCases, AnEmptyAmountWithAUnitGivesTheNameAndTheUnitWordWithTwoBlanksAndNoAmountWithEitherCommand)
{
    auto form = open();
    EXPECT_EQ(addLemonBarsBox(*form, 3, true), "Milk  Cup");
    EXPECT_EQ(addLemonBarsBox(*form, 3, false), "Milk  Cup");
    EXPECT_EQ(cell(*form, 1, 0), "  Milk  Cup");
    EXPECT_EQ(cell(*form, 1, 1), "");
    EXPECT_EQ(cell(*form, 2, 1), "");
}

TEST_F(ShoppingEdgeCases, AParenthesisAfterTheFirstWordCutsTheNameButOneAtTheStartIsKept)
{
    auto form = open();
    showRecipe(*form, "Desserts", "Lemon Bars");
    EXPECT_TRUE(recipePanel(*form)->choice(1)->text().startsWith(" Flour  => ")) << "flour (sifted)";
    EXPECT_EQ(recipePanel(*form)->choice(4)->text(), " (optional) nuts => 2           ");
    EXPECT_EQ(addLemonBarsBox(*form, 4, false), "(optional) nuts");
}

TEST_F(ShoppingEdgeCases, TheSameRecipeAddedTwiceGivesEveryRowTwice)
{
    auto form = open();
    for (int time = 0; time < 2; ++time) {
        showRecipe(*form, "Desserts", "Lemon Bars");
        recipePanel(*form)->command(RecipeSelectPanel::kSelectAll)->click();
        recipePanel(*form)->command(RecipeSelectPanel::kAddNamesAndAmounts)->click();
    }
    const QStringList entries = form->list().entryList();
    ASSERT_EQ(entries.size(), 12);
    EXPECT_EQ(entries.mid(0, 6), entries.mid(6, 6));
    EXPECT_EQ(cell(*form, 0, 0), "Grocery Items = 12");
}

TEST_F(ShoppingEdgeCases, ANameOf33CharactersIsCutTo30OnEntryAnd26OnTheGrid)
{
    layout::CookbookFiles fourth;
    layout::Recipe recipe;
    recipe.ingredients[0] = "Abcdefghijklmnopqrstuvwxyz1234567";
    recipe.slotMark = "Full1";
    fourth.record(1, recipe);
    fourth.names(RecipeType::Stews, {layout::Entry("Long Names", 1)});
    ASSERT_TRUE(fourth.write(folder.path(), 4));
    WriteSlotText(GColor4, 11, u" 4");
    auto form = open();
    showRecipe(*form, "Stews", "Long Names");
    recipePanel(*form)->command(RecipeSelectPanel::kSelectAll)->click();
    recipePanel(*form)->command(RecipeSelectPanel::kAddNames)->click();
    EXPECT_EQ(form->list().entryList(), QStringList({"Abcdefghijklmnopqrstuvwxyz1234"}));
    EXPECT_EQ(cell(*form, 1, 0), "  Abcdefghijklmnopqrstuvwxyz");
    // Typed from the drop-down, a long name is cut the same way.
    folder.writeBytes("LISTNAME.Fil", Lines({"Zyxwvutsrqponmlkjihgfedcba9876543"}));
    auto second = open();
    second->findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
    emit second->findChild<QComboBox*>("Combo1")->activated(0);
    pressEnter(itemBox(*second));
    EXPECT_EQ(second->list().entryList(), QStringList({"Zyxwvutsrqponmlkjihgfedcba9876"}));
    EXPECT_EQ(cell(*second, 1, 0), "  Zyxwvutsrqponmlkjihgfedcba");
}
