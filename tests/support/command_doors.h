#pragma once
// The doors of a screen's commands: its menu entry (the action itself), its
// screen button and its toolbar button. A screen button counts only when it
// is bound to the action, and a toolbar button is the action's own, so every
// door found reaches the one routine.
#include <QList>
#include <QString>

class QMainWindow;

struct CommandDoors {
    QString command;         // the action's objectName
    QString menuCaption;     // empty: no menu entry (a menu bar title that is a command counts)
    QString buttonCaption;   // empty: no screen button
    bool onToolbar = false;
};

// What the screen offers for `command`: the caption of its menu entry, of
// the screen button bound to it, and whether a toolbar shows it.
CommandDoors DoorsOf(QMainWindow& window, const QString& command);

// Checks every named command's doors against the table of the screen's
// captions: the menu caption, the button caption (empty for none) and
// whether a toolbar shows it.
void ExpectDoors(QMainWindow& window, const QList<CommandDoors>& expected);
