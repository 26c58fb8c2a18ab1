#include "tracker/logic/trackerstates.h"

TrackerCommandStates CommandStatesFor(TrackerState state, TrackerPanel panel)
{
    TrackerCommandStates on;
    // The print panel and the picture chooser take the screen over; the
    // graph and an enlarged picture leave the commands as they are.
    const bool free = panel != TrackerPanel::Print && panel != TrackerPanel::Chooser;
    if (!free)
        return on;
    const bool loaded = state == TrackerState::Loaded;
    on.view = true;
    on.create = state != TrackerState::Creating;
    on.saveNew = state == TrackerState::Creating;
    on.save = loaded || state == TrackerState::Choosing;
    on.remove = on.save;
    on.individual = loaded;
    on.colors = true;
    on.exit = true;
    return on;
}
