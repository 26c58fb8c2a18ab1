#pragma once
// The "Amount Entry Panel" of the shopping list: the amount box Text1(1)
// with its prompt, digit buttons 0 to 9, the fourteen unit buttons,
// "Enter Amount on Item Grid" and "Clear The Amount". It is shown while the
// amount of one row is being entered; its label names the row's item.
#include <QFrame>

class EntryBox;
class QLabel;
class QLineEdit;
class QPushButton;

class AmountPanel final : public QFrame {
    Q_OBJECT
public:
    explicit AmountPanel(QWidget* parent = nullptr);

    // Shows "Amount of " and the item, and the row's amount in the box.
    void start(const QString& itemName, const QString& amount);
    QLineEdit* box() const;
    EntryBox* entryBox() const { return entry_; }
    QLabel* label() const { return label_; }
    QPushButton* digitButton(int digit) const;
    QPushButton* unitButton(int index) const;
    QPushButton* enterButton() const { return enter_; }
    QPushButton* clearButton() const { return clear_; }

signals:
    // "Enter Amount on Item Grid", or Enter in a box that is not empty.
    void enterRequested();
    // "Clear The Amount".
    void clearRequested();
    // A click in the amount box.
    void boxClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showAmount(const QString& amount);

    EntryBox* entry_ = nullptr;
    QLabel* label_ = nullptr;
    QList<QPushButton*> digits_;
    QList<QPushButton*> units_;
    QPushButton* enter_ = nullptr;
    QPushButton* clear_ = nullptr;
};
