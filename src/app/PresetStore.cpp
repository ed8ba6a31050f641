#include "PresetStore.h"

#include "CupsDestList.h"
#include "LpoptionsFile.h"
#include "PDESecrets.h"

#include <QFile>
#include <QMap>
#include <cups/cups.h>

namespace {
// Whether the server knows the queue; the error says which server was asked.
bool queueKnown(const CupsDestList& d, const QString& queue, QString* error)
{
    if (d.find(queue.toUtf8(), QByteArray()))
        return true;
    if (error)
        *error = QStringLiteral("printer %1 is not known to the CUPS server %2").arg(queue, QString::fromUtf8(cupsServer()));
    return false;
}

PrintDialogHost::OptionList jobOptionsOf(const cups_dest_t* dest)
{
    QMap<QString, QString> sorted;
    for (int i = 0; i < dest->num_options; ++i) {
        const QString key = QString::fromUtf8(dest->options[i].name);
        if (PresetStore::isPrinterAttribute(key) || PDESecrets::isSecretKey(key))
            continue;
        sorted.insert(key, QString::fromUtf8(dest->options[i].value));
    }
    PrintDialogHost::OptionList out;
    for (auto it = sorted.cbegin(); it != sorted.cend(); ++it)
        out.append({it.key(), it.value()});
    return out;
}
}

PresetStore::PresetStore(const QString& queue, const QString& server)
    : m_queue(queue.section(QLatin1Char('/'), 0, 0)), m_server(server)
{
}

QString PresetStore::lpoptionsPath()
{
    const QString user = LpoptionsFile::userPath();
    return user.isEmpty() ? LpoptionsFile::systemPath() : user;
}

bool PresetStore::isValidName(const QString& name, QString* error)
{
    auto fail = [&](const QString& why) {
        if (error)
            *error = why;
        return false;
    };
    if (name.isEmpty())
        return fail(QStringLiteral("a preset needs a name"));
    if (name.toUtf8().size() > 127)
        return fail(QStringLiteral("the preset name \"%1\" is too long (127 bytes at most)").arg(name));
    for (QChar c : name) {
        if (c.isSpace() || !c.isPrint() || c == QLatin1Char('/') || c == QLatin1Char('#'))
            return fail(QStringLiteral("the preset name \"%1\" may not hold blanks, '/', '#' or control characters").arg(name));
    }
    return true;
}

bool PresetStore::isPrinterAttribute(const QString& key)
{
    return PrintDialogHost::isPrinterAttribute(key);
}

QStringList PresetStore::names(QString* error) const
{
    return names(CupsDestList(m_server), error);
}

QStringList PresetStore::names(const CupsDestList& d, QString* error) const
{
    const QByteArray queue = m_queue.toUtf8();
    if (!queueKnown(d, m_queue, error))
        return {};
    QStringList out;
    for (int i = 0; i < d.count(); ++i) {
        const cups_dest_t& dest = d.at(i);
        if (dest.instance && qstricmp(dest.name, queue.constData()) == 0)
            out << QString::fromUtf8(dest.instance);
    }
    out.sort(Qt::CaseInsensitive);
    return out;
}

bool PresetStore::optionsOf(const QString& instance, PrintDialogHost::OptionList* options, QString* error) const
{
    const CupsDestList d(m_server);
    const QByteArray queue = m_queue.toUtf8();
    if (!queueKnown(d, m_queue, error))
        return false;
    const cups_dest_t* dest = d.find(queue, instance.toUtf8());
    if (!dest) {
        if (error)
            *error = QStringLiteral("printer %1 has no preset \"%2\"").arg(m_queue, instance);
        return false;
    }
    *options = jobOptionsOf(dest);
    return true;
}

bool PresetStore::savedOptions(PrintDialogHost::OptionList* options, QString* error) const
{
    return optionsOf(QString(), options, error);
}

bool PresetStore::load(const QString& name, PrintDialogHost::OptionList* options, QString* error) const
{
    if (!isValidName(name, error))
        return false;
    return optionsOf(name, options, error);
}

QString PresetStore::existingName(const QString& name) const
{
    for (const QString& n : names())
        if (n.compare(name, Qt::CaseInsensitive) == 0)
            return n;
    return QString();
}

bool PresetStore::change(const std::function<bool(LpoptionsFile&, QString*)>& edit, QString* error)
{
    // Without the queue (an unreachable server, a queue that went away)
    // nothing is written.
    if (!queueKnown(CupsDestList(m_server), m_queue, error))
        return false;
    LpoptionsFile file(lpoptionsPath());
    return file.read(error) && edit(file, error) && file.write(error);
}

bool PresetStore::save(const QString& name, const PrintDialogHost::OptionList& options, QString* error)
{
    if (!isValidName(name, error))
        return false;
    // A preset saved again starts afresh from the queue's options, the given ones on top.
    PrintDialogHost::OptionList start;
    if (!savedOptions(&start, error))
        return false;
    QMap<QString, QString> merged;
    for (const auto& [key, value] : start + options)
        if (!PDESecrets::isSecretKey(key) && !isPrinterAttribute(key))
            merged.insert(key, value);
    PrintDialogHost::OptionList sorted;
    for (auto it = merged.cbegin(); it != merged.cend(); ++it)
        sorted.append({it.key(), it.value()});
    return change([&](LpoptionsFile& file, QString*) {
        // "draft" replaces "Draft": CUPS tells instances apart without regard to case.
        file.setDest(m_queue, name, sorted);
        return true;
    }, error);
}

bool PresetStore::setQueueDefaults(const PrintDialogHost::OptionList& options, QString* error)
{
    PrintDialogHost::OptionList kept;
    for (const auto& [key, value] : options)
        if (!PDESecrets::isSecretKey(key) && !isPrinterAttribute(key))
            kept.append({key, value});
    return change([&](LpoptionsFile& file, QString*) {
        file.setDest(m_queue, QString(), kept);
        return true;
    }, error);
}

bool PresetStore::setDefaultDestination(const QString& name, QString* error)
{
    if (!name.isEmpty() && !isValidName(name, error))
        return false;
    return change([&](LpoptionsFile& file, QString*) {
        file.setDefault(m_queue, name);
        return true;
    }, error);
}

bool PresetStore::remove(const QString& name, QString* error)
{
    if (!isValidName(name, error))
        return false;
    return change([&](LpoptionsFile& file, QString* why) {
        if (file.remove(m_queue, name))
            return true;
        if (why)
            *why = QStringLiteral("printer %1 has no preset \"%2\"").arg(m_queue, name);
        return false;
    }, error);
}
