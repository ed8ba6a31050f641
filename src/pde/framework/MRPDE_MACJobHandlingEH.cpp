#include "MRPDE_MACJobHandlingEH.h"

#include "MRPDEMainBaseController.h"

MRPDE_MACPanelEH::Description MRPDE_MACJobHandlingEH::description()
{
    return {QStringLiteral(".jobHandlingPDE"),
            QStringLiteral("Job Handling"),
            QStringLiteral("PDE_MACJobHandlingEH(CUPS): panelName[%@]"),
            QStringLiteral("PDE_MACJobHandlingEH(CUPS): summaryInfo[%@]"),
            QStringLiteral("JobHandlingPDEHelp.html"),
            {"JobSetting", "USERID", "JOBNAME", "PrintAt", "PrivateCheck", "AccountType", "Permission", "PINCode"}};
}

std::shared_ptr<MRPDE_MACJobHandlingEH> MRPDE_MACJobHandlingEH::create(std::shared_ptr<PDEBundle>,
                                                                       std::shared_ptr<MRPDE_MACChangeHandlerModel>)
{
    // The panel's view controller is not part of this build yet.
    return nullptr;
}
