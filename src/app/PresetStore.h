#pragma once
#include "PrintDialogHost.h"

#include <QString>
#include <QStringList>

// Named sets of job options for one CUPS queue, kept as instances of the
// queue ("QUEUE/NAME") in the user's lpoptions file, where lp, lpoptions and
// every CUPS dialog find them too. A preset starts from the queue's saved
// options; the options given when saving go on top.
//
// Passwords and PINs (PDESecrets::isSecretKey) are never written: they are
// left out of the preset and taken out of every other entry of the file when
// it is written. The file is made readable by its owner only (0600).
class PresetStore {
public:
    // queue: the queue's name (an instance part is ignored). server:
    // "host:port", or empty for the user's default server.
    explicit PresetStore(const QString& queue, const QString& server = QString());

    QString queue() const { return m_queue; }

    // The presets of the queue, sorted. Empty on error (see *error).
    QStringList names(QString* error = nullptr) const;
    // The queue's own saved options (what a new preset starts from), without
    // the attributes CUPS reports about the printer and without secrets.
    bool savedOptions(PrintDialogHost::OptionList* options, QString* error = nullptr) const;
    // Saves (or replaces) a preset.
    bool save(const QString& name, const PrintDialogHost::OptionList& options, QString* error = nullptr);
    // The options of a preset, sorted by key, in the same form as savedOptions().
    bool load(const QString& name, PrintDialogHost::OptionList* options, QString* error = nullptr) const;
    bool remove(const QString& name, QString* error = nullptr);

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
    void useServer() const;

    QString m_queue;
    QString m_server;
};
