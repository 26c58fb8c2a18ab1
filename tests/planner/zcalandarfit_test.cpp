// The planner in a window of 800 by 600 and in the 960 by 540 of a 200 %
// screen: nothing cut off, squeezed or
// overlapping, with one and with three months, and with every panel open.
#include "zcalandar_fixture.h"

#include "planner/screens/menuviewpanel.h"
#include "print/screens/printoptionspanel.h"

#include "fit_check.h"
#include "raw_slots.h"

#include <QComboBox>
#include <QRadioButton>

namespace {

class ZcalandarFitTest : public ZcalandarTest {
protected:
    std::unique_ptr<Zcalandar> openSmall(int months)
    {
        WriteSlotInteger(SWR2, 10, qint16(months - 1));
        WriteSlotInteger(SWR2, 13, 1);
        auto screen = open();
        screen->resize(800, 600);
        screen->show();
        screen->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
        return screen;
    }
    // Empty when the screen fits; else one line per problem.
    static std::string Problems(Zcalandar& screen)
    {
        QApplication::processEvents();
        return FitProblemsAtBothSizes(&screen);
    }
};

} // namespace

TEST_F(ZcalandarFitTest, OneMonthFits)
{
    auto screen = openSmall(1);
    EXPECT_EQ(Problems(*screen), "");
}

TEST_F(ZcalandarFitTest, ThreeMonthsFit)
{
    auto screen = openSmall(3);
    EXPECT_EQ(screen->calendar()->monthCount(), 3);
    EXPECT_EQ(Problems(*screen), "");
}

TEST_F(ZcalandarFitTest, TheListEditorFits)
{
    auto screen = openSmall(3);
    act(*screen, "mEditLists")->trigger();
    EXPECT_EQ(Problems(*screen), "");
}

TEST_F(ZcalandarFitTest, TheCalendarOptionsFit)
{
    auto screen = openSmall(3);
    act(*screen, "mCalendarOptions")->trigger();
    EXPECT_EQ(Problems(*screen), "");
}

TEST_F(ZcalandarFitTest, TheViewWithItsTableFits)
{
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(SaveDay(MenuPlaceOf(kToday.addDays(i)), LinesWith({{0, QStringLiteral("Eggs")}, {14, QStringLiteral("Stew")}})));
    auto screen = openSmall(1);
    act(*screen, "mPrintView")->trigger();
    screen->viewPanel()->currentDatePlusChoice()->click();
    screen->viewPanel()->dayList()->setCurrentIndex(9);
    screen->viewPanel()->button(MenuViewPanel::kView)->click();
    EXPECT_EQ(Problems(*screen), "");
}

TEST_F(ZcalandarFitTest, ThePrintOptionsFit)
{
    ASSERT_TRUE(SaveDay(MenuPlaceOf(kToday), LinesWith({{0, QStringLiteral("Eggs")}})));
    auto screen = openSmall(3);
    act(*screen, "mPrintView")->trigger();
    screen->viewPanel()->button(MenuViewPanel::kPrintOptions)->click();
    ASSERT_TRUE(screen->printPanel()->isVisible());
    EXPECT_EQ(Problems(*screen), "");
}
