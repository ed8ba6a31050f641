#include "QueuePPDCheck.h"

#include <QFile>
#include <cups/ppd.h>

QueuePPDCheck::Result QueuePPDCheck::compare(const QString& queue, const QString& server, const QString& openedPPD)
{
    QFile opened(openedPPD);
    if (!opened.open(QIODevice::ReadOnly))
        return Result::Unknown;
    if (!server.isEmpty())
        cupsSetServer(server.toUtf8().constData());
    char path[1024] = "";
    time_t modtime = 0;
    const QByteArray name = queue.section(QLatin1Char('/'), 0, 0).toUtf8();
    const http_status_t status = cupsGetPPD3(CUPS_HTTP_DEFAULT, name.constData(), &modtime, path, sizeof path);
    if (status == HTTP_STATUS_NOT_FOUND)
        return Result::Changed;  // the queue has no PPD any more (or is gone)
    if (status != HTTP_STATUS_OK)
        return Result::Unknown;
    QFile now(QFile::decodeName(path));
    const bool same = now.open(QIODevice::ReadOnly) && now.size() == opened.size() && now.readAll() == opened.readAll();
    now.remove();  // a temporary copy (or a link to the server's own file)
    return same ? Result::Same : Result::Changed;
}
