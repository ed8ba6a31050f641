#pragma once
#include "PrintDialogHost.h"

#include <QString>
#include <QStringList>
#include <functional>

class CupsDestList;
class LpoptionsFile;

// Named sets of job options for one CUPS queue, kept as instances of the
// queue ("QUEUE/NAME") in the user's lpoptions file, where lp, lpoptions and
// every CUPS dialog find them too; also the queue's own user defaults and the
// user's default destination, as lpoptions -p / -d write them. A preset
// starts from the queue's saved options; the options given go on top.
//
// The file is written line by line (LpoptionsFile): every line this store
// does not change stays as it was, the file is replaced at once and made
// readable by its owner only (0600). Passwords and PINs
// (PDESecrets::isSecretKey) are never written.
class PresetStore {
public:
    // queue: the queue's name (an instance part is ignored). server:
    // "host:port", or empty for the user's default server.
    explicit PresetStore(const QString& queue, const QString& server = QString());

    QString queue() const { return m_queue; }

    // The presets of the queue, sorted. Empty on error (see *error).
    QStringList names(QString* error = nullptr) const;
    // The same, read from destinations already fetched.
    QStringList names(const CupsDestList& dests, QString* error = nullptr) const;
    // The queue's own saved options (what a new preset starts from), without
    // the attributes CUPS reports about the printer and without secrets.
    bool savedOptions(PrintDialogHost::OptionList* options, QString* error = nullptr) const;
    // The preset whose name equals name without regard to case (as CUPS
    // compares instances), or empty.
    QString existingName(const QString& name) const;
    // Saves a preset, replacing the one of the same name in any case.
    bool save(const QString& name, const PrintDialogHost::OptionList& options, QString* error = nullptr);
    // The options of a preset, sorted by key, in the same form as savedOptions().
    bool load(const QString& name, PrintDialogHost::OptionList* options, QString* error = nullptr) const;
    bool remove(const QString& name, QString* error = nullptr);
    // The queue's own user defaults (the "Dest QUEUE" line), what every
    // dialog and lp start from.
    bool setQueueDefaults(const PrintDialogHost::OptionList& options, QString* error = nullptr);
    // Makes the queue, or its preset name, the user's default destination.
    bool setDefaultDestination(const QString& name, QString* error = nullptr);

    // Whether a preset may have this name: an instance name is one word of
    // printable characters other than '/' and '#', at most 127 bytes.
    static bool isValidName(const QString& name, QString* error = nullptr);
    // The options CUPS adds to a destination to describe the printer
    // (printer-info, printer-state, marker-levels, device-uri...): they are
    // not job options and do not belong to a preset.
    static bool isPrinterAttribute(const QString& key);
    // The lpoptions file libcups writes for this user.
    static QString lpoptionsPath();

private:
    bool optionsOf(const QString& instance, PrintDialogHost::OptionList* options, QString* error) const;
    // Reads the user's file, applies edit and writes it, if the server knows the queue.
    bool change(const std::function<bool(LpoptionsFile&, QString*)>& edit, QString* error);

    QString m_queue;
    QString m_server;
};
