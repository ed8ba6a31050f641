#include "JobControls.h"

#include "PMPageFormat.h"
#include "PageRangeValidator.h"
#include "PMPrintSettings.h"
#include "PrintDialogHost.h"
#include "ui_JobControls.h"

#include <QEvent>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <cups/ppd.h>

namespace {
const QString kCopies = QStringLiteral("copies");
const QString kPageRanges = QStringLiteral("page-ranges");
const QString kPageSize = QStringLiteral("PageSize");
const QString kOrientation = QStringLiteral("orientation-requested");
const QString kNumberUp = QStringLiteral("number-up");
const QString kJobSheets = QStringLiteral("job-sheets");
const int kPagesPerSheet[] = {1, 2, 4, 6, 9, 16};
}

JobControls::JobControls(QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::JobControls>())
{
    ui->setupUi(this);
    ui->pageRangeEdit->setValidator(new PageRangeValidator(ui->pageRangeEdit));
    fillFixedChoices();
    setEnabled(false);

    connect(ui->copiesSpin, &QSpinBox::valueChanged, this, &JobControls::copiesChanged);
    connect(ui->allPagesRadio, &QRadioButton::toggled, this, &JobControls::pageRangeModeChanged);
    connect(ui->pageRangeEdit, &QLineEdit::textChanged, this, &JobControls::pageRangeEdited);
    connect(ui->pageRangeEdit, &QLineEdit::editingFinished, this, [this] { markPageRange(!pageRangeValid()); });
    connect(ui->paperSizeCombo, &QComboBox::currentIndexChanged, this, &JobControls::paperSizeChosen);
    connect(ui->orientationCombo, &QComboBox::currentIndexChanged, this, &JobControls::orientationChosen);
    connect(ui->pagesPerSheetCombo, &QComboBox::currentIndexChanged, this, &JobControls::pagesPerSheetChosen);
    connect(ui->coverPageCombo, &QComboBox::currentIndexChanged, this, &JobControls::coverPageChosen);
}

JobControls::~JobControls() = default;

void JobControls::fillFixedChoices()
{
    QScopedValueRollback guard(m_syncing, true);
    const int orientation = ui->orientationCombo->currentIndex();
    ui->orientationCombo->clear();
    ui->orientationCombo->addItem(tr("Portrait"), 3);
    ui->orientationCombo->addItem(tr("Landscape"), 4);
    ui->orientationCombo->addItem(tr("Reverse portrait"), 6);
    ui->orientationCombo->addItem(tr("Reverse landscape"), 5);
    ui->orientationCombo->setCurrentIndex(qMax(0, orientation));

    if (ui->pagesPerSheetCombo->count() == 0) {
        for (int n : kPagesPerSheet)
            ui->pagesPerSheetCombo->addItem(QString::number(n), n);
    }
}

void JobControls::fillPaperSizes()
{
    QScopedValueRollback guard(m_syncing, true);
    ui->paperSizeCombo->clear();
    ppd_file_t* ppd = m_host ? m_host->ppd() : nullptr;
    ppd_option_t* option = ppd ? ppdFindOption(ppd, "PageSize") : nullptr;
    if (option) {
        for (int i = 0; i < option->num_choices; ++i) {
            const ppd_choice_t& c = option->choices[i];
            // A custom size needs its dimensions; the panels that offer it set it.
            if (qstrcmp(c.choice, "Custom") == 0)
                continue;
            ui->paperSizeCombo->addItem(QString::fromUtf8(c.text[0] ? c.text : c.choice), QString::fromUtf8(c.choice));
        }
    }
    ui->paperSizeCombo->setEnabled(ui->paperSizeCombo->count() > 0);
}

QString JobControls::coverPageTitle(const QString& name)
{
    if (name == QLatin1String("none"))
        return tr("None");
    if (name == QLatin1String("standard"))
        return tr("Standard");
    if (name == QLatin1String("classified"))
        return tr("Classified");
    if (name == QLatin1String("confidential"))
        return tr("Confidential");
    if (name == QLatin1String("secret"))
        return tr("Secret");
    if (name == QLatin1String("topsecret"))
        return tr("Top secret");
    if (name == QLatin1String("unclassified"))
        return tr("Unclassified");
    return name;
}

void JobControls::fillCoverPages()
{
    QScopedValueRollback guard(m_syncing, true);
    ui->coverPageCombo->clear();
    for (const QString& name : std::as_const(m_coverPages))
        ui->coverPageCombo->addItem(coverPageTitle(name), name);
}

void JobControls::setHost(PrintDialogHost* host, const QStringList& coverPages)
{
    m_host = host;
    m_coverPages = coverPages;
    if (!m_coverPages.contains(QStringLiteral("none")))
        m_coverPages.prepend(QStringLiteral("none"));
    m_chosen.clear();
    {
        // A new printer starts from its own settings: all pages unless it says otherwise.
        QScopedValueRollback guard(m_syncing, true);
        ui->pageRangeEdit->clear();
        ui->allPagesRadio->setChecked(true);
    }
    fillPaperSizes();
    fillCoverPages();
    setEnabled(m_host != nullptr);
    syncFromHost();
}

void JobControls::syncFromHost()
{
    if (!m_host)
        return;
    QScopedValueRollback guard(m_syncing, true);
    const PMPrintSettings* settings = m_host->printSettings();

    unsigned copies = 1;
    PMGetCopies(settings, &copies);
    ui->copiesSpin->setValue(int(copies));

    const QString ranges = settings->value(kPageRanges);
    if (!ranges.isEmpty()) {
        ui->pageRangeRadio->setChecked(true);
        ui->pageRangeEdit->setText(ranges);
    } else if (pageRangeValid()) {
        // No range is set (a range still being typed stays as it is).
        ui->allPagesRadio->setChecked(true);
    }
    ui->pageRangeEdit->setEnabled(ui->pageRangeRadio->isChecked());

    if (ppd_file_t* ppd = m_host->ppd()) {
        if (const ppd_choice_t* marked = ppdFindMarkedChoice(ppd, "PageSize")) {
            const QString keyword = QString::fromUtf8(marked->choice);
            int index = ui->paperSizeCombo->findData(keyword);
            if (index < 0) {
                // A size the list leaves out (a custom one): shown as it is.
                ui->paperSizeCombo->addItem(QString::fromUtf8(marked->text[0] ? marked->text : marked->choice), keyword);
                index = ui->paperSizeCombo->count() - 1;
            }
            ui->paperSizeCombo->setCurrentIndex(index);
        }
    }

    PMOrientation orientation = kPMPortrait;
    PMGetOrientation(m_host->pageFormat(), &orientation);
    static const int requested[] = {3, 4, 6, 5};  // by PMOrientation - 1
    const int o = int(orientation) >= 1 && int(orientation) <= 4 ? requested[orientation - 1] : 3;
    ui->orientationCombo->setCurrentIndex(qMax(0, ui->orientationCombo->findData(o)));

    const int up = settings->value(kNumberUp).toInt();
    ui->pagesPerSheetCombo->setCurrentIndex(qMax(0, ui->pagesPerSheetCombo->findData(up)));

    const QString sheet = settings->value(kJobSheets).section(QLatin1Char(','), 0, 0).trimmed();
    int sheetIndex = sheet.isEmpty() ? 0 : ui->coverPageCombo->findData(sheet);
    if (sheetIndex < 0) {
        ui->coverPageCombo->addItem(coverPageTitle(sheet), sheet);
        sheetIndex = ui->coverPageCombo->count() - 1;
    }
    ui->coverPageCombo->setCurrentIndex(sheetIndex);
}

void JobControls::writeSetting(const QString& key, const QString& value)
{
    if (!m_host)
        return;
    if (value.isNull())
        m_host->printSettings()->remove(key);
    else
        m_host->printSettings()->setValue(key, value);
    m_chosen.insert(key);
    emit changed(key);
}

void JobControls::copiesChanged(int copies)
{
    if (!m_syncing)
        writeSetting(kCopies, QString::number(copies));
}

void JobControls::pageRangeModeChanged()
{
    const bool range = ui->pageRangeRadio->isChecked();
    ui->pageRangeEdit->setEnabled(range);
    if (!range)
        markPageRange(false);
    if (m_syncing)
        return;
    if (range) {
        ui->pageRangeEdit->setFocus();
        pageRangeEdited();
    } else {
        writeSetting(kPageRanges, QString());
    }
}

void JobControls::pageRangeEdited()
{
    if (m_syncing || !ui->pageRangeRadio->isChecked())
        return;
    // Only a valid range is written; checkInput() keeps an invalid one from printing.
    if (pageRangeValid())
        markPageRange(false);
    writeSetting(kPageRanges, pageRangeValid() ? PageRangeValidator::normalized(ui->pageRangeEdit->text()) : QString());
}

bool JobControls::pageRangeValid() const
{
    return !ui->pageRangeRadio->isChecked() || ui->pageRangeEdit->hasAcceptableInput();
}

void JobControls::markPageRange(bool invalid)
{
    ui->pageRangeEdit->setProperty("invalidInput", invalid);
    ui->pageRangeEdit->setStyleSheet(invalid ? QStringLiteral("QLineEdit { border: 2px solid #c62828; }") : QString());
}

bool JobControls::checkInput(QString* error)
{
    if (pageRangeValid())
        return true;
    markPageRange(true);
    ui->pageRangeEdit->setFocus();
    *error = tr("The page range \"%1\" is not valid: give pages and ranges such as 1-3,5,8-.").arg(ui->pageRangeEdit->text());
    return false;
}

void JobControls::paperSizeChosen(int index)
{
    if (m_syncing || !m_host || index < 0)
        return;
    const QString keyword = ui->paperSizeCombo->itemData(index).toString();
    if (!m_host->willChangePPDOptionKeyValue(kPageSize, keyword)) {
        const QString title = ui->paperSizeCombo->itemText(index);
        syncFromHost();
        emit refused(tr("The paper size %1 cannot be used with this printer's installed options.").arg(title));
        return;
    }
    m_chosen.insert(kPageSize);
    emit changed(kPageSize);
}

void JobControls::orientationChosen(int index)
{
    if (m_syncing || !m_host || index < 0)
        return;
    // The chosen orientation replaces a bare "landscape" option.
    m_host->printSettings()->remove(QStringLiteral("landscape"));
    writeSetting(kOrientation, QString::number(ui->orientationCombo->itemData(index).toInt()));
}

void JobControls::pagesPerSheetChosen(int index)
{
    if (!m_syncing && index >= 0)
        writeSetting(kNumberUp, QString::number(ui->pagesPerSheetCombo->itemData(index).toInt()));
}

void JobControls::coverPageChosen(int index)
{
    if (!m_syncing && index >= 0)
        writeSetting(kJobSheets, ui->coverPageCombo->itemData(index).toString());
}

QStringList JobControls::chosenOptions() const
{
    QStringList out;
    if (!m_host)
        return out;
    for (const QString& key : {kCopies, kPageRanges, kOrientation, kNumberUp, kJobSheets}) {
        if (!m_chosen.contains(key))
            continue;
        const QString value = m_host->printSettings()->value(key);
        if (!value.isNull())
            out.append(key + QLatin1Char('=') + value);
    }
    if (m_chosen.contains(kPageSize) && ui->paperSizeCombo->currentIndex() >= 0)
        out.append(kPageSize + QLatin1Char('=') + ui->paperSizeCombo->currentData().toString());
    return out;
}

QList<QPair<QString, QString>> JobControls::summary() const
{
    // The label without its mnemonic ("Paper &size:", "部数(&C):") and colon.
    auto label = [](const QLabel* l) {
        QString t = l->text();
        t.remove(QRegularExpression(QStringLiteral(R"(\(&.\))"))).remove(QLatin1Char('&'));
        while (t.endsWith(QLatin1Char(':')) || t.endsWith(QChar(0xFF1A)))
            t.chop(1);
        return t.trimmed();
    };
    const QString pages = ui->pageRangeRadio->isChecked() && !ui->pageRangeEdit->text().isEmpty()
                              ? ui->pageRangeEdit->text()
                              : tr("All");
    return {
        {label(ui->copiesLabel), QString::number(ui->copiesSpin->value())},
        {label(ui->pagesLabel), pages},
        {label(ui->paperSizeLabel), ui->paperSizeCombo->currentText()},
        {label(ui->orientationLabel), ui->orientationCombo->currentText()},
        {label(ui->pagesPerSheetLabel), ui->pagesPerSheetCombo->currentText()},
        {label(ui->coverPageLabel), ui->coverPageCombo->currentText()},
    };
}

void JobControls::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        fillFixedChoices();
        const int cover = ui->coverPageCombo->currentIndex();
        QScopedValueRollback guard(m_syncing, true);
        for (int i = 0; i < ui->coverPageCombo->count(); ++i)
            ui->coverPageCombo->setItemText(i, coverPageTitle(ui->coverPageCombo->itemData(i).toString()));
        ui->coverPageCombo->setCurrentIndex(cover);
    }
    QWidget::changeEvent(event);
}
