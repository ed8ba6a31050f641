#include "MRPDE_MACFinishingEH.h"

#include "MRPDE_MACFinishingPDEController.h"

MRPDE_MACPanelEH::Description MRPDE_MACFinishingEH::description()
{
    return {QStringLiteral(".finishing"),
            QStringLiteral("Finishing"),
            QStringLiteral("PDE_MACFinishingEH(CUPS): panelName[%@]"),
            QStringLiteral("PDE_MACFinishingEH(CUPS): summaryInfo[%@]"),
            QStringLiteral("FinishingPDEHelp.html"),
            {"SortOptions", "StapleLocation", "Punch", "PunchPosition", "OutputMode", "StaplePosition", "OutputBin",
             "FoldingOptions", "CFoldingPattern", "VFoldingPattern"}};
}

std::shared_ptr<MRPDE_MACFinishingEH> MRPDE_MACFinishingEH::create(std::shared_ptr<PDEBundle> bundle,
                                                                   std::shared_ptr<MRPDE_MACChangeHandlerModel> model)
{
    auto controller = std::make_unique<MRPDE_MACFinishingPDEController>(model.get());
    if (!controller->mainView())
        return nullptr;
    return std::make_shared<MRPDE_MACFinishingEH>(std::move(bundle), std::move(model), std::move(controller), description());
}
