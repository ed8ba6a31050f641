#include "CloseAfterFirstPaint.h"
#include "CommandLine.h"
#include "HeadlessPrint.h"
#include "MRFontCatalog.h"
#include "PDESecrets.h"
#include "PanelSession.h"
#include "PrintDialogWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMessageBox>
#include <cstdio>

static void printLine(FILE* f, const QString& s)
{
    std::fprintf(f, "%s\n", s.toUtf8().constData());
}

// Headless runs write only their own lines: Qt's notes about the platform
// (XDG_RUNTIME_DIR and the like) are not the user's business there.
static void quietQtMessages(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg || qEnvironmentVariableIsSet("PRINT_PANELS_QT_MESSAGES"))
        printLine(stderr, message);
}

static int runHeadless(const CommandLine& cl)
{
    QString error;
    std::unique_ptr<PanelSession> session = PanelSession::open(cl.session, &error);
    if (!session) {
        printLine(stderr, QStringLiteral("print-panels: ") + escapeForLine(error));
        return ExitBadInput;
    }
    for (const QString& note : session->openingNotes())
        printLine(stderr, QStringLiteral("print-panels: ") + escapeForLine(note));
    if (cl.mode == CommandLine::Mode::Describe) {
        std::fputs(QJsonDocument(session->describe()).toJson(QJsonDocument::Indented).constData(), stdout);
        return ExitOK;
    }
    QString refusal;
    if (!session->prepareToPrint(&refusal)) {
        printLine(stderr, QStringLiteral("print-panels: ") + refusal);
        return ExitRefused;
    }
    for (const auto& [key, value] : session->host().jobOptions()) {
        const QString shown = cl.showSecrets ? value : PDESecrets::loggable(key, value);
        printLine(stdout, key + QLatin1Char('=') + escapeForLine(shown));
    }
    return ExitOK;
}

// The dialog for the documents. PRINT_PANELS_SCREENSHOTS=DIR saves the
// window with each panel shown as PNG files in DIR, then quits.
static int runDialog(const CommandLine& cl)
{
    // Errors that keep the window from opening are shown in a message box too:
    // started from a desktop, nobody reads stderr.
    auto fail = [](const QString& error) {
        printLine(stderr, QStringLiteral("print-panels: ") + escapeForLine(error));
        if (qEnvironmentVariableIsEmpty("PRINT_PANELS_SCREENSHOTS"))
            QMessageBox::critical(nullptr, QObject::tr("Print"), QObject::tr("The print dialog cannot open: %1").arg(error));
        return ExitBadInput;
    };
    for (const QString& file : cl.files) {
        const QFileInfo info(file);
        if (!info.isFile() || !info.isReadable())
            return fail(QStringLiteral("%1: %2").arg(file, info.exists() ? QStringLiteral("cannot be read") : QStringLiteral("no such file")));
    }
    PrintDialogWindow window;
    QString error;
    if (!window.openSession(cl.session, &error))
        return fail(error);
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
    // PRINT_PANELS_EXIT_AFTER_SHOW=1 closes the window after its first paint
    // (exit status 1, nothing printed): whole openings can be timed from outside.
    if (qEnvironmentVariableIsSet("PRINT_PANELS_EXIT_AFTER_SHOW"))
        new CloseAfterFirstPaint(&window);
    // A job sent: 0; the dialog closed without printing: 1.
    return window.exec() == QDialog::Accepted ? ExitOK : ExitFailure;
}

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    CommandLine cl = CommandLine::parse(arguments);
    if (!cl.error.isEmpty()) {
        printLine(stderr, QStringLiteral("print-panels: ") + escapeForLine(cl.error));
        if (cl.showUsage)
            std::fputs(CommandLine::usage().toUtf8().constData(), stderr);
        return ExitBadInput;
    }
    if (cl.mode == CommandLine::Mode::Help) {
        std::fputs(CommandLine::usage().toUtf8().constData(), stdout);
        return ExitOK;
    }
    if (cl.mode == CommandLine::Mode::Version) {
        printLine(stdout, CommandLine::version());
        return ExitOK;
    }

    // The panels are widgets even when nothing is shown: without a display,
    // they are made off screen.
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    // A platform the user chose that draws somewhere (a framebuffer, VNC)
    // counts as a display; offscreen and minimal do not.
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    const bool canShowWindow = hasDisplay
                               || (!platform.isEmpty() && !platform.startsWith(QLatin1String("offscreen"))
                                   && !platform.startsWith(QLatin1String("minimal")));
    const bool headless = cl.isHeadless() || !(canShowWindow || qEnvironmentVariableIsSet("PRINT_PANELS_SCREENSHOTS"));
    if (headless) {
        qInstallMessageHandler(quietQtMessages);
        // Nothing is drawn: the minimal platform spares Qt's font database
        // and text layout. The watermark font list reads fontconfig itself,
        // the only user of it left, and lets it go at exit.
        qputenv("QT_QPA_PLATFORM", "minimal");
        MRFontCatalog::releaseFontconfigAtExit();
    } else if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("print-panels"));

    switch (cl.mode) {
    case CommandLine::Mode::Describe:
    case CommandLine::Mode::PrintOptions:
        return runHeadless(cl);
    case CommandLine::Mode::Print:
        return HeadlessPrint::run(cl);
    default:
        break;
    }
    if (!headless)
        return runDialog(cl);
    printLine(stderr, QStringLiteral("print-panels: no display to show the dialog on (DISPLAY and WAYLAND_DISPLAY are not set); "
                                     "describing the panels instead"));
    cl.mode = CommandLine::Mode::Describe;
    return runHeadless(cl);
}
