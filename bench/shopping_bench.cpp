// The shopping list at its limits: a list of 999 entries and a catalogue of
// 9000 names. The list's rebuild is timed with the screen's grid filled, as
// the user waits for it on switching the display; opening and saving, the
// catalogue check, a type-ahead key and composing the checklist are timed in
// the logic the screen calls.
#include "common/programfolder.h"
#include "common/quotedlinefile.h"
#include "print/logic/pagebuilder.h"
#include "print/screens/fontmeasurer.h"
#include "shell/kit/qtdialogs.h"
#include "shopping/logic/groceryentry.h"
#include "shopping/logic/itemcatalogue.h"
#include "shopping/logic/listfiles.h"
#include "shopping/logic/shoppingprint.h"
#include "shopping/screens/listchooser.h"
#include "shopping/screens/shoplist.h"

#include "scratch_folder.h"

#include <QAction>
#include <QApplication>
#include <QRadioButton>
#include "bench_main.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kEntries = 999;
const QString kListFile = QStringLiteral("15Nov26.Lst");

// Names that sort differently from the order they were entered in.
QString ItemName(int i)
{
    return QStringLiteral("Grocery %1 item").arg((i * 7919) % 100000, 5, 10, QLatin1Char('0'));
}

QStringList FullListEntries()
{
    QStringList entries;
    for (int i = 0; i < kEntries; ++i)
        entries.append(i % 2 ? MakeGroceryEntry(ItemName(i), u"2 Packages") : ItemName(i));
    return entries;
}

QStringList CatalogueNames()
{
    QStringList names;
    for (int i = 0; i < kCatalogueCapacity; ++i)
        names.append(ItemName(i));
    return names;
}

// A program folder holding a saved list of 999 entries and a full catalogue.
class ShoppingData {
public:
    static ShoppingData& instance()
    {
        static ShoppingData data;
        return data;
    }

private:
    ShoppingData()
    {
        ShoppingList list;
        list.load(FullListEntries());
        WriteListFile(ResolveFileName(kListFile), list.fileValues());
        WriteQuotedLineFile(ResolveFileName(QString::fromLatin1(kCatalogueFileName)), CatalogueNames());
    }

    ScratchFolder folder_;
};

class ChooseTheList final : public ListChooser {
public:
    QString chooseList(ListChoice) override { return kListFile; }
};

void BM_RebuildAlphabeticallyGridFilled(benchmark::State& state)
{
    ShoppingData::instance();
    QtDialogs dialogs;
    ChooseTheList chooser;
    Shoplist form(dialogs);
    form.setListChooser(chooser);
    form.show();
    form.findChild<QAction*>(QStringLiteral("mOpenList"))->trigger();
    if (form.list().entryList().size() != kEntries)
        state.SkipWithError("the list did not open");
    auto* asEntered = form.findChild<QRadioButton*>(QStringLiteral("Option1_0"));
    auto* alphabetically = form.findChild<QRadioButton*>(QStringLiteral("Option1_1"));
    for (auto _ : state) {
        state.PauseTiming();
        asEntered->click();
        state.ResumeTiming();
        alphabetically->click();
    }
    if (form.list().sortMode() != SortMode::Alphabetically)
        state.SkipWithError("the view did not switch");
    form.setAttribute(Qt::WA_DeleteOnClose, false);
}
BENCHMARK(BM_RebuildAlphabeticallyGridFilled)->Unit(benchmark::kMillisecond);

void BM_Open999Rows(benchmark::State& state)
{
    ShoppingData::instance();
    for (auto _ : state) {
        const ReadList read = ReadListFile(ResolveFileName(kListFile));
        ShoppingList list;
        list.load(read.entries);
        if (list.entryList().size() != kEntries)
            state.SkipWithError("the list did not read back");
    }
}
BENCHMARK(BM_Open999Rows)->Unit(benchmark::kMillisecond);

void BM_Save999Rows(benchmark::State& state)
{
    ShoppingData::instance();
    ShoppingList list;
    list.load(FullListEntries());
    const QString fileName = ResolveFileName(QStringLiteral("16Nov26.Lst"));
    for (auto _ : state) {
        if (!WriteListFile(fileName, list.fileValues()))
            state.SkipWithError("the list was not written");
    }
}
BENCHMARK(BM_Save999Rows)->Unit(benchmark::kMillisecond);

// The screen opening with a full catalogue, set against the same screen with
// an empty one: the difference is loading the 9000 names into Combo1.
void OpenTheScreen(benchmark::State& state, bool fullCatalogue)
{
    ShoppingData::instance();
    const QString catalogueFile = ResolveFileName(QString::fromLatin1(kCatalogueFileName));
    if (!fullCatalogue)
        QFile::rename(catalogueFile, catalogueFile + QStringLiteral(".away"));
    QtDialogs dialogs;
    for (auto _ : state) {
        Shoplist form(dialogs);
        form.setAttribute(Qt::WA_DeleteOnClose, false);
        if (form.catalogue().count() != (fullCatalogue ? kCatalogueCapacity : 0))
            state.SkipWithError("the catalogue is not as planned");
    }
    if (!fullCatalogue)
        QFile::rename(catalogueFile + QStringLiteral(".away"), catalogueFile);
}

void BM_OpenScreenWith9000Names(benchmark::State& state)
{
    OpenTheScreen(state, true);
}
BENCHMARK(BM_OpenScreenWith9000Names)->Unit(benchmark::kMillisecond);

void BM_OpenScreenWithoutNames(benchmark::State& state)
{
    OpenTheScreen(state, false);
}
BENCHMARK(BM_OpenScreenWithoutNames)->Unit(benchmark::kMillisecond);

// A name that is not there walks the whole catalogue.
void BM_CatalogueCheckOf9000Names(benchmark::State& state)
{
    ShoppingData::instance();
    ItemCatalogue catalogue;
    catalogue.load();
    for (auto _ : state) {
        if (catalogue.contains(u"Not in the catalogue"))
            state.SkipWithError("found a name that is not there");
    }
}
BENCHMARK(BM_CatalogueCheckOf9000Names)->Unit(benchmark::kMicrosecond);

// A typed text that nothing begins with walks every drop-down entry.
void BM_TypeAheadKeyOver9000Names(benchmark::State& state)
{
    ShoppingData::instance();
    ItemCatalogue catalogue;
    catalogue.load();
    const QStringList entries = catalogue.dropDownEntries();
    for (auto _ : state) {
        if (!TypeAheadMatch(entries, u"ZUCCHINI").isEmpty())
            state.SkipWithError("matched a name that is not there");
    }
}
BENCHMARK(BM_TypeAheadKeyOver9000Names)->Unit(benchmark::kMicrosecond);

void BM_ComposeChecklistOf999Items(benchmark::State& state)
{
    const FontMeasurer measurer;
    ShoppingList list;
    list.load(FullListEntries());
    ShoppingPrintout printout;
    printout.dateBox = QStringLiteral("11/15/26");
    printout.rows = list.rows();
    printout.entryCount = int(list.entryList().size());
    for (auto _ : state) {
        PageBuilder page(measurer);
        ComposeShoppingList(page, printout, TextFont{});
        benchmark::DoNotOptimize(page.document().pages.size());
    }
}
BENCHMARK(BM_ComposeChecklistOf999Items)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return RunBenchmarks<QApplication>(argc, argv);
}
