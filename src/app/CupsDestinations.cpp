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

QStringList CupsDestinations::coverPages(const QString& queue)
{
    QStringList names;
    if (!queue.isEmpty()) {
        // One Get-Printer-Attributes for the one attribute shown, not every
        // attribute of the printer (cupsCopyDestInfo).
        char uri[HTTP_MAX_URI];
        httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(), "/printers/%s",
                         queue.section(QLatin1Char('/'), 0, 0).toUtf8().constData());
        ipp_t* request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "job-sheets-supported");
        ipp_t* response = cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/");
        if (ipp_attribute_t* a = ippFindAttribute(response, "job-sheets-supported", IPP_TAG_ZERO)) {
            for (int i = 0; i < ippGetCount(a); ++i)
                names.append(QString::fromUtf8(ippGetString(a, i, nullptr)));
        }
        ippDelete(response);
    }
    if (names.isEmpty())
        names = installedBanners();
    names.removeAll(QStringLiteral("none"));
    names.prepend(QStringLiteral("none"));
    return names;
}
