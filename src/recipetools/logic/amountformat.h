#pragma once
// Amounts are stored as decimal text ("1.5", ".33"); the cook reads kitchen
// fractions. FormatAmount is the one rule that turns the first into the
// second, for the screen, printing and export.
#include <QString>
#include <QStringList>

// The whole part and the rest of a decimal amount. The rest is held in single
// precision on purpose: the fraction boundaries fall where they do because of
// it.
struct AmountParts {
    float wholePart = 0;
    float fractionPart = 0;
};
AmountParts SplitAmount(double amount);

// The fraction text for a single-precision rest, by the first true test:
// below .1 none, below .2 "1/8", below .3 "1/4", up to .4 "1/3", up to .6
// "1/2", up to .7 "2/3", up to .85 "3/4", above .85 none (and the whole part
// goes up by one). The first three tests are strict, the others inclusive.
QString FractionText(float fractionPart);

// "3", "1 1/2", "1/3"; empty for an empty amount. A rest that gives no
// fraction text still leaves the blank: 3.05 gives "3 ", 2.9 gives "3 ".
QString FormatAmount(QStringView decimalText);

// The amount drop list of the recipe screen and the decimals its entries
// write into the row: "1/3" writes ".34" on purpose.
const QStringList& AmountPickList();
const QStringList& AmountPickDecimals();
