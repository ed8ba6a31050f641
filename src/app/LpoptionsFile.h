#pragma once
#include "PrintDialogHost.h"

#include <QByteArrayList>
#include <QString>

// The user's lpoptions file as lpoptions(1) writes it: "Dest NAME[/INSTANCE]
// options" and "Default NAME[/INSTANCE] options" lines. Changes touch only the
// line of the destination changed; every other line (other destinations, ones
// this server does not know, comments, lines of other kinds) is kept as it
// was, except that passwords and PINs are taken out of every destination.
// Destination names compare without regard to case, as CUPS compares them.
class LpoptionsFile {
public:
    using OptionList = PrintDialogHost::OptionList;

    // A destination line as written: Default or Dest, the destination, the
    // rest of the line (its options, a trailing comment taken off).
    struct Entry {
        bool isDefault = false;
        QString queue, instance;
        QByteArray options;
    };

    explicit LpoptionsFile(const QString& path) : m_path(path) {}

    // The file every user shares (CUPS_SERVERROOT/lpoptions) and the user's
    // own (~/.cups/lpoptions, empty without a home folder), as libcups finds them.
    static QString systemPath();
    static QString userPath();

    // Reads the file; a missing file is an empty one.
    bool read(QString* error);
    // The destination lines, in the file's order.
    QList<Entry> entries() const;
    // Whether the destination has a line.
    bool contains(const QString& queue, const QString& instance) const;
    // Sets the destination's options, in place of its line (keeping a Default
    // line the default) or on a new line at the end. Secrets are left out.
    void setDest(const QString& queue, const QString& instance, const OptionList& options);
    // Removes the destination's line; false when it has none.
    bool remove(const QString& queue, const QString& instance);
    // Makes the destination the default: its line starts with Default (a
    // line of its own when it has none), the former default's with Dest.
    void setDefault(const QString& queue, const QString& instance);
    // Replaces the file at once (a temporary file renamed over it), readable
    // by its owner only. On failure the old file stays and *error says why.
    bool write(QString* error);

private:
    int find(const QString& queue, const QString& instance) const;  // line index, or -1
    static QByteArray lineOf(const QByteArray& keyword, const QString& queue, const QString& instance, const OptionList& options);

    QString m_path;
    QByteArrayList m_lines;
};
