// An older recipe file found when the recipe screen opens: the first of
// "&Create", "&View", "S&earch" or a choice in the pick list converts it
// under a progress panel, and then does its own work on the converted file.
// The waits are instant here; each records what the panel showed.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/olddatabase.h"
#include "fit_check.h"
#include "form5_fixture.h"
#include "layout_bytes.h"
#include "recipetools/screens/conversionpanel.h"
#include "shell/logic/waits.h"

#include <QDir>
#include <QFile>
#include <QProgressBar>
#include <QPushButton>

namespace {

const QString kConvertingText = QStringLiteral(
    "Recipe function has found an older recipe data base Converion to New Database is in Progress");
const QString kCompleteText = QStringLiteral("Conversion Complete\n");

// What the panel showed when a wait began.
struct WaitSeen {
    int seconds = 0;
    bool panelShown = false;
    QString text;
    int bar = -1;
    bool recipeFileConverted = false;
};

class Form5OldDatabaseTest : public Form5Test {
protected:
    Form5OldDatabaseTest()
    {
        oldFile = layout::OldRecipeSlot(layout::OldSampleRecipe(1)) + layout::Zeros(1545)
            + layout::OldRecipeSlot(layout::OldSampleRecipe(3));
        folder.writeBytes("Recipe2.db1", oldFile);
        folder.writeBytes("Appenfil.db1", layout::NameFile({layout::Entry("Old Punch", 1), layout::Entry("Old Dip", 3)}));
        WaitSeam::set([this](int seconds) {
            waits.append({seconds, panel().isVisible(), panel().captionLabel()->text(), panel().progressBar()->value(),
                          folder.bytesOf("Recipe2.db1").size() == 3 * RecipeRecord::kSize});
            if (duringWait)
                duringWait();
        });
    }
    ~Form5OldDatabaseTest() override { WaitSeam::clear(); }

    ConversionPanel& panel() const { return *current->conversionPanel(); }
    // Opens the screen on the old file and keeps it for the waits to look at.
    Form5& screen()
    {
        owned = open();
        current = owned.get();
        EXPECT_TRUE(current->conversionPending());
        return *current;
    }
    void expectConvertedOnce()
    {
        ASSERT_EQ(waits.size(), 2);
        EXPECT_EQ(waits[0].seconds, 1);
        EXPECT_EQ(waits[1].seconds, 2);
        EXPECT_EQ(folder.bytesOf("Recipe2.db1").size(), 3 * RecipeRecord::kSize);
        EXPECT_TRUE(ReadRecipe(1, 3).record.isUsed());
        EXPECT_FALSE(current->conversionPending());
        EXPECT_FALSE(panel().isVisible());
    }
    void expectNothingConverted()
    {
        EXPECT_TRUE(waits.isEmpty());
        EXPECT_EQ(folder.bytesOf("Recipe2.db1"), oldFile);
        EXPECT_FALSE(current->conversionPending());
    }

    QByteArray oldFile;
    QList<WaitSeen> waits;
    std::function<void()> duringWait;
    std::unique_ptr<Form5> owned;
    Form5* current = nullptr;
};

} // namespace

TEST_F(Form5OldDatabaseTest, ThePanelTellsTheConversionAndItsBarRunsThroughEverySlot)
{
    Form5& form = screen();
    ShowActive(form);
    EXPECT_FALSE(panel().isVisible());
    QList<int> barValues;
    QObject::connect(panel().progressBar(), &QProgressBar::valueChanged, [&](int value) { barValues << value; });

    act(form, "mCreate")->trigger();

    expectConvertedOnce();
    EXPECT_EQ(panel().progressBar()->minimum(), 0);
    EXPECT_EQ(panel().progressBar()->maximum(), kOldSlotsConverted);
    // From 0, one step for every slot.
    ASSERT_EQ(barValues.size(), kOldSlotsConverted + 1);
    for (int i = 0; i < barValues.size(); ++i)
        ASSERT_EQ(barValues[i], i);
    // A second, with the bar at its end and the first text still shown.
    EXPECT_TRUE(waits[0].panelShown);
    EXPECT_EQ(waits[0].text, kConvertingText);
    EXPECT_EQ(waits[0].bar, kOldSlotsConverted);
    EXPECT_FALSE(waits[0].recipeFileConverted);
    // Two more once the converted file has taken the old one's place.
    EXPECT_TRUE(waits[1].panelShown);
    EXPECT_EQ(waits[1].text, kCompleteText);
    EXPECT_TRUE(waits[1].recipeFileConverted);
    EXPECT_EQ(form.mode(), RecipeMode::Create) << "the command goes on";
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(Form5OldDatabaseTest, CreateConvertsFirstAndOnlyOnce)
{
    Form5& form = screen();
    act(form, "mCreate")->trigger();
    act(form, "mCreate")->trigger();
    expectConvertedOnce();
    EXPECT_EQ(form.mode(), RecipeMode::Create);
}

TEST_F(Form5OldDatabaseTest, ViewConvertsFirstAndOnlyOnce)
{
    Form5& form = screen();
    act(form, "mView")->trigger();
    fields(form)->pickList()->hidePopup();
    act(form, "mView")->trigger();
    fields(form)->pickList()->hidePopup();
    expectConvertedOnce();
    EXPECT_EQ(form.mode(), RecipeMode::View);
}

TEST_F(Form5OldDatabaseTest, SearchConvertsFirstAndOnlyOnce)
{
    Form5& form = screen();
    act(form, "mSearch")->trigger();
    EXPECT_EQ(form.openPanel(), RecipePanel::Search);
    form.pressEscape();
    act(form, "mSearch")->trigger();
    expectConvertedOnce();
    EXPECT_EQ(form.openPanel(), RecipePanel::Search);
}

TEST_F(Form5OldDatabaseTest, ChoosingInThePickListConvertsFirstAndShowsTheOldRowsInTheRightColumn)
{
    Form5& form = screen();
    Choose(fields(form)->typeList(), "Appetizers and beverages");
    fields(form)->pickList()->hidePopup();
    EXPECT_TRUE(waits.isEmpty()) << "choosing a type converts nothing";

    pick(form, "Old Dip");
    pick(form, "Old Punch");

    expectConvertedOnce();
    EXPECT_EQ(form.mode(), RecipeMode::View);
    EXPECT_EQ(form.currentRecordNumber(), 1);
    EXPECT_EQ(fields(form)->ingredientBox(6)->text(), "ingredient 07 of recipe 1");
    EXPECT_EQ(fields(form)->ingredientBox(7)->text(), "");
    EXPECT_EQ(fields(form)->ingredientBox(10)->text(), "ingredient 08 of recipe 1");
    EXPECT_EQ(fields(form)->unitBox(16)->text(), "unit 1-14");
    EXPECT_EQ(fields(form)->ingredientBox(17)->text(), "");
}

TEST_F(Form5OldDatabaseTest, CookbookTwoCurrentNothingHappensWhateverCookbookOneHolds)
{
    WriteSlotText(GColor4, 1, u" 2");
    owned = open();
    current = owned.get();
    EXPECT_FALSE(current->conversionPending());
    act(*current, "mCreate")->trigger();
    act(*current, "mView")->trigger();
    expectNothingConverted();
}

TEST_F(Form5OldDatabaseTest, SwitchingToCookbookTwoBeforeCreateClearsTheFlagWithoutConverting)
{
    Form5& form = screen();
    act(form, "mCookbook2")->trigger();
    ASSERT_EQ(form.cookbook(), 2);
    EXPECT_TRUE(form.conversionPending()) << "switching keeps the flag";
    act(form, "mCreate")->trigger();
    expectNothingConverted();
    EXPECT_EQ(form.mode(), RecipeMode::Create);
}

TEST_F(Form5OldDatabaseTest, ACurrentRecipeFileWithFullWhereAnOldMarkWouldBeIsNotConverted)
{
    layout::Recipe recipe;
    recipe.ingredients[6] = QByteArray(26, 'x') + "Full ";
    recipe.slotMark = "Full1";
    oldFile = layout::RecipeSlot(recipe);
    folder.writeBytes("Recipe2.db1", oldFile);
    Form5& form = screen();
    act(form, "mCreate")->trigger();
    expectNothingConverted();
}

TEST_F(Form5OldDatabaseTest, ClicksAndKeysDuringTheConversionDoNothing)
{
    Form5& form = screen();
    ShowActive(form);
    bool tried = false;
    duringWait = [&] {
        if (tried)
            return;
        tried = true;
        // "&Create", "&View", "S&earch" and "E&xit" on the screen.
        for (const char* name : {"Command1_0", "Command1_1", "Command1_7", "Command1_9"}) {
            QPushButton* button = form.findChild<QPushButton*>(name);
            ASSERT_NE(button, nullptr) << name;
            EXPECT_FALSE(button->isEnabled()) << name;
            QTest::mouseClick(button, Qt::LeftButton);
        }
        for (const char* name : {"mCreate", "mView", "mSearch", "mExit", "mCookbook2"})
            EXPECT_FALSE(act(form, name)->isEnabled()) << name;
        QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_FALSE(form.close()) << "the close box is held";
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(FitProblemsAt(&form, {800, 600}), "") << "the panel fits";
    };

    act(form, "mCreate")->trigger();

    EXPECT_TRUE(tried);
    expectConvertedOnce();
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.cookbook(), 1);
    EXPECT_EQ(form.mode(), RecipeMode::Create);
    EXPECT_TRUE(act(form, "mExit")->isEnabled()) << "the commands come back";
}

TEST_F(Form5OldDatabaseTest, AFailedWriteIsToldAndTheCommandStopsWithTheOldFileUnchanged)
{
    ASSERT_TRUE(QDir().mkdir(folder.filePath("Recipe3.db1")));
    Form5& form = screen();
    dialogs.expectMessage("Recipe File",
                          "The older recipe file could not be converted. Your recipes have not been changed.");

    act(form, "mCreate")->trigger();

    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].buttons, Buttons::Ok);
    EXPECT_EQ(dialogs.messages()[0].defaultButton, 1);
    EXPECT_TRUE(waits.isEmpty());
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), oldFile);
    EXPECT_EQ(form.mode(), RecipeMode::Idle) << "Create went no further";
    EXPECT_TRUE(form.conversionPending()) << "the next command tries again";
    EXPECT_FALSE(panel().isVisible());
    EXPECT_TRUE(act(form, "mCreate")->isEnabled());
}

TEST_F(Form5OldDatabaseTest, AWriteFailingPartWayLeavesTheOldFileAndNoNewOne)
{
    Form5& form = screen();
    dialogs.expectMessage("Recipe File",
                          "The older recipe file could not be converted. Your recipes have not been changed.");
    int writes = 0;
    FileWriteSeam::set([&](const QString&) { return ++writes < 2; }, {});
    act(form, "mView")->trigger();
    FileWriteSeam::clear();

    EXPECT_EQ(writes, 2);
    EXPECT_EQ(folder.bytesOf("Recipe2.db1"), oldFile);
    EXPECT_FALSE(QFile::exists(folder.filePath("Recipe3.db1")));
    EXPECT_EQ(form.mode(), RecipeMode::Idle);
    EXPECT_TRUE(dialogs.scriptDone());
}
