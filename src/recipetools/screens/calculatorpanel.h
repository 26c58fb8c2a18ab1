#pragma once
// The panel "Recipe Amount Calculator": the current yield, a box for the new
// one, and the commands to calculate and to close. The panel keeps its own
// labels in step with what is typed; the arithmetic is CalculateNewAmounts,
// and the recipe screen runs it and shows its messages.
#include "shell/kit/overlaypanel.h"

class QLabel;
class QLineEdit;
class QPushButton;

class CalculatorPanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit CalculatorPanel(QWidget* parent = nullptr);

    // Shows the recipe's yield number and type as the current yield, offers
    // the same type for the new one, empties the box and puts the focus in it.
    void open(const QString& currentYield, const QString& yieldType);

    QString newYield() const;
    QString currentYield() const;
    // After a calculation the new yield becomes the current one.
    void setCurrentYield(const QString& yield);
    void clearNewYield();
    // Empties the current yield, its type and the new yield.
    void clear();
    QString newYieldType() const;

    QLineEdit* newYieldBox() const { return newYieldBox_; }
    QPushButton* closeButton() const { return closeButton_; }

signals:
    // "Calculate New &Amounts", or Enter in the new yield box.
    void calculateRequested();
    // A key was released in the new yield box: the type label now reads
    // `newType`, and the recipe's yield type should follow it.
    void yieldTypeTyped(const QString& newType);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void newYieldKeyReleased();

    QLabel* currentYield_ = nullptr;      // Label20
    QLabel* currentYieldType_ = nullptr;  // Label21
    QLineEdit* newYieldBox_ = nullptr;    // Text9
    QLabel* newYieldType_ = nullptr;      // Label24
    QPushButton* calculateButton_ = nullptr;
    QPushButton* closeButton_ = nullptr;
};
