// The lp command line shown for a printer that is only a PPD file: run
// through bash with an lp on PATH that reports its arguments, every -o
// argument read back with cupsParseOptions as lp reads it.
#include "LpCommand.h"
#include "TestSupport.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cups/cups.h>

namespace {
using OptionList = PrintDialogHost::OptionList;

// What lp -o makes of one argument.
OptionList parseLikeLp(const QString& argument)
{
    OptionList out;
    cups_option_t* options = nullptr;
    const int n = cupsParseOptions(argument.toUtf8().constData(), 0, &options);
    for (int i = 0; i < n; ++i)
        out.append({QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value)});
    cupsFreeOptions(n, options);
    return out;
}
}

class TestLpCommand : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_bin;

    // Runs the line with bash; the lp found first on PATH prints its
    // arguments, NUL-terminated. Answers them, or fails the test.
    QStringList runLine(const QString& line)
    {
        QProcess bash;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("PATH"), m_bin.path() + QStringLiteral(":/usr/bin:/bin"));
        env.insert(QStringLiteral("HOME"), QStringLiteral("/nonexistent-home"));
        bash.setProcessEnvironment(env);
        bash.start(QStringLiteral("bash"), {QStringLiteral("-c"), line});
        if (!bash.waitForFinished(10000) || bash.exitCode() != 0) {
            qWarning("bash failed on: %s\n%s", qPrintable(line), bash.readAllStandardError().constData());
            return {};
        }
        QByteArray out = bash.readAllStandardOutput();
        if (!out.endsWith('\0'))
            return {};
        out.chop(1);
        QStringList args;
        for (const QByteArray& a : out.split('\0'))
            args << QString::fromUtf8(a);
        return args;
    }

    // The -o arguments of an lp argument list, each read as lp reads it.
    static QList<OptionList> optionArguments(const QStringList& args)
    {
        QList<OptionList> out;
        for (qsizetype i = 0; i + 1 < args.size(); ++i)
            if (args[i] == QLatin1String("-o"))
                out << parseLikeLp(args[++i]);
        return out;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_bin.isValid());
        QFile lp(m_bin.filePath(QStringLiteral("lp")));
        QVERIFY(lp.open(QIODevice::WriteOnly));
        lp.write("#!/bin/sh\nfor a in \"$@\"; do printf '%s\\0' \"$a\"; done\n");
        lp.close();
        QVERIFY(lp.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        // The fake answers for lp, and reports an argument with a blank as one.
        QCOMPARE(runLine(QStringLiteral("lp 'a b' c")), (QStringList{QStringLiteral("a b"), QStringLiteral("c")}));
    }

    void valuesSurviveShellAndLp_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("plain word") << "PageSize" << "A4";
        QTest::newRow("blank") << "note" << "two words";
        QTest::newRow("blanks around") << "note" << "  padded  ";
        QTest::newRow("double quotes") << "note" << "say \"hi\"";
        QTest::newRow("single quote") << "note" << "it's";
        QTest::newRow("both quotes") << "note" << "'single' and \"double\"";
        QTest::newRow("lone quotes") << "note" << "\"'\"";
        QTest::newRow("backslashes") << "path" << "C:\\dir\\file name";
        QTest::newRow("trailing backslash") << "path" << "ends with\\";
        QTest::newRow("backslash before quote") << "note" << "\\\"\\'";
        QTest::newRow("equals") << "formula" << "a=b=c";
        QTest::newRow("braces") << "note" << "a {b} c";
        QTest::newRow("leading brace") << "note" << "{x=1 y=2}";
        QTest::newRow("dollar and backticks") << "note" << "$HOME $(id) `id` ${PATH}";
        QTest::newRow("shell characters") << "note" << "a;b|c&d>e<f*?[x]~#!%^()";
        QTest::newRow("unicode") << "note" << QStringLiteral("Gr\u00fc\u00dfe \u20ac \u65e5\u672c\u8a9e \U0001F5A8");
        QTest::newRow("comma") << "note" << "red, green,blue";
        QTest::newRow("tab and newline") << "note" << "one\ttwo\nthree";
        QTest::newRow("empty") << "note" << "";
        QTest::newRow("dash first") << "note" << "-o x=y";
    }

    void valuesSurviveShellAndLp()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        const OptionList options{{key, value}, {QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble")}};
        const QStringList files{QStringLiteral("report one.pdf"), QStringLiteral("-dash.txt"), QStringLiteral("it's \"here\".ps")};
        const LpCommand command(QStringLiteral("velmora-c5500"), options, files);

        const QString line = command.commandLine();
        QVERIFY(line.startsWith(QLatin1String("lp ")));
        const QStringList args = runLine(line);
        QVERIFY2(!args.isEmpty(), qPrintable(line));
        QCOMPARE(args, command.arguments());
        QCOMPARE(args.mid(0, 2), (QStringList{QStringLiteral("-d"), QStringLiteral("velmora-c5500")}));
        // One -o argument per option, each holding exactly that option.
        const QList<OptionList> parsed = optionArguments(args);
        QCOMPARE(parsed.size(), 2);
        QCOMPARE(parsed.at(0), (OptionList{{key, value}}));
        QCOMPARE(parsed.at(1), (OptionList{{QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble")}}));
        // The documents follow "--" (one of them starts with '-'), unchanged.
        QCOMPARE(args.mid(args.size() - 4), QStringList{QStringLiteral("--")} + files);
        QVERIFY(!command.hidesSecrets());
    }

    // A plain value stays readable: no quotes where none are needed.
    void plainValuesAreNotQuoted()
    {
        const LpCommand command(QStringLiteral("q"),
                                {{QStringLiteral("PageSize"), QStringLiteral("A4")}, {QStringLiteral("number-up"), QStringLiteral("2")}},
                                {QStringLiteral("doc.pdf")});
        QCOMPARE(command.commandLine(), QStringLiteral("lp -d q -o PageSize=A4 -o number-up=2 doc.pdf"));
    }

    void queueNameIsOneArgument()
    {
        const LpCommand command(QStringLiteral("Jo's \"office\" $printer"), {}, {});
        QCOMPARE(runLine(command.commandLine()), (QStringList{QStringLiteral("-d"), QStringLiteral("Jo's \"office\" $printer")}));
    }

    // Passwords and PINs are never shown: the line says <hidden> instead.
    void secretsAreHidden_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("secret");
        QTest::newRow("EnterPassword") << "EnterPassword" << true;
        QTest::newRow("ConfirmPassword") << "ConfirmPassword" << true;
        QTest::newRow("AccountPassword") << "AccountPassword" << true;
        QTest::newRow("HCSEnterPassword") << "HCSEnterPassword" << true;
        QTest::newRow("NewPIN") << "NewPIN" << true;
        QTest::newRow("ConfirmNewPIN") << "ConfirmNewPIN" << true;
        QTest::newRow("job-password") << "job-password" << true;
        QTest::newRow("JOBNAME is shown") << "JOBNAME" << false;
        QTest::newRow("PrintAt is shown") << "PrintAt" << false;
    }

    void secretsAreHidden()
    {
        QFETCH(QString, key);
        QFETCH(bool, secret);
        const QString value = QStringLiteral("Xq7 'v\"al");
        const LpCommand command(QStringLiteral("q"), {{QStringLiteral("PageSize"), QStringLiteral("A4")}, {key, value}},
                                {QStringLiteral("doc.pdf")});
        const QString line = command.commandLine();
        QCOMPARE(command.hidesSecrets(), secret);
        QCOMPARE(line.contains(QStringLiteral("Xq7")), !secret);
        QCOMPARE(command.arguments().join(QLatin1Char(' ')).contains(QStringLiteral("Xq7")), !secret);
        const QList<OptionList> parsed = optionArguments(runLine(line));
        QCOMPARE(parsed.size(), 2);
        QCOMPARE(parsed.at(1), (OptionList{{key, secret ? LpCommand::hiddenValue() : value}}));
    }
};

QTEST_MAIN(TestLpCommand)
#include "tst_lpcommand.moc"
