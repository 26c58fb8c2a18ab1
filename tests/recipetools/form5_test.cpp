// The recipe screen driven offscreen with scripted dialogs: the road of a
// recipe through its files, the modes, the fields and the cookbooks.
#include "cookbook/logic/cookbookselection.h"
#include "recipetools/screens/form5.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsslots.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/startfrm.h"
#include "cookbook_files.h"
#include "recipe_samples.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "form5_fixture.h"
#include "raw_slots.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using layout::Entry;
using layout::ExtraSlot;
using layout::NameFile;

namespace {

const char kRecipeFile[] = "Recipe File";
const char kSaveQuestion[] = "Save Current Recipe before next action or exiting?";
const char kCommandTitle[] = "Recipe File Function";
const char kCommandText[] = "Please Select Command Button for action desired.";

samples::Sample AppleBread()
{
    samples::Sample s;
    s.setRow(0, "1.5", "cups", "flour");
    s.setRow(10, ".33", "cup", "sugar");
    s.setOthers("Mix.\r\nBake.", "350", "1 hour", "2", "Loaf(s)");
    return s;
}

} // namespace

// ---- The road of a recipe ---------------------------------------------------------------

TEST_F(Form5Test, TheRoadOfARecipeThroughItsFiles)
{
    auto form = open();
    RecipeFieldsPanel* panel = fields(*form);
    const samples::Sample apple = AppleBread();

    // Create in an empty cookbook and save.
    startRecipe(*form, "Breads", "Apple Bread");
    EXPECT_EQ(strip(*form), "Create Recipe");
    typeRow(*form, 0, "1.5", "cups", "flour");
    typeRow(*form, 10, ".33", "cup", "sugar");
    QTest::keyClicks(panel->directionsBox(), "Mix.");
    QTest::keyClick(panel->directionsBox(), Qt::Key_Return);
    QTest::keyClicks(panel->directionsBox(), "Bake.");
    QTest::keyClicks(form->findChild<QLineEdit*>("Text3"), "350");
    QTest::keyClicks(form->findChild<QLineEdit*>("Text7"), "1 hour");
    QTest::keyClicks(form->findChild<QLineEdit*>("Text6"), "2");
    panel->yieldTypeList()->setEditText("Loaf(s)");
    ASSERT_TRUE(act(*form, "mSave")->isEnabled());
    act(*form, "mSave")->trigger();
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), apple.savedBytes());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1"), ExtraSlot(""));
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"), NameFile({Entry("Apple Bread", 1)}));
    EXPECT_EQ(form->mode(), RecipeMode::Idle);
    EXPECT_EQ(strip(*form), "View Recipe");

    // View: amounts as fractions, the work list in decimals.
    pick(*form, "Apple Bread");
    EXPECT_EQ(panel->amountBox(0)->text(), "1 1/2");
    EXPECT_EQ(panel->amountBox(10)->text(), "1/3");
    EXPECT_EQ(form->amountWorkList()[0], "1.5");
    EXPECT_EQ(panel->unitBox(0)->text(), "cups");
    EXPECT_EQ(panel->directionsBox()->toPlainText(), "Mix.\nBake.");
    EXPECT_EQ(panel->yieldTypeList()->currentText(), "Loaf(s)");
    EXPECT_EQ(form->currentRecordNumber(), 1);

    // Modify in decimals and save again: the slot is rewritten, the name file stays.
    const QByteArray namesBefore = folder.bytesOf("Breanfil.db1");
    act(*form, "mModify")->trigger();
    EXPECT_EQ(strip(*form), "Modify Recipe");
    EXPECT_EQ(panel->amountBox(0)->text(), "1.5");
    EXPECT_EQ(panel->amountBox(10)->text(), ".33");
    panel->amountBox(0)->clear();
    QTest::keyClicks(panel->amountBox(0), "2");
    act(*form, "mSave")->trigger();
    samples::Sample changed = apple;
    changed.setRow(0, "2", "cups", "flour");
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), changed.savedBytes());
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"), namesBefore);

    // Rename: same record number, new entry.
    pick(*form, "Apple Bread");
    act(*form, "mRename")->trigger();
    EXPECT_EQ(strip(*form), "Name Change");
    EXPECT_FALSE(act(*form, "mTitles")->isEnabled());
    EXPECT_FALSE(form->findChild<QMenu*>("mSelectCookbook")->isEnabled());
    QTest::keyClicks(form->findChild<QLineEdit*>("Text10"), "Banana Bread");
    form->findChild<QPushButton*>("Command11")->click();
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"), NameFile({Entry("Banana Bread", 1), " "}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), changed.savedBytes());
    EXPECT_TRUE(act(*form, "mTitles")->isEnabled());
    EXPECT_EQ(strip(*form), "View Recipe");

    // A second recipe takes slot 2.
    saveQuickRecipe(*form, "Breads", "Corn Bread");
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"), NameFile({Entry("Banana Bread", 1), Entry("Corn Bread", 2), " "}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").size(), 2 * 2045);

    // Delete the first: its slot becomes a hole.
    pick(*form, "Banana Bread");
    dialogs.expectMessage("Delete Recipe", "Do you Really want to delete this Recipe?", Answer::Yes);
    act(*form, "mDelete")->trigger();
    EXPECT_EQ(dialogs.messages().last().defaultButton, 2) << "No is the default";
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").left(2045), samples::ClearedSlot());
    EXPECT_EQ(folder.bytesOf("Recipe4.db1").left(250), ExtraSlot(""));
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"), NameFile({Entry("Corn Bread", 2), " ", " ", " "}));

    // The next new recipe fills the hole.
    saveQuickRecipe(*form, "Breads", "Date Bread");
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"),
              NameFile({Entry("Corn Bread", 2), Entry("Date Bread", 1), " ", " ", " "}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").size(), 2 * 2045);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(2040, 5), "Full1");
}

// ---- Lifecycle edge cases ---------------------------------------------------------------

TEST_F(Form5Test, AfterASaveTheScreenIsIdle)
{
    auto form = open();
    ShowActive(*form);
    const auto enabled = [&](const char* name) { return act(*form, name)->isEnabled(); };
    QComboBox* pickList = fields(*form)->pickList();
    const auto expectIdle = [&](const char* after) {
        SCOPED_TRACE(after);
        EXPECT_EQ(form->mode(), RecipeMode::Idle);
        EXPECT_EQ(strip(*form), "View Recipe");
        EXPECT_TRUE(enabled("mCreate"));
        EXPECT_TRUE(enabled("mView"));
        for (const char* off : {"mModify", "mSave", "mDelete", "mPrint", "mCalculate", "mRename"})
            EXPECT_FALSE(enabled(off)) << off;
        EXPECT_EQ(fields(*form)->nameBox()->text(), "");
        EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "");
        ASSERT_EQ(pickList->count(), 1) << "the type's list is read again";
        EXPECT_EQ(pickList->itemText(0), "Beef Stew");
        EXPECT_TRUE(pickList->view()->isVisible()) << "the pick list drops down";
        pickList->hidePopup();
    };

    saveQuickRecipe(*form, "Stews", "Beef Stew");
    expectIdle("a new recipe");

    // The dropped list takes its choice without the idle screen's message.
    pickList->showPopup();
    pickList->view()->setCurrentIndex(pickList->model()->index(0, 0));
    QTest::keyClick(pickList->view(), Qt::Key_Return);
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(form->mode(), RecipeMode::View);
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "flour");

    act(*form, "mModify")->trigger();
    QTest::keyClicks(fields(*form)->ingredientBox(1), "salt");
    act(*form, "mSave")->trigger();
    expectIdle("a changed recipe");
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(1304 + 35, 4), "salt");

    // Saved by the question of another action: that action goes on, and
    // nothing drops down in its way.
    pick(*form, "Beef Stew");
    act(*form, "mModify")->trigger();
    QTest::keyClicks(fields(*form)->ingredientBox(2), "pepper");
    dialogs.expectMessage(kRecipeFile, kSaveQuestion, Answer::Yes);
    act(*form, "mCreate")->trigger();
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(1304 + 70, 6), "pepper");
    EXPECT_EQ(form->mode(), RecipeMode::Create);
    EXPECT_FALSE(pickList->view()->isVisible());
}

TEST_F(Form5Test, SaveInCreateModeWithABlankNameIsRefused)
{
    auto form = open();
    startRecipe(*form, "Dips", "");
    typeRow(*form, 0, "1", "cup", "sour cream");
    dialogs.expectMessage("Save", "Please enter Recipe Name in order to save!");
    act(*form, "mSave")->trigger();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), QByteArray());
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "sour cream") << "the typed fields stay";
    EXPECT_EQ(form->mode(), RecipeMode::Create);
}

TEST_F(Form5Test, NoInTheSaveQuestionLosesTheDataAndGoesOn)
{
    auto form = open();
    startRecipe(*form, "Dips", "Onion Dip");
    typeRow(*form, 0, "1", "cup", "sour cream");
    dialogs.expectMessage(kRecipeFile, kSaveQuestion, Answer::No);
    Choose(fields(*form)->typeList(), "Stews");
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages().first().buttons, Buttons::YesNoCancel);
    EXPECT_EQ(dialogs.messages().first().icon, Icon::Question);
    EXPECT_EQ(fields(*form)->typeList()->currentText(), "Stews");
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "") << "the typed recipe is gone";
    EXPECT_FALSE(form->recipeChanged());
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), QByteArray()) << "nothing was saved";
}

TEST_F(Form5Test, YesInTheSaveQuestionSavesFirst)
{
    auto form = open();
    startRecipe(*form, "Dips", "Onion Dip");
    typeRow(*form, 0, "1", "cup", "sour cream");
    dialogs.expectMessage(kRecipeFile, kSaveQuestion, Answer::Yes);
    Choose(fields(*form)->typeList(), "Stews");
    EXPECT_EQ(folder.bytesOf("Dipsnfil.db1"), NameFile({Entry("Onion Dip", 1)}));
    EXPECT_EQ(fields(*form)->typeList()->currentText(), "Stews") << "the action goes on";
    EXPECT_EQ(dialogs.messages().size(), 1) << "the save leaves the screen idle: an empty type is no message";
    EXPECT_EQ(form->mode(), RecipeMode::Idle);
}

TEST_F(Form5Test, CancelInTheSaveQuestionOfAnotherTypePutsTheOldTypeBack)
{
    auto form = open();
    startRecipe(*form, "Dips", "Onion Dip");
    typeRow(*form, 0, "1", "cup", "sour cream");
    dialogs.expectMessage(kRecipeFile, kSaveQuestion, Answer::Cancel);
    Choose(fields(*form)->typeList(), "Stews");
    EXPECT_EQ(fields(*form)->typeList()->currentText(), "Dips");
    EXPECT_EQ(fields(*form)->nameBox()->text(), "Onion Dip");
    EXPECT_EQ(form->mode(), RecipeMode::Create);
}

TEST_F(Form5Test, DeletingTheLastRecipeLeavesBlanksAndViewingShowsNoMessage)
{
    auto form = open();
    saveQuickRecipe(*form, "Soups and sauces", "Tomato Soup");
    pick(*form, "Tomato Soup");
    dialogs.expectMessage("Delete Recipe", "Do you Really want to delete this Recipe?", Answer::Yes);
    act(*form, "mDelete")->trigger();
    EXPECT_EQ(folder.bytesOf("Soupnfil.db1"), NameFile({" ", " "}));
    act(*form, "mView")->trigger();
    EXPECT_EQ(fields(*form)->pickList()->count(), 0);
    EXPECT_EQ(dialogs.messages().size(), 1) << "no \"No Recipes\" message: slot 1 holds a blank";
}

TEST_F(Form5Test, ViewingATypeWithoutAFileSaysNoRecipes)
{
    auto form = open();
    dialogs.expectMessage("Recipe Files", "No Recipes for Appetizers and beverages were found!");
    act(*form, "mView")->trigger();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_EQ(fields(*form)->typeList()->currentText(), "Appetizers and beverages");
}

TEST_F(Form5Test, DeleteAnsweredNoChangesNothing)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    const QByteArray before = folder.bytesOf("Recipe2.db1");
    pick(*form, "Beef Stew");
    dialogs.expectMessage("Delete Recipe", "Do you Really want to delete this Recipe?", Answer::No);
    act(*form, "mDelete")->trigger();
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), before);
    EXPECT_EQ(strip(*form), "View Recipe");
}

TEST_F(Form5Test, DirectionsOf951CharactersShowTheirCountInRed)
{
    auto form = open();
    startRecipe(*form, "Desserts", "Trifle");
    QPlainTextEdit* directions = fields(*form)->directionsBox();
    directions->setPlainText(QString(950, u'x'));
    auto* counter = form->findChild<QLabel*>("Label13");
    EXPECT_EQ(counter->text(), "950");
    EXPECT_EQ(counter->palette().color(QPalette::WindowText), QColor(Qt::black));
    directions->setPlainText(QString(951, u'x'));
    EXPECT_EQ(counter->text(), "951");
    EXPECT_EQ(counter->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    directions->setPlainText(QString(1200, u'x'));
    EXPECT_EQ(directions->toPlainText().size(), 1000) << "the box takes up to 1000";
}

TEST_F(Form5Test, ModifyShowsDecimalsWhereViewShowedFractionsAndSavingKeepsThem)
{
    auto form = open();
    startRecipe(*form, "Fruits", "Fruit Cup");
    typeRow(*form, 0, ".33", "cup", "grapes");
    act(*form, "mSave")->trigger();
    pick(*form, "Fruit Cup");
    EXPECT_EQ(fields(*form)->amountBox(0)->text(), "1/3");
    act(*form, "mModify")->trigger();
    EXPECT_EQ(fields(*form)->amountBox(0)->text(), ".33");
    QTest::keyClicks(fields(*form)->ingredientBox(0), " and melon");
    act(*form, "mSave")->trigger();
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").left(5), ".33  ");
}

TEST_F(Form5Test, AFortyCharacterNameHasTwelveBlanksBeforeTheNumber)
{
    auto form = open();
    const QString name(40, u'N');
    saveQuickRecipe(*form, "Meats", name);
    EXPECT_EQ(folder.bytesOf("Meatnfil.db1"), NameFile({QByteArray(40, 'N') + QByteArray(12, ' ') + "1"}));
}

TEST_F(Form5Test, ExitWithChangesAsksTheShortQuestion)
{
    auto form = open();
    startRecipe(*form, "Candies", "Fudge");
    typeRow(*form, 0, "3", "cups", "chips");
    dialogs.expectMessage(kRecipeFile, "Save Current Recipe before exiting?", Answer::Yes);
    EXPECT_TRUE(form->close());
    EXPECT_EQ(dialogs.messages().last().buttons, Buttons::YesNo);
    EXPECT_EQ(folder.bytesOf("Candnfil.db1"), NameFile({Entry("Fudge", 1)}));
}

TEST_F(Form5Test, ExitWhoseSaveIsRefusedStays)
{
    auto form = open();
    startRecipe(*form, "Candies", "");
    typeRow(*form, 0, "3", "cups", "chips");
    dialogs.expectMessage(kRecipeFile, "Save Current Recipe before exiting?", Answer::Yes);
    dialogs.expectMessage("Save", "Please enter Recipe Name in order to save!");
    EXPECT_FALSE(form->close());
}

TEST_F(Form5Test, RenameWithAnEmptyNameIsRefused)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    pick(*form, "Beef Stew");
    act(*form, "mRename")->trigger();
    EXPECT_EQ(form->findChild<QLabel*>("Label27")->text(), "Beef Stew");
    dialogs.expectMessage("Recipe Name Change", "No Change Recipe Name has been entered!");
    form->findChild<QPushButton*>("Command11")->click();
    form->findChild<QPushButton*>("Command12")->click();
    EXPECT_TRUE(act(*form, "mTitles")->isEnabled());
    EXPECT_EQ(folder.bytesOf("Stewnfil.db1"), NameFile({Entry("Beef Stew", 1)}));
}

TEST_F(Form5Test, ARecordNumberFromAnotherCallerLoadsWithoutTheQuestion)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    saveQuickRecipe(*form, "Stews", "Lamb Stew");
    startRecipe(*form, "Stews", "Unsaved");
    typeRow(*form, 0, "1", "cup", "water");
    form->showRecipeAt(2, layout::EntryText("Lamb Stew", 2));
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(form->currentRecordNumber(), 2);
    EXPECT_EQ(fields(*form)->pickList()->currentText(), "Lamb Stew");
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "flour");
}

// ---- The screen's fields ------------------------------------------------------------------

TEST_F(Form5Test, FixedListsAreFilledAtLoad)
{
    auto form = open();
    QComboBox* types = fields(*form)->typeList();
    ASSERT_EQ(types->count(), 22);
    EXPECT_EQ(types->itemText(0), "Appetizers and beverages");
    EXPECT_EQ(types->itemText(13), "Lowin fat or calorie meals");
    EXPECT_EQ(types->itemText(21), "Vegetables");
    auto* singular = form->findChild<QListWidget*>("Combo5");
    auto* plural = form->findChild<QListWidget*>("Combo6");
    auto* amounts = form->findChild<QListWidget*>("Combo3");
    EXPECT_EQ(singular->count(), 17);
    EXPECT_EQ(plural->count(), 17);
    EXPECT_EQ(singular->item(14)->text(), "Tbsp.");
    EXPECT_EQ(plural->item(14)->text(), "Tbsps.");
    ASSERT_EQ(amounts->count(), 14);
    EXPECT_EQ(amounts->item(2)->text(), "1/3");
}

TEST_F(Form5Test, TheYieldTypeListKeepsItsOwnOrder)
{
    auto form = open();
    QComboBox* yields = fields(*form)->yieldTypeList();
    QStringList yieldTypes;
    for (int i = 0; i < yields->count(); ++i)
        yieldTypes << yields->itemText(i);
    EXPECT_EQ(yieldTypes, QStringList({"Serving(s)", "Casserole(s)", "Cake(s)", "Pie(s)", "Dozen", "Loaf(s)", "Pieces",
                                       "Gallon(s)", "Quart(s)"}));
    EXPECT_EQ(yields->currentText(), "") << "no yield type is chosen at load";
}

TEST_F(Form5Test, InViewModeAClickOnAFieldOnlyShowsTheCommandMessage)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    pick(*form, "Beef Stew");
    ShowActive(*form);
    const QByteArray before = folder.bytesOf("Recipe2.db1");
    dialogs.expectMessage(kCommandTitle, kCommandText);
    QTest::mouseClick(fields(*form)->ingredientBox(3), Qt::LeftButton);
    QTest::keyClicks(fields(*form)->ingredientBox(3), "salt");
    EXPECT_EQ(fields(*form)->ingredientBox(3)->text(), "");
    EXPECT_FALSE(form->recipeChanged());
    EXPECT_FALSE(form->findChild<QListWidget*>("Combo3")->isVisible());
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), before);
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
}

TEST_F(Form5Test, InIdleModeTheTypeListGivesTheCommandMessage)
{
    auto form = open();
    ShowActive(*form);
    dialogs.expectMessage(kCommandTitle, kCommandText);
    fields(*form)->typeList()->setFocus(Qt::MouseFocusReason);
}

TEST_F(Form5Test, TheAmountListOrTheUnitListOpensByTheRowsAmount)
{
    auto form = open();
    ShowActive(*form);
    startRecipe(*form, "Breads", "Rolls");
    RecipeFieldsPanel* panel = fields(*form);
    auto* singular = form->findChild<QListWidget*>("Combo5");
    auto* plural = form->findChild<QListWidget*>("Combo6");
    const struct {
        const char* amount;
        QListWidget* list;
    } rows[] = {{".5", singular}, {"1", singular}, {"1.5", plural}, {"", singular}};
    int row = 0;
    for (const auto& expected : rows) {
        SCOPED_TRACE(expected.amount);
        QTest::keyClicks(panel->amountBox(row), expected.amount);
        panel->unitBox(row)->setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(expected.list->isVisible());
        EXPECT_FALSE((expected.list == singular ? plural : singular)->isVisible());
        QTest::keyClick(expected.list, Qt::Key_Escape);
        EXPECT_FALSE(expected.list->isVisible());
        ++row;
    }
    panel->amountBox(6)->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(form->findChild<QListWidget*>("Combo3")->isVisible());
}

TEST_F(Form5Test, PickingFromTheAmountListWritesTheDecimal)
{
    auto form = open();
    ShowActive(*form);
    startRecipe(*form, "Breads", "Rolls");
    RecipeFieldsPanel* panel = fields(*form);
    panel->amountBox(2)->setFocus(Qt::TabFocusReason);
    auto* amounts = form->findChild<QListWidget*>("Combo3");
    ASSERT_TRUE(amounts->isVisible());
    amounts->setCurrentRow(2); // "1/3"
    QTest::keyClick(amounts, Qt::Key_Return);
    EXPECT_EQ(panel->amountBox(2)->text(), ".34");
    EXPECT_EQ(form->amountWorkList()[2], ".34");
    EXPECT_TRUE(panel->unitBox(2)->hasFocus() || form->findChild<QListWidget*>("Combo5")->isVisible());
}

TEST_F(Form5Test, AmountBoxKeepsOnlyDigitsAndPointsAndExplainsSlashes)
{
    auto form = open();
    startRecipe(*form, "Breads", "Rolls");
    QLineEdit* amount = fields(*form)->amountBox(0);
    QTest::keyClicks(amount, "1a");
    EXPECT_EQ(amount->text(), "1");
    amount->clear();
    QTest::keyClicks(amount, "x");
    EXPECT_EQ(amount->text(), "") << "a single wrong character clears the box";
    dialogs.expectMessage("Amount Input Instructions",
                          "Create and Modify Recipe information:\n\nSince the program can calculate new yields, please "
                          "enter amounts\nas whole and/or decimal numbers, thus 1 1/2 should be entered as:\n1.5,  1/8 = "
                          ".125, 1/4 = .25, 1/3 = .33, 2/3 = .67 and so forth.\n\n(NOTE: You still can print & view "
                          "recipes with/or without fractions!)");
    QTest::keyClicks(amount, "1/");
    EXPECT_EQ(amount->text(), "1");
    EXPECT_EQ(form->amountWorkList()[0], "1");
}

TEST_F(Form5Test, AnAmountBoxInCreateTakesFiveCharacters)
{
    auto form = open();
    startRecipe(*form, "Breads", "Rolls");
    QLineEdit* amount = fields(*form)->amountBox(0);
    QTest::keyClicks(amount, "123456");
    EXPECT_EQ(amount->text(), "12345");
    EXPECT_EQ(form->amountWorkList()[0], "12345");
}

TEST_F(Form5Test, ViewShowsALongFractionWholeAndModifyItsDecimal)
{
    auto form = open();
    startRecipe(*form, "Breads", "Rolls");
    typeRow(*form, 0, "12.67", "cups", "flour");
    act(*form, "mSave")->trigger();
    saveQuickRecipe(*form, "Breads", "Scones");
    QLineEdit* amount = fields(*form)->amountBox(0);

    // Viewed straight from Modify of another recipe, where the boxes took five.
    pick(*form, "Scones");
    act(*form, "mModify")->trigger();
    pick(*form, "Rolls");
    EXPECT_EQ(amount->text(), "12 2/3");

    act(*form, "mModify")->trigger();
    EXPECT_EQ(amount->text(), "12.67");
    amount->setCursorPosition(amount->text().size());
    QTest::keyClicks(amount, "5");
    EXPECT_EQ(amount->text(), "12.67") << "Modify takes five as Create does";
}

TEST_F(Form5Test, AQuoteTypedLastIsCutButOnePastedInTheMiddleStays)
{
    auto form = open();
    startRecipe(*form, "Breads", "Rolls");
    QLineEdit* ingredient = fields(*form)->ingredientBox(0);
    QTest::keyClicks(ingredient, "12\"");
    EXPECT_EQ(ingredient->text(), "12");
    ingredient->setText("a\"b");
    ingredient->setCursorPosition(3);
    QTest::keyClicks(ingredient, "c");
    EXPECT_EQ(ingredient->text(), "a\"bc");
}

TEST_F(Form5Test, ARecipeNameOfOneQuoteLeavesTheBoxEmpty)
{
    auto form = open();
    startRecipe(*form, "Breads", "\"");
    EXPECT_EQ(fields(*form)->nameBox()->text(), "");
}

TEST_F(Form5Test, EnterMovesThroughTheRowsAndRow20GoesToTheDirections)
{
    auto form = open();
    ShowActive(*form);
    startRecipe(*form, "Breads", "Rolls");
    RecipeFieldsPanel* panel = fields(*form);
    QTest::keyClick(panel->nameBox(), Qt::Key_Return);
    EXPECT_TRUE(form->findChild<QListWidget*>("Combo3")->isVisible()) << "the first amount box took the focus";
    QTest::keyClick(panel->amountBox(4), Qt::Key_Return);
    EXPECT_TRUE(panel->unitBox(4)->hasFocus() || form->findChild<QListWidget*>("Combo5")->isVisible());
    QTest::keyClick(panel->unitBox(4), Qt::Key_Return);
    EXPECT_TRUE(panel->ingredientBox(4)->hasFocus());
    QTest::keyClick(panel->ingredientBox(4), Qt::Key_Return);
    EXPECT_EQ(form->findChild<QListWidget*>("Combo3")->isVisible(), true) << "row 5's amount box";
    QTest::keyClick(panel->ingredientBox(19), Qt::Key_Return);
    EXPECT_TRUE(panel->directionsBox()->hasFocus());
}

TEST_F(Form5Test, EnterInAnEmptyNameBoxAsksForTheName)
{
    auto form = open();
    startRecipe(*form, "Breads", "");
    dialogs.expectMessage("Enter Recipe Name", "Please Enter Recipe Name First");
    QTest::keyClick(fields(*form)->nameBox(), Qt::Key_Return);
}

TEST_F(Form5Test, EnteringAnotherFieldBeforeTheNameAsksForIt)
{
    auto form = open();
    ShowActive(*form);
    startRecipe(*form, "Breads", "");
    dialogs.expectMessage("Enter Recipe Name", "Please Enter Recipe Name First");
    fields(*form)->ingredientBox(2)->setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(fields(*form)->nameBox()->hasFocus());
}

TEST_F(Form5Test, TheNameBoxWithoutATypeAsksForTheType)
{
    auto form = open();
    ShowActive(*form);
    act(*form, "mCreate")->trigger();
    fields(*form)->typeList()->setCurrentIndex(-1);
    form->findChild<QPushButton*>("Command1_9")->setFocus(Qt::OtherFocusReason);
    dialogs.expectMessage("Select Type", "Please select Type first.");
    fields(*form)->nameBox()->setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(fields(*form)->typeList()->hasFocus());
}

TEST_F(Form5Test, TheCurrentNamesPanelShowsTheTypesRecipesWhileANameIsTyped)
{
    auto form = open();
    ShowActive(*form);
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    act(*form, "mCreate")->trigger();
    Choose(fields(*form)->typeList(), "Stews");
    fields(*form)->nameBox()->setFocus(Qt::MouseFocusReason);
    QFrame* panel = fields(*form)->currentNamesPanel();
    EXPECT_TRUE(panel->isVisible());
    ASSERT_EQ(fields(*form)->currentNamesList()->count(), 1);
    EXPECT_EQ(fields(*form)->currentNamesList()->item(0)->text(), "Beef Stew");
    dialogs.expectMessage("Current Recipe Names", "This list is used to display existing Recipes Only!");
    emit fields(*form)->currentNamesList()->itemClicked(fields(*form)->currentNamesList()->item(0));
    QTest::keyClicks(fields(*form)->nameBox(), "Lamb Stew");
    fields(*form)->ingredientBox(0)->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(Form5Test, TheFocusedFieldIsYellow)
{
    auto form = open();
    ShowActive(*form);
    startRecipe(*form, "Breads", "Rolls");
    QLineEdit* ingredient = fields(*form)->ingredientBox(1);
    ingredient->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(ingredient->palette().color(QPalette::Base), QColor(255, 255, 0));
    fields(*form)->ingredientBox(2)->setFocus(Qt::MouseFocusReason);
    EXPECT_NE(ingredient->palette().color(QPalette::Base), QColor(255, 255, 0));
}

// ---- Modes and commands -------------------------------------------------------------------

TEST_F(Form5Test, TheFourModesSetTheirCommands)
{
    auto form = open();
    const auto enabled = [&](const char* name) { return act(*form, name)->isEnabled(); };
    EXPECT_EQ(strip(*form), "Recipe Files");
    EXPECT_TRUE(enabled("mCreate"));
    EXPECT_TRUE(enabled("mView"));
    EXPECT_FALSE(enabled("mModify"));
    EXPECT_FALSE(enabled("mSave"));
    EXPECT_FALSE(enabled("mDelete"));

    startRecipe(*form, "Breads", "Rolls");
    EXPECT_FALSE(enabled("mCreate"));
    EXPECT_FALSE(enabled("mView")) << "the cookbook has no recipe yet";
    EXPECT_TRUE(enabled("mSave")) << "typing enables Save";
    act(*form, "mSave")->trigger();

    pick(*form, "Rolls");
    EXPECT_TRUE(enabled("mCreate"));
    EXPECT_FALSE(enabled("mView"));
    EXPECT_TRUE(enabled("mModify"));
    EXPECT_TRUE(enabled("mDelete"));
    EXPECT_TRUE(enabled("mRename"));
    EXPECT_FALSE(enabled("mSave"));

    act(*form, "mModify")->trigger();
    EXPECT_FALSE(enabled("mModify"));
    EXPECT_TRUE(enabled("mDelete"));
    EXPECT_FALSE(enabled("mSave"));

    // The buttons follow their menu entries.
    EXPECT_FALSE(form->findChild<QPushButton*>("Command1_2")->isEnabled());
    EXPECT_TRUE(form->findChild<QPushButton*>("Command1_0")->isEnabled());
    // Tools of later screens are not faked.
    EXPECT_TRUE(enabled("mCalculate"));
    EXPECT_TRUE(enabled("mSearch"));
    EXPECT_TRUE(enabled("mPrint"));
    EXPECT_TRUE(enabled("mWorksheet"));
    for (const char* later : {"mSpelling", "mCopy", "mExport", "mImport"})
        EXPECT_FALSE(enabled(later)) << later;
}

// ---- Cookbooks ----------------------------------------------------------------------------

TEST_F(Form5Test, CaptionAndMenuComeFromTheTitles)
{
    WriteCookbookTitles({"Everyday", "Holidays"});
    WriteCurrentCookbook(2);
    WriteSlotText(QORBNAME, 1, u"Smith");
    Process().FamilyName = "Smith";
    auto form = open();
    EXPECT_EQ(form->windowTitle(), "Smith Recipe File - Cookbook # 2 - Holidays");
    EXPECT_EQ(act(*form, "mCookbook1")->text(), "Cookbook #1 - Everyday");
    EXPECT_EQ(act(*form, "mCookbook3")->text(), "Cookbook #3 - ");
    EXPECT_TRUE(act(*form, "mCookbook2")->isChecked());
    EXPECT_FALSE(act(*form, "mCookbook1")->isChecked());
}

TEST_F(Form5Test, AllTitlesEmptyLeaveTheCaptionEndingInADash)
{
    auto form = open();
    EXPECT_EQ(act(*form, "mCookbook3")->text(), "Cookbook #3 - ");
    EXPECT_EQ(form->windowTitle(), " Recipe File - Cookbook # 1 - ");
}

TEST_F(Form5Test, SwitchingCookbooksWritesSlotOneAndUsesTheOtherFiles)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    act(*form, "mCookbook3")->trigger();
    EXPECT_EQ(ReadSlotText(GColor4, 1), " 3");
    EXPECT_EQ(form->cookbook(), 3);
    EXPECT_TRUE(act(*form, "mCookbook3")->isChecked());
    EXPECT_FALSE(act(*form, "mCookbook1")->isChecked());
    saveQuickRecipe(*form, "Stews", "Lamb Stew");
    EXPECT_EQ(folder.bytesOf("Stewnfil.db3"), NameFile({Entry("Lamb Stew", 1)}));
    EXPECT_EQ(folder.bytesOf("Stewnfil.db1"), NameFile({Entry("Beef Stew", 1)}));
    EXPECT_EQ(folder.bytesOf("Recipe2.db3").size(), 2045);
}

TEST_F(Form5Test, SwitchingCookbooksReachesALowerCaseGcolor4)
{
    ASSERT_TRUE(QFile::rename(folder.filePath("GColor4.Fil"), folder.filePath("Gcolor4.fil")));
    auto form = open();
    EXPECT_EQ(form->cookbook(), 1);
    act(*form, "mCookbook5")->trigger();
    EXPECT_FALSE(QFile::exists(folder.filePath("GColor4.Fil")));
    EXPECT_EQ(folder.bytesOf("Gcolor4.fil").left(4), QByteArray("\x02\x00 5", 4));
}

TEST_F(Form5Test, SwitchingCookbooksAsksNothingAndDropsTheTypedRecipe)
{
    auto form = open();
    startRecipe(*form, "Breads", "Rolls");
    typeRow(*form, 0, "2", "cups", "flour");
    act(*form, "mCookbook2")->trigger();
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "");
    EXPECT_EQ(form->mode(), RecipeMode::Idle);
    EXPECT_TRUE(act(*form, "mCreate")->isEnabled());
    EXPECT_TRUE(act(*form, "mView")->isEnabled());
}

TEST_F(Form5Test, ANewCookbookEmptiesTheSearchResults)
{
    auto form = open();
    act(*form, "mCookbook2")->trigger();
    saveQuickRecipe(*form, "Stews", "Lamb Stew");
    act(*form, "mCookbook1")->trigger();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByRecipe")->click();
    form->findChild<QLineEdit*>("Text12")->setText("beef");
    form->findChild<QPushButton*>("cmdSearchNames")->click();
    form->findChild<QPushButton*>("cmdCloseNameSearch")->click();
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByIngredient")->click();
    form->findChild<QLineEdit*>("Text13")->setText("flour");
    form->findChild<QPushButton*>("cmdSearchAllRecipes")->click();
    form->findChild<QPushButton*>("cmdCloseIngredientSearch")->click();
    auto* nameGrid = form->findChild<QTableWidget*>("VSFlexGrid1");
    auto* ingredientGrid = form->findChild<QTableWidget*>("VSFlexGrid2");
    ASSERT_EQ(nameGrid->rowCount(), 1);
    ASSERT_EQ(ingredientGrid->rowCount(), 1);

    act(*form, "mCookbook2")->trigger();
    EXPECT_EQ(nameGrid->rowCount(), 0);
    EXPECT_EQ(ingredientGrid->rowCount(), 0);
    const QList<QLabel*> counts = form->findChildren<QLabel*>("lblMatches");
    ASSERT_EQ(counts.size(), 2);
    for (const QLabel* count : counts)
        EXPECT_TRUE(count->isHidden());
    for (const QLabel* noMatch : form->findChildren<QLabel*>("pnlNoMatch"))
        EXPECT_TRUE(noMatch->isHidden());

    // The old hit would have opened slot 1 of cookbook 2, the lamb stew.
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByRecipe")->click();
    auto* viewSelected = form->findChild<QPushButton*>("cmdViewSelectedName");
    EXPECT_FALSE(viewSelected->isEnabled());
    viewSelected->click();
    EXPECT_EQ(form->mode(), RecipeMode::Idle);
    EXPECT_EQ(form->currentRecordNumber(), 0);
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "");
}

TEST_F(Form5Test, SelectingTheCurrentCookbookClearsAndReloadsAllTheSame)
{
    auto form = open();
    startRecipe(*form, "Breads", "Rolls");
    act(*form, "mCookbook1")->trigger();
    EXPECT_EQ(fields(*form)->nameBox()->text(), "");
    EXPECT_TRUE(act(*form, "mCookbook1")->isChecked());
    EXPECT_EQ(form->mode(), RecipeMode::Idle);
}

TEST_F(Form5Test, CookbookTitlesPanelSavesAndCloses)
{
    auto form = open();
    act(*form, "mTitles")->trigger();
    auto* panel = form->findChild<QFrame*>("Cookbook Titles");
    ASSERT_FALSE(panel->isHidden());
    auto* second = form->findChild<QLineEdit*>("Text11_1");
    EXPECT_EQ(second->maxLength(), 30);
    second->setText("Holidays");
    form->findChild<QPushButton*>("cmdSaveTitles")->click();
    EXPECT_TRUE(panel->isHidden());
    EXPECT_EQ(ReadSlotText(GColor4, 3), "Holidays");
    EXPECT_EQ(act(*form, "mCookbook2")->text(), "Cookbook #2 - Holidays");
}

TEST_F(Form5Test, ABlankTitleSavedLeavesAnEmptyTextSlot)
{
    WriteCookbookTitles({"Everyday"});
    auto form = open();
    act(*form, "mTitles")->trigger();
    form->findChild<QLineEdit*>("Text11_0")->clear();
    form->findChild<QPushButton*>("cmdSaveTitles")->click();
    EXPECT_EQ(folder.bytesOf("GColor4.Fil").mid(40, 40), QByteArray(40, '\0'));
    EXPECT_EQ(form->windowTitle(), " Recipe File - Cookbook # 1 - ");
}

TEST_F(Form5Test, CloseOfTheTitlesPanelSavesNothing)
{
    auto form = open();
    act(*form, "mTitles")->trigger();
    form->findChild<QLineEdit*>("Text11_0")->setText("Changed");
    form->findChild<QPushButton*>("cmdCloseTitles")->click();
    EXPECT_EQ(ReadSlotText(GColor4, 2), "");
}

// ---- Panel colour ---------------------------------------------------------------------------

TEST_F(Form5Test, PanelColourIsReadFromItsSlot)
{
    WriteSlotText(GColor2, 25, u"65280"); // green in COLORREF order
    auto form = open();
    EXPECT_EQ(form->findChild<QLabel*>("SSPanel4")->palette().color(QPalette::Window), QColor(0, 255, 0));
}

TEST_F(Form5Test, PanelColourCommandAsksFirst)
{
    auto form = open();
    dialogs.expectMessage("Panel Color",
                          "Select New Color or Use System Default Color?\nYes = Color Selection Panel will appear.\n"
                          "No = Current System Default Color will be selected.",
                          Answer::Cancel);
    act(*form, "mPanelColor")->trigger();
    EXPECT_EQ(ReadSlotText(GColor2, 25), "");
}

// ---- From the main screen ------------------------------------------------------------------

namespace {
class LargeScreen final : public ScreenMetrics {
public:
    QSize sizeTwips() const override { return {28800, 16200}; }
};
} // namespace

TEST_F(Form5Test, TheMainScreensRecipeFileOpensTheRecipeScreenAndGetsTheFocusBack)
{
    Process().SplashShown = true;
    LargeScreen screen;
    Startfrm main(dialogs, screen);
    main.registerActivity(MainCommand::RecipeFiles, [this] { return new Form5(dialogs); });
    auto* recipeButton = main.findChild<QPushButton*>("Command1_0");
    ASSERT_TRUE(recipeButton->isEnabled());
    recipeButton->click();
    Form5* form = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Form5*>(window); found && found->isVisible())
            form = found;
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), " Recipe File - Cookbook # 1 - ");
    QTemporaryDir elsewhere;
    QDir::setCurrent(elsewhere.path());
    QSignalSpy closed(form, &ActivityWindow::closed);
    form->close();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(folder.path()).canonicalPath())
        << "the main screen enters the program folder again";
}

TEST_F(Form5Test, CreateInAnEmptyCookbookLeavesViewOff)
{
    auto form = open();
    act(*form, "mCreate")->trigger();
    EXPECT_FALSE(act(*form, "mView")->isEnabled());
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    act(*form, "mCreate")->trigger();
    EXPECT_TRUE(act(*form, "mView")->isEnabled());
}

TEST_F(Form5Test, ARightClickOpensTheOptionsMenu)
{
    auto form = open();
    form->show();
    auto* strip = form->findChild<QLabel*>("SSPanel4");
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(4, 4), strip->mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(strip, &click);
    auto* options = form->findChild<QMenu*>("mOptions");
    EXPECT_TRUE(options->isVisible());
    options->close();
}

// ---- The amount calculator ------------------------------------------------------------------

class Form5CalculatorTest : public Form5Test {
protected:
    // A recipe of 1 cup of flour and .33 tsp. of salt that yields 4, saved and viewed.
    void viewFourServings(Form5& form)
    {
        startRecipe(form, "Breads", "Biscuits");
        typeRow(form, 0, "1", "cup", "flour");
        typeRow(form, 1, ".33", "tsp.", "salt");
        QTest::keyClicks(form.findChild<QLineEdit*>("Text6"), "4");
        act(form, "mSave")->trigger();
        pick(form, "Biscuits");
    }
    QLineEdit* newYield(Form5& form) { return form.findChild<QLineEdit*>("Text9"); }
    void calculate(Form5& form, const QString& yield)
    {
        newYield(form)->setText(yield);
        form.findChild<QPushButton*>("Command9")->click();
    }
};

TEST_F(Form5CalculatorTest, ScalingAViewedRecipeAndSavingRewritesItsSlotOnly)
{
    auto form = open();
    viewFourServings(*form);
    const QByteArray names = folder.bytesOf("Breanfil.db1");
    act(*form, "mCalculate")->trigger();
    EXPECT_EQ(strip(*form), "Calculate Amts.");
    EXPECT_EQ(form->findChild<QLabel*>("Label20")->text(), "4");
    EXPECT_FALSE(act(*form, "mModify")->isEnabled());
    EXPECT_FALSE(act(*form, "mDelete")->isEnabled());
    calculate(*form, "6");
    EXPECT_EQ(fields(*form)->amountBox(0)->text(), "1 1/2");
    EXPECT_EQ(fields(*form)->unitBox(0)->text(), "cups");
    EXPECT_EQ(fields(*form)->amountBox(1)->text(), "1/2");
    EXPECT_EQ(form->amountWorkList()[0], "1.5");
    EXPECT_EQ(form->findChild<QLineEdit*>("Text6")->text(), "6");
    EXPECT_EQ(form->findChild<QLabel*>("Label20")->text(), "6");
    EXPECT_FALSE(act(*form, "mSave")->isEnabled()) << "Save waits until the panel closes";
    form->findChild<QPushButton*>("Command10")->click();
    EXPECT_EQ(strip(*form), "View Recipe");
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    act(*form, "mSave")->trigger();
    EXPECT_EQ(folder.bytesOf("Breanfil.db1"), names) << "the name file stays unchanged";
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(0, 10), "1.5  .5   ");
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(1104, 10), "cups      ");
    EXPECT_EQ(folder.bytesOf("Recipe2.db1").mid(2004, 5), "6    ");
}

TEST_F(Form5CalculatorTest, NoYieldMeansNoCalculator)
{
    auto form = open();
    startRecipe(*form, "Breads", "Biscuits");
    typeRow(*form, 0, "1", "cup", "flour");
    act(*form, "mSave")->trigger();
    pick(*form, "Biscuits");
    dialogs.expectMessage("Calculate Serving Information",
                          "There is no current Serving Information\nto perform new calculations on!");
    act(*form, "mCalculate")->trigger();
    EXPECT_TRUE(form->findChild<QFrame*>("Recipe Amount Calculator")->isHidden());
    EXPECT_EQ(strip(*form), "View Recipe");
}

TEST_F(Form5CalculatorTest, AYieldOutOfRangeIsRefused)
{
    auto form = open();
    viewFourServings(*form);
    act(*form, "mCalculate")->trigger();
    dialogs.expectMessage("Yield Entry Error", "New Yield Amounts can only be between .5 and 999.");
    calculate(*form, "1000");
    EXPECT_EQ(newYield(*form)->text(), "");
    EXPECT_EQ(fields(*form)->amountBox(0)->text(), "1") << "nothing changed";
}

TEST_F(Form5CalculatorTest, ACurrentYieldOfZeroIsACalculationError)
{
    auto form = open();
    startRecipe(*form, "Breads", "Biscuits");
    typeRow(*form, 0, "1", "cup", "flour");
    QTest::keyClicks(form->findChild<QLineEdit*>("Text6"), "0");
    act(*form, "mSave")->trigger();
    pick(*form, "Biscuits");
    act(*form, "mCalculate")->trigger();
    dialogs.expectMessage("Amount Calculator Error",
                          "A calculation Error has occured! Most likely an incorreect number was used for the "
                          "Recipe Yield or the amount boxes contain an inappropriate number or the maximun amount "
                          "limit of 999 was exceeded");
    calculate(*form, "2");
    EXPECT_FALSE(form->findChild<QFrame*>("Recipe Amount Calculator")->isHidden()) << "the panel stays";
    form->findChild<QPushButton*>("Command10")->click();
    EXPECT_FALSE(act(*form, "mSave")->isEnabled());
}

TEST_F(Form5CalculatorTest, InModifyModeTheBoxesKeepDecimals)
{
    auto form = open();
    viewFourServings(*form);
    act(*form, "mModify")->trigger();
    act(*form, "mCalculate")->trigger();
    EXPECT_EQ(strip(*form), "Calculate Amts.");
    calculate(*form, "8");
    EXPECT_EQ(fields(*form)->amountBox(0)->text(), "2");
    EXPECT_EQ(fields(*form)->amountBox(1)->text(), ".67");
    form->findChild<QPushButton*>("Command10")->click();
    EXPECT_EQ(strip(*form), "Modify Recipe");
    EXPECT_FALSE(act(*form, "mModify")->isEnabled());
}

TEST_F(Form5CalculatorTest, TypingANewYieldFollowsTheYieldType)
{
    auto form = open();
    startRecipe(*form, "Cakes, frostings, and fillings", "Sponge");
    typeRow(*form, 0, "2", "cups", "flour");
    QTest::keyClicks(form->findChild<QLineEdit*>("Text6"), "1");
    fields(*form)->yieldTypeList()->setEditText("Cake");
    act(*form, "mSave")->trigger();
    pick(*form, "Sponge");
    act(*form, "mCalculate")->trigger();
    QTest::keyClicks(newYield(*form), "2");
    EXPECT_EQ(form->findChild<QLabel*>("Label24")->text(), "Cakes");
    EXPECT_EQ(fields(*form)->yieldTypeList()->currentText(), "Cakes");
}

TEST_F(Form5CalculatorTest, OpeningTheCalculatorLeavesSearchAndTheCookbookMenusOn)
{
    auto form = open();
    viewFourServings(*form);
    const auto enabled = [&](const char* name) { return act(*form, name)->isEnabled(); };
    act(*form, "mCalculate")->trigger();
    for (const char* held : {"mCreate", "mView", "mModify", "mSave", "mDelete", "mPrint", "mCalculate", "mSpelling",
                             "mCopy"})
        EXPECT_FALSE(enabled(held)) << held;
    for (const char* free : {"mSearch", "mTitles", "mWorksheet", "mRename", "mExit", "mPanelColor"})
        EXPECT_TRUE(enabled(free)) << free;
    EXPECT_TRUE(form->findChild<QMenu*>("mSelectCookbook")->isEnabled());
    EXPECT_TRUE(form->findChild<QPushButton*>("Command1_7")->isEnabled()) << "the Search button";
    EXPECT_FALSE(fields(*form)->typeList()->isEnabled());
    EXPECT_FALSE(fields(*form)->pickList()->isEnabled());

    form->findChild<QPushButton*>("Command10")->click();
    for (const char* back : {"mCreate", "mModify", "mDelete", "mPrint", "mCalculate"})
        EXPECT_TRUE(enabled(back)) << back;
    EXPECT_FALSE(enabled("mView"));
    EXPECT_FALSE(enabled("mSave")) << "nothing was calculated";
    EXPECT_TRUE(fields(*form)->typeList()->isEnabled());
    EXPECT_TRUE(fields(*form)->pickList()->isEnabled());
}

TEST_F(Form5CalculatorTest, ACookbookChosenUnderTheCalculatorClosesIt)
{
    auto form = open();
    viewFourServings(*form);
    act(*form, "mCalculate")->trigger();
    act(*form, "mCookbook2")->trigger();
    EXPECT_TRUE(form->findChild<QFrame*>("Recipe Amount Calculator")->isHidden());
    EXPECT_EQ(strip(*form), "Recipe Files");
    EXPECT_TRUE(act(*form, "mCreate")->isEnabled());
    EXPECT_TRUE(act(*form, "mView")->isEnabled());
    EXPECT_TRUE(fields(*form)->typeList()->isEnabled());
}

TEST_F(Form5CalculatorTest, ARecipeViewedFromASearchUnderTheCalculatorClosesIt)
{
    auto form = open();
    viewFourServings(*form);
    act(*form, "mCalculate")->trigger();
    act(*form, "mSearch")->trigger();
    EXPECT_FALSE(form->findChild<QMenu*>("mSelectCookbook")->isEnabled()) << "the search panel holds the cookbooks";
    form->findChild<QPushButton*>("cmdSearchByRecipe")->click();
    form->findChild<QPushButton*>("cmdViewAllRecipes")->click();
    form->findChild<QPushButton*>("cmdViewSelectedName")->click();
    EXPECT_EQ(fields(*form)->pickList()->currentText(), "Biscuits");
    EXPECT_TRUE(form->findChild<QFrame*>("Recipe Amount Calculator")->isHidden());
    EXPECT_EQ(strip(*form), "View Recipe");
    EXPECT_TRUE(act(*form, "mCalculate")->isEnabled());
    EXPECT_TRUE(fields(*form)->pickList()->isEnabled());
}

// One panel at a time: the rename panel closes the calculator as its
// "&Close" would, and cancelling the rename leaves the viewed recipe.
TEST_F(Form5CalculatorTest, ARenameOverTheCalculatorClosesItFirst)
{
    auto form = open();
    viewFourServings(*form);
    act(*form, "mCalculate")->trigger();
    act(*form, "mRename")->trigger();
    EXPECT_EQ(strip(*form), "Name Change");
    EXPECT_TRUE(form->findChild<QFrame*>("Recipe Amount Calculator")->isHidden());
    EXPECT_EQ(form->openPanel(), RecipePanel::Rename);
    form->findChild<QPushButton*>("Command12")->click();
    EXPECT_EQ(strip(*form), "View Recipe");
    EXPECT_TRUE(act(*form, "mModify")->isEnabled());
    EXPECT_EQ(form->openPanel(), RecipePanel::None);
}

TEST_F(Form5CalculatorTest, DeletingARecipeEmptiesTheCalculatorAndTheSearchFields)
{
    auto form = open();
    viewFourServings(*form);
    act(*form, "mCalculate")->trigger();
    newYield(*form)->setText("6");
    form->findChild<QPushButton*>("Command10")->click();
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByRecipe")->click();
    auto* nameBox = form->findChild<QLineEdit*>("Text12");
    nameBox->setText("bisc");
    form->findChild<QPushButton*>("cmdSearchNames")->click();
    form->findChild<QPushButton*>("cmdCloseNameSearch")->click();
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByIngredient")->click();
    auto* firstIngredient = form->findChild<QLineEdit*>("Text13");
    auto* secondIngredient = form->findChild<QLineEdit*>("Text14");
    firstIngredient->setText("flour");
    secondIngredient->setText("salt");
    auto* searchTypes = form->findChild<QListWidget*>("lstSearchType");
    searchTypes->setCurrentRow(2); // "Breads"
    form->findChild<QPushButton*>("cmdSearchByType")->click();
    form->findChild<QPushButton*>("cmdCloseIngredientSearch")->click();
    auto* nameGrid = form->findChild<QTableWidget*>("VSFlexGrid1");
    auto* ingredientGrid = form->findChild<QTableWidget*>("VSFlexGrid2");
    ASSERT_EQ(nameGrid->rowCount(), 1);
    ASSERT_EQ(ingredientGrid->rowCount(), 1);

    dialogs.expectMessage("Delete Recipe", "Do you Really want to delete this Recipe?", Answer::Yes);
    act(*form, "mDelete")->trigger();
    EXPECT_EQ(newYield(*form)->text(), "");
    for (const char* label : {"Label20", "Label21", "Label24"})
        EXPECT_EQ(form->findChild<QLabel*>(label)->text(), "") << label;
    EXPECT_EQ(nameBox->text(), "");
    EXPECT_EQ(firstIngredient->text(), "");
    EXPECT_EQ(secondIngredient->text(), "");
    EXPECT_TRUE(searchTypes->selectedItems().isEmpty());
    EXPECT_EQ(nameGrid->rowCount(), 0);
    EXPECT_EQ(ingredientGrid->rowCount(), 0);
    for (const QLabel* count : form->findChildren<QLabel*>("lblMatches"))
        EXPECT_TRUE(count->isHidden());
}

// ---- Search ---------------------------------------------------------------------------------

TEST_F(Form5Test, SearchByNameCarriesTheChosenRecipeBackIntoTheScreen)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    saveQuickRecipe(*form, "Soups and sauces", "Beef Broth");
    saveQuickRecipe(*form, "Soups and sauces", "Onion Soup");
    act(*form, "mSearch")->trigger();
    EXPECT_FALSE(form->findChild<QMenu*>("mSelectCookbook")->isEnabled());
    EXPECT_FALSE(act(*form, "mTitles")->isEnabled());
    EXPECT_FALSE(act(*form, "mRename")->isEnabled());
    form->findChild<QPushButton*>("cmdSearchByRecipe")->click();
    auto* box = form->findChild<QLineEdit*>("Text12");
    ASSERT_NE(box, nullptr);
    box->setText("beef");
    form->findChild<QPushButton*>("cmdSearchNames")->click();
    auto* grid = form->findChild<QTableWidget*>("VSFlexGrid1");
    ASSERT_EQ(grid->rowCount(), 2);
    EXPECT_EQ(grid->item(0, 0)->text(), "Soups and sauces");
    EXPECT_EQ(grid->item(1, 0)->text(), "Stews");
    grid->selectRow(0);
    form->findChild<QPushButton*>("cmdViewSelectedName")->click();
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(fields(*form)->typeList()->currentText(), "Soups and sauces");
    EXPECT_EQ(fields(*form)->pickList()->currentText(), "Beef Broth");
    EXPECT_EQ(form->currentRecordNumber(), 2);
    EXPECT_EQ(form->mode(), RecipeMode::View);
    EXPECT_TRUE(act(*form, "mTitles")->isEnabled()) << "the cookbook menus come back";
}

TEST_F(Form5Test, IngredientSearchWithoutAnIngredientIsRefused)
{
    auto form = open();
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByIngredient")->click();
    dialogs.expectMessage("Search", "Please enter at least one ingredient to Search");
    form->findChild<QPushButton*>("cmdSearchAllRecipes")->click();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Question);
    dialogs.expectMessage("Search", "Please Select Type of Recipe to Search");
    dialogs.expectMessage("Search", "Please enter at least one ingredient to Search");
    form->findChild<QPushButton*>("cmdSearchByType")->click();
}

TEST_F(Form5Test, IngredientSearchFindsTheRecipe)
{
    auto form = open();
    startRecipe(*form, "Breads", "Egg Bread");
    typeRow(*form, 0, "2", "whole", "eggs");
    act(*form, "mSave")->trigger();
    saveQuickRecipe(*form, "Breads", "Plain Bread");
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByIngredient")->click();
    form->findChild<QLineEdit*>("Text13")->setText(" egg");
    form->findChild<QPushButton*>("cmdSearchAllRecipes")->click();
    auto* grid = form->findChild<QTableWidget*>("VSFlexGrid2");
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->item(0, 0)->text(), "Breads");
    form->findChild<QPushButton*>("cmdCloseIngredientSearch")->click();
    EXPECT_TRUE(act(*form, "mCreate")->isEnabled());
}

TEST_F(Form5CalculatorTest, ClosingThePanelLeavesTheKeyboardOnACommandNotAField)
{
    auto form = open();
    ShowActive(*form);
    viewFourServings(*form);
    act(*form, "mCalculate")->trigger();
    newYield(*form)->setFocus(Qt::OtherFocusReason);
    form->findChild<QPushButton*>("Command10")->click();
    EXPECT_TRUE(dialogs.messages().isEmpty()) << "no field was entered";
    EXPECT_TRUE(form->findChild<QPushButton*>("Command1_5")->hasFocus());
}

TEST_F(Form5Test, AltEOpensTheSearchOptions)
{
    auto form = open();
    ShowActive(*form);
    QTest::keyClick(form.get(), Qt::Key_E, Qt::AltModifier);
    QTest::qWait(300); // a mnemonic clicks its button as a mouse click would, after a moment
    EXPECT_FALSE(form->findChild<QFrame*>("Search Options")->isHidden());
}

TEST_F(Form5Test, AltRInTheSearchOptionsOpensTheNameSearch)
{
    auto form = open();
    ShowActive(*form);
    act(*form, "mSearch")->trigger();
    QTest::keyClick(form.get(), Qt::Key_R, Qt::AltModifier);
    QTest::qWait(300);
    EXPECT_FALSE(form->findChild<QFrame*>("Search Files by Recipe")->isHidden());
    EXPECT_TRUE(form->findChild<QFrame*>("Search Options")->isHidden());
    EXPECT_TRUE(form->findChild<QLineEdit*>("Text12")->hasFocus());
}

TEST_F(Form5Test, TheScreenFitsTheSmallestWindowAndUsesOneRowOfButtonsWhenWide)
{
    auto form = open();
    EXPECT_LE(form->minimumSizeHint().width(), 800);
    EXPECT_LE(form->minimumSizeHint().height(), 600);
    form->resize(800, 600);
    form->show();
    auto* create = form->findChild<QPushButton*>("Command1_0");
    auto* exitButton = form->findChild<QPushButton*>("Command1_9");
    EXPECT_GT(exitButton->y(), create->y()) << "two rows on a small window";
    form->resize(1600, 1000);
    QApplication::processEvents();
    EXPECT_EQ(exitButton->y(), create->y()) << "one row on a wide one";
}
