#include "planner/logic/calendaroptions.h"

#include "shell/settings/settingsregistry.h"

namespace {

int InRange(int value, int lowest, int highest, int empty)
{
    return value >= lowest && value <= highest ? value : empty;
}

} // namespace

CalendarOptions CalendarOptionsFrom(int months, int weekNumbers, int firstWeekday, int showToday)
{
    CalendarOptions options;
    options.months = InRange(months, 0, 2, 0);
    options.weekNumbers = InRange(weekNumbers, 0, 1, 0);
    // An empty slot holds 0, which counts as Sunday; so does anything past Saturday.
    options.firstWeekday = InRange(firstWeekday, 1, 7, 1);
    options.showToday = InRange(showToday, 0, 1, 0);
    return options;
}

CalendarOptions ReadCalendarOptions()
{
    return CalendarOptionsFrom(ReadSlotInteger(Settings::MonthsToDisplay), ReadSlotInteger(Settings::WeekNumbers),
                               ReadSlotInteger(Settings::FirstWeekday), ReadSlotInteger(Settings::ShowToday));
}

bool WriteCalendarOptions(const CalendarOptions& options)
{
    return WriteSlotInteger(Settings::MonthsToDisplay, qint16(options.months))
        && WriteSlotInteger(Settings::WeekNumbers, qint16(options.weekNumbers))
        && WriteSlotInteger(Settings::FirstWeekday, qint16(options.firstWeekday))
        && WriteSlotInteger(Settings::ShowToday, qint16(options.showToday));
}

OptionGroupCaptions MonthsCaptions()
{
    return {QStringLiteral("Number of Months to Display"),
            {{0, QStringLiteral("One Month (1)")}, {1, QStringLiteral("Two Months (2)")},
             {2, QStringLiteral("Three Months (3)")}}};
}

OptionGroupCaptions WeekNumbersCaptions()
{
    return {QStringLiteral("Display the Week Numbers"),
            {{0, QStringLiteral("Yes (Display)")}, {1, QStringLiteral("No (Don't Display)")}}};
}

OptionGroupCaptions FirstWeekdayCaptions()
{
    return {QStringLiteral("Start Week With"),
            {{1, QStringLiteral("Sunday")}, {2, QStringLiteral("Monday")}, {3, QStringLiteral("Tuesday")},
             {4, QStringLiteral("Wednesday")}, {5, QStringLiteral("Thursday")}, {6, QStringLiteral("Friday")},
             {7, QStringLiteral("Saturday")}}};
}

OptionGroupCaptions ShowTodayCaptions()
{
    return {QStringLiteral("Display Today's Date"), {{1, QStringLiteral("Yes")}, {0, QStringLiteral("No")}}};
}
