#pragma once
// Amounts are stored as decimal text ("1.5", ".33"); the cook reads kitchen
// fractions. FormatAmount is the one rule that turns the first into the
// second, for the screen, printing and export.
#include <QString>
#include <QStringList>
#include <span>

// The whole part and the rest of a decimal amount. The rest is held in single
// precision on purpose: the fraction boundaries fall where they do because of
// it.
struct AmountParts {
    float wholePart = 0;
    float fractionPart = 0;
};
AmountParts SplitAmount(double amount);

// The fraction table, read top to bottom, first true test wins:
//   below .1          S 0      no text
//   below .2          S .125   "1/8"
//   below .3          S .25    "1/4"
//   up to .4          S .33    "1/3"
//   up to .6          S .5     "1/2"
//   up to .7          S .67    "2/3"
//   up to .85         S .75    "3/4"
//   above .85 (< 1)   S 1      no text, the whole part goes up by one
// The first three tests are strict, the others inclusive, all against
// single-precision constants.
//
// The fraction text of a rest.
QString FractionText(float fractionPart);
// The snapped value S of a rest, as the calculator adds it to the whole
// part. S is a double so that 2 + .33 reads back as "2.33", not as the
// binary noise of a single .33.
double SnappedFraction(float fractionPart);

// "3", "1 1/2", "1/3"; empty for an empty amount. A rest that gives no
// fraction text still leaves the blank: 3.05 gives "3 ", 2.9 gives "3 ".
QString FormatAmount(QStringView decimalText);

// The amount drop list of the recipe screen: each entry as the list shows
// it and the decimal it writes into the row ("1/3" writes ".34" on purpose).
struct AmountPick {
    const char* fraction;
    const char* decimal;
};
std::span<const AmountPick> AmountPicks();
// The entries as the list shows them.
QStringList AmountPickTexts();
