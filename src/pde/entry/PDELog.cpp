#include "PDELog.h"

#include "MRPDE_MACFirstEventHandler.h"
#include "PDELogSink.h"

QString PDEDescribe(const QVariantMap& map)
{
    QString out = QStringLiteral("{\n");
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        out += QStringLiteral("    %1 = %2;\n").arg(it.key(), it.value().toString());
    return out + QLatin1Char('}');
}

QString PDEAddress(const void* p)
{
    return QStringLiteral("0x") + QString::number(quintptr(p), 16);
}

QString PDEBaseDescription(const char* className, const void* p)
{
    return QStringLiteral("<%1: %2>").arg(QString::fromLatin1(className), PDEAddress(p));
}

QString PDEStringWithFormat(const QString& format, const QStringList& args)
{
    QString out;
    out.reserve(format.size() + 32);
    qsizetype next = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const QChar c = format[i];
        if (c != QLatin1Char('%') || i + 1 >= format.size()) {
            out += c;
            continue;
        }
        if (format[i + 1] == QLatin1Char('%')) {
            out += QLatin1Char('%');
            ++i;
            continue;
        }
        // Flags, width, precision and length modifiers, then the conversion.
        qsizetype j = i + 1;
        int precision = -1;
        while (j < format.size() && QStringLiteral("-+ #0123456789.lhqzjt").contains(format[j])) {
            if (format[j] == QLatin1Char('.')) {
                qsizetype k = j + 1;
                while (k < format.size() && format[k].isDigit())
                    ++k;
                precision = format.mid(j + 1, k - j - 1).toInt();
                j = k;
                continue;
            }
            ++j;
        }
        if (j >= format.size()) {
            out += format.mid(i);
            break;
        }
        QString arg = next < args.size() ? args[next] : QStringLiteral("(null)");
        ++next;
        if (format[j] == QLatin1Char('f') && precision >= 0) {
            bool ok = false;
            const double d = arg.toDouble(&ok);
            if (ok)
                arg = QString::number(d, 'f', precision);
        }
        out += arg;
        i = j;
    }
    return out;
}

bool PDEDebugEnabled()
{
    return MRPDE_MACFirstEventHandler::debug();
}

void PDENSLogLine(const QString& line)
{
    PDELogSink::instance().write(line);
}

void PDELogLine(const QString& line)
{
    PDELogSink::instance().write(Format(nullptr, QStringLiteral("PDE"), line));
}

QString Format(const void*, const QString& a, const QString& b)
{
    return PDEStringWithFormat(QStringLiteral("%@: %@"), {PDEDescribe(a), PDEDescribe(b)});
}
