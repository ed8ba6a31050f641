#include "PrintJob.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <cups/cups.h>
#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

namespace {
struct HttpCloser {
    void operator()(http_t* http) const { httpClose(http); }
};
using Http = std::unique_ptr<http_t, HttpCloser>;

Http connectToServer()
{
    return Http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, 30000, nullptr));
}

QString lastCupsError()
{
    return QString::fromUtf8(cupsLastErrorString());
}

// Why the last request on http failed: the server's answer, or, when the
// connection itself broke (libcups then reports the system's error, which
// may be none: "Success"), that the server was lost.
QString requestError(http_t* http, const QString& server)
{
    const QString reason = lastCupsError();
    const int system = httpError(http);
    if (system == 0 && !reason.isEmpty() && reason != QString::fromLocal8Bit(std::strerror(0)))
        return reason;
    const QString lost = QStringLiteral("the connection to the CUPS server %1 was lost").arg(server);
    return system == 0 ? lost : QStringLiteral("%1 (%2)").arg(lost, QString::fromLocal8Bit(std::strerror(system)));
}

// The queue's document-format-supported, or an empty list when it cannot be
// asked (any format is then tried).
QStringList supportedFormats(http_t* http, cups_dest_t* dest)
{
    QStringList formats;
    cups_dinfo_t* info = cupsCopyDestInfo(http, dest);
    if (!info)
        return formats;
    if (ipp_attribute_t* a = cupsFindDestSupported(http, dest, info, "document-format")) {
        for (int i = 0; i < ippGetCount(a); ++i)
            formats << QString::fromUtf8(ippGetString(a, i, nullptr));
    }
    cupsFreeDestInfo(info);
    return formats;
}
}

PrintJob::PrintJob(const QString& queue, const QString& server) : m_queue(queue), m_server(server) {}

QString PrintJob::title() const
{
    if (!m_title.isEmpty() || m_files.isEmpty())
        return m_title;
    return QFileInfo(m_files.first()).fileName();
}

bool PrintJob::fail(Status status, const QString& error)
{
    m_status = status;
    m_error = error;
    return false;
}

QString PrintJob::documentFormat(const QString& path, const QStringList& supported)
{
    const QMimeDatabase db;
    const QMimeType type = db.mimeTypeForFile(path);
    if (!type.isValid() || type.isDefault())
        return autoTypeFormat();
    // The type itself, then what it is a kind of, nearest first (a C source
    // file is plain text).
    QStringList candidates{type.name()};
    candidates += type.aliases();
    QList<QMimeType> level{type};
    while (!level.isEmpty()) {
        QList<QMimeType> next;
        for (const QMimeType& t : std::as_const(level)) {
            for (const QString& parent : t.parentMimeTypes()) {
                const QMimeType p = db.mimeTypeForName(parent);
                if (p.isValid() && !candidates.contains(p.name())) {
                    candidates << p.name();
                    next << p;
                }
            }
        }
        level = next;
    }
    for (const QString& c : std::as_const(candidates)) {
        if (c == autoTypeFormat())
            continue;
        if (supported.isEmpty() || supported.contains(c, Qt::CaseInsensitive))
            return c;
    }
    return autoTypeFormat();
}

bool PrintJob::checkDocuments(QString* error) const
{
    if (m_files.isEmpty()) {
        *error = QStringLiteral("no document to print");
        return false;
    }
    for (const QString& path : m_files) {
        const QFileInfo info(path);
        if (!info.exists())
            *error = QStringLiteral("%1: no such file").arg(path);
        else if (info.isDir())
            *error = QStringLiteral("%1: is a folder, not a document").arg(path);
        else if (!info.isReadable())
            *error = QStringLiteral("%1: cannot be read").arg(path);
        else if (info.isFile() && info.size() == 0)
            *error = QStringLiteral("%1: is empty, there is nothing to print").arg(path);
        else
            continue;
        return false;
    }
    return true;
}

bool PrintJob::submit()
{
    m_jobId = 0;
    m_error.clear();
    m_status = Status::NotSent;

    // Every document is opened before anything reaches the server, so a bad
    // file leaves no half-sent job behind.
    QString error;
    if (!checkDocuments(&error))
        return fail(Status::BadInput, error);
    std::vector<std::unique_ptr<QFile>> documents;
    for (const QString& path : std::as_const(m_files)) {
        auto file = std::make_unique<QFile>(path);
        if (!file->open(QIODevice::ReadOnly))
            return fail(Status::BadInput, QStringLiteral("%1: cannot be read (%2)").arg(path, file->errorString()));
        documents.push_back(std::move(file));
    }

    if (!m_server.isEmpty())
        cupsSetServer(m_server.toUtf8().constData());
    // "host:port", or the path of the local socket.
    QString server = QString::fromUtf8(cupsServer());
    if (!server.startsWith(QLatin1Char('/')))
        server += QStringLiteral(":%1").arg(ippPort());
    Http http = connectToServer();
    if (!http)
        return fail(Status::CupsError,
                    QStringLiteral("cannot connect to the CUPS server %1: %2").arg(server, QString::fromLocal8Bit(std::strerror(errno))));

    const QByteArray name = m_queue.section(QLatin1Char('/'), 0, 0).toUtf8();
    const QByteArray instance = m_queue.section(QLatin1Char('/'), 1).toUtf8();
    cups_dest_t* dest = cupsGetNamedDest(http.get(), name.constData(), instance.isEmpty() ? nullptr : instance.constData());
    if (!dest)
        return fail(Status::CupsError, QStringLiteral("printer %1: %2").arg(m_queue, lastCupsError()));
    const QStringList formats = supportedFormats(http.get(), dest);
    cupsFreeDests(1, dest);

    cups_option_t* options = nullptr;
    int count = 0;
    for (const auto& [key, value] : std::as_const(m_options))
        count = cupsAddOption(key.toUtf8().constData(), value.toUtf8().constData(), count, &options);
    m_jobId = cupsCreateJob(http.get(), name.constData(), title().toUtf8().constData(), count, options);
    cupsFreeOptions(count, options);
    if (m_jobId <= 0) {
        m_jobId = 0;
        return fail(Status::CupsError, QStringLiteral("printer %1 did not take the job: %2").arg(m_queue, requestError(http.get(), server)));
    }

    auto abandon = [&](const QString& error) {
        // The connection may be in the middle of a request: cancel on a new one.
        const int id = m_jobId;
        http.reset();
        if (Http again = connectToServer())
            cupsCancelJob2(again.get(), name.constData(), id, 0);
        m_jobId = 0;
        return fail(Status::CupsError, error);
    };

    for (size_t i = 0; i < documents.size(); ++i) {
        QFile& file = *documents[i];
        const QString path = m_files.at(qsizetype(i));
        const QByteArray format = documentFormat(path, formats).toUtf8();
        const QByteArray docName = QFileInfo(path).fileName().toUtf8();
        const int last = i + 1 == documents.size() ? 1 : 0;
        if (cupsStartDocument(http.get(), name.constData(), m_jobId, docName.constData(), format.constData(), last)
            != HTTP_STATUS_CONTINUE)
            return abandon(QStringLiteral("printer %1 did not take %2: %3").arg(m_queue, path, requestError(http.get(), server)));
        QByteArray chunk(64 * 1024, Qt::Uninitialized);
        while (true) {
            const qint64 n = file.read(chunk.data(), chunk.size());
            if (n < 0) {
                cupsFinishDocument(http.get(), name.constData());
                return abandon(QStringLiteral("%1: reading failed (%2)").arg(path, file.errorString()));
            }
            if (n == 0)
                break;
            if (cupsWriteRequestData(http.get(), chunk.constData(), size_t(n)) != HTTP_STATUS_CONTINUE) {
                const QString why = requestError(http.get(), server);
                cupsFinishDocument(http.get(), name.constData());
                return abandon(QStringLiteral("sending %1 to printer %2 failed: %3").arg(path, m_queue, why));
            }
        }
        if (cupsFinishDocument(http.get(), name.constData()) > IPP_STATUS_OK_CONFLICTING)
            return abandon(QStringLiteral("printer %1 did not take %2: %3").arg(m_queue, path, requestError(http.get(), server)));
    }
    m_status = Status::Sent;
    return true;
}
