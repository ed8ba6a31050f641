#pragma once
#include "PanelSession.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace Ui {
class PrintDialogWindow;
}
class PDEBundle;
class PDEPanel;

// The print dialog: a printer (a CUPS queue or a PPD file), its presets, the
// documents, the job settings every print dialog has, and the plug-in's
// panels in the plug-in's order, one shown at a time beside their list, with
// a summary of every panel's settings. Print runs every panel's checks and
// save, then sends one job through CUPS; a printer that is only a PPD file
// shows the equivalent lp command instead.
class PrintDialogWindow : public QDialog {
    Q_OBJECT
public:
    explicit PrintDialogWindow(QWidget* parent = nullptr);
    ~PrintDialogWindow() override;

    // Opens the dialog on a queue or a PPD file (the printer PanelSession
    // picks when neither is given), replacing the current printer. False, with *error
    // set and the current printer kept, when it cannot be opened.
    bool openSession(const PanelSession::Options& options, QString* error);
    PanelSession* session() const { return m_session.get(); }

    void setDocuments(const QStringList& files);
    QStringList documents() const { return m_documents; }

    // Adds a panel of the dialog's own after the plug-in's, until the printer
    // changes.
    void addPanel(std::shared_ptr<PDEPanel> panel);
    // The panel shown, or null while the summary is shown.
    PDEPanel* currentPanel() const;
    // The CUPS job sent by Print, or 0.
    int submittedJob() const { return m_submittedJob; }

    // Shows every entry of the panel list in turn and saves the window as
    // PNG files in dir ("dialog.png" as it opens, "panel-NN-NAME.png" for
    // each panel, "summary.png", and "lp-command.png" for a printer that is
    // only a PPD file). Answers the files written.
    QStringList saveScreenshots(const QString& dir, QString* error);

    // Installs the bundle's translations of the dialog's texts (once per
    // process; later calls do nothing).
    static void installTranslations(const PDEBundle& bundle);

signals:
    // A job was sent to CUPS.
    void jobSubmitted(int jobId);

protected:
    void changeEvent(QEvent* event) override;

private:
    // Saves a picture of panel row, one of each tab where the panel has tabs.
    void shootPanel(int row, const std::function<void(const QString&)>& shoot, const QString& variant = QString());

    void retranslate();
    void updateMainButton();
    void showDocuments();
    void setNotice(const QString& text);

    void addDocuments();
    // Opens another printer or preset; carry: the job settings changed here go along.
    bool reopen(const PanelSession::Options& options, bool carry);
    // The settings a preset keeps: every panel saved, then the job's options.
    bool currentSettings(PrintDialogHost::OptionList* options, QString* error);

    void panelShown();
    void jobSettingChanged(const QString& key);
    // "To resolve a conflict, OPTION set to CHOICE, ...", or empty.
    QString conflictText(const PrintDialogHost::OptionList& changes) const;
    void optionsChangedByResolution(const PrintDialogHost::OptionList& changes);
    void helpClicked();
    void printClicked();
    bool savePanels(QString* error);
    bool submitJob(QString* error);
    // Opens the queue again on its new PPD, with the user's choices where it takes them.
    void reloadChangedPrinter();
    void showLpCommand();

    bool isQueue() const;

    std::unique_ptr<Ui::PrintDialogWindow> ui;
    std::unique_ptr<PanelSession> m_session;
    PanelSession::Options m_options;  // what the session opened
    std::shared_ptr<const CupsDestList> m_destinations;  // the server's answer the window opened with
    QStringList m_documents;
    int m_submittedJob = 0;
    PDEPanel* m_askingPanel = nullptr;  // the panel whose print checks run
};
