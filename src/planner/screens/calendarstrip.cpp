#include "planner/screens/calendarstrip.h"

#include "common/dates.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QDate MonthOf(QDate date)
{
    return QDate(date.year(), date.month(), 1);
}

// A calendar that does not hold the selected day keeps a selection of its
// own (a calendar always has one); it is drawn as an ordinary day.
void ShowSelection(QCalendarWidget* calendar, bool shown)
{
    auto* view = calendar->findChild<QTableView*>();
    if (!view)
        return;
    QPalette palette = calendar->palette();
    if (!shown) {
        palette.setColor(QPalette::Highlight, palette.color(QPalette::Base));
        palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
    }
    view->setPalette(palette);
}

} // namespace

CalendarStrip::CalendarStrip(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("CalendarStrip"));
    // The months share the strip's width and height: a larger window shows
    // larger days.
    auto* months = new QHBoxLayout;
    for (int i = 0; i < kMostMonths; ++i) {
        auto* calendar = new QCalendarWidget(this);
        calendar->setObjectName(QStringLiteral("MonthView1_%1").arg(i));
        calendar->setGridVisible(false);
        months->addWidget(calendar);
        calendars_[size_t(i)] = calendar;
        connect(calendar, &QCalendarWidget::currentPageChanged, this,
                [this, i](int year, int month) { userPaged(i, year, month); });
        // A calendar may report, late, the selection the strip gave it
        // while it was busy with a click: that is no pick.
        connect(calendar, &QCalendarWidget::selectionChanged, this, [this, i, calendar] {
            if (calendar->selectedDate() != given_[size_t(i)])
                userChose(calendar->selectedDate());
        });
        // A click reports a day the calendar held already, or one it has just
        // selected; a day the strip took back meanwhile (the screen kept its
        // day) is no pick.
        connect(calendar, &QCalendarWidget::clicked, this, [this, calendar](QDate date) {
            if (calendar->selectedDate() == date)
                userChose(date);
        });
    }
    today_ = new QLabel(this);
    today_->setObjectName(QStringLiteral("TodayLine"));
    today_->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(months);
    layout->addWidget(today_);
    first_ = MonthOf(QDate::currentDate());
    setMonthCount(1);
}

void CalendarStrip::setMonthCount(int count)
{
    count_ = qBound(1, count, kMostMonths);
    for (int i = 0; i < kMostMonths; ++i)
        calendars_[size_t(i)]->setVisible(i < count_);
    showPages();
}

void CalendarStrip::setWeekNumbersShown(bool shown)
{
    for (QCalendarWidget* calendar : calendars_)
        calendar->setVerticalHeaderFormat(shown ? QCalendarWidget::ISOWeekNumbers
                                                : QCalendarWidget::NoVerticalHeader);
}

void CalendarStrip::setFirstWeekday(int weekday)
{
    // 1 is Sunday here, 7 in Qt's week.
    const auto day = weekday == 1 ? Qt::Sunday : Qt::DayOfWeek(weekday - 1);
    for (QCalendarWidget* calendar : calendars_)
        calendar->setFirstDayOfWeek(day);
}

void CalendarStrip::setToday(QDate today, bool shown)
{
    today_->setText(QStringLiteral("Today: ") + ShortDate(today));
    today_->setVisible(shown);
}

bool CalendarStrip::shows(QDate date) const
{
    return date.isValid() && MonthOf(date) >= first_ && MonthOf(date) <= first_.addMonths(count_ - 1);
}

void CalendarStrip::select(QDate date)
{
    selected_ = date;
    if (date.isValid() && !shows(date)) {
        // The least paging that brings the day into sight.
        first_ = MonthOf(date) < first_ ? MonthOf(date) : MonthOf(date).addMonths(1 - count_);
    }
    showPages();
}

void CalendarStrip::userPaged(int index, int year, int month)
{
    if (paging_)
        return;
    const QDate page(year, month, 1);
    const QDate picked = calendars_[size_t(index)]->selectedDate();
    // A click on a day of the next or the last month pages its calendar
    // before the day is reported: that is a pick, brought into sight with
    // the least paging.
    if (picked != selected_ && MonthOf(picked) == page) {
        select(picked);
        emit daySelected(picked);
        return;
    }
    first_ = page.addMonths(-index);
    const bool wasSelected = selected_.isValid();
    if (!shows(selected_))
        selected_ = QDate();
    showPages();
    if (wasSelected && !selected_.isValid())
        emit daySelected(QDate());
}

// A click on the day a calendar holds without showing it changes no
// selection and is reported only as a click.
void CalendarStrip::userChose(QDate date)
{
    if (paging_ || date == selected_ || !date.isValid())
        return;
    select(date);
    emit daySelected(date);
}

void CalendarStrip::showPages()
{
    paging_ = true;
    for (int i = 0; i < kMostMonths; ++i) {
        QCalendarWidget* calendar = calendars_[size_t(i)];
        const QDate month = first_.addMonths(i);
        const bool holds = selected_.isValid() && MonthOf(selected_) == month;
        // Each calendar keeps a selection inside its own month, so a click
        // on a day of another month always reads as a pick.
        given_[size_t(i)] = holds ? selected_ : month;
        calendar->setSelectedDate(given_[size_t(i)]);
        calendar->setCurrentPage(month.year(), month.month());
        ShowSelection(calendar, holds);
    }
    paging_ = false;
}
