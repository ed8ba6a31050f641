#include "PMPageFormat.h"

#include "PMPrintSettings.h"

int PMGetOrientation(const PMPageFormat* format, PMOrientation* orientation)
{
    if (!format || !orientation)
        return kPMInvalidParameter;
    *orientation = kPMPortrait;
    const PMPrintSettings* s = format->printSettings();
    if (!s)
        return kPMNoError;
    const QString requested = s->value(QStringLiteral("orientation-requested"));
    if (requested == QLatin1String("4"))
        *orientation = kPMLandscape;
    else if (requested == QLatin1String("5"))
        *orientation = kPMReverseLandscape;
    else if (requested == QLatin1String("6"))
        *orientation = kPMReversePortrait;
    else if (requested.isNull() && s->contains(QStringLiteral("landscape")))
        *orientation = kPMLandscape;
    return kPMNoError;
}

int PMPrintSettingsGetDerivedInt(const PMPrintSettings* settings, const QString& key, int* value)
{
    if (!settings || !value)
        return kPMInvalidParameter;
    if (key == QLatin1String(kPMLayoutRows) || key == QLatin1String(kPMLayoutColumns)) {
        const int up = settings->value(QStringLiteral("number-up")).toInt();
        int rows = 1, columns = 1;
        switch (up) {
        case 2: rows = 1; columns = 2; break;
        case 4: rows = 2; columns = 2; break;
        case 6: rows = 2; columns = 3; break;
        case 9: rows = 3; columns = 3; break;
        case 16: rows = 4; columns = 4; break;
        default: break;
        }
        *value = key == QLatin1String(kPMLayoutRows) ? rows : columns;
        return kPMNoError;
    }
    if (key == QLatin1String(kPMCoverPage)) {
        const QString sheets = settings->value(QStringLiteral("job-sheets"));
        const QString first = sheets.section(QLatin1Char(','), 0, 0).trimmed();
        *value = (!first.isEmpty() && first != QLatin1String("none")) ? 2 : 1;
        return kPMNoError;
    }
    bool ok = false;
    *value = settings->value(key).toInt(&ok);
    return ok ? kPMNoError : kPMKeyNotFound;
}
