#pragma once
// The background and text colour of a screen's grids. The background slot
// holds "Default" (leave the grid as it is), a colour number, or the name of
// a picture beginning "WP" in any case, shown from that name plus ".jpg".
// The text slot holds "Default" or a colour number.
#include "shell/logic/background.h"
#include "shell/settings/settingsregistry.h"

#include <QString>
#include <optional>

struct GridColors {
    enum class Kind { Unchanged, Color, Picture };
    Kind kind = Kind::Unchanged;
    qint32 color = 0;                 // Kind::Color
    QString pictureFile;              // Kind::Picture: "WP3.jpg"
    std::optional<qint32> textColor;  // nothing: the grid keeps its text colour

    bool operator==(const GridColors&) const = default;
};

GridColors GridColorsOf(QStringView background, QStringView text);
GridColors ReadGridColors(const SettingsSlot& background, const SettingsSlot& text);
// The pair that most grids share.
GridColors ReadSharedGridColors();

// A grid background slot as the background selector shows it, and the text
// the selector's choice stores there: a picture as its name ("WP3"), a
// colour as its number, the standard background as "Default" (the grid as
// it is).
Background GridBackgroundOf(QStringView text);
QString GridBackgroundText(const Background& background);
