#pragma once
// The main screen's background, GQORB1.Fil slot 3 in tagged form: an integer
// is a colour; the text "Def" is the standard colour; "WP" and a number names
// one of the delivered pictures WP1.jpg to WP16.jpg.
#include "common/filewrites.h"

#include <QString>
#include <QtGlobal>

inline constexpr qint32 kDefaultBackgroundColor = 16711680; // blue, 0x00BBGGRR

struct Background {
    enum class Kind { Color, Standard, Picture };
    Kind kind = Kind::Color;
    qint32 color = kDefaultBackgroundColor;  // Kind::Color
    QString picture;                         // Kind::Picture: "WP7"

    QString pictureFile() const { return picture + QStringLiteral(".jpg"); }
    // 1 to 16 for a picture, 0 otherwise.
    int pictureNumber() const;

    static Background colorOf(qint32 color) { return {Kind::Color, color, {}}; }
    static Background standard() { return {Kind::Standard, kDefaultBackgroundColor, {}}; }
    // "WP" and the number: the delivered pictures are WP1.jpg to WP16.jpg.
    static Background pictureOf(int number) { return {Kind::Picture, kDefaultBackgroundColor, pictureName(number)}; }
    static QString pictureName(int number) { return QStringLiteral("WP%1").arg(number); }

    bool operator==(const Background&) const = default;
};

inline constexpr int kBackgroundPictureCount = 16;

// An empty slot (or a missing file) gives blue.
Background ReadStoredBackground();
// A colour as the integer kind; the standard colour as the text "Def"; a
// picture as its name.
WriteOutcome StoreBackground(const Background& background);

// GColor1.Fil slot 49: the last all-screens panel colour, "Default" when empty.
QString ReadLastPanelColor();
