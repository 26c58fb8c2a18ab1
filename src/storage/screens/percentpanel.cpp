#include "storage/screens/percentpanel.h"

#include "shell/kit/screengrid.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHorizontalBarSeries>
#include <QLabel>
#include <QPushButton>
#include <QValueAxis>

namespace {

constexpr int kChartWidth = 300;
constexpr int kChartHeight = 280;

} // namespace

PercentPanel::PercentPanel(QWidget* parent) : OverlayPanel(QStringLiteral("SSPanel5"), QString(), parent)
{
    list_ = new ScreenGrid(QStringLiteral("VSGd2"), this);
    list_->setSelectionKind(ScreenGrid::Selection::None);
    list_->setFocusPolicy(Qt::NoFocus);
    list_->verticalHeader()->hide();
    list_->setHeadings({QStringLiteral("Item"), QStringLiteral("Need"), QStringLiteral("On Hand"),
                        QStringLiteral("% of Need")});
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    view_ = new QChartView(this);
    view_->setObjectName(QStringLiteral("Chart2"));
    view_->setRenderHint(QPainter::Antialiasing);
    view_->setMinimumSize(kChartWidth, kChartHeight);

    auto* row = new QHBoxLayout;
    row->addWidget(list_);
    row->addWidget(view_, 1);
    body()->addLayout(row, 1);

    turn_ = addButton(QStringLiteral("Command3_0"), QStringLiteral("Hori&zontal"));
    QPushButton* close = addButton(QStringLiteral("Command3_1"), QStringLiteral("&Close"));
    connect(turn_, &QPushButton::clicked, this, &PercentPanel::turnBars);
    connect(close, &QPushButton::clicked, this, &PercentPanel::closeRequested);
}

QChart* PercentPanel::chart() const
{
    return view_->chart();
}

void PercentPanel::showLines(const QString& familySize, const QList<PercentLine>& lines)
{
    captionLabel()->setText(PercentCaption(familySize));
    lines_ = lines;
    list_->clearRows();
    for (int row = 0; row < lines.size(); ++row)
        list_->setRowTexts(row, {lines[row].item, lines[row].need, lines[row].onHand, lines[row].percent});
    list_->resizeColumnsToContents();
    list_->resizeRowsToContents();
    int width = list_->frameWidth() * 2;
    for (int column = 0; column < list_->columnCount(); ++column)
        width += list_->columnWidth(column);
    int height = list_->frameWidth() * 2 + list_->horizontalHeader()->sizeHint().height();
    for (int row = 0; row < list_->rowCount(); ++row)
        height += list_->rowHeight(row);
    list_->setFixedSize(width, height);
    buildChart();
}

void PercentPanel::turnBars()
{
    horizontal_ = !horizontal_;
    turn_->setText(horizontal_ ? QStringLiteral("&Vertical") : QStringLiteral("Hori&zontal"));
    buildChart();
}

void PercentPanel::buildChart()
{
    auto* bars = new QBarSet(QStringLiteral("% of Need"));
    QStringList items;
    double highest = 100;
    for (const PercentLine& line : lines_) {
        bars->append(line.bar);
        items.append(line.item);
        highest = qMax(highest, line.bar);
    }
    series_ = horizontal_ ? static_cast<QAbstractBarSeries*>(new QHorizontalBarSeries)
                          : static_cast<QAbstractBarSeries*>(new QBarSeries);
    series_->append(bars);

    auto* chart = new QChart;
    chart->addSeries(series_);
    chart->legend()->hide();
    auto* itemAxis = new QBarCategoryAxis;
    itemAxis->append(items);
    // Upright bars are narrow: their names stand on end below them.
    itemAxis->setLabelsAngle(horizontal_ ? 0 : -90);
    auto* percentAxis = new QValueAxis;
    percentAxis->setRange(0, highest);
    percentAxis->setLabelFormat(QStringLiteral("%d%%"));
    chart->addAxis(itemAxis, horizontal_ ? Qt::AlignLeft : Qt::AlignBottom);
    chart->addAxis(percentAxis, horizontal_ ? Qt::AlignBottom : Qt::AlignLeft);
    series_->attachAxis(itemAxis);
    series_->attachAxis(percentAxis);
    QChart* old = view_->chart();
    view_->setChart(chart);
    delete old;
}
