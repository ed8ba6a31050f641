#include "PDETriggerLog.h"

#include "PDELog.h"
#include "PDETriggerProtocol.h"

void PDELogTriggerEvaluation(const PDETriggerProtocol* trigger, const QString& tag, const QString& format)
{
    if (!PDEDebugEnabled())
        return;
    for (int i = 0; i < 3; ++i)
        _PDELog(trigger, QStringLiteral("'"));
    _PDELog(trigger, QString(29, QLatin1Char('~')) + tag + QString(28, QLatin1Char('~')));
    _PDELog(trigger, format, trigger);
    _PDELog(trigger, QString(63, QLatin1Char('~')));
}
