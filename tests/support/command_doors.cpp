#include "command_doors.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

QPushButton* ButtonOf(QMainWindow& window, const QString& command)
{
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->property("command").toString() == command)
            return button;
    }
    return nullptr;
}

QToolButton* ToolButtonOf(QMainWindow& window, QAction* action)
{
    for (QToolBar* toolbar : window.findChildren<QToolBar*>()) {
        if (auto* button = qobject_cast<QToolButton*>(toolbar->widgetForAction(action)))
            return button;
    }
    return nullptr;
}

bool InAMenu(QAction* action)
{
    for (QObject* owner : action->associatedObjects()) {
        if (qobject_cast<QMenu*>(owner) || qobject_cast<QMenuBar*>(owner))
            return true;
    }
    return false;
}

} // namespace

CommandDoors DoorsOf(QMainWindow& window, const QString& command)
{
    CommandDoors doors;
    doors.command = command;
    QAction* action = window.findChild<QAction*>(command);
    if (!action)
        return doors;
    if (InAMenu(action))
        doors.menuCaption = action->text();
    if (QPushButton* button = ButtonOf(window, command))
        doors.buttonCaption = button->text();
    doors.onToolbar = ToolButtonOf(window, action) != nullptr;
    return doors;
}

void ExpectDoors(QMainWindow& window, const QList<CommandDoors>& expected)
{
    for (const CommandDoors& want : expected) {
        SCOPED_TRACE(want.command.toStdString());
        ASSERT_NE(window.findChild<QAction*>(want.command), nullptr);
        const CommandDoors found = DoorsOf(window, want.command);
        EXPECT_EQ(found.menuCaption, want.menuCaption);
        EXPECT_EQ(found.buttonCaption, want.buttonCaption);
        EXPECT_EQ(found.onToolbar, want.onToolbar);
    }
}
