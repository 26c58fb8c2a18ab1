#pragma once
// The main of every benchmark program: an application object first (file
// routines let pending events run, screens need a QApplication), then
// Google Benchmark.
#include <benchmark/benchmark.h>

template <class Application>
int RunBenchmarks(int argc, char** argv)
{
    Application app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
