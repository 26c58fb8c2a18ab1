// No silent loss on the recipe screen: a file that cannot be written (here a
// folder stands where the file should be, which fails a write even for the
// root user) is named in a message, the screen keeps what was typed and its
// changed flag, the command goes no further, and no byte of the other files
// changes.
#include "common/writefailure.h"
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"
#include "form5_fixture.h"
#include "recipetools/screens/cookbooktitlespanel.h"
#include "recipetools/screens/renamepanel.h"

#include <QDir>
#include <QFile>
#include <QPushButton>

namespace {

class Form5WriteFailureTest : public Form5Test {
protected:
    // A folder in the file's place: every write to it fails.
    void blockFile(const QString& name)
    {
        QFile::remove(name);
        ASSERT_TRUE(QDir().mkdir(name)) << name.toStdString();
    }
    void expectWriteFailed(const QString& name)
    {
        const Message message = WriteFailedMessage(name);
        dialogs.expectMessage(message.title, message.text);
    }
    QByteArray bytes(const char* name) const { return folder.bytesOf(name); }
};

} // namespace

TEST_F(Form5WriteFailureTest, ANewRecipeThatCannotBeWrittenStaysOnTheScreen)
{
    auto form = open();
    startRecipe(*form, "Stews", "Beef Stew");
    typeRow(*form, 0, "2", "lbs.", "beef");
    blockFile(QStringLiteral("Recipe2.db1"));
    expectWriteFailed(QStringLiteral("Recipe2.db1"));
    act(*form, "mSave")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->mode(), RecipeMode::Create);
    EXPECT_TRUE(form->recipeChanged());
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    EXPECT_EQ(fields(*form)->nameBox()->text(), "Beef Stew");
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "beef");
    EXPECT_TRUE(ReadNameList(1, RecipeType::Stews).isEmpty()) << "no name without its recipe";
}

TEST_F(Form5WriteFailureTest, ANameFileThatCannotBeWrittenFreesTheSlotAgain)
{
    auto form = open();
    startRecipe(*form, "Stews", "Beef Stew");
    typeRow(*form, 0, "2", "lbs.", "beef");
    blockFile(QStringLiteral("Stewnfil.db1"));
    expectWriteFailed(QStringLiteral("Stewnfil.db1"));
    act(*form, "mSave")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(fields(*form)->nameBox()->text(), "Beef Stew");
    EXPECT_TRUE(form->recipeChanged());
    EXPECT_FALSE(CookbookHasRecipes(1)) << "a recipe no list names is no recipe";
    EXPECT_EQ(FindFreeSlot(1), 1);
}

TEST_F(Form5WriteFailureTest, AChangedRecipeWhosePictureFileFailsKeepsItsOldRecord)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    pick(*form, "Beef Stew");
    const QByteArray recipes = bytes("Recipe2.db1");
    const QByteArray names = bytes("Stewnfil.db1");
    act(*form, "mModify")->trigger();
    QTest::keyClicks(fields(*form)->ingredientBox(1), "salt");
    blockFile(QStringLiteral("Recipe4.db1"));
    expectWriteFailed(QStringLiteral("Recipe4.db1"));
    act(*form, "mSave")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->mode(), RecipeMode::Modify);
    EXPECT_TRUE(form->recipeChanged());
    EXPECT_EQ(fields(*form)->ingredientBox(1)->text(), "salt");
    EXPECT_EQ(bytes("Recipe2.db1"), recipes);
    EXPECT_EQ(bytes("Stewnfil.db1"), names);
}

TEST_F(Form5WriteFailureTest, ADeleteThatCannotRewriteTheNamesDeletesNothing)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    pick(*form, "Beef Stew");
    const QByteArray recipes = bytes("Recipe2.db1");
    blockFile(QStringLiteral("Stewnfil.db1"));
    dialogs.expectMessage("Delete Recipe", "Do you Really want to delete this Recipe?", Answer::Yes);
    expectWriteFailed(QStringLiteral("Stewnfil.db1"));
    act(*form, "mDelete")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(bytes("Recipe2.db1"), recipes);
    EXPECT_EQ(form->mode(), RecipeMode::View);
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "flour");
}

TEST_F(Form5WriteFailureTest, ARenameThatCannotBeWrittenKeepsThePanelAndTheOldName)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    pick(*form, "Beef Stew");
    const QByteArray recipes = bytes("Recipe2.db1");
    act(*form, "mRename")->trigger();
    auto* panel = form->findChild<RenamePanel*>();
    QTest::keyClicks(panel->newNameBox(), "Hearty Stew");
    blockFile(QStringLiteral("Stewnfil.db1"));
    expectWriteFailed(QStringLiteral("Stewnfil.db1"));
    form->findChild<QPushButton*>("Command11")->click();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_FALSE(panel->isHidden());
    EXPECT_EQ(panel->newNameBox()->text(), "Hearty Stew");
    EXPECT_EQ(bytes("Recipe2.db1"), recipes);
}

TEST_F(Form5WriteFailureTest, TitlesThatCannotBeWrittenStayInThePanel)
{
    auto form = open();
    act(*form, "mTitles")->trigger();
    auto* panel = form->findChild<CookbookTitlesPanel*>();
    QTest::keyClicks(form->findChild<QLineEdit*>("Text11_0"), "Holidays");
    blockFile(QStringLiteral("GColor4.Fil"));
    expectWriteFailed(QStringLiteral("GColor4.Fil"));
    form->findChild<QPushButton*>("cmdSaveTitles")->click();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_FALSE(panel->isHidden());
    EXPECT_EQ(form->findChild<QLineEdit*>("Text11_0")->text(), "Holidays");
}

TEST_F(Form5WriteFailureTest, ACookbookThatCannotBeChosenLeavesTheScreenAsItWas)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    pick(*form, "Beef Stew");
    blockFile(QStringLiteral("GColor4.Fil"));
    expectWriteFailed(QStringLiteral("Gcolor4.fil"));
    act(*form, "mCookbook2")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->mode(), RecipeMode::View);
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "flour");
    EXPECT_EQ(form->cookbook(), 1);
}

// A name whose record number is 0 opens blank; changes to it cannot go back
// to a slot, and the user is told instead of losing them without a word.
TEST_F(Form5WriteFailureTest, ANameThatPointsNowhereOpensBlankAndItsChangesAreNotLostSilently)
{
    ASSERT_TRUE(RebuildNameFile(1, RecipeType::Stews, {MakeNameEntry(u"Lost Stew", 0)}).held());
    auto form = open();
    Choose(fields(*form)->typeList(), "Stews");
    act(*form, "mView")->trigger();
    pick(*form, "Lost Stew");
    EXPECT_EQ(form->mode(), RecipeMode::View);
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "");
    act(*form, "mModify")->trigger();
    QTest::keyClicks(fields(*form)->ingredientBox(0), "beef");
    dialogs.expectMessage("Save",
                          "The changes to this recipe could not be saved: its name points at no place in the cookbook "
                          "file.\nTo keep the recipe, start it anew with Create and save it there.");
    act(*form, "mSave")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(form->recipeChanged());
    EXPECT_EQ(fields(*form)->ingredientBox(0)->text(), "beef");
    EXPECT_FALSE(CookbookHasRecipes(1));
}
