#include "PDETriggerLog.h"

#include "PDELog.h"

void PDELogTriggerEvaluation(const void* sender, const QString& tag, const QString& format, const QString& description)
{
    if (!PDEDebugEnabled())
        return;
    const QString tilde29(29, QLatin1Char('~'));
    for (int i = 0; i < 3; ++i)
        _PDELog(sender, QStringLiteral("'"));
    _PDELog(sender, tilde29 + tag + QString(28, QLatin1Char('~')));
    _PDELog(sender, format, description);
    _PDELog(sender, QString(63, QLatin1Char('~')));
}
