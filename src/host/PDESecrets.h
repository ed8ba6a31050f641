#pragma once
#include <QString>

// Which job options hold secrets (passwords, PINs). Their values travel with
// the job only: never into a log line, a saved preset or any file.
class PDESecrets {
public:
    static bool isSecretKey(const QString& key);
    // The value as a log line may show it: "<hidden>" for a secret key.
    static QString loggable(const QString& key, const QString& value);
};
