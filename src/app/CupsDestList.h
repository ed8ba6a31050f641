#pragma once
#include "CupsPrinterList.h"

#include <QByteArray>
#include <QString>

struct cups_dest_s;

// The destinations this user has, as cupsGetDests2 gives them: the queues of
// one server answer merged with the lpoptions files, the system's and then
// the user's, line by line. An instance starts from its queue's options as
// they stand at the instance's first line; the default is LPDEST or PRINTER
// (other than "lp"), else the files' last Default line, else the server's
// default. One list serves everything the dialog shows of them at one time;
// the files are read again for each list, the server is not asked again.
class CupsDestList {
public:
    explicit CupsDestList(const CupsPrinterList& printers);
    // Every queue of the server (one request). server: "host:port", or empty
    // for the server already in use.
    explicit CupsDestList(const QString& server = QString());
    ~CupsDestList();
    CupsDestList(const CupsDestList&) = delete;
    CupsDestList& operator=(const CupsDestList&) = delete;

    int count() const { return m_count; }
    const cups_dest_s& at(int i) const;
    // A queue (empty instance) or one of its instances, or null.
    cups_dest_s* find(const QByteArray& name, const QByteArray& instance) const;
    // The user's default destination ("queue" or "queue/instance") where its
    // queue is on the server, else the first queue; empty without queues.
    QString defaultDestination() const;
    // The server's answer the list was made of.
    const CupsPrinterList& printers() const { return m_printers; }

private:
    void merge();
    // Adds a destination of a server printer: the server's options, then the given ones.
    void add(const CupsPrinterList::Printer& printer, const cups_dest_s& from, bool isDefault);

    CupsPrinterList m_printers;
    QByteArray m_default;  // as chosen, "queue" or "queue/instance"
    int m_count = 0;
    cups_dest_s* m_dests = nullptr;
};
