#pragma once
#include "MRFormatter.h"

// The watermark's free angle: at most 3 characters; while the value lies in
// -90..90 the text is a "-" or a digit followed by digits. A value outside
// that range skips the character check (999 may be typed); the field brings
// it back into range when editing ends.
class MRAngleFormatter : public MRFormatter {
    Q_OBJECT
public:
    using MRFormatter::MRFormatter;
    bool isPartialStringValid(const QString& proposed) const override;
};
