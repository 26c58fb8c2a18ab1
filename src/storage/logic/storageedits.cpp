#include "storage/logic/storageedits.h"

namespace {

void IndentRow(StorageTable& table, StorageKind kind, int row)
{
    QString name = table.cell(row, kItemColumn);
    if (StripsStoredIndent(kind))
        name = WithoutLeadingBlanks(name);
    if (!name.isEmpty() && IndentsOnLoad(kind, row, table.cell(row, kFamilyColumn)))
        name = kItemIndent + name;
    table.setCell(row, kItemColumn, name);
}

} // namespace

void IndentItemNames(StorageTable& table, StorageKind kind)
{
    for (int row = 1; row <= kStorageRows; ++row)
        IndentRow(table, kind, row);
}

void RestoreMarkers(StorageTable& table, StorageKind kind)
{
    for (int row = 1; row <= kStorageRows; ++row) {
        for (int column = 0; column < kStorageColumns; ++column) {
            if (IsMarkerCell(kind, row, column))
                table.setCell(row, column, kNotApplicable);
        }
    }
}

void ApplyDefaultTitles(StorageTable& table, StorageKind kind, const QStringList& titles)
{
    const int count = int(qMin<qsizetype>(titles.size(), kStorageRows));
    for (int row = 1; row <= count; ++row) {
        table.setCell(row, kItemColumn, titles[row - 1]);
        if (kind == StorageKind::Basic)
            IndentRow(table, kind, row);
    }
}

void ApplyDefaultAmounts(StorageTable& table, StorageKind kind, const QStringList& amounts)
{
    const QList<int> rows = DefaultAmountRows(kind);
    const qsizetype count = qMin(amounts.size(), rows.size());
    for (qsizetype i = 0; i < count; ++i)
        table.setCell(rows[i], kPerPersonColumn, WithoutLeadingBlanks(amounts[i]));
}

void ClearLastActions(StorageTable& table)
{
    for (int row = 1; row <= kStorageRows; ++row) {
        if (table.cell(row, kDateColumn) == kNotApplicable)
            continue;
        for (const int column : {kDateColumn, kAddedColumn, kUsedColumn})
            table.setCell(row, column, QString());
    }
}
