#include "MRAdvancedPDEChoice.h"

std::shared_ptr<MRAdvancedPDEChoice> MRAdvancedPDEChoice::choiceWithChoice(ppd_choice_s* choice)
{
    return std::make_shared<MRAdvancedPDEChoice>(choice);
}

MRAdvancedPDEChoice::MRAdvancedPDEChoice(ppd_choice_s* choice)
    : MRPDEChoice(choice, "MRAdvancedPDEChoice")
{
}
