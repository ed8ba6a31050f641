#include "PrintDialogHost.h"

#include "PDEPanel.h"

#include <QFile>
#include <QFileInfo>
#include <QMetaObject>
#include <QPointer>
#include <QRegularExpression>
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
    return true;
}

std::unique_ptr<PrintDialogHost> PrintDialogHost::openPPDFile(const QString& path, QString* error)
{
    std::unique_ptr<PrintDialogHost> host(new PrintDialogHost);
    if (!host->openPPD(path, error))
        return nullptr;
    host->m_printer = std::make_unique<PMPrinter>(QFileInfo(path).completeBaseName(), QString(), false);
    return host;
}

std::unique_ptr<PrintDialogHost> PrintDialogHost::openPrinter(const QString& queue, const QString& server, QString* error)
{
    if (!server.isEmpty())
        cupsSetServer(server.toUtf8().constData());
    const QString name = queue.section(QLatin1Char('/'), 0, 0);
    const QString instance = queue.section(QLatin1Char('/'), 1);
    cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.toUtf8().constData(),
                                         instance.isEmpty() ? nullptr : instance.toUtf8().constData());
    if (!dest) {
        *error = QStringLiteral("printer %1: %2").arg(queue, QString::fromUtf8(cupsLastErrorString()));
        return nullptr;
    }
    char ppdPath[1024] = "";
    time_t modtime = 0;
    const http_status_t status = cupsGetPPD3(CUPS_HTTP_DEFAULT, name.toUtf8().constData(), &modtime, ppdPath, sizeof ppdPath);
    if (status != HTTP_STATUS_OK) {
        *error = QStringLiteral("printer %1 has no PPD: %2").arg(queue, QString::fromUtf8(cupsLastErrorString()));
        cupsFreeDests(1, dest);
        return nullptr;
    }
    std::unique_ptr<PrintDialogHost> host(new PrintDialogHost);
    host->m_tempPPD = QFile::decodeName(ppdPath);
    if (!host->openPPD(host->m_tempPPD, error)) {
        cupsFreeDests(1, dest);
        return nullptr;
    }
    host->m_printer = std::make_unique<PMPrinter>(queue, server, true);
    // The queue's saved options: PPD choices are marked, the rest become print settings.
    cupsMarkOptions(host->m_ppd, dest->num_options, dest->options);
    for (int i = 0; i < dest->num_options; ++i) {
        const QString name = QString::fromUtf8(dest->options[i].name);
        if (!choiceOption(host->m_ppd, name) && !isPrinterAttribute(name))
            host->m_settings.setValue(QString::fromUtf8(dest->options[i].name), QString::fromUtf8(dest->options[i].value));
    }
    cupsFreeDests(1, dest);
    return host;
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

bool PrintDialogHost::checkJobValue(const QString& key, const QString& value, QString* error)
{
    if (key != QLatin1String("page-ranges"))
        return true;
    static const QRegularExpression range(QStringLiteral(R"(^([1-9]\d*)(-([1-9]\d*)?)?$)"));
    const QStringList parts = value.split(QLatin1Char(','));
    for (const QString& part : parts) {
        const QRegularExpressionMatch m = range.match(part);
        const bool ok = m.hasMatch() && (m.captured(3).isEmpty() || m.captured(3).toULongLong() >= m.captured(1).toULongLong());
        if (!ok) {
            if (error)
                *error = QStringLiteral("page-ranges \"%1\": \"%2\" is not a page or a range of pages such as 1-3,5,8-").arg(value, part);
            return false;
        }
    }
    return true;
}

bool PrintDialogHost::validateOptionString(const QString& options, QString* error)
{
    // The grammar of `lp -o`: names up to '=' or a blank, values bare, quoted
    // with ' or ", or in braces; a backslash escapes the next character.
    const QString s = options;
    qsizetype i = 0;
    const qsizetype n = s.size();
    auto fail = [&](const QString& why) {
        *error = QStringLiteral("malformed option \"%1\": %2").arg(options, why);
        return false;
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
        if (i >= n || s[i] != QLatin1Char('='))
            continue;  // a bare name, as in "-o landscape"
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
    }
    return true;
}

bool PrintDialogHost::applyOptions(const QString& options, QString* error)
{
    if (!validateOptionString(options, error))
        return false;
    cups_option_t* parsed = nullptr;
    const int count = cupsParseOptions(options.toUtf8().constData(), 0, &parsed);
    for (int i = 0; i < count; ++i) {
        ppd_option_t* o = choiceOption(m_ppd, QString::fromUtf8(parsed[i].name));
        if (o && !isAcceptedChoice(o, parsed[i].value)) {
            QStringList choices;
            for (int c = 0; c < o->num_choices; ++c)
                choices << QString::fromUtf8(o->choices[c].choice);
            *error = QStringLiteral("option %1 has no choice \"%2\" (choices: %3)")
                         .arg(QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value),
                              choices.join(QStringLiteral(", ")));
            cupsFreeOptions(count, parsed);
            return false;
        }
    }
    if (m_ppd)
        cupsMarkOptions(m_ppd, count, parsed);
    for (int i = 0; i < count; ++i) {
        const QString name = QString::fromUtf8(parsed[i].name);
        if (!choiceOption(m_ppd, name))
            m_settings.setValue(name, QString::fromUtf8(parsed[i].value));
    }
    cupsFreeOptions(count, parsed);
    return true;
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
    for (const auto& [key, choice] : marks)
        ppdMarkOption(m_ppd, key.toUtf8().constData(), choice.toUtf8().constData());
}

bool PrintDialogHost::willChangePPDOptionKeyValue(const QString& option, const QString& choice)
{
    ppd_option_t* o = choiceOption(m_ppd, option);
    if (!o)
        return true;  // free text, or a key the PPD does not know: nothing to mark
    const QByteArray key = option.toUtf8();
    const QByteArray value = choice.toUtf8();
    if (!isAcceptedChoice(o, value))
        return false;
    // Approving the choice that is already marked changes nothing.
    if (const ppd_choice_t* marked = ppdFindMarkedChoice(m_ppd, key.constData()); marked && value == marked->choice)
        return true;
    const OptionList before = markedChoices();
    ppdMarkOption(m_ppd, key.constData(), value.constData());
    int count = 0;
    cups_option_t* resolved = nullptr;
    if (!cupsResolveConflicts(m_ppd, key.constData(), value.constData(), &count, &resolved)) {
        cupsFreeOptions(count, resolved);
        remark(before);
        return false;
    }
    for (int i = 0; i < count; ++i)
        ppdMarkOption(m_ppd, resolved[i].name, resolved[i].value);
    cupsFreeOptions(count, resolved);

    OptionList changes;
    const OptionList after = markedChoices();
    for (const auto& mark : after) {
        if (mark.first != option && !before.contains(mark))
            changes.append(mark);
    }
    if (!changes.isEmpty())
        reportChanges(changes);
    return true;
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
            for (PDEPanel* panel : self->m_panels)
                for (const auto& [key, choice] : changes)
                    panel->PPDOptionKeyValueDidChange(key, choice);
            emit self->optionsChangedByResolution(changes);
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
