#include "tracker/screens/weightgraphpanel.h"

#include "common/filewrites.h"

#include <QBuffer>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLabel>
#include <QLineSeries>
#include <QPushButton>
#include <QValueAxis>
#include <QVBoxLayout>

namespace {

constexpr int kViewWidth = 700;
constexpr int kViewHeight = 380;

// Category labels must differ: a date weighed twice gets a trailing blank,
// which does not show.
QString UniqueLabel(QString label, QStringList& used)
{
    while (used.contains(label))
        label += u' ';
    used.append(label);
    return label;
}

QLineSeries* Series(const QString& name, const QList<double>& values)
{
    auto* series = new QLineSeries;
    series->setName(name);
    for (int x = 0; x < values.size(); ++x)
        series->append(x, values[x]);
    return series;
}

// The three lines over the dates, the values' axis around them.
void PlotOn(QChart& chart, const WeightGraph& graph)
{
    chart.removeAllSeries();
    // A removed axis is the caller's to delete.
    for (QAbstractAxis* axis : chart.axes()) {
        chart.removeAxis(axis);
        delete axis;
    }
    const QList<double> goal(graph.weights.size(), graph.goal);
    const QList<double> beginning(graph.weights.size(), graph.beginning);
    QLineSeries* lines[] = {Series(QStringLiteral("Weight"), graph.weights),
                            Series(QStringLiteral("Goal Weight"), goal),
                            Series(QStringLiteral("Beginning Weight"), beginning)};
    auto* dates = new QCategoryAxis;
    dates->setTitleText(graph.axisTitle);
    dates->setLabelsAngle(-90);
    // Each point owns the unit around it, its label centred under it.
    dates->setStartValue(-0.5);
    QStringList used;
    for (int x = 0; x < graph.labels.size(); ++x)
        dates->append(UniqueLabel(graph.labels[x], used), x + 0.5);
    dates->setRange(-0.5, qMax(1, graph.pointCount) - 0.5);
    auto* weights = new QValueAxis;
    const GraphRange range = WeightRange(graph);
    weights->setRange(range.low, range.high);
    chart.addAxis(dates, Qt::AlignBottom);
    chart.addAxis(weights, Qt::AlignLeft);
    for (QLineSeries* series : lines) {
        chart.addSeries(series);
        series->attachAxis(dates);
        series->attachAxis(weights);
    }
}

} // namespace

WeightGraphPanel::WeightGraphPanel(QWidget* parent) : OverlayPanel(QStringLiteral("SSPanelGraph"), QString(), parent)
{
    chart_ = new QChart;
    chart_->legend()->setAlignment(Qt::AlignBottom);
    view_ = new QChartView(chart_, this);
    view_->setObjectName(QStringLiteral("Chart1"));
    view_->setRenderHint(QPainter::Antialiasing);
    view_->setMinimumSize(kViewWidth / 2, kViewHeight / 2);
    view_->resize(kViewWidth, kViewHeight);
    body()->addWidget(view_, 1);
    close_ = addButton(QStringLiteral("cmdCloseGraph"), QStringLiteral("&Close"));
    connect(close_, &QPushButton::clicked, this, &OverlayPanel::closeRequested);
}

void WeightGraphPanel::plot(const WeightGraph& graph)
{
    graph_ = graph;
    captionLabel()->setText(graph.title);
    PlotOn(*chart_, graph);
}

// The picture is drawn by a chart of its own at the export size, whatever
// the size of the panel's.
bool WeightGraphPanel::exportJpeg(const QString& path) const
{
    auto* chart = new QChart;
    chart->legend()->setAlignment(Qt::AlignBottom);
    PlotOn(*chart, graph_);
    QChartView view(chart);
    view.setRenderHint(QPainter::Antialiasing);
    view.resize(kExportWidth, kExportHeight);
    const QPixmap picture = view.grab();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, "JPG") && WriteWholeFile(path, bytes);
}
