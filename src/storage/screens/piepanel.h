#pragma once
// The pie beside the grid while a category of Basic storage is shown: the
// group's amount on hand against what is still needed. The slices' texts
// ("On Hand (25.0%)", "Need (75.0%)") stand under the pie in full, each
// beside its slice's colour.
#include "storage/logic/storagecalc.h"

#include <QFrame>

class QChartView;
class QLabel;
class QPieSeries;

class PiePanel final : public QFrame {
    Q_OBJECT
public:
    explicit PiePanel(QWidget* parent);

    // Shows the slices under the group's name; nothing hides the panel.
    void showSlices(const QString& group, const std::optional<PieSlices>& slices);

    QPieSeries* series() const { return series_; }
    QString title() const;

private:
    QChartView* view_ = nullptr;
    QPieSeries* series_ = nullptr;
    QLabel* legend_[2] = {};
};
