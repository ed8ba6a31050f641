#pragma once
#include "MRFormatter.h"

// The watermark's font size: digits only, at most 3, and no value above 400.
class MRFontSizeFormatter : public MRFormatter {
    Q_OBJECT
public:
    using MRFormatter::MRFormatter;
    bool isPartialStringValid(const QString& proposed) const override;
};
