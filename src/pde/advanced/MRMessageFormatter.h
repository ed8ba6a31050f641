#pragma once
#include "MRFormatter.h"

// The watermark's message: any characters, at most 256.
class MRMessageFormatter : public MRFormatter {
    Q_OBJECT
public:
    using MRFormatter::MRFormatter;
    static constexpr int kMaximumLength = 256;
    bool isPartialStringValid(const QString& proposed) const override;
};
