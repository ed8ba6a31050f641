#pragma once
#include "MRPDE_MACPanelEH.h"

// The Finishing panel: sorting, stapling, punching, output and folding.
class MRPDE_MACFinishingEH : public MRPDE_MACPanelEH {
public:
    // initWithBundle:model: — null when the panel's controller cannot be made.
    static std::shared_ptr<MRPDE_MACFinishingEH> create(std::shared_ptr<PDEBundle> bundle,
                                                        std::shared_ptr<MRPDE_MACChangeHandlerModel> model);
    static Description description();
    using MRPDE_MACPanelEH::MRPDE_MACPanelEH;
};
