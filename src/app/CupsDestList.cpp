#include "CupsDestList.h"

#include <cups/cups.h>

CupsDestList::CupsDestList(const QString& server)
{
    if (!server.isEmpty())
        cupsSetServer(server.toUtf8().constData());
    m_count = cupsGetDests2(CUPS_HTTP_DEFAULT, &m_dests);
}

CupsDestList::~CupsDestList()
{
    cupsFreeDests(m_count, m_dests);
}

cups_dest_t* CupsDestList::find(const QByteArray& name, const QByteArray& instance) const
{
    return cupsGetDest(name.constData(), instance.isEmpty() ? nullptr : instance.constData(), m_count, m_dests);
}

const cups_dest_t& CupsDestList::at(int i) const
{
    return m_dests[i];
}
