#pragma once
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>
#include <memory>

class PDEPanel;
class QPrintDialog;
class QPrinter;

// Print Panels inside any Qt application: the printer maker's panels as tabs
// of the application's own QPrintDialog, and the choices made on them
// carried into the application's CUPS job.
//
//     QPrinter printer;
//     QPrintDialog dialog(&printer);
//     PrintPanelsIntegration panels;
//     panels.addPanelsToDialog(&dialog, &printer);
//     if (dialog.exec() == QDialog::Accepted && panels.applyToPrinter(&printer)) {
//         QPainter painter(&printer);
//         ... draw the pages ...
//         painter.end();
//         const int job = panels.submitJob(QStringLiteral("Report"));
//     }
//
// How the options reach CUPS: applyToPrinter() points the QPrinter at a PDF
// file of its own (Qt's PDF engine draws the pages); submitJob() sends that
// file to the CUPS queue as one job whose options are every marked PPD choice
// and every print setting of the panels, plus the copies and collation chosen
// in Qt's dialog. The printer's PPD options (two-sided printing among them)
// are the panels' to set.
class PrintPanelsIntegration : public QObject {
    Q_OBJECT
public:
    using OptionList = QList<QPair<QString, QString>>;

    explicit PrintPanelsIntegration(QObject* parent = nullptr);
    ~PrintPanelsIntegration() override;

    // Opens the panels for the printer's CUPS queue (its printerName()), or
    // for ppdFile when one is given (the job still goes to the printer's
    // queue, if it has one). False, with errorString() set, when neither can
    // be opened. addPanelsToDialog() calls it when it has not been called.
    bool openPrinter(QPrinter* printer, const QString& ppdFile = QString());
    // A panel of the application's own, shown after the plug-in's; call it
    // after openPrinter() and before addPanelsToDialog().
    void addPanel(std::shared_ptr<PDEPanel> panel);
    // Adds one tab per panel to the dialog's options (setOptionTabs). When
    // the user chooses another printer in the dialog, the tabs are rebuilt
    // for it, the choices made carried where it offers them (the panels of
    // addPanel() are the first printer's only).
    bool addPanelsToDialog(QPrintDialog* dialog, QPrinter* printer, const QString& ppdFile = QString());
    // The names of the panels, in the tabs' order.
    QStringList panelNames() const;

    // Every panel's print checks, then its save. False when a panel refuses
    // (errorString() holds what it said).
    bool prepareToPrint();
    // The options the job carries: the panels' after prepareToPrint(), and
    // the copies and collation of the printer given to applyToPrinter().
    OptionList jobOptions() const;
    // After the dialog was accepted: the panels' checks and save, then the
    // printer is pointed at a PDF file of this object's own. False, and the
    // printer left as it was, when a panel refuses.
    bool applyToPrinter(QPrinter* printer);
    // Sends the pages drawn on the printer since applyToPrinter() to the CUPS
    // queue as one job. Answers the job's id, or 0 with errorString() set.
    int submitJob(const QString& title = QString());

    // The CUPS queue the job goes to (empty for a PPD file alone).
    QString queue() const;
    QString errorString() const;

private:
    // The panels of another queue, carrying the choices made where it offers them.
    bool switchToPrinter(const QString& queue);

    struct Private;
    std::unique_ptr<Private> d;
};
