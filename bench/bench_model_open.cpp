// Opening the option model on a PPD, against the floor libcups itself needs
// to open and mark the same PPD.
#include "ModelOpenCases.h"
#include "PDEBundle.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {
std::vector<std::string> ppdPaths()
{
    // Paths separated by ':' in PRINT_PANELS_BENCH_PPDS.
    std::vector<std::string> paths;
    const char* env = std::getenv("PRINT_PANELS_BENCH_PPDS");
    std::string all = env ? env : "";
    size_t start = 0;
    while (start < all.size()) {
        const size_t end = all.find(':', start);
        paths.push_back(all.substr(start, end == std::string::npos ? std::string::npos : end - start));
        if (end == std::string::npos)
            break;
        start = end + 1;
    }
    return paths;
}

void libcupsFloor(benchmark::State& state, const std::string& path)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(ModelOpenCases::libcupsFloor(path.c_str()));
}

void modelOpen(benchmark::State& state, const std::string& path)
{
    std::shared_ptr<PDEBundle> bundle = PDEBundle::embedded();
    const QString file = QString::fromStdString(path);
    int features = 0;
    for (auto _ : state) {
        QString error;
        features = ModelOpenCases::modelOpen(bundle, file, &error);
        if (features < 0) {
            state.SkipWithError(error.toStdString().c_str());
            return;
        }
        benchmark::DoNotOptimize(features);
    }
    state.counters["features"] = features;
}
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    for (const std::string& path : ppdPaths()) {
        const std::string name = path.substr(path.find_last_of('/') + 1);
        benchmark::RegisterBenchmark(("libcups_floor/" + name).c_str(), libcupsFloor, path)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("model_open/" + name).c_str(), modelOpen, path)->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
