#pragma once
#include <QList>
#include <QPair>
#include <QString>

// The job's print settings: an ordered map of string keys to string values
// (numbers are written as text). It is read from and written to CUPS options.
class PMPrintSettings {
public:
    using Entry = QPair<QString, QString>;

    PMPrintSettings() = default;

    bool contains(const QString& key) const;
    QString value(const QString& key) const;  // null when absent
    void setValue(const QString& key, const QString& value);
    bool remove(const QString& key);
    const QList<Entry>& entries() const { return m_entries; }
    bool isEmpty() const { return m_entries.isEmpty(); }

    // Adds every option of a CUPS option string ("a=1 b='x y'") in order.
    void addCupsOptionString(const QString& options);
    // The entries as CUPS options; the caller frees them with cupsFreeOptions.
    int toCupsOptions(struct cups_option_s** options) const;

private:
    QList<Entry> m_entries;
};

// Status codes of the print-settings functions (0 is success).
enum : int {
    kPMNoError = 0,
    kPMInvalidParameter = -50,
    kPMKeyNotFound = -30910,
};

// Reads the value under key. On success *value is the stored text; when the
// key is absent the status is kPMKeyNotFound and *value becomes null.
int PMPrintSettingsGetValue(const PMPrintSettings* settings, const QString& key, QString* value);
// Stores value under key; a null value removes the key. `locked` is accepted
// for the familiar signature and has no effect.
int PMPrintSettingsSetValue(PMPrintSettings* settings, const QString& key, const QString& value, bool locked);
// The number of copies (the "copies" option, 1 when absent or not a number).
int PMGetCopies(const PMPrintSettings* settings, unsigned int* copies);
