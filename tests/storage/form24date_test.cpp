// The date column of the storage screen in both date forms: the calendar
// opens on the cell's date, and a picked date is written month first or day
// first and reads back as the same day.
#include "shell/kit/popupcalendar.h"
#include "storage/logic/storagefiles.h"
#include "form24_fixture.h"

#include <QCalendarWidget>

namespace {

class Form24DateTest : public Form24Test {
protected:
    void useDayFirst()
    {
        SetDateLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
        Process().DateFormatMode = QStringLiteral("OTHER");
    }

    static void pick(Form24& form, QDate date)
    {
        QCalendarWidget* month = form.calendar()->calendar();
        month->setSelectedDate(date);
        emit month->activated(date);
    }

    // Leaves the date cell and comes back: the calendar opens again.
    static QDate reopen(Form24& form, int gridRow)
    {
        moveTo(form, gridRow, 0);
        EXPECT_FALSE(form.calendar()->isOpen());
        moveTo(form, gridRow, 5);
        EXPECT_TRUE(form.calendar()->isOpen());
        return form.calendar()->calendar()->selectedDate();
    }
};

// Baking Soda, row 55: a single item with a date of its own.
constexpr int kBakingSoda = 54;

} // namespace

TEST_F(Form24DateTest, TheCalendarOpensOnTheCellsDateOrOnToday)
{
    auto form = openShown();
    moveTo(*form, 1, 5);
    ASSERT_TRUE(form->calendar()->isOpen());
    EXPECT_EQ(form->calendar()->calendar()->selectedDate(), QDate(2026, 4, 3));
    moveTo(*form, 2, 5);
    EXPECT_EQ(form->calendar()->calendar()->selectedDate(), QDate(2026, 12, 31));
    moveTo(*form, kBakingSoda, 5);
    EXPECT_EQ(form->calendar()->calendar()->selectedDate(), clock.today()) << "an empty cell";
    moveTo(*form, kBakingSoda, 4);
    EXPECT_FALSE(form->calendar()->isOpen()) << "outside column 5 the calendar closes";
}

TEST_F(Form24DateTest, MonthFirstAPickOf3April2026Writes4_3_26AndReopensOnIt)
{
    auto form = openShown();
    moveTo(*form, kBakingSoda, 5);
    pick(*form, QDate(2026, 4, 3));
    EXPECT_EQ(cell(*form, kBakingSoda, 5), "4/3/26");
    EXPECT_FALSE(form->calendar()->isOpen());
    EXPECT_TRUE(form->model().dataChanged());
    EXPECT_TRUE(button(*form, 3)->hasFocus()) << "committed as a typed value";
    EXPECT_EQ(reopen(*form, kBakingSoda), QDate(2026, 4, 3));
}

TEST_F(Form24DateTest, DayFirstAPickOf3April2026Writes3_4_26AndReopensOnIt)
{
    useDayFirst();
    auto form = openShown();
    EXPECT_EQ(form->grid()->headings()[5], "Last\nAction\nDate\n(dd/mm/yy)");
    moveTo(*form, kBakingSoda, 5);
    pick(*form, QDate(2026, 4, 3));
    EXPECT_EQ(cell(*form, kBakingSoda, 5), "3/4/26");
    EXPECT_EQ(reopen(*form, kBakingSoda), QDate(2026, 4, 3));
}

TEST_F(Form24DateTest, TheLastDayOfTheYearAndALeapDayRoundTripInBothForms)
{
    const QDate dates[] = {QDate(2026, 12, 31), QDate(2028, 2, 29)};
    const char* const monthFirst[] = {"12/31/26", "2/29/28"};
    const char* const dayFirst[] = {"31/12/26", "29/2/28"};
    for (const bool day : {false, true}) {
        if (day)
            useDayFirst();
        auto form = openShown();
        for (int i = 0; i < 2; ++i) {
            moveTo(*form, kBakingSoda, 5);
            pick(*form, dates[i]);
            EXPECT_EQ(cell(*form, kBakingSoda, 5), day ? dayFirst[i] : monthFirst[i]);
            EXPECT_EQ(reopen(*form, kBakingSoda), dates[i]) << (day ? "day first" : "month first");
        }
        act(*form, "mSave")->trigger();
        EXPECT_EQ(ReadTableFile(StorageKind::Basic).cell(55, kDateColumn), day ? "29/2/28" : "2/29/28");
        form->close();
    }
}

TEST_F(Form24DateTest, EscapeClosesTheCalendarFirstAndWritesNothing)
{
    auto form = openShown();
    moveTo(*form, kBakingSoda, 5);
    ASSERT_TRUE(form->calendar()->isOpen());
    form->pressEscape();
    EXPECT_FALSE(form->calendar()->isOpen());
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(cell(*form, kBakingSoda, 5), "");
}

TEST_F(Form24DateTest, ADateCanBeTypedIntoTheInputBox)
{
    auto form = openShown();
    moveTo(*form, kBakingSoda, 5);
    form->inputBox()->setFocus();
    QTest::keyClicks(form->inputBox(), "5/17/26");
    QTest::keyClick(form->inputBox(), Qt::Key_Return);
    EXPECT_EQ(cell(*form, kBakingSoda, 5), "5/17/26");
    EXPECT_FALSE(form->calendar()->isOpen());
}
