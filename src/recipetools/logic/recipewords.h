#pragma once
// The fixed word lists of a recipe: the units the drop lists offer over a
// row's unit box, singular and plural, and the yield types. The shopping
// list offers the same words.
#include <QStringList>
#include <QStringView>

const QStringList& SingularUnits();
const QStringList& PluralUnits();
// In the order the yield type list shows them.
const QStringList& YieldTypes();

// Which unit list a row's amount asks for: the plural one above 1, the
// singular one for 1, less, or an empty amount.
bool TakesPluralUnits(QStringView amount);
