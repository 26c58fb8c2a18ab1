// From program start to the main window shown, offscreen: installing the
// delivered files into a folder (a first run, and a later run that finds them
// all), building Startfrm and showing it.
#include "common/programfolder.h"
#include "shell/kit/qtdialogs.h"
#include "shell/logic/deliveredfiles.h"
#include "shell/logic/processvalues.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/startfrm.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include "bench_main.h"

#include <benchmark/benchmark.h>

namespace {

void ShowMainWindow(const QString& folder)
{
    SetProgramFolder(folder);
    InstallDeliveredFiles(ProgramFolder());
    QtDialogs dialogs;
    SystemScreenMetrics screen;
    Startfrm startfrm(dialogs, screen);
    startfrm.show();
    benchmark::DoNotOptimize(QTest::qWaitForWindowExposed(&startfrm));
}

void BM_FirstRunToMainWindow(benchmark::State& state)
{
    Process().SplashShown = true;
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir folder;
        state.ResumeTiming();
        ShowMainWindow(folder.path());
    }
}
BENCHMARK(BM_FirstRunToMainWindow)->Unit(benchmark::kMillisecond);

void BM_LaterRunToMainWindow(benchmark::State& state)
{
    Process().SplashShown = true;
    QTemporaryDir folder;
    InstallDeliveredFiles(folder.path());
    for (auto _ : state)
        ShowMainWindow(folder.path());
}
BENCHMARK(BM_LaterRunToMainWindow)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return RunBenchmarks<QApplication>(argc, argv);
}
