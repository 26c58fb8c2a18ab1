// Backup and restore at the largest cookbook the free-slot scan reaches:
// 30,000 records (61 MB of recipes, 7.5 MB of picture paths) and name files
// listing all of them. A backup to a folder and the restore from it are set
// against copying the two record files whole, the floor they can reach; the
// spanning run fills 1.44 MB limited media one after the other.
#include "backup/logic/backuprun.h"
#include "backup/logic/spanlayouts.h"
#include "backup_files.h"
#include "cookbook/logic/cookbooknames.h"
#include "scratch_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include "bench_main.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kCookbook = 1;
constexpr qint64 kRecords = 30000;
constexpr qint64 kFloppy = 1457664;

// Answers every question with Yes or OK and mounts the media in turn.
class AnsweringDialogs final : public Dialogs {
public:
    QStringList nextMedia;

    Answer ask(const Message& message) override
    {
        return message.buttons == Buttons::YesNoCancel ? Answer::Yes : Answer::Ok;
    }
    QString input(const InputRequest&) override { return {}; }
    void openUrl(const QUrl&) override {}
    std::optional<qint32> chooseColor(qint32) override { return std::nullopt; }
    std::optional<TextFont> chooseFont(const TextFont&) override { return std::nullopt; }
    std::optional<QString> chooseFolder(const FolderRequest&) override
    {
        if (nextMedia.isEmpty())
            return std::nullopt;
        return nextMedia.takeFirst();
    }
    std::optional<PageSetup> pageSetup(const PageSetup&) override { return std::nullopt; }
    Printed print(const PrintJob&) override { return {}; }
};

class QuietProgress final : public BackupProgress {
public:
    void setStatus(const QString&) override {}
    void showBar(qint64) override {}
    void setBar(qint64) override {}
    void hideBar() override {}
};

struct Cookbook {
    static Cookbook& instance()
    {
        static Cookbook data;
        return data;
    }
    ScratchFolder program;

private:
    Cookbook() { layout::WriteBackupCookbook(program.path(), kCookbook, kRecords, kRecords); }
};

RunEnd Run(int mode, const QString& folder, AnsweringDialogs& dialogs, MediumFactory media = PlainMedia())
{
    QuietProgress progress;
    BackupContext context{dialogs, progress, folder, std::move(media)};
    const BackupSet set = *BackupSetFor(mode, {kCookbook, 0});
    return set.restore ? RunRestore(set, context) : RunBackup(set, context);
}

void BM_CopyBothFilesWhole(benchmark::State& state)
{
    Cookbook::instance();
    for (auto _ : state) {
        QTemporaryDir target;
        QFile::copy(RecipeFileName(kCookbook), QDir(target.path()).filePath("Recipe2.bk1"));
        QFile::copy(ExtraFileName(kCookbook), QDir(target.path()).filePath("Recipe4.bk1"));
    }
}
BENCHMARK(BM_CopyBothFilesWhole)->Unit(benchmark::kMillisecond);

void BM_BackupToAFolder(benchmark::State& state)
{
    Cookbook::instance();
    for (auto _ : state) {
        QTemporaryDir target;
        AnsweringDialogs dialogs;
        if (Run(0, target.path(), dialogs) != RunEnd::Completed)
            state.SkipWithError("backup did not complete");
    }
}
BENCHMARK(BM_BackupToAFolder)->Unit(benchmark::kMillisecond);

void BM_RestoreFromAFolder(benchmark::State& state)
{
    Cookbook::instance();
    QTemporaryDir backup;
    AnsweringDialogs first;
    Run(0, backup.path(), first);
    for (auto _ : state) {
        AnsweringDialogs dialogs;
        if (Run(1, backup.path(), dialogs) != RunEnd::Completed)
            state.SkipWithError("restore did not complete");
    }
}
BENCHMARK(BM_RestoreFromAFolder)->Unit(benchmark::kMillisecond);

void BM_BackupOntoFloppies(benchmark::State& state)
{
    Cookbook::instance();
    for (auto _ : state) {
        QTemporaryDir media;
        AnsweringDialogs dialogs;
        for (int disk = 2; disk <= 60; ++disk) {
            QDir(media.path()).mkdir(QString::number(disk));
            dialogs.nextMedia << QDir(media.path()).filePath(QString::number(disk));
        }
        QDir(media.path()).mkdir("1");
        const RunEnd end = Run(0, QDir(media.path()).filePath("1"), dialogs, [](const QString& folder) {
            return std::make_unique<LimitedMedium>(folder, kFloppy);
        });
        if (end != RunEnd::Completed)
            state.SkipWithError("spanning backup did not complete");
        state.counters["disks"] = double(60 - dialogs.nextMedia.size());
    }
}
BENCHMARK(BM_BackupOntoFloppies)->Unit(benchmark::kMillisecond);

void BM_HighestRecordScan(benchmark::State& state)
{
    Cookbook::instance();
    for (auto _ : state)
        benchmark::DoNotOptimize(HighestListedRecord(kCookbook));
}
BENCHMARK(BM_HighestRecordScan)->Unit(benchmark::kMillisecond);

void BM_WeightTrackerSetOf500(benchmark::State& state)
{
    ScratchFolder program;
    QStringList names;
    for (int i = 1; i <= 500; ++i)
        names << QStringLiteral("Person %1").arg(i);
    layout::WriteWeightTracker(program.path(), names, 4000);
    for (auto _ : state) {
        QTemporaryDir target;
        AnsweringDialogs dialogs;
        if (Run(42, target.path(), dialogs) != RunEnd::Completed)
            state.SkipWithError("weight tracker backup did not complete");
    }
}
BENCHMARK(BM_WeightTrackerSetOf500)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks<QCoreApplication>(argc, argv);
}
