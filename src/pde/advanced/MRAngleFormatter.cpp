#include "MRAngleFormatter.h"

bool MRAngleFormatter::isPartialStringValid(const QString& proposed) const
{
    const int value = intValue(proposed);
    if (value >= -90 && value <= 90) {
        for (qsizetype i = 0; i < proposed.size(); ++i) {
            const QChar c = proposed[i];
            const bool digit = c >= QLatin1Char('0') && c <= QLatin1Char('9');
            if (!digit && !(i == 0 && c == QLatin1Char('-')))
                return false;
        }
    }
    return proposed.size() <= 3;
}
