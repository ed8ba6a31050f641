// Printing end to end: a private cupsd with a queue made from the sample
// printer's PPD (pass-through filters), the job sent by print-panels --print,
// by the dialog's Print button and by the lp command shown for a PPD file,
// and what the capture backend got.
#include "LpCommand.h"
#include "PDESecrets.h"
#include "PanelSession.h"
#include "PresetStore.h"
#include "PrintDialogWindow.h"
#include "PrivateCupsServer.h"
#include "TestSupport.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class TestE2EPrint : public QObject {
    Q_OBJECT

private:
    PrivateCupsServer m_server;
    QTemporaryDir m_docs;
    const QString m_queue = QStringLiteral("q");

    QString writeDocument(const QString& name, const QByteArray& bytes)
    {
        return TestSupport::writeFile(m_docs.filePath(name), bytes);
    }

    int print(const QStringList& args, QString* out, QString* err) { return m_server.print(QStringList{"--printer", m_queue} + args, out, err); }

    int jobsOnServer()
    {
        QString out;
        return m_server.runClient("lpstat", {"-W", "all", "-o", m_queue}, &out) ? int(out.count(QLatin1Char('\n'))) : -1;
    }

private slots:
    void initTestCase()
    {
        QString why;
        if (!PrivateCupsServer::canRun(&why))
            QSKIP(qPrintable(QStringLiteral("end-to-end printing skipped: ") + why));
        QVERIFY2(m_server.start(&why) && m_server.addQueue(m_queue, TestSupport::samplePPD(), &why), qPrintable(why));
    }

    void cleanupTestCase()
    {
        m_server.stop();
        QVERIFY(!m_server.isRunning());
    }

    void printsOptionsAndDocuments_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("print-panels --print") << "cli";
        QTest::newRow("the dialog's Print button") << "dialog";
        QTest::newRow("the lp command line in bash") << "lp";
    }

    // One job, two documents, values with blanks, quotes, backslashes and
    // more: every marked PPD choice and print-settings entry reaches the
    // backend as sent, and the documents arrive byte for byte.
    void printsOptionsAndDocuments()
    {
        QFETCH(QString, way);
        QByteArray pdf("%PDF-1.4\n%\xe2\xe3\xcf\xd3\n");
        for (int b = 0; b < 256; ++b)
            pdf.append(char(b));
        const QByteArray text = QStringLiteral("Gr\u00fc\u00dfe\r\nline two\n\tand a tab\n").toUtf8();
        const QStringList docs{writeDocument("report one.pdf", pdf), writeDocument("notes.txt", text)};
        const QString secret = QStringLiteral("s3cr3t-Pw");
        const QStringList optionStrings{"Duplex=DuplexNoTumble PageSize=A4 MediaType=Thick", "note='two words'",
                                        R"(quoted='say "hi" and it\'s')", R"(path="C:\\dir\\file name")",
                                        R"(shell="$HOME `id` ; a {b} & c=d")", QStringLiteral("unicode=\"Gr\u00fc\u00dfe \u20ac\""),
                                        "EnterPassword=" + secret};
        const QMap<QString, QString> sent{{"Duplex", "DuplexNoTumble"}, {"PageSize", "A4"}, {"MediaType", "Thick"},
                                    {"note", "two words"}, {"quoted", R"(say "hi" and it's)"}, {"path", R"(C:\dir\file name)"},
                                    {"shell", "$HOME `id` ; a {b} & c=d"}, {"unicode", QStringLiteral("Gr\u00fc\u00dfe \u20ac")},
                                    {"EnterPassword", secret}};  // a password travels with the job, and only with it
        // The options the panels make of them, as print-panels computes them.
        QString error;
        auto session = PanelSession::open({{}, m_queue, m_server.address(), {}, optionStrings}, &error);
        QVERIFY2(session && session->prepareToPrint(&error), qPrintable(error));
        QMap<QString, QString> expected = TestSupport::optionMap(session->host().jobOptions());
        for (auto it = sent.cbegin(); it != sent.cend(); ++it)
            QVERIFY2(expected.value(it.key()) == it.value(), qPrintable(it.key()));

        int id = 0;
        QString out, err;
        if (way == QLatin1String("cli")) {
            // A headless opening asks for the queue once and fetches its PPD once.
            const qsizetype logged = m_server.accessLog().size();
            QVERIFY2(print({"--print-options"}, &out, &err) == 0, qPrintable(err));
            const QStringList requests = m_server.accessLog().mid(logged);
            QCOMPARE(requests.size(), 2);
            QCOMPARE(requests.filter(QStringLiteral("Get-Printer-Attributes")).size() + requests.filter(QStringLiteral("GET /printers/%1.ppd").arg(m_queue)).size(), 2);
            QStringList args{"--print", docs[0]};
            for (const QString& o : optionStrings)
                args << "-o" << o;
            QVERIFY2(print(args << docs[1], &out, &err) == 0, qPrintable(err));
            QVERIFY2(out.contains(QStringLiteral("(2 file(s))")), qPrintable(out));
            QVERIFY2(!out.contains(secret) && !err.contains(secret), "a password reached print-panels' output");
            id = PrivateCupsServer::jobId(out);
        } else if (way == QLatin1String("dialog")) {
            PrintDialogWindow window;
            const qsizetype logged = m_server.accessLog().size();
            QVERIFY2(window.openSession({{}, m_queue, m_server.address(), {}, optionStrings}, &error), qPrintable(error));
            auto* printButton = window.findChild<QPushButton*>(QStringLiteral("printButton"));
            QVERIFY(!printButton->isEnabled());  // nothing to print yet
            window.setDocuments(docs);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            // An opening asks for the destinations once and fetches the PPD once: nothing more.
            const QStringList requests = m_server.accessLog().mid(logged);
            QCOMPARE(requests.size(), 2);
            QCOMPARE(requests.filter(QStringLiteral("CUPS-Get-Printers")).size() + requests.filter(QStringLiteral("GET /printers/%1.ppd").arg(m_queue)).size(), 2);
            // A printer opened again in the window fetches its PPD, nothing more.
            QVERIFY2(window.openSession({{}, m_queue, m_server.address(), {}, optionStrings}, &error), qPrintable(error));
            const QStringList again = m_server.accessLog().mid(logged + 2);
            QVERIFY2(again.size() == 1 && again.first().contains(QStringLiteral("GET /printers/%1.ppd").arg(m_queue)), qPrintable(again.join('\n')));
            // A message box would wait for a click that never comes: it is closed, its text kept.
            QString boxText;
            QTimer watchdog;
            connect(&watchdog, &QTimer::timeout, this, [&] {
                if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                    boxText = box->text(), box->reject();
            });
            watchdog.start(50);
            QSignalSpy submitted(&window, &PrintDialogWindow::jobSubmitted);
            QTest::mouseClick(printButton, Qt::LeftButton);
            QVERIFY2(boxText.isEmpty() && submitted.count() == 1, qPrintable(boxText));
            QVERIFY(!window.isVisible());  // the dialog closes once the job is sent
            id = submitted.first().first().toInt();
            QCOMPARE(window.submittedJob(), id);
        } else {
            // The lp command hides every password and PIN given: lp sends the
            // placeholder (an empty one hides nothing and stays empty).
            for (auto it = expected.begin(); it != expected.end(); ++it)
                if (PDESecrets::isSecretKey(it.key()) && !it.value().isEmpty())
                    it.value() = LpCommand::hiddenValue();
            const QString line = LpCommand(m_queue, session->host().jobOptions(), docs).commandLine();
            QProcess bash;
            bash.start("bash", {"-c", QStringLiteral("CUPS_SERVER=%1 HOME=%2 %3").arg(m_server.address(), m_server.clientHome(), line)});
            QVERIFY(bash.waitForFinished(20000));
            QVERIFY2(bash.exitCode() == 0, bash.readAllStandardError().constData());
            id = PrivateCupsServer::jobId(QString::fromUtf8(bash.readAllStandardOutput()));
        }
        QVERIFY(id > 0);

        PrivateCupsServer::CapturedJob job;
        QVERIFY2(m_server.waitForJob(m_queue, id, &job), qPrintable(m_server.errorLog()));
        QCOMPARE(job.title(), QStringLiteral("report one.pdf"));
        QCOMPARE(job.document, pdf);
        QCOMPARE(job.spooledDocuments, (QList<QByteArray>{pdf, text}));
        const QMap<QString, QString> got = job.parsedOptions();
        // Every job option is in the job: the marked choices (defaults too)
        // and the print settings. The scheduler keeps copies, hold, priority,
        // banners and the cancel timer for itself; printer attributes are no
        // job options; PPD booleans travel as IPP booleans.
        static const QStringList scheduler{"copies", "job-hold-until", "job-priority", "job-sheets", "job-cancel-after"};
        int checked = 0;
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            if (scheduler.contains(it.key()) || PresetStore::isPrinterAttribute(it.key()))
                continue;
            const bool boolean = it.value().compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
                                 || it.value().compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
            const bool hidden = PDESecrets::isSecretKey(it.key());  // a password stays out of the log
            QVERIFY2(got.value(it.key()).compare(it.value(), boolean ? Qt::CaseInsensitive : Qt::CaseSensitive) == 0,
                     qPrintable(hidden ? it.key() : QStringLiteral("%1: \"%2\" became \"%3\"").arg(it.key(), it.value(), got.value(it.key()))));
            ++checked;
        }
        QVERIFY2(checked > 40, "the sample printer's marked choices did not all reach the job");
    }

    // Bad input is found before anything reaches the server (exit 2, one
    // clear line, no job); a job CUPS refuses exits 1 with one line.
    void failuresSendNothing_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("missing document") << QStringList{"--print", "/nonexistent/doc.pdf"} << 2 << "/nonexistent/doc.pdf: no such file";
        // (A later --printer replaces the one every run starts with.)
        QTest::newRow("unknown queue") << QStringList{"--print", "@good", "--printer", "nosuchqueue"} << 2 << "nosuchqueue";
        QTest::newRow("choice the PPD lacks") << QStringList{"--print", "@good", "-o", "Duplex=Sideways"} << 2 << "Sideways";
        QTest::newRow("queue not accepting") << QStringList{"--print", "@good"} << 1 << "accepting";
        for (const char* bad : {"copies=abc", "copies=0", "number-up=3", "page-ranges=z-a", "orientation-requested=7"})
            QTest::newRow(bad) << QStringList{"--print", "@good", "-o", bad} << 2 << QString::fromLatin1(bad);
        QTest::newRow("conflict only hardware could resolve")
            << QStringList{"--print", "@good", "-o", "Option4=False JobSetting=Store"} << 2 << "conflicts with Option4=False";
        QTest::newRow("server not running") << QStringList{"--print", "@good", "--server", "127.0.0.1:1"} << 2
                                            << "127.0.0.1:1 cannot be reached: is the scheduler running?";
    }

    void failuresSendNothing()
    {
        QFETCH(QStringList, args);
        QFETCH(int, status);
        QFETCH(QString, message);
        args.replaceInStrings(QStringLiteral("@good"), writeDocument("good.txt", "fine\n"));
        QString output, out, err;
        if (status == 1)
            QVERIFY2(m_server.runClient("cupsreject", {"-r", "closed for the test", m_queue}, &output), qPrintable(output));
        const int before = jobsOnServer();
        const int got = print(args, &out, &err);
        QVERIFY2(m_server.runClient("cupsaccept", {m_queue}, &output), qPrintable(output));
        QCOMPARE(got, status);
        const QStringList lines = err.split(QLatin1Char('\n'), Qt::SkipEmptyParts).filter(QStringLiteral("print-panels:"));
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().contains(message, Qt::CaseInsensitive), qPrintable(lines.first()));
        QVERIFY(out.isEmpty());
        QCOMPARE(jobsOnServer(), before);
    }

    // A queue whose saved defaults hold an IPP attribute (grey) opens with
    // it as a mark; the user's colour choice then goes out
    // alone, with no print-color-mode that a filter would honour instead.
    // Without --printer the job goes to the default destination. A C source
    // goes as text/plain, the nearest type the queue takes.
    void savedIppDefaultsBecomeMarks()
    {
        QString error, out, err;
        QVERIFY2(m_server.addQueue("grey", TestSupport::samplePPD(), &error), qPrintable(error));
        QVERIFY(m_server.runClient("lpadmin", {"-p", "grey", "-o", "print-color-mode-default=monochrome"}, &out));
        QVERIFY(m_server.runClient("lpadmin", {"-d", "grey"}, &out));
        auto session = PanelSession::open({{}, {}, m_server.address(), {}, {}}, &error);
        QVERIFY2(session, qPrintable(error));
        QCOMPARE(session->options().printer, QStringLiteral("grey"));
        const QMap<QString, QString> opened = TestSupport::optionMap(session->host().jobOptions());
        QVERIFY(opened.value("ColorModel") == QLatin1String("Gray") && !opened.contains("print-color-mode"));

        const QString source = writeDocument("hello.c", "#include <stdio.h>\nint main(void) { return 0; }\n");
        QVERIFY2(m_server.print({"--print", source, "-o", "ColorModel=RGBA"}, &out, &err) == 0, qPrintable(err));
        PrivateCupsServer::CapturedJob job;
        QVERIFY2(m_server.waitForJob("grey", PrivateCupsServer::jobId(out), &job), qPrintable(out + m_server.errorLog()));
        QCOMPARE(m_server.jobAttribute(job.id, QStringLiteral("document-format-supplied")), QStringLiteral("text/plain"));
        const QMap<QString, QString> got = job.parsedOptions();
        QCOMPARE(got.value("ColorModel"), QStringLiteral("RGBA"));
        QVERIFY2(got.value("print-color-mode", "color") == QLatin1String("color"), qPrintable(job.options()));
    }
};

QTEST_MAIN(TestE2EPrint)
#include "tst_e2e_print.moc"
