// The dialog under load, against a private cupsd: a server with 500 queues
// (the printer chooser filled), a user with 100 presets of one queue (the
// list filled, one loaded, one saved, the dialog opened on one).
#include "CupsDestList.h"
#include "PanelSession.h"
#include "PresetStore.h"
#include "PrinterPresetBar.h"
#include "PrivateCupsServer.h"
#include "TestSupport.h"

#include <QApplication>
#include <QComboBox>
#include <benchmark/benchmark.h>
#include <cups/cups.h>

#include <cstdio>

namespace {
constexpr int kQueues = 500;
constexpr int kPresets = 100;
PrivateCupsServer* server = nullptr;
const PrintDialogHost::OptionList presetOptions{{"ColorModel", "Gray"}, {"Duplex", "DuplexNoTumble"}, {"copies", "2"},
                                                {"MediaType", "Thick"}, {"PageSize", "A4"}};

QString presetName(int i)
{
    return QStringLiteral("preset-%1").arg(i, 3, 10, QLatin1Char('0'));
}

// Queues without a driver, made with one IPP request each on one connection
// (lpadmin would start a process per queue).
bool addQueues(int count, QString* error)
{
    http_t* http = httpConnect2("127.0.0.1", server->address().section(QLatin1Char(':'), 1).toInt(), nullptr, AF_INET,
                                HTTP_ENCRYPTION_NEVER, 1, 30000, nullptr);
    for (int i = 0; http && i < count; ++i) {
        char uri[256];
        httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0, "/printers/bench-%03d", i);
        ipp_t* request = ippNewRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
        ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr, "file:///dev/null");
        ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-info", nullptr, qPrintable(QStringLiteral("Bench printer %1").arg(i)));
        ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-location", nullptr, qPrintable(QStringLiteral("Floor %1").arg(i % 12)));
        ippAddBoolean(request, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 1);
        ippAddInteger(request, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE);
        ippDelete(cupsDoRequest(http, request, "/admin/"));
        if (cupsLastError() > IPP_STATUS_OK_CONFLICTING) {
            *error = QStringLiteral("queue %1: %2").arg(i).arg(QString::fromUtf8(cupsLastErrorString()));
            httpClose(http);
            return false;
        }
    }
    if (!http)
        *error = QStringLiteral("cannot connect to %1").arg(server->address());
    httpClose(http);
    return http != nullptr;
}

std::unique_ptr<PanelSession> openSession(const QString& printer)
{
    QString error;
    auto session = PanelSession::open({{}, printer, server->address(), {}, {}}, &error);
    if (!session)
        std::fprintf(stderr, "cannot open %s: %s\n", qPrintable(printer), qPrintable(error));
    return session;
}

// The bar above the dialog made and filled as the window does: the server's
// destinations asked for once, every queue in the chooser, the presets of
// the queue open.
void chooserFill(benchmark::State& state)
{
    auto session = openSession(QStringLiteral("q"));
    if (!session)
        return state.SkipWithError("no session");
    int printers = 0, presets = 0;
    for (auto _ : state) {
        PrinterPresetBar bar;
        bar.showSession(session.get(), session->options(), std::make_shared<const CupsDestList>(server->address()));
        printers = bar.findChild<QComboBox*>(QStringLiteral("printerCombo"))->count();
        presets = bar.findChild<QComboBox*>(QStringLiteral("presetCombo"))->count();
    }
    state.counters["chooser_entries"] = printers;
    state.counters["presets"] = presets - 1;
}

void queueList(benchmark::State& state)
{
    // libcups' own list: the floor the chooser's fill is measured against.
    int count = 0;
    for (auto _ : state) {
        cups_dest_t* dests = nullptr;
        count = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests);
        cupsFreeDests(count, dests);
    }
    state.counters["destinations"] = double(count);
}

void presetNames(benchmark::State& state)
{
    const PresetStore store(QStringLiteral("q"));
    qsizetype count = 0;
    for (auto _ : state)
        count = store.names().size();
    state.counters["presets"] = double(count);
}

void presetLoad(benchmark::State& state)
{
    const PresetStore store(QStringLiteral("q"));
    PrintDialogHost::OptionList options;
    for (auto _ : state)
        if (!store.load(presetName(kPresets / 2), &options))
            return state.SkipWithError("load failed");
}

void presetSave(benchmark::State& state)
{
    PresetStore store(QStringLiteral("q"));
    QString error;
    for (auto _ : state)
        if (!store.save(presetName(kPresets / 2), presetOptions, &error))
            return state.SkipWithError(qPrintable(error));
}

// Choosing a preset: the dialog's session opened on it.
void presetOpen(benchmark::State& state)
{
    for (auto _ : state)
        if (!openSession(QStringLiteral("q/") + presetName(kPresets / 2)))
            return state.SkipWithError("open failed");
}
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    QString error;
    PrivateCupsServer cups;
    server = &cups;
    if (!PrivateCupsServer::canRun(&error) || !cups.start(&error) || !cups.addQueue("q", TestSupport::samplePPD(), &error)
        || !addQueues(kQueues - 1, &error)) {
        std::fprintf(stderr, "bench_load: %s\n", qPrintable(error));
        return 1;
    }
    PresetStore store(QStringLiteral("q"));
    for (int i = 0; i < kPresets; ++i)
        if (!store.save(presetName(i), presetOptions, &error)) {
            std::fprintf(stderr, "bench_load: %s\n", qPrintable(error));
            return 1;
        }
    benchmark::RegisterBenchmark("chooser_fill/500_queues_100_presets", chooserFill)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("queue_list/500_queues", queueList)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("presets/list_100", presetNames)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("presets/load_1_of_100", presetLoad)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("presets/save_1_of_100", presetSave)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("presets/open_dialog_on_1_of_100", presetOpen)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    cups.stop();
    return 0;
}
