// The Job Handling panel on the sample printers and small PPDs of our own:
// print modes by installed hardware, sub-view swaps, field rules, the checks
// before printing with their alerts, delayed password writes and the
// job-accounting confirmation.
#include "MRPDE_MACJobHandlingEH.h"
#include "MRPDE_MACJobHandlingPDEController.h"
#include "PDEAlerts.h"
#include "PDESecrets.h"
#include "PanelHarness.h"
#include "ui_JAConfirmPopUpWindow.h"
#include "ui_JobHandling.h"

#include <QtWidgets>

namespace {
using Panel = TestSupport::OpenedPanel<MRPDE_MACJobHandlingEH, MRPDE_MACJobHandlingPDEController>;
// A field of the panel, also in a sub-view that is not shown.
QLineEdit* lineEdit(const QString& name)
{
    for (QWidget* w : QApplication::allWidgets())
        if (auto* e = qobject_cast<QLineEdit*>(w); e && e->objectName() == name)
            return e;
    return nullptr;
}

const QString c5500 = TestSupport::samplePPD();
const QString m200 = TestSupport::samplePPD(QStringLiteral("velmora-m200"));
const QString kPrintModeAlert = QStringLiteral(
    "You must enter an alphanumeric password and re-enter it for confirmation in order to use Print Mode feature");
const QString kAccountingAlert = QStringLiteral(
    "You must enter an alphanumeric password and re-enter it for confirmation in order to use Job Accounting feature");
const QString kIDAlert = QStringLiteral("Enter a valid account ID (up to 64 characters, optionally preceded by a domain and a backslash).");
const QString kPINAlert = QStringLiteral("You must enter a 4-32 digit PIN Code.");
const QString kUser64 = QString(64, QLatin1Char('u'));

}

class JobHandlingTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;

private slots:

    void printModes_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("selectable");
        QTest::newRow("disk installed") << c5500 << "" << QStringList{"Normal", "Confidential", "Store", "StoreNPrint", "Delay"};
        QTest::newRow("no disk, no memory rule") << c5500 << "Option4=False" << QStringList{};
        QTest::newRow("disk list 1, 2,5") << TestSupport::writePPDFromFixture(m_dir, "disk.ppd", "job-handling-disk-only.txt") << "" << QStringList{"Normal", "Confidential", "Delay"};
        QTest::newRow("enough memory") << m200 << "" << QStringList{"Normal", "Confidential", "Delay"};
        QTest::newRow("too little memory") << m200 << "InstalledMemory=256MB" << QStringList{};
    }

    void printModes()
    {
        QFETCH(QStringList, selectable);
        auto p = Panel::open(cell<QString>("ppd"), cell<QString>("options"));
        QVERIFY(p);
        QStringList offered;
        for (const PDEChoicePtr& c : p->model->featureWithKey(QStringLiteral("JobSetting"))->choices())
            if (c->selectable())
                offered << c->keyword();
        QCOMPARE(offered, selectable);
        QCOMPARE(p->ui->printModePopUpButton->isEnabled(), !selectable.isEmpty());
    }

    void subViewSwaps_data()
    {
        QTest::addColumn<QString>("popUp");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("view");
        QTest::newRow("confidential") << "printModePopUpButton" << "Confidential Print" << "customConfidentialView";
        QTest::newRow("store") << "printModePopUpButton" << "Store in Printer" << "customStorePrintView";
        QTest::newRow("store and print") << "printModePopUpButton" << "Store and Print" << "customStorePrintView";
        QTest::newRow("delay") << "printModePopUpButton" << "Delayed Print" << "customPrintScheduleView";
        QTest::newRow("accounting") << "accountingTypePopUpButton" << "Account ID and Password" << "customJobAccountingAccountingView";
        QTest::newRow("ID only") << "accountingTypePopUpButton" << "ID Only" << "customJobAccountingIDOnlyView";
        QTest::newRow("PIN") << "accountingTypePopUpButton" << "PIN Code" << "customJobAccountingPINCodeView";
    }

    void subViewSwaps()
    {
        QFETCH(QString, popUp);
        auto p = Panel::open(c5500);
        QVERIFY(p);
        const bool printMode = popUp == QLatin1String("printModePopUpButton");
        auto current = [&] { return printMode ? p->controller->currentPrintModeView() : p->controller->currentJobAccountingView(); };
        QCOMPARE(current() ? current()->objectName() : QString(), printMode ? QStringLiteral("customNormalView") : QString());
        p->ui->m_tabView->setCurrentIndex(printMode ? 0 : 1);
        pick(p->eh->panelView()->findChild<QComboBox*>(popUp), cell<QString>("title"));
        QVERIFY(current());
        QTEST(current()->objectName(), "view");
        QVERIFY(current()->isVisibleTo(p->eh->panelView()));
        // Only the chosen sub-view is in the panel; the panel is laid out for it.
        const auto inPanel = p->eh->panelView()->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^custom.*[^n]View$")));
        QCOMPARE(inPanel.size(), printMode ? 1 : 2);
        const int rows = *p->controller->totalHeightOfActiveViewContentRowsInTabViewItem(p->ui->m_tabView->currentWidget());
        QCOMPARE(p->eh->panelView()->height(), std::max(rows + 55, 180));
    }

    void fieldRules_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        const QString open = "VELSecureReleaseOption3=Off";
        QTest::newRow("user ID") << c5500 << "" << "normalViewUserIdTextField" << "j.doe (x):y@z" << "j.doe (x)yz";
        QTest::newRow("user ID 64") << c5500 << "" << "storeViewUserIdTextField" << kUser64 + "v" << kUser64;
        QTest::newRow("job name") << c5500 << "" << "printAtJobNameTextField" << "a/b\\c:d*e?f\"g<h>i|j k" << "abcdefghij k";
        QTest::newRow("password alphanumeric") << c5500 << open << "confidentialViewEnterPasswordTextField" << "ab#c9-XYZ1" << "abc9XYZ1";
        QTest::newRow("password symbols") << m200 << "" << "confidentialViewConfirmPasswordTextField" << "a*b c\"d" << "a*bcd";
        QTest::newRow("account ID extras") << c5500 << "" << "jobAccountingAccountingUserIDTextField" << "dom\\bob@x+y:z" << "dom\\bob@x+yz";
        QTest::newRow("ID only") << c5500 << "" << "jobAccountingIDOnlyUserIDTextField" << "a\"b=c" << "abc";
        QTest::newRow("account password") << c5500 << "" << "jobAccountingAccountingPasswordTextField" << "a \\\"<>=|bcdefghijkl" << "a \\\"<>=|bcdefghi";
        QTest::newRow("PIN digits") << c5500 << "" << "jobAccountingPINCodeConfirmPasswordTextField" << "12a3.4" << "1234";
    }

    void fieldRules()
    {
        auto p = Panel::open(cell<QString>("ppd"), cell<QString>("options"));
        QLineEdit* edit = p ? lineEdit(cell<QString>("field")) : nullptr;
        QVERIFY(edit && edit->isEnabled());
        edit->clear();
        QTest::keyClicks(edit, cell<QString>("typed"));
        QTEST(edit->text(), "shown");
    }

    void printChecks_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("alert");
        const QString conf = "JobSetting=Confidential VELSecureReleaseOption3=Off ";
        // Gray jobs on the colour printer are not confirmed: the panel's own checks alone.
        const QString gray = "ColorModel=Gray ";
        QTest::newRow("no password") << c5500 << conf << kPrintModeAlert;
        QTest::newRow("passwords differ") << c5500 << conf + "EnterPassword=abcd ConfirmPassword=abce" << kPrintModeAlert;
        QTest::newRow("passwords agree") << c5500 << conf + "EnterPassword=abcd ConfirmPassword=abcd" << "";
        QTest::newRow("delayed job without a time") << c5500 << "JobSetting=Delay" << "";
        QTest::newRow("secure release holds the job") << c5500 << "JobSetting=Confidential" << "";
        QTest::newRow("built-in alert") << m200 << "JobSetting=Confidential EnterPassword=abcd" << kPrintModeAlert;
        QTest::newRow("account passwords differ") << c5500 << gray + "AccountType=Accounting AccountPassword=abcd ConfirmAcctPassword=abc" << kAccountingAlert;
        const QString account = gray + "AccountType=Accounting AccountPassword=abcd ConfirmAcctPassword=abcd AccountID=d\\\\" + kUser64;
        QTest::newRow("account user part 65") << c5500 << account + "u" << kIDAlert;
        QTest::newRow("account user part 64") << c5500 << account << "";
        QTest::newRow("ID without user part") << c5500 << gray + "AccountType=Pincode PINCode=dom\\\\" << kIDAlert;
        QTest::newRow("PINs differ") << c5500 << gray + "AccountType=NewPin NewPIN=1234 ConfirmNewPIN=4321" << kPINAlert;
        // Colour jobs are confirmed with the full rules first.
        QTest::newRow("confirm: password too short") << c5500 << "AccountType=Accounting AccountPassword=abc ConfirmAcctPassword=abc AccountID=bob" << kAccountingAlert;
        QTest::newRow("confirm: ID character") << c5500 << "AccountType=Accounting AccountPassword=abcd ConfirmAcctPassword=abcd AccountID=b:ob" << kIDAlert;
        QTest::newRow("confirm: accepted") << c5500 << "AccountType=Accounting AccountPassword=ab<>cd ConfirmAcctPassword=ab<>cd AccountID=bob" << "";
        QTest::newRow("ID too long") << c5500 << "AccountType=Pincode PINCode=" + kUser64 + "u" << kIDAlert;
        QTest::newRow("confirm: PIN letters") << c5500 << "AccountType=NewPin NewPIN=12a4 ConfirmNewPIN=12a4" << kPINAlert;
        QTest::newRow("short PIN, one field") << m200 << "AccountType=NewPin NewPIN=123" << kPINAlert;
        QTest::newRow("confirm: one PIN field") << m200 << "AccountType=NewPin NewPIN=1234" << "";
    }

    void printChecks()
    {
        QFETCH(QString, options);
        QFETCH(QString, alert);
        auto p = Panel::open(cell<QString>("ppd"), options);
        QVERIFY(p);
        PDEAlerts::clearLastAlertText();
        QWidget* before = p->ui->m_tabView->currentWidget();
        QCOMPARE(p->eh->shouldPrint(), alert.isEmpty());
        QCOMPARE(PDEAlerts::lastAlertText(), alert);
        // The refused entry's tab comes to the front once the call has returned.
        QCOMPARE(p->ui->m_tabView->currentWidget(), before);
        QCoreApplication::sendPostedEvents();
        // The print mode's alert belongs to its tab, the others to job accounting.
        const QString tab = alert == kPrintModeAlert ? QStringLiteral("tabViewItemJobSetting") : QStringLiteral("tabViewItemJobAccounting");
        QCOMPARE(p->ui->m_tabView->currentWidget()->objectName(), alert.isEmpty() ? before->objectName() : tab);
        // Saving makes the panel's own checks (not the confirmation's) and writes nothing when refused.
        const bool saves = alert.isEmpty() || QByteArray(QTest::currentDataTag()).startsWith("confirm");
        QString error;
        p->host->printSettings()->remove(QStringLiteral("JobSetting"));
        QCOMPARE(p->eh->saveValuesAndReturnError(&error), saves);
        QCOMPARE(p->host->printSettings()->contains(QStringLiteral("JobSetting")), saves);
        if (options == QLatin1String("JobSetting=Delay"))
            QVERIFY(QDateTime::fromString(p->value("PrintAt"), QStringLiteral("MM/dd/yyyy//HH:mm")).isValid());
        // A one-field confirmation stands for both PIN entries.
        if (options.endsWith(QLatin1String("NewPIN=1234")) && alert.isEmpty())
            QCOMPARE(p->value("ConfirmNewPIN"), QStringLiteral("1234"));
    }

    void delayedWrites_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("delayed");
        QTest::newRow("confidential password") << "confidentialViewEnterPasswordTextField" << "EnterPassword" << false;
        QTest::newRow("account password") << "jobAccountingAccountingPasswordTextField" << "AccountPassword" << true;
        QTest::newRow("account confirmation") << "jobAccountingAccountingConfirmPasswordTextField" << "ConfirmAcctPassword" << true;
        QTest::newRow("PIN") << "jobAccountingPINCodePasswordTextField" << "NewPIN" << true;
        QTest::newRow("PIN confirmation") << "jobAccountingPINCodeConfirmPasswordTextField" << "ConfirmNewPIN" << true;
    }

    void delayedWrites()
    {
        QFETCH(QString, key);
        auto p = Panel::open(c5500, QStringLiteral("VELSecureReleaseOption3=Off"));
        QLineEdit* edit = p ? lineEdit(cell<QString>("field")) : nullptr;
        QVERIFY(edit);
        QTest::keyClicks(edit, QStringLiteral("2468"));
        QCOMPARE(p->value(key), cell<bool>("delayed") ? QString() : QStringLiteral("2468"));
        p->eh->shouldPrint();
        QCOMPARE(p->value(key), QStringLiteral("2468"));
    }

    void confirmationWindow_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<bool>("ok");
        const QStringList all{"jaConfirmIDTextField", "jaConfirmPasswordTextField", "jaConfirmConfirmPasswordTextField"};
        QTest::newRow("accounting, OK") << c5500 << "AccountType=Accounting AccountID=bob" << all << QStringList{"", "s3cret", "s3cret"} << true;
        QTest::newRow("accounting, mismatch, Cancel") << c5500 << "AccountType=Accounting AccountID=bob" << all << QStringList{"", "s3cret", "s3cre"} << false;
        QTest::newRow("ID only, refused, Cancel") << c5500 << "AccountType=Pincode PINCode=dom\\\\" << QStringList{all[0]} << QStringList{} << false;
        QTest::newRow("one PIN field, OK") << m200 << "AccountType=NewPin" << QStringList{all[1]} << QStringList{"", "9876"} << true;
    }

    void confirmationWindow()
    {
        QFETCH(QString, ppd);
        QFETCH(QStringList, typed);
        QFETCH(bool, ok);
        auto p = Panel::open(ppd, cell<QString>("options"));
        QVERIFY(p && p->controller->needsJAConfirmation());
        QStringList alerts;
        PDEAlerts::setHandler([&](const PDEAlerts::Alert& a) { return alerts << a.title, int(PDEAlerts::DefaultButton); });
        Ui::JAConfirmPopUpWindow* w = p->controller->JAConfirmPopUpUi();
        const QList<QLineEdit*> fields{w->jaConfirmIDTextField, w->jaConfirmPasswordTextField, w->jaConfirmConfirmPasswordTextField};
        QTimer::singleShot(0, p->controller, [&] {
            for (int i = 0; i < 3; ++i)
                QTest::keyClicks(fields[i], typed.value(i));
            QTest::mouseClick(w->jaConfirmOkButton, Qt::LeftButton);
            // A refused OK leaves the window open: Cancel ends it.
            if (p->controller->JAConfirmPopUpWindow()->isVisible())
                QTest::mouseClick(w->jaConfirmCancelButton, Qt::LeftButton);
        });
        const bool confirmed = p->controller->runJAConfirmPopUpWindow();
        PDEAlerts::setHandler(nullptr);
        QStringList shown;
        for (QLineEdit* f : fields)
            if (!f->isHidden())
                shown << f->objectName();
        QTEST(shown, "rows");
        QCOMPARE(confirmed, ok);
        QCOMPARE(alerts.isEmpty(), ok);
        QVERIFY(w->jaConfirmPasswordTextField->text().isEmpty());  // the window keeps no secret
        QCOMPARE(p->value(ppd == m200 ? "ConfirmNewPIN" : "AccountPassword"), ok ? typed[1] : QString());
    }

    void protocolAndSecrets()
    {
        auto p = Panel::open(c5500, QStringLiteral("ColorModel=Gray AccountType=Pincode PINCode=bob"));
        QVERIFY(p);
        const QVariantMap summary = p->eh->summaryInfo();
        QCOMPARE(summary.value(QStringLiteral("AccountType")).toString(), QStringLiteral("Pincode"));
        QCOMPARE(summary.value(QStringLiteral("JobSetting")).toString(), QStringLiteral("Normal"));
        QVERIFY(!summary.contains(QStringLiteral("AccountPassword")));
        QVERIFY(!p->ui->confidentialViewEnterPasswordTextField->isEnabled());
        // Every password and PIN of the panel is kept out of logs, presets and option lists.
        for (const char* key : {"EnterPassword", "ConfirmPassword", "AccountPassword", "ConfirmAcctPassword", "NewPIN", "ConfirmNewPIN", "PINCode"})
            QVERIFY2(PDESecrets::isSecretKey(QString::fromLatin1(key)), key);
        for (const char* key : {"job-password", "Passwd", "UserPasscode", "pin_code", "SecurePin"})
            QVERIFY2(PDESecrets::isSecretKey(QString::fromLatin1(key)), key);
        for (const char* key : {"AccountID", "Pinch", "SpinSpeed", "PassThrough"})
            QVERIFY2(!PDESecrets::isSecretKey(QString::fromLatin1(key)), key);
    }
};

QTEST_MAIN(JobHandlingTest)
#include "tst_job_handling.moc"
