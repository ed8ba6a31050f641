#pragma once
#include "MRFormatter.h"

// The watermark's message: at most 256 characters. The message travels with
// "," and "'" written as these markers, so a message that holds one of them
// could not be read back as typed: the field refuses it.
class MRMessageFormatter : public MRFormatter {
    Q_OBJECT
public:
    using MRFormatter::MRFormatter;
    static constexpr int kMaximumLength = 256;
    static constexpr char kCommaMarker[] = "c|$ma*&|";
    static constexpr char kQuoteMarker[] = "|q*u&tn|";
    bool isPartialStringValid(const QString& proposed) const override;
};
