#include "PrinterPresetBar.h"

#include "CupsDestList.h"
#include "CupsDestinations.h"
#include "PDEBundle.h"
#include "PresetStore.h"
#include "ui_PrinterPresetBar.h"

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QSignalBlocker>
#include <cups/ppd.h>

namespace {
constexpr int KindRole = Qt::UserRole;
constexpr int ValueRole = Qt::UserRole + 1;

// The *NickName of a PPD file, read from its first lines (it comes early;
// the whole file need not be parsed for a name).
QString nickNameOf(const QString& ppdPath)
{
    QFile file(ppdPath);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    for (int line = 0; line < 200 && !file.atEnd(); ++line) {
        const QByteArray text = file.readLine(1024).trimmed();
        if (!text.startsWith("*NickName:"))
            continue;
        const qsizetype open = text.indexOf('"'), close = text.lastIndexOf('"');
        return close > open ? QString::fromUtf8(text.mid(open + 1, close - open - 1)).trimmed() : QString();
    }
    return QString();
}
}

PrinterPresetBar::PrinterPresetBar(QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::PrinterPresetBar>())
{
    ui->setupUi(this);
    connect(ui->printerCombo, &QComboBox::activated, this, &PrinterPresetBar::printerChosen);
    connect(ui->presetCombo, &QComboBox::activated, this, &PrinterPresetBar::presetChosen);
    connect(ui->savePresetButton, &QPushButton::clicked, this, &PrinterPresetBar::savePreset);
    connect(ui->deletePresetButton, &QPushButton::clicked, this, &PrinterPresetBar::deletePreset);
    ui->defaultsButton->addAction(ui->useAsDefaultsAction);
    ui->defaultsButton->addAction(ui->makeDefaultPrinterAction);
    connect(ui->useAsDefaultsAction, &QAction::triggered, this, &PrinterPresetBar::useAsDefaults);
    connect(ui->makeDefaultPrinterAction, &QAction::triggered, this, &PrinterPresetBar::makeDefaultPrinter);
}

PrinterPresetBar::~PrinterPresetBar() = default;

void PrinterPresetBar::showSession(PanelSession* session, const PanelSession::Options& opened, std::shared_ptr<const CupsDestList> dests)
{
    m_session = session;
    m_opened = opened;
    m_dests = std::move(dests);
    fillPrinters(*m_dests);
    fillPresets(*m_dests);
}

void PrinterPresetBar::refresh()
{
    m_dests = m_dests ? std::make_shared<const CupsDestList>(m_dests->printers()) : std::make_shared<const CupsDestList>(m_opened.server);
    fillPrinters(*m_dests);
    fillPresets(*m_dests);
}

bool PrinterPresetBar::isQueue() const
{
    return m_session && m_session->host().pmPrinter() && m_session->host().pmPrinter()->isQueue();
}

QString PrinterPresetBar::queueName() const
{
    return m_opened.printer.section(QLatin1Char('/'), 0, 0);
}

QString PrinterPresetBar::presetName() const
{
    return m_opened.printer.section(QLatin1Char('/'), 1);
}

PanelSession::Options PrinterPresetBar::optionsFor() const
{
    PanelSession::Options options;
    options.server = m_opened.server;
    options.bundlePath = m_opened.bundlePath;
    return options;
}

QString PrinterPresetBar::stateText(const CupsDestinations::Queue& queue)
{
    QString state = queue.state == 5 ? tr("stopped") : queue.state == 4 ? tr("printing") : tr("idle");
    return queue.accepting ? state : tr("%1, not accepting jobs").arg(state);
}

void PrinterPresetBar::fillPrinters(const CupsDestList& dests)
{
    const QSignalBlocker blocker(ui->printerCombo);
    QComboBox* combo = ui->printerCombo;
    combo->clear();
    for (const CupsDestinations::Queue& q : CupsDestinations::queues(dests)) {
        const QString name = q.description.isEmpty() || q.description == q.name
                                 ? q.name
                                 : QStringLiteral("%1 (%2)").arg(q.description, q.name);
        const QString state = stateText(q);
        combo->addItem(q.location.isEmpty() ? tr("%1 \u2014 %2").arg(name, state)
                                            : tr("%1 \u2014 %2, %3").arg(name, state, q.location));
        QStringList tip{name};
        if (!q.makeAndModel.isEmpty())
            tip << tr("Make and model: %1").arg(q.makeAndModel);
        if (!q.location.isEmpty())
            tip << tr("Location: %1").arg(q.location);
        tip << tr("State: %1").arg(state);
        if (q.isDefault)
            tip << tr("Your default printer");
        combo->setItemData(combo->count() - 1, tip.join(QLatin1Char('\n')), Qt::ToolTipRole);
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

    int sampleIndex = -1;
    // The printers the bundle brings as samples, then the PPD file in use.
    if (m_session) {
        const QString printers = QDir(m_session->bundle().bundlePath()).filePath(QStringLiteral("printers"));
        // Without name filters, which QDir turns into regular expressions.
        for (const QString& file : QDir(printers).entryList(QDir::Files, QDir::Name)) {
            if (!file.endsWith(QLatin1String(".ppd")))
                continue;
            const QString nick = nickNameOf(QDir(printers).filePath(file));
            combo->addItem(tr("%1 (sample PPD file)").arg(nick.isEmpty() ? file : nick));
            combo->setItemData(combo->count() - 1, SampleEntry, KindRole);
            combo->setItemData(combo->count() - 1, QFileInfo(file).completeBaseName(), ValueRole);
            // The sample in use, wherever it was copied to.
            if (!isQueue() && QFileInfo(m_opened.ppdPath).fileName() == file && nickNameOf(m_opened.ppdPath) == nick)
                sampleIndex = combo->count() - 1;
        }
    }
    if (!isQueue() && sampleIndex < 0 && !m_opened.ppdPath.isEmpty() && combo->findData(m_opened.ppdPath, ValueRole) < 0) {
        const QString nick = nickNameOf(m_opened.ppdPath);
        const QString file = QFileInfo(m_opened.ppdPath).fileName();
        combo->addItem(nick.isEmpty() ? tr("%1 (PPD file)").arg(file) : tr("%1 (PPD file %2)").arg(nick, file));
        combo->setItemData(combo->count() - 1, PPDEntry, KindRole);
        combo->setItemData(combo->count() - 1, m_opened.ppdPath, ValueRole);
        combo->setItemData(combo->count() - 1, m_opened.ppdPath, Qt::ToolTipRole);
    }
    combo->insertSeparator(combo->count());
    combo->addItem(tr("Other PPD File…"));
    combo->setItemData(combo->count() - 1, BrowseEntry, KindRole);

    const QString current = isQueue() ? queueName() : m_opened.ppdPath;
    m_sampleIndex = sampleIndex;
    combo->setCurrentIndex(sampleIndex >= 0 ? sampleIndex : qMax(0, combo->findData(current, ValueRole)));
}

void PrinterPresetBar::printerChosen(int index)
{
    QComboBox* combo = ui->printerCombo;
    PanelSession::Options options = optionsFor();
    switch (combo->itemData(index, KindRole).toInt()) {
    case QueueEntry:
        options.printer = combo->itemData(index, ValueRole).toString();
        if (isQueue() && options.printer == queueName())
            return;
        break;
    case PPDEntry:
        options.ppdPath = combo->itemData(index, ValueRole).toString();
        if (!isQueue() && options.ppdPath == m_opened.ppdPath)
            return;
        break;
    case SampleEntry:
        if (index == m_sampleIndex)
            return;
        // Copied out of the program only when chosen.
        options.ppdPath = PanelSession::samplePrinterPPD(m_sampleDir, combo->itemData(index, ValueRole).toString());
        break;
    case BrowseEntry:
        options.ppdPath = QFileDialog::getOpenFileName(this, tr("Choose a PPD File"), QDir::homePath(),
                                                       tr("PPD files (*.ppd *.PPD);;All files (*)"));
        if (options.ppdPath.isEmpty()) {
            fillPrinters(*m_dests);
            return;
        }
        break;
    }
    emit openRequested(options, true);
}

void PrinterPresetBar::fillPresets(const CupsDestList& dests)
{
    const QSignalBlocker blocker(ui->presetCombo);
    ui->presetCombo->clear();
    const bool queue = isQueue();
    ui->presetCombo->addItem(queue ? tr("Default settings") : tr("None (no CUPS queue)"), QString());
    QString error;
    if (queue) {
        const PresetStore store(queueName(), m_opened.server);
        for (const QString& name : store.names(dests, &error))
            ui->presetCombo->addItem(name, name);
    }
    ui->presetCombo->setCurrentIndex(qMax(0, ui->presetCombo->findData(presetName())));
    const QString why = queue ? QString() : tr("Presets are kept with a CUPS queue; a PPD file has none.");
    ui->makeDefaultPrinterAction->setText(presetName().isEmpty() ? tr("Make This My Default Printer")
                                                                 : tr("Make This Preset My Default Printer"));
    for (QWidget* w : {static_cast<QWidget*>(ui->presetCombo), static_cast<QWidget*>(ui->savePresetButton),
                       static_cast<QWidget*>(ui->defaultsButton)}) {
        w->setEnabled(queue);
        w->setToolTip(why);
    }
    ui->deletePresetButton->setEnabled(queue && !presetName().isEmpty());
    if (!error.isEmpty())
        emit notice(tr("Presets cannot be read: %1").arg(error));
}

void PrinterPresetBar::presetChosen(int index)
{
    const QString name = ui->presetCombo->itemData(index).toString();
    if (!isQueue() || name == presetName())
        return;
    PanelSession::Options options = optionsFor();
    // A preset is an instance of the queue: CUPS gives its options with it.
    options.printer = name.isEmpty() ? queueName() : queueName() + QLatin1Char('/') + name;
    // A preset stands for its own settings: nothing is carried into it.
    emit openRequested(options, false);
    if (presetName() == name)
        emit notice(name.isEmpty() ? tr("The printer's default settings are used.") : tr("Preset \"%1\" chosen.").arg(name));
}

void PrinterPresetBar::savePreset()
{
    if (!isQueue())
        return;
    auto* ask = new QInputDialog(this);
    ask->setObjectName(QStringLiteral("presetNameDialog"));
    ask->setAttribute(Qt::WA_DeleteOnClose);
    ask->setWindowTitle(tr("Save Preset"));
    ask->setLabelText(tr("Save the current settings as the preset:"));
    ask->setTextValue(presetName());
    // Queued: saving may ask before replacing, which must not happen while
    // the closing name dialog is still in its own done().
    connect(ask, &QInputDialog::textValueSelected, this, [this](const QString& text) { saveAs(text.trimmed()); }, Qt::QueuedConnection);
    ask->open();
}

void PrinterPresetBar::saveAs(const QString& name)
{
    QString error;
    PresetStore store(queueName(), m_opened.server);
    // CUPS tells presets apart without regard to case: "draft" would replace "Draft".
    const QString existing = PresetStore::isValidName(name) ? store.existingName(name) : QString();
    if (!existing.isEmpty()
        && QMessageBox::question(this, window()->windowTitle(), tr("A preset named \"%1\" exists. Replace it?").arg(existing))
               != QMessageBox::Yes)
        return;
    PrintDialogHost::OptionList settings;
    if (!PresetStore::isValidName(name, &error) || !m_settings || !m_settings(&settings, &error)
        || !store.save(name, settings, &error)) {
        QMessageBox::warning(this, window()->windowTitle(), tr("The preset cannot be saved: %1").arg(error));
        return;
    }
    // The settings shown are now the preset's: it becomes the chosen one.
    usePreset(name);
    emit notice(tr("Preset \"%1\" saved. Passwords and PINs are not kept in presets.").arg(name));
}

void PrinterPresetBar::deletePreset()
{
    const QString name = presetName();
    if (!isQueue() || name.isEmpty())
        return;
    if (QMessageBox::question(this, window()->windowTitle(), tr("Delete the preset \"%1\"?").arg(name)) != QMessageBox::Yes)
        return;
    QString error;
    PresetStore store(queueName(), m_opened.server);
    if (!store.remove(name, &error)) {
        QMessageBox::warning(this, window()->windowTitle(), tr("The preset cannot be deleted: %1").arg(error));
        return;
    }
    // The settings stay as they are, now without a preset's name.
    usePreset(QString());
    emit notice(tr("Preset \"%1\" deleted.").arg(name));
}

void PrinterPresetBar::useAsDefaults()
{
    QString error;
    PrintDialogHost::OptionList settings;
    PresetStore store(queueName(), m_opened.server);
    if (!isQueue() || !m_settings || !m_settings(&settings, &error) || !store.setQueueDefaults(settings, &error)) {
        QMessageBox::warning(this, window()->windowTitle(), tr("The defaults cannot be saved: %1").arg(error));
        return;
    }
    emit notice(tr("These settings are now your defaults for %1. Passwords and PINs are not kept.").arg(queueName()));
}

void PrinterPresetBar::makeDefaultPrinter()
{
    QString error;
    PresetStore store(queueName(), m_opened.server);
    if (!isQueue() || !store.setDefaultDestination(presetName(), &error)) {
        QMessageBox::warning(this, window()->windowTitle(), tr("The default printer cannot be set: %1").arg(error));
        return;
    }
    refresh();
    emit notice(tr("%1 is now your default printer.").arg(m_opened.printer));
}

void PrinterPresetBar::usePreset(const QString& name)
{
    m_opened.printer = name.isEmpty() ? queueName() : queueName() + QLatin1Char('/') + name;
    refresh();
    emit presetRenamed(m_opened.printer);
}

void PrinterPresetBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        if (m_session)
            refresh();
    }
    QWidget::changeEvent(event);
}
