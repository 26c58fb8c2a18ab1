#pragma once
// The planner screen's working state as named states, and the one function
// that turns it into every command's enabled state.
//
// A day is selected on the calendar and its lines loaded; they stay locked
// while a panel is open (the list editor, the calendar options, the view
// panel and the print options over it), and so do the commands that act on
// a day. The calendar options panel also turns off the first six toolbar
// buttons and the "&Options" and "&Edit" menus.
#include "planner/logic/menudayrecord.h"

enum class PlannerPanel { None, EditLists, CalendarOptions, PrintView };

struct PlannerState {
    bool daySelected = false;     // the calendar shows a selected day
    bool dayFull = false;         // that day's record was saved
    bool linesRefused = false;    // a line was clicked with no day selected
    bool yearFileUsed = false;    // the selected year's file is longer than 0
    PlannerPanel panel = PlannerPanel::None;
    bool printOptionsOpen = false;  // the print options panel over the view panel
};

struct PlannerCommandStates {
    bool save = false;
    bool clearEntries = false;
    bool editLists = false;
    bool printView = false;
    bool toolbarPrint = false;     // "&Print/View", or "&Print Options" while the view panel is open
    bool copy = false;
    bool panelColor = false;
    bool textColor = false;
    bool calendarOptions = false;  // opens the panel, and closes it again
    bool backup = false;
    bool restore = false;
    bool optionsMenu = false;
    bool editMenu = false;
    bool linesOpen = false;        // the 21 lines take input
};

PlannerCommandStates CommandStatesFor(const PlannerState& state);

// Backup1's modes for one year's plan file.
inline constexpr int kBackupYearMode = 34;
inline constexpr int kRestoreYearMode = 35;

// The line after `line`, the last wrapping to the first.
int NextLine(int line);

// Which line is being typed in, and whether the line left last is to be
// offered to its meal's list: a line left by Enter or by a click into
// another line is, one left by Tab is not.
class LineEntry {
public:
    enum class Arrival { Mouse, Other };

    // A line takes the keyboard: the line to offer to its list, or -1.
    int arrive(int line, Arrival how);
    // Enter leaves the active line for the next one.
    void leaveByEnter() { pending_ = true; }
    // A new day: no line was left.
    void reset();

    int activeLine() const { return active_; }
    bool pending() const { return pending_; }

private:
    int active_ = -1;
    bool pending_ = false;  // PendingListCheck
};
