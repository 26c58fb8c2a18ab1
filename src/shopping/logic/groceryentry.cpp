#include "shopping/logic/groceryentry.h"

#include "common/blanktext.h"

QString MakeGroceryEntry(QStringView name, QStringView amount)
{
    const QStringView cut = name.left(kItemNameLength);
    if (amount.isEmpty())
        return cut.toString();
    return FixedWidth(cut, kItemNameLength) + amount.toString();
}

QString ItemCellOf(QStringView entry)
{
    return QStringLiteral("  ") + Trim(entry.left(kGridNameLength));
}

QString AmountCellOf(QStringView entry)
{
    return Trim(entry.mid(qMin<qsizetype>(kItemNameLength, entry.size())));
}
