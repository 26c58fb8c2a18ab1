#pragma once
// The runtime's Format for numbers and texts, with the patterns the screens
// and printouts use. The separators are always '.' and ',' whatever the
// locale, because formatted numbers are read back and written to files.
#include <QString>
#include <QStringView>

#include <concepts>

// Number patterns, up to three sections "positive;negative;zero":
//   0  a digit, or 0 where the number has none
//   #  a digit, or nothing: Format(0, "###") is "" and Format(0.5, "###.#")
//      is ".5" (no zero in front of the point)
//   .  the decimal point. It is written even when no fraction digit follows,
//      because the pattern, not the number, decides that a point stands there:
//      Format(5, "###.#") is "5." and Format(0, "###.#") is "."
//   ,  between digit placeholders: thousands separators over the whole integer
//      part ("###,###" gives "1,234,567"); right before the point or after the
//      last integer placeholder: the value is divided by 1000
//   %  the value times 100, and a '%' written in its place ("0.0%": 12.3%)
//   E+ E- e+ e-  scientific form ("0.00E+00": 1.23E+03)
//   \c and "text" are written as they stand, as are other characters.
// Named patterns: "General Number", "Currency" ($, US form), "Fixed" (0.00),
// "Standard" (#,##0.00: 1,250.00), "Percent" (0.00%), "Scientific",
// "Yes/No", "True/False", "On/Off". An empty pattern gives ShortestText.
//
// Digits come from the number's text (15 significant digits for a Double, 7
// for a Single) and are rounded half away from zero on those decimal digits:
// Format(1.005, "0.00") is "1.01", Format(2.5, "0") is "3", although the
// binary values lie just below. A negative number that rounds to zero keeps
// its sign ("-0.00"), as the runtime shows it.
QString Format(double value, QStringView pattern);
QString Format(float value, QStringView pattern);
template <std::integral T>
QString Format(T value, QStringView pattern)
{
    return Format(static_cast<double>(value), pattern);
}

// Text patterns, an optional second section for an empty text:
//   @  a character of the text, or a blank where the text has none left
//   &  a character of the text, or nothing
//   !  fill from the left (left-aligned) instead of from the right
//   <  >  the text in lower / upper case
//   \c and "text" are written as they stand, as are other characters.
// From the right (the default) the text is right-aligned and a text longer
// than the placeholders keeps all its characters: the surplus stands in front.
// From the left ("!@@@@") the text is padded with blanks on the right and a
// longer text is cut: the characters beyond the last placeholder are dropped,
// so the field keeps its width in a printed column.
QString FormatText(QStringView text, QStringView pattern);
