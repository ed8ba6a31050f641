// The plug-in entry: which panels are offered, the debug switch, the log
// formats and version probes, and the headless command line around them.
#include "MRPDE_MACChangeHandlerModel.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "PDELogSink.h"
#include "PDEPanel.h"
#include "PDEPanelFactory.h"
#include "PanelSession.h"
#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <cups/ppd.h>

class EntryTest : public QObject {
    Q_OBJECT
private slots:
    void standalonePanelDecision_data()
    {
        QTest::addColumn<QVariant>("merged");  // invalid: key absent
        QTest::addColumn<QStringList>("extensions");
        QTest::addColumn<bool>("offered");

        const QStringList none;
        const QStringList unrelated{"/usr/lib/velmora/ColorProfiles.plugin", "Velmora Toolbox"};
        QTest::newRow("YES, no attribute") << QVariant("YES") << none << true;
        QTest::newRow("YES, unrelated attributes") << QVariant("YES") << unrelated << true;
        QTest::newRow("YES, advanced options extension")
            << QVariant("YES") << QStringList{"/Library/Printers/Velmora/PDEs/AdvancedOptionPDE.plugin"} << false;
        QTest::newRow("YES, special pages after an unrelated one")
            << QVariant("YES") << QStringList{"/x/Other.plugin", "/x/SpecialPagePDE.plugin"} << false;
        QTest::newRow("YES, pattern is case-sensitive") << QVariant("YES") << QStringList{"/x/advancedoptionpde.plugin"} << true;
        QTest::newRow("absent") << QVariant() << none << false;
        QTest::newRow("lower-case yes") << QVariant("yes") << none << false;
        QTest::newRow("boolean true") << QVariant(true) << none << false;
        QTest::newRow("YES with a blank") << QVariant("YES ") << none << false;
    }

    void standalonePanelDecision()
    {
        QFETCH(QVariant, merged);

        QTemporaryDir dir;
        QVariantMap info{{"CFBundleIdentifier", "org.printpanels.pde"}};
        if (merged.isValid())
            info.insert(QStringLiteral("UseMergedPDE"), merged);
        auto bundle = TestSupport::bundleWithInfo(dir, info);
        QVERIFY(bundle);
        QString body;
        for (const QString& e : cell<QStringList>("extensions"))
            body += QStringLiteral("*APDialogExtension: \"%1\"\n").arg(e);
        auto host = TestSupport::openHost(TestSupport::writePPD(dir, QStringLiteral("x.ppd"), body));
        QVERIFY(host);
        QTEST(MRPDE_MACFirstEventHandler::offersStandalonePanels(bundle.get(), host->ppd()), "offered");
    }

    void debugSwitchFromInfo_data()
    {
        QTest::addColumn<QVariant>("debug");  // invalid: key absent
        QTest::addColumn<bool>("logs");
        QTest::newRow("absent") << QVariant() << false;
        QTest::newRow("NO still turns it on") << QVariant("NO") << true;
        QTest::newRow("empty string") << QVariant("") << true;
        QTest::newRow("false") << QVariant(false) << true;
    }

    void debugSwitchFromInfo()
    {
        QFETCH(QVariant, debug);
        QFETCH(bool, logs);
        // The switch lives for the process, so each case runs in a process of its own.
        QTemporaryDir dir;
        QVariantMap info{{"UseMergedPDE", "YES"}};
        if (debug.isValid())
            info.insert(QStringLiteral("DEBUG"), debug);
        QVERIFY(TestSupport::bundleWithInfo(dir, info));
        QString out, err;
        QCOMPARE(TestSupport::runApp({"--bundle", dir.path(), "--describe"}, &out, &err, {"PRINT_PANELS_LOG_STDERR=1"}), 0);
        // The sample printer asks for colour profiles in a folder this machine does not have.
        QCOMPARE(err.contains(QStringLiteral("PDE: ChangeHandlerModel(model): makeCustomFeatures: UCS Path is not present in system.")),
                 logs);
        QCOMPARE(err.contains(QStringLiteral("PDE: ")), logs);
    }

    void formats_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("expected");
        QTest::newRow("objects") << "%@: %@" << QStringList{"PDE", "x"} << "PDE: x";
        QTest::newRow("numbers and percent") << "%d%% of %i (%s)" << QStringList{"5", "7", "YES"} << "5% of 7 (YES)";
        QTest::newRow("precision") << "%.2f in" << QStringList{"3.14159"} << "3.14 in";
        QTest::newRow("missing argument") << "a %@ b %@" << QStringList{"1"} << "a 1 b (null)";
        QTest::newRow("argument with a format in it") << "<%@>" << QStringList{"%@ %d"} << "<%@ %d>";
        QTest::newRow("trailing percent") << "100%" << QStringList{} << "100%";
    }

    void formats()
    {
        QTEST(PDEStringWithFormat(cell<QString>("format"), cell<QStringList>("args")), "expected");
        QCOMPARE(Format(nullptr, QStringLiteral("A"), QStringLiteral("B")), QStringLiteral("A: B"));
    }

    void commandLine_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");

        // Which files and option strings are refused is the host's rule (tst_host):
        // one of each kind shows how the command line reports it.
        const QString mono = TestSupport::samplePPD(QStringLiteral("velmora-m200"));

        QTest::newRow("missing PPD") << QStringList{"--ppd", "/nonexistent/x.ppd", "--describe"} << 2 << "no such file";
        QTest::newRow("malformed -o") << QStringList{"--ppd", mono, "-o", "a='b", "--print-options"} << 2 << "unclosed quote";
        QTest::newRow("unknown choice") << QStringList{"--ppd", mono, "-o", "Duplex=Sideways", "--print-options"} << 2
                                        << "has no choice \"Sideways\"";
        QTest::newRow("unknown flag, then the usage") << QStringList{"--frobnicate"} << 2 << "frobnicate";
        QTest::newRow("page range") << QStringList{"--ppd", mono, "-o", "page-ranges=z-a", "--print-options"} << 2 << "page-ranges=z-a";
        QTest::newRow("help") << QStringList{"--help"} << 0 << "Usage: print-panels";
        QTest::newRow("version") << QStringList{"--version"} << 0 << "print-panels 0.";
        QTest::newRow("two modes") << QStringList{"--describe", "--print-options"} << 2 << "choose one";
        QTest::newRow("bad bundle") << QStringList{"--bundle", "/nonexistent", "--describe"} << 2 << "Info.json";
        QTest::newRow("describe") << QStringList{"--ppd", mono, "--describe"} << 0 << "";
    }

    void commandLine()
    {
        QFETCH(QStringList, args);
        QFETCH(int, status);
        QFETCH(QString, message);
        QString out, err;
        // Without XDG_RUNTIME_DIR Qt has a warning to give: it must not show.
        QCOMPARE(TestSupport::runApp(args, &out, &err, {"-XDG_RUNTIME_DIR"}), status);
        if (status == 0) {
            QVERIFY2(err.isEmpty(), qPrintable(err));
            if (!message.isEmpty()) {
                QVERIFY2(out.startsWith(message), qPrintable(out));
                return;
            }
            QVERIFY(QJsonDocument::fromJson(out.toUtf8()).object().value(QStringLiteral("panels")).isArray());
            return;
        }
        QVERIFY(out.isEmpty());
        const QStringList lines = err.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        // One line; an unknown option is followed by the usage.
        QCOMPARE(lines.size() == 1, !args.first().startsWith(QLatin1String("--frob")));
        QCOMPARE(err.contains(QLatin1String("Usage: print-panels")), lines.size() > 1);
        QVERIFY2(lines.first().startsWith(QLatin1String("print-panels: ")) && lines.first().contains(message), qPrintable(err));
    }

    void printOptionsOutput()
    {
        const QString mono = TestSupport::samplePPD(QStringLiteral("velmora-m200"));
        QString out, err;
        const QStringList args{"--ppd", mono, "-o", "zz=last aa='first one'", "-o", "note='line1\nline2' PageSize=A4",
                               "-o", "EnterPassword=pw1", "--print-options"};
        QCOMPARE(TestSupport::runApp(args, &out, &err), 0);
        // Passwords are hidden unless asked for.
        QVERIFY(out.contains(QStringLiteral("EnterPassword=<hidden>\n")) && !out.contains(QStringLiteral("pw1")));
        QString shown;
        QCOMPARE(TestSupport::runApp(QStringList(args) << "--show-secrets", &shown, &err), 0);
        QVERIFY(shown.contains(QStringLiteral("EnterPassword=pw1\n")));
        // Nor does the description show a PIN, in its field or its summary.
        QCOMPARE(TestSupport::runApp({"--ppd", TestSupport::samplePPD(), "-o", "AccountType=PinCode PINCode=98765", "--describe"}, &shown, &err), 0);
        QVERIFY(shown.contains(QStringLiteral("\"PINCode\": \"<hidden>\"")) && !shown.contains(QStringLiteral("98765")));
        const QStringList lines = out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QStringList keys;
        for (const QString& l : lines)
            keys << l.section(QLatin1Char('='), 0, 0);
        QVERIFY2(std::is_sorted(keys.cbegin(), keys.cend()), qPrintable(out));
        QVERIFY(lines.contains(QStringLiteral("aa=first one")) && lines.contains(QStringLiteral("PageSize=A4")) && lines.contains(QStringLiteral("zz=last")));
        // A value cannot forge a line of its own.
        QVERIFY(lines.contains(QStringLiteral("note=line1\\nline2")));
        QVERIFY(!keys.contains(QStringLiteral("line2")));
    }

    // These turn the process-wide debug switch on, so they come last.
    void panelsForType()
    {
        QTemporaryDir dir;
        auto bundle = TestSupport::bundleWithInfo(dir, {{"DEBUG", "1"}, {"UseMergedPDE", "YES"}});
        QVERIFY(bundle);
        auto host = TestSupport::openHost(TestSupport::samplePPD(QStringLiteral("velmora-m200")));
        QVERIFY(host);
        PDELogCapture log;
        MRPDE_MACFirstEventHandler entry;
        QVERIFY(entry.initWithBundle(bundle));
        QVERIFY(MRPDE_MACFirstEventHandler::debug());
        const auto first = entry.PDEPanelsForType(QStringLiteral("anything"), host.get());
        auto model1 = entry.dataModel();
        QVERIFY(model1);
        QCOMPARE(model1->ppd(), host->ppd());
        // Asked again: a second model.
        entry.PDEPanelsForType(QString(), host.get());
        QVERIFY(entry.dataModel() != model1);
        // Panels that cannot be made are logged and left out, in the dialog's order, on every request.
        QStringList expected;
        int made = 0;
        for (const auto& g : PDEPanelFactory::genericPanels()) {
            if (g.create && g.create(bundle, model1))
                ++made;
            else
                expected << QStringLiteral("PDE: ") + QString::fromLatin1(g.failureMessage);
        }
        QCOMPARE(log.lines().filter(QStringLiteral("Load Failed")), expected + expected);
        QVERIFY(first.size() >= made);
        QVERIFY(first.first()->panelKind().endsWith(QStringLiteral(".graphicsPaperPDE")));
    }

    // The dialog's panels on real PPDs: all nine in their order where the PPD
    // has their options, the generic four where the PPD installs the maker's own
    // extensions, and no standalone panel for options a printer lacks.
    void panelList_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QStringList>("names");
        const QStringList generic{"Graphics/Paper", "Job Handling", "Finishing", "Security"};
        const QStringList standalone{"Secure Release", "Advanced Options", "Manual 2-Sided Printing", "Special Pages", "Margin"};
        QTest::newRow("colour MFP: all nine") << TestSupport::samplePPD() << generic + standalone;
        QFile sample(TestSupport::samplePPD());
        QVERIFY(sample.open(QIODevice::ReadOnly));
        const QByteArray text = sample.readAll().replace("PDEs/VelmoraColorProfiles.plugin", "PDEs/AdvancedOptionPDE.plugin");
        QTest::newRow("maker's extension installed") << TestSupport::writeFile(m_dir.filePath("extension.ppd"), text) << generic;
        // The generic panels are made whatever the PPD has; the others refuse.
        QTest::newRow("no options of any panel") << TestSupport::writePPD(m_dir, QStringLiteral("bare.ppd"), QString()) << generic;
    }

    void panelList()
    {
        QString error;
        auto session = PanelSession::open({cell<QString>("ppd"), {}, {}, {}, {}}, &error);
        QVERIFY2(session, qPrintable(error));
        QStringList got;
        for (const auto& p : session->panels())
            got << p->panelName();
        QTEST(got, "names");
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(EntryTest)
#include "tst_entry.moc"
