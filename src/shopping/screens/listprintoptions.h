#pragma once
// The shopping list's own group on the print options panel: "Print Divider
// Lines (Every 5 Items)" and "Print Date on each page", both on when the
// screen opens and never stored. The worksheet prints neither: the group
// rests while it is shown.
#include <QGroupBox>

class QCheckBox;

class ListPrintOptions final : public QGroupBox {
    Q_OBJECT
public:
    explicit ListPrintOptions(QWidget* parent = nullptr);

    bool dividers() const;
    bool printDate() const;
    QCheckBox* dividerBox() const { return dividers_; }
    QCheckBox* dateBox() const { return date_; }

signals:
    void changed();

private:
    QCheckBox* dividers_ = nullptr;
    QCheckBox* date_ = nullptr;
};
