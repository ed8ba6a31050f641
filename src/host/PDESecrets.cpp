#include "PDESecrets.h"

#include <QRegularExpression>

QString PDESecrets::loggable(const QString& key, const QString& value)
{
    return isSecretKey(key) && !value.isEmpty() ? QStringLiteral("<hidden>") : value;
}

bool PDESecrets::isSecretKey(const QString& key)
{
    // Password and PIN options of the maker's PPDs and of IPP ("job-password").
    static const QRegularExpression secret(QStringLiteral("pass(word|wd|code)|pin(code)?$|^pin[_-]?code"),
                                           QRegularExpression::CaseInsensitiveOption);
    return secret.match(key).hasMatch();
}
