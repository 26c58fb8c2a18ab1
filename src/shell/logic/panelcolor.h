#pragma once
// Panel colours: each screen keeps the colour of its panels in one settings
// slot, as the word "Default" (the system's colour) or a COLORREF number.
#include "shell/settings/settingsslots.h"

#include <QString>
#include <optional>

struct PanelColorSlot {
    SettingsSlotFile file;
    int slot;
};

inline constexpr PanelColorSlot kStartfrmPanelColor{GColor1, 49};
inline constexpr PanelColorSlot kConvformPanelColor{GColor1, 49};
inline constexpr PanelColorSlot kForm5PanelColor{GColor2, 25};
inline constexpr PanelColorSlot kFoodgPanelColor{GColor2, 9};
inline constexpr PanelColorSlot kZcalandarPanelColor{GColor2, 22};
inline constexpr PanelColorSlot kShoplistPanelColor{GColor1, 27};
inline constexpr PanelColorSlot kForm24PanelColor{GColor1, 70};
inline constexpr PanelColorSlot kWeightTrackerPanelColor{GColor1, 80};

// The stored colour; nothing for "Default" or an empty slot, which both mean
// the system's standard panel colour.
std::optional<qint32> ReadPanelColor(const PanelColorSlot& slot);

// A colour the user may not pick for panels: the panels' own text colour, or
// palette colours 1, 9, 4 and 12 of the classic 16-colour table.
bool ColorConflicts(qint32 color, qint32 panelTextColor);

// Writes "Default" or the decimal number to the screen's slot and returns the
// text written (the pending colour).
QString StorePanelColor(const PanelColorSlot& slot, bool isDefault, qint32 color);

// The all-screens update is offered when the pending colour is not blank and
// differs from the last one.
bool ShouldOfferToAllScreens(const QString& pendingColor, const QString& lastPanelColor);

// Writes the colour to every panel colour slot of every screen (GColor1.Fil,
// then GColor2.Fil, then GColor3.Fil), letting events run between files.
void WriteColorToAllScreens(const QString& color);
