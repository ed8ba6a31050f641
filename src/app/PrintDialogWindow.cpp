#include "PrintDialogWindow.h"

#include "CupsDestList.h"
#include "CupsDestinations.h"
#include "JobControls.h"
#include "LpCommand.h"
#include "LpCommandDialog.h"
#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "PDEPanel.h"
#include "PrintDialogHost.h"
#include "PanelStack.h"
#include "PrintJob.h"
#include "PDESecrets.h"
#include "PrinterPresetBar.h"
#include "QueuePPDCheck.h"
#include "ui_PrintDialogWindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QMap>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTranslator>
#include <cups/ppd.h>

namespace {
constexpr int NoticeTimeout = 20000;  // ms a notice stays in the status bar

// A file-name part made of a panel's name: "Graphics/Paper" -> "graphics-paper".
QString slugOf(const QString& name)
{
    QString out;
    for (QChar c : name.toLower()) {
        if ((c >= QLatin1Char('a') && c <= QLatin1Char('z')) || c.isDigit())
            out += c;
        else if (!out.endsWith(QLatin1Char('-')))
            out += QLatin1Char('-');
    }
    while (out.endsWith(QLatin1Char('-')))
        out.chop(1);
    return out.isEmpty() ? QStringLiteral("panel") : out;
}

// An alert of a panel as a message box: the title as its text, the message
// below, the panel's buttons with the first as the default.
int showAlert(QWidget* parent, const PDEAlerts::Alert& alert)
{
    QMessageBox box(alert.informational ? QMessageBox::Information : QMessageBox::Warning,
                    parent ? parent->windowTitle() : QString(), alert.title, QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("panelAlert"));
    box.setInformativeText(alert.message);
    QPushButton* defaultButton = box.addButton(
        alert.defaultButton.isEmpty() ? QCoreApplication::translate("PrintDialogWindow", "OK") : alert.defaultButton,
        QMessageBox::AcceptRole);
    QPushButton* alternate = alert.alternateButton.isEmpty() ? nullptr : box.addButton(alert.alternateButton, QMessageBox::RejectRole);
    QPushButton* other = alert.otherButton.isEmpty() ? nullptr : box.addButton(alert.otherButton, QMessageBox::ActionRole);
    box.setDefaultButton(defaultButton);
    box.setEscapeButton(alternate ? alternate : defaultButton);
    box.exec();
    if (alternate && box.clickedButton() == alternate)
        return PDEAlerts::AlternateButton;
    if (other && box.clickedButton() == other)
        return PDEAlerts::OtherButton;
    return PDEAlerts::DefaultButton;
}
}

PrintDialogWindow::PrintDialogWindow(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::PrintDialogWindow>())
{
    ui->setupUi(this);
    PrinterPresetBar* bar = ui->printerPresetBar;
    bar->setSettingsSource([this](PrintDialogHost::OptionList* options, QString* error) { return currentSettings(options, error); });
    connect(bar, &PrinterPresetBar::openRequested, this, &PrintDialogWindow::reopen);
    connect(bar, &PrinterPresetBar::presetRenamed, this, [this](const QString& printer) { m_options.printer = printer; });
    connect(bar, &PrinterPresetBar::notice, this, &PrintDialogWindow::setNotice);
    ui->panelStack->setJobSummary([this] { return ui->jobControls->summary(); });
    connect(ui->panelStack, &PanelStack::currentChanged, this, &PrintDialogWindow::panelShown);
    connect(ui->panelStack, &PanelStack::notice, this, &PrintDialogWindow::setNotice);
    connect(ui->addDocumentsButton, &QPushButton::clicked, this, &PrintDialogWindow::addDocuments);
    connect(ui->jobControls, &JobControls::changed, this, &PrintDialogWindow::jobSettingChanged);
    connect(ui->jobControls, &JobControls::refused, this, &PrintDialogWindow::setNotice);
    connect(ui->helpButton, &QPushButton::clicked, this, &PrintDialogWindow::helpClicked);
    connect(ui->printButton, &QPushButton::clicked, this, &PrintDialogWindow::printClicked);

    // The panels' alerts are message boxes over this window.
    // A panel alerting while its print checks run is brought to the front first.
    PDEAlerts::setHandler([this](const PDEAlerts::Alert& alert) {
        if (m_askingPanel)
            ui->panelStack->showPanel(m_askingPanel);
        return showAlert(this, alert);
    });
    showDocuments();
    updateMainButton();
}

PrintDialogWindow::~PrintDialogWindow()
{
    PDEAlerts::setHandler(nullptr);
    // The panels own their views: the stack gives the one shown back first.
    ui->panelStack->clear(false);
    m_session.reset();
}

void PrintDialogWindow::installTranslations(const PDEBundle& bundle)
{
    static QTranslator* translator = nullptr;
    if (translator || !QCoreApplication::instance())
        return;
    translator = new QTranslator(QCoreApplication::instance());
    const QString dir = QDir(bundle.bundlePath()).filePath(QStringLiteral("translations"));
    if (!translator->load(QStringLiteral("pde_") + bundle.language(), dir))
        return;
    QCoreApplication::installTranslator(translator);
    // The language change reaches the widgets now, while they are still
    // empty, not after they were filled: the lists are filled once.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
}

bool PrintDialogWindow::openSession(const PanelSession::Options& options, QString* error)
{
    // The server is asked for its destinations once per window: every printer
    // opened, the chooser, the presets and the cover pages come from that
    // answer, with the lpoptions files read again for each opening.
    PanelSession::Options withDestinations = options;
    if (!withDestinations.destinations)
        withDestinations.destinations = m_destinations && options.server == m_options.server
                                            ? std::make_shared<const CupsDestList>(m_destinations->printers())
                                            : std::make_shared<const CupsDestList>(options.server);
    // Without a printer, the session picks one (the user's default queue).
    std::unique_ptr<PanelSession> session = PanelSession::open(withDestinations, error);
    if (!session)
        return false;
    m_destinations = withDestinations.destinations;
    installTranslations(session->bundle());

    ui->panelStack->clear();
    m_session = std::move(session);
    // What was opened, as the chooser shows it: the queue (with its preset) or the PPD file.
    m_options = options;
    m_options.destinations.reset();
    const PMPrinter* printer = m_session->host().pmPrinter();
    m_options.printer = isQueue() ? printer->name() : QString();
    m_options.ppdPath = isQueue() ? QString() : m_session->host().ppdPath();

    PrintDialogHost* host = &m_session->host();
    connect(host, &PrintDialogHost::panelViewResized, ui->panelStack, &PanelStack::panelViewResized);
    connect(host, &PrintDialogHost::optionsChangedByResolution, this, &PrintDialogWindow::optionsChangedByResolution);
    ui->jobControls->setHost(host, CupsDestinations::coverPages(*m_destinations, isQueue() ? m_options.printer : QString()));
    ui->printerPresetBar->showSession(m_session.get(), m_options, m_destinations);
    ui->panelStack->setPanels(m_session->panels(), host->ppd(), 0);
    updateMainButton();
    // What the opening changed or could not use (saved options, preset, -o).
    const QStringList opening = QStringList{conflictText(m_session->resolutionChanges())} + m_session->openingWarnings();
    setNotice(opening.join(QLatin1Char(' ')).trimmed());
    return true;
}

bool PrintDialogWindow::reopen(const PanelSession::Options& options, bool carry)
{
    QString error;
    // The job settings chosen here go along to the new printer, where they fit.
    const QStringList carried = carry ? ui->jobControls->chosenOptions() : QStringList();
    PanelSession::Options withCarried = options;
    withCarried.optionStrings += carried;
    if (openSession(withCarried, &error) || (!carried.isEmpty() && openSession(options, &error)))
        return true;
    QMessageBox::warning(this, windowTitle(), tr("The printer cannot be used: %1").arg(error));
    ui->printerPresetBar->refresh();
    return false;
}

void PrintDialogWindow::setDocuments(const QStringList& files)
{
    m_documents.clear();
    for (const QString& f : files)
        m_documents.append(QFileInfo(f).absoluteFilePath());
    showDocuments();
    updateMainButton();
}

void PrintDialogWindow::addPanel(std::shared_ptr<PDEPanel> panel)
{
    if (!m_session || !panel)
        return;
    m_session->addPanel(panel);
    ui->panelStack->appendPanel(panel);
}

PDEPanel* PrintDialogWindow::currentPanel() const
{
    return ui->panelStack->currentPanel();
}

bool PrintDialogWindow::isQueue() const
{
    return m_session && m_session->host().pmPrinter() && m_session->host().pmPrinter()->isQueue();
}

// --- documents --------------------------------------------------------------------

void PrintDialogWindow::showDocuments()
{
    QStringList names;
    for (const QString& f : std::as_const(m_documents))
        names.append(QFileInfo(f).fileName());
    ui->documentsText->setText(names.isEmpty() ? tr("None") : names.join(QStringLiteral(", ")));
    ui->documentsText->setToolTip(m_documents.join(QLatin1Char('\n')));
    setWindowTitle(names.isEmpty() ? tr("Print") : tr("Print %1").arg(names.join(QStringLiteral(", "))));
}

void PrintDialogWindow::addDocuments()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Documents to Print"), QDir::homePath());
    if (files.isEmpty())
        return;
    setDocuments(m_documents + files);
}

void PrintDialogWindow::updateMainButton()
{
    if (m_session && !isQueue()) {
        ui->printButton->setText(tr("Show &lp Command…"));
        ui->printButton->setToolTip(tr("This printer is a PPD file without a CUPS queue: "
                                       "the command that prints with these settings is shown instead."));
        ui->printButton->setEnabled(true);
        return;
    }
    ui->printButton->setText(tr("&Print"));
    const bool ready = m_session && !m_documents.isEmpty();
    ui->printButton->setEnabled(ready);
    ui->printButton->setToolTip(ready || !m_session ? QString() : tr("Add the documents to print first."));
}

void PrintDialogWindow::setNotice(const QString& text)
{
    ui->statusBar->showMessage(text, NoticeTimeout);
}

void PrintDialogWindow::panelShown()
{
    ui->helpButton->setEnabled(currentPanel() != nullptr);
    // A panel may have changed settings the job controls show.
    ui->jobControls->syncFromHost();
}

// --- changes --------------------------------------------------------------------

void PrintDialogWindow::jobSettingChanged(const QString& key)
{
    if (!m_session)
        return;
    PrintDialogHost& host = m_session->host();
    if (key == QLatin1String("PageSize")) {
        // The dialog changed a PPD option: the panels hear of it as of any
        // change made outside them.
        if (const ppd_choice_t* marked = host.ppd() ? ppdFindMarkedChoice(host.ppd(), "PageSize") : nullptr) {
            const QString choice = QString::fromUtf8(marked->choice);
            for (const auto& p : m_session->panels())
                p->PPDOptionKeyValueDidChange(key, choice);
        }
    }
    emit host.update();
    ui->panelStack->refreshSummary();
}

QString PrintDialogWindow::conflictText(const PrintDialogHost::OptionList& changes) const
{
    if (!m_session || changes.isEmpty())
        return QString();
    ppd_file_t* ppd = m_session->host().ppd();
    QStringList parts;
    for (const auto& [key, choice] : changes)
        parts.append(tr("%1 set to %2").arg(PrintDialogHost::optionText(ppd, key), PrintDialogHost::choiceText(ppd, key, choice)));
    return tr("To resolve a conflict, %1.").arg(parts.join(tr(", ")));
}

void PrintDialogWindow::optionsChangedByResolution(const PrintDialogHost::OptionList& changes)
{
    if (!m_session || changes.isEmpty())
        return;
    setNotice(conflictText(changes));
    ui->jobControls->syncFromHost();
    ui->panelStack->refreshSummary();
}

void PrintDialogWindow::helpClicked()
{
    if (PDEPanel* p = currentPanel())
        p->shouldShowHelp();
}

// --- printing -------------------------------------------------------------------

bool PrintDialogWindow::currentSettings(PrintDialogHost::OptionList* options, QString* error)
{
    if (!m_session || !savePanels(error))
        return false;
    *options = m_session->host().jobOptions();
    return true;
}

bool PrintDialogWindow::savePanels(QString* error)
{
    for (const auto& p : m_session->panels()) {
        QString panelError;
        if (!p->saveValuesAndReturnError(&panelError)) {
            *error = panelError.isEmpty() ? tr("the settings of %1 are not complete").arg(p->panelName()) : panelError;
            return false;
        }
    }
    // Resolution reports made while saving reach the panels first.
    QCoreApplication::sendPostedEvents();
    return true;
}

void PrintDialogWindow::printClicked()
{
    if (!m_session)
        return;
    QString invalid;
    if (!ui->jobControls->checkInput(&invalid)) {
        setNotice(invalid);
        return;
    }
    // The queue may have been given another PPD since the dialog opened:
    // its options are then not the ones shown, and nothing is printed blindly.
    if (isQueue()
        && QueuePPDCheck::compare(m_options.printer, m_options.server, m_session->host().ppdPath()) == QueuePPDCheck::Result::Changed) {
        reloadChangedPrinter();
        return;
    }
    QString refusal;
    const bool ready = m_session->prepareToPrint(&refusal, [this](PDEPanel* panel) { m_askingPanel = panel; });
    m_askingPanel = nullptr;
    if (!ready) {
        setNotice(tr("Not printed: %1").arg(refusal));
        return;
    }
    if (!isQueue()) {
        showLpCommand();
        return;
    }
    QString error;
    if (!submitJob(&error)) {
        QMessageBox::warning(this, windowTitle(), tr("The job was not printed: %1").arg(error));
        return;
    }
    accept();
}

void PrintDialogWindow::reloadChangedPrinter()
{
    QString error;
    PrintDialogHost::OptionList chosen;
    if (!currentSettings(&chosen, &error)) {
        setNotice(tr("Not printed: %1").arg(error));
        return;
    }
    // The job settings go along as they are; every PPD choice shown goes to
    // the new PPD where it has the option; the ones it has no place for are
    // named, except the old PPD's defaults (nobody chose those).
    ppd_file_t* old = m_session->host().ppd();
    QStringList settings, carried;
    QMap<QString, QString> chosenText;
    for (const auto& [key, value] : std::as_const(chosen)) {
        const QString argument = LpCommand::optionArgument(key, value);
        const ppd_option_t* option = old ? ppdFindOption(old, key.toUtf8().constData()) : nullptr;
        (option ? carried : settings).append(argument);
        if (option && value != QString::fromUtf8(option->defchoice))
            chosenText.insert(argument, PDESecrets::isSecretKey(key) ? PrintDialogHost::optionText(old, key)
                                                                     : tr("%1: %2").arg(PrintDialogHost::optionText(old, key),
                                                                                        PrintDialogHost::choiceText(old, key, value)));
    }
    PanelSession::Options options = m_options;
    options.optionStrings = settings;
    options.carriedOptions = carried;
    if (!openSession(options, &error)) {
        QMessageBox::warning(this, windowTitle(), tr("The printer was changed on the server and cannot be used now: %1").arg(error));
        return;
    }
    QStringList lost;
    for (const QString& argument : m_session->notCarried())
        if (chosenText.contains(argument))
            lost.append(chosenText.value(argument));
    QString text = tr("The printer %1 was changed on the server while this dialog was open: nothing was printed. "
                      "Its settings were loaded again with your choices; check them and print again.")
                       .arg(m_options.printer);
    if (!lost.isEmpty())
        text += QLatin1Char(' ') + tr("The printer no longer has these choices: %1.").arg(lost.join(tr(", ")));
    m_options.carriedOptions.clear();
    QMessageBox::information(this, windowTitle(), text);
}

bool PrintDialogWindow::submitJob(QString* error)
{
    if (m_documents.isEmpty()) {
        *error = tr("there is no document to print");
        return false;
    }
    PrintJob job(m_options.printer, m_options.server);
    job.setFiles(m_documents);
    job.setOptions(m_session->host().jobOptions());
    if (!job.checkDocuments(error))
        return false;
    if (!job.submit()) {
        *error = job.errorString();
        return false;
    }
    m_submittedJob = job.jobId();
    emit jobSubmitted(m_submittedJob);
    return true;
}

void PrintDialogWindow::showLpCommand()
{
    const QString queue = m_session->host().pmPrinter() ? m_session->host().pmPrinter()->name() : QString();
    const LpCommand command(queue, m_session->host().jobOptions(), m_documents);
    auto* dialog = new LpCommandDialog(command.commandLine(), command.hidesSecrets(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

// --- screenshots and languages ------------------------------------------------

QStringList PrintDialogWindow::saveScreenshots(const QString& dir, QString* error)
{
    QStringList written;
    if (!QDir().mkpath(dir)) {
        *error = tr("%1: the folder cannot be made").arg(dir);
        return written;
    }
    if (!isVisible())
        show();
    auto shoot = [&](const QString& name) {
        // Delayed layouts (item views lay out on a timer) settle first.
        QElapsedTimer settle;
        settle.start();
        while (settle.elapsed() < 150)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        const QString path = QDir(dir).filePath(name);
        if (grab().save(path, "PNG"))
            written.append(path);
        else
            *error = tr("%1 cannot be written").arg(path);
    };
    PanelStack* stack = ui->panelStack;
    // PRINT_PANELS_SCREENSHOTS_PANEL=N[:VARIANT] shoots only panel N (from 1),
    // its files named with VARIANT: the same panel with other settings.
    const QString only = qEnvironmentVariable("PRINT_PANELS_SCREENSHOTS_PANEL");
    if (!only.isEmpty()) {
        const int row = only.section(QLatin1Char(':'), 0, 0).toInt() - 1;
        if (row < 0 || row >= stack->count() - 1) {
            *error = tr("there is no panel %1").arg(row + 1);
            return written;
        }
        stack->selectRow(row);
        shootPanel(row, shoot, only.section(QLatin1Char(':'), 1));
        return written;
    }
    shoot(QStringLiteral("dialog.png"));
    const int summaryRow = stack->count() - 1;
    for (int row = 0; row < stack->count(); ++row) {
        stack->selectRow(row);
        if (row == summaryRow)
            shoot(QStringLiteral("summary.png"));
        else
            shootPanel(row, shoot);
    }
    // A printer that is only a PPD file: the lp command its main button shows.
    if (m_session && !isQueue()) {
        ui->printButton->click();
        if (auto* lp = findChild<LpCommandDialog*>()) {
            QElapsedTimer settle;
            settle.start();
            while (settle.elapsed() < 150)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            const QString path = QDir(dir).filePath(QStringLiteral("lp-command.png"));
            if (lp->grab().save(path, "PNG"))
                written.append(path);
            lp->close();
        }
    }
    return written;
}

void PrintDialogWindow::shootPanel(int row, const std::function<void(const QString&)>& shoot, const QString& variant)
{
    PDEPanel* panel = ui->panelStack->panelAt(row);
    QString base = QStringLiteral("panel-%1-%2").arg(row + 1, 2, 10, QLatin1Char('0')).arg(slugOf(panel->panelName()));
    if (!variant.isEmpty())
        base += QLatin1Char('-') + slugOf(variant);
    QWidget* view = panel->panelView();
    auto* tabs = view ? view->findChild<QTabWidget*>() : nullptr;
    if (!tabs || tabs->count() < 2) {
        shoot(base + QStringLiteral(".png"));
        return;
    }
    // A panel with tabs: one picture of each tab, the first tab selected again after.
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        shoot(QStringLiteral("%1-tab-%2-%3.png").arg(base).arg(i + 1).arg(slugOf(tabs->tabText(i))));
    }
    tabs->setCurrentIndex(0);
}

void PrintDialogWindow::retranslate()
{
    ui->retranslateUi(this);
    showDocuments();
    updateMainButton();
}

void PrintDialogWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}
