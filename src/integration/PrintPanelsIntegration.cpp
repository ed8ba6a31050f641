#include "PrintPanelsIntegration.h"

#include "LpCommand.h"
#include "PDEAlerts.h"
#include "PDEPanel.h"
#include "PanelSession.h"
#include "PanelTab.h"
#include "PrintDialogWindow.h"
#include "PrintJob.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryFile>
#include <cups/ppd.h>

struct PrintPanelsIntegration::Private {
    std::unique_ptr<PanelSession> session;
    QString queue;         // where the job goes
    bool fromPPD = false;  // the panels were opened on a PPD file
    QPointer<QPrintDialog> dialog;
    QPointer<QComboBox> printers;  // Qt's printer list in the dialog
    QList<QPointer<PanelTab>> tabs;
    OptionList dialogOptions;  // what Qt's dialog chose (copies, collation)
    std::unique_ptr<QTemporaryFile> spool;
    bool toFile = false;  // the user chose to print to a file in Qt's dialog
    QString error;

    void removeTabs()
    {
        // Deleting a page takes it out of its tab widget; the panel's view goes
        // back to the panel.
        for (const QPointer<PanelTab>& tab : std::as_const(tabs))
            delete tab.data();
        tabs.clear();
    }

    // Makes a new session the current one; the tabs of the old one go.
    void adopt(std::unique_ptr<PanelSession> s, QObject* context)
    {
        removeTabs();
        session = std::move(s);
        QObject::connect(&session->host(), &PrintDialogHost::panelViewResized, context, [this] {
            for (const QPointer<PanelTab>& tab : std::as_const(tabs)) {
                if (tab && tab->isVisible()) {
                    tab->fitToView();
                    if (QWidget* w = tab->window())
                        w->resize(w->size().expandedTo(w->minimumSizeHint()));
                }
            }
        });
    }
};

PrintPanelsIntegration::PrintPanelsIntegration(QObject* parent)
    : QObject(parent), d(std::make_unique<Private>())
{
}

PrintPanelsIntegration::~PrintPanelsIntegration()
{
    if (d->dialog)
        PDEAlerts::setHandler(nullptr);
    d->removeTabs();
    d->session.reset();
}

bool PrintPanelsIntegration::openPrinter(QPrinter* printer, const QString& ppdFile)
{
    PanelSession::Options options;
    d->queue = printer && printer->outputFormat() == QPrinter::NativeFormat ? printer->printerName() : QString();
    if (!ppdFile.isEmpty()) {
        options.ppdPath = ppdFile;
    } else if (!d->queue.isEmpty()) {
        options.printer = d->queue;
    } else {
        d->error = tr("the printer is not a CUPS queue and no PPD file was given");
        return false;
    }
    d->error.clear();
    std::unique_ptr<PanelSession> session = PanelSession::open(options, &d->error);
    if (!session)
        return false;
    // The panels' own texts come from the bundle; the integration's too.
    PrintDialogWindow::installTranslations(session->bundle());
    d->adopt(std::move(session), this);
    d->fromPPD = !ppdFile.isEmpty();
    return true;
}

void PrintPanelsIntegration::addPanel(std::shared_ptr<PDEPanel> panel)
{
    if (d->session)
        d->session->addPanel(std::move(panel));
}

bool PrintPanelsIntegration::addPanelsToDialog(QPrintDialog* dialog, QPrinter* printer, const QString& ppdFile)
{
    if (!dialog)
        return false;
    if (!d->session && !openPrinter(printer, ppdFile))
        return false;
    d->removeTabs();
    QList<QWidget*> pages;
    for (const auto& panel : d->session->panels()) {
        auto* tab = new PanelTab(panel);
        d->tabs.append(tab);
        pages.append(tab);
    }
    dialog->setOptionTabs(pages);
    d->dialog = dialog;
    // Qt's own printer list: the panels follow the printer chosen in it.
    auto* printers = dialog->findChild<QComboBox*>(QStringLiteral("printers"));
    if (printers && printers != d->printers) {
        d->printers = printers;
        // An entry that is no queue (printing to a file) leaves the panels as they are.
        connect(printers, &QComboBox::currentIndexChanged, this, [this, printers](int index) { switchToPrinter(printers->itemText(index)); });
    }
    // The panels' alerts appear over the dialog.
    PDEAlerts::setHandler([dialog = d->dialog](const PDEAlerts::Alert& alert) {
        QMessageBox box(alert.informational ? QMessageBox::Information : QMessageBox::Warning,
                        dialog ? dialog->windowTitle() : QString(), alert.title, QMessageBox::NoButton, dialog.data());
        box.setInformativeText(alert.message);
        QPushButton* ok = box.addButton(alert.defaultButton.isEmpty() ? PrintPanelsIntegration::tr("OK") : alert.defaultButton,
                                        QMessageBox::AcceptRole);
        QPushButton* alternate = alert.alternateButton.isEmpty() ? nullptr : box.addButton(alert.alternateButton, QMessageBox::RejectRole);
        QPushButton* other = alert.otherButton.isEmpty() ? nullptr : box.addButton(alert.otherButton, QMessageBox::ActionRole);
        box.setDefaultButton(ok);
        box.exec();
        if (alternate && box.clickedButton() == alternate)
            return int(PDEAlerts::AlternateButton);
        if (other && box.clickedButton() == other)
            return int(PDEAlerts::OtherButton);
        return int(PDEAlerts::DefaultButton);
    });
    return true;
}

QStringList PrintPanelsIntegration::panelNames() const
{
    QStringList names;
    if (d->session)
        for (const auto& p : d->session->panels())
            names.append(p->panelName());
    return names;
}

bool PrintPanelsIntegration::prepareToPrint()
{
    if (!d->session) {
        d->error = tr("no printer was opened");
        return false;
    }
    QString refusal;
    if (!d->session->prepareToPrint(&refusal)) {
        d->error = refusal;
        return false;
    }
    d->error.clear();
    return true;
}

PrintPanelsIntegration::OptionList PrintPanelsIntegration::jobOptions() const
{
    QMap<QString, QString> all;
    if (d->session)
        for (const auto& [key, value] : d->session->host().jobOptions())
            all.insert(key, value);
    // What the user chose in Qt's dialog just now wins over the queue's defaults.
    for (const auto& [key, value] : std::as_const(d->dialogOptions))
        all.insert(key, value);
    OptionList out;
    for (auto it = all.cbegin(); it != all.cend(); ++it)
        out.append({it.key(), it.value()});
    return out;
}

bool PrintPanelsIntegration::applyToPrinter(QPrinter* printer)
{
    if (!printer || !d->session) {
        d->error = tr("no printer was opened");
        return false;
    }
    d->toFile = printer->outputFormat() == QPrinter::PdfFormat && !printer->outputFileName().isEmpty();
    const QString chosen = printer->outputFormat() == QPrinter::NativeFormat ? printer->printerName() : QString();
    // Another queue chosen in Qt's dialog without its list telling (set by the
    // application): the panels follow now.
    if (!d->toFile && !chosen.isEmpty() && chosen != d->queue && !switchToPrinter(chosen))
        return false;
    if (!prepareToPrint())
        return false;
    if (d->toFile)
        return true;

    d->dialogOptions.clear();
    if (printer->copyCount() > 1) {
        d->dialogOptions.append({QStringLiteral("copies"), QString::number(printer->copyCount())});
        d->dialogOptions.append({QStringLiteral("collate"), printer->collateCopies() ? QStringLiteral("true") : QStringLiteral("false")});
    }

    d->spool = std::make_unique<QTemporaryFile>(QDir::temp().filePath(QStringLiteral("print-panels-XXXXXX.pdf")));
    if (!d->spool->open()) {
        d->error = tr("no spool file can be made: %1").arg(d->spool->errorString());
        d->spool.reset();
        return false;
    }
    d->spool->close();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(d->spool->fileName());
    // Copies are made by CUPS from the job's options, not drawn again.
    printer->setCopyCount(1);
    return true;
}

int PrintPanelsIntegration::submitJob(const QString& title)
{
    if (d->toFile) {
        d->error.clear();
        return 0;
    }
    if (!d->spool) {
        d->error = tr("applyToPrinter() was not called");
        return 0;
    }
    if (d->queue.isEmpty()) {
        d->error = tr("the printer is a PPD file without a CUPS queue: nothing was sent");
        return 0;
    }
    PrintJob job(d->queue);
    job.setFiles({d->spool->fileName()});
    job.setOptions(jobOptions());
    if (!title.isEmpty())
        job.setTitle(title);
    if (!job.submit()) {
        d->error = job.errorString();
        return 0;
    }
    d->spool.reset();
    d->error.clear();
    return job.jobId();
}

bool PrintPanelsIntegration::switchToPrinter(const QString& queue)
{
    if (!d->session || queue == d->queue)
        return true;
    if (d->fromPPD) {
        // The panels are the PPD file's: only where the job goes changes.
        d->queue = queue;
        return true;
    }
    // The choices made so far, as the panels save them.
    for (const auto& p : d->session->panels()) {
        QString ignored;
        p->saveValuesAndReturnError(&ignored);
    }
    QCoreApplication::sendPostedEvents();
    const OptionList carried = d->session->host().jobOptions();
    ppd_file_t* oldPPD = d->session->host().ppd();

    // Each choice goes along where the new printer offers it and approves it;
    // an option only the old printer has stays behind.
    PanelSession::Options options;
    options.printer = queue;
    std::unique_ptr<PrintDialogHost> probe = PrintDialogHost::openPrinter(queue, QString(), &d->error);
    if (!probe)
        return false;
    ppd_file_t* ppd = probe->ppd();
    for (const auto& [key, value] : carried) {
        const QByteArray k = key.toUtf8();
        ppd_option_t* o = ppd ? ppdFindOption(ppd, k.constData()) : nullptr;
        const bool wasPPDOption = oldPPD && ppdFindOption(oldPPD, k.constData());
        if ((wasPPDOption && !o) || (o && (!ppdFindChoice(o, value.toUtf8().constData()) || !probe->willChangePPDOptionKeyValue(key, value))))
            continue;
        options.optionStrings.append(LpCommand::optionArgument(key, value));
    }
    probe.reset();
    std::unique_ptr<PanelSession> session = PanelSession::open(options, &d->error);
    if (!session)
        return false;
    d->adopt(std::move(session), this);
    d->queue = queue;
    // A dialog shows the new printer's panels.
    if (QPrintDialog* dialog = d->dialog)
        addPanelsToDialog(dialog, nullptr);
    return true;
}

QString PrintPanelsIntegration::queue() const
{
    return d->queue;
}

QString PrintPanelsIntegration::errorString() const
{
    return d->error;
}
