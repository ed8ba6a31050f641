#include "CommandLine.h"
#include "HeadlessPrint.h"
#include "PanelSession.h"
#include "PrintDialogWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <cstdio>

static void printLine(FILE* f, const QString& s)
{
    std::fprintf(f, "%s\n", s.toUtf8().constData());
}

static int runHeadless(const CommandLine& cl)
{
    QString error;
    std::unique_ptr<PanelSession> session = PanelSession::open(cl.session, &error);
    if (!session) {
        printLine(stderr, QStringLiteral("print-panels: ") + error);
        return ExitBadInput;
    }
    if (cl.mode == CommandLine::Mode::Describe) {
        std::fputs(QJsonDocument(session->describe()).toJson(QJsonDocument::Indented).constData(), stdout);
        return ExitOK;
    }
    QString refusal;
    if (!session->prepareToPrint(&refusal)) {
        printLine(stderr, QStringLiteral("print-panels: ") + refusal);
        return ExitRefused;
    }
    for (const auto& [key, value] : session->host().jobOptions())
        printLine(stdout, key + QLatin1Char('=') + escapeForLine(value));
    return ExitOK;
}

// The dialog for the documents. PRINT_PANELS_SCREENSHOTS=DIR saves the
// window with each panel shown as PNG files in DIR, then quits.
static int runDialog(const CommandLine& cl)
{
    for (const QString& file : cl.files) {
        const QFileInfo info(file);
        if (!info.isFile() || !info.isReadable()) {
            printLine(stderr, QStringLiteral("print-panels: %1: %2").arg(file, info.exists() ? QStringLiteral("cannot be read") : QStringLiteral("no such file")));
            return ExitBadInput;
        }
    }
    PrintDialogWindow window;
    QString error;
    if (!window.openSession(cl.session, &error)) {
        printLine(stderr, QStringLiteral("print-panels: ") + error);
        return ExitBadInput;
    }
    window.setDocuments(cl.files);
    const QString screenshots = qEnvironmentVariable("PRINT_PANELS_SCREENSHOTS");
    if (!screenshots.isEmpty()) {
        const QStringList written = window.saveScreenshots(screenshots, &error);
        for (const QString& f : written)
            printLine(stdout, f);
        if (!error.isEmpty()) {
            printLine(stderr, QStringLiteral("print-panels: ") + error);
            return ExitFailure;
        }
        return ExitOK;
    }
    // A job sent: 0; the dialog closed without printing: 1.
    return window.exec() == QDialog::Accepted ? ExitOK : ExitFailure;
}

int main(int argc, char** argv)
{
    // The panels are widgets even when nothing is shown: without a display,
    // they are made off screen.
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    // A platform the user chose that draws somewhere (a framebuffer, VNC)
    // counts as a display; offscreen and minimal do not.
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    const bool canShowWindow = hasDisplay
                               || (!platform.isEmpty() && !platform.startsWith(QLatin1String("offscreen"))
                                   && !platform.startsWith(QLatin1String("minimal")));
    if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("print-panels"));

    CommandLine cl = CommandLine::parse(QApplication::arguments());
    if (!cl.error.isEmpty()) {
        printLine(stderr, QStringLiteral("print-panels: ") + cl.error);
        return ExitBadInput;
    }
    switch (cl.mode) {
    case CommandLine::Mode::Describe:
    case CommandLine::Mode::PrintOptions:
        return runHeadless(cl);
    case CommandLine::Mode::Print:
        return HeadlessPrint::run(cl);
    case CommandLine::Mode::Dialog:
        break;
    }
    if (canShowWindow || qEnvironmentVariableIsSet("PRINT_PANELS_SCREENSHOTS"))
        return runDialog(cl);
    printLine(stderr, QStringLiteral("print-panels: no display to show the dialog on (DISPLAY and WAYLAND_DISPLAY are not set); "
                                     "describing the panels instead"));
    cl.mode = CommandLine::Mode::Describe;
    return runHeadless(cl);
}
