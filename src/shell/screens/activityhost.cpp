#include "shell/screens/activityhost.h"

#include "shell/logic/processvalues.h"
#include "shell/kit/activitywindow.h"


ActivityHost::ActivityHost(QWidget* mainWindow) : QObject(mainWindow), mainWindow_(mainWindow) {}

void ActivityHost::open(const Factory& factory)
{
    if (current_) {
        current_->raise();
        current_->activateWindow();
        return;
    }
    ActivityWindow* window = factory();
    current_ = window;
    connect(window, &ActivityWindow::closed, this, [this, window] {
        if (!window->isMaximized() && Process().WindowedMode == kWindowedMode)
            mainWindow_->setGeometry(window->geometry());
        mainWindow_->activateWindow();
        emit activityClosed();
    });
    // The main window's place first, so that a maximised window fills the
    // screen even where no window manager carries out the state.
    window->setGeometry(mainWindow_->geometry());
    if (Process().WindowedMode == kWindowedMode)
        window->show();
    else
        window->showMaximized();
    window->activateWindow();
}

ActivityWindow* ActivityHost::current() const
{
    return current_;
}
