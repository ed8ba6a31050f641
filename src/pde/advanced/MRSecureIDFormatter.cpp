#include "MRSecureIDFormatter.h"

#include "PDEAlerts.h"

#include <QStringEncoder>

bool MRSecureIDFormatter::isPartialStringValid(const QString& proposed) const
{
    if (proposed.isEmpty())
        return true;
    QStringEncoder latin1(QStringEncoder::Latin1);
    (void)latin1.encode(proposed);
    if (latin1.hasError())
        return false;
    static const QString marks = QStringLiteral("`-~!#$%&()_{}'^.");
    bool ok = proposed.size() <= kMaximumLength;
    for (qsizetype i = 0; ok && i < proposed.size(); ++i) {
        const QChar c = proposed[i];
        ok = (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
             || (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || marks.contains(c);
    }
    if (!ok)
        PDEAlerts::beep();
    return ok;
}
