#include "PrintDialogHost.h"

#include "PDEPanel.h"

#include <QFile>
#include <QFileInfo>
#include <QMetaObject>
#include <QPointer>
#include <QRegularExpression>
#include <climits>
#include <cups/cups.h>
#include <cups/ppd.h>
#include <algorithm>

namespace {
bool isInstallableGroup(const ppd_group_t* g)
{
    return g && qstricmp(g->name, "InstallableOptions") == 0;
}

// A PPD option whose value is one of its choices (not free text).
ppd_option_t* choiceOption(ppd_file_t* ppd, const QString& key)
{
    ppd_option_t* o = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
    return o && o->num_choices > 0 ? o : nullptr;
}

bool hasTranslationsForUser(ppd_file_t* ppd)
{
    const ppd_attr_t* languages = ppdFindAttr(ppd, "cupsLanguages", nullptr);
    if (!languages || !languages->value)
        return false;
    cups_lang_t* lang = cupsLangDefault();
    const QString user = QString::fromUtf8(lang ? lang->language : "C");
    const QString base = user.section(QLatin1Char('_'), 0, 0);
    const QStringList offered = QString::fromUtf8(languages->value).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return offered.contains(user) || offered.contains(base);
}

bool isAcceptedChoice(ppd_option_t* o, const QByteArray& choice)
{
    if (ppdFindChoice(o, choice.constData()))
        return true;
    // A custom value ("Custom.10x12cm", "{A=1}") is accepted where the option offers one.
    return (choice.startsWith("Custom.") || choice.startsWith('{')) && ppdFindChoice(o, "Custom");
}
}

PrintDialogHost::~PrintDialogHost()
{
    if (m_ppd)
        ppdClose(m_ppd);
    if (!m_tempPPD.isEmpty())
        QFile::remove(m_tempPPD);
}

bool PrintDialogHost::openPPD(const QString& path, QString* error)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        *error = QStringLiteral("%1: no such file").arg(path);
        return false;
    }
    if (!info.isFile() || !info.isReadable()) {
        *error = QStringLiteral("%1: cannot be read").arg(path);
        return false;
    }
    m_ppd = ppdOpenFile(QFile::encodeName(path).constData());
    if (!m_ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        *error = QStringLiteral("%1: not a valid PPD file (%2 on line %3)")
                     .arg(path, QString::fromUtf8(ppdErrorString(status)))
                     .arg(line);
        return false;
    }
    m_ppdPath = path;
    // libcups keeps only the translations for the user's language; when the
    // PPD offers that language, its texts are replaced by the translations.
    if (hasTranslationsForUser(m_ppd))
        ppdLocalize(m_ppd);
    ppdMarkDefaults(m_ppd);
    resolveDefaults();
    return true;
}

void PrintDialogHost::resolveDefaults()
{
    // Defaults that conflict (a duplex default without the duplex unit) are
    // resolved as any later choice would be.
    if (ppdConflicts(m_ppd) == 0)
        return;
    const OptionList before = markedChoices();
    int count = 0;
    cups_option_t* resolved = nullptr;
    if (cupsResolveConflicts(m_ppd, nullptr, nullptr, &count, &resolved)) {
        for (int i = 0; i < count; ++i)
            ppdMarkOption(m_ppd, resolved[i].name, resolved[i].value);
    }
    cupsFreeOptions(count, resolved);
    OptionList changes;
    for (const auto& mark : markedChoices())
        if (!before.contains(mark))
            changes.append(mark);
    if (!changes.isEmpty())
        reportChanges(changes);
}

std::unique_ptr<PrintDialogHost> PrintDialogHost::openPPDFile(const QString& path, QString* error)
{
    std::unique_ptr<PrintDialogHost> host(new PrintDialogHost);
    if (!host->openPPD(path, error))
        return nullptr;
    host->m_printer = std::make_unique<PMPrinter>(QFileInfo(path).completeBaseName(), QString(), false);
    return host;
}

std::unique_ptr<PrintDialogHost> PrintDialogHost::openPrinter(const QString& queue, const QString& server, QString* error,
                                                             QStringList* warnings)
{
    if (!server.isEmpty())
        cupsSetServer(server.toUtf8().constData());
    const QString name = queue.section(QLatin1Char('/'), 0, 0);
    const QString instance = queue.section(QLatin1Char('/'), 1);
    cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.toUtf8().constData(),
                                         instance.isEmpty() ? nullptr : instance.toUtf8().constData());
    if (!dest) {
        const QString unreachable = unreachableServer(server);
        *error = unreachable.isEmpty() ? QStringLiteral("printer %1: %2").arg(queue, QString::fromUtf8(cupsLastErrorString()))
                                       : unreachable;
        return nullptr;
    }
    char ppdPath[1024] = "";
    time_t modtime = 0;
    const http_status_t status = cupsGetPPD3(CUPS_HTTP_DEFAULT, name.toUtf8().constData(), &modtime, ppdPath, sizeof ppdPath);
    std::unique_ptr<PrintDialogHost> host;
    if (status != HTTP_STATUS_OK)
        *error = QStringLiteral("printer %1 has no PPD: %2").arg(queue, QString::fromUtf8(cupsLastErrorString()));
    else
        host = openQueue(queue, server, QFile::decodeName(ppdPath), dest->num_options, dest->options, error, warnings);
    cupsFreeDests(1, dest);
    return host;
}

std::unique_ptr<PrintDialogHost> PrintDialogHost::openQueue(const QString& queue, const QString& server, const QString& ppdFile,
                                                           int optionCount, const cups_option_t* options, QString* error,
                                                           QStringList* warnings)
{
    std::unique_ptr<PrintDialogHost> host(new PrintDialogHost);
    host->m_tempPPD = ppdFile;
    if (!host->openPPD(host->m_tempPPD, error))
        return nullptr;
    host->m_printer = std::make_unique<PMPrinter>(queue, server, true);
    // The queue's saved options (an instance's on top of them), each through
    // approval; what cannot be used is told and left out.
    QStringList skipped;
    host->applyParsed(optionCount, options, nullptr, &skipped);
    if (warnings)
        *warnings = skipped;
    return host;
}

QString PrintDialogHost::unreachableServer(const QString& server)
{
    if (!server.isEmpty())
        cupsSetServer(server.toUtf8().constData());
    const QByteArray host = cupsServer();
    const int port = ippPort();
    http_t* http = httpConnect2(host.constData(), port, nullptr, AF_UNSPEC, cupsEncryption(), 1, 5000, nullptr);
    if (http) {
        httpClose(http);
        return QString();
    }
    const QString where = host.startsWith('/') ? QString::fromUtf8(host) : QStringLiteral("%1:%2").arg(QString::fromUtf8(host)).arg(port);
    return QStringLiteral("the CUPS server at %1 cannot be reached: is the scheduler running?").arg(where);
}

bool PrintDialogHost::isPrinterAttribute(const QString& key)
{
    // What cupsGetDests2 reports about the printer as options (see its
    // documentation), plus what CUPS 2.x reports beside it.
    static const QStringList names{
        QStringLiteral("auth-info-required"),
        QStringLiteral("device-uri"),
        QStringLiteral("printer-commands"),
        QStringLiteral("printer-info"),
        QStringLiteral("printer-is-accepting-jobs"),
        QStringLiteral("printer-is-shared"),
        QStringLiteral("printer-is-temporary"),
        QStringLiteral("printer-location"),
        QStringLiteral("printer-make-and-model"),
        QStringLiteral("printer-mandatory-job-attributes"),
        QStringLiteral("printer-state"),
        QStringLiteral("printer-state-change-time"),
        QStringLiteral("printer-state-reasons"),
        QStringLiteral("printer-type"),
        QStringLiteral("printer-uri-supported"),
    };
    return key.startsWith(QLatin1String("marker-")) || names.contains(key);
}

bool PrintDialogHost::validateOptionString(const QString& options, QString* error)
{
    QString ignored;
    QString* why = error ? error : &ignored;
    why->clear();
    splitOptionString(options, why);
    return why->isEmpty();
}

QStringList PrintDialogHost::splitOptionString(const QString& options, QString* error)
{
    QStringList tokens;
    // The grammar of `lp -o`: names up to '=' or a blank, values bare, quoted
    // with ' or ", or in braces; a backslash escapes the next character.
    const QString s = options;
    qsizetype i = 0;
    const qsizetype n = s.size();
    auto fail = [&](const QString& why) {
        *error = QStringLiteral("malformed option \"%1\": %2").arg(options, why);
        return QStringList();
    };
    while (i < n) {
        while (i < n && s[i].isSpace())
            ++i;
        if (i >= n)
            break;
        const qsizetype nameStart = i;
        while (i < n && s[i] != QLatin1Char('=') && !s[i].isSpace()) {
            if (s[i].category() == QChar::Other_Control)
                return fail(QStringLiteral("control character in an option name"));
            ++i;
        }
        if (i == nameStart)
            return fail(QStringLiteral("an option has no name"));
        if (i >= n || s[i] != QLatin1Char('=')) {
            tokens.append(s.mid(nameStart, i - nameStart));  // a bare name, as in "-o landscape"
            continue;
        }
        ++i;
        int braces = 0;
        QChar quote;
        while (i < n) {
            const QChar c = s[i];
            if (c == QLatin1Char('\\')) {
                if (i + 1 >= n)
                    return fail(QStringLiteral("a backslash ends the text"));
                i += 2;
                continue;
            }
            if (!quote.isNull()) {
                if (c == quote)
                    quote = QChar();
            } else if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
                quote = c;
            } else if (c == QLatin1Char('{')) {
                ++braces;
            } else if (c == QLatin1Char('}')) {
                if (--braces < 0)
                    return fail(QStringLiteral("'}' without '{'"));
            } else if (c.isSpace() && braces == 0) {
                break;
            }
            ++i;
        }
        if (!quote.isNull())
            return fail(QStringLiteral("unclosed quote %1").arg(quote));
        if (braces > 0)
            return fail(QStringLiteral("unclosed '{'"));
        tokens.append(s.mid(nameStart, i - nameStart));
    }
    return tokens;
}

bool PrintDialogHost::checkJobValue(const QString& key, const QString& value, QString* error)
{
    auto fail = [&](const QString& why) {
        if (error)
            *error = QStringLiteral("%1=%2: %3").arg(key, value, why);
        return false;
    };
    bool ok = false;
    if (key == QLatin1String("copies")) {
        const int n = value.toInt(&ok);
        if (!ok || n < 1 || n > 9999)
            return fail(QStringLiteral("copies must be a whole number from 1 to 9999"));
    } else if (key == QLatin1String("number-up")) {
        static const QList<int> allowed{1, 2, 4, 6, 9, 16};
        if (!allowed.contains(value.toInt(&ok)) || !ok)
            return fail(QStringLiteral("pages per sheet must be 1, 2, 4, 6, 9 or 16"));
    } else if (key == QLatin1String("orientation-requested")) {
        const int n = value.toInt(&ok);
        if (!ok || n < 3 || n > 6)
            return fail(QStringLiteral("the orientation must be 3 (portrait), 4 (landscape), 5 (reverse landscape) or 6 (reverse portrait)"));
    } else if (key == QLatin1String("page-ranges")) {
        // "1-3,5,8-": pages from 1, each range in ascending order.
        static const QRegularExpression range(QStringLiteral("^\\s*(\\d+)?\\s*(-\\s*(\\d+)?)?\\s*$"));
        const QStringList parts = value.split(QLatin1Char(','));
        for (const QString& part : parts) {
            const QRegularExpressionMatch m = range.match(part);
            if (!m.hasMatch() || (m.captured(1).isEmpty() && m.captured(3).isEmpty()))
                return fail(QStringLiteral("a page range is written as 1-3,5,8-"));
            const qlonglong first = m.captured(1).isEmpty() ? 1 : m.captured(1).toLongLong();
            const qlonglong last = m.captured(3).isEmpty() ? (m.captured(2).isEmpty() ? first : INT_MAX) : m.captured(3).toLongLong();
            if (first < 1 || last < first || last > INT_MAX)
                return fail(QStringLiteral("pages are numbered from 1, and a range goes from its first page to a later one"));
        }
    }
    return true;
}

bool PrintDialogHost::applyOptions(const QString& options, QString* error)
{
    QString ignored;
    QString* why = error ? error : &ignored;
    why->clear();
    const QStringList tokens = splitOptionString(options, why);
    if (!why->isEmpty())
        return false;
    // Nothing of the list is kept when one option cannot be used.
    const OptionList marks = markedChoices();
    const QList<PMPrintSettings::Entry> settings = m_settings.entries();
    bool applied = true;
    for (const QString& token : tokens) {
        // One at a time: a later option wins over an earlier one.
        cups_option_t* parsed = nullptr;
        const int count = cupsParseOptions(token.toUtf8().constData(), 0, &parsed);
        applied = applyParsed(count, parsed, why, nullptr);
        cupsFreeOptions(count, parsed);
        if (!applied)
            break;
    }
    if (!applied) {
        remark(marks);
        m_settings = PMPrintSettings();
        for (const auto& [key, value] : settings)
            m_settings.setValue(key, value);
    }
    return applied;
}

bool PrintDialogHost::applyParsed(int count, const cups_option_t* options, QString* error, QStringList* warnings)
{
    // An option that cannot be used stops the list (error) or is skipped and
    // told (warnings).
    auto refuse = [&](const QString& why) {
        if (warnings) {
            warnings->append(why);
            return true;
        }
        if (error)
            *error = why;
        return false;
    };
    for (int i = 0; i < count; ++i) {
        const QString name = QString::fromUtf8(options[i].name);
        const QString value = QString::fromUtf8(options[i].value);
        if (isPrinterAttribute(name))
            continue;
        QString why;
        if (!checkJobValue(name, value, &why)) {
            if (!refuse(why))
                return false;
            continue;
        }
        OptionList choices;
        bool mapsOntoPPD = false;
        if (ppd_option_t* o = choiceOption(m_ppd, name)) {
            if (!isAcceptedChoice(o, options[i].value)) {
                QStringList offered;
                for (int c = 0; c < o->num_choices; ++c)
                    offered << QString::fromUtf8(o->choices[c].choice);
                if (!refuse(QStringLiteral("option %1 has no choice \"%2\" (choices: %3)").arg(name, value, offered.join(QStringLiteral(", ")))))
                    return false;
                continue;
            }
            choices.append({name, value});
        } else {
            choices = marksForAttribute(name, value, &mapsOntoPPD);
            if (choices.isEmpty() && !mapsOntoPPD) {
                m_settings.setValue(name, value);
                continue;
            }
            // The attribute is now the marks it stands for: sending it beside
            // them could only contradict a later choice.
            m_settings.remove(name);
        }
        for (const auto& [key, choice] : std::as_const(choices)) {
            OptionList changes;
            if (!approveChoice(key, choice, &changes, &why)) {
                if (!refuse(why))
                    return false;
                break;
            }
            if (!changes.isEmpty())
                reportChanges(changes);
        }
    }
    return true;
}

PrintDialogHost::OptionList PrintDialogHost::marksForAttribute(const QString& name, const QString& value, bool* mapsOntoPPD)
{
    // The attributes libcups maps onto PPD options, and the options each can set.
    static const QMap<QString, QStringList> mapped{
        {QStringLiteral("media"), {QStringLiteral("PageSize"), QStringLiteral("PageRegion"), QStringLiteral("InputSlot"), QStringLiteral("MediaType")}},
        {QStringLiteral("sides"), {QStringLiteral("Duplex"), QStringLiteral("EFDuplex"), QStringLiteral("EFDuplexing"), QStringLiteral("KD03Duplex"), QStringLiteral("JCLDuplex")}},
        {QStringLiteral("print-color-mode"), {QStringLiteral("ColorModel")}},
        {QStringLiteral("output-bin"), {QStringLiteral("OutputBin")}},
        {QStringLiteral("print-quality"), {QStringLiteral("cupsPrintQuality")}},
    };
    *mapsOntoPPD = false;
    OptionList marks;
    const auto it = mapped.constFind(name);
    if (!m_ppd || it == mapped.cend())
        return marks;
    for (const QString& key : *it)
        if (choiceOption(m_ppd, key))
            *mapsOntoPPD = true;
    // libcups knows the mapping: mark a trial, read what changed, put the marks back.
    const OptionList before = markedChoices();
    cups_option_t option{const_cast<char*>(""), const_cast<char*>("")};
    const QByteArray n = name.toUtf8(), v = value.toUtf8();
    option.name = const_cast<char*>(n.constData());
    option.value = const_cast<char*>(v.constData());
    cupsMarkOptions(m_ppd, 1, &option);
    for (const auto& mark : markedChoices())
        if (!before.contains(mark))
            marks.append(mark);
    remark(before);
    if (!marks.isEmpty())
        *mapsOntoPPD = true;
    return marks;
}

bool PrintDialogHost::respondsToOperation(Operation op) const
{
    switch (op) {
    case Operation::PrintSession:
    case Operation::PrintSettings:
    case Operation::PageFormat:
    case Operation::PMPrinter:
    case Operation::WillChangePPDOptionKeyValue:
    case Operation::PanelViewDidResize:
        return true;
    case Operation::PPDFile:
        return m_ppd != nullptr;
    }
    return false;
}

PrintDialogHost::OptionList PrintDialogHost::markedChoices() const
{
    OptionList marks;
    if (!m_ppd)
        return marks;
    for (int g = 0; g < m_ppd->num_groups; ++g) {
        const ppd_group_t* group = m_ppd->groups + g;
        auto addOptions = [&](const ppd_option_t* options, int num) {
            for (int o = 0; o < num; ++o) {
                for (int c = 0; c < options[o].num_choices; ++c) {
                    if (options[o].choices[c].marked) {
                        marks.append({QString::fromUtf8(options[o].keyword), QString::fromUtf8(options[o].choices[c].choice)});
                        break;
                    }
                }
            }
        };
        addOptions(group->options, group->num_options);
        for (int s = 0; s < group->num_subgroups; ++s)
            addOptions(group->subgroups[s].options, group->subgroups[s].num_options);
    }
    return marks;
}

void PrintDialogHost::remark(const OptionList& marks)
{
    for (const auto& [key, choice] : marks) {
        // Each mark runs libcups' conflict check over every constraint of the
        // PPD: only choices that are not marked now are marked again.
        const QByteArray k = key.toUtf8(), c = choice.toUtf8();
        const ppd_choice_t* marked = ppdFindMarkedChoice(m_ppd, k.constData());
        if (!marked || c != marked->choice)
            ppdMarkOption(m_ppd, k.constData(), c.constData());
    }
}

bool PrintDialogHost::willChangePPDOptionKeyValue(const QString& option, const QString& choice)
{
    OptionList changes;
    if (!approveChoice(option, choice, &changes, nullptr))
        return false;
    if (!changes.isEmpty())
        reportChanges(changes);
    return true;
}

bool PrintDialogHost::approveChoice(const QString& option, const QString& choice, OptionList* changes, QString* error)
{
    ppd_option_t* o = choiceOption(m_ppd, option);
    if (!o)
        return true;  // free text, or a key the PPD does not know: nothing to mark
    const QByteArray key = option.toUtf8();
    const QByteArray value = choice.toUtf8();
    if (!isAcceptedChoice(o, value)) {
        if (error)
            *error = QStringLiteral("option %1 has no choice \"%2\"").arg(option, choice);
        return false;
    }
    // Approving the choice that is already marked changes nothing.
    if (const ppd_choice_t* marked = ppdFindMarkedChoice(m_ppd, key.constData()); marked && value == marked->choice)
        return true;
    const OptionList before = markedChoices();
    ppdMarkOption(m_ppd, key.constData(), value.constData());
    int count = 0;
    cups_option_t* resolved = nullptr;
    if (!cupsResolveConflicts(m_ppd, key.constData(), value.constData(), &count, &resolved)) {
        cupsFreeOptions(count, resolved);
        if (error) {
            // Name what it conflicts with, as the user reads it.
            QStringList with;
            cups_option_t* conflicts = nullptr;
            const int n = cupsGetConflicts(m_ppd, key.constData(), value.constData(), &conflicts);
            for (int i = 0; i < n; ++i)
                if (qstrcmp(conflicts[i].name, key.constData()) != 0)
                    with << QStringLiteral("%1=%2").arg(QString::fromUtf8(conflicts[i].name), QString::fromUtf8(conflicts[i].value));
            cupsFreeOptions(n, conflicts);
            *error = QStringLiteral("%1=%2 conflicts with %3, which cannot be changed to resolve it")
                         .arg(option, choice, with.isEmpty() ? QStringLiteral("the installed options") : with.join(QStringLiteral(", ")));
        }
        remark(before);
        return false;
    }
    for (int i = 0; i < count; ++i)
        ppdMarkOption(m_ppd, resolved[i].name, resolved[i].value);
    cupsFreeOptions(count, resolved);

    for (const auto& mark : markedChoices()) {
        if (mark.first != option && !before.contains(mark))
            changes->append(mark);
    }
    return true;
}

QString PrintDialogHost::optionText(ppd_file_t* ppd, const QString& key)
{
    const ppd_option_t* o = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
    return o && o->text[0] ? QString::fromUtf8(o->text) : key;
}

QString PrintDialogHost::choiceText(ppd_file_t* ppd, const QString& key, const QString& choice)
{
    ppd_option_t* o = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
    const ppd_choice_t* c = o ? ppdFindChoice(o, choice.toUtf8().constData()) : nullptr;
    return c && c->text[0] ? QString::fromUtf8(c->text) : choice;
}

QString PrintDialogHost::describeChanges(const OptionList& changes) const
{
    QStringList parts;
    for (const auto& [key, choice] : changes)
        parts.append(QStringLiteral("%1 set to %2").arg(optionText(m_ppd, key), choiceText(m_ppd, key, choice)));
    return parts.join(QStringLiteral(", "));
}

void PrintDialogHost::reportChanges(const OptionList& changes)
{
    // Told after the approval has returned, so the option that asked is stored first.
    QPointer<PrintDialogHost> self(this);
    QMetaObject::invokeMethod(
        this,
        [self, changes] {
            if (!self)
                return;
            // Only what the PPD still holds: a later choice may have changed
            // an option again before this report was delivered.
            OptionList current;
            for (const auto& change : changes) {
                const ppd_choice_t* marked = ppdFindMarkedChoice(self->m_ppd, change.first.toUtf8().constData());
                if (marked && change.second == QString::fromUtf8(marked->choice))
                    current.append(change);
            }
            if (current.isEmpty())
                return;
            for (PDEPanel* panel : self->m_panels)
                for (const auto& [key, choice] : current)
                    panel->PPDOptionKeyValueDidChange(key, choice);
            emit self->optionsChangedByResolution(current);
        },
        Qt::QueuedConnection);
}

PrintDialogHost::OptionList PrintDialogHost::jobOptions() const
{
    QMap<QString, QString> all;
    if (m_ppd) {
        for (int g = 0; g < m_ppd->num_groups; ++g) {
            const ppd_group_t* group = m_ppd->groups + g;
            if (isInstallableGroup(group))
                continue;
            auto add = [&](const ppd_option_t* options, int num) {
                for (int o = 0; o < num; ++o)
                    for (int c = 0; c < options[o].num_choices; ++c)
                        if (options[o].choices[c].marked)
                            all.insert(QString::fromUtf8(options[o].keyword), QString::fromUtf8(options[o].choices[c].choice));
            };
            add(group->options, group->num_options);
            for (int s = 0; s < group->num_subgroups; ++s)
                add(group->subgroups[s].options, group->subgroups[s].num_options);
        }
    }
    for (const auto& e : m_settings.entries())
        all.insert(e.first, e.second);
    OptionList out;
    for (auto it = all.cbegin(); it != all.cend(); ++it)
        out.append({it.key(), it.value()});
    return out;
}
