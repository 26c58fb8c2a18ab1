#include "planner/logic/plannerstate.h"

PlannerCommandStates CommandStatesFor(const PlannerState& state)
{
    const bool free = state.panel == PlannerPanel::None && !state.printOptionsOpen;
    const bool day = state.daySelected;
    // The calendar options and the print options turn off the screen's
    // options; the list editor and the view panel only lock the day.
    const bool optionsOn = state.panel != PlannerPanel::CalendarOptions && !state.printOptionsOpen;

    PlannerCommandStates on;
    on.save = free && day;
    on.clearEntries = free && day && state.dayFull;
    on.editLists = free;
    on.printView = free && day;
    on.toolbarPrint = day && !state.printOptionsOpen
        && (state.panel == PlannerPanel::None || state.panel == PlannerPanel::PrintView);
    on.copy = free && day;
    on.panelColor = optionsOn;
    on.textColor = optionsOn;
    on.calendarOptions = !state.printOptionsOpen
        && (state.panel == PlannerPanel::None || state.panel == PlannerPanel::CalendarOptions);
    on.backup = free && day && state.yearFileUsed;
    on.restore = free && day;
    on.optionsMenu = optionsOn;
    on.editMenu = optionsOn;
    // Without a day the lines stay open until one is clicked, which tells the
    // user to choose a day first.
    on.linesOpen = free && !state.linesRefused;
    return on;
}

int NextLine(int line)
{
    return (line + 1) % kMenuLines;
}

int LineEntry::arrive(int line, Arrival how)
{
    if (how == Arrival::Mouse)
        pending_ = true;
    const int offered = pending_ ? active_ : -1;
    pending_ = false;
    active_ = line;
    return offered;
}

void LineEntry::reset()
{
    active_ = -1;
    pending_ = false;
}
