// Presets as CUPS instances in the user's lpoptions, against a private cupsd:
// round trips read back by libcups and by a host, secrets never on disk, a
// file for the user alone, and bad input that changes nothing.
#include "CupsDestList.h"
#include "PresetStore.h"
#include "PrivateCupsServer.h"
#include "TestSupport.h"

#include <QDirIterator>
#include <QFile>
#include <QTest>
#include <cups/cups.h>
#include <sys/stat.h>

namespace {
using OptionList = PrintDialogHost::OptionList;
using TestSupport::optionMap;

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
    PresetStore store() const { return PresetStore(QStringLiteral("q"), m_server.address()); }

    QMap<QString, QString> load(const QString& name)
    {
        OptionList options;
        return store().load(name, &options) ? optionMap(options) : QMap<QString, QString>{{"error", "cannot be loaded"}};
    }

private slots:
    void initTestCase()
    {
        QString why;
        if (!PrivateCupsServer::canRun(&why))
            QSKIP(qPrintable(QStringLiteral("presets need a private cupsd, skipped: ") + why));
        // A second queue, the server's default, is in a class.
        QVERIFY2(m_server.start(&why) && m_server.addQueue("q", TestSupport::samplePPD(), &why) && m_server.addQueue("r", TestSupport::samplePPD(), &why)
                     && m_server.runClient("lpadmin", {"-d", "r"}, &why) && m_server.runClient("lpadmin", {"-p", "r", "-c", "cls"}, &why),
                 qPrintable(why));
        QVERIFY(PresetStore::lpoptionsPath().startsWith(m_server.clientHome() + QLatin1Char('/')));
        // The queue's saved options, as a user sets them with lpoptions, a
        // password among them (which does not belong in the file either).
        QVERIFY2(m_server.runClient("lpoptions", {"-p", "q", "-o", "Duplex=DuplexNoTumble note='from the queue' EnterPassword=QueuePw77"}, &why),
                 qPrintable(why));
        QVERIFY(fileBytes(PresetStore::lpoptionsPath()).contains("QueuePw77"));
    }

    void cleanupTestCase() { m_server.stop(); }

    void roundTrip_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<OptionList>("options");
        QTest::newRow("blanks, quotes, unicode")
            << QStringLiteral("Entw\u00fcrfe")
            << OptionList{{"PageSize", "A4"}, {"JOBNAME", "Quarterly report: Q3"}, {"quoted", "say \"hi\" and it's"},
                          {"path", "C:\\dir\\file name"}, {"braces", "{a=b} c=d"}, {"unicode", QStringLiteral("Gr\u00fc\u00dfe \u20ac \u65e5\u672c")}};
        QTest::newRow("overrides the queue") << "simplex" << OptionList{{"Duplex", "None"}, {"note", "mine"}};
    }

    // What was saved comes back from the store and from a host opened on the
    // preset; the queue's saved options are its start. The file, readable by
    // all before, is the user's alone after.
    void roundTrip()
    {
        QFETCH(QString, name);
        QFETCH(OptionList, options);
        QVERIFY(::chmod(QFile::encodeName(PresetStore::lpoptionsPath()).constData(), 0644) == 0);
        QString error;
        QVERIFY2(store().save(name, options, &error), qPrintable(error));
        QCOMPARE(modeOf(PresetStore::lpoptionsPath()), 0600);
        QVERIFY(store().names(&error).contains(name));
        auto host = PrintDialogHost::openPrinter(QStringLiteral("q/") + name, m_server.address(), &error);
        QVERIFY2(host, qPrintable(error));
        const QMap<QString, QString> loaded = load(name), job = optionMap(host->jobOptions()), given = optionMap(options);
        for (const auto& [key, value] : options)
            QVERIFY2(loaded.value(key) == value && job.value(key) == value, qPrintable(key));
        // Started from the queue's options where the preset says nothing.
        QCOMPARE(loaded.value("Duplex"), given.value("Duplex", "DuplexNoTumble"));
        QCOMPARE(loaded.value("note"), given.value("note", "from the queue"));
        // What the server says about the printer is not a job option.
        QVERIFY(!loaded.contains("printer-state") && !loaded.contains("device-uri"));
    }

    // Passwords and PINs are left out of presets and taken out of the file.
    void secretsNeverOnDisk()
    {
        QString error;
        const OptionList options{{"EnterPassword", "PresetPw1"}, {"NewPIN", "918273"}, {"job-password", "Job Pw3"}, {"note", "kept"}};
        QVERIFY2(store().save("secure", options, &error), qPrintable(error));
        for (const char* text : {"PresetPw1", "918273", "Job Pw3", "QueuePw77", "kept"}) {
            QStringList holding;
            for (QDirIterator it(m_server.clientHome(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();)
                if (const QString f = it.next(); fileBytes(f).contains(text))
                    holding << f;
            QCOMPARE(holding, qstrcmp(text, "kept") == 0 ? QStringList{PresetStore::lpoptionsPath()} : QStringList());
        }
        const QMap<QString, QString> loaded = load("secure");
        QVERIFY(loaded.value("note") == QLatin1String("kept") && !loaded.contains("EnterPassword") && !loaded.contains("NewPIN")
                && !loaded.contains("job-password"));
        OptionList saved;
        QVERIFY(store().savedOptions(&saved, &error) && !optionMap(saved).contains("EnterPassword"));
    }

    // Every line the store does not change stays (comments, unknown lines,
    // destinations this server does not know); "draft" replaces "Draft" afresh; the
    // queue's defaults and the default destination are read back by libcups.
    void keepsOtherLines()
    {
        const QByteArrayList others{"# my printers", "Dest elsewhere/Wide Duplex=DuplexTumble", "Something unknown"};
        QFile file(PresetStore::lpoptionsPath());
        QVERIFY(file.open(QIODevice::Append) && file.write("\n" + others.join('\n') + "\nDefault elsewhere\n") > 0);
        file.close();
        PresetStore presets = store();
        QString error;
        QVERIFY2(presets.save("Draft", {{"note", "first"}, {"extra", "first only"}}, &error) && presets.existingName("DRAFT") == QLatin1String("Draft"),
                 qPrintable(error));
        QVERIFY2(presets.save("draft", {{"note", "second"}}, &error), qPrintable(error));
        QVERIFY2(presets.setQueueDefaults({{"Duplex", "None"}, {"EnterPassword", "x1y2"}, {"note", "queue's"}}, &error)
                     && presets.setDefaultDestination("draft", &error), qPrintable(error));
        const QByteArray after = fileBytes(PresetStore::lpoptionsPath());
        for (const QByteArray& line : others + QByteArrayList{"Dest elsewhere\n", "Default q/draft "})
            QVERIFY2(after.contains(line), line.constData());
        QVERIFY(!after.contains("Draft") && !after.contains("x1y2"));
        QCOMPARE(modeOf(PresetStore::lpoptionsPath()), 0600);
        QCOMPARE(presets.names().filter("draft", Qt::CaseInsensitive), QStringList{"draft"});
        QVERIFY(load("draft").value("note") == QLatin1String("second") && !load("draft").contains("extra"));  // saved afresh
        cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
        QVERIFY(dest && qstrcmp(dest->name, "q") == 0 && qstrcmp(dest->instance, "draft") == 0);
        cupsFreeDests(1, dest);
        OptionList saved;
        QVERIFY(presets.savedOptions(&saved) && optionMap(saved).value("note") == QLatin1String("queue's"));
        // Deleting keeps the other presets, the queue's own options and the file's mode.
        QVERIFY2(presets.save("stays", {{"note", "here"}}, &error) && presets.remove("draft", &error), qPrintable(error));
        QCOMPARE(modeOf(PresetStore::lpoptionsPath()), 0600);
        QVERIFY(!presets.names().contains("draft") && !presets.load("draft", &saved, &error) && error.contains("draft"));
        QCOMPARE(load("stays").value("note"), QStringLiteral("here"));
        QVERIFY(presets.savedOptions(&saved) && optionMap(saved).value("Duplex") == QLatin1String("None"));
    }

    // Bad input gets a clear error and leaves the file as it was.
    void badInputChangesNothing_data()
    {
        QTest::addColumn<QString>("queue");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty name") << "q" << "" << "needs a name";
        QTest::newRow("blank in name") << "q" << "two words" << "blanks";
        QTest::newRow("slash in name") << "q" << "a/b" << "'/'";
        QTest::newRow("too long") << "q" << QString(128, QLatin1Char('x')) << "too long";
        QTest::newRow("unknown queue") << "nosuchqueue" << "fine" << "nosuchqueue";
    }

    void badInputChangesNothing()
    {
        QFETCH(QString, name);
        const QByteArray before = fileBytes(PresetStore::lpoptionsPath());
        PresetStore presets(cell<QString>("queue"), m_server.address());
        QString error;
        QVERIFY(!presets.save(name, {{"note", "never saved"}}, &error));
        QVERIFY2(error.contains(cell<QString>("message")), qPrintable(error));
        error.clear();
        QVERIFY(!presets.remove(name, &error) && !error.isEmpty());
        QCOMPARE(fileBytes(PresetStore::lpoptionsPath()), before);
    }

    // The destinations made of one server answer are libcups' own
    // (cupsGetDests2): names, instances, default marks and options, and the
    // default destination is the one cupsGetNamedDest finds.
    void destinationsAsLibcups_data()
    {
        QTest::addColumn<QByteArray>("systemFile");
        QTest::addColumn<QByteArray>("userFile");
        QTest::addColumn<QByteArray>("environment");  // NAME=VALUE, or empty
        QTest::newRow("server default") << QByteArray() << QByteArray() << QByteArray();
        QTest::newRow("instances take their queue's options as the lines come")
            << QByteArray("Dest q sys=1\nDest q/sys a=1 # a comment\n")
            << QByteArray("Dest q/draft Duplex=None note=\"two words\"\nDest Q copies=3 sys=2\nDest q/draft MediaType=Thick\nDest gone x=1\n")
            << QByteArray();
        QTest::newRow("user Default over the system's and the server's") << QByteArray("Default r/x\n") << QByteArray("Default q/draft\n") << QByteArray();
        QTest::newRow("a queue the files name loses the server's mark") << QByteArray() << QByteArray("Dest r a=1\n") << QByteArray();
        QTest::newRow("Default of a queue not on the server") << QByteArray() << QByteArray("Default gone\n") << QByteArray();
        QTest::newRow("LPDEST over Default") << QByteArray() << QByteArray("Default q/draft\n") << QByteArray("LPDEST=r");
        QTest::newRow("LPDEST of an instance") << QByteArray() << QByteArray("Dest q/draft a=1\n") << QByteArray("LPDEST=q/draft");
        QTest::newRow("PRINTER=lp is no default") << QByteArray() << QByteArray("Default q/draft\n") << QByteArray("PRINTER=lp");
        QTest::newRow("PRINTER") << QByteArray() << QByteArray("Dest q/draft\n") << QByteArray("PRINTER=cls");
    }

    void destinationsAsLibcups()
    {
        const QByteArray userFile = fileBytes(PresetStore::lpoptionsPath());
        for (const auto& [path, bytes] : {std::pair{m_server.clientHome() + "/lpoptions", cell<QByteArray>("systemFile")},
                                          std::pair{PresetStore::lpoptionsPath(), cell<QByteArray>("userFile")}}) {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
        }
        const QByteArrayList environment = cell<QByteArray>("environment").split('=');
        if (environment.size() == 2)
            qputenv(environment[0].constData(), environment[1]);
        auto lines = [](const cups_dest_t* dests, int count) {
            QStringList out;
            for (int i = 0; i < count; ++i) {
                QStringList options;
                for (int o = 0; o < dests[i].num_options; ++o)
                    options << QStringLiteral("%1=%2").arg(dests[i].options[o].name, dests[i].options[o].value);
                options.sort();
                out << QStringLiteral("%1/%2 default=%3 %4").arg(dests[i].name, dests[i].instance).arg(dests[i].is_default).arg(options.join(' '));
            }
            return out;
        };
        cups_dest_t* theirs = nullptr;
        const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &theirs);
        cups_dest_t* named = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
        const QString theirDefault = named ? QString(named->name) + (named->instance ? QStringLiteral("/") + named->instance : QString()) : "cls";
        const CupsDestList ours(m_server.address());
        QStringList mine;
        for (int i = 0; i < ours.count(); ++i)
            mine += lines(&ours.at(i), 1);
        qunsetenv("LPDEST"), qunsetenv("PRINTER");
        QFile user(PresetStore::lpoptionsPath());
        QVERIFY(user.open(QIODevice::WriteOnly) && user.write(userFile) == userFile.size() && count >= 3);
        QCOMPARE(mine, lines(theirs, count));
        QCOMPARE(ours.defaultDestination(), theirDefault);
        cupsFreeDests(count, theirs);
        cupsFreeDests(named ? 1 : 0, named);
    }
};

QTEST_MAIN(TestPresets)
#include "tst_presets.moc"
