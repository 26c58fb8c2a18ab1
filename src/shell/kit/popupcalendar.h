#pragma once
// A month calendar that pops up on a screen: a raised frame over the screen's
// other controls (a child of the screen, not a window of its own), opened
// over or under a box or at a point, on a date. A click on a date, or Enter,
// writes the date into the target box in the screen's form ("Short Date" on
// the shopping list, "mmmm dd, yyyy" on the weight tracker), hides the
// calendar and reports the date; Escape hides it and writes nothing.
#include <QDate>
#include <QFrame>
#include <functional>

class Clock;
class QCalendarWidget;
class QLineEdit;

class PopupCalendar final : public QFrame {
    Q_OBJECT
public:
    using DateForm = std::function<QString(QDate)>;

    // `parent` is the screen (or the part of it) the calendar may cover.
    PopupCalendar(const QString& objectName, QWidget* parent);

    // The box a picked date is written into, and in which form. Without a
    // box the date is only reported.
    void setTarget(QLineEdit* box, DateForm form);
    // Where "today" comes from when a calendar opens without a date; the
    // system's date until a screen gives its clock.
    void setClock(const Clock& clock) { clock_ = &clock; }

    // Open on `date`, today when it is not a valid date, with its month shown
    // and the date selected; the calendar takes the keyboard. The calendar
    // stays inside its parent as far as it fits.
    void openUnder(const QWidget* box, QDate date = {});
    void openOver(const QWidget* box, QDate date = {});
    // `at` in the parent's coordinates.
    void openAt(QPoint at, QDate date = {});
    bool isOpen() const { return !isHidden(); }

    QCalendarWidget* calendar() const { return calendar_; }

signals:
    // After the date is written and the calendar hidden.
    void datePicked(QDate date);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void pick(QDate date);

    QCalendarWidget* calendar_ = nullptr;
    QLineEdit* target_ = nullptr;
    DateForm form_;
    const Clock* clock_ = nullptr;
};
