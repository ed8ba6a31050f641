// PrintJob without a server: the document type it sends and the documents
// it refuses before anything leaves the program.
#include "PrintJob.h"

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
        return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size() ? f.fileName() : QString();
    }

private slots:
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
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QStringList, supported);
        QTEST(PrintJob::documentFormat(write(name, content), supported), "format");
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
        files.replaceInStrings("@dir", m_dir.path());
        PrintJob job(QStringLiteral("q"), QStringLiteral("127.0.0.1:1"));
        job.setFiles(files);
        QString error;
        QCOMPARE(job.checkDocuments(&error), status != int(PrintJob::Status::BadInput));
        QVERIFY(!job.submit());
        QCOMPARE(int(job.status()), status);
        QVERIFY2(job.errorString().contains(message) && !job.errorString().contains(QLatin1Char('\n')), qPrintable(job.errorString()));
    }
};

QTEST_MAIN(TestPrintJob)
#include "tst_printjob.moc"
