#include "CupsDestList.h"

#include "LpoptionsFile.h"

#include <cups/cups.h>

namespace {
// The default the environment names, as libcups reads it; false when none.
bool environmentDefault(QByteArray* name)
{
    if (qEnvironmentVariableIsSet("LPDEST"))
        *name = qgetenv("LPDEST");
    else if (qEnvironmentVariableIsSet("PRINTER") && qgetenv("PRINTER") != "lp")
        *name = qgetenv("PRINTER");
    else
        return false;
    return true;
}
}

CupsDestList::CupsDestList(const CupsPrinterList& printers) : m_printers(printers)
{
    merge();
}

CupsDestList::CupsDestList(const QString& server) : CupsDestList(CupsPrinterList::all(server))
{
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

QString CupsDestList::defaultDestination() const
{
    if (!m_default.isEmpty() && m_printers.find(m_default.split('/').first()))
        return QString::fromUtf8(m_default);
    for (int i = 0; i < m_count; ++i)
        if (!m_dests[i].instance)
            return QString::fromUtf8(m_dests[i].name);
    return QString();
}

void CupsDestList::merge()
{
    const bool fromEnvironment = environmentDefault(&m_default);
    // The files' destinations, each line on top of the lines before it.
    int fileCount = 0;
    cups_dest_t* fromFiles = nullptr;
    for (const QString& path : {LpoptionsFile::systemPath(), LpoptionsFile::userPath()}) {
        LpoptionsFile file(path);
        QString unreadable;
        if (path.isEmpty() || !file.read(&unreadable))
            continue;
        for (const LpoptionsFile::Entry& entry : file.entries()) {
            const QByteArray name = entry.queue.toUtf8(), instance = entry.instance.toUtf8();
            const char* inst = instance.isEmpty() ? nullptr : instance.constData();
            // (An instance's queue is added with it, without options.)
            fileCount = cupsAddDest(name.constData(), inst, fileCount, &fromFiles);
            cups_dest_t* dest = cupsGetDest(name.constData(), inst, fileCount, fromFiles);
            if (!dest)
                continue;
            dest->num_options = cupsParseOptions(entry.options.constData(), dest->num_options, &dest->options);
            // A default from the environment wins over the files'.
            if (entry.isDefault && !fromEnvironment) {
                for (int i = 0; i < fileCount; ++i)
                    fromFiles[i].is_default = 0;
                dest->is_default = 1;
            }
        }
    }
    if (!fromEnvironment) {
        m_default.clear();
        if (const cups_dest_t* dest = cupsGetDest(nullptr, nullptr, fileCount, fromFiles))
            m_default = dest->instance ? QByteArray(dest->name) + '/' + dest->instance : QByteArray(dest->name);
        for (const CupsPrinterList::Printer& p : m_printers.printers())
            if (m_default.isEmpty() && p.isServerDefault)
                m_default = p.name;
    }
    // A queue the files name comes as the files have it (with its instances
    // and their own default mark), else as the server has it.
    for (const CupsPrinterList::Printer& p : m_printers.printers()) {
        bool named = false;
        for (int i = 0; i < fileCount; ++i) {
            if (qstricmp(fromFiles[i].name, p.name.constData()) == 0) {
                named = true;
                add(p, fromFiles[i], fromFiles[i].is_default);
            }
        }
        if (!named) {
            const cups_dest_t bare{const_cast<char*>(p.name.constData()), nullptr, 0, 0, nullptr};
            add(p, bare, qstricmp(m_default.constData(), p.name.constData()) == 0);
        }
    }
    cupsFreeDests(fileCount, fromFiles);
}

void CupsDestList::add(const CupsPrinterList::Printer& printer, const cups_dest_t& from, bool isDefault)
{
    m_count = cupsAddDest(from.name, from.instance, m_count, &m_dests);
    cups_dest_t* dest = cupsGetDest(from.name, from.instance, m_count, m_dests);
    if (!dest)
        return;
    // cupsAddDest gave an instance its queue's options as they are now: it
    // has its own.
    cupsFreeOptions(dest->num_options, dest->options);
    dest->num_options = 0;
    dest->options = nullptr;
    for (const auto& [name, value] : printer.options)
        dest->num_options = cupsAddOption(name.constData(), value.constData(), dest->num_options, &dest->options);
    for (int i = 0; i < from.num_options; ++i)
        dest->num_options = cupsAddOption(from.options[i].name, from.options[i].value, dest->num_options, &dest->options);
    dest->is_default = isDefault;
}
