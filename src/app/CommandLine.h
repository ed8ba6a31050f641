#pragma once
#include "PanelSession.h"

#include <QStringList>

// The print-panels command line.
struct CommandLine {
    enum class Mode { Dialog, Describe, PrintOptions, Print, Help, Version };
    Mode mode = Mode::Dialog;
    PanelSession::Options session;
    QStringList files;  // documents to print
    bool showSecrets = false;  // --print-options shows passwords and PINs
    QString error;      // set when the command line cannot be used
    bool showUsage = false;  // the error is in the options themselves: show the usage too

    static CommandLine parse(const QStringList& arguments);
    static QString usage();
    static QString version();
    // Whether the mode runs without a window.
    bool isHeadless() const { return mode == Mode::Describe || mode == Mode::PrintOptions || mode == Mode::Print; }
};

// Exit statuses.
enum ExitStatus { ExitOK = 0, ExitFailure = 1, ExitBadInput = 2, ExitRefused = 3 };

// A value written on one line: backslashes and control characters escaped so
// that a hostile value cannot forge a line of its own.
QString escapeForLine(const QString& value);
