// The status bar of an activity screen and the toolbars it restores.
#include "common/widgets/twips.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsslots.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/kit/screentoolbars.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

namespace {

QLabel* Panel(ScreenStatusBar& bar, int number)
{
    return bar.findChild<QLabel*>(QStringLiteral("StatusBar1_Panel%1").arg(number));
}

// An activity screen as far as its toolbars go.
struct ToolbarScreen {
    explicit ToolbarScreen(const SettingsSlot& topToolbarSlot = Settings::TopToolbarFlag)
    {
        window.setStatusBar(statusBar);
        toolbars = new ScreenToolbars(&window, statusBar, topToolbarSlot);
        window.resize(800, 600);
    }
    QMainWindow window;
    ScreenStatusBar* statusBar = new ScreenStatusBar(&window);
    ScreenToolbars* toolbars = nullptr;
};

class ScreenToolbarsTest : public ::testing::Test {
protected:
    ScreenToolbarsTest() { Process() = ProcessValues{}; }
    TempProgramFolder folder;
};

} // namespace

TEST(ScreenStatusBar, Panel1ShowsTheActivityAndTheRestorePanelsAreHidden)
{
    ScreenStatusBar bar;
    bar.show();
    bar.setActivity(QStringLiteral("Delete Recipe"));
    EXPECT_EQ(bar.activity(), "Delete Recipe");
    EXPECT_EQ(Panel(bar, 1)->text(), "Delete Recipe");
    EXPECT_EQ(Panel(bar, 2)->text(), "Click to Restore Top Toolbar");
    EXPECT_EQ(Panel(bar, 3)->text(), "Click to Restore Side Toolbars");
    EXPECT_FALSE(Panel(bar, 2)->isVisible());
    EXPECT_FALSE(Panel(bar, 3)->isVisible());
    EXPECT_FALSE(bar.topToolbarRestoreShown());
    EXPECT_FALSE(bar.sideToolbarsRestoreShown());
}

TEST(ScreenStatusBar, ClicksOnTheRestorePanelsAreToldApart)
{
    ScreenStatusBar bar;
    bar.showTopToolbarRestore(true);
    bar.showSideToolbarsRestore(true);
    bar.show();
    QSignalSpy top(&bar, &ScreenStatusBar::restoreTopToolbarClicked);
    QSignalSpy side(&bar, &ScreenStatusBar::restoreSideToolbarsClicked);
    QTest::mouseClick(Panel(bar, 2), Qt::LeftButton);
    EXPECT_EQ(top.count(), 1);
    EXPECT_EQ(side.count(), 0);
    QTest::mouseClick(Panel(bar, 3), Qt::LeftButton);
    EXPECT_EQ(side.count(), 1);
    QTest::mouseClick(Panel(bar, 1), Qt::LeftButton);
    EXPECT_EQ(top.count() + side.count(), 2) << "the activity panel restores nothing";
}

TEST_F(ScreenToolbarsTest, TopAndSideToolbarsCarryTheScreensOwnActions)
{
    ToolbarScreen screen;
    QToolBar* top = screen.window.findChild<QToolBar*>("Toolbar1");
    QToolBar* side = screen.window.findChild<QToolBar*>("Toolbar2");
    ASSERT_EQ(top, screen.toolbars->top());
    ASSERT_EQ(side, screen.toolbars->side());
    EXPECT_EQ(screen.window.toolBarArea(top), Qt::TopToolBarArea);
    EXPECT_EQ(screen.window.toolBarArea(side), Qt::LeftToolBarArea);
    EXPECT_EQ(side->orientation(), Qt::Vertical);
    EXPECT_FALSE(top->isMovable());

    // One action is menu entry, toolbar button and all.
    auto* panelColor = new QAction(QStringLiteral("Panel C&olor"), &screen.window);
    screen.window.menuBar()->addMenu(QStringLiteral("&Options"))->addAction(panelColor);
    side->addAction(panelColor);
    QSignalSpy runs(panelColor, &QAction::triggered);
    screen.window.show();
    QTest::mouseClick(side->widgetForAction(panelColor), Qt::LeftButton);
    EXPECT_EQ(runs.count(), 1);
    // No command hides a toolbar, and the user has no way to either.
    for (QToolBar* toolbar : {top, side}) {
        EXPECT_FALSE(toolbar->toggleViewAction()->isVisible());
        EXPECT_EQ(toolbar->contextMenuPolicy(), Qt::PreventContextMenu);
    }
}

TEST_F(ScreenToolbarsTest, ClearFlagsShowBothToolbarsAndNoRestorePanel)
{
    ToolbarScreen screen;
    screen.toolbars->applyFlags();
    screen.window.show();
    EXPECT_TRUE(screen.toolbars->top()->isVisible());
    EXPECT_TRUE(screen.toolbars->side()->isVisible());
    EXPECT_FALSE(screen.statusBar->topToolbarRestoreShown());
    EXPECT_FALSE(screen.statusBar->sideToolbarsRestoreShown());
}

TEST_F(ScreenToolbarsTest, HiddenTopToolbarIsHonouredOnLoad)
{
    Process().TopToolbarFlag = kTopToolbarHidden;
    ToolbarScreen screen;
    screen.toolbars->applyFlags();
    screen.window.show();
    EXPECT_EQ(kTopToolbarHidden, 99);
    EXPECT_FALSE(screen.toolbars->top()->isVisible());
    EXPECT_TRUE(screen.toolbars->side()->isVisible());
    EXPECT_TRUE(Panel(*screen.statusBar, 2)->isVisible());
    EXPECT_FALSE(Panel(*screen.statusBar, 3)->isVisible());
}

TEST_F(ScreenToolbarsTest, HiddenSideToolbarsAreHonouredOnLoad)
{
    Process().SideToolbarsFlag = kSideToolbarsHidden;
    ToolbarScreen screen;
    QToolBar* second = screen.toolbars->addSideToolbar(QStringLiteral("Toolbar3"), Qt::RightToolBarArea);
    screen.toolbars->applyFlags();
    screen.window.show();
    EXPECT_EQ(kSideToolbarsHidden, 88);
    EXPECT_TRUE(screen.toolbars->top()->isVisible());
    EXPECT_FALSE(screen.toolbars->side()->isVisible());
    EXPECT_FALSE(second->isVisible());
    EXPECT_FALSE(Panel(*screen.statusBar, 2)->isVisible());
    EXPECT_TRUE(Panel(*screen.statusBar, 3)->isVisible());
}

TEST_F(ScreenToolbarsTest, RestoreTopToolbarClickEmptiesSlot55AndHidesThePanel)
{
    WriteSlotText(GColor1, 55, u"99");
    Process().TopToolbarFlag = kTopToolbarHidden;
    ToolbarScreen screen;
    screen.toolbars->applyFlags();
    screen.window.show();
    QSignalSpy moved(screen.toolbars, &ScreenToolbars::toolbarsRestored);
    QTest::mouseClick(Panel(*screen.statusBar, 2), Qt::LeftButton);
    EXPECT_EQ(Process().TopToolbarFlag, 0);
    EXPECT_TRUE(screen.toolbars->top()->isVisible());
    EXPECT_FALSE(Panel(*screen.statusBar, 2)->isVisible());
    EXPECT_EQ(folder.bytesOf("GColor1.Fil"), QByteArray(55 * 20, '\0'));
    EXPECT_EQ(moved.count(), 1);
}

TEST_F(ScreenToolbarsTest, WeightTrackerEmptiesSlot81Instead)
{
    WriteSlotText(GColor1, 55, u"99");
    WriteSlotText(GColor1, 81, u"99");
    Process().TopToolbarFlag = kTopToolbarHidden;
    ToolbarScreen screen(Settings::WeightTrackerToolbarFlag);
    screen.toolbars->applyFlags();
    screen.window.show();
    QTest::mouseClick(Panel(*screen.statusBar, 2), Qt::LeftButton);
    EXPECT_EQ(ReadSlotText(GColor1, 81), "");
    EXPECT_EQ(ReadSlotText(GColor1, 55), "99");
}

TEST_F(ScreenToolbarsTest, RestoreSideToolbarsClickWrites0ToGQORB1Slot10AndHidesThePanel)
{
    WriteSlotInteger(GQORB1, 10, 88);
    Process().SideToolbarsFlag = kSideToolbarsHidden;
    ToolbarScreen screen;
    QToolBar* second = screen.toolbars->addSideToolbar(QStringLiteral("Toolbar3"), Qt::RightToolBarArea);
    screen.toolbars->applyFlags();
    screen.window.show();
    QTest::mouseClick(Panel(*screen.statusBar, 3), Qt::LeftButton);
    EXPECT_EQ(Process().SideToolbarsFlag, 0);
    EXPECT_TRUE(screen.toolbars->side()->isVisible());
    EXPECT_TRUE(second->isVisible());
    EXPECT_FALSE(Panel(*screen.statusBar, 3)->isVisible());
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), QByteArray(10 * 10, '\0'));
}

TEST_F(ScreenToolbarsTest, CentralPanelStandsHigherWithoutTheTopToolbar)
{
    ToolbarScreen screen;
    const QWidget* window = &screen.window;
    EXPECT_EQ(screen.toolbars->centralPanelTop(600, 200), 300 - 100 - TwipsToPixels(160, window));
    Process().TopToolbarFlag = kTopToolbarHidden;
    screen.toolbars->applyFlags();
    EXPECT_EQ(screen.toolbars->centralPanelTop(600, 200), 300 - 100 - TwipsToPixels(500, window));
}
