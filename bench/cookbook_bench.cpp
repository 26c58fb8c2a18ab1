// Cookbook files at their largest: a recipe file of 30,000 used slots (61 MB)
// and a name file of 30,000 entries. The free-slot scan is set against a
// plain sequential read of the same file, which is the floor it can reach.
// The search for an older recipe file runs on that current file, as on every
// opening of the recipe screen; the conversion of an older file of a
// household's 1,000 recipes and of 30,000 runs with the progress panel of
// the recipe screen (shown, painting at every slot) and instant waits.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/olddatabase.h"
#include "recipetools/screens/conversionpanel.h"
#include "shell/logic/waits.h"

#include "layout_bytes.h"
#include "recipe_samples.h"
#include "scratch_folder.h"

#include <QApplication>
#include <QFile>
#include "bench_main.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kCookbook = 1;
constexpr RecipeType kType = RecipeType::Desserts;
constexpr int kRecipes = 30000;

class CookbookData {
public:
    static CookbookData& instance()
    {
        static CookbookData data;
        return data;
    }

    const QStringList& entries() const { return entries_; }

private:
    CookbookData()
    {
        folder_.writeBytes(RecipeFileName(kCookbook), samples::FullRecipe().savedBytes().repeated(kRecipes));

        QList<QByteArray> names;
        for (int i = 1; i <= kRecipes; ++i) {
            names.append(layout::Entry("Recipe number " + QByteArray::number(i), i));
            entries_.append(QString::fromLatin1(names.last()));
        }
        folder_.writeBytes(NameFileName(kCookbook, kType), layout::NameFile(names));
    }

    ScratchFolder folder_;
    QStringList entries_;
};

void BM_FindFreeSlot(benchmark::State& state)
{
    CookbookData::instance();
    for (auto _ : state) {
        const RecordNumber slot = FindFreeSlot(kCookbook);
        if (slot != kLastScannedSlot + 1)
            state.SkipWithError("expected slot 30001");
        benchmark::DoNotOptimize(slot);
    }
    state.SetBytesProcessed(state.iterations() * qint64(kRecipes) * RecipeRecord::kSize);
}
BENCHMARK(BM_FindFreeSlot)->Unit(benchmark::kMillisecond);

void BM_PlainSequentialRead(benchmark::State& state)
{
    CookbookData::instance();
    QByteArray chunk(1 << 20, '\0');
    for (auto _ : state) {
        QFile file(RecipeFileName(kCookbook));
        if (!file.open(QIODevice::ReadOnly))
            state.SkipWithError("recipe file missing");
        qint64 total = 0;
        for (qint64 got; (got = file.read(chunk.data(), chunk.size())) > 0;)
            total += got + chunk[0];
        benchmark::DoNotOptimize(total);
    }
    state.SetBytesProcessed(state.iterations() * qint64(kRecipes) * RecipeRecord::kSize);
}
BENCHMARK(BM_PlainSequentialRead)->Unit(benchmark::kMillisecond);

void BM_ReadNameList(benchmark::State& state)
{
    CookbookData::instance();
    for (auto _ : state) {
        const QStringList list = ReadNameList(kCookbook, kType);
        if (list.size() != kRecipes)
            state.SkipWithError("expected 30,000 entries");
        benchmark::DoNotOptimize(list);
    }
}
BENCHMARK(BM_ReadNameList)->Unit(benchmark::kMillisecond);

void BM_RebuildNameFile(benchmark::State& state)
{
    const QStringList& entries = CookbookData::instance().entries();
    for (auto _ : state) {
        // No new entry: each pass lengthens the file by one blank slot only.
        benchmark::DoNotOptimize(RebuildNameFile(kCookbook, kType, entries));
    }
}
BENCHMARK(BM_RebuildNameFile)->Unit(benchmark::kMillisecond);

void BM_CheckOldDatabaseOnACurrentFile(benchmark::State& state)
{
    CookbookData::instance();
    for (auto _ : state) {
        const int pending = CheckOldDatabase(kCookbook);
        if (pending != 0)
            state.SkipWithError("a current file taken for an older one");
        benchmark::DoNotOptimize(pending);
    }
}
BENCHMARK(BM_CheckOldDatabaseOnACurrentFile)->Unit(benchmark::kMillisecond);

// The older file is written anew before each pass, outside the timing.
void BM_ConvertOldDatabase(benchmark::State& state)
{
    const QByteArray old = layout::OldRecipeSlot(layout::OldSampleRecipe(7)).repeated(state.range(0));
    const ScratchFolder folder;
    ConversionPanel panel(nullptr);
    panel.show();
    WaitSeam::set([](int) {});
    for (auto _ : state) {
        state.PauseTiming();
        if (!folder.writeBytes(RecipeFileName(kCookbook), old))
            state.SkipWithError("older file not written");
        state.ResumeTiming();
        if (!ConvertOldRecipeFile(panel.steps()).held())
            state.SkipWithError("conversion failed");
    }
    WaitSeam::clear();
}
BENCHMARK(BM_ConvertOldDatabase)->Arg(1000)->Arg(30000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks<QApplication>(argc, argv);
}
