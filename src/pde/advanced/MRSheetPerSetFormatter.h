#pragma once
#include "MRFormatter.h"

// The booklet's sheets per set: digits only, at most 3 (no printer folds
// more than 999 sheets at once; the field clamps to the PPD's maximum).
class MRSheetPerSetFormatter : public MRFormatter {
    Q_OBJECT
public:
    using MRFormatter::MRFormatter;
    static constexpr int kMaximumLength = 3;
    bool isPartialStringValid(const QString& proposed) const override;
};
