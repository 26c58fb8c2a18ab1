#pragma once
// The sums of a food storage table, in single precision as the old program
// worked them out, without rounding and without converting units: 3 persons
// at 0.7 lbs need 2.1 lbs. Numbers are read from the front of a text (Val),
// so "25 lbs" is 25 and a text that is no number is 0. A sum that leaves the
// range of a Single changes nothing, as the old program's failing statement
// did: no cell ever reads "inf" or "nan".
#include "storage/logic/storagetable.h"

#include <QList>
#include <optional>

// The number in the family as the sums take it: a Single above 0, or
// nothing (0, no number, or too large to hold).
std::optional<float> FamilySizeOf(QStringView text);
// The family size a load shows: the stored text, or "1" when it is 0 or less.
QString FamilySizeOnLoad(const QString& stored);

// Everything after the first blank of an amount ("lbs" of "25 lbs"); empty
// when the text has no blank.
QString UnitOf(QStringView amount);

// The need of one calculated row: column 1 becomes the family size and
// column 3 family times column 2, with column 2's unit. A row whose column 2
// is not a number above 0 is left as it is.
void CalculateRow(StorageTable& table, StorageKind kind, int row, float familySize);
// Every calculated row; nothing when the family size is not above 0.
void RecalculateAll(StorageTable& table, StorageKind kind, QStringView familySize);

// The group total after an amount on hand changed in `row`: the group row's
// column 4 becomes the sum of its sub-items' column 4, a blank and the unit
// of the group row's column 3, and every sub-item holding an amount is
// written again as its number and that unit. Rows without a group are left
// alone.
void RunGroupTotal(StorageTable& table, StorageKind kind, int row);

// `amount` typed into "Added" or "Used" of `row` (above 0): the amount on
// hand grows or shrinks, the other last-action cell is emptied, and the
// group total runs where the kind has one. On hand 0 or less is an empty
// cell; Emergency storage writes the unit of column 3 after a positive amount.
void AddToStock(StorageTable& table, StorageKind kind, int row, float amount);
void UseFromStock(StorageTable& table, StorageKind kind, int row, float amount);

// True when the row has an amount on hand: column 4 neither empty nor "*".
bool HasOnHandData(const StorageTable& table, int row);
bool TableHasOnHandData(const StorageTable& table);

// ---- Percent of need (Basic storage) ---------------------------------------

// The rows the list shows: the group rows and the single items of Basic.
inline constexpr int kPercentRows[] = {1, 13, 22, 34, 35, 40, 54};

struct PercentLine {
    QString item;
    QString need;      // column 3, "0" when empty
    QString onHand;    // column 4 as a whole number
    QString percent;   // "0%" form
    double bar = 0;    // the percent the graph plots

    bool operator==(const PercentLine&) const = default;
};

// "Percent of Basic Food Storage You Have For " and the family size.
QString PercentCaption(const QString& familySize);
QList<PercentLine> PercentOfNeed(const StorageTable& table);

// ---- Category pie (Basic storage, categories 1 to 7) -----------------------

struct PieSlices {
    double onHand = 0;      // the slice of what is held
    double missing = 0;     // need minus on hand, never below 0
    QString onHandLabel;    // "On Hand (50.0%)"
    QString missingLabel;   // "Need (50.0%)"

    bool operator==(const PieSlices&) const = default;
};

// The pie of the group that heads `category` in Basic storage; nothing for
// "&All", "&Misc." or another kind.
std::optional<PieSlices> CategoryPie(const StorageTable& table, StorageKind kind, int category);
