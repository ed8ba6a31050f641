#include "MRSheetPerSetTextField.h"

#include "MRSheetPerSetFormatter.h"
#include "PDELog.h"

MRSheetPerSetTextField::MRSheetPerSetTextField(QWidget* parent) : MRValidatingTextField(parent)
{
    setValidator(new MRSheetPerSetFormatter(this));
}

QString MRSheetPerSetTextField::correctedSheets(const QString& text, const QString& maximum)
{
    const int known = MRFormatter::intValue(maximum);
    const int limit = known > 0 ? known : 15;
    const int value = MRFormatter::intValue(text);
    if (value > limit)
        return QString::number(limit);
    if (value < 1)
        return QStringLiteral("1");
    return text;
}

QString MRSheetPerSetTextField::correctedText(const QString& text) const
{
    _PDELog(this, QStringLiteral("<< maxseehtpersetstr1:%@ >>"), m_maximum);
    return correctedSheets(text, m_maximum);
}

void MRSheetPerSetTextField::controlTextDidChange()
{
    _PDELog(this, QStringLiteral("<< maxseehtpersetstr2:%@ >>"), m_maximum);
    MRValidatingTextField::controlTextDidChange();
}
