#include "common/colors.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr std::array<qint32, 16> kColorTable = {
    0x000000, // 0 black
    0x800000, // 1 blue
    0x008000, // 2 green
    0x808000, // 3 cyan
    0x000080, // 4 red
    0x800080, // 5 magenta
    0x008080, // 6 yellow (brown)
    0xC0C0C0, // 7 white (light grey)
    0x808080, // 8 grey
    0xFF0000, // 9 light blue
    0x00FF00, // 10 light green
    0xFFFF00, // 11 light cyan
    0x0000FF, // 12 light red
    0xFF00FF, // 13 light magenta
    0x00FFFF, // 14 light yellow
    0xFFFFFF, // 15 bright white
};

int ClampByte(int value)
{
    return std::clamp(value, 0, 255);
}

} // namespace

qint32 QBColor(int index)
{
    if (index < 0 || index >= static_cast<int>(kColorTable.size()))
        return kInvalidColor;
    return kColorTable[static_cast<std::size_t>(index)];
}

qint32 FocusColor()
{
    return QBColor(kFocusColorIndex);
}

Rgb RgbOfColorref(qint32 colorref)
{
    const auto value = static_cast<quint32>(colorref);
    return {static_cast<int>(value & 0xFF), static_cast<int>((value >> 8) & 0xFF),
            static_cast<int>((value >> 16) & 0xFF)};
}

qint32 ColorrefOf(int red, int green, int blue)
{
    return ClampByte(red) | (ClampByte(green) << 8) | (ClampByte(blue) << 16);
}

qint32 ColorrefOf(const Rgb& rgb)
{
    return ColorrefOf(rgb.red, rgb.green, rgb.blue);
}

std::optional<qint32> ParseStoredColor(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty() || trimmed.compare(QLatin1StringView(kDefaultColorText), Qt::CaseInsensitive) == 0)
        return std::nullopt;
    qsizetype i = 0;
    const bool negative = trimmed[0] == u'-';
    if (trimmed[0] == u'-' || trimmed[0] == u'+')
        ++i;
    if (i == trimmed.size())
        return std::nullopt;
    qint64 value = 0;
    for (; i < trimmed.size(); ++i) {
        const QChar c = trimmed[i];
        if (c < u'0' || c > u'9')
            return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
        if (value > qint64(1) << 31)
            return std::nullopt;
    }
    if (negative)
        value = -value;
    if (value > std::numeric_limits<qint32>::max() || value < std::numeric_limits<qint32>::min())
        return std::nullopt;
    return static_cast<qint32>(value);
}

QString ColorSlotText(std::optional<qint32> color)
{
    return color ? QString::number(*color) : QString::fromLatin1(kDefaultColorText);
}
