#include "PMPrintSettings.h"

#include <cups/cups.h>

bool PMPrintSettings::contains(const QString& key) const
{
    for (const Entry& e : m_entries)
        if (e.first == key)
            return true;
    return false;
}

QString PMPrintSettings::value(const QString& key) const
{
    for (const Entry& e : m_entries)
        if (e.first == key)
            return e.second;
    return {};
}

void PMPrintSettings::setValue(const QString& key, const QString& value)
{
    for (Entry& e : m_entries) {
        if (e.first == key) {
            e.second = value;
            return;
        }
    }
    m_entries.append({key, value});
}

bool PMPrintSettings::remove(const QString& key)
{
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].first == key) {
            m_entries.removeAt(i);
            return true;
        }
    }
    return false;
}

void PMPrintSettings::addCupsOptionString(const QString& options)
{
    cups_option_t* parsed = nullptr;
    const QByteArray utf8 = options.toUtf8();
    const int n = cupsParseOptions(utf8.constData(), 0, &parsed);
    for (int i = 0; i < n; ++i)
        setValue(QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value));
    cupsFreeOptions(n, parsed);
}

int PMPrintSettings::toCupsOptions(cups_option_t** options) const
{
    int n = 0;
    *options = nullptr;
    for (const Entry& e : m_entries)
        n = cupsAddOption(e.first.toUtf8().constData(), e.second.toUtf8().constData(), n, options);
    return n;
}

int PMPrintSettingsGetValue(const PMPrintSettings* settings, const QString& key, QString* value)
{
    if (!settings || !value || key.isEmpty())
        return kPMInvalidParameter;
    if (!settings->contains(key)) {
        *value = QString();
        return kPMKeyNotFound;
    }
    *value = settings->value(key);
    if (value->isNull())
        *value = QLatin1String("");
    return kPMNoError;
}

int PMPrintSettingsSetValue(PMPrintSettings* settings, const QString& key, const QString& value, bool)
{
    if (!settings || key.isEmpty())
        return kPMInvalidParameter;
    if (value.isNull())
        settings->remove(key);
    else
        settings->setValue(key, value);
    return kPMNoError;
}

int PMGetCopies(const PMPrintSettings* settings, unsigned int* copies)
{
    if (!settings || !copies)
        return kPMInvalidParameter;
    bool ok = false;
    const int n = settings->value(QStringLiteral("copies")).toInt(&ok);
    *copies = ok && n > 0 ? unsigned(n) : 1u;
    return kPMNoError;
}
