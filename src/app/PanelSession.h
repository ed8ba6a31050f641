#pragma once
#include "PrintDialogHost.h"

#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <memory>

class CupsDestList;
class MRPDE_MACFirstEventHandler;
class PDEBundle;
class PDEPanel;

// One print dialog's worth of state: the host for a queue or a PPD file, the
// plug-in and its panels, restored from the queue's saved and the command
// line's options.
class PanelSession {
public:
    struct Options {
        QString ppdPath;      // a PPD file
        QString printer;      // a CUPS queue; with no PPD file either, the user's default
                              // destination, or the sample printer when there is no queue
        QString server;       // host:port of the CUPS server, or empty
        QString bundlePath;   // the plug-in bundle; empty means the program's own (installed or built in)
        QStringList optionStrings;  // as given to -o
        // PPD choices of another PPD, one each ("key=value" as for -o),
        // applied after those where this PPD has the option and takes the
        // choice; the rest are told in notCarried().
        QStringList carriedOptions = {};
        // The destinations already fetched from the server, the queue and
        // its saved options taken from them; without them, the session asks
        // the server once (the queue named, or every queue to find the default).
        std::shared_ptr<const CupsDestList> destinations = {};
    };

    static std::unique_ptr<PanelSession> open(const Options& options, QString* error);
    ~PanelSession();

    PrintDialogHost& host() { return *m_host; }
    const QList<std::shared_ptr<PDEPanel>>& panels() const { return m_panels; }
    PDEBundle& bundle() { return *m_bundle; }
    // The options the session opened with; printer names the queue chosen
    // when none was given.
    const Options& options() const { return m_options; }
    // What conflict resolution changed while the session opened (the PPD's
    // defaults, saved options, preset, -o), each option once, last value.
    const PrintDialogHost::OptionList& resolutionChanges() const { return m_resolutionChanges; }
    // Saved options of the queue that could not be used, in words.
    const QStringList& openingWarnings() const { return m_openingWarnings; }
    // The carried choices the printer did not take.
    const QStringList& notCarried() const { return m_notCarried; }
    // Both of the above as lines for the command line, in English.
    QStringList openingNotes() const;

    // Adds a panel after the plug-in's (a dialog's own panel): it is restored
    // now, told about resolution changes and asked with the others when printing.
    void addPanel(std::shared_ptr<PDEPanel> panel);
    // Every panel's print checks (where it has them), then every panel's save;
    // false with the refusing panel's alert text in *refusal when one refuses
    // either. asking, when
    // given, is told each panel before its checks (which may show an alert).
    bool prepareToPrint(QString* refusal, const std::function<void(PDEPanel*)>& asking = {});
    // {"panels":[...]} for every panel in order.
    QJsonObject describe();
    // The path of the built-in sample printer's PPD, copied out of the program.
    static QString samplePrinterPPD(QTemporaryDir& dir, const QString& name = QStringLiteral("velmora-c5500"));

private:
    PanelSession() = default;
    QTemporaryDir m_tempDir;
    std::shared_ptr<PDEBundle> m_bundle;
    std::unique_ptr<PrintDialogHost> m_host;
    std::unique_ptr<MRPDE_MACFirstEventHandler> m_entry;
    QList<std::shared_ptr<PDEPanel>> m_panels;
    Options m_options;
    PrintDialogHost::OptionList m_resolutionChanges;
    QStringList m_openingWarnings;
    QStringList m_notCarried;
};
