#pragma once
// How the planner's calendar looks: four 16-bit values in SWR2.fil slots 10
// to 13, read when the options panel opens and written when it closes.
//
//   slot 10  months side by side   0 one, 1 two, 2 three
//   slot 11  week numbers          0 shown, 1 not
//   slot 12  first day of the week 1 Sunday to 7 Saturday; 0 reads as 1
//   slot 13  today's line          1 shown, 0 not
//
// A value outside its range reads as an empty slot would.
#include <QList>
#include <QString>

struct CalendarOptions {
    int months = 0;        // stored value 0 to 2
    int weekNumbers = 0;   // 0 shown, 1 hidden
    int firstWeekday = 1;  // 1 Sunday to 7 Saturday
    int showToday = 0;     // 1 shown

    int monthCount() const { return months + 1; }
    bool weekNumbersShown() const { return weekNumbers == 0; }
    bool todayShown() const { return showToday == 1; }

    bool operator==(const CalendarOptions&) const = default;
};

// The stored values as read, each checked against its range.
CalendarOptions CalendarOptionsFrom(int months, int weekNumbers, int firstWeekday, int showToday);
CalendarOptions ReadCalendarOptions();
// False when a write failed; the values written before it stay written.
bool WriteCalendarOptions(const CalendarOptions& options);

// A group of the options panel: its title and its choices in the order
// shown, each with the value it stores.
struct OptionChoice {
    int value;
    QString caption;
};
struct OptionGroupCaptions {
    QString title;
    QList<OptionChoice> choices;
};
OptionGroupCaptions MonthsCaptions();
OptionGroupCaptions WeekNumbersCaptions();
OptionGroupCaptions FirstWeekdayCaptions();
OptionGroupCaptions ShowTodayCaptions();
