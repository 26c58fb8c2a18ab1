#pragma once
// The menu planner under test: opened offscreen with scripted dialogs, a
// fixed clock (Friday 3 April 2026, 9:05 in the morning) and pinned dates,
// in a program folder of its own; and the few moves most tests make on it.
#include "planner/screens/calendarstrip.h"
#include "planner/screens/daylinespanel.h"
#include "planner/screens/zcalandar.h"

#include "common/clock.h"
#include "common/writefailure.h"
#include "shell/kit/screenstatusbar.h"

#include "pinned_dates.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

inline const QDate kToday(2026, 4, 3);

class ZcalandarTest : public ::testing::Test {
protected:
    ZcalandarTest()
    {
        const QString mode = Process().DateFormatMode;
        Process() = ProcessValues{};
        Process().DateFormatMode = mode;
    }

    std::unique_ptr<Zcalandar> open()
    {
        auto screen = std::make_unique<Zcalandar>(dialogs, clock);
        screen->setAttribute(Qt::WA_DeleteOnClose, false);
        return screen;
    }
    // Opened, shown and active, so that the keyboard goes where it is given.
    std::unique_ptr<Zcalandar> openShown()
    {
        auto screen = open();
        screen->resize(1100, 800);
        screen->show();
        screen->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
        return screen;
    }

    static QAction* act(Zcalandar& screen, const char* name) { return screen.findChild<QAction*>(name); }
    static QPushButton* button(Zcalandar& screen, int index)
    {
        return screen.findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
    }
    static QLineEdit* line(Zcalandar& screen, int index) { return screen.linesPanel()->line(index); }
    static QString datePanel(Zcalandar& screen) { return screen.findChild<QLabel*>("DatePanel")->text(); }
    static QString status(Zcalandar& screen) { return screen.findChild<ScreenStatusBar*>()->activity(); }

    // The day as the user clicks it on a calendar: the calendar holding its
    // month, or the first one, selects it and reports the click.
    static void pickDay(Zcalandar& screen, QDate date)
    {
        CalendarStrip* strip = screen.calendar();
        int holder = 0;
        for (int i = 0; i < strip->monthCount(); ++i) {
            if (strip->calendar(i)->monthShown() == date.month() && strip->calendar(i)->yearShown() == date.year())
                holder = i;
        }
        strip->calendar(holder)->setSelectedDate(date);
        emit strip->calendar(holder)->clicked(date);
    }

    // A click into the line, then the text typed.
    static void typeInto(QLineEdit* box, const QString& text)
    {
        QTest::mouseClick(box, Qt::LeftButton);
        QTest::keyClicks(box, text);
    }

    // The file's bytes from the folder.
    QByteArray bytesOf(const QString& name) const { return folder.bytesOf(name); }

    void expectWriteFailed(const QString& name)
    {
        const Message failed = WriteFailedMessage(folder.filePath(name));
        dialogs.expectMessage(failed.title, failed.text);
    }

    PinnedDates dates{kUsa};
    FixedClock clock{QDateTime(kToday, QTime(9, 5))};
    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

inline MenuLines LinesWith(std::initializer_list<std::pair<int, QString>> filled)
{
    MenuLines lines;
    for (const auto& [index, text] : filled)
        lines[size_t(index)] = text;
    return lines;
}
