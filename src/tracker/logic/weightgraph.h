#pragma once
// What the weight graph plots: the weigh-ins against the goal and the
// beginning weight, the last 50 at most.
//
// The rows are scanned from row 1 up to the first blank date; n is the
// number of rows before it. Up to 49 rows all are plotted and one empty
// point follows, so the line ends short of the right edge; above 49 the
// last 50 are plotted, from row n - 49 on, and the axis title says so.
// Each point is labelled with its row's date as "mmm-dd-yy".
#include "tracker/logic/weighins.h"

#include <QList>
#include <QString>
#include <QStringList>

inline constexpr int kGraphPoints = 50;

struct WeightGraph {
    QString title;           // the name and " Weight Tracker Graph"
    QString axisTitle;       // "Weigh In Dates", or the limited title
    int firstRow = 1;        // the first plotted row, 1-based
    int pointCount = 0;      // points on the axis, the empty one included
    QStringList labels;      // one per point; the empty point has an empty one
    QList<double> weights;   // one per plotted row
    double goal = 0;
    double beginning = 0;

    bool operator==(const WeightGraph&) const = default;
};

// The number of rows before the first blank date.
int PlottedRowCount(const QList<WeighInRow>& rows);

WeightGraph BuildWeightGraph(const QString& name, const QList<WeighInRow>& rows, const TrackerFields& fields);

// The label of a point: the date as "mmm-dd-yy", a text that is no date as
// it stands.
QString GraphLabel(const QString& date);

// The value range of the graph's axis: every plotted value and both lines,
// widened by a tenth of the span (at least 1) on each side, so no line lies
// on the frame.
struct GraphRange {
    double low = 0;
    double high = 0;
    bool operator==(const GraphRange&) const = default;
};
GraphRange WeightRange(const WeightGraph& graph);
