// Zcalandar's meal lists and the look of its calendar.
#include "planner/screens/zcalandar.h"

#include "common/clock.h"
#include "planner/logic/calendaroptions.h"
#include "planner/screens/calendarstrip.h"
#include "planner/screens/daylinespanel.h"

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

// ---- Calendar options -------------------------------------------------------------

void Zcalandar::applyCalendarOptions(const CalendarOptions& options)
{
    calendar_->setMonthCount(options.monthCount());
    calendar_->setWeekNumbersShown(options.weekNumbersShown());
    calendar_->setFirstWeekday(options.firstWeekday);
    calendar_->setToday(clock_.today(), options.todayShown());
    fitCalendarArea();
}
