#pragma once
// A command that has a menu entry, a toolbar button and a screen button runs
// one routine: the QAction. The screen button triggers the action and follows
// its enabled state, so enabling a command is done in one place.
class QAbstractButton;
class QAction;
class QMenu;
class QString;

void BindButtonToAction(QAbstractButton* button, QAction* action);

// A menu entry named `objectName`, so that tests and the screen's state
// routine find the command by its name.
QAction* AddCommand(QMenu* menu, const char* objectName, const QString& caption);
