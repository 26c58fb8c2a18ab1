#pragma once
// The print font of all screens. It lives as long as the process, so the
// font chosen on one screen's print options panel is the one the next screen
// finds.
#include "common/textfont.h"
#include "shell/settings/settingsslots.h"

#include <QString>

TextFont& PrintFont();

// Where a screen keeps its print font: only the name and the size are ever
// stored, the name as a tagged text and the size as a tagged 32-bit integer.
struct PrintFontSlots {
    SettingsSlot name;
    SettingsSlot size;
};
// False when a write failed.
bool StorePrintFont(const PrintFontSlots& where, const TextFont& font);
// The name and size kept in the slots, over `font`; a slot never written
// leaves its part of the font as it was.
TextFont StoredPrintFont(const PrintFontSlots& where, TextFont font);

// The font size Auto Size finds: the size, stepped by whole points from the
// font's own, at which `testLine` is as wide as the page as can be without
// being wider, cut to a whole number.
class TextMeasurer;
int AutoSizeFontSize(const TextMeasurer& measurer, const TextFont& font, const QString& testLine, double pageWidth);
