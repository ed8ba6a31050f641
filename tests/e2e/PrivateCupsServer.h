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
// configuration (tests/e2e/cupsd.conf and cups-files.conf), spool, cache,
// state and logs in a temporary folder (its own ServerRoot), FileDevice Yes, a
// policy without authentication, and a
// "capture" backend that keeps what every job brings. It needs root (cupsd
// runs its backends as user lp); canRun() tells.
//
// Queues are made with lpadmin -P from a PPD, their device "capture:DIR". The
// backend (root-owned, mode 0755, so it runs as lp) writes the arguments it
// got and the document it read into DIR, which belongs to lp.
class PrivateCupsServer {
public:
    struct CapturedJob {
        int id = 0;
        QStringList argv;                    // the backend's: its path, job id, user, title, copies, options[, file]
        QByteArray document;                 // what the backend read (the job's first document)
        QList<QByteArray> spooledDocuments;  // every document of the job as the server keeps it, in order

        QString title() const { return argv.value(3); }
        int copies() const { return argv.value(4).toInt(); }
        QString options() const { return argv.value(5); }
        // The options argument read with cupsParseOptions, as a filter reads it.
        QMap<QString, QString> parsedOptions() const;
    };

    PrivateCupsServer() = default;
    ~PrivateCupsServer() { stop(); }
    PrivateCupsServer(const PrivateCupsServer&) = delete;
    PrivateCupsServer& operator=(const PrivateCupsServer&) = delete;

    // Whether a private cupsd can run here; *why says why not.
    static bool canRun(QString* why);
    // Starts the server and points this process's libcups at it and at the
    // clients' private home: call it before the process uses libcups.
    bool start(QString* error);
    // Stops the server (its own process, by its pid) and waits for it to exit.
    void stop();
    // Stops the server and starts it again on the same port and configuration
    // (its queues and jobs kept).
    bool restart(QString* error);
    bool isRunning() const { return m_cupsd.state() != QProcess::NotRunning; }
    // The server's process id, for a test that stops it from another thread.
    qint64 pid() const { return m_cupsd.processId(); }

    // "127.0.0.1:PORT", for --server, lp -h and cupsSetServer.
    QString address() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
    // HOME and CUPS_SERVERROOT of clients in a private folder (no user's
    // lpoptions or client.conf is read or written).
    QStringList clientEnvironment() const;
    QString clientHome() const { return path(QStringLiteral("client")); }

    // A queue from a PPD file, enabled and accepting jobs, its device a
    // capture folder of its own.
    bool addQueue(const QString& name, const QString& ppdPath, QString* error);
    // Runs print-panels as a client of this server (--server first).
    int print(const QStringList& arguments, QString* out, QString* err) const;
    // The job id in "request id is QUEUE-N (...)", as print-panels and lp say it; 0 without one.
    static int jobId(const QString& clientOutput);
    // Runs a CUPS client program against this server ("-h ADDRESS" first).
    bool runClient(const QString& program, const QStringList& arguments, QString* output = nullptr) const;
    // Waits until the backend has finished job `id` of the queue.
    bool waitForJob(const QString& queue, int id, CapturedJob* job, int timeoutMs = 20000) const;
    // An attribute of a job as the server reports it, as text (null when unknown).
    QString jobAttribute(int jobId, const QString& name) const;
    QString errorLog() const;
    // Every request the server answered, one line each, oldest first.
    QStringList accessLog() const;

private:
    bool launch(QString* error);  // runs cupsd on the files start() wrote
    QString path(const QString& relative) const { return m_dir ? m_dir->filePath(relative) : QString(); }

    std::unique_ptr<QTemporaryDir> m_dir;
    QProcess m_cupsd;
    quint16 m_port = 0;
};
