#pragma once
// How wide and how high text is on the page, in twips. The page builder asks
// this; the screens measure with real font metrics on a 1440-dpi device.
#include "common/textfont.h"

#include <QString>

class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;
    virtual double textWidth(const TextFont& font, const QString& text) const = 0;
    // The distance from one line's top to the next.
    virtual double lineHeight(const TextFont& font) const = 0;
};
