#include "planner/screens/calendaroptionspanel.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr const char* kGroupNames[] = {"Months", "WeekNumbers", "FirstWeekday", "ShowToday"};

} // namespace

CalendarOptionsPanel::CalendarOptionsPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("CalendarOptionsPanel"), QStringLiteral("Calendar Display Options"), parent)
{
    auto* grid = new QGridLayout;
    grid->addWidget(makeGroup(kMonths, MonthsCaptions(), 1), 0, 0);
    grid->addWidget(makeGroup(kWeekNumbers, WeekNumbersCaptions(), 1), 0, 1);
    grid->addWidget(makeGroup(kFirstWeekday, FirstWeekdayCaptions(), 2), 1, 0);
    grid->addWidget(makeGroup(kShowToday, ShowTodayCaptions(), 1), 1, 1);
    body()->addLayout(grid);
    close_ = addButton(QStringLiteral("Command3"), QStringLiteral("&Close"));
    connect(close_, &QPushButton::clicked, this, &CalendarOptionsPanel::closeRequested);
}

QGroupBox* CalendarOptionsPanel::makeGroup(Group group, const OptionGroupCaptions& captions, int columns)
{
    auto* box = new QGroupBox(captions.title, this);
    box->setObjectName(QString::fromLatin1(kGroupNames[group]) + QStringLiteral("Group"));
    auto* layout = new QGridLayout(box);
    auto* buttons = new QButtonGroup(box);
    const int perColumn = int((captions.choices.size() + columns - 1) / columns);
    for (int i = 0; i < captions.choices.size(); ++i) {
        const OptionChoice& choice = captions.choices[i];
        auto* option = new QRadioButton(choice.caption, box);
        option->setObjectName(QStringLiteral("%1Option_%2").arg(QString::fromLatin1(kGroupNames[group])).arg(choice.value));
        buttons->addButton(option, choice.value);
        layout->addWidget(option, i % perColumn, i / perColumn);
    }
    connect(buttons, &QButtonGroup::idClicked, this, [this] { emit optionsChanged(options()); });
    groups_[size_t(group)] = box;
    choices_[size_t(group)] = buttons;
    return box;
}

void CalendarOptionsPanel::showOptions(const CalendarOptions& options)
{
    const int values[] = {options.months, options.weekNumbers, options.firstWeekday, options.showToday};
    for (int group = 0; group < 4; ++group) {
        if (QAbstractButton* button = choices_[size_t(group)]->button(values[group]))
            button->setChecked(true);
    }
}

CalendarOptions CalendarOptionsPanel::options() const
{
    return CalendarOptionsFrom(choices_[kMonths]->checkedId(), choices_[kWeekNumbers]->checkedId(),
                               choices_[kFirstWeekday]->checkedId(), choices_[kShowToday]->checkedId());
}

QRadioButton* CalendarOptionsPanel::choice(Group group, int value) const
{
    return qobject_cast<QRadioButton*>(choices_[size_t(group)]->button(value));
}

QList<QWidget*> CalendarOptionsPanel::colouredPanels() const
{
    return {const_cast<CalendarOptionsPanel*>(this), groups_[0], groups_[1], groups_[2], groups_[3]};
}
