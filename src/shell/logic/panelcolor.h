#pragma once
// Panel colours: each screen keeps the colour of its panels in one settings
// slot, as the word "Default" (the system's colour) or a COLORREF number.
#include "common/filewrites.h"
#include "shell/settings/settingsregistry.h"

#include <QString>
#include <optional>

// The stored colour; nothing for "Default" or an empty slot, which both mean
// the system's standard panel colour.
std::optional<qint32> ReadPanelColor(const SettingsSlot& slot);

// A colour the user may not pick for panels: the panels' own text colour, or
// palette colours 1, 9, 4 and 12 of the classic 16-colour table.
bool ColorConflicts(qint32 color, qint32 panelTextColor);

// Writes "Default" or the decimal number to the screen's slot and returns the
// text written (the pending colour); nothing when the write did not hold.
std::optional<QString> StorePanelColor(const SettingsSlot& slot, bool isDefault, qint32 color);

// The all-screens update is offered when the pending colour is not blank and
// differs from the last one.
bool ShouldOfferToAllScreens(const QString& pendingColor, const QString& lastPanelColor);

// Writes the colour to every panel colour slot of every screen (GColor1.Fil,
// then GColor2.Fil, then GColor3.Fil), letting events run between files,
// and stops at the first slot that does not hold.
WriteOutcome WriteColorToAllScreens(const QString& color);
