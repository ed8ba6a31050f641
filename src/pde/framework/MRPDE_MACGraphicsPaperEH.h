#pragma once
#include "MRPDE_MACPanelEH.h"

// The Graphics/Paper panel: quality, colour, levels and paper options.
class MRPDE_MACGraphicsPaperEH : public MRPDE_MACPanelEH {
public:
    // initWithBundle:model: — null when the panel's controller cannot be made.
    static std::shared_ptr<MRPDE_MACGraphicsPaperEH> create(std::shared_ptr<PDEBundle> bundle,
                                                            std::shared_ptr<MRPDE_MACChangeHandlerModel> model);
    static Description description();
    using MRPDE_MACPanelEH::MRPDE_MACPanelEH;
};
