#pragma once
// The rules the shopping list's three boxes share. A double quote never gets
// in, since the list files enclose every value in double quotes; the user
// types no more than the box's length, while the program may put a longer
// text there (an amount with its unit, a long name from the drop-down);
// Enter belongs to the box and is told, as are Delete and the box taking
// the keyboard.
#include <QObject>

class QLineEdit;

class EntryBox final : public QObject {
    Q_OBJECT
public:
    EntryBox(QLineEdit* box, int typedLength);

    QLineEdit* box() const { return box_; }
    // Sets a text of any length; the user may shorten it and type up to the
    // box's length again.
    void setText(const QString& text);

signals:
    void enterPressed();
    void deletePressed();
    void entered();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void edited(const QString& text);
    void fitLength();

    QLineEdit* box_;
    int typedLength_;
};
