#pragma once
#include <QByteArray>
#include <QList>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

// A cupsd of the tests' own: listening on 127.0.0.1 at a free port, with its
// configuration, spool, cache, state and logs in a temporary folder, no
// authentication, and a "capture" backend that keeps what every job brings.
// It needs root (cupsd runs its backends as user lp); canRun() tells.
//
// Queues are made with lpadmin from a PPD, their device "capture:DIR". The
// backend (root-owned, mode 0755, so it runs as lp) writes, for each run, the
// arguments it got and the document it read into DIR, which belongs to lp.
class PrivateCupsServer {
public:
    struct CapturedJob {
        int id = 0;
        QStringList argv;                    // the backend's arguments: its path, job id, user, title, copies, options[, file]
        QList<QByteArray> documents;         // what the backend read, once per run
        QList<QByteArray> spooledDocuments;  // every document of the job as the server keeps it, in order

        QString user() const { return argv.value(2); }
        QString title() const { return argv.value(3); }
        int copies() const { return argv.value(4).toInt(); }
        QString options() const { return argv.value(5); }
        // The options argument read with cupsParseOptions, as a filter reads it.
        QMap<QString, QString> parsedOptions() const;
    };

    PrivateCupsServer();
    ~PrivateCupsServer();
    PrivateCupsServer(const PrivateCupsServer&) = delete;
    PrivateCupsServer& operator=(const PrivateCupsServer&) = delete;

    // Whether a private cupsd can run here; *why says why not.
    static bool canRun(QString* why);

    bool start(QString* error);
    // Stops the server (its own process only) and waits for it to exit.
    void stop();
    bool isRunning() const;

    quint16 port() const { return m_port; }
    // "127.0.0.1:PORT", for --server, lp -h and cupsSetServer.
    QString address() const;
    // Environment for clients of this server: HOME and CUPS_SERVERROOT in a
    // private folder (no user's lpoptions or client.conf is read or written).
    QStringList clientEnvironment() const;
    // The same, set in this process. libcups reads it once per thread, at its
    // first call: do this before the test process uses libcups.
    void applyClientEnvironment() const;
    // The private home of clients (where libcups keeps .cups/lpoptions).
    QString clientHome() const;

    // A queue from a PPD file, enabled and accepting jobs, its device a
    // capture folder of its own.
    bool addQueue(const QString& name, const QString& ppdPath, QString* error);
    // Runs a CUPS client program against this server ("-h ADDRESS" first).
    bool runClient(const QString& program, const QStringList& arguments, QString* output = nullptr) const;

    // The jobs the backend has finished for the queue, by job id.
    QList<CapturedJob> capturedJobs(const QString& queue) const;
    // Waits until the backend has finished `count` jobs for the queue.
    bool waitForJobs(const QString& queue, int count, int timeoutMs = 20000) const;
    // An attribute of a job as the server reports it (Get-Job-Attributes),
    // as text; a null string when the job or the attribute is unknown.
    QString jobAttribute(int jobId, const QString& name) const;
    // The server's error log (for failure messages).
    QString errorLog() const;

private:
    QString path(const QString& relative) const;
    QString captureDir(const QString& queue) const;
    bool writeConfiguration(QString* error);

    std::unique_ptr<QTemporaryDir> m_dir;
    QProcess m_cupsd;
    quint16 m_port = 0;
};
