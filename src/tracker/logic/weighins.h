#pragma once
// The weigh-in grid's two computed columns and the trend they show.
//
// For each row with a weight, the change from the row above and the
// difference from the beginning weight are worked out in single precision,
// as the old program's working numbers were, and kept as their shortest
// text. A weight that is not a plain number (an optional +, digits and at
// most one point) is kept in its cell but read as nothing: the working
// number keeps its last value, so the row repeats the differences of the
// row before. Negative results are bold; positive ones clear the bold; a
// result of 0 leaves it as it was.
#include "tracker/logic/trackerfile.h"

#include <QList>
#include <QString>
#include <optional>

// Row 1's change cell, and the heading cell over the date column.
inline constexpr const char* kFirstChangeText = "N/A";
inline constexpr const char* kSortHeading = "Sort";

// One data row of the grid: what is stored and what is worked out.
struct WeighInRow {
    QString date;
    QString weight;
    QString change;       // "Change from last Entry  "
    QString difference;   // "Beginning Weight Difference"
    bool changeBold = false;
    bool differenceBold = false;

    bool operator==(const WeighInRow&) const = default;
};

// A row as the file gives it, before anything is worked out.
inline WeighInRow StoredRow(const QString& date, const QString& weight)
{
    WeighInRow row;
    row.date = date;
    row.weight = weight;
    return row;
}

// The value of a plain number: an optional +, digits with at most one
// point, and at least one digit, blanks around allowed; nothing otherwise.
std::optional<double> PlainNumber(const QString& text);

// What a cell of the weight and computed columns shows: a number in the
// form "###.#" ("150.", "."), any other text as it is.
QString ShownWeightText(const QString& text);

// Works the computed columns out for every row from row 1 (index 0), then
// sets row 1's change to "N/A".
void ComputeColumns(QList<WeighInRow>& rows, const QString& beginningWeight);

// The three trend pictures, as files in the program folder.
enum class TrendPicture { None, Smile, BigSmile, Sad };
QString TrendPictureFile(TrendPicture picture);  // "1.ico", "2.ico", "Sad1.ico"; empty for None

struct Trend {
    TrendPicture lastEntry = TrendPicture::None;   // "Last  Entry Trend "
    TrendPicture beginning = TrendPicture::None;   // "Beginning Weight  Trend   "
    bool goalReached = false;

    bool operator==(const Trend&) const = default;
};

// The row of the last entry (1-based): the row above the first blank date,
// or the last row; 0 when row 1 has no date.
int LastEntryRow(const QList<WeighInRow>& rows);

// The trend of the last entry: its change judged against -1.4, then the
// goal (a goal at or above the last weight is reached), or else the
// difference from the beginning judged against -10. The limits are in the
// user's own unit and do not scale.
Trend JudgeTrend(const QList<WeighInRow>& rows, const QString& goalWeight);
