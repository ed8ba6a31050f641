// Which standalone panels a printer gets; the Manual Duplex and Secure Release
// panels on real PPDs: the binding picture, the copies and duplex-unit rules,
// the user ID at print time.
#include "MRAdvancedOptionPDE.h"
#include "MRManualDuplexPDE.h"
#include "MRManualMarginPDE.h"
#include "MRSecureReleasePDE.h"
#include "MRSpecialPagePDE.h"
#include "PanelHarness.h"
#include "ui_ManualDuplexPDE.h"
#include "ui_SecureReleasePDE.h"

namespace {
// A panel on a sample printer (or the "no unit" PPD) with job options.
template <class Panel>
Opened<Panel> open(const QString& printer, const QString& options = QString())
{
    static QTemporaryDir dir;
    const QString noUnit = TestSupport::fixtureText("manual-duplex-no-unit.txt").arg(PDE_SOURCE_BUNDLE_DIR);
    return openPanel<Panel>(printer == "no unit" ? TestSupport::writePPD(dir, printer, noUnit) : TestSupport::samplePPD(printer), options);
}

template <class Panel>
QStringList keysOf(const QString& printer)  // "none": no panel
{
    const auto o = open<Panel>(printer);
    return o.panel ? o.panel->supportedPPDOptionKeys() : QStringList{"none"};
}
}

class ManualDuplexSecureReleaseTest : public QObject {
    Q_OBJECT

private slots:
    // A panel only with its options, answering for the PPD options it shows
    // (on a PPD without any, tst_entry panelList offers none of them).
    void creation_data()
    {
        QTest::addColumn<QString>("panel");
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QStringList>("keys");
        const QStringList duplex{"VELManualDuplexOption", "Option2"}, secure{"VELSecureReleaseOption"}, none{"none"};
        QTest::newRow("duplex c5500") << "duplex" << "velmora-c5500" << duplex;
        QTest::newRow("duplex m200") << "duplex" << "velmora-m200" << duplex;
        QTest::newRow("duplex, no duplex unit") << "duplex" << "no unit" << QStringList{"VELManualDuplexOption"};
        QTest::newRow("secure c5500") << "secure" << "velmora-c5500" << secure;
        QTest::newRow("secure m200") << "secure" << "velmora-m200" << secure;
        QTest::newRow("secure, no duplex unit") << "secure" << "no unit" << none;
        QTest::newRow("advanced c5500") << "advanced" << "velmora-c5500"
                                        << QStringList{"VELWatermarkOption", "VELPosterOption", "VELBookletOption", "VELFoldMethod",
                                                       "VELBookletFinishing", "BookletOutputPageSize", "VELManualBookletOption"};
        QTest::newRow("advanced m200") << "advanced" << "velmora-m200" << QStringList{"VELWatermarkOption", "VELPosterOption", "VELManualBookletOption"};
        QTest::newRow("special pages c5500") << "special" << "velmora-c5500" << QStringList{"VELPageOption"};
        QTest::newRow("special pages m200") << "special" << "velmora-m200" << none;
        QTest::newRow("margin c5500") << "margin" << "velmora-c5500" << QStringList{"VELMarginFor", "VELBindingPosition"};
    }
    void creation()
    {
        QFETCH(QString, panel);
        QFETCH(QString, printer);
        QTEST(panel == "duplex" ? keysOf<MRManualDuplexPDE>(printer) : panel == "secure" ? keysOf<MRSecureReleasePDE>(printer)
              : panel == "advanced"                                   ? keysOf<MRAdvancedOptionPDE>(printer)
              : panel == "special"                                    ? keysOf<MRSpecialPagePDE>(printer)
                                                                      : keysOf<MRManualMarginPDE>(printer),
              "keys");
    }

    void bindingPicture_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QString>("firstStep");
        QTest::newRow("one-sided portrait") << "velmora-m200" << "" << "doubleside_none" << "itdrvM1";
        QTest::newRow("landscape long edge") << "velmora-m200" << "VELManualDuplexOption=LongEdge orientation-requested=4"
                                             << "doubleside_landlong" << "itdrvM1";
        QTest::newRow("reverse portrait off") << "velmora-m200" << "orientation-requested=6" << "doubleside_none_rotate" << "itdrvM1";
        QTest::newRow("reverse landscape short") << "velmora-c5500" << "Option2=False VELManualDuplexOption=ShortEdge orientation-requested=5"
                                                 << "doubleside_landshort_rotate" << "itdrvM1";
        QTest::newRow("printer's own steps") << "no unit" << "VELManualDuplexOption=ShortEdge" << "doubleside_short"
                                             << PDE_SOURCE_BUNDLE_DIR "/images/itdrvM3.png";
    }
    void bindingPicture()
    {
        QFETCH(QString, printer);
        auto o = open<MRManualDuplexPDE>(printer, cell<QString>("options"));
        Ui::ManualDuplexPDE& u = *o.panel->ui();
        QTEST(u.ManualDuplexView->property("imageName").toString(), "picture");
        QVERIFY(!TestSupport::shownPixmap(u.ManualDuplexView).isNull());
        QTEST(u.Step1ImageView->property("imageName").toString(), "firstStep");
        // Only the first of the printer's pictures decides: a missing second one stays empty.
        QCOMPARE(u.Step2ImageView->property("imageName").toString().isEmpty(), printer == "no unit");
        const bool black = u.ManualDuplexPopup->currentIndex() != 0;
        QCOMPARE(u.PrintingTipStep1->palette().color(QPalette::WindowText), black ? QColor(Qt::black) : QColor(Qt::gray));
    }

    // The copies rule comes first, the duplex-unit rule after it.
    void rules_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("laterCopies");  // set after opening, told by the update signal
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("choice");
        QTest::newRow("no unit, 1 copy") << "no unit" << "VELManualDuplexOption=LongEdge" << "" << true << "LongEdge";
        QTest::newRow("no unit, 2 copies") << "no unit" << "VELManualDuplexOption=LongEdge copies=2" << "" << false << "Off";
        QTest::newRow("no unit, 3 copies later") << "no unit" << "VELManualDuplexOption=ShortEdge" << "3" << false << "Off";
        QTest::newRow("unit absent, 1 copy") << "velmora-m200" << "VELManualDuplexOption=ShortEdge" << "" << true << "ShortEdge";
        QTest::newRow("unit absent re-enables, 2 copies") << "velmora-m200" << "VELManualDuplexOption=LongEdge copies=2" << "" << true << "Off";
        QTest::newRow("unit installed") << "velmora-c5500" << "" << "" << false << "Off";
        QTest::newRow("unit installed keeps the choice") << "velmora-c5500" << "VELManualDuplexOption=LongEdge" << "" << false << "LongEdge";
    }
    void rules()
    {
        QFETCH(QString, laterCopies);
        QFETCH(QString, choice);
        auto o = open<MRManualDuplexPDE>(cell<QString>("printer"), cell<QString>("options"));
        if (!laterCopies.isEmpty()) {
            o.host->printSettings()->setValue(QStringLiteral("copies"), laterCopies);
            emit o.host->update();
        }
        Ui::ManualDuplexPDE& u = *o.panel->ui();
        QTEST(u.ManualDuplexPopup->isEnabled(), "enabled");
        QCOMPARE(o.marked(kManualDuplexKey), choice);
        QCOMPARE(u.ManualDuplexPopup->currentIndex(), int(o.panel->manualduplexChoices().indexOf(o.panel->manualduplexSelection())));
        const QVariantMap summary = o.panel->summaryInfo();
        QCOMPARE(summary.value(o.panel->getLocalizationWithKey(QStringLiteral("ManualDuplex"))).toString(),
                 o.panel->getLocalizationWithKey(choice));
    }

    void userID_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("pick");  // pop-up item chosen, -1 for none
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("printed");  // PSSUSERID at print time
        QTest::newRow("off, nothing given") << "velmora-m200" << "" << -1 << "" << false << "";
        QTest::newRow("given with the job") << "velmora-m200" << "VELSecureReleaseOption=On PSSUSERID=bob" << -1 << "" << true << "bob";
        QTest::newRow("held, typed") << "velmora-m200" << "" << 1 << "alice" << true << "alice";
        QTest::newRow("refused characters") << "velmora-m200" << "" << 1 << "al@c e*" << true << "alce";
        QTest::newRow("refused 21st character") << "velmora-m200" << "" << 1 << "abcdefghij0123456789XY" << true << "abcdefghij0123456789";
        QTest::newRow("back to off keeps the ID") << "velmora-m200" << "VELSecureReleaseOption=On PSSUSERID=bob" << 0 << "" << false << "bob";
        QTest::newRow("kit not installed") << "velmora-c5500" << "VELSecureReleaseOption3=Off" << 1 << "" << false << "";
    }
    void userID()
    {
        QFETCH(int, pick);
        QFETCH(QString, printed);
        auto o = open<MRSecureReleasePDE>(cell<QString>("printer"), cell<QString>("options"));
        Ui::SecureReleasePDE& u = *o.panel->ui();
        if (pick >= 0) {
            u.PSSPopup->setCurrentIndex(pick);
            o.panel->changepssOption();
        }
        QTest::keyClicks(u.UserIDBox, cell<QString>("typed"));
        QTEST(u.UserIDBox->isEnabled(), "enabled");
        QCOMPARE(u.UserIDBox->text(), printed);
        QCOMPARE(u.PSSPopup->currentIndex(), o.marked(kSecureReleaseKey) == "On" ? 1 : 0);
        QVERIFY(o.panel->shouldPrint());
        // The key is always there at print time, empty when no ID was given.
        QVERIFY(o.host->printSettings()->contains(kSecureReleaseUserIDKey));
        QCOMPARE(o.host->printSettings()->value(kSecureReleaseUserIDKey), printed);
    }
};

QTEST_MAIN(ManualDuplexSecureReleaseTest)
#include "tst_manual_duplex_secure_release.moc"
