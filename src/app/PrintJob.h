#pragma once
#include "PrintDialogHost.h"

#include <QString>
#include <QStringList>

// One print job on a CUPS queue: every file a document of the same job, the
// job's options sent as they are (the host's marked PPD choices and print
// settings). The job is created with cupsCreateJob and each document sent
// with cupsStartDocument / cupsWriteRequestData / cupsFinishDocument.
class PrintJob {
public:
    enum class Status {
        NotSent,   // submit() has not run
        Sent,      // the server accepted every document
        BadInput,  // a document is missing or cannot be read; nothing was sent
        CupsError  // the server refused or failed; nothing is left queued
    };

    // queue: "name" or "name/instance" (the instance's options are expected
    // in the options already). server: "host:port", or empty for the user's
    // default server, as for PrintDialogHost::openPrinter.
    explicit PrintJob(const QString& queue, const QString& server = QString());

    void setFiles(const QStringList& files) { m_files = files; }
    QStringList files() const { return m_files; }
    void setOptions(const PrintDialogHost::OptionList& options) { m_options = options; }
    PrintDialogHost::OptionList options() const { return m_options; }
    // The job's name; by default the first document's file name.
    void setTitle(const QString& title) { m_title = title; }
    QString title() const;

    // Whether every document exists, can be read and is not empty (nothing
    // is sent).
    bool checkDocuments(QString* error) const;
    // Sends the job; true when every document was accepted.
    bool submit();

    Status status() const { return m_status; }
    int jobId() const { return m_jobId; }
    // One line saying what went wrong (empty when nothing did).
    QString errorString() const { return m_error; }

    // The CUPS document format for a file: its type (by content and name) or
    // the nearest type it is a kind of that is in `supported`; when none is,
    // "application/octet-stream" (the server then types the document itself).
    // An empty `supported` list accepts every type.
    static QString documentFormat(const QString& path, const QStringList& supported);
    static QString autoTypeFormat() { return QStringLiteral("application/octet-stream"); }

private:
    bool fail(Status status, const QString& error);

    QString m_queue;
    QString m_server;
    QString m_title;
    QStringList m_files;
    PrintDialogHost::OptionList m_options;
    Status m_status = Status::NotSent;
    int m_jobId = 0;
    QString m_error;
};
