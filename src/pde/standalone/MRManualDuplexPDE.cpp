#include "MRManualDuplexPDE.h"

#include "MRAdvancedOptionPDE.h"
#include "MRManualDuplexController.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "PDEPluginCallback.h"
#include "ui_ManualDuplexPDE.h"

#include <QStringDecoder>
#include <cups/ppd.h>

std::shared_ptr<MRManualDuplexPDE> MRManualDuplexPDE::create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
{
    std::shared_ptr<MRManualDuplexPDE> panel(new MRManualDuplexPDE(callback, std::move(bundle)));
    const bool offered = panel->m_manualduplexOption != nullptr;
    panel->logCreation(offered);
    return offered ? panel : nullptr;
}

MRManualDuplexPDE::MRManualDuplexPDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
    : MRStandalonePDE(callback, std::move(bundle))
{
    m_manualduplexOption = ppd() ? ppdFindOption(ppd(), kManualDuplexKey) : nullptr;
    m_manualduplexChoices = ManaulDArrayFromPPDOption(m_manualduplexOption).value_or(MRAdvancedPDEChoiceArray());
    m_DuplexUnitOption = ppd() ? ppdFindOption(ppd(), kDuplexUnitKey) : nullptr;
    m_DuplexUnitChoices = ManaulDArrayFromPPDOption(m_DuplexUnitOption).value_or(MRAdvancedPDEChoiceArray());
    getManaulduplexselection();
}

MRManualDuplexPDE::~MRManualDuplexPDE()
{
    m_controller.reset();
    delete m_pdeView.data();
}

QString MRManualDuplexPDE::panelKind()
{
    return QString::fromLatin1(kManualDuplexKindID);
}

QStringList MRManualDuplexPDE::supportedPPDOptionKeys()
{
    if (!m_supportedOptions.isEmpty())
        return m_supportedOptions;
    m_supportedOptions.reserve(8);
    for (const auto& [option, key] : {std::pair{m_manualduplexOption, kManualDuplexKey}, std::pair{m_DuplexUnitOption, kDuplexUnitKey}}) {
        if (option) {
            _PDELog(this, QStringLiteral("Adding Output Bin option"));
            m_supportedOptions.append(QString::fromLatin1(key));
        } else {
            _PDELog(this, QStringLiteral("Output Bin option not supported!"));
        }
    }
    _PDELog(this, QStringLiteral("supportedPPDOptionKeys:=NSArray(%@)"), m_supportedOptions);
    return m_supportedOptions;
}

QWidget* MRManualDuplexPDE::panelView()
{
    if (m_pdeView)
        return m_pdeView;
    m_ui = std::make_unique<Ui::ManualDuplexPDE>();
    auto* view = new QWidget;
    m_ui->setupUi(view);
    m_pdeView = view;
    m_controller = std::make_unique<MRManualDuplexController>(this, m_ui.get());
    connect(m_ui->ManualDuplexPopup, &QComboBox::activated, this, &MRManualDuplexPDE::changeManualDuplexOption);

    const QSize basicSize = m_ui->basicView->sizeHint();
    _PDELog(this, QStringLiteral("Basic View Size={%.0f x %.0f}"), double(basicSize.width()), double(basicSize.height()));
    const QSize advancedSize = m_ui->manualduplexadvancedView->sizeHint() + QSize(0, basicSize.height());
    _PDELog(this, QStringLiteral("[ManualDuplex]Advanced View Size={%.0f x %.0f}"), double(advancedSize.width()),
            double(advancedSize.height()));

    // A dialog that resizes opens the tips with the button's click; one that
    // cannot shows them for good, without the button (the click then only
    // logs that the view stays as it is).
    setDisclosureViews(view, m_ui->basicView, m_ui->advancedButton, m_ui->manualduplexadvancedView);
    QToolButton* button = m_ui->advancedButton;
    connect(button, &QToolButton::toggled, button, [button](bool open) { button->setArrowType(open ? Qt::DownArrow : Qt::RightArrow); });
    if (canResizeView()) {
        _PDELog(this, QStringLiteral("canResizeView:1"));
        showAdvanced(false);
        m_ui->AdvancedButtonView->show();
    } else {
        _PDELog(this, QStringLiteral("canResizeView:2"));
        showAdvanced(true);
        m_ui->AdvancedButtonView->hide();
        m_ui->advancedButton->setChecked(true);
        m_ui->advancedButton->hide();
    }
    m_ui->advancedButton->click();
    // Filled at once, so the copies and duplex-unit rules hold for a job
    // printed without the panel ever being shown.
    initializeUI();
    _PDELog(this, QStringLiteral("panelView:=NSView(%@, %p)"), view->objectName(), PDEAddress(view));
    return view;
}

void MRManualDuplexPDE::initializeUI()
{
    if (hasInited() || !m_ui)
        return;
    m_ui->PrintingTipTitle->setText(getLocalizationWithKey(QString::fromLatin1(kNSPrintingTipTitleKey)));
    setViewTitleByTagFromOptions(QStringLiteral("ManualDuplexTitle"), m_manualduplexOption);
    if (m_manualduplexOption)
        ManaulDInitPopUpFromArray(m_ui->ManualDuplexPopup, m_manualduplexChoices, pluginBundle().get());
    applyDuplexUnitRule();
    ppdMDimage1Str();
    setHasInited(true);
    _PDELog(this, QStringLiteral("initializeUI:=void"));
}

void MRManualDuplexPDE::setViewTitleByTagFromOptions(const QString& tag, ppd_option_s* option)
{
    if (auto* label = m_pdeView ? m_pdeView->findChild<QLabel*>(tag) : nullptr)
        label->setText(QStringLiteral("%1:").arg(ManaulDCreateOptionTitle(option)));
}

std::shared_ptr<MRAdvancedPDEChoice> MRManualDuplexPDE::markedChoice(const char* key, const MRAdvancedPDEChoiceArray& choices) const
{
    const int index = indexOfMarkedOptionForKey(QString::fromLatin1(key));
    return index >= 0 && index < choices.size() ? choices[index] : nullptr;
}

void MRManualDuplexPDE::updateManualDuplexMarkedSelections()
{
    m_manualduplexSelection = markedChoice(kManualDuplexKey, m_manualduplexChoices);
    m_DuplexUnitSelection = markedChoice(kDuplexUnitKey, m_DuplexUnitChoices);
}

void MRManualDuplexPDE::getManaulduplexselection()
{
    m_DuplexUnitSelection = markedChoice(kDuplexUnitKey, m_DuplexUnitChoices);
    m_DuplexUnitStr = m_DuplexUnitSelection ? m_DuplexUnitSelection->ppdTitle() : QString();
    _PDELog(this, QStringLiteral("DuplexUnitStr : %@"), m_DuplexUnitStr);
}

void MRManualDuplexPDE::getNonPPDSettingsFromPrintSettings()
{
    if (printSettings())
        m_nCopiesValue = copiesValue();
}

void MRManualDuplexPDE::updateUI()
{
    if (!hasInited())
        return;
    getNonPPDSettingsFromPrintSettings();
    if (m_manualduplexSelection) {
        if (std::shared_ptr<MRAdvancedPDEChoice> marked = markedChoice(kManualDuplexKey, m_manualduplexChoices))
            m_manualduplexSelection = marked;
    }
    const int index = int(m_manualduplexChoices.indexOf(m_manualduplexSelection));
    if (index >= 0)
        m_ui->ManualDuplexPopup->setCurrentIndex(index);
    _PDELog(this, QStringLiteral("updateUI: markedchoice %d"), index);
    m_controller->showSelectedManualDuplexSettings(m_ui->ManualDuplexPopup->currentIndex());
    applyCopiesRule();
    applyDuplexUnitRule();
}

void MRManualDuplexPDE::applyCopiesRule()
{
    _PDELog(this, QStringLiteral("nCopiesValue is %d"), m_nCopiesValue);
    QComboBox* popUp = m_ui->ManualDuplexPopup;
    if (m_nCopiesValue < 2 || popUp->count() == 0) {
        popUp->setEnabled(true);
        return;
    }
    // Copies are collated by the printer: a multi-copy job is printed one-sided.
    popUp->setCurrentIndex(0);
    m_controller->showSelectedManualDuplexSettings(0);
    popUp->setEnabled(false);
    std::shared_ptr<MRAdvancedPDEChoice> first = selectionForPopUpWithKey(popUp, QString::fromLatin1(kManualDuplexKey));
    if (first && !useConstraintHandling())
        m_manualduplexSelection = first;
    // Should the dialog refuse, the pop-up shows what stays marked.
    const int index = int(m_manualduplexChoices.indexOf(m_manualduplexSelection));
    if (index > 0) {
        popUp->setCurrentIndex(index);
        m_controller->showSelectedManualDuplexSettings(index);
    }
}

void MRManualDuplexPDE::applyDuplexUnitRule()
{
    getManaulduplexselection();
    // With the duplex unit installed the printer turns the paper itself.
    if (m_DuplexUnitStr == QLatin1String("True"))
        m_ui->ManualDuplexPopup->setEnabled(false);
    else if (m_DuplexUnitStr == QLatin1String("False"))
        m_ui->ManualDuplexPopup->setEnabled(true);
}

void MRManualDuplexPDE::updatePrinterUI()
{
    if (!m_ui) {
        getNonPPDSettingsFromPrintSettings();
        return;
    }
    m_controller->showSelectedManualDuplexSettings(m_ui->ManualDuplexPopup->currentIndex());
    getNonPPDSettingsFromPrintSettings();
    applyCopiesRule();
    applyDuplexUnitRule();
}

void MRManualDuplexPDE::changeManualDuplexOption()
{
    _PDELog(this, QStringLiteral("<<<< changeManualDuplexOption >>>>"));
    if (std::shared_ptr<MRAdvancedPDEChoice> choice = selectionForPopUpWithKey(m_ui->ManualDuplexPopup, QString::fromLatin1(kManualDuplexKey)))
        m_manualduplexSelection = choice;
    updateUI();
}

void MRManualDuplexPDE::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    if (option.isEmpty() || choice.isEmpty())
        return;
    if (option == QLatin1String(kManualDuplexKey)) {
        m_manualduplexSelection = ManaulDFindChoiceForString(choice, m_manualduplexChoices);
        if (m_manualduplexSelection)
            _PDELog(this, QStringLiteral("new choice is %@/%@"), m_manualduplexSelection->userTitle(), m_manualduplexSelection->ppdTitle());
    } else if (option == QLatin1String(kDuplexUnitKey)) {
        m_DuplexUnitSelection = ManaulDFindChoiceForString(choice, m_DuplexUnitChoices);
        if (m_DuplexUnitSelection)
            _PDELog(this, QStringLiteral("DuplexUnitSelection:::::::::new choice is %@/%@"), m_DuplexUnitSelection->userTitle(),
                    m_DuplexUnitSelection->ppdTitle());
    } else {
        return;
    }
    updateUI();
}

bool MRManualDuplexPDE::willShow()
{
    setWillShowCalled(true);
    panelView();
    initializeUI();
    updateUI();
    m_controller->showSelectedManualDuplexSettings(m_ui->ManualDuplexPopup->currentIndex());
    // The view takes the size its texts now need.
    m_pdeView->adjustSize();
    return true;
}

bool MRManualDuplexPDE::shouldHide()
{
    setWillShowCalled(false);
    _PDELog(this, QStringLiteral("shouldHide:=BOOL(YES)"));
    return true;
}

bool MRManualDuplexPDE::restoreValuesAndReturnError(QString*)
{
    panelView();
    if (useConstraintHandling())
        updateManualDuplexMarkedSelections();
    getNonPPDSettingsFromPrintSettings();
    updateUI();
    return true;
}

bool MRManualDuplexPDE::saveValuesAndReturnError(QString*)
{
    writeNonPPDSettingsToPrintSettings();
    _PDELog(this, QStringLiteral("saveValuesAndReturnError:=BOOL(YES)"));
    return true;
}

QVariantMap MRManualDuplexPDE::summaryInfo()
{
    QVariantMap summary;
    if (m_manualduplexSelection)
        summary.insert(getLocalizationWithKey(QString::fromLatin1(kManualDuplexPanelNameKey)),
                       getLocalizationWithKey(m_manualduplexSelection->ppdTitle()));
    _PDELog(this, QStringLiteral("summaryInfo:NSDictionary(%@, %p)="), summary, PDEAddress(&summary));
    return summary;
}

QString MRManualDuplexPDE::ppdImageString(const char* key, QString* field)
{
    ppd_attr_t* attr = ppd() ? ppdFindAttr(ppd(), key, nullptr) : nullptr;
    if (!attr || !attr->value) {
        *field = QStringLiteral("NULL");
        return *field;
    }
    // The PPD's texts are UTF-8 when it says so, else ISO Latin-1.
    const bool utf8 = ppd()->lang_encoding && qstrcmp(ppd()->lang_encoding, "UTF-8") == 0;
    QStringDecoder decode(utf8 ? QStringConverter::Utf8 : QStringConverter::Latin1);
    *field = decode(QByteArray(attr->value));
    return *field;
}

QString MRManualDuplexPDE::ppdMDimage1Str()
{
    return ppdImageString(kMDimage1key, &m_kMDimage1keyStr);
}

QString MRManualDuplexPDE::ppdMDimage2Str()
{
    return ppdImageString(kMDimage2key, &m_kMDimage2keyStr);
}

QString MRManualDuplexPDE::ppdMDimage3Str()
{
    return ppdImageString(kMDimage3key, &m_kMDimage3keyStr);
}
