#pragma once
#include "PDECharacterSet.h"

#include <QString>

class MRPDE_MACChangeHandlerModel;

// The character and length rules of the Job Handling text fields, read once
// from the printer's attributes. The panel's fields and the job-accounting
// confirmation use the same rules, so a value the panel could not have typed
// is refused there too.
class PDEJobHandlingRules {
public:
    explicit PDEJobHandlingRules(MRPDE_MACChangeHandlerModel* model);

    // The 62 letters and digits, and the sets built on them.
    static PDECharacterSet alphanumericSet();
    static PDECharacterSet userIDSet();
    static PDECharacterSet printPasswordSet();
    static PDECharacterSet accountPasswordSet();
    static PDECharacterSet jobNameForbiddenSet();
    // The user-ID set with the backslash and the printer's extra characters.
    PDECharacterSet accountIDSet() const;

    // A range hint ("PWRange", "APWRange", ...) that mentions "Alphanumeric"
    // narrows a password to letters and digits.
    bool rangeIsAlphanumeric(const QString& rangeAttribute) const;
    // An integer attribute ("MinLength", ...); fallback when it is missing.
    qint64 lengthAttribute(const QString& key, qint64 fallback = 0) const;

    QString extraAllowedCharacters() const { return m_extraAllowedCharacters; }
    qint64 accountIDMaximum() const;

    // An ID of 1 to 64 characters, or "domain\user" with a domain of at most
    // 64 characters and a user part of 1 to 64.
    static bool UserIDValidationCheckForString(const QString& s);
    // Every character in set, and min <= length <= max (0: no limit).
    static bool textFollows(const QString& text, const PDECharacterSet& set, qint64 min, qint64 max);

    // The whole rule of each account entry, as the confirmation checks it.
    bool accountIDAllowed(const QString& text) const;
    bool accountPasswordAllowed(const QString& text, const QString& rangeAttribute) const;
    bool newPINAllowed(const QString& text) const;

private:
    MRPDE_MACChangeHandlerModel* m_model;
    QString m_extraAllowedCharacters;
};
