#include "PDEPanelFactory.h"

namespace PDEPanelFactory {

// A panel that is not part of this build yet has no maker and is left out
// like a panel that fails to load.
const QList<Generic>& genericPanels()
{
    static const QList<Generic> list{
        {"MRPDE_MACGraphicsPaperEH", "PDE_MACFirstEventHandler(CUPS): ERROR : Graphics PDE - Load Failed", nullptr},
        {"MRPDE_MACJobHandlingEH", "PDE_MACFirstEventHandler(CUPS): ERROR : JobHandling PDE - Load Failed", nullptr},
        {"MRPDE_MACFinishingEH", "PDE_MACFirstEventHandler(CUPS): ERROR : Finishing PDE - Load Failed", nullptr},
        {"MRPDESecurityEH", "PDE_MACFirstEventHandler(CUPS): ERROR : Security PDE - Load Failed", nullptr},
    };
    return list;
}

const QList<Standalone>& standalonePanels()
{
    static const QList<Standalone> list{
        {"MRSecureReleasePDE", nullptr},
        {"MRAdvancedOptionPDE", nullptr},
        {"MRManualDuplexPDE", nullptr},
        {"MRSpecialPagePDE", nullptr},
        {"MRManualMarginPDE", nullptr},
    };
    return list;
}

}
