#pragma once
// The table of planned days that "&View" shows: one row per day, its date
// and the day's breakfast, lunch and dinner lines, each meal's lines in one
// cell, one under the other. Nothing of a view is stored.
#include "planner/logic/menuplanfile.h"

#include <QDate>
#include <QList>
#include <QString>

// The day cell: "Fri - Apr 03, 2026", or "Fri - 03 Apr 2026" where the date
// setting is "OTHER".
QString ViewDayText(QDate date, const QString& dateFormatMode);

struct MenuViewRow {
    QDate date;
    QString day;
    QString breakfast;     // the meal's non-blank lines, right-trimmed, one a line
    QString lunch;
    QString dinner;
    int largestCount = 0;  // lines in the fullest of the three cells
    bool found = false;    // the day was saved
};

struct MenuView {
    QList<MenuViewRow> rows;
    // Some day of the run was saved: a view of nothing but empty days shows
    // no table.
    bool found() const;
};

// The text of a day never saved, in the breakfast cell of its row.
QString NoMenuItemsText();

MenuViewRow ViewRowOf(QDate date, const MenuDayRecord& record, const QString& dateFormatMode);
// The start day and the `following` days after it (0 for the start day
// alone), each read by the date rule: a run over New Year reads two files.
MenuView BuildMenuView(QDate start, int following, const QString& dateFormatMode,
                       const DayReader& read = [](QDate date) { return ReadDay(date); });

// The list beside "Current Date plus the next": 1 to 31, an empty choice
// counting as 1.
inline constexpr int kLongestRun = 31;
int FollowingDaysOf(const QString& listText);
