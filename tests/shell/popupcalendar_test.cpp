// The pop-up month calendar on a screen, offscreen: where it opens, on which
// month, what a click, Enter and Escape do to the target box.
#include "shell/kit/popupcalendar.h"

#include "common/clock.h"
#include "common/dates.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

namespace {

const QDate kSep30(2006, 9, 30);

QString WeighInForm(QDate date)
{
    return FormatDate(date, u"mmmm dd, yyyy");
}

class PopupCalendarTest : public ::testing::Test {
protected:
    PopupCalendarTest()
    {
        screen.resize(800, 600);
        box->setGeometry(40, 30, 160, 24);
        item->setGeometry(40, 400, 160, 24);
        popup->setTarget(box, WeighInForm);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&screen));
    }

    // The day cell of the shown month: a number from 13 to 20 stands once
    // in a month's six weeks, the ends of the months around it do not reach it.
    QPoint dayCell(int day) const
    {
        EXPECT_GE(day, 13);
        EXPECT_LE(day, 20);
        QAbstractItemModel* model = view()->model();
        for (int row = 0; row < model->rowCount(); ++row)
            for (int column = 0; column < model->columnCount(); ++column) {
                const QModelIndex index = model->index(row, column);
                if (model->data(index, Qt::DisplayRole).toString() == QString::number(day))
                    return view()->visualRect(index).center();
            }
        ADD_FAILURE() << "no cell for day " << day;
        return {};
    }
    QTableView* view() const { return popup->calendar()->findChild<QTableView*>(); }

    QWidget screen;
    QLineEdit* box = new QLineEdit(&screen);
    QLineEdit* item = new QLineEdit(&screen);
    PopupCalendar* popup = new PopupCalendar(QStringLiteral("MonthView1"), &screen);
};

} // namespace

TEST_F(PopupCalendarTest, StartsHiddenAsAChildOfTheScreen)
{
    EXPECT_EQ(popup->objectName(), "MonthView1");
    EXPECT_FALSE(popup->isOpen());
    EXPECT_FALSE(popup->isWindow());
    EXPECT_EQ(popup->parentWidget(), &screen);
    EXPECT_EQ(popup->frameShadow(), QFrame::Raised);
}

TEST_F(PopupCalendarTest, OpensOnTheMonthOfTheDateWithTheDateSelected)
{
    popup->openUnder(box, kSep30);
    EXPECT_TRUE(popup->isOpen());
    EXPECT_TRUE(popup->isVisible());
    EXPECT_EQ(popup->calendar()->yearShown(), 2006);
    EXPECT_EQ(popup->calendar()->monthShown(), 9);
    EXPECT_EQ(popup->calendar()->selectedDate(), kSep30);
    EXPECT_TRUE(popup->calendar()->isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(box->text(), "") << "opening writes nothing";
}

TEST_F(PopupCalendarTest, WithoutADateItOpensOnTodayOfTheClock)
{
    FixedClock clock(QDateTime(QDate(2026, 2, 14), QTime(9, 0)));
    popup->setClock(clock);
    popup->openAt(QPoint(10, 10));
    EXPECT_EQ(popup->calendar()->selectedDate(), QDate(2026, 2, 14));
    EXPECT_EQ(popup->calendar()->monthShown(), 2);
}

TEST_F(PopupCalendarTest, UnderABoxOverABoxOrAtAPoint)
{
    popup->openUnder(box, kSep30);
    EXPECT_EQ(popup->pos(), QPoint(40, 54));
    popup->openOver(box, kSep30);
    EXPECT_EQ(popup->pos(), QPoint(40, 30));
    popup->openAt(QPoint(300, 20), kSep30);
    EXPECT_EQ(popup->pos(), QPoint(300, 20));
}

TEST_F(PopupCalendarTest, StaysInsideTheScreen)
{
    popup->openUnder(item, kSep30);
    EXPECT_LE(popup->geometry().bottom(), screen.height() - 1);
    EXPECT_EQ(popup->x(), 40);
    popup->openAt(QPoint(790, 590), kSep30);
    EXPECT_EQ(popup->geometry().bottomRight(), QPoint(screen.width() - 1, screen.height() - 1));
}

TEST_F(PopupCalendarTest, AScreenMadeSmallerTakesTheOpenCalendarAlong)
{
    popup->openAt(QPoint(790, 590), kSep30);
    screen.resize(500, 400);
    EXPECT_TRUE(screen.rect().contains(popup->geometry()));
    EXPECT_EQ(popup->geometry().bottomRight(), QPoint(499, 399));
}

TEST_F(PopupCalendarTest, AClickWritesTheDateInTheGivenFormAndHides)
{
    QSignalSpy picked(popup, &PopupCalendar::datePicked);
    popup->openUnder(box, kSep30);
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, dayCell(14));
    EXPECT_EQ(box->text(), "September 14, 2006");
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked.at(0).at(0).toDate(), QDate(2006, 9, 14));
    EXPECT_FALSE(popup->isOpen());
}

TEST_F(PopupCalendarTest, TheShoppingListsShortDateFormWorksTheSame)
{
    popup->setTarget(box, ShortDate);
    popup->openUnder(box, QDate(2007, 1, 3));
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, dayCell(19));
    EXPECT_EQ(box->text(), ShortDate(QDate(2007, 1, 19)));
    EXPECT_EQ(box->text(), "1/19/07");
}

TEST_F(PopupCalendarTest, EnterPicksTheSelectedDate)
{
    QSignalSpy picked(popup, &PopupCalendar::datePicked);
    popup->openUnder(box, kSep30);
    QTest::keyClick(view(), Qt::Key_Left);
    QTest::keyClick(view(), Qt::Key_Return);
    EXPECT_EQ(box->text(), "September 29, 2006");
    ASSERT_EQ(picked.count(), 1);
    EXPECT_FALSE(popup->isOpen());
}

TEST_F(PopupCalendarTest, EscapeHidesWithoutWriting)
{
    box->setText("keep me");
    QSignalSpy picked(popup, &PopupCalendar::datePicked);
    popup->openUnder(box, kSep30);
    QTest::keyClick(view(), Qt::Key_Left);
    QTest::keyClick(view(), Qt::Key_Escape);
    EXPECT_FALSE(popup->isOpen());
    EXPECT_EQ(box->text(), "keep me");
    EXPECT_EQ(picked.count(), 0);
}

TEST_F(PopupCalendarTest, CloseHidesWithoutWriting)
{
    popup->openUnder(box, kSep30);
    popup->close();
    EXPECT_FALSE(popup->isOpen());
    EXPECT_EQ(box->text(), "");
}

TEST_F(PopupCalendarTest, WithoutATargetTheDateIsOnlyReported)
{
    popup->setTarget(nullptr, {});
    QSignalSpy picked(popup, &PopupCalendar::datePicked);
    popup->openOver(box, kSep30);
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, dayCell(15));
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked.at(0).at(0).toDate(), QDate(2006, 9, 15));
    EXPECT_EQ(box->text(), "");
}

TEST_F(PopupCalendarTest, TheScreenCanMoveTheFocusWhenADateIsPicked)
{
    QObject::connect(popup, &PopupCalendar::datePicked, item, [this] { item->setFocus(); });
    popup->openUnder(box, kSep30);
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, dayCell(16));
    EXPECT_EQ(QApplication::focusWidget(), item);
}
