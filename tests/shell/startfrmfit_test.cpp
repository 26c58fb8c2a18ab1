// The main screen in a window of 800 by 600 and in the 960 by 540 that a
// 200 % screen leaves: its panel and nine buttons whole, none over another;
// and readable on a desktop with a dark theme.
#include "contrast_check.h"
#include "fit_check.h"
#include "shell/logic/processvalues.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/startfrm.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace {

class LargeScreen final : public ScreenMetrics {
public:
    QSize sizeTwips() const override { return QSize(28800, 16200); }
};

class StartfrmFit : public ::testing::Test {
protected:
    StartfrmFit()
    {
        Process() = ProcessValues{};
        Process().SplashShown = true;
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    LargeScreen screen;
};

} // namespace

TEST_F(StartfrmFit, TheMainScreenFits)
{
    Startfrm form(dialogs, screen);
    form.show();
    for (const FitSize& fit : kFitSizes)
        EXPECT_EQ(FitProblemsAt(&form, fit.size), "") << fit.name;
}

TEST_F(StartfrmFit, TheMainScreenReadsOnADarkDesktop)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(DarkDesktopPalette());
    {
        Startfrm form(dialogs, screen);
        form.show();
        EXPECT_EQ(UnreadableTexts(&form), QStringList());
    }
    QApplication::setPalette(before);
}
