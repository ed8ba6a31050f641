#include "MRFormatter.h"

#include <QRegularExpression>
#include <limits>

MRFormatter::MRFormatter(QObject* parent) : QValidator(parent) {}

QValidator::State MRFormatter::validate(QString& input, int&) const
{
    return isPartialStringValid(input) ? Acceptable : Invalid;
}

int MRFormatter::intValue(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^\\s*([+-]?)(\\d*)"));
    const QRegularExpressionMatch m = number.match(text);
    qint64 value = 0;
    for (QChar c : m.captured(2)) {
        value = value * 10 + c.digitValue();
        if (value > qint64(std::numeric_limits<int>::max()) + 1)
            break;
    }
    if (m.captured(1) == QLatin1String("-"))
        value = -value;
    return int(qBound(qint64(std::numeric_limits<int>::min()), value, qint64(std::numeric_limits<int>::max())));
}

double MRFormatter::doubleValue(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^\\s*[+-]?(\\d+\\.?\\d*|\\.\\d+)"));
    const QRegularExpressionMatch m = number.match(text);
    return m.hasMatch() ? m.captured(0).trimmed().toDouble() : 0.0;
}

bool MRFormatter::onlyDigits(const QString& text, const QString& extra)
{
    for (QChar c : text)
        if (!(c >= QLatin1Char('0') && c <= QLatin1Char('9')) && !extra.contains(c))
            return false;
    return true;
}
