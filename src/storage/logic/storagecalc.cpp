#include "storage/logic/storagecalc.h"

#include "common/numberformat.h"
#include "common/numbertext.h"

#include <cmath>

namespace {

// The number at the front of a cell as a Single; nothing where the runtime
// would stop with an overflow.
std::optional<float> SingleOf(QStringView text)
{
    const float value = ToSingle(Val(text));
    if (!std::isfinite(value))
        return std::nullopt;
    return value;
}

float SingleOrZero(QStringView text)
{
    return SingleOf(text).value_or(0.0F);
}

QString WithUnit(const QString& number, const QString& unit)
{
    return unit.isEmpty() ? number : number + u' ' + unit;
}

// The amount on hand after a change: empty at 0 or less.
QString OnHandText(float amount, StorageKind kind, const StorageTable& table, int row)
{
    if (amount <= 0)
        return QString();
    const QString number = ShortestText(amount);
    if (kind == StorageKind::Emergency)
        return WithUnit(number, UnitOf(table.cell(row, kNeededColumn)));
    return number;
}

// Add and Use: the new amount on hand, the other last-action cell emptied,
// the group total.
void ChangeStock(StorageTable& table, StorageKind kind, int row, float change, int otherColumn)
{
    const float onHand = SingleOrZero(table.cell(row, kOnHandColumn)) + change;
    if (std::isfinite(onHand))
        table.setCell(row, kOnHandColumn, OnHandText(onHand, kind, table, row));
    table.setCell(row, otherColumn, QString());
    if (RunsGroupTotal(kind, row))
        RunGroupTotal(table, kind, row);
}

} // namespace

std::optional<float> FamilySizeOf(QStringView text)
{
    const std::optional<float> size = SingleOf(text);
    if (!size || *size <= 0)
        return std::nullopt;
    return size;
}

QString FamilySizeOnLoad(const QString& stored)
{
    return Val(stored) <= 0 ? QStringLiteral("1") : stored;
}

QString UnitOf(QStringView amount)
{
    const qsizetype blank = amount.indexOf(u' ');
    return blank < 0 ? QString() : amount.mid(blank + 1).toString();
}

void CalculateRow(StorageTable& table, StorageKind kind, int row, float familySize)
{
    if (!IsCalculatedRow(kind, row))
        return;
    const QString perPerson = table.cell(row, kPerPersonColumn);
    const float amount = ToSingle(Val(perPerson));
    if (!(amount > 0))
        return;
    table.setCell(row, kFamilyColumn, ShortestText(familySize));
    const float needed = familySize * amount;
    if (!std::isfinite(needed))
        return;
    QString text = ShortestText(needed);
    if (perPerson.contains(u' '))
        text += u' ' + UnitOf(perPerson);
    table.setCell(row, kNeededColumn, text);
}

void RecalculateAll(StorageTable& table, StorageKind kind, QStringView familySize)
{
    const std::optional<float> size = FamilySizeOf(familySize);
    if (!size)
        return;
    for (int row = 1; row <= kStorageRows; ++row)
        CalculateRow(table, kind, row, *size);
}

void RunGroupTotal(StorageTable& table, StorageKind kind, int row)
{
    const std::optional<StorageGroup> group = GroupOf(kind, row);
    if (!group)
        return;
    float sum = 0;
    for (int subItem = group->groupRow + 1; subItem <= group->lastRow; ++subItem) {
        const QString onHand = table.cell(subItem, kOnHandColumn);
        if (onHand == kNotApplicable)
            continue;
        const std::optional<float> amount = SingleOf(onHand);
        if (!amount)
            return;
        sum += *amount;
    }
    if (!std::isfinite(sum))
        return;
    const QString unit = UnitOf(table.cell(group->groupRow, kNeededColumn));
    table.setCell(group->groupRow, kOnHandColumn, WithUnit(ShortestText(sum), unit));
    for (int subItem = group->groupRow + 1; subItem <= group->lastRow; ++subItem) {
        const QString onHand = table.cell(subItem, kOnHandColumn);
        if (onHand.isEmpty() || onHand == kNotApplicable)
            continue;
        table.setCell(subItem, kOnHandColumn, WithUnit(ShortestText(SingleOrZero(onHand)), unit));
    }
}

void AddToStock(StorageTable& table, StorageKind kind, int row, float amount)
{
    ChangeStock(table, kind, row, amount, kUsedColumn);
}

void UseFromStock(StorageTable& table, StorageKind kind, int row, float amount)
{
    ChangeStock(table, kind, row, -amount, kAddedColumn);
}

bool HasOnHandData(const StorageTable& table, int row)
{
    const QString onHand = table.cell(row, kOnHandColumn);
    return !onHand.trimmed().isEmpty() && onHand != kNotApplicable;
}

bool TableHasOnHandData(const StorageTable& table)
{
    for (int row = 1; row <= kStorageRows; ++row) {
        if (HasOnHandData(table, row))
            return true;
    }
    return false;
}

// ---- Percent of need -------------------------------------------------------

QString PercentCaption(const QString& familySize)
{
    return QStringLiteral("Percent of Basic Food Storage You Have For ") + familySize;
}

QList<PercentLine> PercentOfNeed(const StorageTable& table)
{
    // The share of the line before stays when a line's division cannot be
    // made (a need of 0), as it did in the old program.
    float share = 0;
    QList<PercentLine> lines;
    for (const int row : kPercentRows) {
        PercentLine line;
        const QString name = table.cell(row, kItemColumn);
        line.item = (row == 13 || row == 54) ? name.trimmed().left(5) : name.trimmed();
        const QString needText = table.cell(row, kNeededColumn);
        line.need = needText.isEmpty() ? QStringLiteral("0") : needText;
        const float onHand = SingleOrZero(table.cell(row, kOnHandColumn));
        line.onHand = Format(onHand, u"0");
        const float need = SingleOrZero(line.need);
        if (need != 0) {
            const float quotient = onHand / need;
            if (std::isfinite(quotient))
                share = quotient;
        }
        // Any stock at all never shows 0%.
        if (share > 0 && share < 0.01F)
            share = 0.01F;
        if (onHand > 0) {
            line.percent = Format(share, u"0%");
            line.bar = double(share) * 100;
        } else {
            line.percent = QStringLiteral("0%");
        }
        lines.append(line);
    }
    return lines;
}

// ---- Category pie ----------------------------------------------------------

std::optional<PieSlices> CategoryPie(const StorageTable& table, StorageKind kind, int category)
{
    if (kind != StorageKind::Basic || category < 1 || category > 7)
        return std::nullopt;
    const int groupRow = CategoryRows(kind, category).first;
    const float need = SingleOrZero(table.cell(groupRow, kNeededColumn));
    const float onHand = SingleOrZero(table.cell(groupRow, kOnHandColumn));
    const float difference = need - onHand;
    const float missing = std::isfinite(difference) && difference > 0 ? difference : 0.0F;
    float heldShare = 0;
    float missingShare = 0;
    if (onHand >= need) {
        heldShare = 1;
    } else if (need != 0) {
        heldShare = onHand / need;
        missingShare = missing / need;
    }
    if (!std::isfinite(heldShare))
        heldShare = 0;
    if (!std::isfinite(missingShare))
        missingShare = 0;
    PieSlices pie;
    pie.onHand = onHand > 0 ? double(onHand) : 0.0;
    pie.missing = double(missing);
    pie.onHandLabel = QStringLiteral("On Hand (%1)").arg(Format(heldShare, u"0.0%"));
    pie.missingLabel = QStringLiteral("Need (%1)").arg(Format(missingShare, u"0.0%"));
    return pie;
}
