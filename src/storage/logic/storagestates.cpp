#include "storage/logic/storagestates.h"

StorageCommandStates CommandStatesFor(const StorageScreenState& state)
{
    StorageCommandStates on;
    // The percent panel's entry stays on while the panel is open: it closes it.
    on.rollup = state.kind == StorageKind::Basic
                && (state.panel == StoragePanel::None || state.panel == StoragePanel::Rollup);
    if (state.panel != StoragePanel::None)
        return on;
    const bool all = state.category == kAllCategory;
    on.entryFields = all;
    on.clearLastActions = all;
    on.print = all;
    on.itemDefaults = all;
    on.approxAmounts = all;
    on.save = true;
    on.copy = true;
    on.exportFile = true;
    on.backup = state.backupAvailable;
    on.kinds = true;
    on.colors = true;
    on.exit = true;
    for (int button = 0; button < kCategoryButtons; ++button)
        on.categories[size_t(button)] = button != state.category && CategoryRows(state.kind, button).count() > 0;
    return on;
}
