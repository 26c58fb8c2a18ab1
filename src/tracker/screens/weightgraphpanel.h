#pragma once
// The weight graph: the weigh-ins, the goal and the beginning weight as
// three lines over the dates of the plotted rows, in a panel over the
// screen with its "&Close" command. The same chart is exported as the
// picture that the printout draws.
#include "shell/kit/overlaypanel.h"
#include "tracker/logic/weightgraph.h"

class QChart;
class QChartView;
class QPushButton;

class WeightGraphPanel final : public OverlayPanel {
    Q_OBJECT
public:
    // The exported picture's size in pixels: its proportions are the
    // printout's.
    static constexpr int kExportWidth = 1200;
    static constexpr int kExportHeight = 600;

    explicit WeightGraphPanel(QWidget* parent);

    // Plots the graph; the panel stays as it is, shown or hidden.
    void plot(const WeightGraph& graph);
    const WeightGraph& graph() const { return graph_; }
    QChart* chart() const { return chart_; }
    QPushButton* closeButton() const { return close_; }

    // The chart as a JPEG file at the export size; false when it could not
    // be written.
    bool exportJpeg(const QString& path) const;

private:
    WeightGraph graph_;
    QChart* chart_ = nullptr;
    QChartView* view_ = nullptr;
    QPushButton* close_ = nullptr;
};
