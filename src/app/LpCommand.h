#pragma once
#include "PrintDialogHost.h"

#include <QString>
#include <QStringList>

// The `lp` command that prints with the dialog's options, for a printer that
// is only a PPD file: shown to the user to copy into a shell.
//
// Every -o argument holds one option. `lp -o` splits a value at blanks and
// reads quotes and backslashes itself, so a value that is not a plain word is
// put in double quotes with ", ' and \ escaped by a backslash; the whole
// argument is then quoted for the shell. Secret values (passwords, PINs) are
// never shown: they read as hiddenValue().
class LpCommand {
public:
    LpCommand(const QString& queue, const PrintDialogHost::OptionList& options, const QStringList& files = {});

    // The arguments after "lp", unquoted for the shell (as lp's argv sees them).
    QStringList arguments() const;
    // The whole line, every argument quoted for a POSIX shell.
    QString commandLine() const;
    // Whether some value was replaced by hiddenValue().
    bool hidesSecrets() const;

    static QString hiddenValue() { return QStringLiteral("<hidden>"); }
    // "key=value" as one lp -o argument (before shell quoting).
    static QString optionArgument(const QString& key, const QString& value);
    // One word for a POSIX shell: unchanged when it has nothing the shell
    // reads, else in single quotes.
    static QString shellQuote(const QString& word);

private:
    QString m_queue;
    PrintDialogHost::OptionList m_options;
    QStringList m_files;
};
