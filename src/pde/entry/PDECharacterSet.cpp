#include "PDECharacterSet.h"

PDECharacterSet PDECharacterSet::fromString(const QString& members)
{
    PDECharacterSet s;
    s.m_test = [members](QChar c) { return members.contains(c); };
    return s;
}

PDECharacterSet PDECharacterSet::fromPredicate(std::function<bool(QChar)> test)
{
    PDECharacterSet s;
    s.m_test = std::move(test);
    return s;
}

PDECharacterSet PDECharacterSet::decimalDigits()
{
    return fromPredicate([](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

PDECharacterSet PDECharacterSet::inverted() const
{
    const auto test = m_test;
    return fromPredicate([test](QChar c) { return !(test && test(c)); });
}
