#pragma once
// Which of the weight tracker's commands are on, from the screen's state and
// the panel in front. One function decides them all.
#include "tracker/logic/trackermodel.h"

// The panel over the screen, if any.
enum class TrackerPanel { None, Graph, Chooser, Enlarged, Print };

struct TrackerCommandStates {
    bool view = false;         // "&View Existing File"
    bool create = false;       // "&Create New File"
    bool saveNew = false;      // "&Save New File", shown only while creating
    bool save = false;         // "&Save"; asks for a name while the list is up
    bool remove = false;       // "&Delete Displayed File", likewise
    bool individual = false;   // plan, weigh-ins, rows, graph, print: a loaded individual
    bool colors = false;       // panel colour and the two toggles
    bool exit = false;

    bool operator==(const TrackerCommandStates&) const = default;
};

TrackerCommandStates CommandStatesFor(TrackerState state, TrackerPanel panel);
