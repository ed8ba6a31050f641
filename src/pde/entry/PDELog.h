#pragma once
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <concepts>
#include <memory>
#include <type_traits>

// Text of any value for the log formats: "%@" takes any object. Objects with a
// description() describe themselves, null objects read "(null)", lists are
// written one element a line in parentheses.
inline QString PDEDescribe(const QString& s) { return s.isNull() ? QStringLiteral("(null)") : s; }
inline QString PDEDescribe(const char* s) { return s ? QString::fromUtf8(s) : QStringLiteral("(null)"); }
inline QString PDEDescribe(bool b) { return b ? QStringLiteral("1") : QStringLiteral("0"); }
template <typename T>
    requires std::is_arithmetic_v<T> && (!std::is_same_v<T, bool>)
QString PDEDescribe(T n) { return QString::number(n); }
template <typename T>
    requires requires(const T& t) { { t.description() } -> std::convertible_to<QString>; }
QString PDEDescribe(const T& obj) { return obj.description(); }
template <typename T>
QString PDEDescribe(const T* p) requires requires(const T& t) { t.description(); }
{
    return p ? p->description() : QStringLiteral("(null)");
}
template <typename T>
QString PDEDescribe(const std::shared_ptr<T>& p)
{
    return p ? PDEDescribe(*p) : QStringLiteral("(null)");
}
template <typename T>
QString PDEDescribe(const QList<T>& list)
{
    QStringList parts;
    for (const T& e : list)
        parts << QStringLiteral("    ") + PDEDescribe(e);
    return QStringLiteral("(\n") + parts.join(QStringLiteral(",\n")) + (parts.isEmpty() ? "" : "\n") + QStringLiteral(")");
}

// A map as "{ key = value; ... }", one entry a line.
QString PDEDescribe(const QVariantMap& map);

// "0x..." for a %p placeholder.
QString PDEAddress(const void* p);
// "<ClassName: 0x...>", the base description of an object.
QString PDEBaseDescription(const char* className, const void* p);

// Fills a printf-style format: every conversion (%@, %d, %i, %s, %p, ...)
// takes the next argument's text; "%%" is a percent sign; a precision on
// %f ("%.2f") is applied to numeric arguments.
QString PDEStringWithFormat(const QString& format, const QStringList& args);

// One system-log line, whether or not the debug switch is on.
void PDENSLogLine(const QString& line);
// The plug-in's diagnostic line: only with the debug switch on, prefixed "PDE: ".
void PDELogLine(const QString& line);
// Whether the debug switch is on.
bool PDEDebugEnabled();

template <typename... A>
void _PDELog(const void* /*sender*/, const QString& format, const A&... args)
{
    if (!PDEDebugEnabled())
        return;
    PDELogLine(PDEStringWithFormat(format, QStringList{PDEDescribe(args)...}));
}

template <typename... A>
void PDENSLog(const QString& format, const A&... args)
{
    PDENSLogLine(PDEStringWithFormat(format, QStringList{PDEDescribe(args)...}));
}

// The string "%@: %@" filled with a and b; the sender is not used.
QString Format(const void* sender, const QString& a, const QString& b);
