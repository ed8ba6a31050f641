#include "LpCommand.h"

#include "PDESecrets.h"

namespace {
// Characters that mean nothing special to lp -o's option parser nor to a
// shell, anywhere in a word.
bool isPlain(QChar c)
{
    if (c.unicode() >= 0x80)
        return false;
    const char a = char(c.unicode());
    return (a >= 'a' && a <= 'z') || (a >= 'A' && a <= 'Z') || (a >= '0' && a <= '9') || a == '.' || a == '_' || a == '-'
           || a == '/' || a == ':' || a == '@' || a == '%' || a == '+' || a == ',';
}

bool isPlainWord(const QString& s, bool allowEquals)
{
    if (s.isEmpty())
        return false;
    for (QChar c : s)
        if (!isPlain(c) && !(allowEquals && c == QLatin1Char('=')))
            return false;
    return true;
}
}

LpCommand::LpCommand(const QString& queue, const PrintDialogHost::OptionList& options, const QStringList& files)
    : m_queue(queue), m_options(options), m_files(files)
{
}

QString LpCommand::optionArgument(const QString& key, const QString& value)
{
    if (isPlainWord(value, false))
        return key + QLatin1Char('=') + value;
    QString quoted = key + QStringLiteral("=\"");
    for (QChar c : value) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\'') || c == QLatin1Char('\\'))
            quoted += QLatin1Char('\\');
        quoted += c;
    }
    quoted += QLatin1Char('"');
    return quoted;
}

QString LpCommand::shellQuote(const QString& word)
{
    if (isPlainWord(word, true))
        return word;
    QString quoted = QStringLiteral("'");
    for (QChar c : word) {
        if (c == QLatin1Char('\''))
            quoted += QStringLiteral("'\\''");
        else
            quoted += c;
    }
    quoted += QLatin1Char('\'');
    return quoted;
}

bool LpCommand::hidesSecrets() const
{
    for (const auto& option : m_options)
        if (PDESecrets::isSecretKey(option.first) && !option.second.isEmpty())
            return true;
    return false;
}

QStringList LpCommand::arguments() const
{
    QStringList args{QStringLiteral("-d"), m_queue};
    for (const auto& [key, value] : m_options) {
        args << QStringLiteral("-o")
             << optionArgument(key, PDESecrets::isSecretKey(key) && !value.isEmpty() ? hiddenValue() : value);  // an empty one hides nothing
    }
    // A document whose name starts with '-' would read as an option.
    bool needsEnd = false;
    for (const QString& f : m_files)
        needsEnd = needsEnd || f.startsWith(QLatin1Char('-'));
    if (needsEnd)
        args << QStringLiteral("--");
    args += m_files;
    return args;
}

QString LpCommand::commandLine() const
{
    QStringList words{QStringLiteral("lp")};
    for (const QString& a : arguments())
        words << shellQuote(a);
    return words.join(QLatin1Char(' '));
}
