// The shopping list screen in a window of 800 by 600, and in the 960 by 540
// of a 200 % screen, with each of its panels
// open, and the order in which Escape closes them.
#include "shoplist_select_fixture.h"

#include "fit_check.h"

#include "print/screens/pagepreview.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/popupcalendar.h"
#include "shell/screens/backgroundselector.h"
#include "shopping/screens/amountpanel.h"

#include <QHeaderView>
#include <QTableWidget>

class ShoplistFitTest : public ShoplistSelectTest {
protected:
    std::unique_ptr<Shoplist> openSmall()
    {
        auto form = open();
        form->resize(800, 600);
        QCoreApplication::processEvents();
        return form;
    }
};

TEST_F(ShoplistFitTest, TheScreenFitsAWindowOf800By600)
{
    auto form = openSmall();
    EXPECT_EQ(FitProblemsAtBothSizes(form.get()), "");
}

TEST_F(ShoplistFitTest, BothHeadingsOfTheGridShowWholeAt800By600)
{
    auto form = openSmall();
    form->show();
    form->resize(800, 600);
    QCoreApplication::processEvents();
    auto* grid = form->findChild<QTableWidget*>(QStringLiteral("VSFlexGrid1"));
    ASSERT_NE(grid, nullptr);
    const QFontMetrics heading(grid->horizontalHeader()->font());
    EXPECT_GE(grid->columnWidth(0), heading.horizontalAdvance(QStringLiteral("Grocery Item")));
    EXPECT_GE(grid->columnWidth(1), heading.horizontalAdvance(QStringLiteral("Amount to Purchase")));
}

TEST_F(ShoplistFitTest, TheAmountPanelFits)
{
    auto form = openSmall();
    addItem(*form, "Milk");
    clickCell(*form, 1, 1);
    ASSERT_TRUE(form->amountPanel()->isVisible());
    EXPECT_EQ(FitProblemsAtBothSizes(form.get()), "");
}

TEST_F(ShoplistFitTest, RecipeSelectFitsWithTwentyBoxes)
{
    layout::CookbookFiles fifth;
    layout::Recipe recipe;
    for (int row = 0; row < 20; ++row) {
        recipe.ingredients[row] = "a rather long ingredient name " + QByteArray::number(row);
        recipe.amounts[row] = "12.5";
        recipe.amountTypes[row] = "tablespoon";
    }
    recipe.slotMark = "Full1";
    fifth.record(1, recipe);
    fifth.names(RecipeType::Entrees, {layout::Entry("Everything", 1)});
    ASSERT_TRUE(fifth.write(folder.path(), 5));
    WriteSlotText(GColor4, 11, u" 5");
    auto form = openSmall();
    showRecipe(*form, "Entrees", "Everything");
    ASSERT_EQ(recipePanel(*form)->shownCaptions().size(), 20);
    EXPECT_EQ(FitProblemsAtBothSizes(form.get()), "");
}

TEST_F(ShoplistFitTest, QuickSelectFits)
{
    auto form = openSmall();
    act(*form, "mQuickSelect")->trigger();
    EXPECT_EQ(FitProblemsAtBothSizes(form.get()), "");
}

TEST_F(ShoplistFitTest, ThePrintPanelFits)
{
    auto form = openSmall();
    addItem(*form, "Milk");
    act(*form, "mPrintOptions")->trigger();
    EXPECT_EQ(FitProblemsAtBothSizes(form.get()), "");
}

TEST_F(ShoplistFitTest, EscapeClosesPrintQuickSelectRecipeSelectCalendarAndBackgroundSelectorThenAsksToExit)
{
    auto form = open();
    addItem(*form, "Milk");
    // The print panel, its large view first.
    act(*form, "mPrintOptions")->trigger();
    form->printPanel()->enlargeButton()->click();
    form->pressEscape();
    EXPECT_TRUE(form->printPanel()->isVisible());
    form->pressEscape();
    EXPECT_FALSE(form->printPanel()->isVisible());
    // Quick Select, then Recipe Select.
    act(*form, "mQuickSelect")->trigger();
    QTest::keyClick(form->quickSelectPanel()->command(QuickSelectPanel::kLeave), Qt::Key_Escape);
    EXPECT_FALSE(form->quickSelectPanel()->isVisible());
    act(*form, "mRecipeSelect")->trigger();
    form->pressEscape();
    EXPECT_FALSE(form->recipeSelectPanel()->isVisible());
    EXPECT_EQ(form->openPanel(), ShoplistPanel::None);
    // The calendar, then the grid's background selector.
    QTest::mouseClick(dateBox(*form), Qt::LeftButton);
    ASSERT_TRUE(form->calendar()->isOpen());
    form->pressEscape();
    EXPECT_FALSE(form->calendar()->isOpen());
    EXPECT_EQ(dateBox(*form)->text(), "11/15/26");
    act(*form, "mGridBackground")->trigger();
    ASSERT_TRUE(form->gridBackgroundSelector()->isOpen());
    form->pressEscape();
    EXPECT_FALSE(form->gridBackgroundSelector()->isOpen());
    // With nothing open Escape is "E&xit", question and all.
    dialogs.expectMessage("Grocery List", "Save changes made to Grocery Item Grid before exiting?", Answer::No);
    form->pressEscape();
    EXPECT_EQ(dialogs.messages().last().buttons, Buttons::YesNoCancel);
    EXPECT_FALSE(form->isVisible());
}
