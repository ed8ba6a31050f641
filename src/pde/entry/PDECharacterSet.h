#pragma once
#include <QString>
#include <functional>

// A set of characters, given by its members or by a test on each character.
class PDECharacterSet {
public:
    PDECharacterSet() = default;
    static PDECharacterSet fromString(const QString& members);
    static PDECharacterSet fromPredicate(std::function<bool(QChar)> test);
    static PDECharacterSet decimalDigits();  // "0123456789"
    // Every character except this set's.
    PDECharacterSet inverted() const;

    bool contains(QChar c) const { return m_test && m_test(c); }
    bool isNull() const { return !m_test; }

private:
    std::function<bool(QChar)> m_test;
};
