#include "shell/kit/screentoolbars.h"

#include "common/widgets/twips.h"
#include "shell/logic/processvalues.h"
#include "shell/kit/screenstatusbar.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QToolBar>

namespace {
constexpr int kRaiseWithTopToolbarTwips = 160;
constexpr int kRaiseWithoutTopToolbarTwips = 500;
} // namespace

ScreenToolbars::ScreenToolbars(QMainWindow* window, ScreenStatusBar* statusBar, const SettingsSlot& topToolbarFlag)
    : QObject(window), window_(window), statusBar_(statusBar), topToolbarFlag_(topToolbarFlag)
{
    top_ = makeToolbar(QStringLiteral("Toolbar1"), Qt::TopToolBarArea);
    sides_.append(makeToolbar(QStringLiteral("Toolbar2"), Qt::LeftToolBarArea));
    if (statusBar) {
        connect(statusBar, &ScreenStatusBar::restoreTopToolbarClicked, this, &ScreenToolbars::restoreTopToolbar);
        connect(statusBar, &ScreenStatusBar::restoreSideToolbarsClicked, this,
                &ScreenToolbars::restoreSideToolbars);
    }
}

// Toolbars stay where they are and offer no hiding of their own: no command
// of the program hides one.
QToolBar* ScreenToolbars::makeToolbar(const QString& objectName, Qt::ToolBarArea area)
{
    auto* toolbar = new QToolBar(window_);
    toolbar->setObjectName(objectName);
    toolbar->setMovable(false);
    toolbar->setFloatable(false);
    toolbar->toggleViewAction()->setVisible(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    window_->addToolBar(area, toolbar);
    return toolbar;
}

QToolBar* ScreenToolbars::addSideToolbar(const QString& objectName, Qt::ToolBarArea area)
{
    QToolBar* toolbar = makeToolbar(objectName, area);
    toolbar->setHidden(sides_.first()->isHidden());
    sides_.append(toolbar);
    return toolbar;
}

void ScreenToolbars::applyFlags()
{
    const bool topHidden = Process().TopToolbarFlag == kTopToolbarHidden;
    top_->setHidden(topHidden);
    const bool sidesHidden = Process().SideToolbarsFlag == kSideToolbarsHidden;
    for (QToolBar* side : sides_)
        side->setHidden(sidesHidden);
    if (statusBar_) {
        statusBar_->showTopToolbarRestore(topHidden);
        statusBar_->showSideToolbarsRestore(sidesHidden);
    }
}

void ScreenToolbars::restoreTopToolbar()
{
    Process().TopToolbarFlag = 0;
    top_->show();
    QCoreApplication::processEvents();
    WriteSlotText(topToolbarFlag_, QString());
    if (statusBar_)
        statusBar_->showTopToolbarRestore(false);
    emit toolbarsRestored();
}

void ScreenToolbars::restoreSideToolbars()
{
    for (QToolBar* side : sides_)
        side->show();
    Process().SideToolbarsFlag = 0;
    WriteSlotInteger(Settings::SideToolbarsFlag, 0);
    if (statusBar_)
        statusBar_->showSideToolbarsRestore(false);
    emit toolbarsRestored();
}

int ScreenToolbars::centralPanelTop(int windowHeight, int panelHeight) const
{
    const int raise = top_->isHidden() ? kRaiseWithoutTopToolbarTwips : kRaiseWithTopToolbarTwips;
    return windowHeight / 2 - panelHeight / 2 - TwipsToPixels(raise, window_);
}
