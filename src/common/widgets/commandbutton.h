#pragma once
// A command that has a menu entry, a toolbar button and a screen button runs
// one routine: the QAction. The screen button triggers the action and follows
// its enabled state, so enabling a command is done in one place.
class QAbstractButton;
class QAction;

void BindButtonToAction(QAbstractButton* button, QAction* action);
