#include "MRGutterFormatter.h"

#include "MRStandalonePDE.h"

MRGutterFormatter::MRGutterFormatter(QObject* parent) : MRGutterFormatter(MRStandalonePDE::IsMetric(), parent) {}

MRGutterFormatter::MRGutterFormatter(bool metric, QObject* parent) : MRFormatter(parent), m_metric(metric) {}

bool MRGutterFormatter::isPartialStringValid(const QString& proposed) const
{
    if (m_metric)
        return proposed.size() <= 2 && onlyDigits(proposed);
    return proposed.size() <= 4 && onlyDigits(proposed, QStringLiteral("."));
}
