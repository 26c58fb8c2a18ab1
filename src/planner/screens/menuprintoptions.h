#pragma once
// The planner's own group on the print options panel: "Print Date on each
// page" and "Print Grid Lines", both ticked when the screen opens and never
// stored. Every change is told at once, so the page is composed again.
#include <QGroupBox>

class QCheckBox;

class MenuPrintOptions final : public QGroupBox {
    Q_OBJECT
public:
    explicit MenuPrintOptions(QWidget* parent = nullptr);

    bool printDate() const;
    bool gridLines() const;
    QCheckBox* printDateBox() const { return printDate_; }
    QCheckBox* gridLinesBox() const { return gridLines_; }

signals:
    void changed();

private:
    QCheckBox* printDate_ = nullptr;
    QCheckBox* gridLines_ = nullptr;
};
