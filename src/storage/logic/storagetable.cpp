#include "storage/logic/storagetable.h"

bool StorageTable::inside(int row, int column)
{
    return row >= 1 && row <= kStorageRows && column >= 0 && column < kStorageColumns;
}

QString StorageTable::cell(int row, int column) const
{
    return inside(row, column) ? cells_[size_t(row - 1)][size_t(column)] : QString();
}

void StorageTable::setCell(int row, int column, const QString& text)
{
    if (inside(row, column))
        cells_[size_t(row - 1)][size_t(column)] = text;
}

QStringList StorageTable::rowTexts(int row) const
{
    QStringList texts;
    for (int column = 0; column < kStorageColumns; ++column)
        texts.append(cell(row, column));
    return texts;
}

QStringList StorageTable::values() const
{
    QStringList values;
    values.reserve(kStorageRows * kStorageColumns);
    for (int row = 1; row <= kStorageRows; ++row)
        values.append(rowTexts(row));
    return values;
}

StorageTable StorageTable::fromValues(const QStringList& values)
{
    StorageTable table;
    const qsizetype count = qMin<qsizetype>(values.size(), kStorageRows * kStorageColumns);
    for (qsizetype i = 0; i < count; ++i)
        table.setCell(int(i / kStorageColumns) + 1, int(i % kStorageColumns), values[i]);
    return table;
}

QString ItemName(const StorageTable& table, int row)
{
    return table.cell(row, kItemColumn).trimmed();
}

bool HasNoItemName(const StorageTable& table, int row)
{
    return ItemName(table, row).isEmpty();
}

QString WithoutLeadingBlanks(const QString& text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start] == u' ')
        ++start;
    return text.mid(start);
}
