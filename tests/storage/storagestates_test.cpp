// Which commands of the storage screen are on, one named row per state.
#include "storage/logic/storagestates.h"

#include <gtest/gtest.h>

namespace {

struct StateRow {
    const char* name;
    StorageScreenState state;
    StorageCommandStates expected;
};

StorageCommandStates AllOn(StorageKind kind, int category, bool backup)
{
    StorageCommandStates on;
    const bool all = category == kAllCategory;
    on.entryFields = on.clearLastActions = on.print = on.itemDefaults = on.approxAmounts = all;
    on.save = on.copy = on.exportFile = on.kinds = on.colors = on.exit = true;
    on.backup = backup;
    on.rollup = kind == StorageKind::Basic;
    for (int button = 0; button < kCategoryButtons; ++button)
        on.categories[size_t(button)] = button != category;
    if (kind == StorageKind::Additional)
        on.categories[7] = on.categories[8] = false;
    return on;
}

StorageCommandStates PanelOpen(bool rollup)
{
    StorageCommandStates on;
    on.rollup = rollup;
    return on;
}

class CommandStates : public ::testing::TestWithParam<StateRow> {};

} // namespace

TEST_P(CommandStates, FollowTheScreensState)
{
    const StateRow& row = GetParam();
    EXPECT_EQ(CommandStatesFor(row.state), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    StorageStates, CommandStates,
    ::testing::Values(
        StateRow{"BasicAllView", {StorageKind::Basic, 0, StoragePanel::None, false}, AllOn(StorageKind::Basic, 0, false)},
        StateRow{"CategoriesAreForReview", {StorageKind::Basic, 3, StoragePanel::None, false},
                 AllOn(StorageKind::Basic, 3, false)},
        StateRow{"EmergencyHasNoRollup", {StorageKind::Emergency, 0, StoragePanel::None, false},
                 AllOn(StorageKind::Emergency, 0, false)},
        StateRow{"AdditionalHidesButtons7And8", {StorageKind::Additional, 6, StoragePanel::None, false},
                 AllOn(StorageKind::Additional, 6, false)},
        StateRow{"BackupNeedsABackupScreen", {StorageKind::Emergency, 0, StoragePanel::None, true},
                 AllOn(StorageKind::Emergency, 0, true)},
        StateRow{"TheRollupPanelLeavesOnlyItsOwnEntry", {StorageKind::Basic, 0, StoragePanel::Rollup, true},
                 PanelOpen(true)},
        StateRow{"ThePrintPanelLeavesNothing", {StorageKind::Basic, 0, StoragePanel::Print, true}, PanelOpen(false)},
        StateRow{"TheExportPanelLeavesNothing", {StorageKind::Emergency, 0, StoragePanel::Export, true},
                 PanelOpen(false)}),
    [](const ::testing::TestParamInfo<StateRow>& info) { return std::string(info.param.name); });
