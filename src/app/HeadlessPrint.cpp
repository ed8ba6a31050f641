#include "HeadlessPrint.h"

#include "CommandLine.h"
#include "CupsDestList.h"
#include "PanelSession.h"
#include "PrintJob.h"

#include <cstdio>

namespace {
void printLine(FILE* f, const QString& s)
{
    std::fprintf(f, "%s\n", s.toUtf8().constData());
}

int failWith(int status, const QString& error)
{
    printLine(stderr, QStringLiteral("print-panels: ") + escapeForLine(error));
    return status;
}
}

int HeadlessPrint::run(const CommandLine& cl)
{
    // Without --printer, the job goes to the default destination, as lp's does.
    PanelSession::Options options = cl.session;
    QString printer = cl.session.printer;
    if (printer.isEmpty()) {
        // The destinations asked for once: the session opens the default from them.
        options.destinations = std::make_shared<const CupsDestList>(cl.session.server);
        printer = options.destinations->defaultDestination();
        if (printer.isEmpty()) {
            const QString unreachable = options.destinations->printers().unreachableServer(cl.session.server);
            return failWith(ExitBadInput, unreachable.isEmpty() ? QStringLiteral("there is no printer to print to: CUPS has no queue (use --printer QUEUE)")
                                                                : unreachable);
        }
    }
    options.printer = printer;
    PrintJob job(printer, cl.session.server);
    job.setFiles(cl.files);
    // A document that cannot be printed is found before anything is opened.
    QString error;
    if (!job.checkDocuments(&error))
        return failWith(ExitBadInput, error);

    std::unique_ptr<PanelSession> session = PanelSession::open(options, &error);
    if (!session)
        return failWith(ExitBadInput, error);
    for (const QString& note : session->openingNotes())
        printLine(stderr, QStringLiteral("print-panels: ") + escapeForLine(note));
    QString refusal;
    if (!session->prepareToPrint(&refusal))
        return failWith(ExitRefused, refusal);

    job.setOptions(session->host().jobOptions());
    if (!job.submit())
        return failWith(job.status() == PrintJob::Status::BadInput ? ExitBadInput : ExitFailure, job.errorString());
    printLine(stdout, QStringLiteral("request id is %1-%2 (%3 file(s))")
                          .arg(printer.section(QLatin1Char('/'), 0, 0))
                          .arg(job.jobId())
                          .arg(job.files().size()));
    return ExitOK;
}
