#include "MRPDE_MACGraphicsPaperEH.h"

#include "MRPDE_MACGraphicsPaperController.h"

MRPDE_MACPanelEH::Description MRPDE_MACGraphicsPaperEH::description()
{
    return {QStringLiteral(".graphicsPaperPDE"),
            QStringLiteral("Graphics/Paper"),
            QStringLiteral("PDE_MACGraphicsPaperEH(CUPS): panelName - %@"),
            QStringLiteral("PDE_MACGraphicsPaperEH(CUPS): summaryInfo[%@]"),
            QStringLiteral("GraphicsPaperPDEHelp.html"),
            {"DocType",        "id_DocType",     "XrayContrast",  "XrayContrast", "VELResolution",   "id_SaveMode",
             "SaveMode",       "Darkness",       "DarkenText",    "id_EdgeEnhance", "EdgeEnhance",   "id_FineEdge",
             "id_Trapping",    "Trapping",       "ColorModel",    "BlackOptimization", "VELCMYKBypass", "VELSimulator",
             "RGBColor",       "id_RGBColor",    "HalftoneLPI",   "id_HalftoneLPI", "Screen",        "n_Brightness",
             "n_Contrast",     "n_Saturation",   "n_RCBalance",   "n_GMBalance",   "n_BYBalance",     "MediaType",
             "SeparatorsOption", "SeparatorsSource", "SkipBlankPages", "CurlMode",  "id_CurlMode",     "ReverseDuplex",
             "UserDefinedColor"}};
}

std::shared_ptr<MRPDE_MACGraphicsPaperEH> MRPDE_MACGraphicsPaperEH::create(std::shared_ptr<PDEBundle> bundle,
                                                                           std::shared_ptr<MRPDE_MACChangeHandlerModel> model)
{
    auto controller = std::make_unique<MRPDE_MACGraphicsPaperController>(model.get());
    if (!controller->mainView())
        return nullptr;
    return std::make_shared<MRPDE_MACGraphicsPaperEH>(std::move(bundle), std::move(model), std::move(controller), description());
}
