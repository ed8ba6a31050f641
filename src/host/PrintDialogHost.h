#pragma once
#include "PDEPluginCallback.h"
#include "PMPageFormat.h"
#include "PMPrintSettings.h"
#include "PMPrinter.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QStringList>
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

    // A PPD file: its defaults marked, conflicts among them resolved.
    static std::unique_ptr<PrintDialogHost> openPPDFile(const QString& path, QString* error);
    // A CUPS queue ("name" or "name/instance"); server as "host:port" or empty
    // for the user's default server. After the PPD's defaults, the queue's
    // saved options (and the instance's) go through approval; the ones that
    // cannot be used are told in *warnings.
    static std::unique_ptr<PrintDialogHost> openPrinter(const QString& queue, const QString& server, QString* error,
                                                        QStringList* warnings = nullptr);
    // The same for a queue whose PPD was fetched into ppdFile (a temporary
    // file, removed with the host) and whose saved options were read.
    static std::unique_ptr<PrintDialogHost> openQueue(const QString& queue, const QString& server, const QString& ppdFile,
                                                      int optionCount, const struct cups_option_s* options, QString* error,
                                                      QStringList* warnings = nullptr);
    // Why a server gives no answer, in words for the user ("the CUPS server at
    // localhost:631 cannot be reached: is the scheduler running?"), or empty
    // when it answers.
    static QString unreachableServer(const QString& server);
    ~PrintDialogHost() override;

    // Whether a destination option describes the printer (its state, URI,
    // markers) rather than being a job option.
    static bool isPrinterAttribute(const QString& key);
    // Checks an option string written as for `lp -o` ("a=1 b='x y'").
    static bool validateOptionString(const QString& options, QString* error);
    // The options of such a string, one "name=value" text each, in the order
    // written (cupsParseOptions sorts them); empty with *error when malformed.
    static QStringList splitOptionString(const QString& options, QString* error);
    // Checks the value of a job option the print dialog knows (copies,
    // number-up, page-ranges, orientation-requested); other keys pass.
    static bool checkJobValue(const QString& key, const QString& value, QString* error);
    // Applies options written as for `lp -o`, in order, each through approval:
    // PPD choices are marked and conflicts resolved, IPP attributes that map
    // onto PPD options (media, sides, print-color-mode, output-bin,
    // print-quality) become those marks, the rest go to the print settings.
    // An unknown choice, a malformed job value or a conflict that cannot be
    // resolved is an error, and then nothing of the list is applied.
    bool applyOptions(const QString& options, QString* error);
    // Marks a choice through approval: marked, conflicts resolved by libcups.
    // *changes gets every other option that resolution changed. False, with
    // the marks as before and *error naming the conflict, when it cannot be
    // resolved.
    bool approveChoice(const QString& option, const QString& choice, OptionList* changes, QString* error);

    // The words a PPD gives an option and one of its choices, for the user;
    // the keyword itself where the PPD has none.
    static QString optionText(ppd_file_s* ppd, const QString& key);
    static QString choiceText(ppd_file_s* ppd, const QString& key, const QString& choice);
    // "2-Sided Printing set to Off, Media Type set to Plain".
    QString describeChanges(const OptionList& changes) const;

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
    void resolveDefaults();
    // Applies parsed options in order; false at the first that cannot be used.
    bool applyParsed(int count, const struct cups_option_s* options, QString* error, QStringList* warnings);
    // The PPD marks an IPP attribute stands for, as libcups maps it; empty
    // when it maps onto nothing. *mapsOntoPPD tells whether the PPD has an
    // option for the attribute at all.
    OptionList marksForAttribute(const QString& name, const QString& value, bool* mapsOntoPPD);
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
