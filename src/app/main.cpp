#include "CommandLine.h"
#include "PanelSession.h"

#include <QApplication>
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

int main(int argc, char** argv)
{
    // The panels are widgets even when nothing is shown: without a display,
    // they are made off screen.
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
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
        printLine(stderr, QStringLiteral("print-panels: printing is not available in this build"));
        return ExitFailure;
    case CommandLine::Mode::Dialog:
        break;
    }
    // The dialog window is not part of this build yet: describe the panels instead.
    cl.mode = CommandLine::Mode::Describe;
    return runHeadless(cl);
}
