// Food storage at its largest: tables never grow past 60 rows, so every
// action is timed on a table with every cell filled: loading and saving a
// table, working out every need with the group totals and the percent list,
// composing the complete form of all eight columns with real font measures,
// exporting the grid, and opening the screen with its charts (offscreen).
#include "bench_main.h"

#include "print/logic/pagebuilder.h"
#include "print/screens/fontmeasurer.h"
#include "shell/kit/qtdialogs.h"
#include "shell/logic/processvalues.h"
#include "storage/logic/storagefiles.h"
#include "storage/logic/storagemodel.h"
#include "storage/logic/storageoutput.h"
#include "storage/logic/storageprint.h"
#include "storage/screens/form24.h"

#include "scratch_folder.h"
#include "storage_samples.h"

#include <QApplication>
#include <QTest>

namespace {

constexpr StorageKind kKind = StorageKind::Basic;

// A program folder holding a full Basic table and a family of four.
class StorageData {
public:
    static StorageData& instance()
    {
        static StorageData data;
        return data;
    }

private:
    StorageData()
    {
        WriteTableFile(kKind, samples::FullStorageTable(kKind));
        WriteFamilyFile(QStringLiteral("4"));
    }

    ScratchFolder folder_;
};

void BM_LoadTable(benchmark::State& state)
{
    StorageData::instance();
    for (auto _ : state) {
        StorageModel model(kKind);
        model.load();
        benchmark::DoNotOptimize(model.table().cell(60, kOnHandColumn));
    }
}
BENCHMARK(BM_LoadTable)->Unit(benchmark::kMillisecond);

void BM_SaveTable(benchmark::State& state)
{
    StorageData::instance();
    StorageModel model(kKind);
    model.load();
    for (auto _ : state) {
        if (!model.save().saved())
            state.SkipWithError("the save failed");
    }
}
BENCHMARK(BM_SaveTable)->Unit(benchmark::kMillisecond);

// What a change of the family size sets off, and the rollup's list.
void BM_RecalculateWithTotalsAndPercentList(benchmark::State& state)
{
    const StorageTable full = samples::FullStorageTable(kKind);
    for (auto _ : state) {
        StorageTable table = full;
        RecalculateAll(table, kKind, u"5");
        for (const int groupRow : {1, 13, 22, 35, 40})
            RunGroupTotal(table, kKind, groupRow);
        const QList<PercentLine> lines = PercentOfNeed(table);
        benchmark::DoNotOptimize(lines.size());
    }
}
BENCHMARK(BM_RecalculateWithTotalsAndPercentList)->Unit(benchmark::kMicrosecond);

void BM_ComposeCompleteFormAllColumns(benchmark::State& state)
{
    const FontMeasurer measurer;
    const StorageTable table = samples::FullStorageTable(kKind);
    StoragePrintSettings settings;
    settings.choice = StoragePrintChoice::AllColumns;
    for (auto _ : state) {
        PageBuilder page(measurer);
        ComposeStoragePages(page, QStringLiteral("Basic Food Storage"), table, settings, QDate(2026, 4, 3));
        benchmark::DoNotOptimize(page.document().pageCount());
    }
}
BENCHMARK(BM_ComposeCompleteFormAllColumns)->Unit(benchmark::kMillisecond);

void BM_ExportGrid(benchmark::State& state)
{
    StorageData::instance();
    const StorageTable table = samples::FullStorageTable(kKind);
    QList<QStringList> grid;
    for (int row = 1; row <= kStorageRows; ++row)
        grid.append(table.rowTexts(row));
    for (auto _ : state) {
        if (!WriteExportFile(QStringLiteral("BasicStorage.xls"), ExportRows(GridHeadings("USA"), grid)))
            state.SkipWithError("the export failed");
    }
}
BENCHMARK(BM_ExportGrid)->Unit(benchmark::kMillisecond);

// From the command to the screen shown: the table read, the grid filled,
// the pie, the percent panel and their charts built.
void BM_OpenForm24(benchmark::State& state)
{
    StorageData::instance();
    Process().DateFormatMode = QStringLiteral("USA");
    QtDialogs dialogs;
    for (auto _ : state) {
        Form24 form(dialogs, kKind);
        form.setAttribute(Qt::WA_DeleteOnClose, false);
        form.show();
        benchmark::DoNotOptimize(QTest::qWaitForWindowExposed(&form));
        state.PauseTiming();
        form.close();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_OpenForm24)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks<QApplication>(argc, argv);
}
