#include "MRAdvancedOptionPDE.h"

#include "MRAdvancedUnits.h"
#include "MRBookletController.h"
#include "MRFontSizeTextField.h"
#include "MRFormatter.h"
#include "MRManualBookletController.h"
#include "MRMessageAngleField.h"
#include "MRMessageFormatter.h"
#include "MRPosterController.h"
#include "MRSheetPerSetTextField.h"
#include "MRWatermarkController.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "PDEPluginCallback.h"
#include "PDEStringExtension.h"
#include "PMPrintSettings.h"
#include "ui_AdvancedOptionPDE.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <cups/ppd.h>

namespace {
const QString kKind = QStringLiteral("com.vel.print.AdvancedOptionPDE.AdvancedOptionKind");
const QStringList kNupBorderKeys{"BorderNone", "BorderSingleHairline", "BorderSingleThinLine", "BorderDoubleHairline", "BorderDoubleThinLine"};
const QStringList kNupLayoutKeys{"PagesPerSide1", "PagesPerSide2", "PagesPerSide4", "PagesPerSide6", "PagesPerSide9", "PagesPerSide16"};
const QStringList kNupOrderKeys{"OrderLeftRightTopBottom", "OrderRightLeftTopBottom", "OrderTopBottomLeftRight", "OrderTopBottomRightLeft"};
const QStringList kFoldingPictures{"folding_none", "folding_only", "folding_stitch"};

// The symbolic names of the print-settings keys, for the log.
QString symbolicName(const char* key)
{
    static const QMap<QString, QString> names{
        {kNSWatermarkCustomeStrKey, "kNSWatermarkCustomeStrKey"}, {kNSWatermarkFontNameKey, "kNSWatermarkFontNameKey"},
        {kNSWatermarkStyleKey, "kNSWatermarkStyleKey"},           {kNSWatermarkStyleFullNameKey, "kNSWatermarkStyleFullNameKey"},
        {kNSWatermarkColorKey, "kNSWatermarkColorKey"},           {kNSWatermarkShadeKey, "kNSWatermarkShadeKey"},
        {kNSWatermarkAngleKey, "kNSWatermarkAngleKey"},           {kNSWatermarkAngleNumberKey, "kNSWatermarkAngleNumberKey"},
        {kNSWatermarkAngleDefinedKey, "kNSWatermarkAngleDefinedKey"}, {kNSWatermarkFontSizeKey, "kNSWatermarkFontSizeKey"},
        {kNSWatermarkFirstPageOnlyKey, "kNSWatermarkFirstPageOnlyKey"}, {kNSPosterOverlapKey, "kNSPosterOverlapKey"},
        {kNSBookletSheetperKey, "kNSBookletSheetperKey"},         {kNSBookletGutterKey, "kNSBookletGutterKey"},
        {kNSBookletRightBindingKey, "kNSBookletRightBindingKey"}, {kNSBookletNupBorderKey, "kNSBookletNupBorderKey"},
        {kNSBookletNupLayoutKey, "kNSBookletNupLayoutKey"},       {kNSBookletNupPageOrderKey, "kNSBookletNupPageOrderKey"}};
    return names.value(QString::fromLatin1(key), QString::fromLatin1(key));
}

// A value the panel cannot use is reported and replaced, never dropped silently.
void reportMalformed(const char* key, const QString& value, const QString& used)
{
    PDENSLog(QStringLiteral("AdvancedOptionPDE: ERROR : the print setting %@ has the unusable value \"%@\"; \"%@\" is used instead"),
             QString::fromLatin1(key), value, used);
}

QVariantMap readJsonEntry(const QString& path, const QString& language)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object().toVariantMap().value(language).toMap();
}

void fillPopUp(QComboBox* popUp, const QStringList& keys, const MRAdvancedOptionPDE* panel)
{
    popUp->clear();
    for (const QString& key : keys)
        popUp->addItem(panel->getLocalizationWithKey(key));
}
}

std::shared_ptr<MRAdvancedOptionPDE> MRAdvancedOptionPDE::create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
{
    std::shared_ptr<MRAdvancedOptionPDE> panel(new MRAdvancedOptionPDE(callback, std::move(bundle)));
    const bool offered = panel->hasAnyOption();
    panel->logCreation(offered);
    return offered ? panel : nullptr;
}

MRAdvancedOptionPDE::MRAdvancedOptionPDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
    : MRStandalonePDE(callback, std::move(bundle)), m_metric(IsMetric())
{
    for (Feature* f : {&m_watermarkOption, &m_posterOption, &m_bookletOption, &m_foldmethodOption, &m_foldingoptionOption,
                       &m_PagesizeOption, &m_manualbookletOption, &m_InstallableFinisherOption}) {
        f->option = ppd() ? ppdFindOption(ppd(), f->keyword) : nullptr;
        f->choices = ArrayFromPPDOption(f->option).value_or(MRAdvancedPDEChoiceArray());
    }
    updateMarkedSelections();
}

MRAdvancedOptionPDE::~MRAdvancedOptionPDE()
{
    m_watermark.reset();
    m_booklet.reset();
    m_manualBooklet.reset();
    m_poster.reset();
    delete m_pdeView.data();
}

bool MRAdvancedOptionPDE::hasAnyOption() const
{
    return m_watermarkOption.option || m_posterOption.option || m_bookletOption.option || m_foldmethodOption.option
           || m_foldingoptionOption.option || m_manualbookletOption.option;
}

MRAdvancedOptionPDE::Feature* MRAdvancedOptionPDE::feature(const QString& keyword)
{
    for (Feature* f : {&m_watermarkOption, &m_posterOption, &m_bookletOption, &m_foldmethodOption, &m_foldingoptionOption,
                       &m_PagesizeOption, &m_manualbookletOption})
        if (keyword == QLatin1String(f->keyword))
            return f;
    return nullptr;
}

QString MRAdvancedOptionPDE::panelKind()
{
    return kKind;
}

QStringList MRAdvancedOptionPDE::supportedPPDOptionKeys()
{
    if (!m_supportedOptions.isEmpty())
        return m_supportedOptions;
    _PDELog(this, QStringLiteral("supportedPPDOptionKeys:"));
    const auto add = [this](const Feature& f, const QString& logName) {
        if (f.option) {
            _PDELog(this, QStringLiteral("Adding %@"), logName);
            m_supportedOptions.append(QString::fromLatin1(f.keyword));
        } else {
            _PDELog(this, QStringLiteral("%@ not supported!"), logName);
        }
    };
    add(m_watermarkOption, QStringLiteral("watermarkOption"));
    add(m_posterOption, QStringLiteral("posterOption"));
    for (const Feature* f : {&m_bookletOption, &m_foldmethodOption, &m_foldingoptionOption, &m_PagesizeOption})
        add(*f, QStringLiteral("bookletOption"));
    add(m_manualbookletOption, QStringLiteral("manualbookletOption"));
    _PDELog(this, QStringLiteral("supportedPPDOptionKeys:=NSArray(%@)"), m_supportedOptions);
    return m_supportedOptions;
}

QWidget* MRAdvancedOptionPDE::panelView()
{
    if (m_pdeView)
        return m_pdeView;
    m_ui = std::make_unique<Ui::AdvancedOptionPDE>();
    auto* view = new QWidget;
    m_ui->setupUi(view);
    m_pdeView = view;
    m_watermark = std::make_unique<MRWatermarkController>(this, m_ui.get());
    m_booklet = std::make_unique<MRBookletController>(this, m_ui.get());
    m_manualBooklet = std::make_unique<MRManualBookletController>(this, m_ui.get());
    m_poster = std::make_unique<MRPosterController>(this, m_ui.get());

    // Only the parts this printer offers keep their tab.
    QTabWidget* tabs = m_ui->tabView;
    const auto keepTab = [tabs](QWidget* page, const QString& title, bool keep) {
        const int index = tabs->indexOf(page);
        if (keep) {
            tabs->setTabText(index, title);
        } else {
            tabs->removeTab(index);
            page->hide();
        }
    };
    keepTab(m_ui->watermarkTab, getLocalizationWithKey(QStringLiteral("WatermarkTab")), m_watermarkOption.option);
    keepTab(m_ui->bookletTab, getLocalizationWithKey(QStringLiteral("BookletTab")),
            m_bookletOption.option || m_foldmethodOption.option || m_foldingoptionOption.option || m_manualbookletOption.option);
    keepTab(m_ui->posterTab, getLocalizationWithKey(QStringLiteral("PosterTab")), m_posterOption.option);
    // Rows of booklet options the PPD lacks are left out.
    const struct {
        QComboBox* popUp;
        QLabel* title;
        const Feature& feature;
    } rows[] = {{m_ui->BookletPopUp, m_ui->BookletTitle, m_bookletOption},
                {m_ui->FoldermethodPopup, m_ui->FoldermethodTitle, m_foldmethodOption},
                {m_ui->FoldingOptionsPopup, m_ui->FoldingOptionTitle, m_foldingoptionOption},
                {m_ui->OutputSizePopup, m_ui->OutputSizeTitle, m_PagesizeOption},
                {m_ui->ManualBookletPopUp, m_ui->ManualBookletTitle, m_manualbookletOption}};
    for (const auto& row : rows) {
        row.popUp->setVisible(row.feature.option);
        row.title->setVisible(row.feature.option);
    }
    if (!m_foldingoptionOption.option)
        m_ui->BookletFoldingImageView->hide();
    // Without booklet printing only manual booklet remains on its tab.
    if (!m_bookletOption.option) {
        m_ui->bookletcustomview->hide();
        m_ui->BookletNUPBOX->hide();
    }

    connect(m_ui->WatermarkPopUp, &QComboBox::activated, this, &MRAdvancedOptionPDE::changeWatermarkOption);
    connect(m_ui->PosterPopUp, &QComboBox::activated, this, &MRAdvancedOptionPDE::changePosterOption);
    connect(m_ui->BookletPopUp, &QComboBox::activated, this, &MRAdvancedOptionPDE::changeBookletOption);
    connect(m_ui->FoldingOptionsPopup, &QComboBox::activated, this, &MRAdvancedOptionPDE::changeBookletFinishingOption);
    connect(m_ui->FoldermethodPopup, &QComboBox::activated, this, &MRAdvancedOptionPDE::changeFoldMethodOption);
    connect(m_ui->OutputSizePopup, &QComboBox::activated, this, &MRAdvancedOptionPDE::changePageSizeOption);
    connect(m_ui->ManualBookletPopUp, &QComboBox::activated, this, &MRAdvancedOptionPDE::changeManualBookletOption);
    connect(tabs, &QTabWidget::currentChanged, this, &MRAdvancedOptionPDE::tabViewDidSelectTabViewItem);

    // The printing tips sit behind the disclosure button; a dialog that cannot
    // resize shows them for good, without the button.
    setDisclosureViews(view, m_ui->basicView, m_ui->advancedButton, m_ui->advancedView);
    m_ui->AdvancedButtonView->setVisible(canResizeView());
    showAdvanced(true);
    initializeUI();
    _PDELog(this, QStringLiteral("panelView:=NSView(%@, %p)"), view->objectName(), PDEAddress(view));
    return view;
}

void MRAdvancedOptionPDE::initializeUI()
{
    if (hasInited() || !m_ui)
        return;
    m_ui->PrintingTipTitle->setText(getLocalizationWithKey(QString::fromLatin1(kNSPrintingTipTitleKey)));
    const PDEBundle* bundle = pluginBundle().get();
    InitPopUpFromArray(m_ui->WatermarkPopUp, m_watermarkOption.choices, bundle);
    InitPopUpFromArray(m_ui->PosterPopUp, m_posterOption.choices, bundle);
    InitPopUpFromArray(m_ui->BookletPopUp, m_bookletOption.choices, bundle);
    InitPopUpFromArray(m_ui->FoldermethodPopup, m_foldmethodOption.choices, bundle);
    InitPopUpFromArray(m_ui->FoldingOptionsPopup, m_foldingoptionOption.choices, bundle);
    InitPopUpFromArray(m_ui->ManualBookletPopUp, m_manualbookletOption.choices, bundle);
    InitPopUpFromArray(m_ui->OutputSizePopup, m_PagesizeOption.choices, nullptr);
    fillPopUp(m_ui->BookletNupBorderPopup, kNupBorderKeys, this);
    fillPopUp(m_ui->BookletNupLayoutPopup, kNupLayoutKeys, this);
    fillPopUp(m_ui->BookletNupPageOrderPopup, kNupOrderKeys, this);
    // A printer that makes booklets only in their basic form has no gutter or binding side.
    m_booklet->hideGutterAndRightBindingOptions(BasicBookletstr() == QLatin1String("True") || !m_bookletOption.option);
    setHasInited(true);
    _PDELog(this, QStringLiteral("initializeUI:=void"));
    updateUI();
}

int MRAdvancedOptionPDE::selectionIndex(const std::shared_ptr<MRAdvancedPDEChoice>& selection, const Feature& f) const
{
    return selection ? int(f.choices.indexOf(selection)) : -1;
}

void MRAdvancedOptionPDE::selectInPopUp(QComboBox* popUp, const std::shared_ptr<MRAdvancedPDEChoice>& selection, const Feature& f)
{
    const int index = selectionIndex(selection, f);
    if (index >= 0 && index < popUp->count())
        popUp->setCurrentIndex(index);
}

void MRAdvancedOptionPDE::updateMarkedSelections()
{
    const auto marked = [this](Feature& f) -> std::shared_ptr<MRAdvancedPDEChoice> {
        if (!f.option)
            return nullptr;
        const int index = indexOfMarkedOptionForKey(QString::fromLatin1(f.keyword));
        if (index >= 0 && index < f.choices.size())
            return f.choices[index];
        std::shared_ptr<MRAdvancedPDEChoice> fallback = FindChoiceForString(QString(), f.choices);
        return fallback ? fallback : f.choices.value(0);
    };
    m_watermarkSelection = marked(m_watermarkOption);
    m_posterSelection = marked(m_posterOption);
    m_bookletSelection = marked(m_bookletOption);
    m_manualbookletSelection = marked(m_manualbookletOption);
    m_foldmethodSelection = marked(m_foldmethodOption);
    m_foldingoptionSelection = marked(m_foldingoptionOption);
    m_pagesizeSelection = marked(m_PagesizeOption);
}

void MRAdvancedOptionPDE::updateUI()
{
    if (!hasInited())
        return;
    if (useConstraintHandling())
        updateMarkedSelections();
    selectInPopUp(m_ui->WatermarkPopUp, m_watermarkSelection, m_watermarkOption);
    selectInPopUp(m_ui->PosterPopUp, m_posterSelection, m_posterOption);
    selectInPopUp(m_ui->BookletPopUp, m_bookletSelection, m_bookletOption);
    selectInPopUp(m_ui->ManualBookletPopUp, m_manualbookletSelection, m_manualbookletOption);
    selectInPopUp(m_ui->FoldermethodPopup, m_foldmethodSelection, m_foldmethodOption);
    selectInPopUp(m_ui->FoldingOptionsPopup, m_foldingoptionSelection, m_foldingoptionOption);
    selectInPopUp(m_ui->OutputSizePopup, m_pagesizeSelection, m_PagesizeOption);
    if (m_watermarkSelection) {
        // A watermark brings its settings when it is chosen, not on every refresh.
        const int index = selectionIndex(m_watermarkSelection, m_watermarkOption);
        m_watermark->showSelectedWatermarkSettings(index, index != m_shownWatermarkIndex);
        m_shownWatermarkIndex = index;
    }
    if (m_bookletSelection)
        m_booklet->showSelectedBookletSettings(selectionIndex(m_bookletSelection, m_bookletOption));
    m_manualBooklet->showSelectedManualBookletSettings(qMax(0, selectionIndex(m_manualbookletSelection, m_manualbookletOption)));
    changeFoldingOptionsImage();
    applyPosterRule();
}

void MRAdvancedOptionPDE::applyPosterRule()
{
    if (!m_posterSelection || !m_ui)
        return;
    // A poster is printed one page per sheet: more pages per sheet force it off.
    const bool nup = nupValue() > 1;
    if (nup && selectionIndex(m_posterSelection, m_posterOption) != 0 && m_ui->PosterPopUp->count() > 0) {
        m_ui->PosterPopUp->setCurrentIndex(0);
        if (std::shared_ptr<MRAdvancedPDEChoice> off = selectionForPopUpWithKey(m_ui->PosterPopUp, QString::fromLatin1(kNSPosterKey)))
            m_posterSelection = useConstraintHandling() ? m_posterSelection : off;
        selectInPopUp(m_ui->PosterPopUp, m_posterSelection, m_posterOption);
    }
    m_ui->PosterPopUp->setEnabled(!nup);
    setLabelActive(m_poster->layoutTitle(), !nup);
    m_poster->showSelectedPosterSettings(nup ? 0 : selectionIndex(m_posterSelection, m_posterOption));
}

void MRAdvancedOptionPDE::updatePrinterUI()
{
    m_nCopiesValue = copiesValue();
    m_nupvalue = nupValue();
    _PDELog(this, QStringLiteral("nupvalue is %d"), m_nupvalue);
    if (!hasInited())
        return;
    applyPosterRule();
}

bool MRAdvancedOptionPDE::willShow()
{
    setWillShowCalled(true);
    panelView();
    updateUI();
    return true;
}

bool MRAdvancedOptionPDE::shouldHide()
{
    setWillShowCalled(false);
    return true;
}

void MRAdvancedOptionPDE::tabViewDidSelectTabViewItem(int)
{
    _PDELog(this, QStringLiteral("<<<< Choose tab >>>>"));
    if (canResizeView()) {
        showAdvanced(false);
        pdePluginCallbackObject()->panelViewDidResize();
    }
    updateUI();
}

void MRAdvancedOptionPDE::changeFoldingOptionsImage()
{
    if (!m_ui || !m_foldingoptionOption.option)
        return;
    const int index = m_ui->FoldingOptionsPopup->currentIndex();
    MRStandalonePDE::setImage(m_ui->BookletFoldingImageView, pluginBundle().get(), kFoldingPictures.value(index, kFoldingPictures[0]));
}

void MRAdvancedOptionPDE::changeWatermarkOption()
{
    if (auto choice = selectionForPopUpWithKey(m_ui->WatermarkPopUp, QString::fromLatin1(kNSWatermarkKey)); choice && !useConstraintHandling())
        m_watermarkSelection = choice;
    updateUI();
}

void MRAdvancedOptionPDE::changePosterOption()
{
    if (auto choice = selectionForPopUpWithKey(m_ui->PosterPopUp, QString::fromLatin1(kNSPosterKey)); choice && !useConstraintHandling())
        m_posterSelection = choice;
    updateUI();
}

void MRAdvancedOptionPDE::changeBookletOption()
{
    if (auto choice = selectionForPopUpWithKey(m_ui->BookletPopUp, QString::fromLatin1(kNSBookletKey)); choice && !useConstraintHandling())
        m_bookletSelection = choice;
    updateUI();
}

void MRAdvancedOptionPDE::changeBookletFinishingOption()
{
    if (auto choice = selectionForPopUpWithKey(m_ui->FoldingOptionsPopup, QString::fromLatin1(kNSBookletFoldingOptionKey));
        choice && !useConstraintHandling())
        m_foldingoptionSelection = choice;
    updateUI();
}

void MRAdvancedOptionPDE::changeFoldMethodOption()
{
    if (auto choice = selectionForPopUpWithKey(m_ui->FoldermethodPopup, QString::fromLatin1(kNSFoldMethodKey)); choice && !useConstraintHandling())
        m_foldmethodSelection = choice;
    updateUI();
}

void MRAdvancedOptionPDE::changePageSizeOption()
{
    if (auto choice = selectionForPopUpWithKey(m_ui->OutputSizePopup, QString::fromLatin1(kNSBookletPageSizeKey)); choice && !useConstraintHandling())
        m_pagesizeSelection = choice;
    updateUI();
}

void MRAdvancedOptionPDE::changeManualBookletOption()
{
    if (auto choice = selectionForPopUpWithKey(m_ui->ManualBookletPopUp, QString::fromLatin1(kNSManualBookletKey));
        choice && !useConstraintHandling())
        m_manualbookletSelection = choice;
    updateUI();
}

void MRAdvancedOptionPDE::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    if (option.isEmpty() || choice.isEmpty())
        return;
    _PDELog(this, QStringLiteral("PPDOptionKeyValueDidChange:(%@) ppdChoice:(%@)"), option, choice);
    if (Feature* f = feature(option)) {
        std::shared_ptr<MRAdvancedPDEChoice> found = FindChoiceForString(choice, f->choices);
        if (found) {
            _PDELog(this, QStringLiteral("new choice is %@/%@"), found->userTitle(), found->ppdTitle());
            std::shared_ptr<MRAdvancedPDEChoice>* selection =
                f == &m_watermarkOption       ? &m_watermarkSelection
                : f == &m_posterOption        ? &m_posterSelection
                : f == &m_bookletOption       ? &m_bookletSelection
                : f == &m_manualbookletOption ? &m_manualbookletSelection
                : f == &m_foldmethodOption    ? &m_foldmethodSelection
                : f == &m_foldingoptionOption ? &m_foldingoptionSelection
                                              : &m_pagesizeSelection;
            *selection = found;
        }
    }
    updateUI();
}

QVariantMap MRAdvancedOptionPDE::summaryInfo()
{
    QVariantMap summary;
    const auto add = [&](const char* titleKey, const std::shared_ptr<MRAdvancedPDEChoice>& selection) {
        if (selection)
            summary.insert(getLocalizationWithKey(QString::fromLatin1(titleKey)), getLocalizationWithKey(selection->ppdTitle()));
    };
    add(kNSWatermarkKey, m_watermarkSelection);
    add(kNSPosterKey, m_posterSelection);
    add(kNSBookletKey, m_bookletSelection);
    add(kNSManualBookletKey, m_manualbookletSelection);
    _PDELog(this, QStringLiteral("summaryInfo:NSDictionary(%@, %p)="), summary, PDEAddress(&summary));
    return summary;
}

bool MRAdvancedOptionPDE::restoreValuesAndReturnError(QString*)
{
    panelView();
    if (useConstraintHandling())
        updateMarkedSelections();
    getNonPPDSettingsFromPrintSettings();
    // Saved watermark settings stand; without them the watermark's own apply.
    bool saved = false;
    for (const char* key : {kNSWatermarkFontNameKey, kNSWatermarkFontSizeKey, kNSWatermarkColorKey, kNSWatermarkAngleKey})
        saved = saved || !readValue(key).isNull();
    m_shownWatermarkIndex = saved ? selectionIndex(m_watermarkSelection, m_watermarkOption) : -1;
    updateUI();
    return true;
}

bool MRAdvancedOptionPDE::saveValuesAndReturnError(QString*)
{
    panelView();
    writeNonPPDSettingsToPrintSettings();
    return true;
}

void MRAdvancedOptionPDE::setMetric(bool metric)
{
    m_metric = metric;
    if (m_booklet)
        m_booklet->setMetric(metric);
    if (m_poster)
        m_poster->setMetric(metric);
}

// ---- PPD readers ----

QString MRAdvancedOptionPDE::attributeValue(const char* name) const
{
    ppd_attr_t* attr = ppd() ? ppdFindAttr(ppd(), name, nullptr) : nullptr;
    if (!attr || !attr->value)
        return QString();
    return QString::fromUtf8(attr->value).trimmed();
}

QString MRAdvancedOptionPDE::readMaxperset() const
{
    const QString value = attributeValue("MAXSHEETSPERSET");
    _PDELog(this, QStringLiteral("<< 0513 Maxperset:%@ >>"), value);
    bool ok = false;
    const int n = value.toInt(&ok);
    QString maxperset = value;
    if (value.isNull() || !ok || n < 1) {
        if (!value.isNull())
            PDENSLog(QStringLiteral("AdvancedOptionPDE: ERROR : the PPD's MAXSHEETSPERSET \"%@\" is not a positive number; 15 is used"), value);
        maxperset = QStringLiteral("15");
    } else {
        maxperset = QString::number(n);
    }
    _PDELog(this, QStringLiteral("<< 0513_2 Maxperset:%@ >>"), maxperset);
    return maxperset;
}

QString MRAdvancedOptionPDE::PDEColorDevicestr() const
{
    const QString value = attributeValue("ColorDevice");
    return value.isNull() ? QStringLiteral("NULL") : value;
}

QString MRAdvancedOptionPDE::foldmethodstr() const
{
    return attributeValue("UseFoldMethod") == QLatin1String("True") ? QStringLiteral("FoldMethodON") : QStringLiteral("FoldMethodOFF");
}

QString MRAdvancedOptionPDE::UseBookletNupstr() const
{
    const QString value = attributeValue("UseBookletNup");
    return value.isNull() ? QStringLiteral("NULL") : value;
}

QString MRAdvancedOptionPDE::BasicBookletstr() const
{
    const QString value = attributeValue("BasicBooklet");
    return value.isNull() ? QStringLiteral("NULL") : value;
}

QString MRAdvancedOptionPDE::IsExistedBookletFinisher() const
{
    _PDELog(this, QStringLiteral("<< IsExistedBookletFinisher 120418 >>"));
    QString installed;
    if (ppd_option_t* option = m_InstallableFinisherOption.option) {
        ppd_choice_t* choice = ppdFindMarkedChoice(ppd(), kNSInstallableFinisherKey);
        if (!choice)
            choice = ppdFindChoice(option, option->defchoice);
        if (choice)
            installed = QString::fromLatin1(choice->choice);
    }
    const QString answer = installed == QLatin1String("BookletFinisher") || installed == QLatin1String("FUBookletFinisher")
                               ? QStringLiteral("BookletFinisher")
                               : QStringLiteral("NotBookletFinisher");
    _PDELog(this, QStringLiteral("<< ExistedBookletFinisherstr_str: %@ >>"), answer);
    return answer;
}

// ---- Bundle resources ----

QString MRAdvancedOptionPDE::getWatermarkDataFileOriginPath() const
{
    return pluginBundle() ? pluginBundle()->pathForResource(QStringLiteral("WatermarkData"), QStringLiteral("plist")) : QString();
}

QString MRAdvancedOptionPDE::getBookletStringFilePath() const
{
    return pluginBundle() ? pluginBundle()->pathForResource(QStringLiteral("BookletString"), QStringLiteral("plist")) : QString();
}

QVariantMap MRAdvancedOptionPDE::getBookletStatusString() const
{
    return readJsonEntry(getBookletStringFilePath(), LocalizationsInfo());
}

// ---- Units and the watermark text's wire form ----

QString MRAdvancedOptionPDE::escapeWatermarkText(const QString& text)
{
    QString wire = text;
    wire.replace(QLatin1Char(','), QLatin1String(MRMessageFormatter::kCommaMarker));
    wire.replace(QLatin1Char('\''), QLatin1String(MRMessageFormatter::kQuoteMarker));
    return wire;
}

QString MRAdvancedOptionPDE::unescapeWatermarkText(const QString& wire)
{
    QString text = wire;
    text.replace(QLatin1String(MRMessageFormatter::kCommaMarker), QStringLiteral(","));
    text.replace(QLatin1String(MRMessageFormatter::kQuoteMarker), QStringLiteral("'"));
    return text;
}

int MRAdvancedOptionPDE::getGutterMMValue(float inches)
{
    return MRAdvancedUnits::millimetresFromInches(inches);
}

int MRAdvancedOptionPDE::getOverlapMMValue(float inches)
{
    return MRAdvancedUnits::millimetresFromInches(inches);
}

QString MRAdvancedOptionPDE::getOverlapInchValue(int millimetres)
{
    return MRAdvancedUnits::inchTextFromMillimetres(millimetres);
}

// ---- Print settings ----

void MRAdvancedOptionPDE::store(const char* key, const QString& value)
{
    const int status = PMPrintSettingsSetValue(printSettings(), QString::fromLatin1(key), value, false);
    if (status != kPMNoError)
        _PDELog(this, QStringLiteral("%@ got an error %d setting the value !"), symbolicName(key), status);
}

QString MRAdvancedOptionPDE::readValue(const char* key) const
{
    QString value;
    if (PMPrintSettingsGetValue(printSettings(), QString::fromLatin1(key), &value) != kPMNoError)
        return QString();
    return value;
}

int MRAdvancedOptionPDE::readIndex(const char* key, int count, int fallback) const
{
    const QString value = readValue(key);
    if (value.isNull())
        return fallback;
    bool ok = false;
    const int index = value.trimmed().toInt(&ok);
    if (ok && index >= 0 && index < count)
        return index;
    reportMalformed(key, value, QString::number(fallback));
    return fallback;
}

void MRAdvancedOptionPDE::getNonPPDSettingsFromPrintSettings()
{
    _PDELog(this, QStringLiteral("^^^ get____NonPPDSettingsFromPrintSettings ^^^"));
    m_nCopiesValue = copiesValue();
    if (!printSettings() || !m_ui)
        return;
    if (m_watermarkSelection)
        readWatermarkSettings();
    if (m_posterSelection)
        readPosterSettings();
    if (m_bookletSelection)
        readBookletSettings();
}

void MRAdvancedOptionPDE::readWatermarkSettings()
{
    Ui::AdvancedOptionPDE& u = *m_ui;
    const QString custom = readValue(kNSWatermarkCustomeStrKey);
    if (custom.isNull())
        u.watermarkMessageField->clear();
    else
        u.watermarkMessageField->setText(unescapeWatermarkText(custom));

    const QString font = readValue(kNSWatermarkFontNameKey);
    if (font.isNull() || !m_watermark->selectFontFamily(font)) {
        if (!font.isNull())
            reportMalformed(kNSWatermarkFontNameKey, font, QStringLiteral("Arial"));
        if (!m_watermark->selectFontFamily(QStringLiteral("Arial")) && u.fontNameButton->count() > 0) {
            u.fontNameButton->setCurrentIndex(0);
            m_watermark->createFontStyleList();
        }
    }
    const QString style = readValue(kNSWatermarkStyleKey);
    if (!style.isNull()) {
        const int index = u.fontStyleButton->findText(style);
        if (index >= 0)
            u.fontStyleButton->setCurrentIndex(index);
        else
            reportMalformed(kNSWatermarkStyleKey, style, u.fontStyleButton->currentText());
        m_watermark->selectFontStyle();
    }
    u.fontColorButton->setCurrentIndex(readIndex(kNSWatermarkColorKey, u.fontColorButton->count(), 0));
    u.fontShadeButton->setCurrentIndex(readIndex(kNSWatermarkShadeKey, u.fontShadeButton->count(), 2));
    u.messageAngleButton->setCurrentIndex(readIndex(kNSWatermarkAngleKey, u.messageAngleButton->count(), 2));

    const auto readNumber = [this](const char* key, const QString& fallback, QString (*correct)(const QString&)) {
        const QString value = readValue(key);
        if (value.isNull())
            return fallback;
        bool ok = false;
        const int n = value.trimmed().toInt(&ok);
        const QString used = ok ? QString::number(MRFormatter::intValue(correct(QString::number(n)))) : fallback;
        if (!ok || used != value)
            reportMalformed(key, value, used);
        return used;
    };
    const QString angle = readNumber(kNSWatermarkAngleNumberKey, QStringLiteral("45"), &MRMessageAngleField::correctedAngle);
    u.messageAngleField->setText(angle);
    u.messageAngleField->syncCompanion();
    const QString size = readNumber(kNSWatermarkFontSizeKey, QStringLiteral("120"), &MRFontSizeTextField::correctedFontSize);
    u.fontSizeTextField->setText(size);
    u.fontSizeTextField->syncCompanion();
    u.firstPageOnlyButton->setChecked(readIndex(kNSWatermarkFirstPageOnlyKey, 2, 0) == 1);
}

void MRAdvancedOptionPDE::readPosterSettings()
{
    const QString fallback = m_metric ? QStringLiteral("4") : QStringLiteral("0.16");
    const QString value = readValue(kNSPosterOverlapKey);
    QString shown = fallback;
    if (!value.isNull()) {
        bool ok = false;
        const double inches = value.trimmed().toDouble(&ok);
        if (ok && inches >= 0) {
            const double limited = qMin(inches, 1.0);
            shown = m_metric ? QString::number(getOverlapMMValue(float(limited))) : MRAdvancedUnits::inchText(limited);
            if (limited != inches)
                reportMalformed(kNSPosterOverlapKey, value, MRAdvancedUnits::inchText(limited));
        } else {
            reportMalformed(kNSPosterOverlapKey, value, m_metric ? getOverlapInchValue(4) : fallback);
        }
    }
    m_ui->overlapField->setText(shown);
    m_ui->overlapField->syncCompanion();
}

void MRAdvancedOptionPDE::readBookletSettings()
{
    Ui::AdvancedOptionPDE& u = *m_ui;
    const QString maximum = readMaxperset();
    const QString sheets = readValue(kNSBookletSheetperKey);
    QString shownSheets = maximum;
    if (!sheets.isNull()) {
        bool ok = false;
        const int n = sheets.trimmed().toInt(&ok);
        shownSheets = ok ? MRSheetPerSetTextField::correctedSheets(QString::number(n), maximum) : maximum;
        if (shownSheets != sheets)
            reportMalformed(kNSBookletSheetperKey, sheets, shownSheets);
    }
    u.SheetperSetField->setText(shownSheets);
    u.SheetperSetField->syncCompanion();

    const QString gutter = readValue(kNSBookletGutterKey);
    QString shownGutter = m_metric ? QStringLiteral("0") : QStringLiteral("0.00");
    if (!gutter.isNull()) {
        bool ok = false;
        const double inches = gutter.trimmed().toDouble(&ok);
        if (ok && inches >= 0) {
            const double limited = qMin(inches, 0.98);
            shownGutter = m_metric ? QString::number(getGutterMMValue(float(limited))) : MRAdvancedUnits::inchText(limited);
            if (limited != inches)
                reportMalformed(kNSBookletGutterKey, gutter, MRAdvancedUnits::inchText(limited));
        } else {
            reportMalformed(kNSBookletGutterKey, gutter, QStringLiteral("0.00"));
        }
    }
    u.GutterTextField->setText(shownGutter);
    u.GutterTextField->syncCompanion();
    u.RightBindingCheckBox->setChecked(readIndex(kNSBookletRightBindingKey, 2, 0) == 1);
    u.BookletNupBorderPopup->setCurrentIndex(readIndex(kNSBookletNupBorderKey, u.BookletNupBorderPopup->count(), 0));
    u.BookletNupLayoutPopup->setCurrentIndex(readIndex(kNSBookletNupLayoutKey, u.BookletNupLayoutPopup->count(), 0));
    u.BookletNupPageOrderPopup->setCurrentIndex(readIndex(kNSBookletNupPageOrderKey, u.BookletNupPageOrderPopup->count(), 0));
}

void MRAdvancedOptionPDE::writeNonPPDSettingsToPrintSettings()
{
    _PDELog(this, QStringLiteral("^^^ write____NonPPDSettingsToPrintSettings ^^^"));
    if (!printSettings() || !m_ui)
        return;
    if (m_watermarkSelection)
        writeWatermarkSettings();
    if (m_posterSelection)
        writePosterSettings();
    if (m_bookletSelection)
        writeBookletSettings();
}

void MRAdvancedOptionPDE::writeWatermarkSettings()
{
    Ui::AdvancedOptionPDE& u = *m_ui;
    const QString message = u.watermarkMessageField->text();
    _PDELog(this, QStringLiteral("[writeWatermarkInfo]:temp_watermark %@"), message);
    const QString wire = escapeWatermarkText(message);
    _PDELog(this, QStringLiteral("[writeWatermarkInfo]:wmcustomstr %@"), wire);
    store(kNSWatermarkCustomeStrKey, wire);
    _PDELog(this, QStringLiteral("[writeWatermarkInfo]:wmfontnamestr %@"), u.fontNameButton->currentText());
    store(kNSWatermarkFontNameKey, u.fontNameButton->currentText());
    _PDELog(this, QStringLiteral("[writeWatermarkInfo]:wmfontstylestr %@"), u.fontStyleButton->currentText());
    store(kNSWatermarkStyleKey, u.fontStyleButton->currentText());
    const QString postScriptName = m_watermark->postScriptFontNameFullName();
    _PDELog(this, QStringLiteral("[writeWatermarkInfo]:postScriptFontNameFullName %@"), postScriptName);
    store(kNSWatermarkStyleFullNameKey, postScriptName);
    store(kNSWatermarkColorKey, QString::number(u.fontColorButton->currentIndex()));
    store(kNSWatermarkShadeKey, QString::number(u.fontShadeButton->currentIndex()));
    const int angleIndex = u.messageAngleButton->currentIndex();
    store(kNSWatermarkAngleKey, QString::number(angleIndex));
    const QString angle = QString::number(MRFormatter::intValue(MRMessageAngleField::correctedAngle(u.messageAngleField->text())));
    u.messageAngleField->setText(angle);
    store(kNSWatermarkAngleNumberKey, angle);
    store(kNSWatermarkAngleDefinedKey, angleIndex == 0 ? QStringLiteral("0") : angleIndex == 1 ? QStringLiteral("90") : angle);
    const QString size = QString::number(MRFormatter::intValue(MRFontSizeTextField::correctedFontSize(u.fontSizeTextField->text())));
    u.fontSizeTextField->setText(size);
    u.fontSizeTextField->syncCompanion();
    store(kNSWatermarkFontSizeKey, size);
    store(kNSWatermarkFirstPageOnlyKey, QString::number(u.firstPageOnlyButton->isChecked() ? 1 : 0));
}

void MRAdvancedOptionPDE::writePosterSettings()
{
    MROverlapTextField* field = m_ui->overlapField;
    if (m_metric) {
        const int millimetres = qBound(0, MRFormatter::intValue(field->text()), 25);
        field->setText(QString::number(millimetres));
        store(kNSPosterOverlapKey, getOverlapInchValue(millimetres));
    } else {
        const double inches = qBound(0.0, MRFormatter::doubleValue(field->text()), 1.0);
        field->setText(MRAdvancedUnits::inchText(inches));
        store(kNSPosterOverlapKey, MRAdvancedUnits::inchText(inches));
    }
    field->syncCompanion();
}

void MRAdvancedOptionPDE::writeBookletSettings()
{
    Ui::AdvancedOptionPDE& u = *m_ui;
    const QString sheets =
        QString::number(MRFormatter::intValue(MRSheetPerSetTextField::correctedSheets(u.SheetperSetField->text(), readMaxperset())));
    u.SheetperSetField->setText(sheets);
    u.SheetperSetField->syncCompanion();
    store(kNSBookletSheetperKey, sheets);
    if (m_metric) {
        const int millimetres = qBound(0, MRFormatter::intValue(u.GutterTextField->text()), 25);
        u.GutterTextField->setText(QString::number(millimetres));
        store(kNSBookletGutterKey, getOverlapInchValue(millimetres));
    } else {
        const double inches = qBound(0.0, MRFormatter::doubleValue(u.GutterTextField->text()), 0.98);
        u.GutterTextField->setText(MRAdvancedUnits::inchText(inches));
        store(kNSBookletGutterKey, MRAdvancedUnits::inchText(inches));
    }
    u.GutterTextField->syncCompanion();
    store(kNSBookletRightBindingKey, QString::number(u.RightBindingCheckBox->isChecked() ? 1 : 0));
    store(kNSBookletNupBorderKey, QString::number(u.BookletNupBorderPopup->currentIndex()));
    store(kNSBookletNupLayoutKey, QString::number(u.BookletNupLayoutPopup->currentIndex()));
    store(kNSBookletNupPageOrderKey, QString::number(u.BookletNupPageOrderPopup->currentIndex()));
}
