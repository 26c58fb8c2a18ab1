// The view table: the day cell in both date orders, a day's meals in their
// cells, runs of days over New Year and over the end of February.
#include "planner/logic/menuview.h"

#include "pinned_dates.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

MenuLines Lines(std::initializer_list<std::pair<int, QString>> filled)
{
    MenuLines lines;
    for (const auto& [index, text] : filled)
        lines[size_t(index)] = text;
    return lines;
}

} // namespace

TEST(MenuView, TheDayCellIsMonthFirstInTheUsa)
{
    const PinnedDates dates(kUsa);
    EXPECT_EQ(Process().DateFormatMode, QStringLiteral("USA"));
    EXPECT_EQ(ViewDayText(QDate(2026, 4, 3), Process().DateFormatMode), QStringLiteral("Fri - Apr 03, 2026"));
}

TEST(MenuView, TheDayCellIsDayFirstUnderOther)
{
    const PinnedDates dates(kBritain);
    EXPECT_EQ(Process().DateFormatMode, QStringLiteral("OTHER"));
    EXPECT_EQ(ViewDayText(QDate(2026, 4, 3), Process().DateFormatMode), QStringLiteral("Fri - 03 Apr 2026"));
}

TEST(MenuView, ASavedDayJoinsEachMealsLinesWithoutTheBlankOnes)
{
    const PinnedDates dates(kUsa);
    MenuDayRecord record = MenuDayRecord::Saved(Lines({{0, "Eggs"}, {2, "Toast  "}, {6, "Coffee"}, {8, "Soup"},
                                                        {14, "Roast"}, {15, "Peas"}}));
    const MenuViewRow row = ViewRowOf(QDate(2026, 4, 3), record, Process().DateFormatMode);
    EXPECT_TRUE(row.found);
    EXPECT_EQ(row.day, QStringLiteral("Fri - Apr 03, 2026"));
    EXPECT_EQ(row.breakfast, QStringLiteral("Eggs\nToast\nCoffee"));
    EXPECT_EQ(row.lunch, QStringLiteral("Soup"));
    EXPECT_EQ(row.dinner, QStringLiteral("Roast\nPeas"));
    EXPECT_EQ(row.largestCount, 3);
}

TEST(MenuView, ADayNeverSavedHasNoMenuItems)
{
    const PinnedDates dates(kUsa);
    const MenuViewRow row = ViewRowOf(QDate(2026, 4, 4), MenuDayRecord{}, Process().DateFormatMode);
    EXPECT_FALSE(row.found);
    EXPECT_EQ(row.breakfast, QStringLiteral("No menu items were found"));
    EXPECT_EQ(row.lunch, QString());
    EXPECT_EQ(row.largestCount, 0);
}

TEST(MenuView, TheCurrentDateAloneIsOneRow)
{
    TempProgramFolder folder;
    const PinnedDates dates(kUsa);
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    const MenuView view = BuildMenuView(QDate(2026, 3, 15), 0, Process().DateFormatMode);
    ASSERT_EQ(view.rows.size(), 1);
    EXPECT_TRUE(view.found());
    EXPECT_EQ(view.rows[0].breakfast, QStringLiteral("Oatmeal\nOrange juice"));
    EXPECT_EQ(view.rows[0].dinner, QStringLiteral("Roast chicken with potatoes, gra\nGreen salad"));
}

// Edge case: a range crossing New Year reads two year files.
TEST(MenuView, ARunOverNewYearReadsTwoYearFiles)
{
    TempProgramFolder folder;
    const PinnedDates dates(kBritain);
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 12, 26)), Lines({{0, "Leftover turkey"}})));
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2027, 1, 2)), Lines({{14, "Fish pie"}})));
    QSet<QString> filesRead;
    const DayReader reading = [&filesRead](QDate date) {
        filesRead.insert(MenuPlanFileName(date.year()));
        return ReadDay(date);
    };
    const MenuView view = BuildMenuView(QDate(2026, 12, 25), 10, Process().DateFormatMode, reading);
    ASSERT_EQ(view.rows.size(), 11);
    EXPECT_EQ(filesRead, (QSet<QString>{QStringLiteral(" 2026.Mnu"), QStringLiteral(" 2027.Mnu")}));
    EXPECT_EQ(view.rows[0].day, QStringLiteral("Fri - 25 Dec 2026"));
    EXPECT_EQ(view.rows[1].breakfast, QStringLiteral("Leftover turkey"));
    EXPECT_EQ(view.rows[8].day, QStringLiteral("Sat - 02 Jan 2027"));
    EXPECT_EQ(view.rows[8].dinner, QStringLiteral("Fish pie"));
    EXPECT_EQ(view.rows[10].day, QStringLiteral("Mon - 04 Jan 2027"));
    EXPECT_EQ(view.rows[10].breakfast, NoMenuItemsText());
}

// Edge case: a range of 31 days with only empty days ends in the "enteries"
// message and a hidden table (here: the view finds nothing).
TEST(MenuView, ThirtyOneEmptyDaysFindNothing)
{
    TempProgramFolder folder;
    const MenuView view = BuildMenuView(QDate(2026, 5, 1), 31, QStringLiteral("USA"));
    EXPECT_EQ(view.rows.size(), 32);
    EXPECT_FALSE(view.found());
}

TEST(MenuView, RunsOverTheEndOfFebruaryFollowTheCalendar)
{
    TempProgramFolder folder;
    const PinnedDates dates(kUsa);
    const MenuView common = BuildMenuView(QDate(2027, 2, 27), 2, Process().DateFormatMode);
    EXPECT_EQ(common.rows[1].date, QDate(2027, 2, 28));
    EXPECT_EQ(common.rows[2].day, QStringLiteral("Mon - Mar 01, 2027"));
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2028, 2, 29)), Lines({{0, "Leap pancakes"}})));
    const MenuView leap = BuildMenuView(QDate(2028, 2, 27), 3, Process().DateFormatMode);
    EXPECT_EQ(leap.rows[2].day, QStringLiteral("Tue - Feb 29, 2028"));
    EXPECT_EQ(leap.rows[2].breakfast, QStringLiteral("Leap pancakes"));
    EXPECT_EQ(leap.rows[3].day, QStringLiteral("Wed - Mar 01, 2028"));
    EXPECT_FALSE(leap.rows[3].found);
}

TEST(MenuView, TheDayListCountsAnEmptyChoiceAsOne)
{
    EXPECT_EQ(FollowingDaysOf(QString()), 1);
    EXPECT_EQ(FollowingDaysOf(QStringLiteral("1")), 1);
    EXPECT_EQ(FollowingDaysOf(QStringLiteral("31")), 31);
    EXPECT_EQ(FollowingDaysOf(QStringLiteral("45")), 31);
}
