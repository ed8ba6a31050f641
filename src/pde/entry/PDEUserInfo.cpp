#include "PDEUserInfo.h"

#include <QLocale>
#include <pwd.h>
#include <unistd.h>

static QString& fullNameOverride()
{
    static QString name;
    return name;
}

QString PDEUserInfo::fullUserName()
{
    if (!fullNameOverride().isNull())
        return fullNameOverride();
    const passwd* pw = getpwuid(getuid());
    if (!pw)
        return QString();
    const QString gecos = QString::fromUtf8(pw->pw_gecos ? pw->pw_gecos : "").section(QLatin1Char(','), 0, 0).trimmed();
    return gecos.isEmpty() ? QString::fromUtf8(pw->pw_name) : gecos;
}

QStringList PDEUserInfo::preferredLanguages()
{
    return QLocale::system().uiLanguages();
}

void PDEUserInfo::setFullUserNameOverride(const QString& name)
{
    fullNameOverride() = name;
}
