#include "PresetStore.h"

#include "PDESecrets.h"

#include <QFile>
#include <QMap>
#include <cups/cups.h>
#include <cerrno>
#include <cstring>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// The destinations libcups knows for this user (server queues merged with the
// lpoptions files), freed on leaving scope.
class Dests {
public:
    Dests() { count = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests); }
    ~Dests() { cupsFreeDests(count, dests); }
    Dests(const Dests&) = delete;
    Dests& operator=(const Dests&) = delete;

    cups_dest_t* find(const QByteArray& name, const QByteArray& instance) const
    {
        return cupsGetDest(name.constData(), instance.isEmpty() ? nullptr : instance.constData(), count, dests);
    }

    int count = 0;
    cups_dest_t* dests = nullptr;
};

// Whether the server knows the queue; the error says which server was asked.
bool queueKnown(const Dests& d, const QString& queue, QString* error)
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

// Takes every secret out of a destination's options.
void removeSecrets(cups_dest_t* dest)
{
    for (int i = dest->num_options - 1; i >= 0; --i) {
        if (PDESecrets::isSecretKey(QString::fromUtf8(dest->options[i].name))) {
            const QByteArray name = dest->options[i].name;
            dest->num_options = cupsRemoveOption(name.constData(), dest->num_options, &dest->options);
        }
    }
}

struct FileStamp {
    bool exists = false;
    ino_t inode = 0;
    struct timespec mtime = {};
    off_t size = 0;
    bool operator==(const FileStamp& o) const
    {
        return exists == o.exists && inode == o.inode && mtime.tv_sec == o.mtime.tv_sec && mtime.tv_nsec == o.mtime.tv_nsec
               && size == o.size;
    }
};

FileStamp stampOf(const QString& path)
{
    FileStamp s;
    struct stat st;
    if (::stat(QFile::encodeName(path).constData(), &st) == 0) {
        s.exists = true;
        s.inode = st.st_ino;
        s.mtime = st.st_mtim;
        s.size = st.st_size;
    }
    return s;
}

QString systemLpoptionsPath()
{
    const QString root = qEnvironmentVariable("CUPS_SERVERROOT");
    return (root.isEmpty() ? QStringLiteral("/etc/cups") : root) + QStringLiteral("/lpoptions");
}

// Writes the destinations with cupsSetDests2. The file is created readable by
// its owner only; an existing file that was written is set to 0600 after.
bool writeDests(Dests& d, QString* error)
{
    for (int i = 0; i < d.count; ++i)
        removeSecrets(d.dests + i);
    // libcups picks the file (the user's, or the system's for root on some
    // versions): whichever of the two changed is the one written.
    const QStringList candidates{PresetStore::lpoptionsPath(), systemLpoptionsPath()};
    QList<FileStamp> before;
    for (const QString& c : candidates)
        before << stampOf(c);
    const mode_t oldMask = ::umask(077);
    const int status = cupsSetDests2(CUPS_HTTP_DEFAULT, d.count, d.dests);
    ::umask(oldMask);
    bool ok = status == 0;
    for (qsizetype i = 0; i < candidates.size(); ++i) {
        if (stampOf(candidates[i]) == before[i] || !stampOf(candidates[i]).exists)
            continue;
        if (::chmod(QFile::encodeName(candidates[i]).constData(), S_IRUSR | S_IWUSR) != 0 && ok) {
            ok = false;
            if (error)
                *error = QStringLiteral("%1: cannot be made private: %2").arg(candidates[i], QString::fromLocal8Bit(strerror(errno)));
            return false;
        }
    }
    if (!ok && error)
        *error = QStringLiteral("the presets cannot be written: %1").arg(QString::fromUtf8(cupsLastErrorString()));
    return ok;
}
}

PresetStore::PresetStore(const QString& queue, const QString& server)
    : m_queue(queue.section(QLatin1Char('/'), 0, 0)), m_server(server)
{
}

void PresetStore::useServer() const
{
    if (!m_server.isEmpty())
        cupsSetServer(m_server.toUtf8().constData());
}

QString PresetStore::lpoptionsPath()
{
    // As libcups finds the home folder: $HOME, else the password database.
    QString home = qEnvironmentVariable("HOME");
    if (home.isEmpty()) {
        if (const struct passwd* pw = ::getpwuid(::getuid()))
            home = QFile::decodeName(pw->pw_dir);
    }
    if (home.isEmpty())
        return systemLpoptionsPath();
    return home + QStringLiteral("/.cups/lpoptions");
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
    useServer();
    Dests d;
    const QByteArray queue = m_queue.toUtf8();
    if (!queueKnown(d, m_queue, error))
        return {};
    QStringList out;
    for (int i = 0; i < d.count; ++i) {
        const cups_dest_t& dest = d.dests[i];
        if (dest.instance && qstricmp(dest.name, queue.constData()) == 0)
            out << QString::fromUtf8(dest.instance);
    }
    out.sort(Qt::CaseInsensitive);
    return out;
}

bool PresetStore::optionsOf(const QString& instance, PrintDialogHost::OptionList* options, QString* error) const
{
    useServer();
    Dests d;
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

bool PresetStore::save(const QString& name, const PrintDialogHost::OptionList& options, QString* error)
{
    if (!isValidName(name, error))
        return false;
    useServer();
    Dests d;
    const QByteArray queue = m_queue.toUtf8();
    const QByteArray instance = name.toUtf8();
    // Without the queue (an unreachable server, a queue that went away)
    // nothing is written: the file would lose the entries of every queue.
    if (!queueKnown(d, m_queue, error))
        return false;
    // A preset saved again starts afresh from the queue's options.
    if (d.find(queue, instance))
        d.count = cupsRemoveDest(queue.constData(), instance.constData(), d.count, &d.dests);
    d.count = cupsAddDest(queue.constData(), instance.constData(), d.count, &d.dests);
    cups_dest_t* dest = d.find(queue, instance);
    if (!dest) {
        if (error)
            *error = QStringLiteral("the preset \"%1\" cannot be made").arg(name);
        return false;
    }
    for (const auto& [key, value] : options) {
        if (PDESecrets::isSecretKey(key) || isPrinterAttribute(key))
            continue;
        dest->num_options = cupsAddOption(key.toUtf8().constData(), value.toUtf8().constData(), dest->num_options, &dest->options);
    }
    return writeDests(d, error);
}

bool PresetStore::remove(const QString& name, QString* error)
{
    if (!isValidName(name, error))
        return false;
    useServer();
    Dests d;
    const QByteArray queue = m_queue.toUtf8();
    const QByteArray instance = name.toUtf8();
    if (!queueKnown(d, m_queue, error))
        return false;
    if (!d.find(queue, instance)) {
        if (error)
            *error = QStringLiteral("printer %1 has no preset \"%2\"").arg(m_queue, name);
        return false;
    }
    d.count = cupsRemoveDest(queue.constData(), instance.constData(), d.count, &d.dests);
    return writeDests(d, error);
}
