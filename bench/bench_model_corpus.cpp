// The option model opened on many PPDs (bench/run passes 200 of Debian's),
// each against libcups' floor on the same PPD: per PPD the median of a few
// interleaved rounds, then the median ratio over all PPDs, and the sample
// printer's ratio. Times are CPU time, which a machine busy with
// other work disturbs less than wall time.
#include "ModelOpenCases.h"
#include "PDEBundle.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {
// The process's CPU time (to the microsecond; glibc reads the kernel's
// precise clock): the program runs one thread.
double cpuSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v.size() % 2 ? v[v.size() / 2] : (v[v.size() / 2 - 1] + v[v.size() / 2]) / 2;
}

struct Result
{
    double floorMs = 0;
    double modelMs = 0;
    double ratio() const { return modelMs / floorMs; }
};

// Floor and model alternate, so load that comes and goes hits both.
bool measure(const std::shared_ptr<PDEBundle>& bundle, const QString& path, int rounds, Result* result)
{
    const QByteArray file = QFile::encodeName(path);
    std::vector<double> floor, model;
    for (int i = 0; i < rounds; ++i) {
        double t = cpuSeconds();
        if (!ModelOpenCases::libcupsFloor(file.constData())) {
            std::fprintf(stderr, "bench_model_corpus: %s: libcups cannot read this PPD, left out\n", file.constData());
            return false;
        }
        floor.push_back((cpuSeconds() - t) * 1000);
        t = cpuSeconds();
        QString error;
        if (ModelOpenCases::modelOpen(bundle, path, &error) < 0) {
            std::fprintf(stderr, "bench_model_corpus: %s: %s, left out\n", file.constData(), qPrintable(error));
            return false;
        }
        model.push_back((cpuSeconds() - t) * 1000);
    }
    *result = {median(floor), median(model)};
    return true;
}
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3) {
        std::fprintf(stderr, "usage: bench_model_corpus SAMPLE_PPD LIST\n"
                             "  LIST: a file naming one PPD a line\n");
        return 2;
    }
    QFile list(args[2]);
    if (!list.open(QIODevice::ReadOnly | QIODevice::Text)) {
        std::fprintf(stderr, "bench_model_corpus: %s: %s\n", qPrintable(args[2]), qPrintable(list.errorString()));
        return 2;
    }
    QStringList paths;
    for (const QByteArray& line : list.readAll().split('\n'))
        if (!line.trimmed().isEmpty())
            paths << QFile::decodeName(line.trimmed());
    const std::shared_ptr<PDEBundle> bundle = PDEBundle::embedded();

    Result sample;
    if (!measure(bundle, args[1], 51, &sample))
        return 2;
    std::vector<double> ratios;
    std::vector<std::pair<double, QString>> worst;
    double floorSum = 0, modelSum = 0;
    for (const QString& path : paths) {
        Result r;
        if (!measure(bundle, path, 5, &r))
            continue;
        ratios.push_back(r.ratio());
        worst.emplace_back(r.ratio(), QFileInfo(path).fileName());
        floorSum += r.floorMs;
        modelSum += r.modelMs;
    }
    if (ratios.empty()) {
        std::fprintf(stderr, "bench_model_corpus: no PPD of the list could be opened\n");
        return 2;
    }
    std::sort(worst.begin(), worst.end());
    std::sort(ratios.begin(), ratios.end());
    std::printf("sample printer %s: floor %.3f ms, model %.3f ms, ratio %.2fx\n", qPrintable(QFileInfo(args[1]).fileName()),
                sample.floorMs, sample.modelMs, sample.ratio());
    std::printf("%zu of %lld PPDs: median ratio %.2fx (quartiles %.2fx to %.2fx), highest %.2fx (%s)\n", ratios.size(),
                static_cast<long long>(paths.size()), median(ratios), ratios[ratios.size() / 4], ratios[ratios.size() * 3 / 4],
                worst.back().first, qPrintable(worst.back().second));
    std::printf("summed medians: floor %.1f ms, model %.1f ms\n", floorSum, modelSum);
    return ratios.size() == size_t(paths.size()) ? 0 : 1;
}
