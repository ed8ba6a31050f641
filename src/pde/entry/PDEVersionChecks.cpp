#include "PDEVersionChecks.h"

#include "PDELog.h"

#include <QString>
#include <sys/utsname.h>

bool RunningOn105OrLater()
{
    PDENSLog(QStringLiteral("(64-bit) Mac OS X 10.5 or later"));
    return true;
}

bool isBiggerThan106()
{
    static bool tested = false;
    static bool answer = false;
    if (tested)
        return answer;
    int major = 10, minor = 4, bugFix = 0;
    utsname u {};
    if (uname(&u) == 0) {
        // "6.1.0-27-amd64": each number that can be read replaces its starting value.
        const QStringList parts = QString::fromLatin1(u.release).split(QLatin1Char('.'));
        bool ok = false;
        int n = parts.value(0).toInt(&ok);
        if (ok)
            major = n;
        n = parts.value(1).toInt(&ok);
        if (ok)
            minor = n;
        QString third = parts.value(2);
        qsizetype digits = 0;
        while (digits < third.size() && third[digits].isDigit())
            ++digits;
        n = third.left(digits).toInt(&ok);
        if (ok)
            bugFix = n;
    }
    PDENSLog(QStringLiteral("System Version %i.%i.%i"), major, minor, bugFix);
    answer = major > 10 || (major == 10 && minor >= 7);
    tested = true;
    return answer;
}
