#include "shopping/logic/amountentry.h"

#include "common/numbertext.h"

namespace {

// A box this long holds an amount with its unit.
constexpr int kWholeAmountLength = 5;

} // namespace

const std::array<UnitButton, kUnitButtonCount>& UnitButtons()
{
    static const std::array<UnitButton, kUnitButtonCount> buttons = {{
        {"Bag(s)", "Bag", "Bags"},
        {"Bottle(s)", "Bottle", "Bottles"},
        {"Box(es)", "Box", "Boxes"},
        {"Can(s)", "Can", "Cans"},
        {"Carton(s)", "Carton", "Cartons"},
        {"Dozen", "Dozen", "Dozen"},
        {"Gallon(s)", "Gallon", "Gallons"},
        {"Loaf(es)", "Loaf", "Loafes"},
        {"Liter(s)", "Liter", "Liters"},
        {"Ounce(s)", "Ounce", "Ounces"},
        {"Package(s)", "Package", "Packages"},
        {"Pint(s)", "Pint", "Pints"},
        {"Pound(s)", "Pound", "Pounds"},
        {"Quart(s)", "Quart", "Quarts"},
    }};
    return buttons;
}

QString AmountAfterDigit(QStringView box, int digit)
{
    QString amount = box.toString();
    if (Val(amount) == 0 || amount.size() >= kWholeAmountLength)
        amount.clear();
    return amount + QString::number(digit);
}

QString AmountAfterUnit(QStringView box, int index)
{
    if (index < 0 || index >= kUnitButtonCount)
        return box.toString();
    QString amount = box.toString();
    if (amount.size() >= kWholeAmountLength)
        amount.clear();
    const UnitButton& unit = UnitButtons()[std::size_t(index)];
    return amount + u' ' + QString::fromLatin1(Val(amount) < 2 ? unit.singular : unit.plural);
}
