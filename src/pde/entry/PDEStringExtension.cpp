#include "PDEStringExtension.h"

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
    // Leading white space is skipped; what comes before the first digit stays
    // in front of the digits, so a text without digits converts to 0.
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    if (i >= text.size())
        return std::nullopt;
    auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    qsizetype start = i;
    while (start < text.size() && !isDigit(text[start]))
        ++start;
    if (start > i && start >= text.size())
        return 0;
    qsizetype end = start;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    // A 32-bit signed conversion: a run too long for it saturates, as a scanner does.
    bool ok = false;
    const qlonglong n = text.mid(start, end - start).toLongLong(&ok);
    if (!ok || n > std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return int(n);
}
