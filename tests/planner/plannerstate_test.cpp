// The planner's states and every command's enabled state, as a table of
// named rows; the line that follows a line; which line is offered to its
// list.
#include "planner/logic/plannerstate.h"

#include <gtest/gtest.h>

namespace {

struct StateRow {
    const char* name;
    PlannerState state;
    PlannerCommandStates on;
};

PlannerState Day(bool full = false)
{
    PlannerState state;
    state.daySelected = true;
    state.dayFull = full;
    return state;
}

PlannerState With(PlannerState state, PlannerPanel panel, bool printOptions = false)
{
    state.panel = panel;
    state.printOptionsOpen = printOptions;
    return state;
}

PlannerState Used(PlannerState state)
{
    state.yearFileUsed = true;
    return state;
}

PlannerState Refused(PlannerState state)
{
    state.linesRefused = true;
    return state;
}

// Fields in order: save, clear, edit lists, print/view, toolbar print, copy,
// panel colour, text colour, calendar options, backup, restore, options
// menu, edit menu, lines open.
const StateRow kRows[] = {
    {"ADayNeverSaved", Day(), {true, false, true, true, true, true, true, true, true, false, true, true, true, true}},
    {"ASavedDay", Day(true), {true, true, true, true, true, true, true, true, true, false, true, true, true, true}},
    {"ASavedYearFile", Used(Day(true)),
     {true, true, true, true, true, true, true, true, true, true, true, true, true, true}},
    {"NoDay", PlannerState{},
     {false, false, true, false, false, false, true, true, true, false, false, true, true, true}},
    {"NoDayAfterALineWasClicked", Refused(PlannerState{}),
     {false, false, true, false, false, false, true, true, true, false, false, true, true, false}},
    {"TheListEditor", With(Day(true), PlannerPanel::EditLists),
     {false, false, false, false, false, false, true, true, false, false, false, true, true, false}},
    {"TheCalendarOptions", With(Used(Day(true)), PlannerPanel::CalendarOptions),
     {false, false, false, false, false, false, false, false, true, false, false, false, false, false}},
    {"TheViewPanel", With(Day(true), PlannerPanel::PrintView),
     {false, false, false, false, true, false, true, true, false, false, false, true, true, false}},
    {"ThePrintOptions", With(Day(true), PlannerPanel::PrintView, true),
     {false, false, false, false, false, false, false, false, false, false, false, false, false, false}},
};

class PlannerCommandStateTable : public ::testing::TestWithParam<StateRow> {};

} // namespace

TEST_P(PlannerCommandStateTable, EnablesTheCommandsOfTheState)
{
    const PlannerCommandStates on = CommandStatesFor(GetParam().state);
    const PlannerCommandStates& want = GetParam().on;
    EXPECT_EQ(on.save, want.save);
    EXPECT_EQ(on.clearEntries, want.clearEntries);
    EXPECT_EQ(on.editLists, want.editLists);
    EXPECT_EQ(on.printView, want.printView);
    EXPECT_EQ(on.toolbarPrint, want.toolbarPrint);
    EXPECT_EQ(on.copy, want.copy);
    EXPECT_EQ(on.panelColor, want.panelColor);
    EXPECT_EQ(on.textColor, want.textColor);
    EXPECT_EQ(on.calendarOptions, want.calendarOptions);
    EXPECT_EQ(on.backup, want.backup);
    EXPECT_EQ(on.restore, want.restore);
    EXPECT_EQ(on.optionsMenu, want.optionsMenu);
    EXPECT_EQ(on.editMenu, want.editMenu);
    EXPECT_EQ(on.linesOpen, want.linesOpen);
}

INSTANTIATE_TEST_SUITE_P(States, PlannerCommandStateTable, ::testing::ValuesIn(kRows),
                         [](const ::testing::TestParamInfo<StateRow>& info) { return std::string(info.param.name); });

TEST(PlannerLines, EnterOnTheLastLineGoesToTheFirst)
{
    EXPECT_EQ(NextLine(0), 1);
    EXPECT_EQ(NextLine(6), 7);
    EXPECT_EQ(NextLine(19), 20);
    EXPECT_EQ(NextLine(20), 0);
}

TEST(PlannerLines, ALineLeftByEnterIsOfferedWhenTheNextTakesTheKeyboard)
{
    LineEntry entry;
    EXPECT_EQ(entry.arrive(20, LineEntry::Arrival::Other), -1);
    entry.leaveByEnter();
    EXPECT_TRUE(entry.pending());
    EXPECT_EQ(entry.arrive(0, LineEntry::Arrival::Other), 20);
    EXPECT_FALSE(entry.pending());
    EXPECT_EQ(entry.activeLine(), 0);
}

TEST(PlannerLines, ALineLeftByAClickIsOffered)
{
    LineEntry entry;
    entry.arrive(3, LineEntry::Arrival::Other);
    EXPECT_EQ(entry.arrive(9, LineEntry::Arrival::Mouse), 3);
}

TEST(PlannerLines, TabDoesNotOfferTheLine)
{
    LineEntry entry;
    entry.arrive(3, LineEntry::Arrival::Other);
    EXPECT_EQ(entry.arrive(4, LineEntry::Arrival::Other), -1);
    EXPECT_EQ(entry.activeLine(), 4);
}

TEST(PlannerLines, ANewDayForgetsTheLineLeft)
{
    LineEntry entry;
    entry.arrive(5, LineEntry::Arrival::Other);
    entry.leaveByEnter();
    entry.reset();
    EXPECT_EQ(entry.activeLine(), -1);
    EXPECT_EQ(entry.arrive(2, LineEntry::Arrival::Mouse), -1);
}
