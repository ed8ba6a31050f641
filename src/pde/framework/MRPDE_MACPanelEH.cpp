#include "MRPDE_MACPanelEH.h"

#include "MRPDEMainBaseController.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "PDEHelp.h"
#include "PDELog.h"

static const QString kHashRow(100, QLatin1Char('#'));
static const QString kRestoreCompleted = QStringLiteral(
    "###########################################################     RESTORE VALUES COMPLETED    ##############################################");
static const QString kSaveCompleted = QStringLiteral(
    "###########################################################     SAVE VALUES COMPLETED    ##############################################");

MRPDE_MACPanelEH::MRPDE_MACPanelEH(std::shared_ptr<PDEBundle> bundle, std::shared_ptr<MRPDE_MACChangeHandlerModel> model,
                                   std::unique_ptr<MRPDEMainBaseController> controller, Description description)
    : m_pdeBundle(std::move(bundle)), m_dataModel(std::move(model)), m_controller(std::move(controller)),
      m_description(std::move(description))
{
}

MRPDE_MACPanelEH::~MRPDE_MACPanelEH()
{
    m_controller.reset();
    m_dataModel.reset();
    m_pdeBundle.reset();
}

QString MRPDE_MACPanelEH::panelKind()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): panelKind"));
    const QString identifier = m_pdeBundle ? m_pdeBundle->bundleIdentifier() : QString();
    return identifier + m_description.kindSuffix;
}

QString MRPDE_MACPanelEH::panelName()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): panelName"));
    const QString name = m_pdeBundle ? m_pdeBundle->localizedString(m_description.nameKey, QStringLiteral("Localizable"))
                                     : m_description.nameKey;
    _PDELog(this, m_description.nameLogFormat, name);
    return name;
}

QWidget* MRPDE_MACPanelEH::panelView()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): panelView"));
    return m_controller ? m_controller->mainView() : nullptr;
}

bool MRPDE_MACPanelEH::willShow()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): willShow"));
    if (m_controller)
        m_controller->setCurrentlyActive(true);
    return true;
}

bool MRPDE_MACPanelEH::shouldHide()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): shouldHide"));
    if (m_controller)
        m_controller->setCurrentlyActive(false);
    return true;
}

bool MRPDE_MACPanelEH::respondsToShouldPrint() const
{
    return m_controller && m_controller->respondsToShouldPrint();
}

bool MRPDE_MACPanelEH::shouldPrint()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): shouldPrint"));
    return !m_controller || m_controller->shouldPrint();
}

QVariantMap MRPDE_MACPanelEH::summaryInfo()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): summaryInfo"));
    QVariantMap summary;
    for (const QString& keyword : std::as_const(m_description.summaryKeywords)) {
        PDEFeaturePtr f = m_dataModel ? m_dataModel->featureWithKey(keyword) : nullptr;
        if (f && f->currentValue() && !f->currentValue()->keyword().isNull())
            summary.insert(f->keyword(), f->currentValue()->keyword());
    }
    _PDELog(this, m_description.summaryLogFormat, summary);
    return summary;
}

QStringList MRPDE_MACPanelEH::supportedPPDOptionKeys()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): supportedPPDOptionKeys"));
    QStringList keys;
    if (m_dataModel)
        for (const PDEFeaturePtr& f : m_dataModel->features())
            if (!f->keyword().isEmpty())
                keys << f->keyword();
    return keys;
}

bool MRPDE_MACPanelEH::restoreValuesAndReturnError(QString* error)
{
    _PDELog(this, kHashRow);
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS):################################### RESTORE_Values #################################"));
    _PDELog(this, kHashRow);
    const bool ok = m_dataModel && m_dataModel->restoreValuesAndReturnError(error);
    _PDELog(this, kRestoreCompleted);
    return ok;
}

bool MRPDE_MACPanelEH::saveValuesAndReturnError(QString* error)
{
    _PDELog(this, kHashRow);
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): #################################### SAVE_Values ################################"));
    _PDELog(this, kHashRow);
    bool ok = false;
    if (m_controller && m_controller->isEverythingAlright())
        ok = m_dataModel && m_dataModel->saveValuesAndReturnError(error);
    _PDELog(this, kSaveCompleted);
    return ok;
}

void MRPDE_MACPanelEH::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    if (m_dataModel)
        m_dataModel->PPDOptionKeyValueDidChange(option, choice);
}

bool MRPDE_MACPanelEH::shouldShowHelp()
{
    _PDELog(this, QStringLiteral("PDE_MACPanelEH(CUPS): shouldShowHelp"));
    if (m_description.helpPage.isEmpty())
        return true;
    _PDELog(this, QStringLiteral("Opening Help Book"));
    std::shared_ptr<PDEBundle> bundle = m_dataModel ? m_dataModel->pdeBundle() : m_pdeBundle;
    const QString book = bundle ? bundle->objectForInfoDictionaryKey(QStringLiteral("CFBundleHelpBookName")).toString() : QString();
    // The help system answers a status: 0 when the page was opened.
    const int status = bundle && PDEHelp::gotoPage(*bundle, m_description.helpPage) ? 0 : -1;
    _PDELog(this, QStringLiteral("Result %i attempting to open %@"), status, book);
    return status != 0;
}
