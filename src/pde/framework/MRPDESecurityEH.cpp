#include "MRPDESecurityEH.h"

#include "MRPDESecurityPanelController.h"

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

std::shared_ptr<MRPDESecurityEH> MRPDESecurityEH::create(std::shared_ptr<PDEBundle> bundle,
                                                         std::shared_ptr<MRPDE_MACChangeHandlerModel> model)
{
    auto controller = std::make_unique<MRPDESecurityPanelController>(model.get());
    if (!controller->mainView())
        return nullptr;
    return std::make_shared<MRPDESecurityEH>(std::move(bundle), std::move(model), std::move(controller), description());
}
