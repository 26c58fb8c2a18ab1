#include "common/widgets/commandbutton.h"

#include <QAbstractButton>
#include <QAction>

void BindButtonToAction(QAbstractButton* button, QAction* action)
{
    QObject::connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::changed, button, [button, action] {
        button->setEnabled(action->isEnabled());
    });
    button->setEnabled(action->isEnabled());
}
