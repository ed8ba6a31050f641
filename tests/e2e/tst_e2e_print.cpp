// Printing end to end: a private cupsd with a queue made from the sample
// printer's PPD (pass-through filters), print-panels --print and the dialog's
// Print button, and what the capture backend got.
#include "LpCommand.h"
#include "PanelSession.h"
#include "PresetStore.h"
#include "PrintDialogWindow.h"
#include "PrivateCupsServer.h"
#include "TestSupport.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using TestSupport::runApp;

class TestE2EPrint : public QObject {
    Q_OBJECT

private:
    PrivateCupsServer m_server;
    QTemporaryDir m_docs;
    QElapsedTimer m_clock;
    const QString m_queue = QStringLiteral("q");

    QString writeDocument(const QString& name, const QByteArray& bytes)
    {
        QFile f(m_docs.filePath(name));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
            return QString();
        return f.fileName();
    }

    int print(const QStringList& args, QString* out, QString* err)
    {
        return runApp(QStringList{QStringLiteral("--printer"), m_queue, QStringLiteral("--server"), m_server.address()} + args, out,
                      err, m_server.clientEnvironment());
    }

    // Every job the server knows for the queue, done or not.
    int jobsOnServer()
    {
        QString out;
        if (!m_server.runClient(QStringLiteral("lpstat"), {QStringLiteral("-W"), QStringLiteral("all"), QStringLiteral("-o"), m_queue},
                                &out))
            return -1;
        return int(out.split(QLatin1Char('\n'), Qt::SkipEmptyParts).size());
    }

    bool waitForJob(int id, PrivateCupsServer::CapturedJob* job)
    {
        QElapsedTimer t;
        t.start();
        while (t.elapsed() < 20000) {
            for (const auto& j : m_server.capturedJobs(m_queue)) {
                if (j.id == id) {
                    *job = j;
                    return true;
                }
            }
            QTest::qWait(25);
        }
        return false;
    }

    static int jobIdFrom(const QString& out)
    {
        static const QRegularExpression re(QStringLiteral("^request id is q-(\\d+) \\((\\d+) file\\(s\\)\\)$"),
                                           QRegularExpression::MultilineOption);
        const QRegularExpressionMatch m = re.match(out);
        return m.hasMatch() ? m.captured(1).toInt() : 0;
    }

    // "key=value" lines of --print-options, with the line escapes undone.
    static QMap<QString, QString> parseOptionLines(const QString& out)
    {
        QMap<QString, QString> map;
        for (const QString& line : out.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            const QString key = line.section(QLatin1Char('='), 0, 0);
            const QString escaped = line.section(QLatin1Char('='), 1);
            QString value;
            for (qsizetype i = 0; i < escaped.size(); ++i) {
                if (escaped[i] == QLatin1Char('\\') && i + 1 < escaped.size()) {
                    const QChar n = escaped[++i];
                    value += n == QLatin1Char('n') ? QChar(u'\n') : n == QLatin1Char('t') ? QChar(u'\t') : n == QLatin1Char('r') ? QChar(u'\r') : n;
                } else {
                    value += escaped[i];
                }
            }
            map.insert(key, value);
        }
        return map;
    }

private slots:
    void initTestCase()
    {
        m_clock.start();
        QString why;
        if (!PrivateCupsServer::canRun(&why))
            QSKIP(qPrintable(QStringLiteral("end-to-end printing skipped: ") + why));
        QVERIFY(m_docs.isValid());
        QString error;
        QVERIFY2(m_server.start(&error), qPrintable(error));
        // This process talks to the server too (the dialog): no user's files.
        m_server.applyClientEnvironment();
        QVERIFY2(m_server.addQueue(m_queue, TestSupport::samplePPD(), &error), qPrintable(error));
        qInfo("private cupsd on %s ready after %lld ms", qPrintable(m_server.address()), m_clock.elapsed());
    }

    void cleanupTestCase()
    {
        m_server.stop();
        QVERIFY(!m_server.isRunning());
        qInfo("end-to-end printing took %lld ms", m_clock.elapsed());
    }

    // One job, two documents, options with blanks, quotes, backslashes and
    // more: every marked PPD choice and print-settings entry reaches the
    // backend as sent, and the documents arrive byte for byte.
    void printsOptionsAndDocuments()
    {
        QByteArray pdf("%PDF-1.4\n%\xe2\xe3\xcf\xd3\n");
        for (int b = 0; b < 256; ++b)
            pdf.append(char(b));
        pdf.append("\n%%EOF\n");
        const QByteArray text = QStringLiteral("Gr\u00fc\u00dfe\r\nline two\n\tand a tab\n").toUtf8();
        const QString pdfPath = writeDocument(QStringLiteral("report one.pdf"), pdf);
        const QString textPath = writeDocument(QStringLiteral("notes.txt"), text);
        QVERIFY(!pdfPath.isEmpty() && !textPath.isEmpty());

        const QString secret = QStringLiteral("s3cr3t-Pw");
        const QStringList options{
            QStringLiteral("-o"), QStringLiteral("Duplex=DuplexNoTumble PageSize=A4 InputSlot=Tray2"),
            QStringLiteral("-o"), QStringLiteral("JOBNAME=\"Quarterly report: Q3\""),
            QStringLiteral("-o"), QStringLiteral("note='two words'"),
            QStringLiteral("-o"), QStringLiteral("quoted='say \"hi\" and it\\'s'"),
            QStringLiteral("-o"), QStringLiteral("path=\"C:\\\\dir\\\\file name\""),
            QStringLiteral("-o"), QStringLiteral("shell=\"$HOME `id` ; a {b} & c\""),
            QStringLiteral("-o"), QStringLiteral("unicode=\"Gr\u00fc\u00dfe \u20ac \u65e5\u672c\u8a9e\""),
            QStringLiteral("-o"), QStringLiteral("equals=\"a=b c=d\""),
            QStringLiteral("-o"), QStringLiteral("EnterPassword=") + secret,
        };
        const QMap<QString, QString> sent{
            {QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble")},
            {QStringLiteral("PageSize"), QStringLiteral("A4")},
            {QStringLiteral("InputSlot"), QStringLiteral("Tray2")},
            {QStringLiteral("JOBNAME"), QStringLiteral("Quarterly report: Q3")},
            {QStringLiteral("note"), QStringLiteral("two words")},
            {QStringLiteral("quoted"), QStringLiteral("say \"hi\" and it's")},
            {QStringLiteral("path"), QStringLiteral("C:\\dir\\file name")},
            {QStringLiteral("shell"), QStringLiteral("$HOME `id` ; a {b} & c")},
            {QStringLiteral("unicode"), QStringLiteral("Gr\u00fc\u00dfe \u20ac \u65e5\u672c\u8a9e")},
            {QStringLiteral("equals"), QStringLiteral("a=b c=d")},
            // A password travels with the job, and only with it.
            {QStringLiteral("EnterPassword"), secret},
        };

        QString out, err;
        QCOMPARE(print(QStringList{QStringLiteral("--print-options")} + options, &out, &err), 0);
        const QMap<QString, QString> jobOptions = parseOptionLines(out);
        for (auto it = sent.cbegin(); it != sent.cend(); ++it)
            QCOMPARE(jobOptions.value(it.key()), it.value());

        const int status = print(QStringList{QStringLiteral("--print"), pdfPath} + options + QStringList{textPath}, &out, &err);
        QVERIFY2(status == 0, qPrintable(err));
        const int id = jobIdFrom(out);
        QVERIFY2(id > 0, qPrintable(out));
        QVERIFY2(out.contains(QStringLiteral("(2 file(s))")), qPrintable(out));
        QVERIFY2(!out.contains(secret) && !err.contains(secret), "a password reached print-panels' output");

        PrivateCupsServer::CapturedJob job;
        QVERIFY2(waitForJob(id, &job), qPrintable(m_server.errorLog()));
        QCOMPARE(job.title(), QStringLiteral("report one.pdf"));
        const QMap<QString, QString> got = job.parsedOptions();
        for (auto it = sent.cbegin(); it != sent.cend(); ++it)
            QVERIFY2(got.value(it.key()) == it.value(),
                     qPrintable(QStringLiteral("%1: sent \"%2\", the backend got \"%3\" in: %4")
                                    .arg(it.key(), it.value(), got.value(it.key()), job.options())));
        // Every job option print-panels reported is in the job: the marked
        // choices (defaults too) and the print settings. The scheduler takes
        // copies, hold, priority, banners and the cancel timer for itself,
        // and attributes that describe the printer are no job options.
        static const QStringList scheduler{QStringLiteral("copies"), QStringLiteral("job-hold-until"), QStringLiteral("job-priority"),
                                           QStringLiteral("job-sheets"), QStringLiteral("job-cancel-after")};
        int checked = 0;
        for (auto it = jobOptions.cbegin(); it != jobOptions.cend(); ++it) {
            if (scheduler.contains(it.key()) || PresetStore::isPrinterAttribute(it.key()))
                continue;
            QVERIFY2(got.contains(it.key()), qPrintable(QStringLiteral("%1 is missing from: %2").arg(it.key(), job.options())));
            // PPD booleans travel as IPP booleans ("noKey" for False).
            const bool boolean = it.value().compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
                                 || it.value().compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
            QVERIFY2(boolean ? got.value(it.key()).compare(it.value(), Qt::CaseInsensitive) == 0 : got.value(it.key()) == it.value(),
                     qPrintable(QStringLiteral("%1: \"%2\" became \"%3\"").arg(it.key(), it.value(), got.value(it.key()))));
            ++checked;
        }
        QVERIFY2(checked > 40, "the sample printer's marked choices did not all reach the job");

        // The first document is what the backend read; the server holds both.
        QVERIFY(!job.documents.isEmpty());
        QCOMPARE(job.documents.first(), pdf);
        QCOMPARE(job.spooledDocuments.size(), 2);
        QCOMPARE(job.spooledDocuments.at(0), pdf);
        QCOMPARE(job.spooledDocuments.at(1), text);
    }

    // The document's type is found by its content and name, and a type the
    // queue does not take is sent as the nearest one it does.
    void documentFormat_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("format");
        QTest::newRow("pdf by content") << "scan.bin" << QByteArray("%PDF-1.4\n1 0 obj\n<<>>\nendobj\n%%EOF\n") << "application/pdf";
        QTest::newRow("postscript") << "page.ps" << QByteArray("%!PS-Adobe-3.0\n%%Pages: 1\nshowpage\n") << "application/postscript";
        QTest::newRow("text without a name") << "README" << QByteArray("plain words\nand more\n") << "text/plain";
        QTest::newRow("C source is text") << "hello.c" << QByteArray("#include <stdio.h>\nint main(void) { return 0; }\n")
                                          << "text/plain";
        QTest::newRow("shell script is text") << "run.sh" << QByteArray("#!/bin/sh\necho hello\n") << "text/plain";
    }

    void documentFormat()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, format);
        const QString path = writeDocument(name, content);
        QString out, err;
        QVERIFY2(print({QStringLiteral("--print"), path}, &out, &err) == 0, qPrintable(err));
        const int id = jobIdFrom(out);
        QVERIFY(id > 0);
        QCOMPARE(m_server.jobAttribute(id, QStringLiteral("document-format-supplied")), format);
        // The server holds the document as sent (what reaches the backend
        // is up to the queue's filters: PostScript may be turned into PDF).
        PrivateCupsServer::CapturedJob job;
        QVERIFY2(waitForJob(id, &job), qPrintable(m_server.errorLog()));
        QCOMPARE(job.spooledDocuments, QList<QByteArray>{content});
    }

    // Bad input is found before anything reaches the server: exit 2, one
    // clear line, no job.
    void badInputSendsNothing_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("message");
        QTest::newRow("missing document") << QStringList{QStringLiteral("--print"), QStringLiteral("/nonexistent/doc.pdf")}
                                          << "/nonexistent/doc.pdf: no such file";
        QTest::newRow("a folder") << QStringList{QStringLiteral("--print"), QDir::tempPath()} << "is a folder";
        QTest::newRow("empty document") << QStringList{QStringLiteral("--print"), QStringLiteral("@empty")} << "is empty";
        QTest::newRow("second document missing")
            << QStringList{QStringLiteral("--print"), QStringLiteral("@good"), QStringLiteral("/nonexistent/two.txt")} << "two.txt: no such file";
        // (A later --printer replaces the one every run starts with.)
        QTest::newRow("unknown queue") << QStringList{QStringLiteral("--print"), QStringLiteral("@good"), QStringLiteral("--printer"),
                                                      QStringLiteral("nosuchqueue")}
                                       << "nosuchqueue";
        QTest::newRow("choice the PPD lacks") << QStringList{QStringLiteral("--print"), QStringLiteral("@good"), QStringLiteral("-o"),
                                                             QStringLiteral("Duplex=Sideways")}
                                              << "Sideways";
        QTest::newRow("malformed option") << QStringList{QStringLiteral("--print"), QStringLiteral("@good"), QStringLiteral("-o"),
                                                         QStringLiteral("note='open")}
                                          << "unclosed quote";
    }

    void badInputSendsNothing()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, message);
        const QString good = writeDocument(QStringLiteral("good.txt"), "fine\n");
        const QString empty = writeDocument(QStringLiteral("empty.txt"), QByteArray());
        args.replaceInStrings(QStringLiteral("@good"), good);
        args.replaceInStrings(QStringLiteral("@empty"), empty);
        const int before = jobsOnServer();
        QVERIFY(before >= 0);
        QString out, err;
        QCOMPARE(print(args, &out, &err), 2);
        QStringList lines = err.split(QLatin1Char('\n'), Qt::SkipEmptyParts).filter(QStringLiteral("print-panels:"));
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().contains(message), qPrintable(lines.first()));
        QVERIFY(out.isEmpty());
        QCOMPARE(jobsOnServer(), before);
    }

    // When CUPS refuses the job: exit 1 with one line saying why.
    void refusedByCupsExits1()
    {
        QString output;
        QVERIFY2(m_server.runClient(QStringLiteral("cupsreject"), {QStringLiteral("-r"), QStringLiteral("closed for the test"), m_queue},
                                    &output),
                 qPrintable(output));
        const QString doc = writeDocument(QStringLiteral("refused.txt"), "not printed\n");
        QString out, err;
        const int status = print({QStringLiteral("--print"), doc}, &out, &err);
        QVERIFY2(m_server.runClient(QStringLiteral("cupsaccept"), {m_queue}, &output), qPrintable(output));
        QCOMPARE(status, 1);
        const QStringList lines = err.split(QLatin1Char('\n'), Qt::SkipEmptyParts).filter(QStringLiteral("print-panels:"));
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().contains(QStringLiteral("printer q")) && lines.first().contains(QStringLiteral("accepting"), Qt::CaseInsensitive),
                 qPrintable(lines.first()));
        QVERIFY(jobIdFrom(out) == 0);
    }

    // The lp command shown for a PPD file, pasted into a shell with the real
    // lp: the job it sends holds the same values.
    void lpCommandLinePrintsTheSameValues()
    {
        const QByteArray text("printed by lp\n");
        const QString doc = writeDocument(QStringLiteral("lp's doc.txt"), text);
        const PrintDialogHost::OptionList options{
            {QStringLiteral("Duplex"), QStringLiteral("DuplexTumble")},
            {QStringLiteral("note"), QStringLiteral("two words")},
            {QStringLiteral("quoted"), QStringLiteral("say \"hi\" and it's")},
            {QStringLiteral("path"), QStringLiteral("C:\\dir\\file name")},
            {QStringLiteral("shell"), QStringLiteral("$HOME `id` ; a {b} & c")},
            {QStringLiteral("unicode"), QStringLiteral("Gr\u00fc\u00dfe \u20ac")},
        };
        const LpCommand command(m_queue, options, {doc});
        QProcess bash;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const QString& kv : m_server.clientEnvironment())
            env.insert(kv.section(QLatin1Char('='), 0, 0), kv.section(QLatin1Char('='), 1));
        env.insert(QStringLiteral("CUPS_SERVER"), m_server.address());
        bash.setProcessEnvironment(env);
        bash.start(QStringLiteral("bash"), {QStringLiteral("-c"), command.commandLine()});
        QVERIFY(bash.waitForFinished(20000));
        const QString out = QString::fromUtf8(bash.readAllStandardOutput());
        QVERIFY2(bash.exitCode() == 0, qPrintable(command.commandLine() + QLatin1Char('\n') + bash.readAllStandardError()));
        const int id = jobIdFrom(out);
        QVERIFY2(id > 0, qPrintable(out));
        PrivateCupsServer::CapturedJob job;
        QVERIFY2(waitForJob(id, &job), qPrintable(m_server.errorLog()));
        const QMap<QString, QString> got = job.parsedOptions();
        for (const auto& [key, value] : options)
            QVERIFY2(got.value(key) == value, qPrintable(QStringLiteral("%1: \"%2\" became \"%3\"").arg(key, value, got.value(key))));
        QCOMPARE(job.documents.value(0), text);
    }

    // The dialog: opened on the queue, Print clicked, the job arrives with
    // the options and the document.
    void printButtonSendsTheJob()
    {
        const QByteArray text("printed from the window\n");
        const QString doc = writeDocument(QStringLiteral("window doc.txt"), text);
        PrintDialogWindow window;
        PanelSession::Options options;
        options.printer = m_queue;
        options.server = m_server.address();
        options.optionStrings = {QStringLiteral("Duplex=DuplexTumble note='from the \"window\"' MediaType=Thick")};
        QString error;
        QVERIFY2(window.openSession(options, &error), qPrintable(error));
        window.setDocuments({doc});
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        // A message box would wait for a click that never comes: close it
        // and fail with its text.
        QString boxText;
        QTimer watchdog;
        connect(&watchdog, &QTimer::timeout, this, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                boxText = box->text();
                box->reject();
            }
        });
        watchdog.start(50);

        auto* printButton = window.findChild<QPushButton*>(QStringLiteral("printButton"));
        QVERIFY(printButton);
        QVERIFY(printButton->isEnabled());
        QSignalSpy submitted(&window, &PrintDialogWindow::jobSubmitted);
        QTest::mouseClick(printButton, Qt::LeftButton);
        QTRY_VERIFY2_WITH_TIMEOUT(submitted.count() == 1 || !boxText.isEmpty(), "Print sent no job", 20000);
        QVERIFY2(boxText.isEmpty(), qPrintable(boxText));
        const int id = submitted.first().first().toInt();
        QVERIFY(id > 0);
        QCOMPARE(window.submittedJob(), id);

        PrivateCupsServer::CapturedJob job;
        QVERIFY2(waitForJob(id, &job), qPrintable(m_server.errorLog()));
        const QMap<QString, QString> got = job.parsedOptions();
        QCOMPARE(got.value(QStringLiteral("Duplex")), QStringLiteral("DuplexTumble"));
        QCOMPARE(got.value(QStringLiteral("MediaType")), QStringLiteral("Thick"));
        QCOMPARE(got.value(QStringLiteral("note")), QStringLiteral("from the \"window\""));
        QCOMPARE(job.documents.value(0), text);
        QCOMPARE(job.title(), QStringLiteral("window doc.txt"));
    }
};

QTEST_MAIN(TestE2EPrint)
#include "tst_e2e_print.moc"
