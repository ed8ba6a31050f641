#pragma once
// What every fuzz target shares: one off-screen application for the whole
// run, quiet diagnostics, the input as text and a check that stops the run.
#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "PDELogSink.h"
#include "PrintDialogHost.h"
#include "TestSupport.h"

#include <QApplication>
#include <QStringList>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace FuzzSupport {

// Made on the first input: Qt widgets off screen, in English, alerts
// answered with their default button, log lines and Qt warnings dropped
// (they would drown the fuzzer's output); a fatal Qt message still aborts.
inline void start()
{
    static QApplication* app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("LC_ALL", "C.UTF-8");
        static int argc = 1;
        static char name[] = "fuzz";
        static char* argv[] = {name, nullptr};
        auto* a = new QApplication(argc, argv);
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtFatalMsg) {
                fprintf(stderr, "qFatal: %s\n", qPrintable(text));
                abort();
            }
        });
        PDEAlerts::setHandler([](const PDEAlerts::Alert&) { return int(PDEAlerts::DefaultButton); });
        PDELogSink::instance().setCapture([](const QString&) {});
        PDEBundle::embedded()->setLanguage(QStringLiteral("en"));
        // Closed at exit as a program closes it, before the leak check.
        std::atexit([] { delete qApp; });
        return a;
    }();
    (void)app;
}

// A broken property: the message and the input's fault, then abort (a crash
// to the fuzzer, a failure to the replay test).
inline void check(bool ok, const char* what, const QString& detail = QString())
{
    if (ok)
        return;
    fprintf(stderr, "fuzz check failed: %s %s\n", what, qPrintable(detail));
    abort();
}

inline QString text(const uint8_t* data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
}

// A host on the sample printer that has every panel, made anew for each input.
inline std::unique_ptr<PrintDialogHost> sampleHost()
{
    auto host = TestSupport::openHost(TestSupport::samplePPD());
    check(host != nullptr, "the sample printer does not open");
    return host;
}

}
