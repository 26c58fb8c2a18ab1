#pragma once
// Every slot of every settings file that this program reads or writes, in
// one place: the file, the slot number, the form of its value and what it
// holds. Readers and writers name their slot from here; no slot number
// stands anywhere else. Slots that are not listed are not ours: files may
// hold other values there, and they are left alone.
#include "shell/settings/settingsslots.h"

#include <array>
#include <span>

namespace Settings {

// ---- GColor1.Fil: colours of screens and grids, toolbar flags ---------------
inline constexpr SettingsSlot ShoplistPanelColor{GColor1, 27, SlotForm::Text, "panel colour of Shoplist"};
inline constexpr SettingsSlot GridBackground{GColor1, 28, SlotForm::Text,
                                             "shared grid background: \"Default\", a colour or a \"WP\" picture"};
inline constexpr SettingsSlot GridTextColor{GColor1, 29, SlotForm::Text, "shared grid text colour"};
// Read at start as the colour of the last all-screens update, too.
inline constexpr SettingsSlot MainPanelColor{GColor1, 49, SlotForm::Text,
                                             "panel colour of Startfrm and Convform"};
inline constexpr SettingsSlot TopToolbarFlag{GColor1, 55, SlotForm::Text, "top toolbar flag, only ever emptied"};
inline constexpr SettingsSlot Form24PanelColor{GColor1, 70, SlotForm::Text, "panel colour of Form24"};
inline constexpr SettingsSlot Form24GridBackground{GColor1, 71, SlotForm::Text, "grid background of Form24"};
inline constexpr SettingsSlot Form24GridTextColor{GColor1, 72, SlotForm::Text, "grid text colour of Form24"};
inline constexpr SettingsSlot WeightTrackerPanelColor{GColor1, 80, SlotForm::Text, "panel colour of WeightTracker"};
inline constexpr SettingsSlot WeightTrackerToolbarFlag{GColor1, 81, SlotForm::Text,
                                                       "top toolbar flag of WeightTracker, only ever emptied"};
inline constexpr SettingsSlot WeightTrackerGridColor{GColor1, 82, SlotForm::Text, "grid colour of WeightTracker"};
inline constexpr SettingsSlot WeightTrackerDateChecker{GColor1, 83, SlotForm::Text,
                                                       "date checker option of WeightTracker"};

// ---- GColor2.Fil: colours of more screens ------------------------------------
inline constexpr SettingsSlot FoodgPanelColor{GColor2, 9, SlotForm::Text, "panel colour of Foodg"};
inline constexpr SettingsSlot ZcalandarPanelColor{GColor2, 22, SlotForm::Text, "panel colour of Zcalandar"};
inline constexpr SettingsSlot ZcalandarTextColor{GColor2, 23, SlotForm::Text, "second (text) colour of Zcalandar"};
inline constexpr SettingsSlot Form5PanelColor{GColor2, 25, SlotForm::Text, "panel colour of Form5"};
inline constexpr SettingsSlot Form5GridColor{GColor2, 26, SlotForm::Text, "second colour of Form5 (grids)"};

// ---- GColor3.Fil: window mode, guide line options ----------------------------
inline constexpr SettingsSlot Form24GuideLines{GColor3, 28, SlotForm::Text, "guide line option of Form24"};
inline constexpr SettingsSlot WindowMode{GColor3, 35, SlotForm::Text, "\"Yes\" windowed, \"No\" full screen"};
inline constexpr SettingsSlot WindowHeight{GColor3, 36, SlotForm::Integer, "WindowHeight in twips"};
inline constexpr SettingsSlot WindowWidth{GColor3, 37, SlotForm::Integer, "WindowWidth in twips"};
inline constexpr SettingsSlot Form5GuideLines{GColor3, 38, SlotForm::Text, "guide line option of Form5"};
inline constexpr SettingsSlot ZcalandarGuideLines{GColor3, 42, SlotForm::Text, "guide line option of Zcalandar"};
inline constexpr SettingsSlot ShoplistGuideLines{GColor3, 50, SlotForm::Text, "guide line option of Shoplist"};
inline constexpr SettingsSlot WeightTrackerGuideLines{GColor3, 80, SlotForm::Text,
                                                      "guide line option of WeightTracker"};

// ---- GColor4.Fil: cookbooks, print fonts, trend option -----------------------
inline constexpr SettingsSlot CurrentCookbook{GColor4, 1, SlotForm::Text,
                                              "current cookbook of Form5, a number with a leading blank"};
inline constexpr std::array<SettingsSlot, 8> CookbookTitles{{
    {GColor4, 2, SlotForm::Text, "title of cookbook 1"},
    {GColor4, 3, SlotForm::Text, "title of cookbook 2"},
    {GColor4, 4, SlotForm::Text, "title of cookbook 3"},
    {GColor4, 5, SlotForm::Text, "title of cookbook 4"},
    {GColor4, 6, SlotForm::Text, "title of cookbook 5"},
    {GColor4, 7, SlotForm::Text, "title of cookbook 6"},
    {GColor4, 8, SlotForm::Text, "title of cookbook 7"},
    {GColor4, 9, SlotForm::Text, "title of cookbook 8"},
}};
inline constexpr SettingsSlot ShoplistCookbook{GColor4, 11, SlotForm::Text, "cookbook number of Shoplist"};
inline constexpr SettingsSlot ZcalandarPrintFontName{GColor4, 26, SlotForm::Tagged, "print font name of Zcalandar"};
inline constexpr SettingsSlot ZcalandarPrintFontSize{GColor4, 27, SlotForm::Tagged, "print font size of Zcalandar"};
inline constexpr SettingsSlot WeightTrackerPrintFontName{GColor4, 32, SlotForm::Tagged,
                                                         "print font name of WeightTracker"};
inline constexpr SettingsSlot WeightTrackerPrintFontSize{GColor4, 33, SlotForm::Tagged,
                                                         "print font size of WeightTracker"};
inline constexpr SettingsSlot WeightTrackerTrend{GColor4, 34, SlotForm::Text,
                                                 "trend display option of WeightTracker"};

// ---- GQORB1.Fil: main background, side toolbar flag --------------------------
inline constexpr SettingsSlot Background{GQORB1, 3, SlotForm::Tagged,
                                         "main background: a colour, \"Def\" or a \"WP\" picture"};
inline constexpr SettingsSlot SideToolbarsFlag{GQORB1, 10, SlotForm::Integer, "side toolbar flag, written 0"};

// ---- QORBNAME.FIL: family name -----------------------------------------------
inline constexpr SettingsSlot FamilyName{QORBNAME, 1, SlotForm::Text, "family name, up to 15 characters"};

// ---- SWR2.fil: start values, menu planner options ----------------------------
inline constexpr SettingsSlot StartValue{SWR2, 2, SlotForm::Integer, "read at start, not used further"};
inline constexpr SettingsSlot StartText1{SWR2, 3, SlotForm::Text, "read at start, not used further"};
inline constexpr SettingsSlot StartText2{SWR2, 4, SlotForm::Text, "read at start, not used further"};
inline constexpr SettingsSlot MonthsToDisplay{SWR2, 10, SlotForm::Integer,
                                              "planner: months side by side, 0 to 2 for 1 to 3"};
inline constexpr SettingsSlot WeekNumbers{SWR2, 11, SlotForm::Integer, "planner: week numbers, 0 shown, 1 not"};
inline constexpr SettingsSlot FirstWeekday{SWR2, 12, SlotForm::Integer, "planner: 1 Sunday to 7 Saturday"};
inline constexpr SettingsSlot ShowToday{SWR2, 13, SlotForm::Integer, "planner: today line, 1 shown, 0 not"};

// ---- The all-screens panel colour update -------------------------------------
// Slots that only the all-screens update writes; no screen of this program
// reads them, but the settings files have always carried them.
inline constexpr std::array<SettingsSlot, 30> AllScreensOnlyColors{{
    {GColor1, 10, SlotForm::Text, "all-screens colour"},  {GColor1, 11, SlotForm::Text, "all-screens colour"},
    {GColor1, 12, SlotForm::Text, "all-screens colour"},  {GColor1, 13, SlotForm::Text, "all-screens colour"},
    {GColor1, 16, SlotForm::Text, "all-screens colour"},  {GColor1, 17, SlotForm::Text, "all-screens colour"},
    {GColor1, 18, SlotForm::Text, "all-screens colour"},  {GColor1, 22, SlotForm::Text, "all-screens colour"},
    {GColor1, 32, SlotForm::Text, "all-screens colour"},  {GColor1, 36, SlotForm::Text, "all-screens colour"},
    {GColor1, 38, SlotForm::Text, "all-screens colour"},  {GColor1, 40, SlotForm::Text, "all-screens colour"},
    {GColor1, 54, SlotForm::Text, "all-screens colour"},  {GColor1, 56, SlotForm::Text, "all-screens colour"},
    {GColor2, 5, SlotForm::Text, "all-screens colour"},   {GColor2, 12, SlotForm::Text, "all-screens colour"},
    {GColor2, 16, SlotForm::Text, "all-screens colour"},  {GColor2, 19, SlotForm::Text, "all-screens colour"},
    {GColor2, 20, SlotForm::Text, "all-screens colour"},  {GColor2, 40, SlotForm::Text, "all-screens colour"},
    {GColor3, 8, SlotForm::Text, "all-screens colour"},   {GColor3, 17, SlotForm::Text, "all-screens colour"},
    {GColor3, 91, SlotForm::Text, "all-screens colour"},  {GColor3, 92, SlotForm::Text, "all-screens colour"},
    {GColor3, 100, SlotForm::Text, "all-screens colour"}, {GColor3, 101, SlotForm::Text, "all-screens colour"},
    {GColor3, 102, SlotForm::Text, "all-screens colour"}, {GColor3, 103, SlotForm::Text, "all-screens colour"},
    {GColor3, 104, SlotForm::Text, "all-screens colour"}, {GColor3, 105, SlotForm::Text, "all-screens colour"},
}};

// What the all-screens update writes, file after file and in slot order
// within a file: the screens' own panel colours and the slots above.
std::span<const SettingsSlot> AllScreensColorSlots();

// Every slot listed here, for the registry's own checks.
std::span<const SettingsSlot> AllSettings();

} // namespace Settings
