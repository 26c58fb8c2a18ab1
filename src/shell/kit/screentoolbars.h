#pragma once
// The toolbars of an activity screen: the top toolbar ("Toolbar1") and the
// side toolbar on the left ("Toolbar2"). The screen puts its own actions on
// them, so one QAction serves menu entry, toolbar button and screen button.
//
// A hidden toolbar is told by the process-wide flags (top 99, side 88): the
// screen hides it on load and shows the status bar panel that restores it.
#include "shell/settings/settingsregistry.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QMainWindow;
class QToolBar;
class ScreenStatusBar;

class ScreenToolbars final : public QObject {
    Q_OBJECT
public:
    // Adds both toolbars to `window` and answers the restore panels of
    // `statusBar`.
    // `topToolbarFlag` is the slot a top toolbar restore empties (the weight
    // tracker has a slot of its own).
    ScreenToolbars(QMainWindow* window, ScreenStatusBar* statusBar,
                   const SettingsSlot& topToolbarFlag = Settings::TopToolbarFlag);

    QToolBar* top() const { return top_; }
    QToolBar* side() const { return sides_.first(); }
    // A second side toolbar, for the screens that have one; it is hidden and
    // restored together with the first.
    QToolBar* addSideToolbar(const QString& objectName, Qt::ToolBarArea area = Qt::LeftToolBarArea);

    // On load: hides what the flags say is hidden and shows its restore panel.
    void applyFlags();

    // The restore panels' clicks.
    void restoreTopToolbar();
    void restoreSideToolbars();

    // Where a central panel of `panelHeight` stands on a window of
    // `windowHeight` pixels: further up when the top toolbar is hidden.
    int centralPanelTop(int windowHeight, int panelHeight) const;

signals:
    // A toolbar came back: central panels move again.
    void toolbarsRestored();

private:
    QToolBar* makeToolbar(const QString& objectName, Qt::ToolBarArea area);

    QMainWindow* window_;
    QPointer<ScreenStatusBar> statusBar_;
    SettingsSlot topToolbarFlag_;
    QToolBar* top_ = nullptr;
    QList<QToolBar*> sides_;
};
