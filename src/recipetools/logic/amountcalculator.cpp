#include "recipetools/logic/amountcalculator.h"

#include "common/numberformat.h"
#include "common/numbertext.h"
#include "recipetools/logic/amountformat.h"

#include <QStringList>
#include <cmath>
#include <optional>

namespace {

// Up to and including this amount a unit is singular; the test is on the
// unrounded amount, so 1.1 itself is one cup.
constexpr double kSingularUpTo = 1.1;
// The unit field holds 10 characters; a plural must still fit.
constexpr qsizetype kLongestPluralisedUnit = 9;

bool IsDigitOrPoint(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'.';
}

// The decimal form of a snapped amount: shortest text, no zero in front of
// the point (".125", "2.33", "1000").
QString DecimalForm(double value)
{
    QString text = ShortestText(value);
    if (text.startsWith(u"0."))
        text.remove(0, 1);
    return text;
}

QString ShownInMode(const QString& decimal, bool modifyMode)
{
    return modifyMode ? decimal : FormatAmount(decimal);
}

} // namespace

QString SnappedAmountText(double amount)
{
    // Through the standard format and back: two decimals, and a result of
    // 1,000 or more reads only up to its thousands separator.
    const QString standard = amount > 0 ? Format(amount, u"Standard") : QString();
    const AmountParts parts = SplitAmount(Val(standard));
    const double snapped = double(parts.wholePart) + SnappedFraction(parts.fractionPart);
    if (!(snapped > 0))
        return {};
    return DecimalForm(snapped);
}

QString FitUnitWord(const QString& unit, double amount)
{
    // Right-trimmed of blanks only, as the box's text is stored.
    QString word = unit;
    while (word.endsWith(u' '))
        word.chop(1);
    const qsizetype length = word.size();
    static const QStringList kUnchanged = {
        QStringLiteral("DOZEN"), QStringLiteral("WHOLE"), QStringLiteral("SMALL"),
        QStringLiteral("MEDIUM"), QStringLiteral("LARGE"),
    };
    if (kUnchanged.contains(word.toUpper()))
        return unit;

    // Letters only, and case matters: "CUPS" has no final "s" to drop.
    QString newWord;
    if (amount <= kSingularUpTo) {
        if (word.endsWith(u's'))
            newWord = word.chopped(1);
        else if (word.endsWith(u"s."))
            newWord = word.chopped(2) + u'.';
    } else if (length >= 1 && length <= kLongestPluralisedUnit) {
        if (!word.endsWith(u's') && !word.endsWith(u'.'))
            newWord = word + u's';
        else if (word.endsWith(u'.') && !word.endsWith(u"s."))
            newWord = word.chopped(1) + QStringLiteral("s.");
    }
    return newWord.isEmpty() ? unit : newWord;
}

CalculatorResult CalculateNewAmounts(const CalculatorInput& input)
{
    CalculatorResult result;
    result.workList = input.workList;
    result.units = input.units;
    for (int row = 0; row < kRecipeRows; ++row)
        result.amountBoxes[row] = ShownInMode(input.workList[row], input.modifyMode);

    // A yield too large to read at all is out of range like any above 999.
    const std::optional<double> newYield = ValChecked(input.newYield);
    if (!newYield || *newYield < kLowestNewYield || *newYield > kHighestNewYield) {
        result.outcome = CalculatorOutcome::YieldOutOfRange;
        return result;
    }

    // The ratio is a single on purpose: the amounts it gives are those of a
    // single-precision factor widened again, not those of the exact quotient.
    const std::optional<double> currentYield = ValChecked(input.currentYield);
    if (!currentYield || *currentYield == 0) {
        result.outcome = CalculatorOutcome::CalculationError;
        return result;
    }
    const float ratio = ToSingle(*newYield / *currentYield);
    if (!std::isfinite(ratio) || !(ratio > 0)) {
        result.outcome = CalculatorOutcome::CalculationError;
        return result;
    }
    result.newYieldTaken = true;

    for (int row = 0; row < kRecipeRows; ++row) {
        // An amount too large to read, or a product beyond a double, stops the
        // calculation here; the rows before keep their new values.
        const std::optional<double> amountValue = ValChecked(input.workList[row]);
        if (!amountValue) {
            result.outcome = CalculatorOutcome::CalculationError;
            return result;
        }
        const double amount = *amountValue * double(ratio);
        if (!std::isfinite(amount)) {
            result.outcome = CalculatorOutcome::CalculationError;
            return result;
        }
        // The next calculation starts from the snapped decimal, not from the
        // unrounded amount: scaling up and back down need not return the
        // first figures.
        const QString decimal = SnappedAmountText(amount);
        result.workList[row] = decimal;
        result.amountBoxes[row] = ShownInMode(decimal, input.modifyMode);
        result.units[row] = FitUnitWord(input.units[row], amount);
        result.rowsDone = row + 1;
    }
    return result;
}

QString YieldTypeForTyped(const QString& typedYield, const QString& label)
{
    const double value = Val(typedYield);
    if (value <= 1) {
        // "Serving(s)" ends in ")" and stays as it is.
        if (label.endsWith(u's'))
            return label.chopped(1);
        return label;
    }
    if (!label.isEmpty() && !label.endsWith(u's') && !label.endsWith(u')')
        && label.toUpper() != u"DOZEN")
        return label + u's';
    return label;
}

QString FilterYieldBox(const QString& text)
{
    if (text.isEmpty() || IsDigitOrPoint(text.back()))
        return text;
    return text.size() == 1 ? QString() : text.chopped(1);
}
