#pragma once
#include <QByteArray>
#include <QString>

struct cups_dest_s;

// The destinations libcups knows for this user: the server's queues merged
// with the lpoptions files, from one cupsGetDests2 request, freed with the
// list. One list serves everything the dialog shows of them at one time.
class CupsDestList {
public:
    // server: "host:port", or empty for the server already in use.
    explicit CupsDestList(const QString& server = QString());
    ~CupsDestList();
    CupsDestList(const CupsDestList&) = delete;
    CupsDestList& operator=(const CupsDestList&) = delete;

    int count() const { return m_count; }
    const cups_dest_s& at(int i) const;
    // A queue (empty instance) or one of its instances, or null.
    cups_dest_s* find(const QByteArray& name, const QByteArray& instance) const;

private:
    int m_count = 0;
    cups_dest_s* m_dests = nullptr;
};
