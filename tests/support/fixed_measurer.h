#pragma once
// A text measurer with round numbers, so tests compute expected positions by
// hand: every character is 10 twips wide per point of size, and a line is 20
// twips per point plus 40.
#include "print/logic/textmeasurer.h"

class FixedMeasurer final : public TextMeasurer {
public:
    double textWidth(const TextFont& font, const QString& text) const override
    {
        return 10 * font.size * text.size();
    }
    double lineHeight(const TextFont& font) const override { return 20 * font.size + 40; }
};
