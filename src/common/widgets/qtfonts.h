#pragma once
// A TextFont as a Qt font and back.
#include "common/textfont.h"

#include <QFont>

// The QFont of a TextFont at its point size (a size of 0 or less reads as 1).
// Hinting is off so that measures do not depend on the screen.
QFont QFontOf(const TextFont& font);
// The TextFont of a QFont, in `color`, which a QFont does not hold.
TextFont TextFontOf(const QFont& font, qint32 color);
