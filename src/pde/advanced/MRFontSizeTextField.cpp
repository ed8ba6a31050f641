#include "MRFontSizeTextField.h"

#include "MRFontSizeFormatter.h"

MRFontSizeTextField::MRFontSizeTextField(QWidget* parent) : MRValidatingTextField(parent)
{
    setValidator(new MRFontSizeFormatter(this));
}

QString MRFontSizeTextField::correctedFontSize(const QString& text)
{
    const int value = MRFormatter::intValue(text);
    if (value <= 7)
        return QStringLiteral("8");
    if (value > 400)
        return QStringLiteral("400");
    return text;
}
