#include "MRPDE_MACFinishingEH.h"

#include "MRPDEMainBaseController.h"

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

std::shared_ptr<MRPDE_MACFinishingEH> MRPDE_MACFinishingEH::create(std::shared_ptr<PDEBundle>,
                                                                   std::shared_ptr<MRPDE_MACChangeHandlerModel>)
{
    // The panel's view controller is not part of this build yet.
    return nullptr;
}
