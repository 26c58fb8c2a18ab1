// Cookbook files at their largest: a recipe file of 30,000 used slots (61 MB)
// and a name file of 30,000 entries. The free-slot scan is set against a
// plain sequential read of the same file, which is the floor it can reach.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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
        QDir::setCurrent(dir_.path());

        RecipeRecord record = RecipeRecord::Cleared();
        record.directions.setText(QString(900, u'x'));
        for (int row = 0; row < RecipeRecord::kRows; ++row) {
            record.amounts[row].setText(u"1.5");
            record.amountTypes[row].setText(u"cups");
            record.ingredients[row].setText(u"flour, sifted");
        }
        record.markUsed();
        const QByteArray bytes = record.toBytes();
        QByteArray all;
        all.reserve(qsizetype(bytes.size()) * kRecipes);
        for (int i = 0; i < kRecipes; ++i)
            all.append(bytes);
        QFile recipes(RecipeFileName(kCookbook));
        if (recipes.open(QIODevice::WriteOnly | QIODevice::Truncate))
            recipes.write(all);

        QByteArray names;
        for (int i = 1; i <= kRecipes; ++i) {
            const QString entry = MakeNameEntry(QStringLiteral("Recipe number %1").arg(i), RecordNumber(i));
            entries_.append(entry);
            RecipeNameRecord slot;
            slot.setNameEntry(entry);
            names.append(slot.toBytes());
        }
        QFile nameFile(NameFileName(kCookbook, kType));
        if (nameFile.open(QIODevice::WriteOnly | QIODevice::Truncate))
            nameFile.write(names);
    }

    QTemporaryDir dir_;
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

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks<QCoreApplication>(argc, argv);
}
