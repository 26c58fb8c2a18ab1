#pragma once
// One row of a shopping list, kept as one text:
//
//   columns 1 to 30   the item name, cut to 30 characters
//   columns 31 on     the amount, as it stands
//
// An entry without an amount is the bare name, not padded; one with an
// amount has its name padded with blanks to exactly 30 characters. The grid
// shows an entry as two cells: two blanks and the trimmed first 26
// characters, and the trimmed amount. Since a list is saved from its grid
// cells, a longer name keeps only 26 characters from its first save on.
#include <QString>
#include <QStringView>

inline constexpr int kItemNameLength = 30;
inline constexpr int kGridNameLength = 26;

QString MakeGroceryEntry(QStringView name, QStringView amount = {});

// "  " + Trim(first 26 characters).
QString ItemCellOf(QStringView entry);
// Trim(characters from 31 on).
QString AmountCellOf(QStringView entry);
