#include "shell/kit/accesskeys.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>

namespace {

// The letter after the '&' of a caption, upper case; 0 for none.
QChar AccessLetter(const QString& caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] == u'&') {
            if (caption[i + 1] != u'&')
                return caption[i + 1].toUpper();
            ++i;
        }
    }
    return {};
}

bool MenuTitleTakes(const QMainWindow* window, QChar letter)
{
    for (const QAction* menu : window->menuBar()->actions()) {
        if (menu->isVisible() && AccessLetter(menu->text()) == letter)
            return true;
    }
    return false;
}

QAbstractButton* ButtonTaking(const QMainWindow* window, QChar letter)
{
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && button->window() == window
            && AccessLetter(button->text()) == letter)
            return button;
    }
    return nullptr;
}

} // namespace

AccessKeys::AccessKeys(QMainWindow* window) : QObject(window), window_(window)
{
    qApp->installEventFilter(this);
    auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), window);
    connect(f10, &QShortcut::activated, this, [this] {
        const QList<QAction*> menus = window_->menuBar()->actions();
        if (!menus.isEmpty()) {
            window_->menuBar()->setFocus(Qt::ShortcutFocusReason);
            window_->menuBar()->setActiveAction(menus.first());
        }
    });
}

bool AccessKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    // Letters and digits only: the modifier keys themselves are codes far
    // past any character.
    const bool letterKey = (key->key() >= Qt::Key_0 && key->key() <= Qt::Key_9)
        || (key->key() >= Qt::Key_A && key->key() <= Qt::Key_Z);
    if (!letterKey || key->modifiers() != Qt::AltModifier || QApplication::activeWindow() != window_
        || QApplication::activePopupWidget())
        return QObject::eventFilter(watched, event);
    const QChar letter = QChar(key->key()).toUpper();
    if (!MenuTitleTakes(window_, letter))
        return QObject::eventFilter(watched, event);
    QAbstractButton* button = ButtonTaking(window_, letter);
    if (!button)
        return QObject::eventFilter(watched, event);
    // The override keeps the shortcut map from choosing between the two;
    // the key press then presses the button.
    event->accept();
    if (event->type() == QEvent::KeyPress && !key->isAutoRepeat())
        button->animateClick();
    return true;
}
