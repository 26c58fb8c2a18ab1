#pragma once
// The order of a sorted list box: its texts compared whole, case ignored.
// The recipe pick lists, the shopping list's alphabetical view and its
// catalogue drop-down all sort this way.
#include <QStringList>
#include <QStringView>

bool ListTextLess(QStringView left, QStringView right);
// Sorts in place; texts that compare equal keep their order.
void SortListTexts(QStringList& texts);
