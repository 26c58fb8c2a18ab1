// The calendar options in SWR2.fil slots 10 to 13: reading with the ranges,
// writing byte for byte, and the captions of the panel.
#include "planner/logic/calendaroptions.h"

#include "raw_slots.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <gtest/gtest.h>

TEST(CalendarOptions, AMissingFileGivesOneMonthWeekNumbersSundayAndNoToday)
{
    TempProgramFolder folder;
    const CalendarOptions options = ReadCalendarOptions();
    EXPECT_EQ(options, (CalendarOptions{0, 0, 1, 0}));
    EXPECT_EQ(options.monthCount(), 1);
    EXPECT_TRUE(options.weekNumbersShown());
    EXPECT_FALSE(options.todayShown());
}

TEST(CalendarOptions, TheStoredValuesAreRead)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral("SWR2.fil")));
    const CalendarOptions options = ReadCalendarOptions();
    EXPECT_EQ(options, (CalendarOptions{2, 1, 2, 1}));
    EXPECT_EQ(options.monthCount(), 3);
    EXPECT_FALSE(options.weekNumbersShown());
    EXPECT_TRUE(options.todayShown());
}

TEST(CalendarOptions, AFirstWeekdayOfZeroReadsAsSunday)
{
    EXPECT_EQ(CalendarOptionsFrom(0, 0, 0, 0).firstWeekday, 1);
}

TEST(CalendarOptions, ValuesOutOfRangeReadAsAnEmptySlotWould)
{
    EXPECT_EQ(CalendarOptionsFrom(3, 2, 8, 2), (CalendarOptions{0, 0, 1, 0}));
    EXPECT_EQ(CalendarOptionsFrom(-1, -1, -1, -1), (CalendarOptions{0, 0, 1, 0}));
    EXPECT_EQ(CalendarOptionsFrom(2, 1, 7, 1), (CalendarOptions{2, 1, 7, 1}));
    TempProgramFolder folder;
    WriteSlotInteger(SWR2, 10, 300);
    WriteSlotInteger(SWR2, 12, -5);
    EXPECT_EQ(ReadCalendarOptions(), (CalendarOptions{0, 0, 1, 0}));
}

TEST(CalendarOptions, WritingChangesOnlyTheFourSlotsByteForByte)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral("SWR2.fil")));
    const QByteArray before = folder.bytesOf(QStringLiteral("SWR2.fil"));
    ASSERT_TRUE(WriteCalendarOptions({1, 0, 7, 0}));
    QByteArray expected = before;
    const char values[][2] = {{1, 0}, {0, 0}, {7, 0}, {0, 0}};
    for (int slot = 10; slot <= 13; ++slot) {
        expected[(slot - 1) * 20] = values[slot - 10][0];
        expected[(slot - 1) * 20 + 1] = values[slot - 10][1];
    }
    EXPECT_EQ(folder.bytesOf(QStringLiteral("SWR2.fil")), expected);
}

TEST(CalendarOptions, WritingIntoAnEmptyFolderMakesThirteenSlots)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteCalendarOptions({2, 1, 3, 1}));
    QByteArray expected(13 * 20, '\0');
    expected[9 * 20] = 2;
    expected[10 * 20] = 1;
    expected[11 * 20] = 3;
    expected[12 * 20] = 1;
    EXPECT_EQ(folder.bytesOf(QStringLiteral("SWR2.fil")), expected);
}

TEST(CalendarOptions, ThePanelsCaptionsAndTheirValues)
{
    EXPECT_EQ(MonthsCaptions().title, QStringLiteral("Number of Months to Display"));
    ASSERT_EQ(MonthsCaptions().choices.size(), 3);
    EXPECT_EQ(MonthsCaptions().choices[0].caption, QStringLiteral("One Month (1)"));
    EXPECT_EQ(MonthsCaptions().choices[2].caption, QStringLiteral("Three Months (3)"));
    EXPECT_EQ(MonthsCaptions().choices[2].value, 2);
    EXPECT_EQ(WeekNumbersCaptions().title, QStringLiteral("Display the Week Numbers"));
    EXPECT_EQ(WeekNumbersCaptions().choices[0].caption, QStringLiteral("Yes (Display)"));
    EXPECT_EQ(WeekNumbersCaptions().choices[1].caption, QStringLiteral("No (Don't Display)"));
    EXPECT_EQ(WeekNumbersCaptions().choices[1].value, 1);
    EXPECT_EQ(FirstWeekdayCaptions().title, QStringLiteral("Start Week With"));
    ASSERT_EQ(FirstWeekdayCaptions().choices.size(), 7);
    EXPECT_EQ(FirstWeekdayCaptions().choices[0].caption, QStringLiteral("Sunday"));
    EXPECT_EQ(FirstWeekdayCaptions().choices[0].value, 1);
    EXPECT_EQ(FirstWeekdayCaptions().choices[6].caption, QStringLiteral("Saturday"));
    EXPECT_EQ(FirstWeekdayCaptions().choices[6].value, 7);
    EXPECT_EQ(ShowTodayCaptions().title, QStringLiteral("Display Today's Date"));
    EXPECT_EQ(ShowTodayCaptions().choices[0].caption, QStringLiteral("Yes"));
    EXPECT_EQ(ShowTodayCaptions().choices[0].value, 1);
    EXPECT_EQ(ShowTodayCaptions().choices[1].caption, QStringLiteral("No"));
    EXPECT_EQ(ShowTodayCaptions().choices[1].value, 0);
}
