#include "PrivateCupsServer.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>
#include <arpa/inet.h>
#include <cups/cups.h>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>
#include <algorithm>

namespace {
// The capture backend. Each run keeps its arguments (NUL-separated) and the
// document it read; the ".done" file, written last, says the run is complete.
const char backendScript[] = R"SH(#!/bin/sh
# Print Panels test backend: keeps what each job brings.
if [ $# -eq 0 ]; then
    echo 'direct capture "Unknown" "Print Panels capture"'
    exit 0
fi
dir="${DEVICE_URI#capture:}"
n=1
while [ -e "$dir/job-$1.$n.done" ]; do n=$((n + 1)); done
base="$dir/job-$1.$n"
for a in "$0" "$@"; do printf '%s\0' "$a"; done > "$base.argv" || exit 1
if [ $# -ge 6 ]; then cat "$6"; else cat; fi > "$base.doc" || exit 1
: > "$base.done"
exit 0
)SH";

// A port on 127.0.0.1 that nobody listens on now.
quint16 freePort()
{
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0)
        return 0;
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    a.sin_port = 0;
    socklen_t len = sizeof a;
    quint16 port = 0;
    if (::bind(fd, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0 && ::getsockname(fd, reinterpret_cast<sockaddr*>(&a), &len) == 0)
        port = ntohs(a.sin_port);
    ::close(fd);
    return port;
}

bool accepts(quint16 port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0)
        return false;
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    a.sin_port = htons(port);
    const bool ok = ::connect(fd, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0;
    ::close(fd);
    return ok;
}

bool writeFile(const QString& path, const QByteArray& text, QFile::Permissions perms, QString* error)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(text) != text.size()) {
        *error = QStringLiteral("%1: %2").arg(path, f.errorString());
        return false;
    }
    f.close();
    f.setPermissions(perms);
    return true;
}

QByteArray readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
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

PrivateCupsServer::PrivateCupsServer()
{
    m_cupsd.setProcessChannelMode(QProcess::MergedChannels);
}

PrivateCupsServer::~PrivateCupsServer()
{
    stop();
}

bool PrivateCupsServer::canRun(QString* why)
{
    if (::geteuid() != 0) {
        *why = QStringLiteral("a private cupsd needs root (it runs its backends as user lp); run the tests as root");
        return false;
    }
    for (const char* tool : {"cupsd", "lpadmin"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool), {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin")}).isEmpty()) {
            *why = QStringLiteral("%1 is not installed (Debian packages cups and cups-client)").arg(QString::fromLatin1(tool));
            return false;
        }
    }
    if (!::getpwnam("lp") || !::getgrnam("lp")) {
        *why = QStringLiteral("there is no user and group lp for cupsd's backends");
        return false;
    }
    if (!QFileInfo(QStringLiteral("/usr/lib/cups/filter")).isDir()) {
        *why = QStringLiteral("/usr/lib/cups is missing: CUPS is not installed");
        return false;
    }
    return true;
}

QString PrivateCupsServer::path(const QString& relative) const
{
    return m_dir ? m_dir->filePath(relative) : QString();
}

QString PrivateCupsServer::captureDir(const QString& queue) const
{
    return path(QStringLiteral("capture/") + queue);
}

QString PrivateCupsServer::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

QString PrivateCupsServer::clientHome() const
{
    return path(QStringLiteral("client"));
}

QStringList PrivateCupsServer::clientEnvironment() const
{
    return {QStringLiteral("HOME=") + clientHome(), QStringLiteral("CUPS_SERVERROOT=") + clientHome(),
            QStringLiteral("XDG_RUNTIME_DIR=") + path(QStringLiteral("client-run"))};
}

void PrivateCupsServer::applyClientEnvironment() const
{
    for (const QString& kv : clientEnvironment())
        qputenv(kv.section(QLatin1Char('='), 0, 0).toUtf8(), kv.section(QLatin1Char('='), 1).toUtf8());
}

bool PrivateCupsServer::writeConfiguration(QString* error)
{
    QDir root(m_dir->path());
    for (const char* d : {"etc", "spool", "spool/tmp", "cache", "state", "log", "bin", "bin/backend", "capture", "client", "client-run"}) {
        if (!root.mkpath(QString::fromLatin1(d))) {
            *error = QStringLiteral("cannot make %1").arg(path(QString::fromLatin1(d)));
            return false;
        }
    }
    // lp must be able to pass through the folders to its backend and capture folders.
    QFile::setPermissions(m_dir->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
                                             | QFile::ReadOther | QFile::ExeOther);
    QFile::setPermissions(path(QStringLiteral("client-run")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // The server's programs are the system's, except for the backends: only ours.
    for (const char* d : {"filter", "daemon", "cgi-bin", "notifier", "monitor", "driver"}) {
        const QString target = QStringLiteral("/usr/lib/cups/") + QString::fromLatin1(d);
        if (QFileInfo::exists(target) && !QFile::link(target, path(QStringLiteral("bin/") + QString::fromLatin1(d)))) {
            *error = QStringLiteral("cannot link %1").arg(target);
            return false;
        }
    }
    if (!writeFile(path(QStringLiteral("bin/backend/capture")), backendScript,
                   QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther
                       | QFile::ExeOther,
                   error))
        return false;

    const QString files = QStringLiteral(
                              "ServerRoot %1/etc\n"
                              "RequestRoot %1/spool\n"
                              "TempDir %1/spool/tmp\n"
                              "CacheDir %1/cache\n"
                              "StateDir %1/state\n"
                              "ServerBin %1/bin\n"
                              "ServerKeychain %1/etc/ssl\n"
                              "Printcap %1/etc/printcap\n"
                              "AccessLog %1/log/access_log\n"
                              "ErrorLog %1/log/error_log\n"
                              "PageLog %1/log/page_log\n"
                              "FileDevice Yes\n"
                              "User lp\n"
                              "Group lp\n")
                              .arg(m_dir->path());
    const QString conf = QStringLiteral(
                             "Listen 127.0.0.1:%1\n"
                             "Browsing No\n"
                             "WebInterface No\n"
                             "DefaultAuthType None\n"
                             "LogLevel %2\n"
                             "PreserveJobFiles Yes\n"
                             "PreserveJobHistory Yes\n"
                             "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                             "<Location /admin>\n  Order allow,deny\n  Allow all\n</Location>\n"
                             "<Policy default>\n"
                             "  JobPrivateAccess all\n  JobPrivateValues none\n"
                             "  SubscriptionPrivateAccess all\n  SubscriptionPrivateValues none\n"
                             "  <Limit All>\n    Order deny,allow\n  </Limit>\n"
                             "</Policy>\n")
                             .arg(m_port)
                             .arg(qEnvironmentVariableIsSet("PDE_CUPSD_DEBUG") ? QStringLiteral("debug") : QStringLiteral("warn"));
    const QFile::Permissions rw = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    return writeFile(path(QStringLiteral("cups-files.conf")), files.toUtf8(), rw, error)
           && writeFile(path(QStringLiteral("cupsd.conf")), conf.toUtf8(), rw, error);
}

bool PrivateCupsServer::start(QString* error)
{
    if (isRunning())
        return true;
    if (!canRun(error))
        return false;
    m_dir = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/pde-cupsd-XXXXXX"));
    if (!m_dir->isValid()) {
        *error = QStringLiteral("cannot make a temporary folder: %1").arg(m_dir->errorString());
        return false;
    }
    m_port = freePort();
    if (m_port == 0) {
        *error = QStringLiteral("no free port on 127.0.0.1");
        return false;
    }
    if (!writeConfiguration(error))
        return false;
    m_cupsd.start(QStringLiteral("cupsd"), {QStringLiteral("-f"), QStringLiteral("-c"), path(QStringLiteral("cupsd.conf")),
                                            QStringLiteral("-s"), path(QStringLiteral("cups-files.conf"))});
    if (!m_cupsd.waitForStarted(5000)) {
        *error = QStringLiteral("cupsd does not start: %1").arg(m_cupsd.errorString());
        return false;
    }
    const QDeadlineTimer deadline(15000);
    while (!accepts(m_port)) {
        if (m_cupsd.state() != QProcess::Running || deadline.hasExpired()) {
            *error = QStringLiteral("cupsd does not listen on %1: %2 %3")
                         .arg(address(), QString::fromLocal8Bit(m_cupsd.readAll()), errorLog());
            stop();
            return false;
        }
        QThread::msleep(20);
    }
    return true;
}

bool PrivateCupsServer::isRunning() const
{
    return m_cupsd.state() != QProcess::NotRunning;
}

void PrivateCupsServer::stop()
{
    if (m_cupsd.state() == QProcess::NotRunning)
        return;
    // Our own cupsd, by its process id.
    m_cupsd.terminate();
    if (!m_cupsd.waitForFinished(10000)) {
        m_cupsd.kill();
        m_cupsd.waitForFinished(3000);
    }
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
    if (!finished) {
        p.kill();
        p.waitForFinished(3000);
        return false;
    }
    return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

bool PrivateCupsServer::addQueue(const QString& name, const QString& ppdPath, QString* error)
{
    if (!isRunning()) {
        *error = QStringLiteral("the server is not running");
        return false;
    }
    if (!QRegularExpression(QStringLiteral("^[A-Za-z0-9_-]+$")).match(name).hasMatch()) {
        *error = QStringLiteral("queue name %1: letters, digits, '_' and '-' only").arg(name);
        return false;
    }
    const QString dir = captureDir(name);
    if (!QDir().mkpath(dir)) {
        *error = QStringLiteral("cannot make %1").arg(dir);
        return false;
    }
    // The backend runs as lp: the capture folder is lp's.
    const struct passwd* lp = ::getpwnam("lp");
    if (!lp || ::chown(QFile::encodeName(dir).constData(), lp->pw_uid, lp->pw_gid) != 0) {
        *error = QStringLiteral("cannot give %1 to user lp").arg(dir);
        return false;
    }
    QString output;
    if (!runClient(QStringLiteral("lpadmin"),
                   {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"), QStringLiteral("capture:") + dir,
                    QStringLiteral("-P"), ppdPath},
                   &output)) {
        *error = QStringLiteral("lpadmin failed: %1").arg(output.trimmed());
        return false;
    }
    return true;
}

QList<PrivateCupsServer::CapturedJob> PrivateCupsServer::capturedJobs(const QString& queue) const
{
    QMap<int, CapturedJob> jobs;
    const QDir dir(captureDir(queue));
    static const QRegularExpression done(QStringLiteral("^job-(\\d+)\\.(\\d+)\\.done$"));
    QList<QPair<int, int>> runs;
    for (const QString& f : dir.entryList({QStringLiteral("job-*.done")}, QDir::Files)) {
        const QRegularExpressionMatch m = done.match(f);
        if (m.hasMatch())
            runs.append({m.captured(1).toInt(), m.captured(2).toInt()});
    }
    std::sort(runs.begin(), runs.end());
    for (const auto& [id, run] : std::as_const(runs)) {
        const QString base = dir.filePath(QStringLiteral("job-%1.%2").arg(id).arg(run));
        CapturedJob& job = jobs[id];
        job.id = id;
        if (job.argv.isEmpty()) {
            QByteArray argv = readAll(base + QStringLiteral(".argv"));
            if (argv.endsWith('\0'))
                argv.chop(1);
            for (const QByteArray& a : argv.split('\0'))
                job.argv << QString::fromUtf8(a);
        }
        job.documents << readAll(base + QStringLiteral(".doc"));
    }
    // What the server received: its spool keeps each document as dJOBID-NNN.
    for (CapturedJob& job : jobs) {
        for (int n = 1;; ++n) {
            const QString f = path(QStringLiteral("spool/d%1-%2").arg(job.id, 5, 10, QLatin1Char('0')).arg(n, 3, 10, QLatin1Char('0')));
            if (!QFileInfo::exists(f))
                break;
            job.spooledDocuments << readAll(f);
        }
    }
    return jobs.values();
}

bool PrivateCupsServer::waitForJobs(const QString& queue, int count, int timeoutMs) const
{
    const QDeadlineTimer deadline(timeoutMs);
    while (capturedJobs(queue).size() < count) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(25);
    }
    return true;
}

QString PrivateCupsServer::jobAttribute(int jobId, const QString& name) const
{
    http_t* http = httpConnect2("127.0.0.1", m_port, nullptr, AF_INET, HTTP_ENCRYPTION_IF_REQUESTED, 1, 10000, nullptr);
    if (!http)
        return QString();
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "127.0.0.1", m_port, "/jobs/%d", jobId);
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri);
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
    return QString::fromUtf8(readAll(path(QStringLiteral("log/error_log"))));
}
