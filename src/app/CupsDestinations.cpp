#include "CupsDestinations.h"

#include <QDir>
#include <cups/cups.h>

QList<CupsDestinations::Queue> CupsDestinations::queues()
{
    QList<Queue> out;
    cups_dest_t* dests = nullptr;
    const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests);
    for (int i = 0; i < count; ++i) {
        if (dests[i].instance)
            continue;
        Queue q;
        q.name = QString::fromUtf8(dests[i].name);
        auto option = [&](const char* name) { return QString::fromUtf8(cupsGetOption(name, dests[i].num_options, dests[i].options)); };
        q.description = option("printer-info");
        q.location = option("printer-location");
        q.makeAndModel = option("printer-make-and-model");
        q.state = option("printer-state").toInt();
        q.accepting = option("printer-is-accepting-jobs") != QLatin1String("false");
        q.isDefault = dests[i].is_default;
        out.append(q);
    }
    cupsFreeDests(count, dests);
    return out;
}

static QStringList installedBanners()
{
    const QString dataDir = qEnvironmentVariable("CUPS_DATADIR", QStringLiteral("/usr/share/cups"));
    QStringList names = QDir(dataDir + QStringLiteral("/banners")).entryList(QDir::Files, QDir::Name);
    // "form" is a template for banner makers, not a cover page of its own.
    names.removeAll(QStringLiteral("form"));
    return names;
}

QStringList CupsDestinations::coverPages(const QString& queue)
{
    QStringList names;
    if (!queue.isEmpty()) {
        const QByteArray name = queue.section(QLatin1Char('/'), 0, 0).toUtf8();
        if (cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.constData(), nullptr)) {
            if (cups_dinfo_t* info = cupsCopyDestInfo(CUPS_HTTP_DEFAULT, dest)) {
                if (ipp_attribute_t* a = cupsFindDestSupported(CUPS_HTTP_DEFAULT, dest, info, "job-sheets")) {
                    for (int i = 0; i < ippGetCount(a); ++i)
                        names.append(QString::fromUtf8(ippGetString(a, i, nullptr)));
                }
                cupsFreeDestInfo(info);
            }
            cupsFreeDests(1, dest);
        }
    }
    if (names.isEmpty())
        names = installedBanners();
    names.removeAll(QStringLiteral("none"));
    names.prepend(QStringLiteral("none"));
    return names;
}
