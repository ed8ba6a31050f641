// The Linux print-dialog host: print settings and page format over CUPS
// options, opening PPDs, option strings as lp takes them, the job's options
// and the bundle.
#include "PDEBundle.h"
#include "PMPageFormat.h"
#include "PMPrintSettings.h"
#include "PanelSession.h"
#include "PrintDialogHost.h"
#include "TestSupport.h"

#include <QFile>
#include <QTest>
#include <cups/ppd.h>

class HostTest : public QObject {
    Q_OBJECT
private slots:
    void printSettingsValues()
    {
        PMPrintSettings s;
        QString v = QStringLiteral("untouched");
        QCOMPARE(PMPrintSettingsGetValue(&s, QStringLiteral("k"), &v), int(kPMKeyNotFound));
        QVERIFY(v.isNull());
        QCOMPARE(PMPrintSettingsGetValue(nullptr, QStringLiteral("k"), &v), int(kPMInvalidParameter));
        QCOMPARE(PMPrintSettingsSetValue(&s, QString(), QStringLiteral("x"), false), int(kPMInvalidParameter));

        const QString hostile = QStringLiteral("a b 'c' \"d\" \\ \n=; %s %@ ünï");
        QCOMPARE(PMPrintSettingsSetValue(&s, QStringLiteral("k"), hostile, false), int(kPMNoError));
        QCOMPARE(PMPrintSettingsSetValue(&s, QStringLiteral("e"), QLatin1String(""), false), int(kPMNoError));
        QCOMPARE(PMPrintSettingsGetValue(&s, QStringLiteral("k"), &v), int(kPMNoError));
        QCOMPARE(v, hostile);
        QCOMPARE(PMPrintSettingsGetValue(&s, QStringLiteral("e"), &v), int(kPMNoError));
        QVERIFY(!v.isNull() && v.isEmpty());
        // Insertion order is kept; setting again replaces in place.
        s.setValue(QStringLiteral("k"), QStringLiteral("2"));
        QCOMPARE(s.entries().first().first, QStringLiteral("k"));

        // Through CUPS options and back, the text survives whole.
        s.setValue(QStringLiteral("k"), hostile);
        cups_option_t* options = nullptr;
        const int n = s.toCupsOptions(&options);
        QCOMPARE(n, 2);
        QCOMPARE(QString::fromUtf8(cupsGetOption("k", n, options)), hostile);
        cupsFreeOptions(n, options);

        unsigned copies = 0;
        QCOMPARE(PMGetCopies(&s, &copies), int(kPMNoError));
        QCOMPARE(copies, 1u);
        s.setValue(QStringLiteral("copies"), QStringLiteral("12"));
        PMGetCopies(&s, &copies);
        QCOMPARE(copies, 12u);
        s.setValue(QStringLiteral("copies"), QStringLiteral("-3"));
        PMGetCopies(&s, &copies);
        QCOMPARE(copies, 1u);
    }

    // Orientation, n-up layout and cover page as the page format derives them from the job's options.
    void derivedValues_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QList<int>>("expected");  // orientation, rows, columns, cover page
        QTest::newRow("defaults") << "" << QList<int>{1, 1, 1, 1};
        QTest::newRow("portrait, 2-up") << "orientation-requested=3 number-up=2" << QList<int>{1, 1, 2, 1};
        QTest::newRow("landscape, 4-up") << "orientation-requested=4 number-up=4" << QList<int>{2, 2, 2, 1};
        QTest::newRow("reverse landscape, 6-up") << "orientation-requested=5 number-up=6" << QList<int>{4, 2, 3, 1};
        QTest::newRow("reverse portrait, 9-up") << "orientation-requested=6 number-up=9" << QList<int>{3, 3, 3, 1};
        QTest::newRow("landscape alone, 16-up") << "landscape number-up=16" << QList<int>{2, 4, 4, 1};
        QTest::newRow("requested wins over landscape, odd n-up") << "landscape orientation-requested=3 number-up=5" << QList<int>{1, 1, 1, 1};
        QTest::newRow("banner first") << "job-sheets=standard,none" << QList<int>{1, 1, 1, 2};
        QTest::newRow("banner last only") << "job-sheets=none,standard" << QList<int>{1, 1, 1, 1};
    }

    void derivedValues()
    {
        PMPrintSettings s;
        s.addCupsOptionString(cell<QString>("options"));
        PMPageFormat format(&s);
        PMOrientation o {};
        QList<int> got(4);
        QCOMPARE(PMGetOrientation(&format, &o), int(kPMNoError));
        got[0] = int(o);
        const char* keys[] = {kPMLayoutRows, kPMLayoutColumns, kPMCoverPage};
        for (int i = 0; i < 3; ++i)
            QCOMPARE(PMPrintSettingsGetDerivedInt(&s, QLatin1String(keys[i]), &got[i + 1]), int(kPMNoError));
        QTEST(got, "expected");
    }

    // Option strings as -o takes them (no key), and job values by key.
    void validation_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::newRow("plain") << "" << "a=1 b=2" << true;
        QTest::newRow("bare name") << "" << "landscape" << true;
        QTest::newRow("single quotes") << "" << "k='a b'" << true;
        QTest::newRow("double quotes") << "" << "k=\"a 'b'\"" << true;
        QTest::newRow("escaped quote") << "" << "k=a\\'b" << true;
        QTest::newRow("braces") << "" << "k={a=1 b=2}" << true;
        QTest::newRow("empty") << "" << "" << true;
        QTest::newRow("no name") << "" << "=value" << false;
        QTest::newRow("open quote") << "" << "k='a b" << false;
        QTest::newRow("open brace") << "" << "k={a" << false;
        QTest::newRow("stray brace") << "" << "k=a}" << false;
        QTest::newRow("trailing backslash") << "" << "k=a\\" << false;
        QTest::newRow("control in name") << "" << "k\x01=1" << false;
        QTest::newRow("copies") << "copies" << "2" << true;
        QTest::newRow("copies not a number") << "copies" << "abc" << false;
        QTest::newRow("no copies") << "copies" << "0" << false;
        QTest::newRow("too many copies") << "copies" << "10000" << false;
        QTest::newRow("four up") << "number-up" << "4" << true;
        QTest::newRow("three up") << "number-up" << "3" << false;
        QTest::newRow("ranges") << "page-ranges" << "1-3,5,8-" << true;
        QTest::newRow("range up to") << "page-ranges" << "-4" << true;
        QTest::newRow("letters") << "page-ranges" << "z-a" << false;
        QTest::newRow("backwards") << "page-ranges" << "5-2" << false;
        QTest::newRow("page zero") << "page-ranges" << "0-2" << false;
        QTest::newRow("empty part") << "page-ranges" << "1,,2" << false;
        QTest::newRow("trailing comma") << "page-ranges" << "2," << false;
        QTest::newRow("reverse portrait") << "orientation-requested" << "6" << true;
        QTest::newRow("orientation 7") << "orientation-requested" << "7" << false;
        QTest::newRow("other keys pass") << "note" << "anything" << true;
    }

    void validation()
    {
        QFETCH(QString, key);
        QFETCH(QString, text);
        QFETCH(bool, valid);
        QString error;
        QCOMPARE(key.isEmpty() ? PrintDialogHost::validateOptionString(text, &error) : PrintDialogHost::checkJobValue(key, text, &error), valid);
        QCOMPARE(error.isEmpty(), valid);
        QVERIFY(valid || error.contains(key));
    }

    void openErrors_data()
    {
        QTest::addColumn<QString>("content");  // null: the file does not exist
        QTest::addColumn<QString>("message");
        QTest::newRow("missing") << QString() << "no such file";
        QTest::newRow("not a PPD") << "hello, world\n" << "not a valid PPD file";
        QTest::newRow("empty") << "" << "not a valid PPD file";
        QTest::newRow("broken structure") << "*PPD-Adobe: \"4.3\"\n*OpenGroup: A/A\n*OpenGroup: B/B\n" << "line 3";
        QTest::newRow("a folder") << "<dir>" << "cannot be read";
    }

    void openErrors()
    {
        QFETCH(QString, content);
        QTemporaryDir dir;
        QString path = dir.filePath(QStringLiteral("x.ppd"));
        if (content == QLatin1String("<dir>"))
            QVERIFY(QDir().mkpath(path));
        else if (!content.isNull())
            QVERIFY(!TestSupport::writeFile(path, content.toUtf8()).isEmpty());
        QString error;
        QVERIFY(!PrintDialogHost::openPPDFile(path, &error));
        QVERIFY2(error.contains(cell<QString>("message")), qPrintable(error));
        QVERIFY(error.contains(path));
    }

    // Every -o goes through approval, in the order written; a later choice
    // wins, what resolution changed is told, and a conflict only the installed
    // hardware could resolve is an error. IPP attributes become the marks they
    // stand for and are not sent beside them.
    void conflictsResolvedInOrder_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("marks");  // key=choice expected among the job's options
        QTest::addColumn<QString>("told");       // the resolution line, or the error
        QTest::newRow("media type rules out duplex") << QStringList{"Duplex=DuplexNoTumble MediaType=Transparency"}
                                                     << QStringList{"Duplex=None", "MediaType=Transparency"} << "2-Sided Printing set to Off";
        QTest::newRow("the later choice wins") << QStringList{"MediaType=Transparency", "Duplex=DuplexNoTumble"}
                                               << QStringList{"Duplex=DuplexNoTumble", "MediaType=Plain"} << "Media Type set to Plain";
        QTest::newRow("stapling picks the finisher's bin") << QStringList{"StapleLocation=Single"} << QStringList{"StapleLocation=Single"}
                                                           << "Output Bin set to";
        QTest::newRow("tray gone with the optional tray") << QStringList{"InputSlot=Tray4 OptionalTray=OneTray"}
                                                          << QStringList{"InputSlot=Auto"} << "Paper Source set to Auto Select";
        QTest::newRow("only hardware could resolve") << QStringList{"Option4=False JobSetting=Store"} << QStringList{}
                                                     << "JobSetting=Store conflicts with Option4=False";
        QTest::newRow("IPP colour mode") << QStringList{"print-color-mode=monochrome"} << QStringList{"ColorModel=Gray"} << "";
        QTest::newRow("IPP sides") << QStringList{"sides=two-sided-short-edge"} << QStringList{"Duplex=DuplexTumble"} << "";
    }

    void conflictsResolvedInOrder()
    {
        QFETCH(QStringList, marks);
        QFETCH(QString, told);
        QString error;
        auto session = PanelSession::open({TestSupport::samplePPD(), {}, {}, {}, cell<QStringList>("options")}, &error);
        if (marks.isEmpty()) {
            QVERIFY(!session);
            QVERIFY2(error.contains(told), qPrintable(error));
            return;
        }
        QVERIFY2(session, qPrintable(error));
        const QMap<QString, QString> got = TestSupport::optionMap(session->host().jobOptions());
        QVERIFY(!got.contains(QStringLiteral("print-color-mode")) && !got.contains(QStringLiteral("sides")));
        for (const QString& m : marks)
            QVERIFY2(got.value(m.section(QLatin1Char('='), 0, 0)) == m.section(QLatin1Char('='), 1), qPrintable(m));
        const QString line = session->openingNotes().join(QLatin1Char('\n'));
        QVERIFY2(told.isEmpty() ? line.isEmpty() : line.contains(told), qPrintable(line));
    }

    void jobOptions()
    {
        QTemporaryDir dir;
        const QString ppd = TestSupport::writePPDFromFixture(dir, QStringLiteral("j.ppd"), QStringLiteral("host-duplex-unit.txt"));
        auto host = TestSupport::openHost(ppd);
        QVERIFY(host);
        QString error;
        QVERIFY(!host->applyOptions(QStringLiteral("PageSize=Nonsense"), &error));
        QVERIFY2(error.contains(QStringLiteral("PageSize")) && error.contains(QStringLiteral("Letter")), qPrintable(error));
        // A bad option in a list changes nothing of the list.
        QVERIFY(!host->applyOptions(QStringLiteral("PageSize=A4 note=x PageSize=Bad"), &error));
        QCOMPARE(host->jobOptions(), (PrintDialogHost::OptionList{{"Duplex", "None"}, {"PageSize", "Letter"}}));
        // The marks and the other options, sorted; a PPD option is a mark, not a print setting.
        QVERIFY(host->applyOptions(QStringLiteral("Duplex=DuplexNoTumble zeta=1 PageSize=A4 alpha='x y'"), &error));
        PrintDialogHost::OptionList expected{{"Duplex", "DuplexNoTumble"}, {"PageSize", "A4"}, {"alpha", "x y"}, {"zeta", "1"}};
        QCOMPARE(host->jobOptions(), expected);
        QVERIFY(!host->printSettings()->contains(QStringLiteral("PageSize")));
    }

    void bundle()
    {
        QTemporaryDir dir;
        auto b = TestSupport::bundleWithInfo(dir, {{"UseMergedPDE", true}, {"DEBUG", "NO"}, {"CFBundleIdentifier", "org.example"}});
        QVERIFY(b);
        QCOMPARE(b->objectForInfoDictionaryKey(QStringLiteral("UseMergedPDE")).typeId(), int(QMetaType::Bool));
        QCOMPARE(b->bundleIdentifier(), QStringLiteral("org.example"));
        QVERIFY(b->pathForResource(QStringLiteral("Nothing"), QStringLiteral("plist")).isNull());

        auto embedded = PDEBundle::embedded();
        QVERIFY(embedded);
        QCOMPARE(embedded->objectForInfoDictionaryKey(QStringLiteral("UseMergedPDE")).toString(), QStringLiteral("YES"));
        QVERIFY(!embedded->pathForResource(QStringLiteral("velmora-c5500"), QStringLiteral("ppd")).isEmpty());
        embedded->setLanguage(QStringLiteral("de"));
        QCOMPARE(embedded->localizedString(QStringLiteral("UserID"), QStringLiteral("Localizable")), QStringLiteral("Benutzer-ID"));
        QCOMPARE(embedded->localizedString(QStringLiteral("NoSuchKey"), QStringLiteral("Localizable")), QStringLiteral("NoSuchKey"));
        embedded->setLanguage(QStringLiteral("xx"));
        QCOMPARE(embedded->language(), QStringLiteral("en"));

        QString error;
        QVERIFY(!TestSupport::writeFile(dir.filePath(QStringLiteral("Info.json")), "[1,2").isEmpty());
        QVERIFY(!PDEBundle::open(dir.path(), &error));
        QVERIFY(error.contains(QStringLiteral("not a JSON object")));
    }
};

QTEST_MAIN(HostTest)
#include "tst_host.moc"
