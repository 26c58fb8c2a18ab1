#include "shell/kit/commandbutton.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>

void BindButtonToAction(QAbstractButton* button, QAction* action)
{
    // Which command the button serves, for anyone who looks at the screen
    // from outside (tests, accessibility readers).
    button->setProperty("command", action->objectName());
    QObject::connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::changed, button, [button, action] {
        button->setEnabled(action->isEnabled());
    });
    button->setEnabled(action->isEnabled());
}

QAction* AddCommand(QMenu* menu, const char* objectName, const QString& caption)
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(QString::fromLatin1(objectName));
    return action;
}
