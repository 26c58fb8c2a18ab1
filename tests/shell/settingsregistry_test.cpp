// The registry of settings slots against the settings files' layout, stated
// here on its own: every slot's file, number and form, no slot listed twice,
// and the order of the all-screens colour update.
#include "shell/settings/settingsregistry.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>

namespace {

struct Row {
    const char* name;
    SettingsSlot slot;
    const char* file;
    int number;
    SlotForm form;
};

std::string Key(const SettingsSlot& slot)
{
    return std::string(slot.file.name) + "#" + std::to_string(slot.number);
}

} // namespace

TEST(SettingsRegistry, EverySlotHasItsFileNumberAndForm)
{
    using enum SlotForm;
    const Row rows[] = {
        {"Shoplist panel colour", Settings::ShoplistPanelColor, "GColor1.Fil", 27, Text},
        {"shared grid background", Settings::GridBackground, "GColor1.Fil", 28, Text},
        {"shared grid text", Settings::GridTextColor, "GColor1.Fil", 29, Text},
        {"main and measurement guide panel colour", Settings::MainPanelColor, "GColor1.Fil", 49, Text},
        {"top toolbar flag", Settings::TopToolbarFlag, "GColor1.Fil", 55, Text},
        {"Form24 panel colour", Settings::Form24PanelColor, "GColor1.Fil", 70, Text},
        {"Form24 grid background", Settings::Form24GridBackground, "GColor1.Fil", 71, Text},
        {"Form24 grid text", Settings::Form24GridTextColor, "GColor1.Fil", 72, Text},
        {"WeightTracker panel colour", Settings::WeightTrackerPanelColor, "GColor1.Fil", 80, Text},
        {"WeightTracker toolbar flag", Settings::WeightTrackerToolbarFlag, "GColor1.Fil", 81, Text},
        {"WeightTracker grid colour", Settings::WeightTrackerGridColor, "GColor1.Fil", 82, Text},
        {"WeightTracker date checker", Settings::WeightTrackerDateChecker, "GColor1.Fil", 83, Text},
        {"Foodg panel colour", Settings::FoodgPanelColor, "GColor2.Fil", 9, Text},
        {"Zcalandar panel colour", Settings::ZcalandarPanelColor, "GColor2.Fil", 22, Text},
        {"Zcalandar second colour", Settings::ZcalandarTextColor, "GColor2.Fil", 23, Text},
        {"Form5 panel colour", Settings::Form5PanelColor, "GColor2.Fil", 25, Text},
        {"Form5 second colour", Settings::Form5GridColor, "GColor2.Fil", 26, Text},
        {"Form24 guide lines", Settings::Form24GuideLines, "GColor3.Fil", 28, Text},
        {"window mode", Settings::WindowMode, "GColor3.Fil", 35, Text},
        {"window height", Settings::WindowHeight, "GColor3.Fil", 36, Integer},
        {"window width", Settings::WindowWidth, "GColor3.Fil", 37, Integer},
        {"Form5 guide lines", Settings::Form5GuideLines, "GColor3.Fil", 38, Text},
        {"Zcalandar guide lines", Settings::ZcalandarGuideLines, "GColor3.Fil", 42, Text},
        {"Shoplist guide lines", Settings::ShoplistGuideLines, "GColor3.Fil", 50, Text},
        {"WeightTracker guide lines", Settings::WeightTrackerGuideLines, "GColor3.Fil", 80, Text},
        {"current cookbook", Settings::CurrentCookbook, "GColor4.Fil", 1, Text},
        {"Shoplist cookbook", Settings::ShoplistCookbook, "GColor4.Fil", 11, Text},
        {"Zcalandar font name", Settings::ZcalandarPrintFontName, "GColor4.Fil", 26, Tagged},
        {"Zcalandar font size", Settings::ZcalandarPrintFontSize, "GColor4.Fil", 27, Tagged},
        {"WeightTracker font name", Settings::WeightTrackerPrintFontName, "GColor4.Fil", 32, Tagged},
        {"WeightTracker font size", Settings::WeightTrackerPrintFontSize, "GColor4.Fil", 33, Tagged},
        {"WeightTracker trend", Settings::WeightTrackerTrend, "GColor4.Fil", 34, Text},
        {"background", Settings::Background, "GQORB1.Fil", 3, Tagged},
        {"side toolbar flag", Settings::SideToolbarsFlag, "GQORB1.Fil", 10, Integer},
        {"family name", Settings::FamilyName, "QORBNAME.FIL", 1, Text},
        {"start value", Settings::StartValue, "SWR2.fil", 2, Integer},
        {"start text 1", Settings::StartText1, "SWR2.fil", 3, Text},
        {"start text 2", Settings::StartText2, "SWR2.fil", 4, Text},
        {"months to display", Settings::MonthsToDisplay, "SWR2.fil", 10, Integer},
        {"week numbers", Settings::WeekNumbers, "SWR2.fil", 11, Integer},
        {"first weekday", Settings::FirstWeekday, "SWR2.fil", 12, Integer},
        {"today line", Settings::ShowToday, "SWR2.fil", 13, Integer},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_STREQ(row.slot.file.name, row.file);
        EXPECT_EQ(row.slot.number, row.number);
        EXPECT_EQ(row.slot.form, row.form);
    }
    for (int i = 0; i < 8; ++i) {
        EXPECT_STREQ(Settings::CookbookTitles[i].file.name, "GColor4.Fil");
        EXPECT_EQ(Settings::CookbookTitles[i].number, 2 + i);
    }
}

TEST(SettingsRegistry, TheFilesHaveTheirSlotLengths)
{
    EXPECT_EQ(GColor1.slotLength, 20);
    EXPECT_EQ(GColor2.slotLength, 20);
    EXPECT_EQ(GColor3.slotLength, 20);
    EXPECT_EQ(GColor4.slotLength, 40);
    EXPECT_EQ(GQORB1.slotLength, 10);
    EXPECT_EQ(QORBNAME.slotLength, 40);
    EXPECT_EQ(SWR2.slotLength, 20);
}

// Startfrm and Convform share slot 49 of GColor1.Fil, and the all-screens
// update writes the screens' own panel colour slots: both are one entry each
// in the registry, so no (file, slot) pair may stand twice.
TEST(SettingsRegistry, NoTwoSettingsShareASlot)
{
    std::set<std::string> seen;
    for (const SettingsSlot& slot : Settings::AllSettings())
        EXPECT_TRUE(seen.insert(Key(slot)).second) << Key(slot) << " is listed twice";
    EXPECT_EQ(seen.size(), Settings::AllSettings().size());
}

TEST(SettingsRegistry, TheAllScreensUpdateWritesItsSlotsFileByFile)
{
    const std::pair<const char*, std::vector<int>> expected[] = {
        {"GColor1.Fil", {10, 11, 12, 13, 16, 17, 18, 22, 27, 32, 36, 38, 40, 49, 54, 56, 70, 80}},
        {"GColor2.Fil", {5, 9, 12, 16, 19, 20, 22, 25, 40}},
        {"GColor3.Fil", {8, 17, 91, 92, 100, 101, 102, 103, 104, 105}},
    };
    std::vector<std::pair<std::string, int>> wanted;
    for (const auto& [file, numbers] : expected) {
        for (const int number : numbers)
            wanted.emplace_back(file, number);
    }
    std::vector<std::pair<std::string, int>> actual;
    for (const SettingsSlot& slot : Settings::AllScreensColorSlots()) {
        actual.emplace_back(slot.file.name, slot.number);
        EXPECT_EQ(slot.form, SlotForm::Text);
    }
    EXPECT_EQ(actual, wanted);
}

TEST(SettingsRegistry, EveryAllScreensSlotIsRegistered)
{
    std::set<std::string> registered;
    for (const SettingsSlot& slot : Settings::AllSettings())
        registered.insert(Key(slot));
    for (const SettingsSlot& slot : Settings::AllScreensColorSlots())
        EXPECT_TRUE(registered.count(Key(slot))) << Key(slot);
}
