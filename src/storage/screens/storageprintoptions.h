#pragma once
// The food storage screen's own group on the print options panel: the four
// print choices and the two checks. Every change is told at once, so the
// page is composed again.
#include "storage/logic/storageprint.h"

#include <QGroupBox>

class QButtonGroup;
class QCheckBox;

class StoragePrintOptions final : public QGroupBox {
    Q_OBJECT
public:
    explicit StoragePrintOptions(QWidget* parent = nullptr);

    // With on-hand data the first choice is preset; without, the two
    // "Only Lines" choices are off and "Complete Form (All 8 Columns)" is preset.
    void preset(bool tableHasOnHandData);

    StoragePrintChoice choice() const;
    bool asOfDate() const;
    bool gridLines() const;

signals:
    void changed();

private:
    QButtonGroup* choices_ = nullptr;
    QCheckBox* asOf_ = nullptr;
    QCheckBox* gridLines_ = nullptr;
};
