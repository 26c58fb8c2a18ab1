#include "shell/logic/gridcolors.h"

#include "common/colors.h"

GridColors GridColorsOf(QStringView background, QStringView text)
{
    GridColors colors;
    const QStringView name = background.trimmed();
    if (name.left(2).compare(QLatin1String("WP"), Qt::CaseInsensitive) == 0) {
        colors.kind = GridColors::Kind::Picture;
        colors.pictureFile = name.toString() + QStringLiteral(".jpg");
    } else if (const std::optional<qint32> color = ParseStoredColor(name)) {
        colors.kind = GridColors::Kind::Color;
        colors.color = *color;
    }
    colors.textColor = ParseStoredColor(text);
    return colors;
}

GridColors ReadGridColors(const SettingsSlot& background, const SettingsSlot& text)
{
    return GridColorsOf(ReadSlotText(background), ReadSlotText(text));
}

GridColors ReadSharedGridColors()
{
    return ReadGridColors(Settings::GridBackground, Settings::GridTextColor);
}
