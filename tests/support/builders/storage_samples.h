#pragma once
// Food storage tables for the tests and the benchmarks: a table of a kind
// with every cell that takes an entry filled, the markers of the kind in the
// others, as a household that uses every row would have it.
#include "storage/logic/storagetable.h"

#include <QString>

namespace samples {

// Names fit the clipboard's item column; amounts carry units; dates are in
// the month-first short form.
inline StorageTable FullStorageTable(StorageKind kind)
{
    StorageTable table;
    for (int row = 1; row <= kStorageRows; ++row) {
        const QString texts[kStorageColumns] = {
            QStringLiteral("Stored item %1").arg(row),
            QStringLiteral("4"),
            QStringLiteral("%1.5 lbs").arg(row % 7 + 1),
            QStringLiteral("%1 lbs").arg((row % 7 + 1.5) * 4),
            QStringLiteral("%1 lbs").arg(row * 3),
            QStringLiteral("4/%1/26").arg(row % 28 + 1),
            QStringLiteral("%1").arg(row % 5 + 1),
            QString(),
        };
        for (int column = 0; column < kStorageColumns; ++column)
            table.setCell(row, column, IsMarkerCell(kind, row, column) ? kNotApplicable : texts[column]);
    }
    return table;
}

} // namespace samples
