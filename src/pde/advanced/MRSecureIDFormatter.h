#pragma once
#include "MRFormatter.h"

// The Secure Release user identifier: empty, or 1 to 20 characters out of
// 0-9, a-z, A-Z and ` - ~ ! # $ % & ( ) _ { } ' ^ . A text that ISO Latin-1
// cannot hold is refused silently; a text too long or with another character
// is refused with a beep.
class MRSecureIDFormatter : public MRFormatter {
    Q_OBJECT
public:
    using MRFormatter::MRFormatter;
    static constexpr int kMaximumLength = 20;
    bool isPartialStringValid(const QString& proposed) const override;
};
