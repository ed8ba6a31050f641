#pragma once
#include <QString>

// Which job options hold secrets (passwords, PINs). Their values travel with
// the job only: never into a log line, a saved preset or any file.
class PDESecrets {
public:
    static bool isSecretKey(const QString& key);
    // The value as a log line may show it: "<hidden>" for a secret key.
    static QString loggable(const QString& key, const QString& value);

    // The same for a log format's argument, worked out only when the line is
    // written (debug lines are skipped unless the debug switch is on).
    struct LogValue {
        const QString& key;
        const QString& value;
        QString description() const { return loggable(key, value); }
    };
    static LogValue forLog(const QString& key, const QString& value) { return {key, value}; }
};
