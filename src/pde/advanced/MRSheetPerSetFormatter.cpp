#include "MRSheetPerSetFormatter.h"

bool MRSheetPerSetFormatter::isPartialStringValid(const QString& proposed) const
{
    return proposed.size() <= kMaximumLength && onlyDigits(proposed);
}
