#include "shell/kit/activitywindow.h"

#include "common/dialogs.h"
#include "shell/kit/accesskeys.h"
#include "shell/kit/helpwindow.h"
#include "shell/kit/panelcolors.h"
#include "shell/kit/programidentity.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/kit/screentoolbars.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

ActivityWindow::ActivityWindow(Dialogs& dialogs, const ScreenFrame& frame, QWidget* parent)
    : QMainWindow(parent), dialogs_(dialogs), helpTopic_(frame.helpTopic)
{
    setObjectName(QString::fromLatin1(frame.name));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(ProgramIcon());
    statusBar_ = new ScreenStatusBar(this);
    setStatusBar(statusBar_);
    panelColors_ = new PanelColors(dialogs_, frame.panelColor, statusBar_, this);
    toolbars_ = new ScreenToolbars(this, statusBar_, frame.topToolbarFlag);
    new AccessKeys(this);
}

ActivityWindow::~ActivityWindow() = default;

QToolBar* ActivityWindow::topToolbar() const
{
    return toolbars_->top();
}

QToolBar* ActivityWindow::sideToolbar() const
{
    return toolbars_->side();
}

void ActivityWindow::commandsBuilt(QMenu* options)
{
    optionsMenu_ = options;
    toolbars_->applyFlags();
}

void ActivityWindow::addColouredPanels(const QList<QWidget*>& panels)
{
    for (QWidget* panel : panels)
        panelColors_->addPanel(panel);
    panelColors_->applyStored();
}

void ActivityWindow::choosePanelColor()
{
    panelColors_->choosePanelColor();
}

void ActivityWindow::showHelp()
{
    HelpWindow::showTopic(helpTopic());
}

void ActivityWindow::exitScreen()
{
    close();
}

namespace {
// Help and exit close the top toolbar, whatever the screen puts before them.
constexpr int kHelpPlace = 100;
constexpr int kExitPlace = 101;
} // namespace

CommandSpec ActivityWindow::panelColorCommand(const char* menu)
{
    return {.name = "mPanelColor", .menu = menu, .caption = QStringLiteral("Panel C&olor"), .separatorBefore = true,
            .toolbar = {Toolbar::Side, 0}, .run = [this] { choosePanelColor(); }};
}

CommandSpec ActivityWindow::helpCommand(const char* menu, const QString& caption)
{
    return {.name = "mHelp", .menu = menu, .caption = caption, .toolbar = {Toolbar::Top, kHelpPlace, true},
            .run = [this] { showHelp(); }, .shortcut = QKeySequence(Qt::Key_F1)};
}

CommandSpec ActivityWindow::exitCommand(const char* menu, const ButtonPlace& button)
{
    // Ctrl+W leaves a screen as in most desktop programs.
    return {.name = "mExit", .menu = menu, .caption = QStringLiteral("E&xit"), .separatorBefore = true,
            .button = button, .toolbar = {Toolbar::Top, kExitPlace}, .run = [this] { exitScreen(); },
            .shortcut = QKeySequence(Qt::CTRL | Qt::Key_W)};
}

void ActivityWindow::pressEscape()
{
    for (const EscapeStep& step : escapeOrder_) {
        if (step.isOpen()) {
            step.close();
            return;
        }
    }
    exitScreen();
}

bool ActivityWindow::saveQuestionAllows(const Message& question, const std::function<bool()>& save,
                                        const std::function<void()>& discard)
{
    switch (dialogs_.ask(question)) {
    case Answer::Yes:
        return save();
    case Answer::No:
        if (discard)
            discard();
        return true;
    default:
        return false;
    }
}

void ActivityWindow::closeEvent(QCloseEvent* event)
{
    if (!readyToClose()) {
        event->ignore();
        return;
    }
    panelColors_->offerToStoreOnClose();
    event->accept();
    emit closed();
}

// A right click on a panel or label opens the screen's "&Options" menu.
void ActivityWindow::contextMenuEvent(QContextMenuEvent* event)
{
    if (optionsMenu_)
        optionsMenu_->popup(event->globalPos());
}

// Escape reaches the window when no control took it for itself (a drop
// list, a combo box's list, a dialog).
void ActivityWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        pressEscape();
        return;
    }
    QMainWindow::keyPressEvent(event);
}
