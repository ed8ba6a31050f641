#include "MRPDE_MACJobHandlingEH.h"

#include "MRPDE_MACJobHandlingPDEController.h"

MRPDE_MACPanelEH::Description MRPDE_MACJobHandlingEH::description()
{
    return {QStringLiteral(".jobHandlingPDE"),
            QStringLiteral("Job Handling"),
            QStringLiteral("PDE_MACJobHandlingEH(CUPS): panelName[%@]"),
            QStringLiteral("PDE_MACJobHandlingEH(CUPS): summaryInfo[%@]"),
            QStringLiteral("JobHandlingPDEHelp.html"),
            {"JobSetting", "USERID", "JOBNAME", "PrintAt", "PrivateCheck", "AccountType", "Permission", "PINCode"}};
}

std::shared_ptr<MRPDE_MACJobHandlingEH> MRPDE_MACJobHandlingEH::create(std::shared_ptr<PDEBundle> bundle,
                                                                       std::shared_ptr<MRPDE_MACChangeHandlerModel> model)
{
    auto controller = std::make_unique<MRPDE_MACJobHandlingPDEController>(model.get());
    if (!controller->mainView())
        return nullptr;
    return std::make_shared<MRPDE_MACJobHandlingEH>(std::move(bundle), std::move(model), std::move(controller), description());
}
