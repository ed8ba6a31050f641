#include "MRSpecialPagePDE.h"

#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "PDEPluginCallback.h"
#include "PMPageFormat.h"
#include "PMPrintSettings.h"
#include "ui_PageListPDE.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMap>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <cups/ppd.h>

namespace {
const QString kPageType = QStringLiteral("PageType");
const QString kPage = QStringLiteral("Page");
const QString kCoverOption = QStringLiteral("CoverOption");
const QString kDuplexOption = QStringLiteral("DuplexOption");
const QString kPaperSource = QStringLiteral("PaperSource");
const QString kPaperType = QStringLiteral("PaperType");
// The fields of an entry in the order they are written.
const QStringList kFieldOrder{kPage, kCoverOption, kDuplexOption, kPaperSource, kPaperType};
const QString kCover = QStringLiteral("Cover");
const QString kInsert = QStringLiteral("Insert");
const QString kException = QStringLiteral("Exception");
const QStringList kCoverOptions{"BlankPreprinted", "1SidedPrinted", "2SidedPrinted"};
const QStringList kDuplexOptions{"None", "DuplexNoTumble", "DuplexTumble"};
const QStringList kCoverPictures{"blank", "on1side", "on2side"};
// The binding pictures Manual Duplex shows too: doubleside_[land]none|long|short.
const QStringList kDuplexPictures{"none", "long", "short"};

// A page number as typed: 1 to 4 digits, no leading zero.
bool isPageNumber(const QString& s)
{
    static const QRegularExpression number(QStringLiteral("^[1-9][0-9]{0,3}$"));
    return number.match(s).hasMatch();
}

// A token "a-b", "-b", "a-" or "a" as its two ends (0 for an open end);
// false when it is not one of these.
bool pageRange(const QString& token, int* a, int* b)
{
    const QStringList parts = token.split(QLatin1Char('-'));
    if (parts.size() > 2)
        return false;
    const auto number = [](const QString& s, int* n) {
        if (s.isEmpty()) {
            *n = 0;
            return true;
        }
        bool ok = false;
        *n = s.toInt(&ok);
        return ok && *n > 0;
    };
    if (!number(parts[0], a) || !number(parts.value(1), b))
        return false;
    if (parts.size() == 1)
        *b = *a;
    return *a > 0 || *b > 0;
}
}

std::shared_ptr<MRSpecialPagePDE> MRSpecialPagePDE::create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
{
    std::shared_ptr<MRSpecialPagePDE> panel(new MRSpecialPagePDE(callback, std::move(bundle)));
    const bool offered = panel->m_pageOption && panel->m_paperSourceOption && panel->m_paperTypeOption;
    panel->logCreation(offered);
    return offered ? panel : nullptr;
}

MRSpecialPagePDE::MRSpecialPagePDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
    : MRStandalonePDE(callback, std::move(bundle))
{
    m_kSpecialPageKindID = QStringLiteral("%1.SpecialPageKind").arg(pluginBundle() ? pluginBundle()->bundleIdentifier() : QString());
    if (ppd()) {
        m_pageOption = ppdFindOption(ppd(), kNSPageOptionKey);
        m_paperSourceOption = ppdFindOption(ppd(), kNSPaperSourceKey);
        m_paperTypeOption = ppdFindOption(ppd(), kNSPaperTypeKey);
        m_optionalTrayOption = ppdFindOption(ppd(), kNSOptionalTrayKey);
    }
    m_pageOptionChoices = SpecialPageArrayFromPPDOption(m_pageOption).value_or(MRPDEChoiceArray());
    m_paperSourceChoices = SpecialPageArrayFromPPDOption(m_paperSourceOption).value_or(MRPDEChoiceArray());
    m_paperTypeChoices = SpecialPageArrayFromPPDOption(m_paperTypeOption).value_or(MRPDEChoiceArray());
    m_optionalTrayChoices = SpecialPageArrayFromPPDOption(m_optionalTrayOption).value_or(MRPDEChoiceArray());
    m_model = new MRPageListTableModel([this](const MRSpecialPageRow& row, int column) { return cellText(row, column); }, this);
    loadConstraint();
    updateMarkedSelections();
}

MRSpecialPagePDE::~MRSpecialPagePDE()
{
    delete m_viewPDE.data();
}

// The dialog knows the panel by the bundle's identifier; the kind identifier
// built from it is kept for the log only.
QString MRSpecialPagePDE::panelKind()
{
    return pluginBundle() ? pluginBundle()->bundleIdentifier() : QString();
}

QStringList MRSpecialPagePDE::supportedPPDOptionKeys()
{
    if (!m_supportedOptions.isEmpty())
        return m_supportedOptions;
    if (m_pageOption) {
        _PDELog(this, QStringLiteral("Adding Page Option option"));
        m_supportedOptions.append(QString::fromLatin1(kNSPageOptionKey));
    } else {
        _PDELog(this, QStringLiteral("Page Option not supported!"));
    }
    return m_supportedOptions;
}

QWidget* MRSpecialPagePDE::panelView()
{
    if (m_viewPDE)
        return m_viewPDE;
    m_ui = std::make_unique<Ui::PageListPDE>();
    auto* view = new QWidget;
    m_ui->setupUi(view);
    m_viewPDE = view;
    Ui::PageListPDE& u = *m_ui;
    // The column titles are sized (with a bold font loaded for it) when the
    // table is first shown, not for every dialog that never shows this panel.
    u.tableUserSetting->horizontalHeader()->hide();
    u.tableUserSetting->installEventFilter(this);
    u.tableUserSetting->setModel(m_model);
    u.tableUserSetting->setSelectionBehavior(QAbstractItemView::SelectRows);
    u.tableUserSetting->setSelectionMode(QAbstractItemView::SingleSelection);
    u.tableUserSetting->setEditTriggers(QAbstractItemView::NoEditTriggers);
    u.tableUserSetting->horizontalHeader()->setStretchLastSection(true);
    u.tableUserSetting->verticalHeader()->hide();
    connect(u.tableUserSetting->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MRSpecialPagePDE::tableViewSelectionDidChange);
    connect(u.btnAdd, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionAdd);
    connect(u.btnRemove, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionRemove);
    connect(u.btnUp, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionUp);
    connect(u.btnDown, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionDown);
    connect(u.btnUpdate, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionUpdate);
    connect(u.pbtPageOption, &QComboBox::activated, this, &MRSpecialPagePDE::actionPageOption);
    connect(u.pbtPaperOptionSource, &QComboBox::activated, this, &MRSpecialPagePDE::actionPaperSource);
    connect(u.btnPageCoverFront, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionPageCoverFront);
    connect(u.btnPageCoverBack, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionPageCoverBack);
    connect(u.btnPageCoverBoth, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionPageCoverBoth);
    connect(u.btnPageInsertFirst, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionPageInsertFirst);
    connect(u.btnPageInsertNext, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionPageInsertNext);
    connect(u.btnCoverOptionBlank, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionCoverBlank);
    connect(u.btnCoverOption1side, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionCover1Side);
    connect(u.btnCoverOption2side, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionCover2Side);
    connect(u.btnDuplexOptionNone, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionDuplexNone);
    connect(u.btnDuplexOptionLong, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionDuplexLong);
    connect(u.btnDuplexOptionShort, &QAbstractButton::clicked, this, &MRSpecialPagePDE::actionDuplexShort);
    u.etfPageInsertNum->setProperty("tag", 1);
    u.etfPageExcept->setProperty("tag", 2);
    connect(u.etfPageInsertNum, &QLineEdit::textEdited, this, [this] { controlTextDidChange(1); });
    connect(u.etfPageExcept, &QLineEdit::textEdited, this, [this] { controlTextDidChange(2); });
    initializeUI();
    _PDELog(this, QStringLiteral("panelView:=NSView(%@, %p)"), view->objectName(), PDEAddress(view));
    return view;
}

bool MRSpecialPagePDE::eventFilter(QObject* watched, QEvent* event)
{
    if (m_ui && watched == m_ui->tableUserSetting && event->type() == QEvent::Show) {
        m_ui->tableUserSetting->removeEventFilter(this);
        m_ui->tableUserSetting->horizontalHeader()->show();
    }
    return MRStandalonePDE::eventFilter(watched, event);
}

void MRSpecialPagePDE::initializeUI()
{
    if (hasInited() || !m_ui)
        return;
    Ui::PageListPDE& u = *m_ui;
    const auto tr = [this](const char* key) { return getLocalizationWithKey(QString::fromLatin1(key)); };
    const auto label = [&](const char* key) { return QStringLiteral("%1:").arg(tr(key)); };
    u.viewPageOption->setTitle(tr("Page Options"));
    u.viewPaperOption->setTitle(tr("Paper Options"));
    u.viewCoverOption->setTitle(tr("Cover Options"));
    u.viewDuplexOption->setTitle(tr("Double-Sided Printing"));
    u.tfPageOptionTitle->setText(label("Page Type"));
    u.tfPaperSourceLabel->setText(label("Source"));
    u.tfPaperTypeLabel->setText(label("Type"));
    u.tfPageExceptLabel->setText(label("Pages"));
    u.tfPageInsertHint->setText(tr("PageNumberHint"));
    u.tfPageExceptHint->setText(tr("PageNumberHint"));
    u.btnAdd->setText(tr("Add"));
    u.btnRemove->setText(tr("Remove"));
    u.btnUp->setText(tr("Up"));
    u.btnDown->setText(tr("Down"));
    u.btnUpdate->setText(tr("Update"));
    u.btnPageCoverFront->setText(tr("Front Cover"));
    u.btnPageCoverBack->setText(tr("Back Cover"));
    u.btnPageCoverBoth->setText(tr("Front and Back Cover"));
    u.btnPageInsertFirst->setText(tr("Before Page 1"));
    u.btnPageInsertNext->setText(tr("After Page(s)"));
    u.btnCoverOptionBlank->setText(tr("Blank or Preprinted"));
    u.btnCoverOption1side->setText(tr("1-Sided Printed"));
    u.btnCoverOption2side->setText(tr("2-Sided Printed"));
    u.btnDuplexOptionNone->setText(tr("DuplexNone"));
    u.btnDuplexOptionLong->setText(tr("Long Edge"));
    u.btnDuplexOptionShort->setText(tr("Short Edge"));
    m_model->setHeaders({tr("Page"), tr("Paper Options")});
    // The page kinds are the maker's, translated; sources and types are the
    // printer's own names.
    SpecialPageInitPopUpFromArray(u.pbtPageOption, m_pageOptionChoices, pluginBundle().get());
    SpecialPageInitPopUpFromArray(u.pbtPaperOptionSource, m_paperSourceChoices, nullptr);
    SpecialPageInitPopUpFromArray(u.pbtPaperOptionType, m_paperTypeChoices, nullptr);
    selectKeyword(u.pbtPaperOptionSource, m_paperSourceChoices, QString());
    selectKeyword(u.pbtPaperOptionType, m_paperTypeChoices, QString());
    u.btnPageCoverFront->setChecked(true);
    u.btnPageInsertFirst->setChecked(true);
    u.btnCoverOptionBlank->setChecked(true);
    u.btnDuplexOptionNone->setChecked(true);
    setHasInited(true);
    checkInstallableOption();
}

// ---- Selections and PPD state ----

int MRSpecialPagePDE::markedIndex(const char* key) const
{
    return indexOfMarkedOptionForKey(QString::fromLatin1(key));
}

void MRSpecialPagePDE::updateMarkedSelections()
{
    const int page = markedIndex(kNSPageOptionKey);
    m_pageOptionSelection = page >= 0 && page < m_pageOptionChoices.size() ? m_pageOptionChoices[page]
                                                                            : SpecialPageFindChoiceForString(QString(), m_pageOptionChoices);
    const int tray = markedIndex(kNSOptionalTrayKey);
    m_optionalTraySelection = tray >= 0 && tray < m_optionalTrayChoices.size() ? m_optionalTrayChoices[tray] : nullptr;
    m_sInstallableOption = m_optionalTraySelection ? m_optionalTraySelection->ppdTitle() : QString();
}

void MRSpecialPagePDE::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    if (option.isEmpty() || choice.isEmpty())
        return;
    if (option == QLatin1String(kNSPageOptionKey)) {
        m_pageOptionSelection = SpecialPageFindChoiceForString(choice, m_pageOptionChoices);
        _PDELog(this, QStringLiteral("new choice is %@/%@"), m_pageOptionSelection ? m_pageOptionSelection->userTitle() : QString(), choice);
    } else if (option == QLatin1String(kNSOptionalTrayKey)) {
        m_optionalTraySelection = SpecialPageFindChoiceForString(choice, m_optionalTrayChoices);
        m_sInstallableOption = choice;
    }
    updateUI();
}

bool MRSpecialPagePDE::isPosterOn() const
{
    // Several pages per sheet switch poster printing off.
    const bool on = markedIndex(kNSSpecialPosterKey) > 0 && nupValue() < 2;
    if (on)
        _PDELog(this, QStringLiteral("Poster is on"));
    return on;
}

bool MRSpecialPagePDE::isBookletOn() const
{
    const bool on = markedIndex(kNSSpecialBookletKey) > 0;
    if (on)
        _PDELog(this, QStringLiteral("Booklet is on"));
    return on;
}

bool MRSpecialPagePDE::isCFoldingOn() const
{
    const bool on = markedIndex(kNSFoldingOptionsKey) > 0;
    if (on)
        _PDELog(this, QStringLiteral("Folding is on"));
    return on;
}

bool MRSpecialPagePDE::isSkipBlankPageOn() const
{
    const bool on = markedIndex(kNSSkipBlankPagesKey) > 0;
    if (on)
        _PDELog(this, QStringLiteral("skipBalnkPages is on"));
    return on;
}

bool MRSpecialPagePDE::isCoverOn() const
{
    int value = 1;
    if (PMPrintSettingsGetDerivedInt(printSettings(), QString::fromLatin1(kPMCoverPage), &value) != 0) {
        _PDELog(this, QStringLiteral("covervalue is error"));
        return false;
    }
    _PDELog(this, value >= 2 ? QStringLiteral("Cover On") : QStringLiteral("Cover Off"));
    return value >= 2;
}

bool MRSpecialPagePDE::isListSuppressed() const
{
    return isPosterOn() || isCoverOn() || isCFoldingOn() || isSkipBlankPageOn();
}

// ---- Constraints ----

void MRSpecialPagePDE::loadConstraint()
{
    _PDELog(this, QStringLiteral("Load constraint"));
    m_arrayConstraint.clear();
    if (!ppd())
        return;
    const QStringList relevant{kNSPaperSourceKey, kNSOptionalTrayKey, kNSPaperTypeKey};
    for (int i = 0; i < ppd()->num_consts; ++i) {
        const ppd_const_t& c = ppd()->consts[i];
        const Constraint constraint{QString::fromLatin1(c.option1), QString::fromLatin1(c.choice1), QString::fromLatin1(c.option2),
                                    QString::fromLatin1(c.choice2)};
        const bool sourceOrTray = constraint.option1 == QLatin1String(kNSPaperSourceKey) || constraint.option2 == QLatin1String(kNSPaperSourceKey);
        if (!sourceOrTray || !relevant.contains(constraint.option1) || !relevant.contains(constraint.option2))
            continue;
        _PDELog(this, QStringLiteral("*UIConstraints: *%@ %@   *%@ %@"), constraint.option1, constraint.choice1, constraint.option2, constraint.choice2);
        m_arrayConstraint.append(constraint);
    }
    _PDELog(this, QStringLiteral("Constraint %@"), QString::number(m_arrayConstraint.size()));
}

bool MRSpecialPagePDE::doesUIConstraintConstains(const Constraint& c, const QString& option, const QString& choice)
{
    // A constraint without a choice names every choice but the "off" ones.
    const auto matches = [&](const QString& o, const QString& ch) {
        if (o != option)
            return false;
        if (!ch.isEmpty())
            return ch == choice;
        return choice != QLatin1String("None") && choice != QLatin1String("False") && choice != QLatin1String("Off");
    };
    return matches(c.option1, c.choice1) || matches(c.option2, c.choice2);
}

bool MRSpecialPagePDE::constrains(const QString& option1, const QString& choice1, const QString& option2, const QString& choice2) const
{
    for (const Constraint& c : m_arrayConstraint) {
        const Constraint forward{c.option1, c.choice1, QString(), QString()};
        const Constraint backward{c.option2, c.choice2, QString(), QString()};
        const bool first = doesUIConstraintConstains(forward, option1, choice1) && doesUIConstraintConstains(backward, option2, choice2);
        const bool second = doesUIConstraintConstains(backward, option1, choice1) && doesUIConstraintConstains(forward, option2, choice2);
        if (first || second)
            return true;
    }
    return false;
}

void MRSpecialPagePDE::checkInstallableOption()
{
    if (!m_ui)
        return;
    QComboBox* sources = m_ui->pbtPaperOptionSource;
    for (int i = 0; i < m_paperSourceChoices.size(); ++i) {
        const bool disabled = m_optionalTraySelection
                              && constrains(QString::fromLatin1(kNSOptionalTrayKey), m_sInstallableOption, QString::fromLatin1(kNSPaperSourceKey),
                                            m_paperSourceChoices[i]->ppdTitle());
        if (disabled)
            _PDELog(this, QStringLiteral("Installabe Opt %@   disable input slot index %d "), m_sInstallableOption, i);
        setItemEnabled(sources, i, !disabled);
    }
    selectFirstEnabledItem(sources);
    checkConstraintWithSelection(PDEItemChoice(sources, sources->currentIndex()));
}

void MRSpecialPagePDE::checkConstraintWithSelection(const std::shared_ptr<MRPDEChoice>& paperSource)
{
    if (!m_ui)
        return;
    QComboBox* types = m_ui->pbtPaperOptionType;
    for (int i = 0; i < m_paperTypeChoices.size(); ++i) {
        const bool disabled = paperSource && constrains(QString::fromLatin1(kNSPaperSourceKey), paperSource->ppdTitle(),
                                                        QString::fromLatin1(kNSPaperTypeKey), m_paperTypeChoices[i]->ppdTitle());
        setItemEnabled(types, i, !disabled);
    }
    selectFirstEnabledItem(types);
}

void MRSpecialPagePDE::setItemEnabled(QComboBox* popUp, int index, bool enabled)
{
    if (auto* model = qobject_cast<QStandardItemModel*>(popUp->model()))
        if (QStandardItem* item = model->item(index))
            item->setEnabled(enabled);
}

void MRSpecialPagePDE::selectFirstEnabledItem(QComboBox* popUp)
{
    auto* model = qobject_cast<QStandardItemModel*>(popUp->model());
    if (!model || popUp->currentIndex() < 0 || model->item(popUp->currentIndex())->isEnabled())
        return;
    for (int i = 0; i < model->rowCount(); ++i) {
        if (model->item(i)->isEnabled()) {
            popUp->setCurrentIndex(i);
            return;
        }
    }
}

void MRSpecialPagePDE::selectKeyword(QComboBox* popUp, const MRPDEChoiceArray& choices, const QString& keyword)
{
    const std::shared_ptr<MRPDEChoice> choice = SpecialPageFindChoiceForString(keyword, choices);
    const int index = choice ? int(choices.indexOf(choice)) : 0;
    if (index >= 0 && index < popUp->count())
        popUp->setCurrentIndex(index);
}

// ---- Page numbers ----

bool MRSpecialPagePDE::isAcceptablePageText(const QString& text)
{
    static const QRegularExpression allowed(QStringLiteral("^[0-9,-]*$"));
    static const QRegularExpression badSeparator(QStringLiteral("[,-][,-]"));
    static const QRegularExpression badNumber(QStringLiteral("(^|[,-])0|[0-9]{5}"));
    return allowed.match(text).hasMatch() && !badSeparator.match(text).hasMatch() && !badNumber.match(text).hasMatch();
}

QStringList MRSpecialPagePDE::makeInsertPageNumArray(const QString& text)
{
    QStringList pages;
    for (const QString& token : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        int a = 0, b = 0;
        if (!pageRange(token, &a, &b))
            continue;
        if (!token.contains(QLatin1Char('-'))) {
            pages.append(token);
            continue;
        }
        if (a == 0 || b == 0) {  // "-b" and "a-" count from page 1
            b = qMax(a, b);
            a = 1;
        }
        if (a > b)
            std::swap(a, b);
        if (a > kMaxInsertPages)
            continue;
        if (b - a > kMaxInsertPages - 1)
            b = a + kMaxInsertPages - 1;
        for (int p = a; p <= b; ++p)
            pages.append(QString::asprintf("%d", p));
    }
    return pages;
}

QStringList MRSpecialPagePDE::makeExceptionPageNumArray(const QString& text)
{
    QStringList pages;
    for (const QString& token : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        int a = 0, b = 0;
        if (!pageRange(token, &a, &b))
            continue;
        if (!token.contains(QLatin1Char('-'))) {
            pages.append(token);
        } else if (a == 0 || b == 0) {
            pages.append(QString::asprintf("%d-%d", 1, qMax(a, b)));
        } else {
            pages.append(QString::asprintf("%d-%d", qMin(a, b), qMax(a, b)));
        }
    }
    return pages;
}

void MRSpecialPagePDE::controlTextDidChange(int tag)
{
    if (!m_ui || (tag != 1 && tag != 2))
        return;
    QLineEdit* field = tag == 1 ? m_ui->etfPageInsertNum : m_ui->etfPageExcept;
    QString& lastGood = tag == 1 ? m_sEtfInsertNum : m_sEtfExceptNum;
    if (isAcceptablePageText(field->text()))
        lastGood = field->text();
    else
        field->setText(lastGood);
    updateUIDependency();
}

// ---- The list string ----

QString MRSpecialPagePDE::stringFromRows(const QList<MRSpecialPageRow>& rows)
{
    QStringList entries;
    for (const MRSpecialPageRow& row : rows) {
        QStringList parts{row.value(kPageType)};
        for (const QString& field : kFieldOrder)
            if (!row.value(field).isEmpty())
                parts.append(row.value(field));
        entries.append(parts.join(QLatin1Char('+')));
    }
    return entries.join(QLatin1Char(';'));
}

QList<MRSpecialPageRow> MRSpecialPagePDE::rowsFromString(const QString& value, QStringList* rejected) const
{
    QList<MRSpecialPageRow> rows;
    const auto known = [](const MRPDEChoiceArray& choices, const QString& keyword) {
        return SpecialPageFindChoiceForString(keyword, choices) != nullptr;
    };
    static const QRegularExpression range(QStringLiteral("^[1-9][0-9]{0,3}-[1-9][0-9]{0,3}$"));
    for (const QString& entry : value.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList f = entry.split(QLatin1Char('+'));
        MRSpecialPageRow row;
        bool ok = false;
        if (f.size() == 5 && f[0] == kCover) {
            row = {{kPageType, f[0]}, {kPage, f[1]}, {kCoverOption, f[2]}, {kPaperSource, f[3]}, {kPaperType, f[4]}};
            ok = (f[1] == QLatin1String("Front") || f[1] == QLatin1String("Back")) && kCoverOptions.contains(f[2]);
        } else if (f.size() == 4 && f[0] == kInsert) {
            row = {{kPageType, f[0]}, {kPage, f[1]}, {kPaperSource, f[2]}, {kPaperType, f[3]}};
            ok = f[1] == QLatin1String("0") || isPageNumber(f[1]);
        } else if (f.size() == 5 && f[0] == kException) {
            row = {{kPageType, f[0]}, {kPage, f[1]}, {kDuplexOption, f[2]}, {kPaperSource, f[3]}, {kPaperType, f[4]}};
            ok = (isPageNumber(f[1]) || range.match(f[1]).hasMatch()) && kDuplexOptions.contains(f[2]);
        }
        ok = ok && known(m_paperSourceChoices, row.value(kPaperSource)) && known(m_paperTypeChoices, row.value(kPaperType));
        if (ok) {
            rows.append(row);
        } else {
            PDENSLog(QStringLiteral("SpecialPagePDE: ERROR : the print setting VELSpecialPage has the unusable entry \"%@\"; it is left out"), entry);
            if (rejected)
                rejected->append(entry);
        }
    }
    return rows;
}

QString MRSpecialPagePDE::bookletCovers(const QString& value)
{
    const QStringList entries = value.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (entries.size() >= 2 && entries.first().contains(QLatin1String("+Front+")) && entries.last().contains(QLatin1String("+Back+")))
        return entries.first() + QLatin1Char(';') + entries.last();
    return QString();
}

void MRSpecialPagePDE::getNonPPDSettingsFromPrintSettings()
{
    PMPrintSettings* settings = printSettings();
    if (!settings)
        return;
    if (isListSuppressed()) {
        _PDELog(this, QStringLiteral("return because of poster"));
        return;
    }
    QString value;
    if (PMPrintSettingsGetValue(settings, QString::fromLatin1(kNSSpecialPageKey), &value) != kPMNoError) {
        _PDELog(this, QStringLiteral("sSpecialPageValue is error"));
        return;
    }
    _PDELog(this, QStringLiteral("read special page = %@"), value);
    if (isBookletOn()) {
        _PDELog(this, QStringLiteral("modify because of booklet"));
        value = bookletCovers(value);
    }
    _PDELog(this, QStringLiteral("change special page = %@"), value);
    QList<MRSpecialPageRow> rows = rowsFromString(value);
    reorder(rows);
    m_model->setRows(rows);
    m_sSpecialPageValue = stringFromRows(rows);
}

void MRSpecialPagePDE::writeNonPPDSettingsToPrintSettings()
{
    _PDELog(this, QStringLiteral("writeNonPPDSettingsToPrintSettings"));
    PMPrintSettings* settings = printSettings();
    if (!settings)
        return;
    if (isListSuppressed()) {
        _PDELog(this, QStringLiteral("set nil because of poster"));
        m_sSpecialPageValue = QLatin1String("");
    } else {
        m_sSpecialPageValue = stringFromRows(m_model->rows());
    }
    _PDELog(this, QStringLiteral("Write special page = %@"), m_sSpecialPageValue);
    if (const int status = PMPrintSettingsSetValue(settings, QString::fromLatin1(kNSSpecialPageKey), m_sSpecialPageValue, false); status != kPMNoError)
        _PDELog(this, QStringLiteral("Spceial Page PDE got an error %d setting the value for %@ !"), status, QString::fromLatin1(kNSSpecialPageKey));
}

// ---- Editing the list ----

QList<MRSpecialPageRow> MRSpecialPagePDE::makeDicForCurrentSelect() const
{
    QList<MRSpecialPageRow> rows;
    if (!m_ui)
        return rows;
    const Ui::PageListPDE& u = *m_ui;
    const auto keyword = [](QComboBox* popUp) {
        const std::shared_ptr<MRPDEChoice> choice = PDEItemChoice(popUp, popUp->currentIndex());
        return choice ? choice->ppdTitle() : QString();
    };
    const MRSpecialPageRow paper{{kPaperSource, keyword(u.pbtPaperOptionSource)}, {kPaperType, keyword(u.pbtPaperOptionType)}};
    const auto entry = [&](const QString& type, const QString& page, const QString& key, const QString& option) {
        MRSpecialPageRow row = paper;
        row.insert(kPageType, type);
        row.insert(kPage, page);
        if (!key.isEmpty())
            row.insert(key, option);
        return row;
    };
    switch (u.pbtPageOption->currentIndex()) {
    case 0: {
        const QString option = kCoverOptions[u.btnCoverOption2side->isChecked() ? 2 : u.btnCoverOption1side->isChecked() ? 1 : 0];
        if (u.btnPageCoverFront->isChecked() || u.btnPageCoverBoth->isChecked())
            rows.append(entry(kCover, QStringLiteral("Front"), kCoverOption, option));
        if (u.btnPageCoverBack->isChecked() || u.btnPageCoverBoth->isChecked())
            rows.append(entry(kCover, QStringLiteral("Back"), kCoverOption, option));
        break;
    }
    case 1:
        if (u.btnPageInsertFirst->isChecked())
            rows.append(entry(kInsert, QStringLiteral("0"), QString(), QString()));
        else
            for (const QString& page : makeInsertPageNumArray(u.etfPageInsertNum->text()))
                rows.append(entry(kInsert, page, QString(), QString()));
        break;
    case 2: {
        const QString option = kDuplexOptions[u.btnDuplexOptionShort->isChecked() ? 2 : u.btnDuplexOptionLong->isChecked() ? 1 : 0];
        for (const QString& page : makeExceptionPageNumArray(u.etfPageExcept->text()))
            rows.append(entry(kException, page, kDuplexOption, option));
        break;
    }
    default: break;
    }
    _PDELog(this, QStringLiteral("make array: %@"), stringFromRows(rows));
    return rows;
}

int MRSpecialPagePDE::sortKey(const MRSpecialPageRow& row)
{
    const QString page = row.value(kPage);
    if (page == QLatin1String("Front"))
        return -1;
    if (page == QLatin1String("Back"))
        return 100000;
    return page.section(QLatin1Char('-'), 0, 0).toInt();
}

void MRSpecialPagePDE::reorder(QList<MRSpecialPageRow>& rows)
{
    // Neighbours are exchanged only when the first is greater: rows with equal
    // keys keep their order.
    for (bool swapped = true; swapped;) {
        swapped = false;
        for (qsizetype i = 0; i + 1 < rows.size(); ++i) {
            if (sortKey(rows[i]) > sortKey(rows[i + 1])) {
                rows.swapItemsAt(i, i + 1);
                swapped = true;
            }
        }
    }
}

void MRSpecialPagePDE::reorderSpecialPage()
{
    QList<MRSpecialPageRow> rows = m_model->rows();
    reorder(rows);
    m_model->setRows(rows);
}

QList<MRSpecialPageRow> MRSpecialPagePDE::getArrayWithType(const QString& pageType) const
{
    QList<MRSpecialPageRow> rows;
    for (const MRSpecialPageRow& row : m_model->rows())
        if (row.value(kPageType) == pageType)
            rows.append(row);
    return rows;
}

QList<MRSpecialPageRow> MRSpecialPagePDE::getRemakePageOfException(const QList<MRSpecialPageRow>& added) const
{
    // Every page with the settings of the row that names it last.
    QMap<int, MRSpecialPageRow> pages;
    const auto spread = [&pages](const MRSpecialPageRow& row) {
        int a = 0, b = 0;
        if (!pageRange(row.value(kPage), &a, &b))
            return;
        MRSpecialPageRow settings = row;
        settings.remove(kPage);
        for (int p = qMin(a, b); p <= qMax(a, b); ++p)
            pages.insert(p, settings);
    };
    for (const MRSpecialPageRow& row : getArrayWithType(kException))
        spread(row);
    for (const MRSpecialPageRow& row : added)
        spread(row);
    QList<MRSpecialPageRow> rows;
    for (auto it = pages.cbegin(); it != pages.cend();) {
        const int first = it.key();
        int last = first;
        const MRSpecialPageRow settings = it.value();
        for (++it; it != pages.cend() && it.key() == last + 1 && it.value() == settings; ++it)
            last = it.key();
        MRSpecialPageRow row = settings;
        row.insert(kPage, first == last ? QString::number(first) : QStringLiteral("%1-%2").arg(first).arg(last));
        rows.append(row);
    }
    return rows;
}

int MRSpecialPagePDE::selectedRow() const
{
    if (!m_ui || !m_ui->tableUserSetting->selectionModel())
        return -1;
    const QModelIndexList rows = m_ui->tableUserSetting->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void MRSpecialPagePDE::selectRow(int row)
{
    if (!m_ui)
        return;
    if (row >= 0 && row < m_model->rowCount())
        m_ui->tableUserSetting->selectRow(row);
    else
        m_ui->tableUserSetting->clearSelection();
}

void MRSpecialPagePDE::listChanged(int select)
{
    selectRow(select);
    updateUIDependency();
    writeNonPPDSettingsToPrintSettings();
}

// New rows join the list: a cover replaces the cover of its side, an insert
// the insert at its page, exceptions are merged with those present.
void MRSpecialPagePDE::addRows(QList<MRSpecialPageRow> added)
{
    QList<MRSpecialPageRow> rows = m_model->rows();
    QList<MRSpecialPageRow> exceptions;
    for (const MRSpecialPageRow& row : added) {
        if (row.value(kPageType) == kException) {
            exceptions.append(row);
            continue;
        }
        rows.removeIf([&row](const MRSpecialPageRow& r) {
            return r.value(kPageType) == row.value(kPageType) && r.value(kPage) == row.value(kPage);
        });
        rows.append(row);
    }
    if (!exceptions.isEmpty()) {
        const QList<MRSpecialPageRow> merged = getRemakePageOfException(exceptions);
        rows.removeIf([](const MRSpecialPageRow& r) { return r.value(kPageType) == kException; });
        rows += merged;
    }
    reorder(rows);
    m_model->setRows(rows);
}

void MRSpecialPagePDE::actionAdd()
{
    const QList<MRSpecialPageRow> added = makeDicForCurrentSelect();
    if (added.isEmpty())
        return;
    addRows(added);
    listChanged(int(m_model->rows().indexOf(added.last())));
}

void MRSpecialPagePDE::actionRemove()
{
    const int row = selectedRow();
    if (row < 0 || row >= m_model->rows().size())
        return;
    QList<MRSpecialPageRow> rows = m_model->rows();
    rows.removeAt(row);
    m_model->setRows(rows);
    listChanged(-1);
}

void MRSpecialPagePDE::actionUp()
{
    const int row = selectedRow();
    if (row <= 0 || row >= m_model->rows().size())
        return;
    QList<MRSpecialPageRow> rows = m_model->rows();
    rows.swapItemsAt(row, row - 1);
    m_model->setRows(rows);
    listChanged(row - 1);
}

void MRSpecialPagePDE::actionDown()
{
    const int row = selectedRow();
    if (row < 0 || row + 1 >= m_model->rows().size())
        return;
    QList<MRSpecialPageRow> rows = m_model->rows();
    rows.swapItemsAt(row, row + 1);
    m_model->setRows(rows);
    listChanged(row + 1);
}

void MRSpecialPagePDE::actionUpdate()
{
    const int row = selectedRow();
    const QList<MRSpecialPageRow> added = makeDicForCurrentSelect();
    if (row < 0 || row >= m_model->rows().size() || added.isEmpty())
        return;
    QList<MRSpecialPageRow> rows = m_model->rows();
    rows.removeAt(row);
    m_model->setRows(rows);
    addRows(added);
    listChanged(int(m_model->rows().indexOf(added.last())));
}

void MRSpecialPagePDE::tableViewSelectionDidChange()
{
    const int row = selectedRow();
    if (row >= 0 && row < m_model->rows().size())
        showRowInControls(m_model->rows()[row]);
    updateUIDependency();
}

// The controls take the settings of a selected row, so that Update starts
// from them.
void MRSpecialPagePDE::showRowInControls(const MRSpecialPageRow& row)
{
    Ui::PageListPDE& u = *m_ui;
    const QString type = row.value(kPageType);
    const QString page = row.value(kPage);
    u.pbtPageOption->setCurrentIndex(type == kCover ? 0 : type == kInsert ? 1 : 2);
    if (type == kCover) {
        (page == QLatin1String("Front") ? u.btnPageCoverFront : u.btnPageCoverBack)->setChecked(true);
        const int option = int(kCoverOptions.indexOf(row.value(kCoverOption)));
        (option == 2 ? u.btnCoverOption2side : option == 1 ? u.btnCoverOption1side : u.btnCoverOptionBlank)->setChecked(true);
    } else if (type == kInsert) {
        (page == QLatin1String("0") ? u.btnPageInsertFirst : u.btnPageInsertNext)->setChecked(true);
        if (page != QLatin1String("0"))
            u.etfPageInsertNum->setText(m_sEtfInsertNum = page);
    } else {
        u.etfPageExcept->setText(m_sEtfExceptNum = page);
        const int option = int(kDuplexOptions.indexOf(row.value(kDuplexOption)));
        (option == 2 ? u.btnDuplexOptionShort : option == 1 ? u.btnDuplexOptionLong : u.btnDuplexOptionNone)->setChecked(true);
    }
    selectKeyword(u.pbtPaperOptionSource, m_paperSourceChoices, row.value(kPaperSource));
    selectKeyword(u.pbtPaperOptionType, m_paperTypeChoices, row.value(kPaperType));
    showPageOption();
}

// ---- Controls ----

void MRSpecialPagePDE::actionPageOption()
{
    if (auto choice = choiceSelectionForPopUpWithKey(m_ui->pbtPageOption, QString::fromLatin1(kNSPageOptionKey)); choice && !useConstraintHandling())
        m_pageOptionSelection = choice;
    showPageOption();
    updateUIDependency();
}

void MRSpecialPagePDE::showPageOption()
{
    Ui::PageListPDE& u = *m_ui;
    const int index = u.pbtPageOption->currentIndex();
    u.viewPageCover->setVisible(index == 0);
    u.viewCoverOption->setVisible(index == 0);
    u.viewPageInsert->setVisible(index == 1);
    u.viewPageExcept->setVisible(index == 2);
    u.viewDuplexOption->setVisible(index == 2);
    updatePictures();
}

void MRSpecialPagePDE::updatePictures()
{
    if (!m_ui)
        return;
    Ui::PageListPDE& u = *m_ui;
    const PDEBundle* bundle = pluginBundle().get();
    const int index = u.pbtPageOption->currentIndex();
    QString page = index == 1 ? QStringLiteral("insert") : index == 2 ? QStringLiteral("transparency") : QString();
    if (index == 0)
        page = u.btnPageCoverBoth->isChecked() ? QStringLiteral("cover_same")
               : u.btnPageCoverBack->isChecked() ? QStringLiteral("cover_back")
                                                 : QStringLiteral("cover_front");
    setImage(u.imviewPageOption, bundle, page);
    setImage(u.imviewCoverOption, bundle, kCoverPictures[u.btnCoverOption2side->isChecked() ? 2 : u.btnCoverOption1side->isChecked() ? 1 : 0]);
    const QString orientation = ReadOrientation();
    const bool landscape = orientation == QLatin1String("2") || orientation == QLatin1String("4");
    const int duplex = u.btnDuplexOptionShort->isChecked() ? 2 : u.btnDuplexOptionLong->isChecked() ? 1 : 0;
    setImage(u.imviewDuplexOption, bundle, QStringLiteral("doubleside_") + (landscape ? QStringLiteral("land") : QString()) + kDuplexPictures[duplex]);
}

void MRSpecialPagePDE::actionPageCoverFront()
{
    updatePictures();
}

void MRSpecialPagePDE::actionPageCoverBack()
{
    updatePictures();
}

void MRSpecialPagePDE::actionPageCoverBoth()
{
    updatePictures();
}

void MRSpecialPagePDE::actionPageInsertFirst()
{
    updateUIDependency();
}

void MRSpecialPagePDE::actionPageInsertNext()
{
    updateUIDependency();
}

void MRSpecialPagePDE::actionPaperSource()
{
    checkConstraintWithSelection(PDEItemChoice(m_ui->pbtPaperOptionSource, m_ui->pbtPaperOptionSource->currentIndex()));
}

void MRSpecialPagePDE::actionCoverBlank()
{
    updatePictures();
}

void MRSpecialPagePDE::actionCover1Side()
{
    updatePictures();
}

void MRSpecialPagePDE::actionCover2Side()
{
    updatePictures();
}

void MRSpecialPagePDE::actionDuplexNone()
{
    updatePictures();
}

void MRSpecialPagePDE::actionDuplexLong()
{
    updatePictures();
}

void MRSpecialPagePDE::actionDuplexShort()
{
    updatePictures();
}

QString MRSpecialPagePDE::choiceTitle(QComboBox* popUp, const MRPDEChoiceArray& choices, const QString& keyword) const
{
    const std::shared_ptr<MRPDEChoice> choice = SpecialPageFindChoiceForString(keyword, choices);
    const int index = choice ? int(choices.indexOf(choice)) : -1;
    return popUp && index >= 0 && index < popUp->count() ? popUp->itemText(index) : keyword;
}

QString MRSpecialPagePDE::cellText(const MRSpecialPageRow& row, int column) const
{
    const auto tr = [this](const char* key) { return getLocalizationWithKey(QString::fromLatin1(key)); };
    const QString type = row.value(kPageType);
    const QString page = row.value(kPage);
    if (column == 0) {
        if (type == kCover)
            return tr(page == QLatin1String("Front") ? "Front Cover" : "Back Cover");
        if (type == kInsert)
            return QStringLiteral("%1: %2").arg(tr("Inserted Sheet"), page == QLatin1String("0") ? tr("Before Page 1") : tr("After Page %1").arg(page));
        return QStringLiteral("%1: %2").arg(tr("Exception Pages"), page);
    }
    QString text = QStringLiteral("%1, %2").arg(choiceTitle(m_ui ? m_ui->pbtPaperOptionSource : nullptr, m_paperSourceChoices, row.value(kPaperSource)),
                                               choiceTitle(m_ui ? m_ui->pbtPaperOptionType : nullptr, m_paperTypeChoices, row.value(kPaperType)));
    const QString cover = row.value(kCoverOption);
    const QString duplex = row.value(kDuplexOption);
    const char* coverTexts[] = {"Blank or Preprinted", "1-Sided Printed", "2-Sided Printed"};
    const char* duplexTexts[] = {"DuplexNone", "Long Edge", "Short Edge"};
    if (!cover.isEmpty())
        text += QStringLiteral(": ") + tr(coverTexts[qMax(0, int(kCoverOptions.indexOf(cover)))]);
    if (!duplex.isEmpty())
        text += QStringLiteral(": ") + tr(duplexTexts[qMax(0, int(kDuplexOptions.indexOf(duplex)))]);
    return text;
}

// ---- Refresh and enabling ----

void MRSpecialPagePDE::updateUI()
{
    if (!hasInited())
        return;
    Ui::PageListPDE& u = *m_ui;
    const int index = m_pageOptionSelection ? int(m_pageOptionChoices.indexOf(m_pageOptionSelection)) : 0;
    if (index >= 0 && index < u.pbtPageOption->count())
        u.pbtPageOption->setCurrentIndex(index);
    checkInstallableOption();
    m_model->setSuppressed(isListSuppressed());
    showPageOption();
    updateUIDependency();
}

void MRSpecialPagePDE::updateUIDependency()
{
    if (!m_ui)
        return;
    Ui::PageListPDE& u = *m_ui;
    const bool suppressed = isListSuppressed();
    m_model->setSuppressed(suppressed);
    // While a feature that excludes special pages is on, nothing can be edited.
    for (QWidget* w : {static_cast<QWidget*>(u.viewTable), static_cast<QWidget*>(u.viewPageOption), static_cast<QWidget*>(u.viewPaperOption),
                       static_cast<QWidget*>(u.viewCoverOption), static_cast<QWidget*>(u.viewDuplexOption)})
        w->setEnabled(!suppressed);
    if (suppressed)
        return;
    const bool booklet = isBookletOn();
    u.pbtPageOption->setEnabled(!booklet);
    u.btnPageCoverFront->setEnabled(!booklet);
    u.btnPageCoverBack->setEnabled(!booklet);
    u.btnCoverOption1side->setEnabled(!booklet);
    if (booklet) {
        // A booklet's covers are its outer sheet: both sides at once, and a
        // cover printed on one side only does not exist.
        if (u.pbtPageOption->currentIndex() != 0) {
            u.pbtPageOption->setCurrentIndex(0);
            showPageOption();
        }
        u.btnPageCoverBoth->setChecked(true);
        if (u.btnCoverOption1side->isChecked())
            u.btnCoverOptionBlank->setChecked(true);
        updatePictures();
    }
    u.etfPageInsertNum->setEnabled(u.btnPageInsertNext->isChecked());
    const int row = selectedRow();
    const int count = int(m_model->rows().size());
    u.btnRemove->setEnabled(row >= 0);
    u.btnUpdate->setEnabled(row >= 0);
    u.btnUp->setEnabled(row > 0);
    u.btnDown->setEnabled(row >= 0 && row + 1 < count);
    // Booklets take covers only: inserts and exceptions cannot be added.
    u.btnAdd->setEnabled(!booklet || u.pbtPageOption->currentIndex() == 0);
}

void MRSpecialPagePDE::updatePrinterUI()
{
    if (!hasInited())
        return;
    updateUI();
}

// ---- Panel protocol ----

bool MRSpecialPagePDE::willShow()
{
    setWillShowCalled(true);
    m_bHidded = false;
    panelView();
    updateUI();
    return true;
}

bool MRSpecialPagePDE::shouldHide()
{
    setWillShowCalled(false);
    m_bHidded = true;
    return true;
}

bool MRSpecialPagePDE::validateAndAlert()
{
    if (!m_model->rows().isEmpty())
        return true;
    PDEAlerts::Alert alert;
    alert.title = getLocalizationWithKey(QStringLiteral("PrintErrorTitle"));
    alert.message = getLocalizationWithKey(QStringLiteral("PrintErrorContent"));
    alert.defaultButton = getLocalizationWithKey(QStringLiteral("Yes"));
    alert.alternateButton = getLocalizationWithKey(QStringLiteral("No"));
    return PDEAlerts::runAlertPanel(alert) == PDEAlerts::DefaultButton;
}

// Printing from another panel does not ask: the question is for the user who
// is looking at the (empty) list. A suppressed list has nothing to ask about.
bool MRSpecialPagePDE::shouldPrint()
{
    const bool print = m_bHidded || isListSuppressed() || validateAndAlert();
    _PDELog(this, QStringLiteral("shouldPrint:=BOOL(%s)"), print ? "YES" : "NO");
    return print;
}

bool MRSpecialPagePDE::restoreValuesAndReturnError(QString*)
{
    _PDELog(this, QStringLiteral("restoreValuesAndReturnError:(%p)"), PDEAddress(this));
    panelView();
    if (useConstraintHandling())
        updateMarkedSelections();
    getNonPPDSettingsFromPrintSettings();
    updateUI();
    return true;
}

bool MRSpecialPagePDE::saveValuesAndReturnError(QString*)
{
    _PDELog(this, QStringLiteral("saveValuesAndReturnError:(%p)"), PDEAddress(this));
    writeNonPPDSettingsToPrintSettings();
    return true;
}

QVariantMap MRSpecialPagePDE::summaryInfo()
{
    QVariantMap summary;
    const QString title = getLocalizationWithKey(QString::fromLatin1(kNSSpecialPageKey));
    if (isListSuppressed() || m_model->rows().isEmpty()) {
        summary.insert(title, getLocalizationWithKey(QStringLiteral("None")));
    } else {
        QStringList entries;
        for (const MRSpecialPageRow& row : m_model->rows())
            entries.append(cellText(row, 0));
        summary.insert(title, entries.join(QStringLiteral(", ")));
    }
    _PDELog(this, QStringLiteral("summaryInfo:NSDictionary(%@, %p)"), summary, PDEAddress(&summary));
    return summary;
}
