#include "tracker/logic/weightgraph.h"

#include "common/dates.h"
#include "common/numbertext.h"

#include <algorithm>

int PlottedRowCount(const QList<WeighInRow>& rows)
{
    for (int r = 0; r < rows.size(); ++r) {
        if (rows[r].date.trimmed().isEmpty())
            return r;
    }
    return int(rows.size());
}

QString GraphLabel(const QString& date)
{
    if (const std::optional<QDate> value = ParseDate(date.trimmed()))
        return FormatDate(*value, u"mmm-dd-yy");
    return date.trimmed();
}

WeightGraph BuildWeightGraph(const QString& name, const QList<WeighInRow>& rows, const TrackerFields& fields)
{
    WeightGraph graph;
    graph.title = name + QStringLiteral(" Weight Tracker Graph");
    graph.goal = Val(fields.goalWeight);
    graph.beginning = Val(fields.beginningWeight);
    const int n = PlottedRowCount(rows);
    if (n <= kGraphPoints - 1) {
        graph.firstRow = 1;
        graph.pointCount = n + 1;
        graph.axisTitle = QStringLiteral("Weigh In Dates");
    } else {
        graph.firstRow = n - (kGraphPoints - 1);
        graph.pointCount = kGraphPoints;
        graph.axisTitle = QStringLiteral("Weigh In Dates (Graph Limited to Last 50 Entries)");
    }
    for (int r = graph.firstRow; r <= n; ++r) {
        graph.weights.append(Val(rows[r - 1].weight));
        graph.labels.append(GraphLabel(rows[r - 1].date));
    }
    while (graph.labels.size() < graph.pointCount)
        graph.labels.append(QString());
    return graph;
}

GraphRange WeightRange(const WeightGraph& graph)
{
    double low = std::min(graph.goal, graph.beginning);
    double high = std::max(graph.goal, graph.beginning);
    for (const double weight : graph.weights) {
        low = std::min(low, weight);
        high = std::max(high, weight);
    }
    const double margin = std::max(1.0, (high - low) / 10);
    return {low - margin, high + margin};
}
