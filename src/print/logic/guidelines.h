#pragma once
// The guide line option of a printing screen: the index of the chosen
// option as text, 0 "Do Not Display Guide Lines", 1 "Display Guide Lines".
#include "shell/settings/settingsslots.h"

inline constexpr int kGuideLinesOff = 0;
inline constexpr int kGuideLinesOn = 1;

// An empty slot reads as 0; so does any text that is not the number 1.
int ReadGuideLineOption(const SettingsSlot& slot);
// False when the write did not hold.
bool WriteGuideLineOption(const SettingsSlot& slot, int index);
