#pragma once
// The weight tracker's own group on the print options panel: what the
// printout holds. Every change is told at once, so the page is composed
// again.
#include "tracker/logic/trackerprint.h"

#include <QGroupBox>

class QCheckBox;

class TrackerPrintOptions final : public QGroupBox {
    Q_OBJECT
public:
    explicit TrackerPrintOptions(QWidget* parent = nullptr);

    // The data and the plan checked; a picture offered and checked only
    // when its file is there; the graph, dividers and borders off.
    void preset(bool beginningPictureThere, bool currentPictureThere);
    TrackerPrintChecks checks() const;
    QCheckBox* check(int index) const { return checks_.value(index); }

signals:
    void changed();

private:
    QList<QCheckBox*> checks_;
};
