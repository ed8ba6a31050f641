#pragma once

struct CommandLine;

// print-panels --print FILE --printer QUEUE: the dialog's print, without the
// dialog. The documents are checked, the panels restored from the queue's and
// the command line's options, every panel's print checks and save run, then
// one job goes to the queue carrying the host's job options.
class HeadlessPrint {
public:
    // The exit status: ExitOK, ExitBadInput (a document, the printer or an
    // option cannot be used), ExitRefused (a panel refused; its alert text is
    // on stderr) or ExitFailure (CUPS did not take the job).
    static int run(const CommandLine& commandLine);
};
