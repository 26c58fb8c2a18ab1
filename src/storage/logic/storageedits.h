#pragma once
// What happens to a whole table at once: the item names as a load shows
// them, the "*" markers a save restores, the default titles and amounts,
// and clearing the last action columns.
#include "storage/logic/storagetable.h"

// Item names as the screen shows them once the file is read: stored leading
// blanks dropped where the kind indents, then sub-items indented by four
// blanks.
void IndentItemNames(StorageTable& table, StorageKind kind);

// Writes "*" into every marker cell of the kind.
void RestoreMarkers(StorageTable& table, StorageKind kind);

// The default titles replace column 0, row after row; rows past the end of
// the list keep their name. Basic storage indents its sub-items as on load.
void ApplyDefaultTitles(StorageTable& table, StorageKind kind, const QStringList& titles);
// The default amounts replace column 2 of the rows that take one, in order,
// leading blanks removed; rows past the end of the list keep theirs.
void ApplyDefaultAmounts(StorageTable& table, StorageKind kind, const QStringList& amounts);

// Empties the date, added and used columns of every row whose date column
// is not "*".
void ClearLastActions(StorageTable& table);
