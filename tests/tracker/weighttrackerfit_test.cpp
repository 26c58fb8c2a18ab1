// The weight tracker in a window of 800 by 600 and in the 960 by 540 of a
// 200 % screen: nothing cut off, squeezed or overlapping, with the weigh-ins,
// the plan, the graph, the picture chooser and the print panel.
#include "fit_check.h"
#include "weighttracker_fixture.h"

#include "shell/kit/picturechooserpanel.h"
#include "tracker/screens/planpanel.h"

namespace {

class WeightTrackerFitTest : public WeightTrackerTest {
protected:
    std::unique_ptr<WeightTracker> openSmall()
    {
        storePat();
        auto form = open();
        form->resize(800, 600);
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        pick(*form, kPat);
        return form;
    }

    static std::string problems(WeightTracker& form)
    {
        QApplication::processEvents();
        return FitProblemsAtBothSizes(&form);
    }
};

} // namespace

TEST_F(WeightTrackerFitTest, TheWeighInsAndThePlanFit)
{
    auto form = openSmall();
    EXPECT_EQ(form->size(), QSize(800, 600));
    EXPECT_EQ(problems(*form), "");
    run(*form, "mPlan");
    EXPECT_EQ(problems(*form), "");
}

TEST_F(WeightTrackerFitTest, CreatingFits)
{
    auto form = openSmall();
    run(*form, "mCreate");
    EXPECT_EQ(problems(*form), "");
}

TEST_F(WeightTrackerFitTest, TheGraphFits)
{
    auto form = openSmall();
    run(*form, "mGraph");
    EXPECT_EQ(problems(*form), "");
}

TEST_F(WeightTrackerFitTest, ThePictureChooserFits)
{
    auto form = openSmall();
    run(*form, "mPlan");
    form->planPanel()->slot(0).addEdit->click();
    ASSERT_TRUE(form->pictureChooser()->isVisible());
    EXPECT_EQ(problems(*form), "");
}

TEST_F(WeightTrackerFitTest, ThePrintPanelFits)
{
    auto form = openSmall();
    run(*form, "mPrint");
    EXPECT_EQ(problems(*form), "");
}

TEST_F(WeightTrackerFitTest, TheCalendarFits)
{
    auto form = openSmall();
    emit form->grid()->cellClicked(2, WeightTracker::kDateColumn);
    ASSERT_TRUE(form->calendar()->isOpen());
    EXPECT_EQ(problems(*form), "");
}
