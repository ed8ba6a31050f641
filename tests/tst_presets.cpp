// Presets as CUPS instances in the user's lpoptions, against a private cupsd:
// round trips read back by libcups, from the file and by the host, secrets never on
// disk, a private file, and bad input that changes nothing.
#include "PDESecrets.h"
#include "PresetStore.h"
#include "PrintDialogHost.h"
#include "PrivateCupsServer.h"
#include "TestSupport.h"

#include <QDirIterator>
#include <QFile>
#include <QTest>
#include <cups/cups.h>
#include <sys/stat.h>

namespace {
using OptionList = PrintDialogHost::OptionList;

QString valueOf(const OptionList& options, const QString& key)
{
    for (const auto& [k, v] : options)
        if (k == key)
            return v;
    return QString();
}

bool hasKey(const OptionList& options, const QString& key)
{
    for (const auto& o : options)
        if (o.first == key)
            return true;
    return false;
}

QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

int modeOf(const QString& path)
{
    struct stat st;
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? int(st.st_mode & 07777) : -1;
}
}

class TestPresets : public QObject {
    Q_OBJECT

private:
    PrivateCupsServer m_server;
    const QString m_queue = QStringLiteral("q");

    PresetStore store() const { return PresetStore(m_queue, m_server.address()); }

    // Every file under the clients' home whose bytes hold the text.
    QStringList filesHolding(const QString& text) const
    {
        QStringList hits;
        QDirIterator it(m_server.clientHome(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString f = it.next();
            if (fileBytes(f).contains(text.toUtf8()))
                hits << f;
        }
        return hits;
    }

    // A preset's line in the lpoptions file ("Dest QUEUE/NAME options"), its
    // options read with cupsParseOptions as libcups and lp read them.
    static OptionList lineInFile(const QString& instance)
    {
        const QByteArray prefix = QStringLiteral("Dest q/%1 ").arg(instance).toUtf8();
        for (const QByteArray& line : fileBytes(PresetStore::lpoptionsPath()).split('\n')) {
            if (!line.startsWith(prefix))
                continue;
            OptionList options;
            cups_option_t* parsed = nullptr;
            const int n = cupsParseOptions(line.mid(prefix.size()).constData(), 0, &parsed);
            for (int i = 0; i < n; ++i)
                options.append({QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value)});
            cupsFreeOptions(n, parsed);
            return options;
        }
        return {};
    }

private slots:
    void initTestCase()
    {
        QString why;
        if (!PrivateCupsServer::canRun(&why))
            QSKIP(qPrintable(QStringLiteral("presets need a private cupsd, skipped: ") + why));
        QString error;
        QVERIFY2(m_server.start(&error), qPrintable(error));
        // libcups in this process reads and writes the clients' private home only.
        m_server.applyClientEnvironment();
        QVERIFY2(PresetStore::lpoptionsPath().startsWith(m_server.clientHome() + QLatin1Char('/')), qPrintable(PresetStore::lpoptionsPath()));
        QVERIFY2(m_server.addQueue(m_queue, TestSupport::samplePPD(), &error), qPrintable(error));
        // The queue's saved options, as a user sets them with lpoptions, a
        // password among them (which does not belong in the file either).
        QString out;
        QVERIFY2(m_server.runClient(QStringLiteral("lpoptions"),
                                    {QStringLiteral("-p"), m_queue, QStringLiteral("-o"), QStringLiteral("Duplex=DuplexNoTumble"),
                                     QStringLiteral("-o"), QStringLiteral("note='from the queue'"), QStringLiteral("-o"),
                                     QStringLiteral("EnterPassword=QueuePw77")},
                                    &out),
                 qPrintable(out));
        QVERIFY(fileBytes(PresetStore::lpoptionsPath()).contains("QueuePw77"));
    }

    void cleanupTestCase()
    {
        m_server.stop();
    }

    void roundTrip_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<OptionList>("options");
        QTest::newRow("choices") << "draft" << OptionList{{"PageSize", "A4"}, {"MediaType", "Thick"}, {"number-up", "2"}};
        QTest::newRow("blanks and quotes") << "letters" << OptionList{{"JOBNAME", "Quarterly report: Q3"},
                                                                      {"quoted", "say \"hi\" and it's"},
                                                                      {"path", "C:\\dir\\file name"},
                                                                      {"braces", "a {b} c"},
                                                                      {"equals", "a=b c=d"}};
        QTest::newRow("unicode name and value") << QStringLiteral("Entw\u00fcrfe")
                                                << OptionList{{"note", QStringLiteral("Gr\u00fc\u00dfe \u20ac \u65e5\u672c")}};
        QTest::newRow("overrides the queue") << "simplex" << OptionList{{"Duplex", "None"}, {"note", "mine"}};
    }

    // What was saved comes back from the store, from the file and from a
    // host opened on the preset; the queue's saved options are its start.
    void roundTrip()
    {
        QFETCH(QString, name);
        QFETCH(OptionList, options);
        PresetStore presets = store();
        QString error;
        QVERIFY2(presets.save(name, options, &error), qPrintable(error));
        QVERIFY(presets.names(&error).contains(name));

        OptionList loaded;
        QVERIFY2(presets.load(name, &loaded, &error), qPrintable(error));
        for (const auto& [key, value] : options)
            QCOMPARE(valueOf(loaded, key), value);
        // Started from the queue's options where the preset says nothing.
        if (!hasKey(options, QStringLiteral("Duplex")))
            QCOMPARE(valueOf(loaded, QStringLiteral("Duplex")), QStringLiteral("DuplexNoTumble"));
        if (!hasKey(options, QStringLiteral("note")))
            QCOMPARE(valueOf(loaded, QStringLiteral("note")), QStringLiteral("from the queue"));
        // What the server says about the printer is not a job option.
        QVERIFY(!hasKey(loaded, QStringLiteral("printer-state")));
        QVERIFY(!hasKey(loaded, QStringLiteral("device-uri")));

        const OptionList inFile = lineInFile(name);
        for (const auto& [key, value] : options)
            QCOMPARE(valueOf(inFile, key), value);

        auto host = PrintDialogHost::openPrinter(m_queue + QLatin1Char('/') + name, m_server.address(), &error);
        QVERIFY2(host, qPrintable(error));
        const OptionList job = host->jobOptions();
        for (const auto& [key, value] : options)
            QCOMPARE(valueOf(job, key), value);
    }

    // Passwords and PINs are left out of presets and taken out of the file.
    void secretsNeverOnDisk()
    {
        const OptionList options{{"EnterPassword", "PresetPw1"},  {"ConfirmPassword", "PresetPw1"}, {"NewPIN", "918273"},
                                 {"AccountPassword", "Acct Pw2"}, {"job-password", "JobPw3"},       {"note", "kept"}};
        for (const auto& [key, value] : options)
            QCOMPARE(PDESecrets::isSecretKey(key), key != QLatin1String("note"));
        PresetStore presets = store();
        QString error;
        QVERIFY2(presets.save(QStringLiteral("secure"), options, &error), qPrintable(error));

        for (const QString& secret : {QStringLiteral("PresetPw1"), QStringLiteral("918273"), QStringLiteral("Acct Pw2"),
                                      QStringLiteral("JobPw3"), QStringLiteral("QueuePw77")})
            QVERIFY2(filesHolding(secret).isEmpty(), qPrintable(secret + QStringLiteral(" written to ") + filesHolding(secret).join(u',')));
        QVERIFY(filesHolding(QStringLiteral("kept")).contains(PresetStore::lpoptionsPath()));

        OptionList loaded;
        QVERIFY2(presets.load(QStringLiteral("secure"), &loaded, &error), qPrintable(error));
        QCOMPARE(valueOf(loaded, QStringLiteral("note")), QStringLiteral("kept"));
        for (const auto& o : loaded)
            QVERIFY2(!PDESecrets::isSecretKey(o.first), qPrintable(o.first));
        OptionList saved;
        QVERIFY(presets.savedOptions(&saved, &error));
        QVERIFY(!hasKey(saved, QStringLiteral("EnterPassword")));
    }

    // The file is the user's alone, also when it was readable by all before.
    void fileIsPrivate()
    {
        const QString path = PresetStore::lpoptionsPath();
        QVERIFY(QFile::exists(path));
        QVERIFY(::chmod(QFile::encodeName(path).constData(), 0644) == 0);
        QCOMPARE(modeOf(path), 0644);
        PresetStore presets = store();
        QString error;
        QVERIFY2(presets.save(QStringLiteral("private"), {{"note", "0600"}}, &error), qPrintable(error));
        QCOMPARE(modeOf(path), 0600);
        QVERIFY2(presets.remove(QStringLiteral("private"), &error), qPrintable(error));
        QCOMPARE(modeOf(path), 0600);
    }

    // Saving again starts afresh from the queue's options.
    void savingAgainReplaces()
    {
        PresetStore presets = store();
        QString error;
        QVERIFY2(presets.save(QStringLiteral("again"), {{"note", "first"}, {"extra", "only the first time"}}, &error), qPrintable(error));
        QVERIFY2(presets.save(QStringLiteral("again"), {{"note", "second"}}, &error), qPrintable(error));
        OptionList loaded;
        QVERIFY2(presets.load(QStringLiteral("again"), &loaded, &error), qPrintable(error));
        QCOMPARE(valueOf(loaded, QStringLiteral("note")), QStringLiteral("second"));
        QVERIFY(!hasKey(loaded, QStringLiteral("extra")));
        QCOMPARE(presets.names().count(QStringLiteral("again")), 1);
    }

    void deleteKeepsTheOthers()
    {
        PresetStore presets = store();
        QString error;
        QVERIFY2(presets.save(QStringLiteral("gone"), {{"note", "bye"}}, &error), qPrintable(error));
        QVERIFY2(presets.save(QStringLiteral("stays"), {{"note", "here"}}, &error), qPrintable(error));
        QVERIFY2(presets.remove(QStringLiteral("gone"), &error), qPrintable(error));
        const QStringList names = presets.names(&error);
        QVERIFY(!names.contains(QStringLiteral("gone")));
        QVERIFY(names.contains(QStringLiteral("stays")));
        OptionList loaded;
        QVERIFY(!presets.load(QStringLiteral("gone"), &loaded, &error));
        QVERIFY2(error.contains(QStringLiteral("gone")), qPrintable(error));
        QVERIFY(presets.load(QStringLiteral("stays"), &loaded, &error));
        QCOMPARE(valueOf(loaded, QStringLiteral("note")), QStringLiteral("here"));
        // The queue's own saved options are still there.
        OptionList saved;
        QVERIFY(presets.savedOptions(&saved, &error));
        QCOMPARE(valueOf(saved, QStringLiteral("Duplex")), QStringLiteral("DuplexNoTumble"));
        error.clear();
        QVERIFY(!presets.remove(QStringLiteral("gone"), &error));
        QVERIFY(!error.isEmpty());
    }

    // Bad input gets a clear error and leaves the file as it was.
    void badInputChangesNothing_data()
    {
        QTest::addColumn<QString>("queue");
        QTest::addColumn<QString>("server");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty name") << "q" << "" << "" << "needs a name";
        QTest::newRow("blank in name") << "q" << "" << "two words" << "blanks";
        QTest::newRow("slash in name") << "q" << "" << "a/b" << "'/'";
        QTest::newRow("hash in name") << "q" << "" << "a#b" << "'#'";
        QTest::newRow("control character") << "q" << "" << "a\tb" << "blanks";
        QTest::newRow("too long") << "q" << "" << QString(128, QLatin1Char('x')) << "too long";
        QTest::newRow("unknown queue") << "nosuchqueue" << "" << "fine" << "nosuchqueue";
        QTest::newRow("server down") << "q" << "127.0.0.1:1" << "fine" << "printer q";
    }

    void badInputChangesNothing()
    {
        QFETCH(QString, queue);
        QFETCH(QString, server);
        QFETCH(QString, name);
        QFETCH(QString, message);
        const QString path = PresetStore::lpoptionsPath();
        const QByteArray before = fileBytes(path);
        PresetStore presets(queue, server.isEmpty() ? m_server.address() : server);
        QString error;
        QVERIFY(!presets.save(name, {{"note", "never saved"}}, &error));
        QVERIFY2(error.contains(message), qPrintable(error));
        error.clear();
        QVERIFY(!presets.remove(name, &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(fileBytes(path), before);
    }
};

QTEST_MAIN(TestPresets)
#include "tst_presets.moc"
