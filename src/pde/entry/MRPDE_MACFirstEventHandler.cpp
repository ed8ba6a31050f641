#include "MRPDE_MACFirstEventHandler.h"

#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "PDEHelp.h"
#include "PDELog.h"
#include "PDEPanel.h"
#include "PDEPanelFactory.h"

#include <cups/ppd.h>

static bool s_debug = false;

MRPDE_MACFirstEventHandler::MRPDE_MACFirstEventHandler() = default;

MRPDE_MACFirstEventHandler::~MRPDE_MACFirstEventHandler()
{
    setPdeBundle(nullptr);
    setPdePluginCallBack(nullptr);
    setDataModel(nullptr);
}

bool MRPDE_MACFirstEventHandler::debug()
{
    return s_debug;
}

bool MRPDE_MACFirstEventHandler::initWithBundle(std::shared_ptr<PDEBundle> bundle)
{
    setPdeBundle(std::move(bundle));
    if (m_pdeBundle && m_pdeBundle->infoDictionary().contains(QStringLiteral("DEBUG")))
        s_debug = true;
    if (m_pdeBundle)
        PDEHelp::registerHelpBook(*m_pdeBundle);
    return true;
}

QList<std::shared_ptr<PDEPanel>> MRPDE_MACFirstEventHandler::PDEPanelsForType(const QString&, PDEPluginCallback* hostInfo)
{
    QList<std::shared_ptr<PDEPanel>> panels;
    setPdePluginCallBack(hostInfo);
    setDataModel(std::make_shared<MRPDE_MACChangeHandlerModel>(m_pdeBundle, hostInfo));
    if (!m_dataModel)
        _PDELog(this, QStringLiteral("PDE_MACFirstEventHandler(CUPS): ERROR : Data Model Could Not be initialized"));

    for (const PDEPanelFactory::Generic& entry : PDEPanelFactory::genericPanels()) {
        std::shared_ptr<PDEPanel> panel = entry.create ? entry.create(m_pdeBundle, m_dataModel) : nullptr;
        if (panel)
            panels.append(panel);
        else
            _PDELog(this, QString::fromLatin1(entry.failureMessage));
    }

    ppd_file_t* ppd = m_dataModel ? m_dataModel->ppd() : nullptr;
    if (offersStandalonePanels(m_pdeBundle.get(), ppd)) {
        for (const PDEPanelFactory::Standalone& entry : PDEPanelFactory::standalonePanels()) {
            std::shared_ptr<PDEPanel> panel = entry.create ? entry.create(hostInfo, m_pdeBundle) : nullptr;
            if (panel)
                panels.append(panel);
        }
    }
    return panels;
}

bool MRPDE_MACFirstEventHandler::ppdInstallsSeparateExtensions(ppd_file_t* ppd)
{
    if (!ppd)
        return false;
    // The extension paths match "*AdvancedOptionPDE*" or "*SpecialPagePDE*".
    for (ppd_attr_t* attr = ppdFindAttr(ppd, "APDialogExtension", nullptr); attr;
         attr = ppdFindNextAttr(ppd, "APDialogExtension", nullptr)) {
        const QByteArrayView value(attr->value ? attr->value : "");
        if (value.contains("AdvancedOptionPDE") || value.contains("SpecialPagePDE"))
            return true;
    }
    return false;
}

bool MRPDE_MACFirstEventHandler::offersStandalonePanels(const PDEBundle* bundle, ppd_file_t* ppd)
{
    if (ppdInstallsSeparateExtensions(ppd))
        return false;
    if (!bundle)
        return false;
    const QVariant merged = bundle->objectForInfoDictionaryKey(QStringLiteral("UseMergedPDE"));
    return merged.typeId() == QMetaType::QString && merged.toString() == QLatin1String("YES");
}
