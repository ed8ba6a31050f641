// The Security panel on the sample printers and on a printer of our own:
// which tabs show, the secure-release user ID, the hard-copy modes and their
// entries, the watermark defaults, and the password job's check with its
// alert and the switch to its tab.
#include "MRPDEHardCopySecurityController.h"
#include "MRPDESecurityEH.h"
#include "MRPDESecurityPanelController.h"
#include "PDEAlerts.h"
#include "PanelHarness.h"
#include "ui_PasswordJobView.h"
#include "ui_SecureWatermarkView.h"
#include "ui_Security.h"

namespace {
using Panel = TestSupport::OpenedPanel<MRPDESecurityEH, MRPDESecurityPanelController>;

const QString kDefaultWarning =
    QStringLiteral("You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature.");
}

class SecurityTest : public QObject {
    Q_OBJECT
private slots:
    void tabsFollowThePrinter()
    {
        // Each tab only with its options (the sample colour printer has both); the
        // user ID only with the secure-release option, not with the kit alone.
        const QString kitOnly = TestSupport::fixture("security-minimal.ppd");
        const QList<std::pair<QString, QStringList>> printers{{TestSupport::samplePPD("velmora-m200"), {"Security"}},
                                                              {kitOnly, {"Security", "Hard Copy Security"}},
                                                              {TestSupport::fixture("finishing-vfold.ppd"), {}}};
        for (const auto& [ppd, tabs] : printers) {
            auto p = Panel::open(ppd);
            QVERIFY(p);
            QCOMPARE(TestSupport::tabTexts(p->controller->tabView()), tabs);
            auto& u = *p->controller->ui();
            if (!tabs.isEmpty())
                QCOMPARE(u.secureTrueTextField->isVisibleTo(u.tabViewItemSecurity), ppd != kitOnly);
        }
    }

    void userID_data()
    {
        QTest::addColumn<QString>("release");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("expected");
        QTest::newRow("off") << "Off" << "" << "";
        QTest::newRow("letters, digits, signs") << "On" << "Ann.Lee_7 {x}~'" << "Ann.Lee_7 {x}~'";
        QTest::newRow("forbidden signs refused") << "On" << "a<b>c@d" << "abcd";
        QTest::newRow("at most 32") << "On" << QString(40, QLatin1Char('x')) << QString(32, QLatin1Char('x'));
    }

    void userID()
    {
        QFETCH(QString, release);
        QFETCH(QString, expected);
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        auto& u = *p->controller->ui();
        pick(u.secureTruePopUpButton, QStringLiteral("On"));
        pick(u.secureTruePopUpButton, release);
        // Usable only while secure release is on.
        QCOMPARE(u.secureTrueTextField->isEnabled() && u.secureTrueUserIDLabel->isEnabled(), release == QLatin1String("On"));
        if (!u.secureTrueTextField->isEnabled())
            return;
        type(u.secureTrueTextField, cell<QString>("typed"));
        QCOMPARE(u.secureTrueTextField->text(), expected);
        QCOMPARE(p->value("PSSUSERID"), expected);
    }

    void hardCopyModes()
    {
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        auto& u = *p->controller->ui();
        p->eh->willShow();
        u.m_tabView->setCurrentWidget(u.tabViewItemHardCopySecurity);
        const auto shown = [&] { return u.hardCopySecurityMainView->findChildren<QWidget*>(Qt::FindDirectChildrenOnly); };
        QWidget* watermark = p->controller->hardCopySecurityController()->secureWatermarkView();
        QWidget* password = p->controller->hardCopySecurityController()->passwordJobView();
        // Each mode brings its own entries; the panel grows and shrinks with them.
        const int tall = 46 + watermark->height() + 55;
        const QList<std::tuple<QString, QWidget*, int>> modes{{"Secure Watermark", watermark, tall}, {"Password Job", password, 180},
                                                              {"Copy Restriction", nullptr, 180}, {"Secure Watermark", watermark, tall},
                                                              {"Off", nullptr, 180}};
        for (const auto& [title, view, height] : modes) {
            pick(u.hardCopySecurityPopUpButton, title);
            QCOMPARE(shown(), view ? QList<QWidget*>{view} : QList<QWidget*>{});
            QCOMPARE(p->eh->panelView()->height(), height);
        }
    }

    void watermarkDefaults_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("settings");  // size, direction, pattern, colour, darkness
        QTest::newRow("COPY") << "COPY" << QStringList{"Medium", "Horizontal", "Pattern2", "Cyan", "Light"};
        QTest::newRow("DO NOT COPY") << "DO NOT COPY" << QStringList{"Large", "Diagonal", "Pattern3", "Magenta", "Dark"};
        // No entry in the table: the settings made by hand stay.
        QTest::newRow("Custom") << "Custom" << QStringList{"Small", "Diagonal", "Pattern1", "Black", "Dark"};
    }

    void watermarkDefaults()
    {
        QFETCH(QString, text);
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        pick(p->controller->ui()->hardCopySecurityPopUpButton, QStringLiteral("Secure Watermark"));
        auto& w = *p->controller->hardCopySecurityController()->secureWatermarkUi();
        pick(w.hardCopySizePopUpBtn, QStringLiteral("Small"));
        pick(w.hardCopyDarknessPopUpBtn, QStringLiteral("Dark"));
        const bool custom = text == QLatin1String("Custom");
        if (custom) {
            // The last item, reached without passing the others.
            w.currentSecureWaterMarkPopUpBtn->setFocus();
            QTest::keyClick(w.currentSecureWaterMarkPopUpBtn, Qt::Key_End);
            QCOMPARE(w.currentSecureWaterMarkPopUpBtn->currentText(), text);
        } else {
            pick(w.currentSecureWaterMarkPopUpBtn, text);
        }
        QStringList now;
        for (const char* key : {"SWMSIZE", "SWMDIRECTION", "SWMPATTERN", "SWMCOLOR", "SWMDARKNESS"})
            now << p->value(QString::fromLatin1(key));
        QTEST(now, "settings");
        // The custom text is for "Custom" only.
        QCOMPARE(w.watermarkMessageField->isEnabled(), custom);
    }

    void passwordCheck_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("enter");
        QTest::addColumn<QString>("confirm");
        QTest::addColumn<bool>("saved");
        QTest::newRow("same password") << "Password Job" << "abc123" << "abc123" << true;
        QTest::newRow("different passwords") << "Password Job" << "abc123" << "abc124" << false;
        QTest::newRow("too long is refused, so both agree") << "Password Job" << "abcdefghij" << "abcdefghi" << true;
        QTest::newRow("differ, but no password job") << "Secure Watermark" << "abc" << "xyz" << true;
    }

    void passwordCheck()
    {
        QFETCH(bool, saved);
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        auto& u = *p->controller->ui();
        pick(u.hardCopySecurityPopUpButton, QStringLiteral("Password Job"));
        auto& pw = *p->controller->hardCopySecurityController()->passwordJobUi();
        QCOMPARE(pw.hardCopyEnterPasswordRangeLabel->text(), QStringLiteral("(1-9 Alphanumeric)"));
        type(pw.hardCopyEnterPasswordField, cell<QString>("enter"));
        type(pw.hardCopyConfirmPasswordField, cell<QString>("confirm"));
        pick(u.hardCopySecurityPopUpButton, cell<QString>("mode"));
        u.m_tabView->setCurrentWidget(u.tabViewItemSecurity);

        QStringList alerts;
        PDEAlerts::setHandler([&](const PDEAlerts::Alert& a) {
            alerts << a.message;
            return int(PDEAlerts::DefaultButton);
        });
        QString error;
        QCOMPARE(p->eh->saveValuesAndReturnError(&error), saved);
        QCOMPARE(p->eh->shouldPrint(), saved);
        PDEAlerts::setHandler(nullptr);
        QCOMPARE(alerts, saved ? QStringList() : QStringList({kDefaultWarning, kDefaultWarning}));
        // The tab switches once the call has returned, not during it.
        QCOMPARE(u.m_tabView->currentWidget(), u.tabViewItemSecurity);
        QCoreApplication::processEvents();
        QCOMPARE(u.m_tabView->currentWidget(), saved ? u.tabViewItemSecurity : u.tabViewItemHardCopySecurity);
    }

    void refusedPrint_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("message");
        QTest::newRow("printer's text") << TestSupport::samplePPD() << "en_US.UTF-8" << kDefaultWarning;
        QTest::newRow("printer's text in German") << TestSupport::samplePPD() << "de_DE.UTF-8"
                                                  << "Geben Sie ein alphanumerisches Kennwort mit 1 bis 9 Zeichen ein";
        QTest::newRow("bundle's text in French") << TestSupport::fixture("security-minimal.ppd") << "fr_FR.UTF-8"
                                                 << "Saisissez un mot de passe alphanumérique de 1 à 9 caractères";
    }

    void refusedPrint()
    {
        QFETCH(QString, language);
        const QStringList args{"--ppd", cell<QString>("ppd"), "--print-options", "-o", "VELHardCopySecurity=Password HCSEnterPassword=abc1 HCSConfirmPassword=abc2"};
        QString out, err;
        QCOMPARE(TestSupport::runApp(args, &out, &err, {"LANG=" + language, "LC_ALL=" + language, "LANGUAGE=" + language.left(2)}), 3);
        QVERIFY2(err.contains(cell<QString>("message")), qPrintable(err));
        QVERIFY(!err.contains(QStringLiteral("abc1")) && !err.contains(QStringLiteral("abc2")));
    }
};

QTEST_MAIN(SecurityTest)
#include "tst_security.moc"
