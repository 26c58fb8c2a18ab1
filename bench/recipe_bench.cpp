// The recipe screen's heavy moments at household scale and beyond: choosing
// a type whose name file holds 2,000 recipes (read the file, sort the list),
// and saving a new recipe into a cookbook of 30,000 records, where the scan
// for a free slot reads the whole recipe file before the name file of 2,000
// entries is rewritten.
#include "cookbook/logic/cookbookfiles.h"
#include "recipetools/logic/amountformat.h"
#include "recipetools/logic/recipelifecycle.h"

#include "layout_bytes.h"
#include "recipe_samples.h"
#include "scratch_folder.h"

#include <QCoreApplication>
#include <QFile>
#include "bench_main.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kCookbook = 1;
constexpr RecipeType kType = RecipeType::Desserts;
constexpr int kRecords = 30000;
constexpr int kEntries = 2000;
// The one free slot of the recipe file, near its end.
constexpr int kHole = 29990;

// Names in no particular order, so that sorting has work to do.
QByteArray ScrambledName(int i)
{
    static const char* const kWords[] = {"apple", "Berry", "caramel", "Date", "lemon", "Maple", "nut", "Oat",
                                         "peach", "Plum", "rhubarb", "Spice", "toffee", "Vanilla", "walnut"};
    const unsigned mixed = unsigned(i) * 2654435761u;
    return QByteArray(kWords[mixed % 15]) + ' ' + kWords[(mixed >> 8) % 15] + ' ' + QByteArray::number(i)
        + " bars";
}

class RecipeData {
public:
    static RecipeData& instance()
    {
        static RecipeData data;
        return data;
    }

    const QStringList& sortedEntries() const { return sortedEntries_; }
    const RecipeFields& fields() const { return full_.fields; }

    // Puts back the hole and the name file of 2,000 entries that a save changed.
    void restore()
    {
        ClearRecipe(kCookbook, kHole);
        folder_.writeBytes(NameFileName(kCookbook, kType), nameBytes_);
    }

    // Every slot used: the scan runs through all 30,000 and the save lands on 30001.
    void fillHole() { WriteRecipe(kCookbook, kHole, BuildRecipeRecord(full_.fields), {}); }

private:
    RecipeData() : full_(samples::FullRecipe())
    {
        QByteArray all = full_.savedBytes().repeated(kRecords);
        all.replace(qsizetype(kHole - 1) * RecipeRecord::kSize, RecipeRecord::kSize, samples::ClearedSlot());
        folder_.writeBytes(RecipeFileName(kCookbook), all);

        QList<QByteArray> entries;
        for (int i = 1; i <= kEntries; ++i) {
            entries.append(layout::Entry(ScrambledName(i), i * 7));
            sortedEntries_.append(QString::fromLatin1(entries.last()));
        }
        nameBytes_ = layout::NameFile(entries);
        SortEntries(sortedEntries_);
        restore();
    }

    ScratchFolder folder_;
    samples::Sample full_;
    QByteArray nameBytes_;
    QStringList sortedEntries_;
};

void BM_ChooseType(benchmark::State& state)
{
    RecipeData::instance().restore();
    for (auto _ : state) {
        QStringList list = ReadNameList(kCookbook, kType);
        SortEntries(list);
        if (list.size() != kEntries)
            state.SkipWithError("expected 2,000 entries");
        benchmark::DoNotOptimize(list);
    }
}
BENCHMARK(BM_ChooseType)->Unit(benchmark::kMillisecond);

void BM_SortEntriesOnly(benchmark::State& state)
{
    RecipeData::instance().restore();
    const QStringList unsorted = ReadNameList(kCookbook, kType);
    for (auto _ : state) {
        QStringList list = unsorted;
        SortEntries(list);
        benchmark::DoNotOptimize(list);
    }
}
BENCHMARK(BM_SortEntriesOnly)->Unit(benchmark::kMillisecond);

// A hole near the end: the scan reads 29,990 records before it stops.
void BM_SaveNewRecipeIntoHoleNearTheEnd(benchmark::State& state)
{
    RecipeData& data = RecipeData::instance();
    data.restore();
    for (auto _ : state) {
        const SavedNewRecipe saved =
            SaveNewRecipe(kCookbook, kType, QStringLiteral("Lemon Bars"), data.fields(), {}, data.sortedEntries());
        if (saved.recordNumber != kHole)
            state.SkipWithError("expected the hole");
        state.PauseTiming();
        data.restore();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SaveNewRecipeIntoHoleNearTheEnd)->Unit(benchmark::kMillisecond);

// All 30,000 slots used: the save goes to slot 30001, as it does every time.
void BM_SaveNewRecipeIntoFullCookbook(benchmark::State& state)
{
    RecipeData& data = RecipeData::instance();
    data.restore();
    data.fillHole();
    for (auto _ : state) {
        const SavedNewRecipe saved =
            SaveNewRecipe(kCookbook, kType, QStringLiteral("Lemon Bars"), data.fields(), {}, data.sortedEntries());
        if (saved.recordNumber != kLastScannedSlot + 1)
            state.SkipWithError("expected slot 30001");
        state.PauseTiming();
        QFile nameFile(NameFileName(kCookbook, kType));
        nameFile.resize(qint64(kEntries) * RecipeNameRecord::kSize);
        state.ResumeTiming();
    }
    data.restore();
}
BENCHMARK(BM_SaveNewRecipeIntoFullCookbook)->Unit(benchmark::kMillisecond);

void BM_FormatAmountTwentyRows(benchmark::State& state)
{
    const QStringList amounts = {".125", "1.5", ".33", "2", "3.05", ".67", "1.75", "999.4", ".04", "12",
                                 "1.34", ".25", "2.9", "", "4.5", ".5", "1", "1.125", ".85", "7.7"};
    for (auto _ : state) {
        for (const QString& amount : amounts)
            benchmark::DoNotOptimize(FormatAmount(amount));
    }
}
BENCHMARK(BM_FormatAmountTwentyRows)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks<QCoreApplication>(argc, argv);
}
