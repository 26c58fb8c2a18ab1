#pragma once
// The hundredths each line of the fraction table covers, written out as the
// table states them rather than computed from its limits, for the tests that
// walk every hundredth of every whole part from 0 to 999.
#include <QString>

namespace fraction_lines {

struct CoveredLine {
    QString fractionText;   // "1/3"; empty for none
    QString snappedSuffix;  // what the calculator adds to the whole part: ".33"; empty for none
    bool nextWhole = false; // the rest makes a whole: the whole part goes up by one
};

inline CoveredLine LineForHundredths(int hundredths)
{
    if (hundredths <= 9)
        return {};
    if (hundredths <= 19)
        return {QStringLiteral("1/8"), QStringLiteral(".125")};
    if (hundredths <= 29)
        return {QStringLiteral("1/4"), QStringLiteral(".25")};
    if (hundredths <= 40)
        return {QStringLiteral("1/3"), QStringLiteral(".33")};
    if (hundredths <= 60)
        return {QStringLiteral("1/2"), QStringLiteral(".5")};
    if (hundredths <= 70)
        return {QStringLiteral("2/3"), QStringLiteral(".67")};
    if (hundredths <= 85)
        return {QStringLiteral("3/4"), QStringLiteral(".75")};
    return {QString(), QString(), true};
}

// The text "w.hh" of a whole part and hundredths, as a record stores it: no
// zero in front of the point.
inline QString DecimalOf(int whole, int hundredths)
{
    return (whole == 0 ? QString() : QString::number(whole)) + u'.'
        + QString::number(hundredths).rightJustified(2, u'0');
}

} // namespace fraction_lines
