#pragma once
#include <QString>

// The printer the job goes to: a CUPS queue, or only a PPD file.
class PMPrinter {
public:
    PMPrinter(const QString& name, const QString& server, bool isQueue)
        : m_name(name), m_server(server), m_isQueue(isQueue) {}
    QString name() const { return m_name; }
    QString server() const { return m_server; }
    bool isQueue() const { return m_isQueue; }

private:
    QString m_name;
    QString m_server;
    bool m_isQueue;
};

// The print session: one job being set up in the dialog.
class PMPrintSession {
public:
    explicit PMPrintSession(const QString& jobTitle = QString()) : m_jobTitle(jobTitle) {}
    QString jobTitle() const { return m_jobTitle; }
    void setJobTitle(const QString& t) { m_jobTitle = t; }

private:
    QString m_jobTitle;
};
