// The menu planner over a decade of daily use: ten year files with every
// day saved and every line filled, and the three meal lists at their 1000
// items. Reading and selecting a day, saving one, the longest view (32 days
// over New Year), composing 32 full days with real font measures, adding
// to a full list, and opening the screen with three months, offscreen.
#include "bench_main.h"

#include "common/clock.h"
#include "planner/logic/menuitemlist.h"
#include "planner/logic/menuprint.h"
#include "planner/logic/menuview.h"
#include "planner/screens/calendarstrip.h"
#include "planner/screens/zcalandar.h"
#include "print/logic/pagebuilder.h"
#include "print/screens/fontmeasurer.h"
#include "shell/kit/qtdialogs.h"
#include "shell/settings/settingsregistry.h"

#include "scratch_folder.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QTest>

namespace {

constexpr int kFirstYear = 2017;
constexpr int kLastYear = 2026;

MenuLines FullLines(QDate date)
{
    MenuLines lines;
    for (int i = 0; i < kMenuLines; ++i)
        lines[size_t(i)] = QStringLiteral("Dish %1 of %2").arg(i + 1).arg(date.toString(Qt::ISODate));
    return lines;
}

QStringList Dishes(int count, const QString& meal)
{
    QStringList dishes;
    for (int i = 0; i < count; ++i)
        dishes.append(QStringLiteral("%1 dish %2").arg(meal).arg(i, 4, 10, QLatin1Char('0')));
    return dishes;
}

// The decade of plans and the full lists, made once for every benchmark.
const ScratchFolder& Decade()
{
    static ScratchFolder* folder = [] {
        auto* made = new ScratchFolder;
        for (QDate date(kFirstYear, 1, 1); date.year() <= kLastYear; date = date.addDays(1))
            SaveDay(MenuPlaceOf(date), FullLines(date));
        MenuItemList(Dishes(1000, QStringLiteral("Breakfast"))).save(Meal::Breakfast);
        MenuItemList(Dishes(1000, QStringLiteral("Lunch"))).save(Meal::Lunch);
        MenuItemList(Dishes(1000, QStringLiteral("Dinner"))).save(Meal::Dinner);
        return made;
    }();
    return *folder;
}

void BM_ReadDay(benchmark::State& state)
{
    Decade();
    int day = 0;
    for (auto _ : state) {
        const MenuDayRecord record = ReadDay(QDate(2026, 1, 1).addDays(day++ % 365));
        if (!record.isFull())
            state.SkipWithError("a day of the decade reads as never saved");
        benchmark::DoNotOptimize(record.shownLines());
    }
}
BENCHMARK(BM_ReadDay)->Unit(benchmark::kMicrosecond);

void BM_SaveDay(benchmark::State& state)
{
    Decade();
    const MenuLines lines = FullLines(QDate(2026, 6, 15));
    for (auto _ : state) {
        if (!SaveDay(MenuPlaceOf(QDate(2026, 6, 15)), lines))
            state.SkipWithError("the day could not be written");
    }
}
BENCHMARK(BM_SaveDay)->Unit(benchmark::kMicrosecond);

void BM_ViewThirtyTwoDaysOverNewYear(benchmark::State& state)
{
    Decade();
    for (auto _ : state) {
        const MenuView view = BuildMenuView(QDate(2025, 12, 16), kLongestRun, QStringLiteral("USA"));
        if (view.rows.size() != kLongestRun + 1 || !view.found())
            state.SkipWithError("expected 32 saved days");
        benchmark::DoNotOptimize(view.rows.size());
    }
}
BENCHMARK(BM_ViewThirtyTwoDaysOverNewYear)->Unit(benchmark::kMillisecond);

void BM_ComposeThirtyTwoFullDays(benchmark::State& state)
{
    Decade();
    const FontMeasurer measurer;
    MenuPrintRequest request;
    request.start = QDate(2025, 12, 16);
    request.following = kLongestRun;
    request.font.size = 12;
    request.familyName = QStringLiteral("Miller");
    request.today = QDate(2025, 12, 16);
    for (auto _ : state) {
        PageBuilder page(measurer);
        ComposeMenuPages(page, request);
        if (page.document().pageCount() < 2)
            state.SkipWithError("32 full days should take several pages");
    }
}
BENCHMARK(BM_ComposeThirtyTwoFullDays)->Unit(benchmark::kMillisecond);

// A line offered to a list of 999 items, compared with each and put in its
// place, without writing the file.
void BM_OfferToAFullList(benchmark::State& state)
{
    const MenuItemList almostFull(Dishes(999, QStringLiteral("Supper")));
    for (auto _ : state) {
        MenuItemList list = almostFull;
        benchmark::DoNotOptimize(OfferLine(list, QStringLiteral("Supper dish 0500 with gravy")));
    }
}
BENCHMARK(BM_OfferToAFullList)->Unit(benchmark::kMillisecond);

// The same, and the 1000 items written as the screen writes them: the new
// file completed beside the old and put in its place.
void BM_AddToAFullList(benchmark::State& state)
{
    Decade();
    const MenuItemList almostFull(Dishes(999, QStringLiteral("Supper")));
    for (auto _ : state) {
        MenuItemList list = almostFull;
        if (OfferLine(list, QStringLiteral("Supper dish 0500 with gravy")) != LineOffer::Added || !list.save(Meal::Dinner))
            state.SkipWithError("the item was not added and written");
    }
}
BENCHMARK(BM_AddToAFullList)->Unit(benchmark::kMillisecond);

void BM_SelectADayOnTheScreen(benchmark::State& state)
{
    Decade();
    QtDialogs dialogs;
    const FixedClock clock(QDateTime(QDate(2026, 4, 3), QTime(9, 0)));
    Zcalandar screen(dialogs, clock);
    screen.setAttribute(Qt::WA_DeleteOnClose, false);
    QCalendarWidget* april = screen.calendar()->calendar(0);
    int day = 1;
    for (auto _ : state) {
        day = day % 30 + 1;
        april->setSelectedDate(QDate(2026, 4, day));
        if (screen.loadedPlace() != MenuPlaceOf(QDate(2026, 4, day)))
            state.SkipWithError("the chosen day was not loaded");
    }
}
BENCHMARK(BM_SelectADayOnTheScreen)->Unit(benchmark::kMicrosecond);

void BM_OpenWithThreeMonths(benchmark::State& state)
{
    Decade();
    WriteSlotInteger(Settings::MonthsToDisplay, 2);
    QtDialogs dialogs;
    const FixedClock clock(QDateTime(QDate(2026, 4, 3), QTime(9, 0)));
    for (auto _ : state) {
        Zcalandar screen(dialogs, clock);
        screen.setAttribute(Qt::WA_DeleteOnClose, false);
        screen.show();
        if (!QTest::qWaitForWindowExposed(&screen) || screen.calendar()->monthCount() != 3)
            state.SkipWithError("the screen did not open with three months");
    }
    WriteSlotInteger(Settings::MonthsToDisplay, 0);
}
BENCHMARK(BM_OpenWithThreeMonths)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return RunBenchmarks<QApplication>(argc, argv);
}
