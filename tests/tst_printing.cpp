// Printing without a server. The lp command line shown for a printer that is
// only a PPD file: run through bash with an lp on PATH that reports its
// arguments, every -o argument read back with cupsParseOptions as lp reads
// it. PrintJob: the document type it sends and the documents it refuses
// before anything leaves the program.
#include "LpCommand.h"
#include "PrintJob.h"
#include "TestSupport.h"

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

class TestPrinting : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_bin;  // lp, and the documents

    QString write(const QString& name, const QByteArray& bytes) { return TestSupport::writeFile(m_bin.filePath(name), bytes); }

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
        const QString lp = write(QStringLiteral("lp"), "#!/bin/sh\nfor a in \"$@\"; do printf '%s\\0' \"$a\"; done\n");
        QVERIFY(QFile::setPermissions(lp, QFile::ReadOwner | QFile::ExeOwner));
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

    // The type by content, else the nearest kind of it the queue takes, else
    // left for the server to find.
    void documentFormat_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("supported");
        QTest::addColumn<QString>("format");
        const QByteArray pdf("%PDF-1.4\n1 0 obj\n<<>>\nendobj\n%%EOF\n");
        const QByteArray csource("#include <stdio.h>\nint main(void) { return 0; }\n");
        const QStringList queue{"application/octet-stream", "application/pdf", "text/plain"};
        QTest::newRow("pdf by content") << "scan.bin" << pdf << queue << "application/pdf";
        QTest::newRow("pdf the queue cannot take") << "doc.pdf" << pdf << QStringList{"text/plain"} << "application/octet-stream";
        QTest::newRow("case of the queue's list") << "doc.pdf" << pdf << QStringList{"Application/PDF"} << "application/pdf";
        QTest::newRow("C source as text") << "main.c" << csource << queue << "text/plain";
        QTest::newRow("C source, any type taken") << "main.c" << csource << QStringList{} << "text/x-csrc";
        QTest::newRow("unknown bytes") << "blob" << QByteArray::fromHex("00ff10ee20dd30cc40bb50aa") << queue << "application/octet-stream";
    }

    void documentFormat()
    {
        const QString path = write(cell<QString>("name"), cell<QByteArray>("content"));
        QTEST(PrintJob::documentFormat(path, cell<QStringList>("supported")), "format");
    }

    // Bad documents stop the job before the server is asked; good ones and
    // no server make a CUPS error that names the server, on one line.
    void refusals_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        const int bad = int(PrintJob::Status::BadInput);
        QTest::newRow("none") << QStringList{} << bad << "no document to print";
        QTest::newRow("missing") << QStringList{"@good", "/nonexistent/x.pdf"} << bad << "/nonexistent/x.pdf: no such file";
        QTest::newRow("folder") << QStringList{"@dir"} << bad << "is a folder";
        QTest::newRow("empty") << QStringList{"@empty"} << bad << "is empty";
        QTest::newRow("no server") << QStringList{"@good"} << int(PrintJob::Status::CupsError) << "127.0.0.1:1";
    }

    void refusals()
    {
        QFETCH(QStringList, files);
        QFETCH(int, status);
        QFETCH(QString, message);
        files.replaceInStrings("@good", write("good.txt", "text\n")).replaceInStrings("@empty", write("empty.txt", ""));
        files.replaceInStrings("@dir", m_bin.path());
        PrintJob job(QStringLiteral("q"), QStringLiteral("127.0.0.1:1"));
        job.setFiles(files);
        QString error;
        QCOMPARE(job.checkDocuments(&error), status != int(PrintJob::Status::BadInput));
        QVERIFY(!job.submit());
        QCOMPARE(int(job.status()), status);
        QVERIFY2(job.errorString().contains(message) && !job.errorString().contains(QLatin1Char('\n')), qPrintable(job.errorString()));
    }
};

QTEST_MAIN(TestPrinting)
#include "tst_printing.moc"
