// The lp command line shown for a printer that is only a PPD file: run
// through bash with an lp on PATH that reports its arguments, every -o
// argument read back with cupsParseOptions as lp reads it.
#include "LpCommand.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cups/cups.h>

namespace {
using OptionList = PrintDialogHost::OptionList;

// The -o arguments of an lp argument list, each read as lp reads it.
QList<OptionList> optionArguments(const QStringList& args)
{
    QList<OptionList> out;
    for (qsizetype i = 0; i + 1 < args.size(); ++i) {
        if (args[i] != QLatin1String("-o"))
            continue;
        cups_option_t* options = nullptr;
        const int n = cupsParseOptions(args[++i].toUtf8().constData(), 0, &options);
        out.append(OptionList());
        for (int k = 0; k < n; ++k)
            out.last().append({QString::fromUtf8(options[k].name), QString::fromUtf8(options[k].value)});
        cupsFreeOptions(n, options);
    }
    return out;
}
}

class TestLpCommand : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_bin;

    // Runs the line with bash; the lp found first on PATH prints its
    // arguments, NUL-terminated. Answers them (empty when bash failed).
    QStringList runLine(const QString& line)
    {
        QProcess bash;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("PATH"), m_bin.path() + QStringLiteral(":/usr/bin:/bin"));
        bash.setProcessEnvironment(env);
        bash.start(QStringLiteral("bash"), {QStringLiteral("-c"), line});
        if (!bash.waitForFinished(10000) || bash.exitCode() != 0)
            return {};
        QStringList args;
        for (const QByteArray& a : bash.readAllStandardOutput().split('\0'))
            args << QString::fromUtf8(a);
        args.removeLast();  // after the last NUL
        return args;
    }

private slots:
    void initTestCase()
    {
        QFile lp(m_bin.filePath(QStringLiteral("lp")));
        QVERIFY(lp.open(QIODevice::WriteOnly) && lp.write("#!/bin/sh\nfor a in \"$@\"; do printf '%s\\0' \"$a\"; done\n") > 0);
        lp.close();
        QVERIFY(lp.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    // Hostile values, queue and file names reach lp as one argument each,
    // every -o argument holding exactly its option.
    void valuesSurviveShellAndLp_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("blanks and commas") << "  red, green,blue  ";
        QTest::newRow("quotes") << "'single' and \"double\" \"'\"";
        QTest::newRow("backslashes") << "C:\\dir\\ \\\"\\' ends with\\";
        QTest::newRow("leading brace") << "{x=1 y=2}";
        QTest::newRow("shell characters") << "-o x=y $HOME $(id) `id` ${PATH} a;b|c&d>e<f*?[x]~#!%^()";
        QTest::newRow("unicode") << QStringLiteral("Gr\u00fc\u00dfe \u20ac \u65e5\u672c\u8a9e \U0001F5A8");
        QTest::newRow("tab and newline") << "one\ttwo\nthree";
        QTest::newRow("empty") << "";
    }

    void valuesSurviveShellAndLp()
    {
        QFETCH(QString, value);
        const QString queue = QStringLiteral("Jo's \"office\" $printer");
        const OptionList options{{QStringLiteral("note"), value}, {QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble")}};
        const QStringList files{QStringLiteral("report one.pdf"), QStringLiteral("-dash.txt"), QStringLiteral("it's \"here\".ps")};
        const LpCommand command(queue, options, files);
        const QStringList args = runLine(command.commandLine());
        QCOMPARE(args, command.arguments());
        QCOMPARE(args.mid(0, 2), (QStringList{QStringLiteral("-d"), queue}));
        QCOMPARE(optionArguments(args), (QList<OptionList>{{options[0]}, {options[1]}}));
        // The documents follow "--" (one of them starts with '-'), unchanged.
        QCOMPARE(args.mid(args.size() - 4), QStringList{QStringLiteral("--")} + files);
    }

    // A plain value stays readable: no quotes where none are needed.
    void plainValuesAreNotQuoted()
    {
        const LpCommand command(QStringLiteral("q"),
                                {{QStringLiteral("PageSize"), QStringLiteral("A4")}, {QStringLiteral("number-up"), QStringLiteral("2")}},
                                {QStringLiteral("doc.pdf")});
        QCOMPARE(command.commandLine(), QStringLiteral("lp -d q -o PageSize=A4 -o number-up=2 doc.pdf"));
    }

    // Passwords and PINs are never shown: the line says <hidden> instead.
    void secretsAreHidden_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("secret");
        QTest::newRow("EnterPassword") << "EnterPassword" << true;
        QTest::newRow("NewPIN") << "NewPIN" << true;
        QTest::newRow("JOBNAME is shown") << "JOBNAME" << false;
    }

    void secretsAreHidden()
    {
        QFETCH(QString, key);
        QFETCH(bool, secret);
        const QString value = QStringLiteral("Xq7 'v\"al");
        const LpCommand command(QStringLiteral("q"), {{key, value}}, {QStringLiteral("doc.pdf")});
        QCOMPARE(command.hidesSecrets(), secret);
        QCOMPARE(command.commandLine().contains(QStringLiteral("Xq7")), !secret);
        QCOMPARE(optionArguments(runLine(command.commandLine())),
                 (QList<OptionList>{{{key, secret ? LpCommand::hiddenValue() : value}}}));
    }
};

QTEST_MAIN(TestLpCommand)
#include "tst_lpcommand.moc"
