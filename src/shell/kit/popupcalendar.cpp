#include "shell/kit/popupcalendar.h"

#include "common/clock.h"
#include "shell/kit/insideparent.h"
#include "shell/kit/raisedpanel.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

PopupCalendar::PopupCalendar(const QString& objectName, QWidget* parent) : QFrame(parent)
{
    setObjectName(objectName);
    MakeRaised(this, 2);
    calendar_ = new QCalendarWidget(this);
    calendar_->setObjectName(objectName + QStringLiteral("Month"));
    calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(lineWidth(), lineWidth(), lineWidth(), lineWidth());
    layout->addWidget(calendar_);
    // A click and Enter both pick; moving through the days with the keys
    // only selects.
    connect(calendar_, &QCalendarWidget::clicked, this, &PopupCalendar::pick);
    connect(calendar_, &QCalendarWidget::activated, this, &PopupCalendar::pick);
    hide();
    FollowParentSize(this);
}

void PopupCalendar::setTarget(QLineEdit* box, DateForm form)
{
    target_ = box;
    form_ = std::move(form);
}

void PopupCalendar::openUnder(const QWidget* box, QDate date)
{
    openAt(parentWidget()->mapFromGlobal(box->mapToGlobal(QPoint(0, box->height()))), date);
}

void PopupCalendar::openOver(const QWidget* box, QDate date)
{
    openAt(parentWidget()->mapFromGlobal(box->mapToGlobal(QPoint(0, 0))), date);
}

void PopupCalendar::openAt(QPoint at, QDate date)
{
    const QDate shown = date.isValid() ? date : clock_ ? clock_->today() : QDate::currentDate();
    calendar_->setSelectedDate(shown);
    calendar_->setCurrentPage(shown.year(), shown.month());
    resize(sizeHint());
    move(at);
    KeepInsideParent(this);
    show();
    raise();
    calendar_->setFocus(Qt::PopupFocusReason);
}

void PopupCalendar::pick(QDate date)
{
    if (!isOpen())
        return;
    if (target_ && form_)
        target_->setText(form_(date));
    // Hidden before the report, so that a screen's answer (moving the focus,
    // opening the calendar again) is the last word.
    hide();
    emit datePicked(date);
}

void PopupCalendar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    QFrame::keyPressEvent(event);
}
