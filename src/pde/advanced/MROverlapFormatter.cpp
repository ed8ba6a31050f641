#include "MROverlapFormatter.h"

#include "MRStandalonePDE.h"

MROverlapFormatter::MROverlapFormatter(QObject* parent) : MROverlapFormatter(MRStandalonePDE::IsMetric(), parent) {}

MROverlapFormatter::MROverlapFormatter(bool metric, QObject* parent) : MRFormatter(parent), m_metric(metric) {}

bool MROverlapFormatter::isPartialStringValid(const QString& proposed) const
{
    if (m_metric)
        return proposed.size() <= 2 && onlyDigits(proposed);
    return proposed.size() <= 4 && onlyDigits(proposed, QStringLiteral("."));
}
