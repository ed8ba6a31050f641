#include "MRSecureReleasePDE.h"

#include "MRSecureIDFormatter.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "PMPrintSettings.h"
#include "ui_SecureReleasePDE.h"

#include <cups/ppd.h>

std::shared_ptr<MRSecureReleasePDE> MRSecureReleasePDE::create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
{
    std::shared_ptr<MRSecureReleasePDE> panel(new MRSecureReleasePDE(callback, std::move(bundle)));
    const bool offered = panel->m_pssOption != nullptr;
    panel->logCreation(offered);
    return offered ? panel : nullptr;
}

MRSecureReleasePDE::MRSecureReleasePDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
    : MRStandalonePDE(callback, std::move(bundle))
{
    m_pssOption = ppd() ? ppdFindOption(ppd(), kSecureReleaseKey) : nullptr;
    m_pssChoices = PSSArrayFromPPDOption(m_pssOption).value_or(MRAdvancedPDEChoiceArray());
}

MRSecureReleasePDE::~MRSecureReleasePDE()
{
    delete m_pdeView.data();
}

QString MRSecureReleasePDE::panelKind()
{
    return QString::fromLatin1(kSecureReleaseKindID);
}

QStringList MRSecureReleasePDE::supportedPPDOptionKeys()
{
    if (m_supportedOptions.isEmpty()) {
        if (m_pssOption) {
            _PDELog(this, QStringLiteral("Adding Output Bin option"));
            m_supportedOptions.append(QString::fromLatin1(kSecureReleaseKey));
        } else {
            _PDELog(this, QStringLiteral("Output Bin option not supported!"));
        }
    }
    _PDELog(this, QStringLiteral("PSS_supportedPPDOptionKeys:=NSArray(%@)"), m_supportedOptions);
    return m_supportedOptions;
}

QWidget* MRSecureReleasePDE::panelView()
{
    if (m_pdeView)
        return m_pdeView;
    m_ui = std::make_unique<Ui::SecureReleasePDE>();
    auto* view = new QWidget;
    m_ui->setupUi(view);
    m_pdeView = view;
    // Keystrokes the formatter refuses never reach the field (it beeps).
    m_ui->UserIDBox->setValidator(new MRSecureIDFormatter(m_ui->UserIDBox));
    connect(m_ui->PSSPopup, &QComboBox::activated, this, &MRSecureReleasePDE::changepssOption);
    // The ID travels as it is typed, so it is never lost to a later refresh.
    connect(m_ui->UserIDBox, &QLineEdit::textEdited, this, &MRSecureReleasePDE::writeUserIDInfo);
    initializeUI();
    _PDELog(this, QStringLiteral("panelView:=NSView(%@, %p)"), view->objectName(), PDEAddress(view));
    return view;
}

void MRSecureReleasePDE::initializeUI()
{
    if (hasInited() || !m_ui)
        return;
    setViewTitleByTagFromOptions(QStringLiteral("PSSTitle"), m_pssOption);
    m_ui->PSSUserIDTitle->setText(QStringLiteral("%1:").arg(getLocalizationWithKey(QString::fromLatin1(kSecureReleaseUserIDTitleKey))));
    PSSInitPopUpFromArray(m_ui->PSSPopup, m_pssChoices, pluginBundle().get());
    setHasInited(true);
    _PDELog(this, QStringLiteral("initializeUI:=void"));
}

void MRSecureReleasePDE::setViewTitleByTagFromOptions(const QString& tag, ppd_option_s* option)
{
    if (auto* label = m_pdeView ? m_pdeView->findChild<QLabel*>(tag) : nullptr)
        label->setText(QStringLiteral("%1:").arg(PSSCreateOptionTitle(option)));
}

void MRSecureReleasePDE::updatePSSMarkedSelections()
{
    const int index = indexOfMarkedOptionForKey(QString::fromLatin1(kSecureReleaseKey));
    _PDELog(this, QStringLiteral("updatePSSMarkedSelections_markedChoice:%d"), index);
    m_pssSelection = index >= 0 && index < m_pssChoices.size() ? m_pssChoices[index] : nullptr;
    _PDELog(this, QStringLiteral("updatePSSMarkedSelections_pssSelection:%@"), m_pssSelection);
}

void MRSecureReleasePDE::updateUI()
{
    if (!m_ui)
        return;
    _PDELog(this, QStringLiteral("updateUI:"));
    _PDELog(this, QStringLiteral("updateUI_pssSelection:%@"), m_pssSelection);
    if (m_pssSelection) {
        const int index = int(m_pssChoices.indexOf(m_pssSelection));
        _PDELog(this, QStringLiteral("updateUI_index:%d"), index);
        m_ui->PSSPopup->setCurrentIndex(index);
    }
    // The first choice holds nothing back: no user ID then.
    const bool held = m_ui->PSSPopup->currentIndex() > 0;
    setLabelActive(m_ui->PSSUserIDTitle, held);
    m_ui->UserIDBox->setEnabled(held);
    if (hasInited()) {
        _PDELog(this, QStringLiteral("updateUI:::::::::hasInited"));
        _PDELog(this, QStringLiteral("^^updateUI_UserID:%@"), m_sUserID);
        if (m_ui->UserIDBox->text() != m_sUserID)
            m_ui->UserIDBox->setText(m_sUserID);
    }
}

void MRSecureReleasePDE::changepssOption()
{
    _PDELog(this, QStringLiteral("<<<< changepssOption >>>>"));
    m_sUserID = m_ui->UserIDBox->text();
    // With the dialog's approval the selection is what it marked.
    std::shared_ptr<MRAdvancedPDEChoice> choice = selectionForPopUpWithKey(m_ui->PSSPopup, QString::fromLatin1(kSecureReleaseKey));
    if (choice && !useConstraintHandling())
        m_pssSelection = choice;
    writeUserIDInfo();
    updateUI();
    _PDELog(this, QStringLiteral("changepssOption_pssSelection:%@"), m_pssSelection);
}

void MRSecureReleasePDE::storeUserID()
{
    const int status = PMPrintSettingsSetValue(printSettings(), QString::fromLatin1(kSecureReleaseUserIDKey), m_sUserID, false);
    if (status != kPMNoError)
        _PDELog(this, QStringLiteral("## error %d setting the value for %@ ! ##"), status, QString::fromLatin1(kSecureReleaseUserIDKey));
}

void MRSecureReleasePDE::writeUserIDInfo()
{
    _PDELog(this, QStringLiteral("writeUserIDInfos:"));
    if (m_ClickSecureTab && m_ui)
        m_sUserID = m_ui->UserIDBox->text();
    storeUserID();
}

void MRSecureReleasePDE::getNonPPDSettingsFromPrintSettings()
{
    QString value;
    if (PMPrintSettingsGetValue(printSettings(), QString::fromLatin1(kSecureReleaseUserIDKey), &value) != kPMNoError)
        return;
    // Shown and sent as given: the field refuses only what the user types.
    m_sUserID = value;
}

bool MRSecureReleasePDE::shouldPrint()
{
    PDENSLog(QStringLiteral("shoudlPrint!!!!!!!!!!!!!!!!!!!"));
    QString value;
    m_sUserID = PMPrintSettingsGetValue(printSettings(), QString::fromLatin1(kSecureReleaseUserIDKey), &value) == kPMNoError
                    ? value
                    : QStringLiteral("");
    storeUserID();
    _PDELog(this, QStringLiteral("sUserID=%@"), m_sUserID);
    return true;
}

void MRSecureReleasePDE::updatePrinterUI()
{
    _PDELog(this, QStringLiteral("updatePrinterUI_index:%d"), indexOfMarkedOptionForKey(QString::fromLatin1(kSecureReleaseKey)));
    updatePSSMarkedSelections();
    updateUI();
}

void MRSecureReleasePDE::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    if (option != QLatin1String(kSecureReleaseKey) || choice.isEmpty())
        return;
    _PDELog(this, QStringLiteral("PPDOptionKeyValueDidChange:(%@) ppdChoice:(%@)"), option, choice);
    if (std::shared_ptr<MRAdvancedPDEChoice> found = PSSFindChoiceForString(choice, m_pssChoices)) {
        _PDELog(this, QStringLiteral("new choice is %@/%@"), found->userTitle(), found->ppdTitle());
        m_pssSelection = found;
    }
    updateUI();
}

bool MRSecureReleasePDE::willShow()
{
    // The user now sees the field: what it holds is the user ID.
    m_ClickSecureTab = true;
    setWillShowCalled(true);
    panelView();
    initializeUI();
    updateUI();
    return true;
}

bool MRSecureReleasePDE::shouldHide()
{
    setWillShowCalled(false);
    _PDELog(this, QStringLiteral("shouldHide:=BOOL(YES)"));
    return true;
}

bool MRSecureReleasePDE::restoreValuesAndReturnError(QString*)
{
    panelView();
    updatePSSMarkedSelections();
    getNonPPDSettingsFromPrintSettings();
    updateUI();
    _PDELog(this, QStringLiteral("restoreValuesAndReturnError:=BOOL(YES)"));
    return true;
}

bool MRSecureReleasePDE::saveValuesAndReturnError(QString*)
{
    _PDELog(this, QStringLiteral("saveValuesAndReturnError:=BOOL(YES)"));
    return true;
}

QVariantMap MRSecureReleasePDE::summaryInfo()
{
    QVariantMap summary;
    if (m_pssSelection)
        summary.insert(getLocalizationWithKey(QString::fromLatin1(kSecureReleasePanelNameKey)),
                       getLocalizationWithKey(m_pssSelection->ppdTitle()));
    _PDELog(this, QStringLiteral("summaryInfo:NSDictionary(%@, %p)="), summary, PDEAddress(&summary));
    return summary;
}
