// PrintJob without a server: the document type it sends and the documents
// it refuses before anything leaves the program.
#include "PrintJob.h"
#include "TestSupport.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestPrintJob : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile f(m_dir.filePath(name));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return QString();
        f.write(bytes);
        return f.fileName();
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void documentFormat_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("supported");
        QTest::addColumn<QString>("format");
        const QByteArray pdf("%PDF-1.4\n1 0 obj\n<<>>\nendobj\n%%EOF\n");
        const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000010000000108060000001f15c489");
        const QByteArray csource("#include <stdio.h>\nint main(void) { return 0; }\n");
        const QStringList queue{"application/octet-stream", "application/pdf", "application/postscript", "text/plain"};
        QTest::newRow("pdf by content") << "scan.bin" << pdf << queue << "application/pdf";
        QTest::newRow("pdf the queue cannot take") << "doc.pdf" << pdf << QStringList{"text/plain"} << "application/octet-stream";
        QTest::newRow("postscript") << "page.ps" << QByteArray("%!PS-Adobe-3.0\nshowpage\n") << queue << "application/postscript";
        QTest::newRow("C source as text") << "main.c" << csource << queue << "text/plain";
        QTest::newRow("C source, any type taken") << "main.c" << csource << QStringList{} << "text/x-csrc";
        QTest::newRow("html as html") << "page.html" << QByteArray("<!DOCTYPE html><html><body>x</body></html>\n")
                                      << QStringList{"text/html", "text/plain"} << "text/html";
        QTest::newRow("html as text") << "page.html" << QByteArray("<!DOCTYPE html><html><body>x</body></html>\n") << queue
                                      << "text/plain";
        QTest::newRow("png taken") << "pic.png" << png << QStringList{"image/png", "application/pdf"} << "image/png";
        QTest::newRow("png not taken") << "pic.png" << png << queue << "application/octet-stream";
        QTest::newRow("unknown bytes") << "blob" << QByteArray::fromHex("00ff10ee20dd30cc40bb50aa") << queue
                                       << "application/octet-stream";
        QTest::newRow("case of the queue's list") << "doc.pdf" << pdf << QStringList{"Application/PDF"} << "application/pdf";
    }

    void documentFormat()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QStringList, supported);
        QFETCH(QString, format);
        const QString path = write(name, content);
        QVERIFY(!path.isEmpty());
        QCOMPARE(PrintJob::documentFormat(path, supported), format);
    }

    // Bad documents stop the job before the server is asked (the server
    // here does not exist: a refusal from it would read differently).
    void badDocumentsAreRefusedFirst_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("message");
        QTest::newRow("none") << QStringList{} << "no document to print";
        QTest::newRow("missing") << QStringList{"@good", "/nonexistent/x.pdf"} << "/nonexistent/x.pdf: no such file";
        QTest::newRow("folder") << QStringList{"@dir"} << "is a folder";
        QTest::newRow("empty") << QStringList{"@empty"} << "is empty";
    }

    void badDocumentsAreRefusedFirst()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, message);
        files.replaceInStrings("@good", write("good.txt", "text\n"));
        files.replaceInStrings("@empty", write("empty.txt", QByteArray()));
        files.replaceInStrings("@dir", m_dir.path());
        PrintJob job(QStringLiteral("q"), QStringLiteral("127.0.0.1:1"));
        job.setFiles(files);
        QString error;
        QVERIFY(!job.checkDocuments(&error));
        QVERIFY2(error.contains(message), qPrintable(error));
        QVERIFY(!job.submit());
        QCOMPARE(job.status(), PrintJob::Status::BadInput);
        QVERIFY2(job.errorString().contains(message), qPrintable(job.errorString()));
        QCOMPARE(job.jobId(), 0);
    }

    // Good documents and no server: a CUPS failure that names the server.
    void unreachableServerIsACupsError()
    {
        PrintJob job(QStringLiteral("q"), QStringLiteral("127.0.0.1:1"));
        job.setFiles({write("good.txt", "text\n")});
        QString error;
        QVERIFY(job.checkDocuments(&error));
        QVERIFY(!job.submit());
        QCOMPARE(job.status(), PrintJob::Status::CupsError);
        QVERIFY2(job.errorString().contains(QStringLiteral("127.0.0.1:1")), qPrintable(job.errorString()));
        QVERIFY(!job.errorString().contains(QLatin1Char('\n')));
    }

    void titleIsTheFirstDocumentsName()
    {
        PrintJob job(QStringLiteral("q"));
        job.setFiles({QStringLiteral("/a/b/first one.pdf"), QStringLiteral("/c/second.txt")});
        QCOMPARE(job.title(), QStringLiteral("first one.pdf"));
        job.setTitle(QStringLiteral("Mine"));
        QCOMPARE(job.title(), QStringLiteral("Mine"));
    }
};

QTEST_MAIN(TestPrintJob)
#include "tst_printjob.moc"
