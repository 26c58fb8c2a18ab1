// The food guide on each of its pages and the measurement converter in both
// entry modes, in a window of 800 by 600 and in the 960 by 540 that a 200 %
// screen leaves: nothing cut off, squeezed or overlapping.
#include "fit_check.h"
#include "guides/screens/convform.h"
#include "guides/screens/foodg.h"
#include "shell/logic/processvalues.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QAction>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class GuidesFitTest : public ::testing::Test {
protected:
    GuidesFitTest() { Process() = ProcessValues{}; }

    template <typename Screen>
    std::unique_ptr<Screen> open()
    {
        auto form = std::make_unique<Screen>(dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        form->show();
        return form;
    }
    static void expectFits(QWidget& form, const std::string& state)
    {
        for (const FitSize& fit : kFitSizes)
            EXPECT_EQ(FitProblemsAt(&form, fit.size), "") << state << " at " << fit.name;
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

} // namespace

TEST_F(GuidesFitTest, EveryFoodGuidePageFits)
{
    auto form = open<Foodg>();
    for (const char* page : {"mFoodGuide", "mCommonMeasures", "mMenuIdeas", "mHelpfulHints", "mHealthySubstitutes"}) {
        QAction* action = form->findChild<QAction*>(page);
        ASSERT_NE(action, nullptr) << page;
        action->trigger();
        expectFits(*form, page);
    }
}

TEST_F(GuidesFitTest, TheConverterFitsInBothEntryModes)
{
    auto form = open<Convform>();
    expectFits(*form, "single entry");
    QTest::keyClicks(form->findChild<QLineEdit*>("Text1"), "3");
    form->findChild<QRadioButton*>("Option1_12")->click();
    expectFits(*form, "single entry with a result");
    form->findChild<QAction*>("mMultipleEntry")->trigger();
    expectFits(*form, "multiple entry");
}
