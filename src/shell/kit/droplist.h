#pragma once
// A drop list that opens right over a box of the recipe screen (the amount
// list over an amount box, the unit lists over a unit box) and takes the
// keyboard. Picking an entry reports it; typing a character closes the list
// and hands the key to the box, so the box can still be typed into.
#include <QListWidget>

class QLineEdit;

class DropList final : public QListWidget {
    Q_OBJECT
public:
    DropList(const QString& objectName, const QStringList& entries, QWidget* parent);

    // Opens over `box`, with the box's width and position.
    void openOver(QLineEdit* box);
    void dismiss();
    QLineEdit* box() const { return box_; }

signals:
    void picked(QLineEdit* box, int index, const QString& text);
    // The list gives the keyboard back to its box: it closed without a
    // pick, or a pick follows.
    void givingFocusBack(QLineEdit* box);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void pick(int row);

    QLineEdit* box_ = nullptr;
};
