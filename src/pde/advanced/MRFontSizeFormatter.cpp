#include "MRFontSizeFormatter.h"

bool MRFontSizeFormatter::isPartialStringValid(const QString& proposed) const
{
    if (proposed.size() > 3 || !onlyDigits(proposed))
        return false;
    const int value = intValue(proposed);
    return value >= 0 && value <= 400;
}
