#pragma once
// The "&Rollup" panel of Basic storage: how much of each group's need the
// family holds, as a list ("Item", "Need", "On Hand", "% of Need") and as a
// bar chart beside it. One button turns the bars from upright to lying and
// back; "&Close" closes the panel.
#include "shell/kit/overlaypanel.h"
#include "storage/logic/storagecalc.h"

class QAbstractBarSeries;
class QChart;
class QChartView;
class QPushButton;
class ScreenGrid;

class PercentPanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit PercentPanel(QWidget* parent);

    // Fills the list and the chart; the caption names the family size.
    void showLines(const QString& familySize, const QList<PercentLine>& lines);

    bool horizontal() const { return horizontal_; }
    // "Hori&zontal" while the bars stand, "&Vertical" while they lie.
    void turnBars();

    ScreenGrid* list() const { return list_; }
    QChart* chart() const;
    QAbstractBarSeries* series() const { return series_; }
    QPushButton* turnButton() const { return turn_; }

private:
    void buildChart();

    ScreenGrid* list_ = nullptr;
    QChartView* view_ = nullptr;
    QAbstractBarSeries* series_ = nullptr;
    QPushButton* turn_ = nullptr;
    QList<PercentLine> lines_;
    bool horizontal_ = false;
};
