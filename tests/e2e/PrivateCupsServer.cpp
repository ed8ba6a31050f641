#include "PrivateCupsServer.h"
#include "TestSupport.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>
#include <arpa/inet.h>
#include <cups/cups.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
// The capture backend: it keeps its arguments (NUL-separated) and the
// document it read, the ".done" file written last.
const char backendScript[] = R"SH(#!/bin/sh
if [ $# -eq 0 ]; then echo 'direct capture "Unknown" "Print Panels capture"'; exit 0; fi
base="${DEVICE_URI#capture:}/job-$1"
for a in "$0" "$@"; do printf '%s\0' "$a"; done > "$base.argv" || exit 1
if [ $# -ge 6 ]; then cat "$6"; else cat; fi > "$base.doc" || exit 1
: > "$base.done"
)SH";

// A port on 127.0.0.1 that nobody listens on now.
quint16 freePort()
{
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t len = sizeof a;
    quint16 port = 0;
    if (::bind(fd, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0 && ::getsockname(fd, reinterpret_cast<sockaddr*>(&a), &len) == 0)
        port = ntohs(a.sin_port);
    ::close(fd);
    return port;
}

bool writeFile(const QString& path, const QByteArray& text, QFile::Permissions perms, QString* error)
{
    QFile f(path);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(text) == text.size() && f.setPermissions(perms))
        return true;
    *error = QStringLiteral("%1: %2").arg(path, f.errorString());
    return false;
}

}

QMap<QString, QString> PrivateCupsServer::CapturedJob::parsedOptions() const
{
    QMap<QString, QString> out;
    cups_option_t* options = nullptr;
    const int n = cupsParseOptions(this->options().toUtf8().constData(), 0, &options);
    for (int i = 0; i < n; ++i)
        out.insert(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
    cupsFreeOptions(n, options);
    return out;
}

bool PrivateCupsServer::canRun(QString* why)
{
    const QStringList sbin{QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin")};
    if (::geteuid() != 0)
        *why = QStringLiteral("a private cupsd needs root (it runs its backends as user lp); run the tests as root");
    else if (QStandardPaths::findExecutable(QStringLiteral("cupsd"), sbin).isEmpty()
             || QStandardPaths::findExecutable(QStringLiteral("lpadmin"), sbin).isEmpty())
        *why = QStringLiteral("cupsd or lpadmin is not installed (Debian packages cups and cups-client)");
    else if (!::getpwnam("lp"))
        *why = QStringLiteral("there is no user lp for cupsd's backends");
    else
        return true;
    return false;
}

QStringList PrivateCupsServer::clientEnvironment() const
{
    return {QStringLiteral("HOME=") + clientHome(), QStringLiteral("CUPS_SERVERROOT=") + clientHome(),
            QStringLiteral("XDG_RUNTIME_DIR=") + clientHome()};
}

bool PrivateCupsServer::start(QString* error)
{
    if (isRunning() || !canRun(error))
        return isRunning();
    m_dir = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/pde-cupsd-XXXXXX"));
    m_port = freePort();
    // libcups reads where its files are at its first call in a thread: this
    // process's are the clients' (no user's lpoptions), before anything else.
    for (const QString& kv : clientEnvironment())
        qputenv(kv.section(QLatin1Char('='), 0, 0).toUtf8(), kv.section(QLatin1Char('='), 1).toUtf8());
    cupsSetServer(address().toUtf8().constData());
    for (const char* d : {"etc", "spool/tmp", "cache", "state", "log", "bin/backend", "capture", "client"})
        QDir(m_dir->path()).mkpath(QString::fromLatin1(d));
    // lp passes through to its backend and capture folders; the client folder is private.
    const auto rwx = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const auto rx = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(m_dir->path(), rwx | rx);
    QFile::setPermissions(clientHome(), rwx);
    // The server's programs are the system's, except for the backends: only ours.
    for (const QString& d : QDir(QStringLiteral("/usr/lib/cups")).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (!d.startsWith(QLatin1String("backend")))
            QFile::link(QStringLiteral("/usr/lib/cups/") + d, path(QStringLiteral("bin/") + d));
    // The configuration of tests/e2e, with this server's folder and port.
    const QDir config(QStringLiteral(PDE_E2E_DIR));
    const QString files = QString::fromUtf8(TestSupport::readFile(config.filePath(QStringLiteral("cups-files.conf")))).arg(m_dir->path());
    const QString conf = QString::fromUtf8(TestSupport::readFile(config.filePath(QStringLiteral("cupsd.conf")))).arg(m_port);
    const auto rw = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    if (!writeFile(path(QStringLiteral("bin/backend/capture")), backendScript, rwx | rx, error)
        || !writeFile(path(QStringLiteral("cups-files.conf")), files.toUtf8(), rw, error)
        || !writeFile(path(QStringLiteral("cupsd.conf")), conf.toUtf8(), rw, error))
        return false;
    return launch(error);
}

bool PrivateCupsServer::restart(QString* error)
{
    stop();
    return m_dir && launch(error);
}

bool PrivateCupsServer::launch(QString* error)
{
    m_cupsd.setProcessChannelMode(QProcess::MergedChannels);
    m_cupsd.start(QStringLiteral("cupsd"), {QStringLiteral("-f"), QStringLiteral("-c"), path(QStringLiteral("cupsd.conf")),
                                            QStringLiteral("-s"), path(QStringLiteral("cups-files.conf"))});
    const QDeadlineTimer deadline(15000);
    while (isRunning() && !deadline.hasExpired()) {
        if (http_t* http = httpConnect2("127.0.0.1", m_port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 0, 200, nullptr)) {
            httpClose(http);
            return true;
        }
        QThread::msleep(20);
    }
    *error = QStringLiteral("cupsd does not listen on %1: %2 %3").arg(address(), QString::fromLocal8Bit(m_cupsd.readAll()), errorLog());
    stop();
    return false;
}

void PrivateCupsServer::stop()
{
    if (!isRunning())
        return;
    m_cupsd.terminate();  // our own cupsd, by its process id
    if (!m_cupsd.waitForFinished(10000))
        m_cupsd.kill(), m_cupsd.waitForFinished(3000);
}

bool PrivateCupsServer::runClient(const QString& program, const QStringList& arguments, QString* output) const
{
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& kv : clientEnvironment())
        env.insert(kv.section(QLatin1Char('='), 0, 0), kv.section(QLatin1Char('='), 1));
    p.setProcessEnvironment(env);
    p.start(program, QStringList{QStringLiteral("-h"), address()} + arguments);
    const bool finished = p.waitForFinished(30000);
    if (output)
        *output = QString::fromLocal8Bit(p.readAll());
    return finished && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

int PrivateCupsServer::print(const QStringList& arguments, QString* out, QString* err) const
{
    return TestSupport::runApp(QStringList{QStringLiteral("--server"), address()} + arguments, out, err, clientEnvironment());
}

int PrivateCupsServer::jobId(const QString& clientOutput)
{
    static const QRegularExpression re(QStringLiteral("request id is \\S+-(\\d+) "));
    return re.match(clientOutput).captured(1).toInt();
}

bool PrivateCupsServer::addQueue(const QString& name, const QString& ppdPath, QString* error)
{
    // The backend runs as lp: the capture folder is lp's.
    const QString dir = path(QStringLiteral("capture/") + name);
    const struct passwd* lp = ::getpwnam("lp");
    if (!QDir().mkpath(dir) || !lp || ::chown(QFile::encodeName(dir).constData(), lp->pw_uid, lp->pw_gid) != 0) {
        *error = QStringLiteral("cannot make %1 for user lp").arg(dir);
        return false;
    }
    QString output;
    const bool ok = runClient(QStringLiteral("lpadmin"), {"-p", name, "-E", "-v", QStringLiteral("capture:") + dir, "-P", ppdPath}, &output);
    if (!ok)
        *error = QStringLiteral("lpadmin failed: %1").arg(output.trimmed());
    return ok;
}

bool PrivateCupsServer::waitForJob(const QString& queue, int id, CapturedJob* job, int timeoutMs) const
{
    const QDeadlineTimer deadline(timeoutMs);
    // The backend has finished when the server says the job is done.
    while (jobAttribute(id, QStringLiteral("job-state")) != QLatin1String("completed")) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(25);
    }
    const QString base = path(QStringLiteral("capture/%1/job-%2").arg(queue).arg(id));
    QByteArray argv = TestSupport::readFile(base + QStringLiteral(".argv"));
    argv.chop(1);  // the last NUL
    *job = CapturedJob{id, {}, TestSupport::readFile(base + QStringLiteral(".doc")), {}};
    for (const QByteArray& a : argv.split('\0'))
        job->argv << QString::fromUtf8(a);
    // The server's spool keeps each document of the job as dJOBID-NNN.
    for (int n = 1;; ++n) {
        const QString f = path(QStringLiteral("spool/d%1-%2").arg(id, 5, 10, QLatin1Char('0')).arg(n, 3, 10, QLatin1Char('0')));
        if (!QFileInfo::exists(f))
            return QFileInfo::exists(base + QStringLiteral(".done"));
        job->spooledDocuments << TestSupport::readFile(f);
    }
}

QString PrivateCupsServer::jobAttribute(int jobId, const QString& name) const
{
    http_t* http = httpConnect2("127.0.0.1", m_port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1, 10000, nullptr);
    if (!http)
        return {};
    const QByteArray uri = QStringLiteral("ipp://127.0.0.1:%1/jobs/%2").arg(m_port).arg(jobId).toUtf8();
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ipp_t* response = cupsDoRequest(http, request, "/");
    QString value;
    if (ipp_attribute_t* a = ippFindAttribute(response, name.toUtf8().constData(), IPP_TAG_ZERO)) {
        char text[8192];
        ippAttributeString(a, text, sizeof text);
        value = QString::fromUtf8(text);
    }
    ippDelete(response);
    httpClose(http);
    return value;
}

QString PrivateCupsServer::errorLog() const
{
    return QString::fromUtf8(TestSupport::readFile(path(QStringLiteral("log/error_log"))));
}

QStringList PrivateCupsServer::accessLog() const
{
    return QString::fromUtf8(TestSupport::readFile(path(QStringLiteral("log/access_log")))).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
