#include "print/logic/printfont.h"

#include "print/logic/textmeasurer.h"

#include <cmath>

TextFont& PrintFont()
{
    static TextFont font;
    return font;
}

bool StorePrintFont(const PrintFontSlots& where, const TextFont& font)
{
    const bool nameStored = WriteSlotTagged(where.name, font.name);
    const bool sizeStored = WriteSlotTagged(where.size, qint32(std::trunc(font.size)));
    return nameStored && sizeStored;
}

TextFont StoredPrintFont(const PrintFontSlots& where, TextFont font)
{
    const TaggedValue name = ReadSlotTagged(where.name);
    if (const auto* text = std::get_if<QString>(&name); text && !text->isEmpty())
        font.name = *text;
    const TaggedValue size = ReadSlotTagged(where.size);
    if (const auto* points = std::get_if<qint32>(&size); points && *points > 0)
        font.size = *points;
    return font;
}

int AutoSizeFontSize(const TextMeasurer& measurer, const TextFont& font, const QString& testLine, double pageWidth)
{
    // Sizes stay within what a font dialog offers, so a measure that never
    // reaches the page cannot step for ever.
    constexpr double kSmallest = 1;
    constexpr double kLargest = 1638;
    TextFont trial = font;
    auto width = [&] { return measurer.textWidth(trial, testLine); };
    while (width() < pageWidth && trial.size + 1 <= kLargest)
        trial.size += 1;
    while (width() > pageWidth && trial.size - 1 >= kSmallest)
        trial.size -= 1;
    return int(std::trunc(trial.size));
}
