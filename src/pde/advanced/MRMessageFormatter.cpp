#include "MRMessageFormatter.h"

bool MRMessageFormatter::isPartialStringValid(const QString& proposed) const
{
    return proposed.size() <= kMaximumLength && !proposed.contains(QLatin1String(kCommaMarker)) &&
           !proposed.contains(QLatin1String(kQuoteMarker));
}
