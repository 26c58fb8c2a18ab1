#include "storage/screens/piepanel.h"

#include "shell/kit/raisedpanel.h"

#include <QChart>
#include <QChartView>
#include <QLabel>
#include <QPieSeries>
#include <QPieSlice>
#include <QVBoxLayout>

namespace {

constexpr int kPieWidth = 240;
constexpr int kPieHeight = 220;

} // namespace

PiePanel::PiePanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("SSPanel3"));
    MakeRaised(this, 2);
    view_ = new QChartView(this);
    view_->setObjectName(QStringLiteral("Chart1"));
    view_->setRenderHint(QPainter::Antialiasing);
    view_->setMinimumSize(kPieWidth, kPieHeight);
    series_ = new QPieSeries;
    series_->append(QStringLiteral("On Hand"), 0);
    series_->append(QStringLiteral("Need"), 0);
    view_->chart()->addSeries(series_);
    // A chart's own legend cuts long texts short in a narrow panel.
    view_->chart()->legend()->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view_, 1);
    for (int slice = 0; slice < 2; ++slice) {
        legend_[slice] = new QLabel(this);
        legend_[slice]->setObjectName(QStringLiteral("PieLegend_%1").arg(slice));
        layout->addWidget(legend_[slice]);
    }
    hide();
}

void PiePanel::showSlices(const QString& group, const std::optional<PieSlices>& slices)
{
    if (!slices) {
        hide();
        return;
    }
    const QList<QPieSlice*> pieces = series_->slices();
    pieces[0]->setLabel(slices->onHandLabel);
    pieces[0]->setValue(slices->onHand);
    pieces[1]->setLabel(slices->missingLabel);
    pieces[1]->setValue(slices->missing);
    for (int slice = 0; slice < 2; ++slice) {
        legend_[slice]->setText(QStringLiteral("<span style=\"color:%1\">&#9632;</span> %2")
                                    .arg(pieces[slice]->brush().color().name(), pieces[slice]->label().toHtmlEscaped()));
    }
    view_->chart()->setTitle(group);
    show();
}

QString PiePanel::title() const
{
    return view_->chart()->title();
}
