#include "shopping/logic/ingredientchoice.h"

#include "common/blanktext.h"
#include "common/numbertext.h"
#include "cookbook/logic/reciperecords.h"
#include "shopping/logic/groceryentry.h"

#include <cmath>

namespace {

constexpr int kUnitWidth = 10;

const QString& Separator()
{
    static const QString separator = QString::fromLatin1(kIngredientSeparator);
    return separator;
}

// The fraction table, first row that holds. Strict below .3 and inclusive
// from .4 on, as the old program compared.
struct FractionRow {
    double bound;
    bool inclusive;
    const char* text;
};
constexpr FractionRow kFractionRows[] = {
    {0.1, false, ""},
    {0.2, false, "1/8"},
    {0.3, false, "1/4"},
    {0.4, true, "1/3"},
    {0.6, true, "1/2"},
    {0.7, true, "2/3"},
    {0.85, true, "3/4"},
};

} // namespace

ChoiceAmount ChoiceAmountOf(QStringView amount)
{
    const double value = Val(amount);
    ChoiceAmount split;
    const double whole = std::floor(value);
    split.whole = int(whole);
    split.numericFraction = value - whole;
    for (const FractionRow& row : kFractionRows) {
        if (row.inclusive ? split.numericFraction <= row.bound : split.numericFraction < row.bound) {
            split.fraction = QString::fromLatin1(row.text);
            return split;
        }
    }
    // Above .85 and below 1: the next whole number.
    split.whole += 1;
    return split;
}

QString ChoiceNameOf(QStringView ingredient)
{
    QString name = RTrim(ingredient);
    if (!name.isEmpty())
        name[0] = name[0].toUpper();
    const qsizetype bracket = name.indexOf(u'(');
    if (bracket > 0)
        name.truncate(bracket);
    return name;
}

QString ChoiceText(QStringView ingredient, QStringView amount)
{
    const QString name = ChoiceNameOf(ingredient);
    const ChoiceAmount split = ChoiceAmountOf(amount);
    if (split.whole <= 0)
        return split.fraction.isEmpty() ? name + u' ' : name + Separator() + split.fraction;
    if (split.numericFraction > 0)
        return name + Separator() + QString::number(split.whole) + u' ' + split.fraction;
    return name + Separator() + QString::number(split.whole);
}

QString ChoiceCaption(QStringView ingredient, QStringView amount, QStringView unit)
{
    const QString text = ChoiceText(ingredient, amount);
    if (IsBlank(text))
        return {};
    return u' ' + text + u' ' + PaddedTo(unit, kUnitWidth);
}

QStringList ChoiceCaptions(const RecipeRecord& record)
{
    QStringList captions;
    for (int row = 0; row < kIngredientChoiceCount; ++row) {
        const QString caption = ChoiceCaption(record.ingredients[std::size_t(row)].text(),
                                              record.amounts[std::size_t(row)].text(),
                                              record.amountTypes[std::size_t(row)].text());
        if (!caption.isEmpty())
            captions.append(caption);
    }
    return captions;
}

QString ItemOfChoice(QStringView caption)
{
    const QString text = Trim(caption);
    qsizetype length = text.indexOf(Separator());
    if (length < 0)
        length = qMin<qsizetype>(text.size(), kItemNameLength);
    else
        length += 1;  // the separator's own leading blank goes with the name, and is trimmed
    return Trim(QStringView(text).left(length)).left(kItemNameLength);
}

QString EntryOfChoice(QStringView caption)
{
    const QString text = Trim(caption);
    const qsizetype separator = text.indexOf(Separator());
    if (separator < 0)
        return IsBlank(text) ? QString() : text.left(kItemNameLength);
    const QString amount = Trim(QStringView(text).mid(separator + Separator().size()));
    const QString item = Trim(RTrim(QStringView(text).left(separator + 1)).left(kItemNameLength));
    if (amount.isEmpty())
        return IsBlank(item) ? QString() : item;
    const QString entry = MakeGroceryEntry(item, amount);
    return IsBlank(entry) ? QString() : entry;
}
