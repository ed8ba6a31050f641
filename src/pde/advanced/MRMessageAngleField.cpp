#include "MRMessageAngleField.h"

#include "MRAngleFormatter.h"

MRMessageAngleField::MRMessageAngleField(QWidget* parent) : MRValidatingTextField(parent)
{
    setValidator(new MRAngleFormatter(this));
}

QString MRMessageAngleField::correctedAngle(const QString& text)
{
    if (text == QLatin1String("-"))
        return QStringLiteral("0");
    const int value = MRFormatter::intValue(text);
    if (value < -90)
        return QStringLiteral("-90");
    if (value > 90)
        return QStringLiteral("90");
    return text;
}
