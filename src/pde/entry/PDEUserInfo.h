#pragma once
#include <QString>
#include <QStringList>

// Facts about the user running the dialog.
class PDEUserInfo {
public:
    // The full name from the user's account (GECOS), else the login name.
    static QString fullUserName();
    // The user's preferred languages, most preferred first ("de-DE", "en").
    static QStringList preferredLanguages();
    // Replaces the account's full name (null restores it); for tests that need
    // a particular name.
    static void setFullUserNameOverride(const QString& name);
};
