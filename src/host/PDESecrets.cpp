#include "PDESecrets.h"

QString PDESecrets::loggable(const QString& key, const QString& value)
{
    return isSecretKey(key) && !value.isEmpty() ? QStringLiteral("<hidden>") : value;
}

bool PDESecrets::isSecretKey(const QString& key)
{
    // Password and PIN options of the maker's PPDs and of IPP ("job-password").
    // Compared as text: a regular expression would be compiled in every run
    // that prints an option list.
    const QString k = key.toLower();
    return k.contains(QLatin1String("password")) || k.contains(QLatin1String("passwd")) || k.contains(QLatin1String("passcode"))
           || k.endsWith(QLatin1String("pin")) || k.endsWith(QLatin1String("pincode")) || k.startsWith(QLatin1String("pincode"))
           || k.startsWith(QLatin1String("pin_code")) || k.startsWith(QLatin1String("pin-code"));
}
