#include "shell/settings/settingsregistry.h"

#include <algorithm>
#include <vector>

namespace Settings {

namespace {

// The file order of the all-screens update.
int FileOrder(const SettingsSlotFile& file)
{
    if (file == GColor1)
        return 1;
    if (file == GColor2)
        return 2;
    return 3;
}

std::vector<SettingsSlot> SortedForUpdate()
{
    std::vector<SettingsSlot> ordered(AllScreensOnlyColors.begin(), AllScreensOnlyColors.end());
    for (const SettingsSlot& panel : {ShoplistPanelColor, MainPanelColor, Form24PanelColor, WeightTrackerPanelColor,
                                      FoodgPanelColor, ZcalandarPanelColor, Form5PanelColor})
        ordered.push_back(panel);
    std::sort(ordered.begin(), ordered.end(), [](const SettingsSlot& a, const SettingsSlot& b) {
        return std::pair(FileOrder(a.file), a.number) < std::pair(FileOrder(b.file), b.number);
    });
    return ordered;
}

std::vector<SettingsSlot> Everything()
{
    std::vector<SettingsSlot> all = {
        ShoplistPanelColor, GridBackground, GridTextColor, MainPanelColor, TopToolbarFlag, Form24PanelColor,
        Form24GridBackground, Form24GridTextColor, WeightTrackerPanelColor, WeightTrackerToolbarFlag,
        WeightTrackerGridColor, WeightTrackerDateChecker, FoodgPanelColor, ZcalandarPanelColor, ZcalandarTextColor,
        Form5PanelColor, Form5GridColor, Form24GuideLines, WindowMode, WindowHeight, WindowWidth, Form5GuideLines,
        ZcalandarGuideLines, ShoplistGuideLines, WeightTrackerGuideLines, CurrentCookbook, ShoplistCookbook,
        ZcalandarPrintFontName, ZcalandarPrintFontSize, WeightTrackerPrintFontName, WeightTrackerPrintFontSize,
        WeightTrackerTrend, Background, SideToolbarsFlag, FamilyName, StartValue, StartText1, StartText2,
        MonthsToDisplay, WeekNumbers, FirstWeekday, ShowToday,
    };
    all.insert(all.end(), CookbookTitles.begin(), CookbookTitles.end());
    all.insert(all.end(), AllScreensOnlyColors.begin(), AllScreensOnlyColors.end());
    return all;
}

} // namespace

std::span<const SettingsSlot> AllScreensColorSlots()
{
    static const std::vector<SettingsSlot> ordered = SortedForUpdate();
    return ordered;
}

std::span<const SettingsSlot> AllSettings()
{
    static const std::vector<SettingsSlot> all = Everything();
    return all;
}

} // namespace Settings
