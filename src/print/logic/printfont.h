#pragma once
// The print font of all screens. It lives as long as the process, so the
// font chosen on one screen's print options panel is the one the next screen
// finds.
#include "common/textfont.h"

#include <QString>

TextFont& PrintFont();

// The font size Auto Size finds: the size, stepped by whole points from the
// font's own, at which `testLine` is as wide as the page as can be without
// being wider, cut to a whole number.
class TextMeasurer;
int AutoSizeFontSize(const TextMeasurer& measurer, const TextFont& font, const QString& testLine, double pageWidth);
