#include "PrintDialogWindow.h"

#include "CupsDestinations.h"
#include "JobControls.h"
#include "LpCommand.h"
#include "LpCommandDialog.h"
#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "PDEPanel.h"
#include "PDESecrets.h"
#include "PresetStore.h"
#include "PrintJob.h"
#include "ui_PrintDialogWindow.h"

#include <QApplication>
#include <QCollator>
#include <QDir>
#include <QTabWidget>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTranslator>
#include <algorithm>
#include <cups/ppd.h>

namespace {
constexpr int KindRole = Qt::UserRole;
constexpr int ValueRole = Qt::UserRole + 1;
constexpr int NoticeTimeout = 20000;  // ms a notice stays in the status bar

QString nickNameOf(const QString& ppdPath)
{
    ppd_file_t* ppd = ppdOpenFile(QFile::encodeName(ppdPath).constData());
    if (!ppd)
        return QString();
    const QString name = QString::fromUtf8(ppd->nickname ? ppd->nickname : ppd->modelname ? ppd->modelname : "");
    ppdClose(ppd);
    return name;
}

// The text of a PPD option, and of one of its choices, for the user.
QString optionText(ppd_file_t* ppd, const QString& key)
{
    const ppd_option_t* o = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
    return o && o->text[0] ? QString::fromUtf8(o->text) : key;
}

QString choiceText(ppd_file_t* ppd, const QString& key, const QString& choice)
{
    ppd_option_t* o = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
    const ppd_choice_t* c = o ? ppdFindChoice(o, choice.toUtf8().constData()) : nullptr;
    return c && c->text[0] ? QString::fromUtf8(c->text) : choice;
}

QString valueText(const QVariant& v)
{
    if (v.typeId() == QMetaType::QStringList || v.typeId() == QMetaType::QVariantList)
        return v.toStringList().join(QStringLiteral(", "));
    return v.toString();
}

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
    ui->panelList->setUniformItemSizes(true);
    ui->summaryTree->header()->setStretchLastSection(true);

    connect(ui->printerCombo, &QComboBox::activated, this, &PrintDialogWindow::printerChosen);
    connect(ui->presetCombo, &QComboBox::activated, this, &PrintDialogWindow::presetChosen);
    connect(ui->savePresetButton, &QPushButton::clicked, this, &PrintDialogWindow::savePreset);
    connect(ui->deletePresetButton, &QPushButton::clicked, this, &PrintDialogWindow::deletePreset);
    connect(ui->addDocumentsButton, &QPushButton::clicked, this, &PrintDialogWindow::addDocuments);
    connect(ui->panelList, &QListWidget::currentRowChanged, this, &PrintDialogWindow::panelRowChanged);
    connect(ui->jobControls, &JobControls::changed, this, &PrintDialogWindow::jobSettingChanged);
    connect(ui->jobControls, &JobControls::refused, this, &PrintDialogWindow::setNotice);
    connect(ui->helpButton, &QPushButton::clicked, this, &PrintDialogWindow::helpClicked);
    connect(ui->printButton, &QPushButton::clicked, this, &PrintDialogWindow::printClicked);

    // The panels' alerts are message boxes over this window.
    PDEAlerts::setHandler([this](const PDEAlerts::Alert& alert) { return showAlert(this, alert); });
    showDocuments();
    updateMainButton();
}

PrintDialogWindow::~PrintDialogWindow()
{
    PDEAlerts::setHandler(nullptr);
    // The panels own their views: the scroll area must not delete the one shown.
    detachView();
    m_panels.clear();
    m_session.reset();
}

void PrintDialogWindow::installTranslations(const PDEBundle& bundle)
{
    static QTranslator* translator = nullptr;
    if (translator || !QCoreApplication::instance())
        return;
    translator = new QTranslator(QCoreApplication::instance());
    const QString dir = QDir(bundle.bundlePath()).filePath(QStringLiteral("translations"));
    if (translator->load(QStringLiteral("pde_") + bundle.language(), dir))
        QCoreApplication::installTranslator(translator);
}

bool PrintDialogWindow::openSession(const PanelSession::Options& options, QString* error)
{
    PanelSession::Options o = options;
    if (o.printer.isEmpty() && o.ppdPath.isEmpty())
        o.ppdPath = PanelSession::samplePrinterPPD(m_sampleDir);
    std::unique_ptr<PanelSession> session = PanelSession::open(o, error);
    if (!session)
        return false;
    installTranslations(session->bundle());

    // The panel shown is left, and its view given back, before its session goes.
    if (PDEPanel* shown = currentPanel())
        shown->shouldHide();
    detachView();
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->clear();
    }
    m_panels.clear();
    m_currentRow = -1;
    m_session = std::move(session);
    m_options = o;

    PrintDialogHost* host = &m_session->host();
    connect(host, &PrintDialogHost::panelViewResized, this, &PrintDialogWindow::panelViewResized);
    connect(host, &PrintDialogHost::optionsChangedByResolution, this, &PrintDialogWindow::optionsChangedByResolution);
    ui->jobControls->setHost(host, CupsDestinations::coverPages(isQueue() ? queueName() : QString()));
    fillPrinters();
    fillPresets();
    rebuildPanelList(0);
    updateMainButton();
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
    fillPrinters();
    fillPresets();
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
    const bool onSummary = m_currentRow >= 0 && !currentPanel();
    m_session->addPanel(panel);
    m_panels = m_session->panels();
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->insertItem(int(m_panels.size()) - 1, panel->panelName());
        if (onSummary)
            m_currentRow = ui->panelList->count() - 1;
        ui->panelList->setCurrentRow(m_currentRow);
    }
    if (onSummary)
        fillSummary();
}

PDEPanel* PrintDialogWindow::currentPanel() const
{
    return m_currentRow >= 0 && m_currentRow < m_panels.size() ? m_panels.at(m_currentRow).get() : nullptr;
}

bool PrintDialogWindow::isQueue() const
{
    return m_session && m_session->host().pmPrinter() && m_session->host().pmPrinter()->isQueue();
}

QString PrintDialogWindow::queueName() const
{
    return m_options.printer.section(QLatin1Char('/'), 0, 0);
}

QString PrintDialogWindow::presetName() const
{
    return m_options.printer.section(QLatin1Char('/'), 1);
}

// --- printers, presets, documents -------------------------------------------

void PrintDialogWindow::fillPrinters()
{
    const QSignalBlocker blocker(ui->printerCombo);
    QComboBox* combo = ui->printerCombo;
    combo->clear();
    for (const CupsDestinations::Queue& q : CupsDestinations::queues()) {
        const QString text = q.description.isEmpty() || q.description == q.name
                                 ? q.name
                                 : QStringLiteral("%1 (%2)").arg(q.description, q.name);
        combo->addItem(text);
        combo->setItemData(combo->count() - 1, QueueEntry, KindRole);
        combo->setItemData(combo->count() - 1, q.name, ValueRole);
    }
    if (isQueue() && combo->findData(queueName(), ValueRole) < 0) {
        combo->addItem(queueName());
        combo->setItemData(combo->count() - 1, QueueEntry, KindRole);
        combo->setItemData(combo->count() - 1, queueName(), ValueRole);
    }
    if (combo->count() > 0)
        combo->insertSeparator(combo->count());

    // The printers the bundle brings as samples, then the PPD file in use.
    if (m_session) {
        const QString printers = QDir(m_session->bundle().bundlePath()).filePath(QStringLiteral("printers"));
        for (const QString& file : QDir(printers).entryList({QStringLiteral("*.ppd")}, QDir::Files, QDir::Name)) {
            const QString path = PanelSession::samplePrinterPPD(m_sampleDir, QFileInfo(file).completeBaseName());
            if (path.isEmpty())
                continue;
            const QString nick = nickNameOf(path);
            combo->addItem(tr("%1 (sample PPD file)").arg(nick.isEmpty() ? file : nick));
            combo->setItemData(combo->count() - 1, PPDEntry, KindRole);
            combo->setItemData(combo->count() - 1, path, ValueRole);
        }
    }
    if (!isQueue() && !m_options.ppdPath.isEmpty() && combo->findData(m_options.ppdPath, ValueRole) < 0) {
        const QString nick = nickNameOf(m_options.ppdPath);
        const QString file = QFileInfo(m_options.ppdPath).fileName();
        combo->addItem(nick.isEmpty() ? tr("%1 (PPD file)").arg(file) : tr("%1 (PPD file %2)").arg(nick, file));
        combo->setItemData(combo->count() - 1, PPDEntry, KindRole);
        combo->setItemData(combo->count() - 1, m_options.ppdPath, ValueRole);
        combo->setItemData(combo->count() - 1, m_options.ppdPath, Qt::ToolTipRole);
    }
    combo->insertSeparator(combo->count());
    combo->addItem(tr("Other PPD File…"));
    combo->setItemData(combo->count() - 1, BrowseEntry, KindRole);

    const QString current = isQueue() ? queueName() : m_options.ppdPath;
    combo->setCurrentIndex(qMax(0, combo->findData(current, ValueRole)));
}

void PrintDialogWindow::printerChosen(int index)
{
    QComboBox* combo = ui->printerCombo;
    PanelSession::Options options;
    options.server = m_options.server;
    options.bundlePath = m_options.bundlePath;
    switch (combo->itemData(index, KindRole).toInt()) {
    case QueueEntry:
        options.printer = combo->itemData(index, ValueRole).toString();
        if (isQueue() && options.printer == queueName())
            return;
        break;
    case PPDEntry:
        options.ppdPath = combo->itemData(index, ValueRole).toString();
        if (!isQueue() && options.ppdPath == m_options.ppdPath)
            return;
        break;
    case BrowseEntry:
        options.ppdPath = QFileDialog::getOpenFileName(this, tr("Choose a PPD File"), QDir::homePath(),
                                                       tr("PPD files (*.ppd *.PPD);;All files (*)"));
        if (options.ppdPath.isEmpty()) {
            fillPrinters();
            return;
        }
        break;
    }
    reopen(options, true);
}

void PrintDialogWindow::fillPresets()
{
    const QSignalBlocker blocker(ui->presetCombo);
    ui->presetCombo->clear();
    const bool queue = isQueue();
    ui->presetCombo->addItem(queue ? tr("Default settings") : tr("None (no CUPS queue)"), QString());
    QString error;
    if (queue) {
        const PresetStore store(queueName(), m_options.server);
        for (const QString& name : store.names(&error))
            ui->presetCombo->addItem(name, name);
    }
    ui->presetCombo->setCurrentIndex(qMax(0, ui->presetCombo->findData(presetName())));
    const QString why = queue ? QString() : tr("Presets are kept with a CUPS queue; a PPD file has none.");
    for (QWidget* w : {static_cast<QWidget*>(ui->presetCombo), static_cast<QWidget*>(ui->savePresetButton)}) {
        w->setEnabled(queue);
        w->setToolTip(why);
    }
    ui->deletePresetButton->setEnabled(queue && !presetName().isEmpty());
    if (!error.isEmpty())
        setNotice(tr("Presets cannot be read: %1").arg(error));
}

void PrintDialogWindow::presetChosen(int index)
{
    const QString name = ui->presetCombo->itemData(index).toString();
    if (!isQueue() || name == presetName())
        return;
    PanelSession::Options options;
    options.server = m_options.server;
    options.bundlePath = m_options.bundlePath;
    // A preset is an instance of the queue: CUPS gives its options with it.
    options.printer = name.isEmpty() ? queueName() : queueName() + QLatin1Char('/') + name;
    // A preset stands for its own settings: nothing is carried into it.
    if (reopen(options, false))
        setNotice(name.isEmpty() ? tr("The printer's default settings are used.") : tr("Preset \"%1\" chosen.").arg(name));
}

void PrintDialogWindow::savePreset()
{
    if (!isQueue())
        return;
    auto* ask = new QInputDialog(this);
    ask->setObjectName(QStringLiteral("presetNameDialog"));
    ask->setAttribute(Qt::WA_DeleteOnClose);
    ask->setWindowTitle(tr("Save Preset"));
    ask->setLabelText(tr("Save the current settings as the preset:"));
    ask->setTextValue(presetName());
    connect(ask, &QInputDialog::textValueSelected, this, [this](const QString& text) {
        const QString name = text.trimmed();
        QString error;
        PresetStore store(queueName(), m_options.server);
        if (!PresetStore::isValidName(name, &error) || !savePanels(&error)
            || !store.save(name, m_session->host().jobOptions(), &error)) {
            QMessageBox::warning(this, windowTitle(), tr("The preset cannot be saved: %1").arg(error));
            return;
        }
        // The settings shown are now the preset's: it becomes the chosen one.
        m_options.printer = queueName() + QLatin1Char('/') + name;
        fillPresets();
        setNotice(tr("Preset \"%1\" saved. Passwords and PINs are not kept in presets.").arg(name));
    });
    ask->open();
}

void PrintDialogWindow::deletePreset()
{
    const QString name = presetName();
    if (!isQueue() || name.isEmpty())
        return;
    if (QMessageBox::question(this, windowTitle(), tr("Delete the preset \"%1\"?").arg(name)) != QMessageBox::Yes)
        return;
    QString error;
    PresetStore store(queueName(), m_options.server);
    if (!store.remove(name, &error)) {
        QMessageBox::warning(this, windowTitle(), tr("The preset cannot be deleted: %1").arg(error));
        return;
    }
    // The settings stay as they are, now without a preset's name.
    m_options.printer = queueName();
    fillPresets();
    setNotice(tr("Preset \"%1\" deleted.").arg(name));
}

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

// --- panels -------------------------------------------------------------------

void PrintDialogWindow::rebuildPanelList(int selectRow)
{
    m_panels = m_session ? m_session->panels() : QList<std::shared_ptr<PDEPanel>>();
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->clear();
        for (const auto& p : std::as_const(m_panels))
            ui->panelList->addItem(p->panelName());
        auto* summary = new QListWidgetItem(tr("Summary"));
        QFont f = summary->font();
        f.setItalic(true);
        summary->setFont(f);
        ui->panelList->addItem(summary);
    }
    m_currentRow = -1;
    const int row = qBound(0, selectRow, ui->panelList->count() - 1);
    {
        const QSignalBlocker blocker(ui->panelList);
        ui->panelList->setCurrentRow(row);
    }
    switchTo(row);
}

void PrintDialogWindow::panelRowChanged(int row)
{
    if (row < 0 || row == m_currentRow)
        return;
    if (switchTo(row))
        return;
    // The panel shown refused to be left: it stays selected.
    const QSignalBlocker blocker(ui->panelList);
    ui->panelList->setCurrentRow(m_currentRow);
    if (PDEPanel* p = currentPanel())
        setNotice(tr("%1 cannot be left yet: check its settings first.").arg(p->panelName()));
}

bool PrintDialogWindow::switchTo(int row)
{
    if (row == m_currentRow)
        return true;
    if (PDEPanel* leaving = currentPanel()) {
        if (!leaving->shouldHide())
            return false;
    }
    detachView();
    m_currentRow = row;
    if (PDEPanel* panel = currentPanel()) {
        attachView(panel);
        ui->pageStack->setCurrentWidget(ui->panelPage);
    } else {
        fillSummary();
        ui->pageStack->setCurrentWidget(ui->summaryPage);
    }
    ui->helpButton->setEnabled(currentPanel() != nullptr);
    // A panel may have changed settings the job controls show.
    ui->jobControls->syncFromHost();
    return true;
}

void PrintDialogWindow::attachView(PDEPanel* panel)
{
    QWidget* view = panel->panelView();
    panel->willShow();
    if (!view) {
        auto* label = new QLabel(tr("This panel has no settings to show."));
        label->setAlignment(Qt::AlignCenter);
        m_placeholder = label;
        ui->panelArea->setWidget(label);
        return;
    }
    m_shownViewParent = view->parentWidget();
    m_shownView = view;
    // The view keeps the size its panel gives it (its size hint until the
    // panel sets one); the area around it is made to fit.
    ui->panelArea->setWidget(view);
    fitPanelArea(view->size());
}

void PrintDialogWindow::detachView()
{
    QWidget* w = ui->panelArea->takeWidget();
    if (w && w == m_placeholder)
        delete w;
    else if (w && m_shownViewParent)
        w->setParent(m_shownViewParent);
    m_shownView = nullptr;
    m_shownViewParent = nullptr;
}

void PrintDialogWindow::fitPanelArea(const QSize& wanted)
{
    if (!wanted.isValid() || wanted.isEmpty())
        return;
    const int frame = 2 * ui->panelArea->frameWidth();
    const QSize area = wanted + QSize(frame, frame);
    layout()->activate();
    // As large as the panel asks, as far as the screen allows the window to grow.
    const QSize screenSize = screen() ? screen()->availableGeometry().size() : QSize(1280, 900);
    const QSize around = size() - ui->panelArea->size();
    const QSize room = (screenSize - around).expandedTo(QSize(240, 160));
    ui->panelArea->setMinimumSize(area.boundedTo(room));
    layout()->activate();
    const QSize grown = size().expandedTo(minimumSizeHint()).boundedTo(screenSize);
    if (grown != size())
        resize(grown);
}

void PrintDialogWindow::panelViewResized()
{
    // The panel shown has just given its view a new size: the window follows.
    if (currentPanel() && m_shownView)
        fitPanelArea(m_shownView->size());
}

void PrintDialogWindow::fillSummary()
{
    QTreeWidget* tree = ui->summaryTree;
    tree->clear();
    ppd_file_t* ppd = m_session ? m_session->host().ppd() : nullptr;
    auto addGroup = [tree](const QString& title) {
        auto* item = new QTreeWidgetItem(tree, {title});
        QFont f = item->font(0);
        f.setBold(true);
        item->setFont(0, f);
        item->setFirstColumnSpanned(true);
        return item;
    };
    QTreeWidgetItem* job = addGroup(tr("Job"));
    for (const auto& [label, value] : ui->jobControls->summary())
        new QTreeWidgetItem(job, {label, value});
    for (const auto& p : std::as_const(m_panels)) {
        QTreeWidgetItem* group = addGroup(p->panelName());
        const QVariantMap info = p->summaryInfo();
        if (info.isEmpty()) {
            auto* none = new QTreeWidgetItem(group, {tr("No settings to summarize")});
            none->setDisabled(true);
        }
        // Rows by the options' texts, as the user reads them.
        QList<QStringList> rows;
        for (auto it = info.cbegin(); it != info.cend(); ++it) {
            const QString value = PDESecrets::isSecretKey(it.key())
                                      ? tr("(hidden)")
                                      : choiceText(ppd, it.key(), valueText(it.value()));
            rows.append({optionText(ppd, it.key()), value, it.key()});
        }
        QCollator collator;
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        std::sort(rows.begin(), rows.end(), [&](const QStringList& a, const QStringList& b) { return collator.compare(a[0], b[0]) < 0; });
        for (const QStringList& row : std::as_const(rows)) {
            auto* item = new QTreeWidgetItem(group, {row[0], row[1]});
            item->setToolTip(0, row[2]);
        }
    }
    tree->expandAll();
    tree->resizeColumnToContents(0);
    tree->scrollToTop();
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
            for (const auto& p : std::as_const(m_panels))
                p->PPDOptionKeyValueDidChange(key, choice);
        }
    }
    emit host.update();
    if (!currentPanel() && m_currentRow >= 0)
        fillSummary();
}

void PrintDialogWindow::optionsChangedByResolution(const PrintDialogHost::OptionList& changes)
{
    if (!m_session || changes.isEmpty())
        return;
    ppd_file_t* ppd = m_session->host().ppd();
    QStringList parts;
    for (const auto& [key, choice] : changes)
        parts.append(tr("%1 set to %2").arg(optionText(ppd, key), choiceText(ppd, key, choice)));
    setNotice(tr("To resolve a conflict, %1.").arg(parts.join(tr(", "))));
    ui->jobControls->syncFromHost();
    if (!currentPanel() && m_currentRow >= 0)
        fillSummary();
}

void PrintDialogWindow::helpClicked()
{
    if (PDEPanel* p = currentPanel())
        p->shouldShowHelp();
}

// --- printing -------------------------------------------------------------------

bool PrintDialogWindow::savePanels(QString* error)
{
    for (const auto& p : std::as_const(m_panels)) {
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
    QString refusal;
    if (!m_session->prepareToPrint(&refusal)) {
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
    shoot(QStringLiteral("dialog.png"));
    const int summaryRow = ui->panelList->count() - 1;
    for (int row = 0; row < ui->panelList->count(); ++row) {
        ui->panelList->setCurrentRow(row);
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

void PrintDialogWindow::shootPanel(int row, const std::function<void(const QString&)>& shoot)
{
    const QString base = QStringLiteral("panel-%1-%2").arg(row + 1, 2, 10, QLatin1Char('0')).arg(slugOf(m_panels.at(row)->panelName()));
    QWidget* view = m_panels.at(row)->panelView();
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
    if (m_session) {
        fillPrinters();
        fillPresets();
        if (QListWidgetItem* summary = ui->panelList->item(ui->panelList->count() - 1))
            summary->setText(tr("Summary"));
        if (!currentPanel() && m_currentRow >= 0)
            fillSummary();
    }
}

void PrintDialogWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}
