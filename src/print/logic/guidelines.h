#pragma once
// The guide line option of a printing screen: the index of the chosen
// option as text, 0 "Do Not Display Guide Lines", 1 "Display Guide Lines".
#include "shell/settings/settingsslots.h"

// Every screen keeps its option in GColor3.Fil.
inline constexpr SettingsSlotFile kGuideLineFile = GColor3;
inline constexpr int kForm24GuideLineSlot = 28;
inline constexpr int kForm5GuideLineSlot = 38;
inline constexpr int kZcalandarGuideLineSlot = 42;
inline constexpr int kShoplistGuideLineSlot = 50;
inline constexpr int kWeightTrackerGuideLineSlot = 80;

inline constexpr int kGuideLinesOff = 0;
inline constexpr int kGuideLinesOn = 1;

// An empty slot reads as 0; so does any text that is not the number 1.
int ReadGuideLineOption(const SettingsSlotFile& file, int slot);
void WriteGuideLineOption(const SettingsSlotFile& file, int slot, int index);
