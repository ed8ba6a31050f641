#include "PDEPanelFactory.h"

#include "MRAdvancedOptionPDE.h"
#include "MRManualDuplexPDE.h"
#include "MRManualMarginPDE.h"
#include "MRSpecialPagePDE.h"
#include "MRPDE_MACFinishingEH.h"
#include "MRPDE_MACGraphicsPaperEH.h"
#include "MRPDE_MACJobHandlingEH.h"
#include "MRPDESecurityEH.h"
#include "MRSecureReleasePDE.h"

namespace PDEPanelFactory {

const QList<Generic>& genericPanels()
{
    static const QList<Generic> list{
        {"MRPDE_MACGraphicsPaperEH", "PDE_MACFirstEventHandler(CUPS): ERROR : Graphics PDE - Load Failed", &MRPDE_MACGraphicsPaperEH::create},
        {"MRPDE_MACJobHandlingEH", "PDE_MACFirstEventHandler(CUPS): ERROR : JobHandling PDE - Load Failed", &MRPDE_MACJobHandlingEH::create},
        {"MRPDE_MACFinishingEH", "PDE_MACFirstEventHandler(CUPS): ERROR : Finishing PDE - Load Failed", &MRPDE_MACFinishingEH::create},
        {"MRPDESecurityEH", "PDE_MACFirstEventHandler(CUPS): ERROR : Security PDE - Load Failed", &MRPDESecurityEH::create},
    };
    return list;
}

const QList<Standalone>& standalonePanels()
{
    static const QList<Standalone> list{
        {"MRSecureReleasePDE", &MRSecureReleasePDE::create},
        {"MRAdvancedOptionPDE", &MRAdvancedOptionPDE::create},
        {"MRManualDuplexPDE", &MRManualDuplexPDE::create},
        {"MRSpecialPagePDE", &MRSpecialPagePDE::create},
        {"MRManualMarginPDE", &MRManualMarginPDE::create},
    };
    return list;
}

}
