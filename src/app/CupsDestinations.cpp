#include "CupsDestinations.h"

#include "CupsDestList.h"

#include <QDir>
#include <cups/cups.h>

QList<CupsDestinations::Queue> CupsDestinations::queues(const CupsDestList& dests)
{
    QList<Queue> out;
    for (int i = 0; i < dests.count(); ++i) {
        const cups_dest_t& dest = dests.at(i);
        if (dest.instance)
            continue;
        Queue q;
        q.name = QString::fromUtf8(dest.name);
        auto option = [&](const char* name) { return QString::fromUtf8(cupsGetOption(name, dest.num_options, dest.options)); };
        q.description = option("printer-info");
        q.location = option("printer-location");
        q.makeAndModel = option("printer-make-and-model");
        q.state = option("printer-state").toInt();
        q.accepting = option("printer-is-accepting-jobs") != QLatin1String("false");
        q.isDefault = dest.is_default;
        out.append(q);
    }
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

QStringList CupsDestinations::coverPages(const CupsDestList& dests, const QString& queue)
{
    QStringList names;
    if (const CupsPrinterList::Printer* printer = queue.isEmpty() ? nullptr : dests.printers().find(queue.section(QLatin1Char('/'), 0, 0).toUtf8()))
        names = printer->jobSheets;
    if (names.isEmpty())
        names = installedBanners();
    names.removeAll(QStringLiteral("none"));
    names.prepend(QStringLiteral("none"));
    return names;
}
