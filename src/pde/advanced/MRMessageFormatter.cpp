#include "MRMessageFormatter.h"

bool MRMessageFormatter::isPartialStringValid(const QString& proposed) const
{
    return proposed.size() <= kMaximumLength;
}
