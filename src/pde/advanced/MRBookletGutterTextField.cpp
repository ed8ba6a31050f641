#include "MRBookletGutterTextField.h"

#include "MRGutterFormatter.h"
#include "MRStandalonePDE.h"

MRBookletGutterTextField::MRBookletGutterTextField(QWidget* parent) : MRValidatingTextField(parent), m_metric(MRStandalonePDE::IsMetric())
{
    setValidator(new MRGutterFormatter(m_metric, this));
}

void MRBookletGutterTextField::setMetric(bool metric)
{
    m_metric = metric;
    delete validator();
    setValidator(new MRGutterFormatter(metric, this));
}

QString MRBookletGutterTextField::limitedGutter(const QString& text, bool metric)
{
    if (metric)
        return MRFormatter::intValue(text) > 25 ? QStringLiteral("25") : text;
    return MRFormatter::doubleValue(text) > 0.98 ? QStringLiteral("0.98") : text;
}
