#include "backup/logic/backupsets.h"

#include <gtest/gtest.h>

namespace {

struct SetRow {
    const char* label;
    int mode;
    BackupSetKind kind;
    bool restore;
    const char* name;
    const char* backupWord;
    const char* restoreWord;
    QStringList programFiles;
    QStringList mediumFiles;
};

class BackupSetTable : public ::testing::TestWithParam<SetRow> {};

TEST_P(BackupSetTable, ModeGivesItsSet)
{
    const SetRow& row = GetParam();
    const std::optional<BackupSet> set = BackupSetFor(row.mode, {3, 2026});
    ASSERT_TRUE(set.has_value());
    EXPECT_EQ(set->kind, row.kind);
    EXPECT_EQ(set->restore, row.restore);
    EXPECT_EQ(set->name, QString::fromLatin1(row.name));
    EXPECT_EQ(set->backupWord, QString::fromLatin1(row.backupWord));
    EXPECT_EQ(set->restoreWord, QString::fromLatin1(row.restoreWord));
    QStringList program, medium;
    for (const BackupFile& file : set->files) {
        program << file.programName;
        medium << file.mediumName;
    }
    EXPECT_EQ(program, row.programFiles);
    EXPECT_EQ(medium, row.mediumFiles);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, BackupSetTable,
    ::testing::Values(
        SetRow{"RecipesBackup", 0, BackupSetKind::Recipes, false, "Recipes from Cookbook # 3", "Recipe", "Recipe", {}, {}},
        SetRow{"RecipesRestore", 1, BackupSetKind::Recipes, true, "Recipes from Cookbook # 3", "Recipe", "Recipe", {}, {}},
        SetRow{"BasicBackup", 14, BackupSetKind::Basic, false, "Basic Food Storage Files", "Basic", "Basic",
               {"FdsB1.Fil", "FdsB2.Fil", "FdsB3.Fil", "FdsB4.Fil"}, {"FdsB1.Fds", "FdsB2.Fds", "FdsB3.Fds", "FdsB4.Fds"}},
        SetRow{"BasicRestore", 15, BackupSetKind::Basic, true, "Basic Food Storage Files", "Basic", "Basic",
               {"FdsB1.Fil", "FdsB2.Fil", "FdsB3.Fil", "FdsB4.Fil"}, {"FdsB1.Fds", "FdsB2.Fds", "FdsB3.Fds", "FdsB4.Fds"}},
        SetRow{"EmergencyBackup", 16, BackupSetKind::Emergency, false, "Emergency Food Storage Files", "Emergency",
               "Emerg.", {"EmerE1.Fil", "EmerE3.Fil", "EmerE4.Fil"}, {"EmerE1.EmE", "EmerE3.EmE", "EmerE4.EmE"}},
        SetRow{"AdditionalRestore", 19, BackupSetKind::Additional, true, "Additional Food Storage Files", "Additional",
               "Addt'l.", {"AddA1.Fil", "AddA3.Fil", "AddA4.Fil"}, {"AddA1.AdA", "AddA3.AdA", "AddA4.AdA"}},
        SetRow{"MenuPlanBackup", 34, BackupSetKind::MenuPlan, false, " Menu Planner File", "", "Menu Planner", {}, {}},
        SetRow{"MenuPlanRestore", 35, BackupSetKind::MenuPlan, true, " Menu Planner File", "", "Menu Planner", {}, {}},
        SetRow{"WeightTrackerBackup", 42, BackupSetKind::WeightTracker, false, "Weight Tracker Files", "Weight Tracker",
               "Auto", {"WeightTrker.Fil"}, {"WeightTrker.Wtp"}},
        SetRow{"WeightTrackerRestore", 43, BackupSetKind::WeightTracker, true, "Weight Tracker Files", "Weight Tracker",
               "Auto", {"WeightTrker.Fil"}, {"WeightTrker.Wtp"}}),
    [](const auto& info) { return std::string(info.param.label); });

TEST(BackupSets, CodesNoScreenSetsAreRefused)
{
    for (const int mode : {-1, 2, 3, 12, 13, 20, 21, 36, 40, 44, 99})
        EXPECT_FALSE(BackupSetFor(mode, {}).has_value()) << mode;
}

TEST(BackupSets, TheStatusOfEachFileCopyRestore)
{
    EXPECT_EQ(BackupSetFor(15, {})->restoreStatus, "Restoring Basic Food Storage Files");
    EXPECT_EQ(BackupSetFor(17, {})->restoreStatus, "Restoring Emergency Food Storage Files");
    EXPECT_EQ(BackupSetFor(19, {})->restoreStatus, "Restoring Additional Food Storage Files");
    EXPECT_EQ(BackupSetFor(43, {})->restoreStatus, "Restoring Weight Tracker Files");
}

TEST(BackupSets, IndividualNamesThatCouldLeaveTheFolderAreNotFileNames)
{
    EXPECT_TRUE(IsSafeIndividualName("Dad"));
    EXPECT_TRUE(IsSafeIndividualName("Mary Ann"));
    for (const char* bad : {"", "  ", "../etc", "a/b", "a\\b", "..", "tab\there", "line\nbreak"})
        EXPECT_FALSE(IsSafeIndividualName(QString::fromLatin1(bad))) << bad;
}

} // namespace
