#include "CommandLine.h"

#include "PrintDialogHost.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cups/cups.h>

static void addOptions(QCommandLineParser& p)
{
    p.addOptions({
        {QStringLiteral("ppd"), QStringLiteral("Use the PPD file FILE."), QStringLiteral("FILE")},
        {QStringLiteral("printer"), QStringLiteral("Use the CUPS queue QUEUE."), QStringLiteral("QUEUE")},
        {QStringLiteral("server"), QStringLiteral("CUPS server as HOST:PORT."), QStringLiteral("HOST:PORT")},
        {QStringLiteral("bundle"), QStringLiteral("Use the plug-in bundle in DIR."), QStringLiteral("DIR")},
        {QStringLiteral("o"), QStringLiteral("Job option as for lp -o (repeatable)."), QStringLiteral("key=value")},
        {QStringLiteral("describe"), QStringLiteral("Print the panels and their controls as JSON.")},
        {QStringLiteral("print-options"), QStringLiteral("Print the job's options, key=value a line.")},
        {QStringLiteral("print"), QStringLiteral("Print FILE without showing the dialog (to the default printer without --printer)."), QStringLiteral("FILE")},
        {QStringLiteral("show-secrets"), QStringLiteral("With --print-options, show passwords and PINs instead of <hidden>.")},
    });
    p.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Documents to print."), QStringLiteral("[FILE...]"));
    p.addHelpOption();
    p.addVersionOption();
    p.setApplicationDescription(QStringLiteral("The printer maker's print dialog panels for a CUPS queue or a PPD file.\n"
                                               "Without --ppd or --printer, the user's default printer is used."));
}

QString CommandLine::usage()
{
    QCommandLineParser p;
    addOptions(p);
    // Made before the application exists, so the program's name is put in here.
    return p.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("print-panels"));
}

QString CommandLine::version()
{
    return QStringLiteral("print-panels %1").arg(QStringLiteral(PRINT_PANELS_VERSION));
}

CommandLine CommandLine::parse(const QStringList& arguments)
{
    CommandLine c;
    QCommandLineParser p;
    addOptions(p);
    if (!p.parse(arguments)) {
        c.error = p.errorText();
        c.showUsage = true;
        return c;
    }
    if (p.isSet(QStringLiteral("help")) || p.isSet(QStringLiteral("help-all"))) {
        c.mode = Mode::Help;
        return c;
    }
    if (p.isSet(QStringLiteral("version"))) {
        c.mode = Mode::Version;
        return c;
    }
    if (p.isSet(QStringLiteral("ppd")) && p.isSet(QStringLiteral("printer"))) {
        c.error = QStringLiteral("--ppd and --printer cannot be used together");
        return c;
    }
    c.session.ppdPath = p.value(QStringLiteral("ppd"));
    c.session.printer = p.value(QStringLiteral("printer"));
    c.session.server = p.value(QStringLiteral("server"));
    c.session.bundlePath = p.value(QStringLiteral("bundle"));
    c.session.optionStrings = p.values(QStringLiteral("o"));
    c.showSecrets = p.isSet(QStringLiteral("show-secrets"));
    // Malformed options and job values are refused before anything is opened or sent.
    for (const QString& o : std::as_const(c.session.optionStrings)) {
        if (!PrintDialogHost::validateOptionString(o, &c.error))
            return c;
        cups_option_t* parsed = nullptr;
        const int count = cupsParseOptions(o.toUtf8().constData(), 0, &parsed);
        for (int i = 0; i < count && c.error.isEmpty(); ++i)
            PrintDialogHost::checkJobValue(QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value), &c.error);
        cupsFreeOptions(count, parsed);
        if (!c.error.isEmpty())
            return c;
    }
    const int modes = int(p.isSet(QStringLiteral("describe"))) + int(p.isSet(QStringLiteral("print-options")))
                      + int(p.isSet(QStringLiteral("print")));
    if (modes > 1) {
        c.error = QStringLiteral("choose one of --describe, --print-options and --print");
        return c;
    }
    c.files = p.positionalArguments();
    if (p.isSet(QStringLiteral("describe"))) {
        c.mode = Mode::Describe;
    } else if (p.isSet(QStringLiteral("print-options"))) {
        c.mode = Mode::PrintOptions;
    } else if (p.isSet(QStringLiteral("print"))) {
        c.mode = Mode::Print;
        c.files.prepend(p.value(QStringLiteral("print")));
        if (!c.session.ppdPath.isEmpty())
            c.error = QStringLiteral("--print needs a CUPS queue: use --printer QUEUE instead of --ppd");
    }
    return c;
}

QString escapeForLine(const QString& value)
{
    QString out;
    out.reserve(value.size());
    for (QChar ch : value) {
        if (ch == QLatin1Char('\\'))
            out += QStringLiteral("\\\\");
        else if (ch == QLatin1Char('\n'))
            out += QStringLiteral("\\n");
        else if (ch == QLatin1Char('\r'))
            out += QStringLiteral("\\r");
        else if (ch == QLatin1Char('\t'))
            out += QStringLiteral("\\t");
        else if (ch.category() == QChar::Other_Control)
            out += QStringLiteral("\\x%1").arg(ch.unicode(), 2, 16, QLatin1Char('0'));
        else
            out += ch;
    }
    return out;
}
