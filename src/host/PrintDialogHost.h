#pragma once
#include "PDEPluginCallback.h"
#include "PMPageFormat.h"
#include "PMPrintSettings.h"
#include "PMPrinter.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <memory>

class PDEPanel;

// The print dialog's side of the plug-in interface on Linux: it owns the PPD
// of a CUPS queue or a PPD file, the job's print settings and page format,
// approves option changes with libcups conflict resolution and tells the
// panels what resolution changed.
class PrintDialogHost : public QObject, public PDEPluginCallback {
    Q_OBJECT
public:
    using OptionList = QList<QPair<QString, QString>>;

    static std::unique_ptr<PrintDialogHost> openPPDFile(const QString& path, QString* error);
    // A CUPS queue ("name" or "name/instance"); server as "host:port" or empty
    // for the user's default server. The queue's saved options are marked.
    static std::unique_ptr<PrintDialogHost> openPrinter(const QString& queue, const QString& server, QString* error);
    ~PrintDialogHost() override;

    // Whether a destination option describes the printer (its state, URI,
    // markers) rather than being a job option.
    static bool isPrinterAttribute(const QString& key);
    // Checks an option string written as for `lp -o` ("a=1 b='x y'").
    static bool validateOptionString(const QString& options, QString* error);
    // Checks the value of a job option the dialog and the command line both
    // take: page-ranges ("1-3,5,8-": numbers from 1, ascending within a
    // range). Other keys are accepted. False with *error saying why.
    static bool checkJobValue(const QString& key, const QString& value, QString* error);
    // Applies options written as for `lp -o`: PPD options with choices are
    // marked (an unknown choice is an error), the rest go to the print settings.
    bool applyOptions(const QString& options, QString* error);

    QString ppdPath() const { return m_ppdPath; }
    ppd_file_s* ppd() const { return m_ppd; }
    // The panels told about changes made by conflict resolution.
    void setPanels(const QList<PDEPanel*>& panels) { m_panels = panels; }
    // The job's options: every marked PPD choice outside the installed-options
    // group and every print-settings entry (they win), sorted by key.
    OptionList jobOptions() const;

    // PDEPluginCallback
    bool respondsToOperation(Operation op) const override;
    PMPrintSession* printSession() override { return &m_session; }
    PMPrintSettings* printSettings() override { return &m_settings; }
    PMPageFormat* pageFormat() override { return &m_pageFormat; }
    PMPrinter* pmPrinter() override { return m_printer.get(); }
    ppd_file_s* ppdFile() override { return m_ppd; }
    bool willChangePPDOptionKeyValue(const QString& option, const QString& choice) override;
    void panelViewDidResize() override { emit panelViewResized(); }

signals:
    // The dialog's "application will update" notification: the window sends it
    // after it changed a job setting that panels read (copies, layout, ...).
    void update();
    void panelViewResized();
    // Options that conflict resolution changed, after the approval that caused it.
    void optionsChangedByResolution(const PrintDialogHost::OptionList& changes);

private:
    PrintDialogHost() : m_pageFormat(&m_settings) {}
    bool openPPD(const QString& path, QString* error);
    OptionList markedChoices() const;
    void remark(const OptionList& marks);
    void reportChanges(const OptionList& changes);

    ppd_file_s* m_ppd = nullptr;
    QString m_ppdPath;
    QString m_tempPPD;
    PMPrintSettings m_settings;
    PMPageFormat m_pageFormat;
    PMPrintSession m_session;
    std::unique_ptr<PMPrinter> m_printer;
    QList<PDEPanel*> m_panels;
};
