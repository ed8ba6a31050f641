#include "QueuePPDFetch.h"

#include <QFile>
#include <QUrl>
#include <cups/cups.h>
#include <cups/ppd.h>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {
struct UriParts {
    QByteArray host;
    QByteArray resource;
};

UriParts partsOf(const QByteArray& uri)
{
    char scheme[32], user[256], host[256], resource[1024];
    int port = 0;
    if (httpSeparateURI(HTTP_URI_CODING_ALL, uri.constData(), scheme, sizeof scheme, user, sizeof user, host, sizeof host,
                        &port, resource, sizeof resource) < HTTP_URI_STATUS_OK)
        return {};
    return {host, resource};
}

// Whether a printer URI names the server this process asks (the server
// writes its own URIs with the host name the client used, or localhost).
bool onThisServer(const QByteArray& host)
{
    if (host.isEmpty() || qstricmp(host.constData(), "localhost") == 0 || host.startsWith("127.") || host == "::1")
        return true;
    const QByteArray server = QByteArray(cupsServer()).split(':').first();
    return qstricmp(host.constData(), server.constData()) == 0;
}
}

QString QueuePPDFetch::fetch(const CupsPrinterList::Printer& printer, const QString& queue, QString* error)
{
    // A class has no PPD of its own: its first member's stands for it.
    const QByteArray uri = printer.memberUris.isEmpty() ? printer.uri : printer.memberUris.first();
    const UriParts parts = partsOf(uri);
    const QByteArray member = printer.memberUris.isEmpty() ? printer.name : parts.resource.mid(parts.resource.lastIndexOf('/') + 1);
    char path[1024] = "";
    http_status_t status = HTTP_STATUS_ERROR;
    if (onThisServer(parts.host) && !member.isEmpty()) {
        const int fd = cupsTempFd(path, sizeof path);
        if (fd < 0) {
            *error = QStringLiteral("the PPD of printer %1 cannot be kept: %2").arg(queue, QString::fromLocal8Bit(strerror(errno)));
            return QString();
        }
        const QByteArray resource = "/printers/" + QUrl::toPercentEncoding(QString::fromUtf8(member)) + ".ppd";
        status = cupsGetFd(CUPS_HTTP_DEFAULT, resource.constData(), fd);
        ::close(fd);
        if (status != HTTP_STATUS_OK)
            ::unlink(path);
    } else {
        time_t modtime = 0;
        status = cupsGetPPD3(CUPS_HTTP_DEFAULT, printer.name.constData(), &modtime, path, sizeof path);
    }
    if (status != HTTP_STATUS_OK) {
        *error = QStringLiteral("printer %1 has no PPD: %2").arg(queue, QString::fromUtf8(cupsLastErrorString()));
        return QString();
    }
    return QFile::decodeName(path);
}
