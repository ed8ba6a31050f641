#include "LpoptionsFile.h"

#include "PDESecrets.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cups/cups.h>
#include <cerrno>
#include <cstring>
#include <pwd.h>
#include <unistd.h>

namespace {
// libcups reads lpoptions lines into a buffer of this size: a longer line
// would be cut short.
constexpr int kMaxLine = 8191;

struct Parsed {
    QByteArray keyword;  // "Dest" or "Default", else empty
    QString queue, instance;
    QByteArray options;  // the rest of the line
};

Parsed parse(const QByteArray& line)
{
    Parsed p;
    const QByteArray text = line.trimmed();
    const qsizetype space = text.indexOf(' ') < 0 ? text.indexOf('\t') : text.indexOf(' ');
    const QByteArray keyword = space < 0 ? text : text.left(space);
    if (qstricmp(keyword.constData(), "Dest") != 0 && qstricmp(keyword.constData(), "Default") != 0)
        return p;
    const QByteArray rest = space < 0 ? QByteArray() : text.mid(space + 1).trimmed();
    qsizetype end = 0;
    while (end < rest.size() && rest[end] != ' ' && rest[end] != '\t')
        ++end;
    const QString name = QString::fromUtf8(rest.left(end));
    if (name.isEmpty())
        return p;
    p.keyword = keyword;
    p.queue = name.section(QLatin1Char('/'), 0, 0);
    p.instance = name.section(QLatin1Char('/'), 1);
    p.options = rest.mid(end).trimmed();
    return p;
}

// A value as libcups reads it back: quoted where it holds blanks, quotes,
// backslashes, braces or '#' (which would start a comment), with those escaped.
QByteArray quoted(const QByteArray& value)
{
    static const QByteArray special(" \t\"'\\{}#");
    bool plain = !value.isEmpty();
    for (char c : value)
        plain = plain && !special.contains(c);
    if (plain)
        return value;
    QByteArray out("\"");
    for (char c : value) {
        if (c == '"' || c == '\'' || c == '\\' || c == '#')
            out += '\\';
        out += c;
    }
    return out + '"';
}

bool sameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}
}

QString LpoptionsFile::systemPath()
{
    const QString root = qEnvironmentVariable("CUPS_SERVERROOT");
    return (root.isEmpty() ? QStringLiteral("/etc/cups") : root) + QStringLiteral("/lpoptions");
}

QString LpoptionsFile::userPath()
{
    // As libcups finds the home folder: $HOME, else the password database.
    QString home = qEnvironmentVariable("HOME");
    if (home.isEmpty()) {
        if (const struct passwd* pw = ::getpwuid(::getuid()))
            home = QFile::decodeName(pw->pw_dir);
    }
    return home.isEmpty() ? QString() : home + QStringLiteral("/.cups/lpoptions");
}

QList<LpoptionsFile::Entry> LpoptionsFile::entries() const
{
    QList<Entry> out;
    for (const QByteArray& line : m_lines) {
        const Parsed p = parse(line);
        if (p.keyword.isEmpty())
            continue;
        // libcups reads the line up to its first '#', or takes the backslash
        // off when that '#' is escaped.
        QByteArray options = p.options;
        if (const qsizetype hash = options.indexOf('#'); hash > 0 && options[hash - 1] == '\\')
            options.remove(hash - 1, 1);
        else if (hash >= 0)
            options.truncate(hash);
        out.append({qstricmp(p.keyword.constData(), "Default") == 0, p.queue, p.instance, options.trimmed()});
    }
    return out;
}

bool LpoptionsFile::read(QString* error)
{
    m_lines.clear();
    QFile file(m_path);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("%1 cannot be read: %2").arg(m_path, file.errorString());
        return false;
    }
    m_lines = file.readAll().split('\n');
    if (!m_lines.isEmpty() && m_lines.last().isEmpty())
        m_lines.removeLast();
    return true;
}

int LpoptionsFile::find(const QString& queue, const QString& instance) const
{
    for (int i = 0; i < m_lines.size(); ++i) {
        const Parsed p = parse(m_lines[i]);
        if (!p.keyword.isEmpty() && sameName(p.queue, queue) && sameName(p.instance, instance))
            return i;
    }
    return -1;
}

bool LpoptionsFile::contains(const QString& queue, const QString& instance) const
{
    return find(queue, instance) >= 0;
}

QByteArray LpoptionsFile::lineOf(const QByteArray& keyword, const QString& queue, const QString& instance, const OptionList& options)
{
    QByteArray line = keyword + ' ' + queue.toUtf8();
    if (!instance.isEmpty())
        line += '/' + instance.toUtf8();
    for (const auto& [key, value] : options) {
        if (!PDESecrets::isSecretKey(key))
            line += ' ' + key.toUtf8() + '=' + quoted(value.toUtf8());
    }
    return line;
}

void LpoptionsFile::setDest(const QString& queue, const QString& instance, const OptionList& options)
{
    const int i = find(queue, instance);
    const bool isDefault = i >= 0 && qstricmp(parse(m_lines[i]).keyword.constData(), "Default") == 0;
    const QByteArray line = lineOf(isDefault ? "Default" : "Dest", queue, instance, options);
    if (i >= 0)
        m_lines[i] = line;
    else
        m_lines.append(line);
}

bool LpoptionsFile::remove(const QString& queue, const QString& instance)
{
    const int i = find(queue, instance);
    if (i < 0)
        return false;
    m_lines.removeAt(i);
    return true;
}

void LpoptionsFile::setDefault(const QString& queue, const QString& instance)
{
    for (QByteArray& line : m_lines) {
        const Parsed p = parse(line);
        if (qstricmp(p.keyword.constData(), "Default") == 0)
            line = "Dest" + line.trimmed().mid(p.keyword.size());
    }
    const int i = find(queue, instance);
    if (i >= 0)
        m_lines[i] = "Default" + m_lines[i].trimmed().mid(parse(m_lines[i]).keyword.size());
    else
        m_lines.append(lineOf("Default", queue, instance, {}));
}

bool LpoptionsFile::write(QString* error)
{
    QByteArray bytes;
    for (const QByteArray& line : std::as_const(m_lines)) {
        QByteArray out = line;
        const Parsed p = parse(line);
        if (!p.keyword.isEmpty()) {
            // A secret some other program left in the file goes.
            cups_option_t* options = nullptr;
            const int count = cupsParseOptions(p.options.constData(), 0, &options);
            OptionList kept;
            bool secret = false;
            for (int i = 0; i < count; ++i) {
                const QString key = QString::fromUtf8(options[i].name);
                secret = secret || PDESecrets::isSecretKey(key);
                kept.append({key, QString::fromUtf8(options[i].value)});
            }
            cupsFreeOptions(count, options);
            if (secret)
                out = lineOf(p.keyword, p.queue, p.instance, kept);
        }
        if (out.size() > kMaxLine) {
            if (error)
                *error = QStringLiteral("the settings of %1 are too long for %2 (%3 bytes at most)").arg(p.queue, m_path).arg(kMaxLine);
            return false;
        }
        bytes += out + '\n';
    }
    const QString dir = QFileInfo(m_path).absolutePath();
    if (!QDir().mkpath(dir)) {
        if (error)
            *error = QStringLiteral("the folder %1 cannot be made").arg(dir);
        return false;
    }
    // Unbuffered, so that a short write (a full disk) is seen here: a
    // buffered one can be flushed short without an error, and committed.
    QSaveFile file(m_path);
    const bool ok = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
                    && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) && file.write(bytes) == bytes.size();
    if (ok && file.commit())
        return true;
    // A short write leaves no error on the file: the system's says why.
    const QString why = file.error() != QFileDevice::NoError ? file.errorString() : QString::fromLocal8Bit(strerror(errno));
    if (error)
        *error = QStringLiteral("%1 cannot be written: %2").arg(m_path, why);
    file.cancelWriting();
    return false;
}
