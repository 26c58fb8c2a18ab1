// What the graph plots.
#include "tracker/logic/weightgraph.h"

#include "common/numbertext.h"

#include "tracker_fixture.h"

namespace {

class WeightGraphTest : public TrackerFolderTest {
protected:
    WeightGraph graphOf(const QList<WeighInRow>& rows) const
    {
        TrackerFields fields;
        fields.goalWeight = QStringLiteral("180 lbs");
        fields.beginningWeight = QStringLiteral("200");
        return BuildWeightGraph(QStringLiteral("Pat"), rows, fields);
    }
};

} // namespace

TEST_F(WeightGraphTest, FortyNineEntriesPlotFortyNinePointsAndThePlainTitle)
{
    QList<WeighInRow> rows = samples::DailyWeighIns(49);
    rows.append(WeighInRow{});
    const WeightGraph graph = graphOf(rows);
    EXPECT_EQ(graph.firstRow, 1);
    EXPECT_EQ(graph.weights.size(), 49);
    EXPECT_EQ(graph.pointCount, 50);
    EXPECT_EQ(graph.labels.size(), 50);
    EXPECT_EQ(graph.labels.last(), "");
    EXPECT_EQ(graph.axisTitle, "Weigh In Dates");
}

TEST_F(WeightGraphTest, FiftyEntriesPlotRowsOneToFiftyWithTheLimitedTitle)
{
    const WeightGraph graph = graphOf(samples::DailyWeighIns(50));
    EXPECT_EQ(graph.firstRow, 1);
    EXPECT_EQ(graph.weights.size(), 50);
    EXPECT_EQ(graph.pointCount, 50);
    EXPECT_EQ(graph.axisTitle, "Weigh In Dates (Graph Limited to Last 50 Entries)");
}

TEST_F(WeightGraphTest, SixtyEntriesPlotRowsElevenToSixty)
{
    const QList<WeighInRow> rows = samples::DailyWeighIns(60);
    const WeightGraph graph = graphOf(rows);
    EXPECT_EQ(graph.firstRow, 11);
    EXPECT_EQ(graph.weights.size(), 50);
    EXPECT_EQ(graph.weights.first(), Val(rows[10].weight));
    EXPECT_EQ(graph.weights.last(), Val(rows[59].weight));
    EXPECT_EQ(graph.labels.first(), GraphLabel(rows[10].date));
}

TEST_F(WeightGraphTest, WithABlankRowInTheMiddleOnlyTheRowsAboveItArePlotted)
{
    QList<WeighInRow> rows = samples::DailyWeighIns(10);
    rows[4] = WeighInRow{};
    const WeightGraph graph = graphOf(rows);
    EXPECT_EQ(PlottedRowCount(rows), 4);
    EXPECT_EQ(graph.weights.size(), 4);
    EXPECT_EQ(graph.pointCount, 5);
}

TEST_F(WeightGraphTest, LabelsTitleAndLevels)
{
    const WeightGraph graph = graphOf(RowsOf({{"March 02, 2026", "199.5"}, {"not a date", "x"}}));
    EXPECT_EQ(graph.labels, QStringList({"Mar-02-26", "not a date", ""}));
    EXPECT_EQ(graph.weights, QList<double>({199.5, 0}));
    EXPECT_EQ(graph.goal, 180);
    EXPECT_EQ(graph.beginning, 200);
    EXPECT_EQ(graph.title, "Pat Weight Tracker Graph");
}

TEST_F(WeightGraphTest, TheRangeHoldsEveryValueWithAMargin)
{
    const WeightGraph graph = graphOf(RowsOf({{"d1", "210"}, {"d2", "150"}}));
    EXPECT_EQ(WeightRange(graph), (GraphRange{144, 216}));
    WeightGraph flat;
    EXPECT_EQ(WeightRange(flat), (GraphRange{-1, 1}));
}
