// Zcalandar's panels and options: the meal lists and their editor, the
// calendar options, the text colour, and backup and restore of a year.
#include "planner/screens/zcalandar.h"

#include "common/clock.h"
#include "common/dialogs.h"
#include "common/widgets/qtcolors.h"
#include "planner/logic/calendaroptions.h"
#include "planner/logic/plannertextcolor.h"
#include "planner/screens/calendaroptionspanel.h"
#include "planner/screens/calendarstrip.h"
#include "planner/screens/daylinespanel.h"
#include "planner/screens/editlistspanel.h"
#include "planner/screens/menuviewpanel.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

namespace {

constexpr Meal kMeals[] = {Meal::Breakfast, Meal::Lunch, Meal::Dinner};

} // namespace

// ---- The meal lists -------------------------------------------------------------

void Zcalandar::loadLists()
{
    for (const Meal meal : kMeals) {
        lists_[size_t(meal) - 1] = MenuItemList::Load(meal);
        lines_->setListItems(meal, list(meal).items());
    }
}

bool Zcalandar::saveList(Meal meal)
{
    return tellWriteFailed(list(meal).save(meal), MenuListFileName(meal));
}

void Zcalandar::openEditLists()
{
    showActivity(QStringLiteral("Edit Lists"));
    lines_->hideDropDowns();
    setPanel(PlannerPanel::EditLists);
    chooseEditList(Meal::Breakfast);
    editLists_->open(editLists_->newItemBox());
    editLists_->centreInParent();
}

// The list is read afresh from its file, for the editor and the meal's
// drop-down alike.
void Zcalandar::chooseEditList(Meal meal)
{
    lists_[size_t(meal) - 1] = MenuItemList::Load(meal);
    lines_->setListItems(meal, list(meal).items());
    editLists_->showList(meal, list(meal).items());
    editLists_->newItemBox()->setFocus(Qt::OtherFocusReason);
}

// A new item unless the list has it in any case; a full list takes no more.
// The box is emptied afterwards, except when the file could not be written:
// then the list stays as it was and the box keeps the item.
void Zcalandar::addListItem(const QString& text)
{
    const Meal meal = editLists_->meal();
    MenuItemList& items = lists_[size_t(meal) - 1];
    if (items.find(text) >= 0) {
        tell(QStringLiteral("Edit Routine"), QStringLiteral("Entry already exists!"));
    } else {
        const MenuItemList before = items;
        if (items.insert(text) && !saveList(meal)) {
            items = before;
            return;
        }
        lines_->setListItems(meal, items.items());
    }
    editLists_->showItems(items.items());
    editLists_->newItemBox()->setFocus(Qt::OtherFocusReason);
}

void Zcalandar::deleteListItem(const QString& text)
{
    const Meal meal = editLists_->meal();
    MenuItemList& items = lists_[size_t(meal) - 1];
    if (text.isEmpty() || items.count() == 0)
        return;
    const MenuItemList before = items;
    if (!items.remove(text))
        return;
    if (!saveList(meal)) {
        items = before;
        return;
    }
    lines_->setListItems(meal, items.items());
    editLists_->showItems(items.items());
    editLists_->button(EditListsPanel::kClose)->setFocus(Qt::OtherFocusReason);
}

void Zcalandar::closeEditLists()
{
    setPanel(PlannerPanel::None);
    commands_->button(ZcalandarCommand::EditLists)->setFocus(Qt::OtherFocusReason);
    editLists_->hide();
    showActivity();
}

// ---- Calendar options -------------------------------------------------------------

void Zcalandar::toggleCalendarOptions()
{
    if (state_.panel == PlannerPanel::CalendarOptions)
        closeCalendarOptions();
    else
        openCalendarOptions();
}

// The panel stands under the calendar, so every choice shows at once.
void Zcalandar::openCalendarOptions()
{
    options_->showOptions(ReadCalendarOptions());
    setPanel(PlannerPanel::CalendarOptions);
    options_->open(options_->closeButton());
    const QWidget* area = centralWidget();
    const int below = calendarArea_->geometry().bottom() + 1;
    options_->move((area->width() - options_->width()) / 2,
                   qMax(0, qMin(below, area->height() - options_->height())));
}

void Zcalandar::applyCalendarOptions(const CalendarOptions& options)
{
    calendar_->setMonthCount(options.monthCount());
    calendar_->setWeekNumbersShown(options.weekNumbersShown());
    calendar_->setFirstWeekday(options.firstWeekday);
    calendar_->setToday(clock_.today(), options.todayShown());
    fitCalendarArea();
}

// The choices are written only now; a failed write keeps the panel open.
void Zcalandar::closeCalendarOptions()
{
    if (!tellWriteFailed(WriteCalendarOptions(options_->options()), QString::fromLatin1(Settings::MonthsToDisplay.file.name)))
        return;
    setPanel(PlannerPanel::None);
    commands_->button(ZcalandarCommand::Save)->setFocus(Qt::OtherFocusReason);
    options_->hide();
}

// ---- Text colour ------------------------------------------------------------------

void Zcalandar::chooseTextColor()
{
    const qint32 shown = textColor_.value_or(ColorrefFromColor(palette().color(QPalette::Text)));
    const std::optional<qint32> chosen = dialogs().chooseColor(shown);
    if (!chosen)
        return;
    textColor_ = chosen;
    lines_->setTextColor(textColor_);
    view_->setTextColor(textColor_);
    tellWriteFailed(StorePlannerTextColor(*chosen), QString::fromLatin1(Settings::ZcalandarTextColor.file.name));
}

// ---- Backup and restore -------------------------------------------------------------

// The backup entry is on only when the year on screen has a file with
// something in it.
void Zcalandar::utilitiesOpening()
{
    state_.yearFileUsed = state_.daySelected && YearFileLength(currentDate().year()) > 0;
    applyCommandStates();
}

void Zcalandar::backupYear()
{
    if (dirty_ && !askToSaveBeforeNextAction())
        return;
    backupOpener_(kBackupYearMode, currentDate().year());
}

// A restore may have replaced the year's file: the screen opens again.
void Zcalandar::restoreYear()
{
    if (dirty_ && !askToSaveBeforeNextAction())
        return;
    backupOpener_(kRestoreYearMode, currentDate().year());
    runOpening();
}
