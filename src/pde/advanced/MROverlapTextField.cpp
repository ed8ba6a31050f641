#include "MROverlapTextField.h"

#include "MROverlapFormatter.h"
#include "MRStandalonePDE.h"
#include "PDELog.h"

MROverlapTextField::MROverlapTextField(QWidget* parent) : MRValidatingTextField(parent), m_metric(MRStandalonePDE::IsMetric())
{
    _PDELog(this, QStringLiteral("<< OverlapTextField:awakeFromNib >>"));
    setValidator(new MROverlapFormatter(m_metric, this));
}

void MROverlapTextField::setMetric(bool metric)
{
    m_metric = metric;
    delete validator();
    setValidator(new MROverlapFormatter(metric, this));
}

QString MROverlapTextField::limitedOverlap(const QString& text, bool metric)
{
    if (metric)
        return MRFormatter::intValue(text) > 25 ? QStringLiteral("25") : text;
    return MRFormatter::doubleValue(text) > 1.0 ? QStringLiteral("1.00") : text;
}
