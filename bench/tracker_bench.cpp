// The weight tracker at the size of a long habit: 5,000 weigh-ins, one a
// day for thirteen years and more. Timed: loading the file with the worked
// out columns and the trend, saving it, the graph with its JPEG, composing
// the printout of the whole table with real font measures, and the screen
// loading the individual (offscreen).
#include "bench_main.h"

#include "print/logic/pagebuilder.h"
#include "print/screens/fontmeasurer.h"
#include "shell/kit/qtdialogs.h"
#include "shell/kit/screengrid.h"
#include "shell/logic/processvalues.h"
#include "tracker/logic/trackermodel.h"
#include "tracker/logic/trackerprint.h"
#include "tracker/screens/weightgraphpanel.h"
#include "tracker/screens/weighttracker.h"

#include "scratch_folder.h"
#include "tracker_samples.h"

#include <QApplication>
#include <QComboBox>

namespace {

constexpr int kWeighIns = 5000;
const QString kName = QStringLiteral("Pat Doe");

// A program folder holding Pat Doe's file of 5,000 weigh-ins and the list.
class TrackerData {
public:
    static TrackerData& instance()
    {
        static TrackerData data;
        return data;
    }
    const TrackerModel& loaded() const { return model_; }

private:
    TrackerData()
    {
        TrackerFile file;
        file.fields.beginningDate = QStringLiteral("January 01, 2020");
        file.fields.beginningWeight = QStringLiteral("200");
        file.fields.goalWeight = QStringLiteral("170");
        for (const WeighInRow& row : samples::DailyWeighIns(kWeighIns))
            file.rows.append({row.date, row.weight});
        WriteTrackerFile(IndividualFileName(kName), file, WithRows::Yes);
        WriteIndividualList({kName});
        model_.load(kName);
    }

    ScratchFolder folder_;
    TrackerModel model_;
};

void BM_LoadWithColumnsAndTrend(benchmark::State& state)
{
    TrackerData::instance();
    for (auto _ : state) {
        TrackerModel model;
        model.load(kName);
        benchmark::DoNotOptimize(model.trend());
    }
}
BENCHMARK(BM_LoadWithColumnsAndTrend)->Unit(benchmark::kMillisecond);

void BM_Save(benchmark::State& state)
{
    TrackerModel model = TrackerData::instance().loaded();
    for (auto _ : state) {
        if (!model.save())
            state.SkipWithError("the save failed");
    }
}
BENCHMARK(BM_Save)->Unit(benchmark::kMillisecond);

void BM_GraphAndJpeg(benchmark::State& state)
{
    const TrackerModel& model = TrackerData::instance().loaded();
    WeightGraphPanel panel(nullptr);
    for (auto _ : state) {
        panel.plot(model.graph());
        if (!panel.exportJpeg(QStringLiteral("Chartxxx.jpg")))
            state.SkipWithError("the picture was not written");
    }
}
BENCHMARK(BM_GraphAndJpeg)->Unit(benchmark::kMillisecond);

void BM_ComposeWholePrintout(benchmark::State& state)
{
    const TrackerModel& model = TrackerData::instance().loaded();
    const FontMeasurer measurer;
    TrackerPrintout printout;
    printout.name = kName;
    printout.today = QDate(2033, 9, 9);
    printout.fields = model.fields();
    printout.rows = model.rows();
    printout.chartFile = QStringLiteral("Chartxxx.jpg");
    printout.checks.graph = true;
    printout.checks.dividers = true;
    for (auto _ : state) {
        PageBuilder page(measurer);
        ComposeTrackerPrintout(page, printout);
        state.counters["pages"] = page.document().pageCount();
    }
}
BENCHMARK(BM_ComposeWholePrintout)->Unit(benchmark::kMillisecond);

// From the pick in the list to the screen showing the individual: the file
// read, the columns and the trend worked out, the grid filled, the graph
// made ready.
void BM_ScreenLoadsTheIndividual(benchmark::State& state)
{
    TrackerData::instance();
    Process().DateFormatMode = QStringLiteral("USA");
    QtDialogs dialogs;
    WeightTracker form(dialogs);
    form.setAttribute(Qt::WA_DeleteOnClose, false);
    for (auto _ : state) {
        form.nameList()->setCurrentIndex(0);
        emit form.nameList()->activated(0);
        benchmark::DoNotOptimize(form.grid()->rowCount());
    }
}
BENCHMARK(BM_ScreenLoadsTheIndividual)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks<QApplication>(argc, argv);
}
