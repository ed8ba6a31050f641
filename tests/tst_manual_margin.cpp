// The Manual Margin panel on the sample printers: typed lengths in both unit
// systems, steppers, the same-value switches, the pages-per-sheet rule, the
// keys written for each kind and the concept pictures.
#include "MRManualMarginPDE.h"
#include "PDEStepper.h"
#include "PanelHarness.h"
#include "ui_ManualMarginPDE.h"

#include <QRegularExpression>

namespace {
Opened<MRManualMarginPDE> openMargin(const QString& options = QString(), bool metric = false, const QString& printer = QStringLiteral("velmora-c5500"))
{
    return openPanel<MRManualMarginPDE>(TestSupport::samplePPD(printer), options, [metric](MRManualMarginPDE& p) { p.setMetric(metric); });
}

QLineEdit* field(MRManualMarginPDE& panel, int tag)
{
    for (QLineEdit* f : panel.panelView()->findChildren<QLineEdit*>())
        if (f->property("tag").toInt() == tag)
            return f;
    return nullptr;
}

const MRManualMarginPDE::Value kValueOfTag[] = {MRManualMarginPDE::FrontSide, MRManualMarginPDE::FrontSide, MRManualMarginPDE::BackSide,
                                                MRManualMarginPDE::FrontLRSize, MRManualMarginPDE::FrontTBSize,
                                                MRManualMarginPDE::BackLRSize, MRManualMarginPDE::BackTBSize};
}

class ManualMarginTest : public QObject {
    Q_OBJECT

private slots:
    // Each tag's typing rule in both unit systems; a refused text brings back
    // the stored value ("0.4", shown as 10 mm or 0.40 inch).
    void typedInput_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("mm leading zero") << true << 1 << "05" << "0.4" << "10";
        QTest::newRow("mm 50 margin") << true << 2 << "50" << "1.97" << "50";
        QTest::newRow("mm 51 margin") << true << 1 << "51" << "0.4" << "10";
        QTest::newRow("mm 26 shift") << true << 3 << "26" << "0.4" << "10";
        QTest::newRow("mm 25 shift") << true << 6 << "25" << "0.98" << "25";
        QTest::newRow("mm 10") << true << 4 << "10" << "0.39" << "10";
        QTest::newRow("mm 0") << true << 5 << "0" << "0.00" << "0";
        QTest::newRow("mm letter") << true << 1 << "1a" << "0.4" << "10";
        QTest::newRow("mm empty") << true << 1 << "" << "0.4" << "10";
        QTest::newRow("in .5") << false << 1 << ".5" << "0.4" << "0.40";
        QTest::newRow("in 0.5") << false << 1 << "0.5" << "0.50" << "0.5";
        QTest::newRow("in three decimals") << false << 2 << "1.234" << "0.4" << "0.40";
        QTest::newRow("in 2.01 margin") << false << 1 << "2.01" << "0.4" << "0.40";
        QTest::newRow("in 2 margin") << false << 2 << "2" << "2.00" << "2";
        QTest::newRow("in 1.01 shift") << false << 3 << "1.01" << "0.4" << "0.40";
        QTest::newRow("in 1. shift") << false << 4 << "1." << "1.00" << "1.";
        QTest::newRow("in 01") << false << 1 << "01" << "0.4" << "0.40";
        QTest::newRow("in 1.2.") << false << 1 << "1.2." << "0.4" << "0.40";
        QTest::newRow("in 0") << false << 6 << "0" << "0.00" << "0";
    }
    void typedInput()
    {
        QFETCH(int, tag);
        auto o = openMargin(QStringLiteral("VELBindingSameValue=Off VELISSameValue=Off"), cell<bool>("metric"));
        QLineEdit* f = field(*o.panel, tag);
        QVERIFY(f);
        f->setText(cell<QString>("typed"));
        o.panel->controlTextDidChange(tag);
        QTEST(o.panel->value(kValueOfTag[tag]), "stored");
        QTEST(f->text(), "shown");
    }

    // Steppers step 1 mm or 0.04 inch within the tag's range, and front
    // values follow to the back while the group's switch is on.
    void steppersAndSameValue_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("front");
        QTest::addColumn<QString>("back");
        QTest::newRow("mm margin, same") << true << "" << 1 << "0.43" << "0.43";
        QTest::newRow("in margin, same") << false << "" << 1 << "0.44" << "0.44";
        QTest::newRow("in margin, different") << false << "VELBindingSameValue=Off" << 1 << "0.44" << "0.4";
        QTest::newRow("in shift LR, same") << false << "" << 3 << "0.44" << "0.44";
        QTest::newRow("mm shift TB, different") << true << "VELISSameValue=Off" << 4 << "0.43" << "0.4";
        QTest::newRow("in shift at its limit") << false << "VELISFrontLRSize=1.00 VELISBackLRSize=1.00" << 3 << "1.00" << "1.00";
    }
    void steppersAndSameValue()
    {
        QFETCH(bool, metric);
        QFETCH(int, tag);
        auto o = openMargin(cell<QString>("options"), metric);
        Ui::ManualMarginPDE& u = *o.panel->ui();
        PDEStepper* stepper = tag == 1 ? u.stepFrontSide : tag == 3 ? u.stepFrontSideImgShift1 : u.stepFrontSideImgShift2;
        stepper->stepUp();
        QTEST(o.panel->value(kValueOfTag[tag]), "front");
        QTEST(o.panel->value(kValueOfTag[tag + 1 + (tag == 1 ? 0 : 1)]), "back");
        QCOMPARE(field(*o.panel, tag)->text(), MRManualMarginPDE::displayValue(o.panel->value(kValueOfTag[tag]), metric));
    }

    void switches()
    {
        auto o = openMargin(QStringLiteral("VELBindingSameValue=Off VELBindingBackSize=1.5 VELISSameValue=Off VELISFrontLROption=1 "
                                            "VELISFrontTBSize=0.2"));
        Ui::ManualMarginPDE& u = *o.panel->ui();
        QVERIFY(u.tfBackSideInput->isEnabled() && u.btnBackLeft->isEnabled());
        u.btnSameValue->click();
        QCOMPARE(o.panel->value(MRManualMarginPDE::SameFrontBack), QStringLiteral("On"));
        QCOMPARE(o.panel->value(MRManualMarginPDE::BackSide), QStringLiteral("0.4"));
        QVERIFY(!u.tfBackSideInput->isEnabled() && !u.stepBackSide->isEnabled());
        u.btnSameValueImgShift->click();
        QCOMPARE(o.panel->value(MRManualMarginPDE::BackLROption), QStringLiteral("1"));
        QCOMPARE(o.panel->value(MRManualMarginPDE::BackTBSize), QStringLiteral("0.2"));
        QVERIFY(u.btnBackRight->isChecked() && !u.btnBackRight->isEnabled());
        u.btnFrontBottom->click();
        QCOMPARE(o.panel->value(MRManualMarginPDE::BackTBOption), QStringLiteral("1"));
        QVERIFY(!u.btnFrontTop->isChecked());
        u.btnAutoReduction->click();
        QCOMPARE(o.panel->value(MRManualMarginPDE::AutoReduction), QStringLiteral("On"));
    }

    // More than one page per sheet forces "none" and locks the choice.
    void nupRule_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("1 up") << "VELMarginFor=BindingMargin" << 1 << true;
        QTest::newRow("2 up") << "VELMarginFor=BindingMargin number-up=2" << 0 << false;
        QTest::newRow("4 up, image shift") << "VELMarginFor=ImageShift number-up=4" << 0 << false;
    }
    void nupRule()
    {
        auto o = openMargin(cell<QString>("options"));
        QTEST(o.panel->ui()->pbtMarginfor->currentIndex(), "index");
        QTEST(o.panel->ui()->pbtMarginfor->isEnabled(), "enabled");
        QTEST(o.panel->indexOfMarkedOptionForKey(QStringLiteral("VELMarginFor")), "index");
    }

    // What is written for each kind, and what a hostile value read becomes.
    void written_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("none writes nothing") << "VELMarginFor=None" << QStringList{};
        QTest::newRow("binding") << "VELMarginFor=BindingMargin"
                                 << QStringList{"VELAutoReduction=Off", "VELBindingBackSize=0.4", "VELBindingFrontSize=0.4", "VELBindingSameValue=On"};
        QTest::newRow("shift") << "VELMarginFor=ImageShift VELISBackTBOption=1"
                               << QStringList{"VELISBackLROption=0", "VELISBackLRSize=0.4", "VELISBackTBOption=1", "VELISBackTBSize=0.4",
                                              "VELISFrontLROption=0", "VELISFrontLRSize=0.4", "VELISFrontTBOption=0", "VELISFrontTBSize=0.4",
                                              "VELISSameValue=On"};
        QTest::newRow("hostile") << "VELMarginFor=BindingMargin VELAutoReduction='On;rm -rf' VELBindingFrontSize=1e9 "
                                    "VELBindingBackSize=-1 VELBindingSameValue=0.456"
                                 << QStringList{"VELAutoReduction=Off", "VELBindingBackSize=0.4", "VELBindingFrontSize=2.00", "VELBindingSameValue=On"};
        QTest::newRow("three decimals rounded") << "VELMarginFor=BindingMargin VELBindingFrontSize=0.456"
                                                << QStringList{"VELAutoReduction=Off", "VELBindingBackSize=0.4", "VELBindingFrontSize=0.46",
                                                               "VELBindingSameValue=On"};
    }
    void written()
    {
        auto o = openMargin(cell<QString>("options"));
        QStringList keys;
        for (int i = 0; i < MRManualMarginPDE::ValueCount; ++i) {
            keys << MRManualMarginPDE::keyOf(MRManualMarginPDE::Value(i));
            o.host->printSettings()->remove(keys.last());
        }
        QVERIFY(o.panel->saveValuesAndReturnError(nullptr));
        QStringList written;
        for (const auto& [k, v] : o.host->printSettings()->entries())
            if (keys.contains(k))
                written << k + QLatin1Char('=') + v;
        written.sort();
        QTEST(written, "expected");
    }

    void conceptPicture_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("image");
        QTest::addColumn<QStringList>("arrows");
        QTest::newRow("none") << "velmora-c5500" << "" << "" << QStringList{};
        QTest::newRow("binding left, colour") << "velmora-c5500" << "VELMarginFor=BindingMargin" << "binding_portrait_left_color" << QStringList{};
        QTest::newRow("binding top, grey, reverse landscape")
            << "velmora-c5500" << "VELMarginFor=BindingMargin VELBindingPosition=Top ColorModel=Gray orientation-requested=5"
            << "binding_landscope_top_gray" << QStringList{};
        QTest::newRow("binding right, monochrome printer") << "velmora-m200" << "VELMarginFor=BindingMargin VELBindingPosition=Right"
                                                           << "binding_portrait_right_gray" << QStringList{};
        QTest::newRow("shift, reverse portrait")
            << "velmora-c5500" << "VELMarginFor=ImageShift orientation-requested=6 VELISSameValue=Off VELISFrontLROption=1 VELISBackTBOption=1"
            << "IS_portrait_color" << QStringList{"imviewFrontRightTop", "imviewBackLeftBottom"};
    }
    void conceptPicture()
    {
        QFETCH(QString, options);
        QFETCH(QStringList, arrows);
        auto o = openMargin(options, false, cell<QString>("printer"));
        QWidget* view = o.panel->panelView();
        QTEST(view->findChild<QLabel*>(QStringLiteral("imviewConcept"))->property("imageName").toString(), "image");
        QStringList shown;
        for (QLabel* l : view->findChildren<QLabel*>(QRegularExpression(QStringLiteral("^imview(Front|Back)"))))
            if (l->isVisibleTo(view->findChild<QWidget*>(QStringLiteral("viewConcept"))))
                shown << l->objectName();
        shown.sort();
        arrows.sort();
        QCOMPARE(shown, arrows);
        QCOMPARE(o.panel->ui()->viewBinindPosition->isVisibleTo(view), options.contains(QLatin1String("BindingMargin")));
        QCOMPARE(o.panel->ui()->viewImageShift->isVisibleTo(view), options.contains(QLatin1String("ImageShift")));
    }
};

QTEST_MAIN(ManualMarginTest)
#include "tst_manual_margin.moc"
