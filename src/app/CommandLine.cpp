#include "CommandLine.h"

#include "PrintDialogHost.h"

#include <QCommandLineParser>
#include <QCoreApplication>

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
        {QStringLiteral("print"), QStringLiteral("Print FILE without showing the dialog."), QStringLiteral("FILE")},
    });
    p.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Documents to print."), QStringLiteral("[FILE...]"));
    p.addHelpOption();
}

QString CommandLine::usage()
{
    QCommandLineParser p;
    addOptions(p);
    return p.helpText();
}

CommandLine CommandLine::parse(const QStringList& arguments)
{
    CommandLine c;
    QCommandLineParser p;
    addOptions(p);
    if (!p.parse(arguments)) {
        c.error = p.errorText();
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
    for (const QString& o : std::as_const(c.session.optionStrings)) {
        if (!PrintDialogHost::validateOptionString(o, &c.error))
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
        if (c.session.printer.isEmpty())
            c.error = QStringLiteral("--print needs --printer QUEUE");
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
