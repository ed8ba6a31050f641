#include "PDEStringExtension.h"

#include <QStringDecoder>
#include <cstring>
#include <limits>

QString stringByRemovingCharactersInSet(const QString& text, const PDECharacterSet* set)
{
    if (!set || set->isNull())
        return text;
    QString out;
    out.reserve(text.size());
    for (QChar c : text)
        if (!set->contains(c))
            out += c;
    return out;
}

std::optional<int> filteredNumberFromString(const QString& text)
{
    // Two scans into one result, as a text scanner does them: first over
    // everything up to the first digit, then over the run of digits. Only the
    // scans that take at least one character change the result, so a text
    // without digits keeps its non-digit prefix, which converts to 0, and a
    // text with nothing to scan (empty, or only white space) has no result.
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    if (i >= text.size())
        return std::nullopt;
    auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    qsizetype start = i;
    while (start < text.size() && !isDigit(text[start]))
        ++start;
    if (start >= text.size())
        return 0;
    qsizetype end = start;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    // A 32-bit signed conversion of the digits: a run too long for it
    // saturates at the largest value, as the scanner's conversion does.
    bool ok = false;
    const qlonglong n = QStringView(text).mid(start, end - start).toLongLong(&ok);
    if (!ok || n > std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return int(n);
}

QString stringWithCString(const char* cString, qsizetype maxLength, int encoding)
{
    if (!cString || maxLength < 0)
        return QString();
    const qsizetype length = qsizetype(strnlen(cString, size_t(maxLength)));
    const QByteArrayView bytes(cString, length);
    if (length == 0)
        return (encoding == kPDEASCIIStringEncoding || encoding == kPDEUTF8StringEncoding) ? QStringLiteral("") : QString();
    switch (encoding) {
    case kPDEASCIIStringEncoding:
        for (char c : bytes)
            if (uchar(c) > 127)
                return QString();
        return QString::fromLatin1(bytes);
    case kPDEUTF8StringEncoding: {
        // The bytes as they stand: a byte order mark is kept as a character.
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
        const QString text = decoder(bytes);
        return decoder.hasError() ? QString() : text;
    }
    default:
        return QString();
    }
}
