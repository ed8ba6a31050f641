#pragma once
#include "PanelSession.h"

#include <QStringList>

// The print-panels command line.
struct CommandLine {
    enum class Mode { Dialog, Describe, PrintOptions, Print };
    Mode mode = Mode::Dialog;
    PanelSession::Options session;
    QStringList files;  // documents to print
    QString error;      // set when the command line cannot be used

    static CommandLine parse(const QStringList& arguments);
    static QString usage();
};

// Exit statuses.
enum ExitStatus { ExitOK = 0, ExitFailure = 1, ExitBadInput = 2, ExitRefused = 3 };

// A value written on one line: backslashes and control characters escaped so
// that a hostile value cannot forge a line of its own.
QString escapeForLine(const QString& value);
