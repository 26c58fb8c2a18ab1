#pragma once
// A TextFont as a Qt font and back.
#include "common/textfont.h"

#include <QFont>

// The QFont of a TextFont at its point size (a size of 0 or less reads as 1).
// Hinting is off so that measures do not depend on the screen.
QFont QFontOf(const TextFont& font);
// The TextFont of a QFont, in `color`, which a QFont does not hold.
TextFont TextFontOf(const QFont& font, qint32 color);

// The family a font dialog can show for a stored font name: the name itself
// when it is installed, else the face made to the same measures ("Times New
// Roman" is shown as "Liberation Serif", "Arial" as "Liberation Sans",
// "Courier New" as "Liberation Mono").
QString InstalledFamilyOf(const QString& name);
// The name to store for a family picked in a font dialog: the classic name
// behind a metric-compatible face that stands in for it, so the settings
// files keep the names the family's older files use.
QString StoredFamilyOf(const QString& family);
