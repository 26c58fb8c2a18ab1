#include "recipetools/logic/amountformat.h"

#include "common/numbertext.h"

#include <cmath>

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

QString FractionText(float fractionPart)
{
    // Strict below .3, inclusive from .4 on: exactly .1 is an eighth and
    // exactly .4 a third. The constants are singles, like the rest they meet.
    if (fractionPart < 0.1f)
        return {};
    if (fractionPart < 0.2f)
        return QStringLiteral("1/8");
    if (fractionPart < 0.3f)
        return QStringLiteral("1/4");
    if (fractionPart <= 0.4f)
        return QStringLiteral("1/3");
    if (fractionPart <= 0.6f)
        return QStringLiteral("1/2");
    if (fractionPart <= 0.7f)
        return QStringLiteral("2/3");
    if (fractionPart <= 0.85f)
        return QStringLiteral("3/4");
    return {};
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
    if (parts.fractionPart > 0.85f && parts.fractionPart < 1.0f) {
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

const QStringList& AmountPickList()
{
    static const QStringList list = {
        QStringLiteral("1/8"),   QStringLiteral("1/4"),   QStringLiteral("1/3"),   QStringLiteral("1/2"),
        QStringLiteral("2/3"),   QStringLiteral("3/4"),   QStringLiteral("1"),     QStringLiteral("1 1/8"),
        QStringLiteral("1 1/4"), QStringLiteral("1 1/3"), QStringLiteral("1 1/2"), QStringLiteral("1 2/3"),
        QStringLiteral("1 3/4"), QStringLiteral("2"),
    };
    return list;
}

const QStringList& AmountPickDecimals()
{
    // A third is .34, not the .33 the input help suggests; both show as
    // "1/3", and .34 is what the drop list has always written.
    static const QStringList list = {
        QStringLiteral(".125"),  QStringLiteral(".25"),  QStringLiteral(".34"),  QStringLiteral(".5"),
        QStringLiteral(".67"),   QStringLiteral(".75"),  QStringLiteral("1"),    QStringLiteral("1.125"),
        QStringLiteral("1.25"),  QStringLiteral("1.34"), QStringLiteral("1.5"),  QStringLiteral("1.67"),
        QStringLiteral("1.75"),  QStringLiteral("2"),
    };
    return list;
}
