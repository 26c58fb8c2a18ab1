#pragma once
// Numbers as text, by the rules of the classic Basic runtime that wrote the
// data files. Nothing here follows the locale: the point is always '.', so a
// file written on one system reads the same on any other.
#include <QByteArray>
#include <QString>
#include <QStringView>

#include <concepts>
#include <optional>

// The number at the front of a text. Blanks (space, tab, CR, LF) before it
// are skipped; then an optional sign, digits with at most one '.', and an
// optional exponent (E or D in either case, optional sign, missing digits
// count as 0). Reading stops at the first character that cannot continue the
// number, a blank included: "1 1/2" is 1, " 12 34" is 12, "4 servings" is 4,
// "1,250.00" is 1. A text that does not start with a number is 0. "&H1F" and
// "&O17" read hexadecimal and octal; as in the runtime a value up to FFFF is
// an Integer and one up to FFFFFFFF a Long, so "&HFFFF" is -1 and "&H10000"
// is 65536.
double Val(QStringView text);

// Val, but empty where the runtime stops with an overflow: a decimal beyond
// the range of a Double, or hexadecimal / octal of more than 32 bits. Val
// itself reads those as 0, which is what a resume-next caller ends up with.
std::optional<double> ValChecked(QStringView text);

// The runtime's number-to-text rule, shared by Str, the implicit conversion
// and Format: the value is rounded to 15 significant digits (7 for a Single)
// and trailing zeros are dropped. The scientific form ("1E+15", "1.5E-05":
// mantissa, 'E', sign, at least two exponent digits) is used when the decimal
// exponent of the rounded value is 15 or more (7 or more for a Single) or
// below -4; so .0001 stays plain and .00001 becomes 1E-05.
//
// Str: a blank in the sign place of a number that is not negative, and no
// zero in front of the point: Str(17) " 17", Str(0.5) " .5", Str(-0.25)
// "-.25". Menu plan files are named by it: Str(2026) + ".Mnu" is " 2026.Mnu".
QString Str(double value);
// A Single has its own entry: Str of a float would silently show the binary
// noise of its Double value (" .100000001490116" for .1).
template <typename T>
    requires std::same_as<T, float>
QString Str(T value) = delete;
QString StrSingle(float value);

// The text a number becomes when it is assigned to, or joined with, a text:
// no sign blank and a zero kept in front of the point ("0.5", "-0.25", "4").
QString ShortestText(double value);
QString ShortestText(float value);
template <std::integral T>
QString ShortestText(T value)
{
    return ShortestText(static_cast<double>(value));
}

// Rounds a Double to the nearest Single, as CSng does. Beyond the Single range
// the result is an infinity where the runtime would report an overflow.
float ToSingle(double value);

// A finite number as its significant decimal digits, the common ground of the
// rules above: |value| = 0.<digits> x 10^pointPosition, digits without
// trailing zeros ("125" and 1 for 1.25); no digits at all for 0. Infinities
// and NaN also give no digits.
struct DecimalDigits {
    QByteArray digits;
    qint64 pointPosition = 0;
    bool negative = false;
};
// significantDigits is 15 for a Double and 7 for a Single (1 to 17 accepted).
DecimalDigits ToDecimalDigits(double value, int significantDigits);
