// The Security panel on the sample printers and on small PPDs of our own:
// which tabs show, the secure-release user ID, the hard-copy modes and their
// entries, the watermark defaults, and the password job's check with its
// alert and the switch to its tab.
#include "MRPDEHardCopySecurityController.h"
#include "MRPDESecurityEH.h"
#include "MRPDESecurityPanelController.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "TestSupport.h"
#include "ui_PasswordJobView.h"
#include "ui_SecureWatermarkView.h"
#include "ui_Security.h"

#include <QTest>

namespace {
struct Panel {
    std::unique_ptr<PrintDialogHost> host;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> model;
    std::shared_ptr<MRPDESecurityEH> eh;
    MRPDESecurityPanelController* controller = nullptr;
    Ui::Security* ui = nullptr;

    QString value(const QString& key) const
    {
        PDEFeaturePtr f = model->featureWithKey(key);
        return f && f->currentValue() ? f->currentValue()->keyword() : QString();
    }
    QStringList tabs() const
    {
        QStringList t;
        for (int i = 0; i < ui->m_tabView->count(); ++i)
            t << ui->m_tabView->tabText(i);
        return t;
    }
    Ui::SecureWatermarkView& watermark() const { return *controller->hardCopySecurityController()->secureWatermarkUi(); }
    Ui::PasswordJobView& password() const { return *controller->hardCopySecurityController()->passwordJobUi(); }
};

std::unique_ptr<Panel> openPanel(const QString& ppd)
{
    auto p = std::make_unique<Panel>();
    p->host = TestSupport::openHost(ppd);
    if (!p->host)
        return nullptr;
    auto bundle = PDEBundle::embedded();
    bundle->setLanguage(QStringLiteral("en"));
    p->model = std::make_shared<MRPDE_MACChangeHandlerModel>(bundle, p->host.get());
    p->eh = MRPDESecurityEH::create(bundle, p->model);
    if (!p->eh)
        return nullptr;
    p->controller = static_cast<MRPDESecurityPanelController*>(p->eh->controller());
    p->ui = p->controller->ui();
    p->host->setPanels({p->eh.get()});
    QString error;
    p->eh->restoreValuesAndReturnError(&error);
    p->eh->panelView()->show();
    return p;
}

void pick(QComboBox* box, const QString& title)
{
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < box->count() && box->currentText() != title; ++i)
        QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentText(), title);
}

void type(QLineEdit* field, const QString& text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

// Hard-copy security without a warning text of the printer's own.
const QString kHardCopyPPD = QStringLiteral(R"(
*OpenUI *VELHardCopySecurity/Hard Copy Security: PickOne
*DefaultVELHardCopySecurity: Password
*VELHardCopySecurity None/Off: ""
*VELHardCopySecurity Password/Password Job: ""
*CloseUI: *VELHardCopySecurity
*OpenUI *HCSEnterPassword/Job Password: PickOne
*DefaultHCSEnterPassword: Unknown
*CloseUI: *HCSEnterPassword
*OpenUI *HCSConfirmPassword/Confirm Job Password: PickOne
*DefaultHCSConfirmPassword: Unknown
*CloseUI: *HCSConfirmPassword
)");

// A secure-release kit, but no secure-release option.
const QString kReleaseKitPPD = QStringLiteral(R"(
*OpenGroup: InstallableOptions/Installed Options
*OpenUI *VELSecureReleaseOption3/Secure Release Kit: PickOne
*DefaultVELSecureReleaseOption3: On
*VELSecureReleaseOption3 Off/Not Installed: ""
*VELSecureReleaseOption3 On/Installed: ""
*CloseUI: *VELSecureReleaseOption3
*CloseGroup: InstallableOptions
)");

const QString kDefaultWarning =
    QStringLiteral("You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature.");
}

class SecurityTest : public QObject {
    Q_OBJECT
private slots:
    void tabs_data();
    void tabs();
    void userID_data();
    void userID();
    void hardCopyModes();
    void watermarkDefaults_data();
    void watermarkDefaults();
    void passwordCheck_data();
    void passwordCheck();
    void refusedPrint_data();
    void refusedPrint();

private:
    QTemporaryDir m_dir;
};

void SecurityTest::tabs_data()
{
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<QStringList>("tabs");
    QTest::addColumn<bool>("userID");
    QTest::newRow("both") << TestSupport::samplePPD() << QStringList{"Security", "Hard Copy Security"} << true;
    QTest::newRow("secure release only") << TestSupport::samplePPD(QStringLiteral("velmora-m200")) << QStringList{"Security"} << true;
    QTest::newRow("hard copy only") << TestSupport::writePPD(m_dir, QStringLiteral("h.ppd"), kHardCopyPPD) << QStringList{"Hard Copy Security"}
                                    << false;
    QTest::newRow("release kit only") << TestSupport::writePPD(m_dir, QStringLiteral("k.ppd"), kReleaseKitPPD) << QStringList{"Security"}
                                      << false;
}

void SecurityTest::tabs()
{
    QFETCH(QString, ppd);
    QFETCH(QStringList, tabs);
    QFETCH(bool, userID);
    auto p = openPanel(ppd);
    QVERIFY(p);
    QCOMPARE(p->tabs(), tabs);
    if (tabs.contains(QStringLiteral("Security"))) {
        QCOMPARE(p->ui->secureTrueTextField->isVisibleTo(p->ui->tabViewItemSecurity), userID);
        QCOMPARE(p->ui->secureTrueUserIDLabel->isVisibleTo(p->ui->tabViewItemSecurity), userID);
    }
}

void SecurityTest::userID_data()
{
    QTest::addColumn<QString>("release");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("off") << "Off" << "" << "";
    QTest::newRow("letters, digits, signs") << "On" << "Ann.Lee_7 {x}~'" << "Ann.Lee_7 {x}~'";
    QTest::newRow("forbidden signs refused") << "On" << "a<b>c@d" << "abcd";
    QTest::newRow("at most 32") << "On" << QString(40, QLatin1Char('x')) << QString(32, QLatin1Char('x'));
}

void SecurityTest::userID()
{
    QFETCH(QString, release);
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    auto p = openPanel(TestSupport::samplePPD());
    QVERIFY(p);
    auto& u = *p->ui;
    pick(u.secureTruePopUpButton, QStringLiteral("On"));
    pick(u.secureTruePopUpButton, release);
    // Usable only while secure release is on.
    QCOMPARE(u.secureTrueTextField->isEnabled(), release == QLatin1String("On"));
    QCOMPARE(u.secureTrueUserIDLabel->isEnabled(), release == QLatin1String("On"));
    if (!u.secureTrueTextField->isEnabled())
        return;
    type(u.secureTrueTextField, typed);
    QCOMPARE(u.secureTrueTextField->text(), expected);
    QCOMPARE(p->value(QStringLiteral("PSSUSERID")), expected);
}

void SecurityTest::hardCopyModes()
{
    auto p = openPanel(TestSupport::samplePPD());
    QVERIFY(p);
    auto& u = *p->ui;
    p->eh->willShow();
    u.m_tabView->setCurrentWidget(u.tabViewItemHardCopySecurity);
    const auto shown = [&] { return u.hardCopySecurityMainView->findChildren<QWidget*>(Qt::FindDirectChildrenOnly); };
    const auto height = [&] { return p->eh->panelView()->height(); };
    QVERIFY(shown().isEmpty());
    QCOMPARE(height(), 180);
    QWidget* watermark = p->controller->hardCopySecurityController()->secureWatermarkView();
    QWidget* password = p->controller->hardCopySecurityController()->passwordJobView();
    // Each mode brings its own entries; the panel grows and shrinks with them.
    const QList<std::tuple<QString, QWidget*, int>> modes{{"Secure Watermark", watermark, 46 + watermark->height() + 55},
                                                          {"Password Job", password, 180},
                                                          {"Copy Restriction", nullptr, 180},
                                                          {"Secure Watermark", watermark, 46 + watermark->height() + 55},
                                                          {"Off", nullptr, 180}};
    for (const auto& [title, view, expectedHeight] : modes) {
        pick(u.hardCopySecurityPopUpButton, title);
        QCOMPARE(shown(), view ? QList<QWidget*>{view} : QList<QWidget*>{});
        QCOMPARE(height(), expectedHeight);
    }
}

void SecurityTest::watermarkDefaults_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<bool>("customEnabled");
    // Size, direction, pattern, colour, darkness after the choice.
    QTest::newRow("COPY") << "COPY" << QStringList{"Medium", "Horizontal", "Pattern2", "Cyan", "Light"} << false;
    QTest::newRow("DO NOT COPY") << "DO NOT COPY" << QStringList{"Large", "Diagonal", "Pattern3", "Magenta", "Dark"} << false;
    // No entry in the table: the settings made by hand stay.
    QTest::newRow("Custom") << "Custom" << QStringList{"Small", "Diagonal", "Pattern1", "Black", "Dark"} << true;
}

void SecurityTest::watermarkDefaults()
{
    QFETCH(QString, text);
    QFETCH(QStringList, settings);
    QFETCH(bool, customEnabled);
    auto p = openPanel(TestSupport::samplePPD());
    QVERIFY(p);
    pick(p->ui->hardCopySecurityPopUpButton, QStringLiteral("Secure Watermark"));
    auto& w = p->watermark();
    QVERIFY(!w.watermarkMessageField->isEnabled());
    pick(w.hardCopySizePopUpBtn, QStringLiteral("Small"));
    pick(w.hardCopyDarknessPopUpBtn, QStringLiteral("Dark"));
    // "Custom" is the last item: reached at once, without passing the others.
    if (text == QLatin1String("Custom")) {
        w.currentSecureWaterMarkPopUpBtn->setFocus();
        QTest::keyClick(w.currentSecureWaterMarkPopUpBtn, Qt::Key_End);
        QCOMPARE(p->value(QStringLiteral("SWMTEXT")), text);
    } else {
        pick(w.currentSecureWaterMarkPopUpBtn, text);
    }
    QStringList now;
    for (const char* key : {"SWMSIZE", "SWMDIRECTION", "SWMPATTERN", "SWMCOLOR", "SWMDARKNESS"})
        now << p->value(QString::fromLatin1(key));
    QCOMPARE(now, settings);
    QCOMPARE(w.watermarkMessageField->isEnabled(), customEnabled);
    if (customEnabled) {
        type(w.watermarkMessageField, QStringLiteral("Draft 3"));
        QCOMPARE(p->value(QStringLiteral("HCSCustomWatermark")), QStringLiteral("Draft 3"));
    }
}

void SecurityTest::passwordCheck_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("enter");
    QTest::addColumn<QString>("confirm");
    QTest::addColumn<bool>("saved");
    QTest::newRow("same password") << "Password Job" << "abc123" << "abc123" << true;
    QTest::newRow("different passwords") << "Password Job" << "abc123" << "abc124" << false;
    QTest::newRow("only the first") << "Password Job" << "abc" << "" << false;
    QTest::newRow("too long is refused, so both agree") << "Password Job" << "abcdefghij" << "abcdefghi" << true;
    QTest::newRow("differ, but no password job") << "Secure Watermark" << "abc" << "xyz" << true;
}

void SecurityTest::passwordCheck()
{
    QFETCH(QString, mode);
    QFETCH(QString, enter);
    QFETCH(QString, confirm);
    QFETCH(bool, saved);
    auto p = openPanel(TestSupport::samplePPD());
    QVERIFY(p);
    auto& u = *p->ui;
    pick(u.hardCopySecurityPopUpButton, QStringLiteral("Password Job"));
    auto& pw = p->password();
    QCOMPARE(pw.hardCopyEnterPasswordRangeLabel->text(), QStringLiteral("(1-9 Alphanumeric)"));
    type(pw.hardCopyEnterPasswordField, enter);
    type(pw.hardCopyConfirmPasswordField, confirm);
    pick(u.hardCopySecurityPopUpButton, mode);
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
    // Nothing was written for a refused save.
    QCOMPARE(p->host->printSettings()->value(QStringLiteral("HCSConfirmPassword")).isNull(), !saved);
}

void SecurityTest::refusedPrint_data()
{
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("message");
    QTest::newRow("printer's text") << TestSupport::samplePPD() << "en_US.UTF-8" << kDefaultWarning;
    QTest::newRow("printer's text in German") << TestSupport::samplePPD() << "de_DE.UTF-8"
                                              << "Geben Sie ein alphanumerisches Kennwort mit 1 bis 9 Zeichen ein";
    QTest::newRow("bundle's text in French") << TestSupport::writePPD(m_dir, QStringLiteral("h.ppd"), kHardCopyPPD) << "fr_FR.UTF-8"
                                             << "Saisissez un mot de passe alphanumérique de 1 à 9 caractères";
}

void SecurityTest::refusedPrint()
{
    QFETCH(QString, ppd);
    QFETCH(QString, language);
    QFETCH(QString, message);
    const QStringList args{"--ppd", ppd, "--print-options", "-o", "VELHardCopySecurity=Password", "-o", "HCSEnterPassword=abc1"};
    const QStringList env{"LANG=" + language, "LC_ALL=" + language, "LANGUAGE=" + language.left(2)};
    QString out, err;
    QCOMPARE(TestSupport::runApp(args + QStringList{"-o", "HCSConfirmPassword=abc2"}, &out, &err, env), 3);
    QVERIFY2(err.contains(message), qPrintable(err));
    QVERIFY(!err.contains(QStringLiteral("abc1")) && !err.contains(QStringLiteral("abc2")));
    QCOMPARE(TestSupport::runApp(args + QStringList{"-o", "HCSConfirmPassword=abc1"}, &out, &err, env), 0);
    QVERIFY2(out.contains(QStringLiteral("VELHardCopySecurity=Password")), qPrintable(out));
}

QTEST_MAIN(SecurityTest)
#include "tst_security.moc"
