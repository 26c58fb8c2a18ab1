#pragma once
// Sorting the weigh-in grid by a heading click.
//
// The date column sorts by date value: ascending puts the blank dates first,
// then texts that are no date, then the dates in order; the leading blank
// rows are then dropped and as many blank rows added at the end, so the
// grid keeps its row count, and the computed columns are worked out again.
// Descending is the same order turned round, blank rows last, and leaves the
// computed columns as they stood, each with its row.
#include "tracker/logic/weighins.h"

#include <QtCore/qnamespace.h>

void SortByDate(QList<WeighInRow>& rows, Qt::SortOrder order, const QString& beginningWeight);

// The other columns do not sort: the grid is written to the scratch file
// "Temp.Fil" before and read back from it after, so the order stays as it
// was. The file holds each row's four texts, one quoted value each.
inline constexpr const char* kGridScratchFile = "Temp.Fil";
bool WriteGridScratch(const QList<WeighInRow>& rows);
// The texts read back into `rows`, row by row; rows the file lacks stay.
void ReadGridScratch(QList<WeighInRow>& rows);
