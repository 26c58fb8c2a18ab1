#pragma once
// Measures text with the platform's font metrics on a 1440-dpi device, so a
// point is 20 twips and the same text in the same font always measures alike,
// whatever screen the program runs on.
#include "print/logic/textmeasurer.h"

class FontMeasurer final : public TextMeasurer {
public:
    double textWidth(const TextFont& font, const QString& text) const override;
    double lineHeight(const TextFont& font) const override;
};
