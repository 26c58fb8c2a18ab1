// Damaged planner files through every reader: random bytes and every cut of
// a good file, for the year files, the meal lists, SWR2.fil and GColor4.Fil,
// read as days, views, printouts, lists, options and fonts, and a screen
// opened over them. Nothing may crash, and what is read stays in bounds.
#include "planner/logic/calendaroptions.h"
#include "test_bytes.h"
#include "planner/logic/menuitemlist.h"
#include "planner/logic/menuprint.h"
#include "planner/logic/menuview.h"
#include "planner/screens/daylinespanel.h"
#include "planner/screens/zcalandar.h"
#include "print/logic/pagebuilder.h"

#include "common/clock.h"
#include "fixed_measurer.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <QLineEdit>
#include <gtest/gtest.h>
#include <random>

namespace {

// Every reader of the planner over the files as they lie in the folder, the
// view and the printout over `days` days from 1 March.
void ReadEverything(int days = 32)
{
    for (const QDate date : {QDate(2026, 3, 15), QDate(2026, 4, 3), QDate(2026, 3, 5), QDate(2026, 12, 31)}) {
        const MenuDayRecord record = ReadDay(date);
        for (const QString& line : record.shownLines())
            EXPECT_LE(line.size(), 32);
    }
    const MenuView view = BuildMenuView(QDate(2026, 3, 1), days - 1, QStringLiteral("USA"));
    EXPECT_EQ(view.rows.size(), days);
    for (const MenuViewRow& row : view.rows)
        EXPECT_LE(row.largestCount, kLinesPerMeal);
    const FixedMeasurer measurer;
    PageBuilder page(measurer);
    MenuPrintRequest request;
    request.start = QDate(2026, 3, 1);
    request.following = days - 1;
    request.font = ReadMenuPrintFont(TextFont{});
    EXPECT_GE(request.font.size, 4);
    EXPECT_LE(request.font.size, 30);
    request.today = QDate(2026, 3, 1);
    ComposeMenuPages(page, request);
    EXPECT_GE(page.document().pageCount(), 1);
    for (const Meal meal : {Meal::Breakfast, Meal::Lunch, Meal::Dinner})
        EXPECT_LE(MenuItemList::Load(meal).count(), kMenuListCapacity);
    const CalendarOptions options = ReadCalendarOptions();
    EXPECT_GE(options.monthCount(), 1);
    EXPECT_LE(options.monthCount(), 3);
    EXPECT_GE(options.firstWeekday, 1);
    EXPECT_LE(options.firstWeekday, 7);
}

const QString kFiles[] = {QStringLiteral(" 2026.Mnu"), QStringLiteral("Menu1.Fil"), QStringLiteral("SWR2.fil"),
                          QStringLiteral("GColor4.Fil")};

} // namespace

TEST(PlannerFilesFuzz, RandomBytesNeverCrash)
{
    std::mt19937 random(20260403);
    std::uniform_int_distribution<int> size(0, 320000);
    for (int round = 0; round < 12; ++round) {
        TempProgramFolder folder;
        for (const QString& name : kFiles)
            folder.writeBytes(name, RandomBytes(random, name.endsWith(QLatin1String(".Mnu")) ? size(random) : size(random) % 5000));
        ReadEverything();
    }
}

TEST(PlannerFilesFuzz, EveryCutOfAStoredFileReads)
{
    for (const QString& name : {QStringLiteral("Menu1.Fil"), QStringLiteral("SWR2.fil"), QStringLiteral("GColor4.Fil")}) {
        const QByteArray good = TestDataBytes(name);
        TempProgramFolder folder;
        for (int length = 0; length <= good.size(); ++length) {
            folder.writeBytes(name, good.left(length));
            ReadEverything(2);
        }
    }
}

TEST(PlannerFilesFuzz, EveryCutOfASavedDayReads)
{
    const QByteArray good = TestDataBytes(QStringLiteral(" 2026.Mnu"));
    const int slotStart = 152 * 700;
    TempProgramFolder folder;
    for (int length = slotStart; length <= slotStart + 700; length += 7) {
        folder.writeBytes(QStringLiteral(" 2026.Mnu"), good.left(length));
        const MenuDayRecord record = ReadDay(QDate(2026, 3, 15));
        EXPECT_EQ(record.isFull(), length >= slotStart + 682) << length;
        const MenuView view = BuildMenuView(QDate(2026, 3, 15), 0, QStringLiteral("USA"));
        EXPECT_EQ(view.found(), record.isFull());
    }
}

TEST(PlannerFilesFuzz, ListFilesWithoutClosingQuotesOrLineEndsRead)
{
    TempProgramFolder folder;
    for (const QByteArray& bytes : {QByteArray("\"never closed"), QByteArray("\"a\"\"b\"\"c\""), QByteArray("\r\n\r\n\r\n"),
                                    QByteArray(3000, '"'), QByteArray("no quotes, commas, here\n")}) {
        folder.writeBytes(QStringLiteral("Menu2.Fil"), bytes);
        const MenuItemList list = MenuItemList::Load(Meal::Lunch);
        EXPECT_LE(list.count(), kMenuListCapacity);
    }
}

TEST(PlannerFilesFuzz, AScreenOpensOverDamagedFiles)
{
    std::mt19937 random(1050);
    const FixedClock clock(QDateTime(QDate(2026, 3, 15), QTime(8, 0)));
    for (int round = 0; round < 3; ++round) {
        TempProgramFolder folder;
        for (const QString& name : kFiles)
            folder.writeBytes(name, RandomBytes(random, name.endsWith(QLatin1String(".Mnu")) ? 120000 : 900));
        ScriptedDialogs dialogs;
        Zcalandar screen(dialogs, clock);
        screen.setAttribute(Qt::WA_DeleteOnClose, false);
        for (int index = 0; index < kMenuLines; ++index)
            EXPECT_LE(screen.linesPanel()->line(index)->text().size(), 32);
        EXPECT_TRUE(dialogs.messages().isEmpty());
    }
}
