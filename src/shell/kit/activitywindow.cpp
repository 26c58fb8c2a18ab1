#include "shell/kit/activitywindow.h"

#include "shell/kit/panelcolors.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QMenu>

void ActivityWindow::closeEvent(QCloseEvent* event)
{
    if (!readyToClose()) {
        event->ignore();
        return;
    }
    if (panelColors_)
        panelColors_->offerToStoreOnClose();
    event->accept();
    emit closed();
}

void ActivityWindow::contextMenuEvent(QContextMenuEvent* event)
{
    if (auto* options = findChild<QMenu*>(QStringLiteral("mOptions")))
        options->popup(event->globalPos());
}
