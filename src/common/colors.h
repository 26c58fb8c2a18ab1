#pragma once
// Colours are Windows colour values, as the settings files store them: a
// 32-bit integer 0x00BBGGRR, red in the lowest byte, so 16711680 (0xFF0000)
// is full blue and 255 is full red. The logic keeps them as plain integers;
// only screens turn them into QColor.
#include <QString>
#include <QtGlobal>
#include <optional>

// The value the old runtime gives for a colour that does not exist.
inline constexpr qint32 kInvalidColor = -1;

// The classic 16-colour table: 0 black, 1 blue, 2 green, 3 cyan, 4 red,
// 5 magenta, 6 yellow (brown), 7 white (light grey), 8 grey, 9 light blue,
// 10 light green, 11 light cyan, 12 light red, 13 light magenta,
// 14 light yellow, 15 bright white. kInvalidColor outside 0 to 15.
qint32 QBColor(int index);

// A field with the focus has the light yellow of the table.
inline constexpr int kFocusColorIndex = 14;
qint32 FocusColor();

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const Rgb&) const = default;
};

// The three low bytes; the high byte (set on system colour numbers) is ignored.
Rgb RgbOfColorref(qint32 colorref);
// Each part is held to 0..255, as the old RGB function did above 255.
qint32 ColorrefOf(int red, int green, int blue);
qint32 ColorrefOf(const Rgb& rgb);

// A colour slot holds the word "Default" (the system colour), a decimal
// colour value, or nothing at all when no choice was ever made.
inline constexpr const char* kDefaultColorText = "Default";

// The colour value of a slot's text, blanks around it allowed; nullopt for
// "Default" (in any case), an empty slot, or any text that is not a whole
// number in the 32-bit range (such as a picture name "WP3").
std::optional<qint32> ParseStoredColor(QStringView text);
// What a colour slot stores: the decimal value, or "Default" for none.
QString ColorSlotText(std::optional<qint32> color);
