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

Background GridBackgroundOf(QStringView text)
{
    const GridColors colors = GridColorsOf(text, QStringView());
    switch (colors.kind) {
    case GridColors::Kind::Picture:
        return Background{Background::Kind::Picture, kDefaultBackgroundColor, text.trimmed().toString()};
    case GridColors::Kind::Color:
        return Background::colorOf(colors.color);
    case GridColors::Kind::Unchanged:
        break;
    }
    return Background::standard();
}

QString GridBackgroundText(const Background& background)
{
    switch (background.kind) {
    case Background::Kind::Picture:
        return background.picture;
    case Background::Kind::Color:
        return QString::number(background.color);
    case Background::Kind::Standard:
        break;
    }
    return QString::fromLatin1(kDefaultColorText);
}
