#include "MRFormatter.h"

#include <limits>

namespace {
bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}
}

MRFormatter::MRFormatter(QObject* parent) : QValidator(parent) {}

QValidator::State MRFormatter::validate(QString& input, int&) const
{
    return isPartialStringValid(input) ? Acceptable : Invalid;
}

int MRFormatter::intValue(const QString& text)
{
    // The leading whole number, saturated to the range of int.
    const QStringView s = QStringView(text).trimmed();
    const bool negative = s.startsWith(QLatin1Char('-'));
    qsizetype i = negative || s.startsWith(QLatin1Char('+')) ? 1 : 0;
    qint64 value = 0;
    for (; i < s.size() && isAsciiDigit(s.at(i)); ++i) {
        value = value * 10 + s.at(i).digitValue();
        if (value > qint64(std::numeric_limits<int>::max()) + 1)
            break;
    }
    if (negative)
        value = -value;
    return int(qBound(qint64(std::numeric_limits<int>::min()), value, qint64(std::numeric_limits<int>::max())));
}

double MRFormatter::doubleValue(const QString& text)
{
    // The leading decimal number ("12", "12.", "12.5", ".5"), without exponent.
    const QStringView s = QStringView(text).trimmed();
    qsizetype i = s.startsWith(QLatin1Char('+')) || s.startsWith(QLatin1Char('-')) ? 1 : 0;
    const qsizetype sign = i;
    while (i < s.size() && isAsciiDigit(s.at(i)))
        ++i;
    const bool whole = i > sign;
    if (i < s.size() && s.at(i) == QLatin1Char('.')) {
        const qsizetype point = i++;
        while (i < s.size() && isAsciiDigit(s.at(i)))
            ++i;
        if (!whole && i == point + 1)
            return 0.0;
    } else if (!whole) {
        return 0.0;
    }
    return s.left(i).toDouble();
}

bool MRFormatter::onlyDigits(const QString& text, const QString& extra)
{
    for (QChar c : text)
        if (!(c >= QLatin1Char('0') && c <= QLatin1Char('9')) && !extra.contains(c))
            return false;
    return true;
}
