#include "recipetools/logic/amountformat.h"

#include "common/numbertext.h"

#include <cmath>
#include <iterator>

AmountParts SplitAmount(double amount)
{
    AmountParts parts;
    parts.wholePart = ToSingle(std::trunc(amount));
    // The rest is rounded to single precision before any test: that rounding
    // swallows the binary noise of the subtraction, so "999.40" still tests
    // as exactly .4f and lands on a third.
    parts.fractionPart = ToSingle(amount - double(parts.wholePart));
    return parts;
}

namespace {

struct FractionLine {
    float limit;        // compared with the rest as a single
    bool inclusive;     // "up to" rather than "below"
    double snapped;
    const char16_t* text;
};

// Strict below .3, inclusive from .4 on: exactly .1 is an eighth and exactly
// .4 a third. The limits are singles, like the rest they meet.
constexpr FractionLine kFractionLines[] = {
    {0.1f, false, 0.0, u""},
    {0.2f, false, 0.125, u"1/8"},
    {0.3f, false, 0.25, u"1/4"},
    {0.4f, true, 0.33, u"1/3"},
    {0.6f, true, 0.5, u"1/2"},
    {0.7f, true, 0.67, u"2/3"},
    {0.85f, true, 0.75, u"3/4"},
};
// What lies above .85: the next whole number, no fraction text.
constexpr FractionLine kNextWhole = {1.0f, false, 1.0, u""};
// A rest that matches no line at all (1 or more, NaN) adds nothing.
constexpr FractionLine kNoLine = {0.0f, false, 0.0, u""};

const FractionLine& LineFor(float fractionPart)
{
    for (const FractionLine& line : kFractionLines) {
        if (line.inclusive ? fractionPart <= line.limit : fractionPart < line.limit)
            return line;
    }
    if (fractionPart > kFractionLines[std::size(kFractionLines) - 1].limit && fractionPart < kNextWhole.limit)
        return kNextWhole;
    return kNoLine;
}

} // namespace

QString FractionText(float fractionPart)
{
    return QString::fromUtf16(LineFor(fractionPart).text);
}

double SnappedFraction(float fractionPart)
{
    return LineFor(fractionPart).snapped;
}

QString FormatAmount(QStringView decimalText)
{
    if (decimalText.trimmed().isEmpty())
        return {};
    AmountParts parts = SplitAmount(Val(decimalText));
    // A number too large for a single has no kitchen form; show nothing
    // rather than an infinity.
    if (!std::isfinite(parts.wholePart) || !std::isfinite(parts.fractionPart))
        return {};
    QString fraction = FractionText(parts.fractionPart);
    if (SnappedFraction(parts.fractionPart) == 1.0) {
        parts.wholePart += 1.0f;
        fraction.clear();
    }
    if (parts.wholePart == 0.0f)
        return fraction;
    const QString whole = ShortestText(parts.wholePart);
    // The test is on the rest itself, not on its text: a rest with no
    // fraction text still gets the blank, so 3.05 and 2.9 both show "3 ".
    if (parts.fractionPart == 0.0f)
        return whole;
    return whole + u' ' + fraction;
}

std::span<const AmountPick> AmountPicks()
{
    // A third is .34, not the .33 the input help suggests; both show as
    // "1/3", and .34 is what the drop list has always written.
    static constexpr AmountPick kPicks[] = {
        {"1/8", ".125"},   {"1/4", ".25"},   {"1/3", ".34"},   {"1/2", ".5"},    {"2/3", ".67"},
        {"3/4", ".75"},    {"1", "1"},       {"1 1/8", "1.125"}, {"1 1/4", "1.25"}, {"1 1/3", "1.34"},
        {"1 1/2", "1.5"},  {"1 2/3", "1.67"}, {"1 3/4", "1.75"}, {"2", "2"},
    };
    return kPicks;
}

QStringList AmountPickTexts()
{
    QStringList texts;
    for (const AmountPick& pick : AmountPicks())
        texts << QString::fromLatin1(pick.fraction);
    return texts;
}
