// The menu planner screen offscreen: opening on today in both date orders,
// its commands and toolbar, choosing days, saving, clearing, leaving, and
// the questions on the way.
#include "zcalandar_fixture.h"

#include "command_doors.h"
#include "raw_slots.h"
#include "shell/screens/screenmetrics.h"
#include "shell/kit/helpwindow.h"
#include "shell/screens/startfrm.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QDir>
#include <QSignalSpy>
#include <QToolBar>
#include <QToolButton>

namespace {

const Message kNextActionQuestion{QStringLiteral("Menu Planner"),
                                  QStringLiteral("Save changes/entries before next action?"), Buttons::YesNo,
                                  Icon::None, 1};

class LargeScreen final : public ScreenMetrics {
public:
    QSize sizeTwips() const override { return {28800, 16200}; }
};

} // namespace

TEST_F(ZcalandarTest, OpensOnTodayFromTheClock)
{
    auto screen = open();
    EXPECT_EQ(screen->objectName(), QStringLiteral("Zcalandar"));
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Menu Planner"));
    EXPECT_EQ(status(*screen), QStringLiteral("Menu Planner"));
    EXPECT_EQ(screen->currentDate(), kToday);
    EXPECT_EQ(screen->loadedPlace(), (MenuPlace{2026, 34}));
    EXPECT_EQ(datePanel(*screen), QStringLiteral("Friday, April 3, 2026"));
    EXPECT_EQ(screen->findChild<QLabel*>("ClockPanel")->text(), QStringLiteral("9:05 AM"));
    EXPECT_FALSE(screen->dirty());
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(ZcalandarTest, OpensOnTodayWithDayFirstDatesNotOnTheFourthOfMarch)
{
    const PinnedDates dayFirst(kBritain);
    auto screen = open();
    EXPECT_EQ(screen->currentDate(), kToday);
    EXPECT_EQ(screen->loadedPlace(), (MenuPlace{2026, 34}));
    EXPECT_NE(screen->loadedPlace(), (MenuPlace{2026, 43}));
    EXPECT_EQ(datePanel(*screen), QStringLiteral("Friday, 3 April 2026"));
}

TEST_F(ZcalandarTest, TodaysSavedDayFillsItsLines)
{
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    auto screen = open();
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Pancakes"));
    EXPECT_EQ(line(*screen, 1)->text(), QStringLiteral("Caf\u00e9 au lait"));
    EXPECT_EQ(line(*screen, 2)->text(), QString());
    EXPECT_TRUE(act(*screen, "mClearEntries")->isEnabled());
    EXPECT_TRUE(screen->state().dayFull);
}

TEST_F(ZcalandarTest, ADayNeverSavedOpensBlankWithClearEntriesOff)
{
    auto screen = open();
    for (int index = 0; index < kMenuLines; ++index)
        EXPECT_EQ(line(*screen, index)->text(), QString()) << index;
    EXPECT_FALSE(act(*screen, "mClearEntries")->isEnabled());
    EXPECT_FALSE(button(*screen, 1)->isEnabled());
    for (const char* name : {"mSave", "mEditLists", "mPrintView", "mCopy", "mToolbarPrint", "mExit"})
        EXPECT_TRUE(act(*screen, name)->isEnabled()) << name;
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral(" 2026.Mnu")))) << "the year was looked at";
}

TEST_F(ZcalandarTest, EveryCommandHasItsCaptionsAndDoors)
{
    auto screen = open();
    screen->setBackupOpener([](int, int) {});
    ExpectDoors(*screen, {
        {"mSave", "&Save", "&Save", false},
        {"mClearEntries", "&Clear Entries", "&Clear Entries", true},
        {"mEditLists", "&Edit Lists", "&Edit Lists", true},
        {"mPrintView", "&Print/View", "&Print/View", false},
        {"mExit", "E&xit", "E&xit", true},
        {"mPanelColor", "Panel C&olor", "", true},
        {"mTextColor", "&Text Color", "", true},
        {"mCalendarOptions", "Calendar &Display Options", "", true},
        {"mCopy", "&Copy", "", true},
        {"mToolbarPrint", "", "", true},
        {"mBackup", "&Backup Selected Year File to Disk", "", false},
        {"mRestore", "&Restore Selected Year File from Disk", "", false},
        {"mHelp", "Menu Planner &Help", "", true},
    });
    EXPECT_EQ(screen->findChild<QMenu*>("mOptions")->title(), QStringLiteral("&Options"));
    EXPECT_EQ(screen->findChild<QMenu*>("mEdit")->title(), QStringLiteral("&Edit"));
    EXPECT_EQ(screen->findChild<QMenu*>("mUtilities")->title(), QStringLiteral("&Utilities"));
}

TEST_F(ZcalandarTest, TheToolbarHasItsNineButtonsInOrder)
{
    auto screen = open();
    QStringList shown;
    for (QAction* action : screen->findChild<QToolBar*>("Toolbar1")->actions()) {
        if (!action->isSeparator())
            shown.append(action->objectName());
    }
    EXPECT_EQ(shown, (QStringList{"mPanelColor", "mTextColor", "mEditLists", "mClearEntries", "mCopy",
                                  "mToolbarPrint", "mCalendarOptions", "mHelp", "mExit"}));
    EXPECT_EQ(act(*screen, "mToolbarPrint")->text(), QStringLiteral("Print"));
}

TEST_F(ZcalandarTest, TheOptionsMenuRepeatsTheButtons)
{
    auto screen = open();
    QStringList entries;
    for (QAction* entry : screen->findChild<QMenu*>("mOptions")->actions()) {
        if (!entry->isSeparator())
            entries.append(entry->text());
    }
    EXPECT_EQ(entries, (QStringList{"&Save", "&Clear Entries", "&Edit Lists", "&Print/View", "Panel C&olor",
                                    "&Text Color", "Calendar &Display Options", "E&xit"}));
}

TEST_F(ZcalandarTest, TheStoredCalendarOptionsShowAtOpening)
{
    folder.copyIn(TestDataFile(QStringLiteral("SWR2.fil")));
    auto screen = open();
    CalendarStrip* strip = screen->calendar();
    EXPECT_EQ(strip->monthCount(), 3);
    for (int i = 0; i < 3; ++i) {
        QCalendarWidget* month = strip->calendar(i);
        EXPECT_FALSE(month->isHidden()) << i;
        EXPECT_EQ(month->monthShown(), 4 + i) << "consecutive months";
        EXPECT_EQ(month->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
        EXPECT_EQ(month->firstDayOfWeek(), Qt::Monday);
    }
    EXPECT_FALSE(strip->todayLine()->isHidden());
    EXPECT_EQ(strip->todayLine()->text(), QStringLiteral("Today: 4/3/26"));
}

TEST_F(ZcalandarTest, WithoutStoredOptionsOneMonthWithWeekNumbersStartsOnSunday)
{
    auto screen = open();
    CalendarStrip* strip = screen->calendar();
    EXPECT_EQ(strip->monthCount(), 1);
    EXPECT_TRUE(strip->calendar(1)->isHidden());
    EXPECT_EQ(strip->calendar(0)->verticalHeaderFormat(), QCalendarWidget::ISOWeekNumbers);
    EXPECT_EQ(strip->calendar(0)->firstDayOfWeek(), Qt::Sunday);
    EXPECT_TRUE(strip->todayLine()->isHidden());
}

TEST_F(ZcalandarTest, AClickOnADayOfTheCalendarLoadsIt)
{
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    WriteSlotInteger(SWR2, 10, 2);
    auto screen = openShown();
    // 15 March lies on the calendar of March, paged to from the first.
    screen->calendar()->calendar(0)->showPreviousMonth();
    EXPECT_EQ(screen->calendar()->calendar(2)->monthShown(), 5);
    EXPECT_EQ(screen->currentDate(), kToday) << "April is still in sight";
    pickDay(*screen, QDate(2026, 3, 15));
    EXPECT_EQ(screen->currentDate(), QDate(2026, 3, 15));
    EXPECT_EQ(screen->loadedPlace(), (MenuPlace{2026, 153}));
    EXPECT_EQ(datePanel(*screen), QStringLiteral("Sunday, March 15, 2026"));
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Oatmeal"));
    EXPECT_EQ(line(*screen, 14)->text(), QStringLiteral("Roast chicken with potatoes, gra"));
}

TEST_F(ZcalandarTest, AMouseClickOnADayCellSelectsIt)
{
    auto screen = openShown();
    QCalendarWidget* month = screen->calendar()->calendar(0);
    auto* view = month->findChild<QAbstractItemView*>();
    ASSERT_NE(view, nullptr);
    // Find the cell that shows the 20th of April.
    QModelIndex twentieth;
    for (int row = 1; row < view->model()->rowCount() && !twentieth.isValid(); ++row) {
        for (int column = 1; column < view->model()->columnCount(); ++column) {
            const QModelIndex cell = view->model()->index(row, column);
            if (cell.data().toInt() == 20 && row > 1) {
                twentieth = cell;
                break;
            }
        }
    }
    ASSERT_TRUE(twentieth.isValid());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(twentieth).center());
    EXPECT_EQ(screen->currentDate(), QDate(2026, 4, 20));
    EXPECT_EQ(screen->loadedPlace(), (MenuPlace{2026, 204}));
}

// Edge case: moving to another day with unsaved lines and answering Yes
// writes to the old day, not the new.
TEST_F(ZcalandarTest, MovingAwayWithUnsavedLinesAndAnsweringYesWritesTheOldDay)
{
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Porridge"));
    ASSERT_TRUE(screen->dirty());
    dialogs.expectMessage(kNextActionQuestion.title, kNextActionQuestion.text, Answer::Yes);
    pickDay(*screen, QDate(2026, 4, 10));
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0], kNextActionQuestion);
    EXPECT_EQ(ReadDay(QDate(2026, 4, 3)).line(0), QStringLiteral("Porridge"));
    EXPECT_FALSE(ReadDay(QDate(2026, 4, 10)).isFull());
    EXPECT_EQ(screen->loadedPlace(), (MenuPlace{2026, 104}));
    EXPECT_EQ(line(*screen, 0)->text(), QString());
    EXPECT_FALSE(screen->dirty());
}

TEST_F(ZcalandarTest, MovingAwayAndAnsweringNoDropsTheLines)
{
    auto screen = openShown();
    typeInto(line(*screen, 3), QStringLiteral("Muffins"));
    dialogs.expectMessage(kNextActionQuestion.title, kNextActionQuestion.text, Answer::No);
    pickDay(*screen, QDate(2026, 4, 4));
    EXPECT_FALSE(ReadDay(QDate(2026, 4, 3)).isFull());
    EXPECT_FALSE(screen->dirty());
    EXPECT_EQ(line(*screen, 3)->text(), QString());
    pickDay(*screen, kToday);
    EXPECT_EQ(line(*screen, 3)->text(), QString()) << "nothing was written";
}

// Edge case: Clear followed by moving away and answering No leaves the old
// record in place.
TEST_F(ZcalandarTest, ClearThenMovingAwayAndAnsweringNoLeavesTheRecord)
{
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    const QByteArray before = bytesOf(QStringLiteral(" 2026.Mnu"));
    auto screen = openShown();
    dialogs.expectMessage(QStringLiteral("Clear Entries"), QStringLiteral("Clear all Entries for Friday, April 3, 2026?"),
                          Answer::Yes);
    act(*screen, "mClearEntries")->trigger();
    EXPECT_EQ(line(*screen, 0)->text(), QString());
    EXPECT_TRUE(screen->dirty());
    dialogs.expectMessage(kNextActionQuestion.title, kNextActionQuestion.text, Answer::No);
    pickDay(*screen, QDate(2026, 4, 5));
    EXPECT_EQ(bytesOf(QStringLiteral(" 2026.Mnu")), before);
    pickDay(*screen, kToday);
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Pancakes"));
}

TEST_F(ZcalandarTest, ClearAsksWithTheDateAndItsAnswers)
{
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    auto screen = openShown();
    dialogs.expectMessage(QStringLiteral("Clear Entries"), QStringLiteral("Clear all Entries for Friday, April 3, 2026?"),
                          Answer::Cancel);
    act(*screen, "mClearEntries")->trigger();
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0], (Message{QStringLiteral("Clear Entries"),
                                              QStringLiteral("Clear all Entries for Friday, April 3, 2026?"),
                                              Buttons::YesNoCancel, Icon::None, 1}));
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Pancakes"));
    EXPECT_FALSE(screen->dirty());
    EXPECT_EQ(status(*screen), QStringLiteral("Menu Planner"));
}

TEST_F(ZcalandarTest, ClearOnASavedBlankDaySaysThereIsNothingToClear)
{
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    clock.set(QDateTime(QDate(2026, 12, 31), QTime(20, 0)));
    auto screen = open();
    ASSERT_TRUE(act(*screen, "mClearEntries")->isEnabled()) << "a saved blank day is a saved day";
    dialogs.expectMessage(QStringLiteral("Clear Entries"), QStringLiteral("There are currently No Entries to Clear!"));
    button(*screen, 1)->click();
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].icon, Icon::Information);
    EXPECT_FALSE(screen->dirty());
    EXPECT_EQ(status(*screen), QStringLiteral("Menu Planner"));
}

// Edge case: Save on a day never used writes Mark "Full"; the day afterwards
// enables "&Clear Entries".
TEST_F(ZcalandarTest, SaveOnADayNeverUsedWritesFullAndEnablesClear)
{
    auto screen = openShown();
    typeInto(line(*screen, 7), QStringLiteral("Soup"));
    ASSERT_FALSE(act(*screen, "mClearEntries")->isEnabled());
    button(*screen, 0)->click();
    EXPECT_TRUE(dialogs.messages().isEmpty()) << "no message follows a save";
    const MenuDayRecord record = ReadDay(kToday);
    EXPECT_TRUE(record.isFull());
    EXPECT_EQ(record.line(7), QStringLiteral("Soup"));
    EXPECT_FALSE(screen->dirty());
    EXPECT_TRUE(act(*screen, "mClearEntries")->isEnabled());
    EXPECT_EQ(bytesOf(QStringLiteral(" 2026.Mnu")).size(), 33 * 700 + 682);
}

TEST_F(ZcalandarTest, SavingNoEntriesAsksFirstWithNoAsItsDefault)
{
    auto screen = open();
    const Message question{QStringLiteral("Save"), QStringLiteral("There are currently No Entries to Save!\nSave anyway?"),
                           Buttons::YesNo, Icon::Information, 2};
    dialogs.expectMessage(question.title, question.text, Answer::No);
    act(*screen, "mSave")->trigger();
    EXPECT_EQ(dialogs.messages().last(), question);
    EXPECT_EQ(bytesOf(QStringLiteral(" 2026.Mnu")), QByteArray());
    dialogs.expectMessage(question.title, question.text, Answer::Yes);
    act(*screen, "mSave")->trigger();
    EXPECT_TRUE(ReadDay(kToday).isFull());
    EXPECT_TRUE(act(*screen, "mClearEntries")->isEnabled());
}

TEST_F(ZcalandarTest, PagingTheDayOutOfSightLeavesNoDaySelected)
{
    auto screen = openShown();
    screen->calendar()->calendar(0)->showNextMonth();
    EXPECT_FALSE(screen->currentDate().isValid());
    EXPECT_FALSE(screen->state().daySelected);
    EXPECT_EQ(datePanel(*screen), QString());
    for (const char* name : {"mSave", "mClearEntries", "mPrintView", "mCopy", "mToolbarPrint"})
        EXPECT_FALSE(act(*screen, name)->isEnabled()) << name;
    EXPECT_TRUE(act(*screen, "mEditLists")->isEnabled());
    // A click on a line asks for a day and locks the lines until one is picked.
    dialogs.expectMessage(QStringLiteral("Data Entry"), QStringLiteral("Please select a Day before entering data!"));
    QTest::mouseClick(line(*screen, 4), Qt::LeftButton);
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].icon, Icon::Information);
    for (int index = 0; index < kMenuLines; ++index)
        EXPECT_FALSE(line(*screen, index)->isEnabled()) << index;
    EXPECT_TRUE(button(*screen, 4)->hasFocus()) << "E&xit has the keyboard";
    pickDay(*screen, QDate(2026, 5, 8));
    EXPECT_TRUE(line(*screen, 4)->isEnabled());
    EXPECT_EQ(datePanel(*screen), QStringLiteral("Friday, May 8, 2026"));
}

TEST_F(ZcalandarTest, PagingWithUnsavedLinesAsksFirst)
{
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Bagels"));
    dialogs.expectMessage(kNextActionQuestion.title, kNextActionQuestion.text, Answer::Yes);
    screen->calendar()->calendar(0)->showNextMonth();
    EXPECT_EQ(ReadDay(kToday).line(0), QStringLiteral("Bagels"));
    EXPECT_FALSE(screen->state().daySelected);
}

TEST_F(ZcalandarTest, ThreeCalendarsPageTogetherAndShowOneSelectedDay)
{
    WriteSlotInteger(SWR2, 10, 2);
    auto screen = openShown();
    CalendarStrip* strip = screen->calendar();
    EXPECT_EQ(strip->calendar(0)->monthShown(), 4);
    strip->calendar(1)->showNextMonth();
    EXPECT_EQ(strip->calendar(0)->monthShown(), 5);
    EXPECT_EQ(strip->calendar(1)->monthShown(), 6);
    EXPECT_EQ(strip->calendar(2)->monthShown(), 7);
    EXPECT_FALSE(screen->state().daySelected) << "April is out of sight";
    pickDay(*screen, QDate(2026, 6, 12));
    EXPECT_EQ(screen->currentDate(), QDate(2026, 6, 12));
    EXPECT_EQ(strip->calendar(0)->monthShown(), 5) << "a day in sight pages nothing";
    strip->calendar(2)->setSelectedDate(QDate(2026, 8, 1));
    EXPECT_EQ(screen->currentDate(), QDate(2026, 8, 1));
    EXPECT_EQ(strip->calendar(2)->monthShown(), 8) << "the least paging brings August into sight";
    EXPECT_EQ(strip->calendar(0)->monthShown(), 6);
}

TEST_F(ZcalandarTest, AFailedSaveTellsTheUserAndKeepsTheLines)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral(" 2026.Mnu")));
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    const QByteArray list = bytesOf(QStringLiteral("Menu1.Fil"));
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Kippers"));
    expectWriteFailed(QStringLiteral(" 2026.Mnu"));
    act(*screen, "mSave")->trigger();
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].title, QStringLiteral("File Not Saved"));
    EXPECT_TRUE(screen->dirty());
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Kippers"));
    EXPECT_FALSE(act(*screen, "mClearEntries")->isEnabled());
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")), list) << "no other file is touched";
    // The exit question offers the save again; Cancel stays.
    dialogs.expectMessage(QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before next action or exiting?"),
                          Answer::Yes);
    expectWriteFailed(QStringLiteral(" 2026.Mnu"));
    act(*screen, "mExit")->trigger();
    EXPECT_TRUE(screen->isVisible()) << "a failed save keeps the screen open";
    EXPECT_TRUE(screen->dirty());
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(ZcalandarTest, AFailedSaveOnTheWayToAnotherDayStaysOnTheDay)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral(" 2026.Mnu")));
    auto screen = openShown();
    typeInto(line(*screen, 2), QStringLiteral("Grapefruit"));
    dialogs.expectMessage(kNextActionQuestion.title, kNextActionQuestion.text, Answer::Yes);
    expectWriteFailed(QStringLiteral(" 2026.Mnu"));
    pickDay(*screen, QDate(2026, 4, 9));
    EXPECT_EQ(screen->currentDate(), kToday);
    EXPECT_EQ(screen->loadedPlace(), (MenuPlace{2026, 34}));
    EXPECT_EQ(line(*screen, 2)->text(), QStringLiteral("Grapefruit"));
    EXPECT_TRUE(screen->dirty());
}

TEST_F(ZcalandarTest, ExitWithUnsavedLinesAsksWithCancel)
{
    auto screen = openShown();
    typeInto(line(*screen, 1), QStringLiteral("Crumpets"));
    const Message question{QStringLiteral("Menu Planner"),
                           QStringLiteral("Save changes/entries before next action or exiting?"), Buttons::YesNoCancel,
                           Icon::None, 1};
    dialogs.expectMessage(question.title, question.text, Answer::Cancel);
    button(*screen, 4)->click();
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(dialogs.messages().last(), question);
    dialogs.expectMessage(question.title, question.text, Answer::Yes);
    QSignalSpy closed(screen.get(), &ActivityWindow::closed);
    button(*screen, 4)->click();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(ReadDay(kToday).line(1), QStringLiteral("Crumpets"));
}

TEST_F(ZcalandarTest, ExitAnsweredNoWritesNothing)
{
    auto screen = openShown();
    typeInto(line(*screen, 1), QStringLiteral("Crumpets"));
    dialogs.expectMessage(QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before next action or exiting?"),
                          Answer::No);
    QSignalSpy closed(screen.get(), &ActivityWindow::closed);
    act(*screen, "mExit")->trigger();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(bytesOf(QStringLiteral(" 2026.Mnu")), QByteArray());
}

TEST_F(ZcalandarTest, ClosingTheWindowOtherwiseAsksYesOrNo)
{
    auto screen = openShown();
    typeInto(line(*screen, 5), QStringLiteral("Kedgeree"));
    const Message question{QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before exiting?"),
                           Buttons::YesNo, Icon::None, 1};
    dialogs.expectMessage(question.title, question.text, Answer::Yes);
    screen->close();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(dialogs.messages().last(), question);
    EXPECT_EQ(ReadDay(kToday).line(5), QStringLiteral("Kedgeree"));
}

TEST_F(ZcalandarTest, EscapeWithNothingOpenIsExit)
{
    auto screen = openShown();
    typeInto(line(*screen, 1), QStringLiteral("Toast"));
    dialogs.expectMessage(QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before next action or exiting?"),
                          Answer::Cancel);
    screen->pressEscape();
    EXPECT_TRUE(screen->isVisible());
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(ZcalandarTest, TheClockPanelFollowsTheTime)
{
    auto screen = open();
    clock.set(QDateTime(kToday, QTime(13, 47)));
    QTest::qWait(1200);
    EXPECT_EQ(screen->findChild<QLabel*>("ClockPanel")->text(), QStringLiteral("1:47 PM"));
}

TEST_F(ZcalandarTest, TheMainScreensMenuPlannerButtonOpensThePlanner)
{
    Process().SplashShown = true;
    LargeScreen metrics;
    Startfrm main(dialogs, metrics);
    main.registerActivity(MainCommand::MenuPlanner, [this] { return new Zcalandar(dialogs, clock); });
    QPushButton* plannerButton = nullptr;
    for (QPushButton* each : main.findChildren<QPushButton*>())
        if (each->text() == QStringLiteral("Menu &Planner"))
            plannerButton = each;
    ASSERT_NE(plannerButton, nullptr);
    ASSERT_TRUE(plannerButton->isEnabled());
    plannerButton->click();
    Zcalandar* planner = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Zcalandar*>(window); found && found->isVisible())
            planner = found;
    ASSERT_NE(planner, nullptr);
    EXPECT_EQ(planner->currentDate(), kToday);
    QSignalSpy closed(planner, &ActivityWindow::closed);
    planner->close();
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(ZcalandarTest, HelpOpensThePlannersPage)
{
    auto screen = open();
    act(*screen, "mHelp")->trigger();
    HelpWindow* help = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<HelpWindow*>(window); found && found->isVisible())
            help = found;
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->topic(), 1050);
    EXPECT_TRUE(help->toPlainText().contains(QStringLiteral("Menu Planner"))) << help->toPlainText().toStdString();
    help->close();
}

TEST_F(ZcalandarTest, LongDatesFollowTheDayFirstLocaleInPanelQuestionAndCopy)
{
    const PinnedDates dayFirst(kBritain);
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    auto screen = openShown();
    EXPECT_EQ(datePanel(*screen), QStringLiteral("Friday, 3 April 2026"));
    dialogs.expectMessage(QStringLiteral("Copy Option"), QStringLiteral("Data has been copied to the Windows Clipboard."));
    act(*screen, "mCopy")->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("Menu Planner for  Friday, 3 April 2026:\r\n")));
    dialogs.expectMessage(QStringLiteral("Clear Entries"), QStringLiteral("Clear all Entries for Friday, 3 April 2026?"),
                          Answer::No);
    act(*screen, "mClearEntries")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
}
