#include "PageRangeValidator.h"

#include "PrintDialogHost.h"

QString PageRangeValidator::normalized(const QString& input)
{
    QString text = input;
    text.remove(QLatin1Char(' '));
    return text;
}

QValidator::State PageRangeValidator::validate(QString& input, int&) const
{
    for (QChar c : input)
        if (!c.isDigit() && c != QLatin1Char('-') && c != QLatin1Char(',') && c != QLatin1Char(' '))
            return Invalid;
    const QString text = normalized(input);
    return !text.isEmpty() && PrintDialogHost::checkJobValue(QStringLiteral("page-ranges"), text, nullptr) ? Acceptable : Intermediate;
}
