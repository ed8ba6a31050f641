#pragma once
#include "MRPDEChoice.h"

// The choice record of the Advanced Options, Manual Duplex and Secure Release
// panels. It behaves exactly as MRPDEChoice (titles, default flag, encoding
// set-up on its own first use) and differs only in its class name, which its
// description shows.
class MRAdvancedPDEChoice : public MRPDEChoice {
public:
    static std::shared_ptr<MRAdvancedPDEChoice> choiceWithChoice(ppd_choice_s* choice);
    explicit MRAdvancedPDEChoice(ppd_choice_s* choice);

protected:
    const char* className() const override { return "MRAdvancedPDEChoice"; }
};
