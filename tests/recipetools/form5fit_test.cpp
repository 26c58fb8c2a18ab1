// The recipe screen in a window of 800 by 600, and in the 960 by 540 that a
// 1920 by 1080 screen at 200 % scale offers: nothing cut off, squeezed or
// overlapping, in every mode and with every panel open.
#include "fit_check.h"
#include "form5_fixture.h"
#include "print/screens/printoptionspanel.h"

#include <QPushButton>

namespace {

class Form5FitTest : public Form5Test {
protected:
    void expectFits(Form5& form, const char* state)
    {
        for (const FitSize& fit : kFitSizes)
            EXPECT_EQ(FitProblemsAt(&form, fit.size), "") << state << " at " << fit.name;
    }
    // A recipe with a yield, viewed.
    void viewStew(Form5& form)
    {
        startRecipe(form, "Stews", "Beef Stew");
        typeRow(form, 0, "2", "lbs.", "beef");
        QTest::keyClicks(fields(form)->yieldAmountBox(), "4");
        act(form, "mSave")->trigger();
        fields(form)->pickList()->hidePopup();
        pick(form, "Beef Stew");
    }
};

} // namespace

TEST_F(Form5FitTest, EveryModeFits)
{
    auto form = open();
    ShowActive(*form);
    expectFits(*form, "idle");
    act(*form, "mCreate")->trigger();
    expectFits(*form, "create");
    act(*form, "mCreate")->trigger();
    Choose(fields(*form)->typeList(), "Stews");
    QTest::keyClicks(fields(*form)->nameBox(), "Beef Stew");
    typeRow(*form, 0, "2", "lbs.", "beef");
    QTest::keyClicks(fields(*form)->yieldAmountBox(), "4");
    act(*form, "mSave")->trigger();
    fields(*form)->pickList()->hidePopup();
    pick(*form, "Beef Stew");
    expectFits(*form, "view");
    act(*form, "mModify")->trigger();
    expectFits(*form, "modify");
}

TEST_F(Form5FitTest, EveryPanelFits)
{
    auto form = open();
    ShowActive(*form);
    viewStew(*form);
    act(*form, "mCalculate")->trigger();
    expectFits(*form, "calculator");
    form->findChild<QPushButton*>("Command10")->click();
    act(*form, "mRename")->trigger();
    expectFits(*form, "rename");
    form->findChild<QPushButton*>("Command12")->click();
    act(*form, "mTitles")->trigger();
    expectFits(*form, "titles");
    form->findChild<QPushButton*>("cmdCloseTitles")->click();
    act(*form, "mSearch")->trigger();
    expectFits(*form, "search options");
    form->findChild<QPushButton*>("cmdSearchByRecipe")->click();
    expectFits(*form, "search by recipe");
    form->findChild<QPushButton*>("cmdCloseNameSearch")->click();
    act(*form, "mSearch")->trigger();
    form->findChild<QPushButton*>("cmdSearchByIngredient")->click();
    expectFits(*form, "search by ingredient");
    form->findChild<QPushButton*>("cmdCloseIngredientSearch")->click();
    act(*form, "mPrint")->trigger();
    expectFits(*form, "print options");
}
