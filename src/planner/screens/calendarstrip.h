#pragma once
// The planner's calendar: one to three month calendars side by side showing
// consecutive months, with one selected day among them, and under them the
// "today" line when it is switched on. Paging any of the calendars pages
// them all. A day counts as selected only while one of the months shown
// holds it: paging it out of sight leaves no day selected, and the strip
// says so as it says when the user picks a day.
#include <QDate>
#include <QFrame>
#include <array>

class QCalendarWidget;
class QLabel;

class CalendarStrip final : public QFrame {
    Q_OBJECT
public:
    static constexpr int kMostMonths = 3;

    explicit CalendarStrip(QWidget* parent = nullptr);

    void setMonthCount(int count);
    int monthCount() const { return count_; }
    void setWeekNumbersShown(bool shown);
    // 1 Sunday to 7 Saturday.
    void setFirstWeekday(int weekday);
    void setToday(QDate today, bool shown);

    // Selects `date` and pages to it when it is out of sight, without
    // telling anyone.
    void select(QDate date);
    // Invalid when no day is selected.
    QDate selectedDate() const { return selected_; }

    QCalendarWidget* calendar(int index) const { return calendars_[size_t(index)]; }
    QLabel* todayLine() const { return today_; }

signals:
    // The user picked a day, or paged the selected one out of sight (an
    // invalid date).
    void daySelected(QDate date);

private:
    void userPaged(int index, int year, int month);
    void userChose(QDate date);
    bool shows(QDate date) const;
    // Pages every calendar from the first month and lets only the calendar
    // holding the selected day show a selection.
    void showPages();

    std::array<QCalendarWidget*, kMostMonths> calendars_{};
    std::array<QDate, kMostMonths> given_{};  // the selection each calendar was given
    QLabel* today_ = nullptr;
    int count_ = 1;
    QDate first_;
    QDate selected_;
    bool paging_ = false;  // set while the strip itself pages and selects
};
