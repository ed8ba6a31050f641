#include "MRPDESecurityEH.h"

#include "MRPDEMainBaseController.h"

MRPDE_MACPanelEH::Description MRPDESecurityEH::description()
{
    // The Security panel opens the Job Handling help page on purpose.
    return {QStringLiteral(".securityPDE"),
            QStringLiteral("Security"),
            QStringLiteral("PDESecurityEH(CUPS): panelName[%@]"),
            QStringLiteral("PDESecurityEH(CUPS): summaryInfo[%@]"),
            QStringLiteral("JobHandlingPDEHelp.html"),
            {"VELHardCopySecurity", "SWMTEXT", "VELWatermarkMessage", "SWMSIZE", "SWMDIRECTION", "SWMPATTERN", "SWMCOLOR",
             "SWMDARKNESS", "VELSecureReleaseOption2", "PSSUSERID"}};
}

std::shared_ptr<MRPDESecurityEH> MRPDESecurityEH::create(std::shared_ptr<PDEBundle>, std::shared_ptr<MRPDE_MACChangeHandlerModel>)
{
    // The panel's view controller is not part of this build yet.
    return nullptr;
}
