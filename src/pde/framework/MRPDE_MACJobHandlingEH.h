#pragma once
#include "MRPDE_MACPanelEH.h"

// The Job Handling panel: print modes, stored and secure jobs, accounting.
class MRPDE_MACJobHandlingEH : public MRPDE_MACPanelEH {
public:
    // initWithBundle:model: — null when the panel's controller cannot be made.
    static std::shared_ptr<MRPDE_MACJobHandlingEH> create(std::shared_ptr<PDEBundle> bundle,
                                                          std::shared_ptr<MRPDE_MACChangeHandlerModel> model);
    static Description description();
    using MRPDE_MACPanelEH::MRPDE_MACPanelEH;
};
