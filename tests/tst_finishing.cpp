// The Finishing panel on the sample printers and on small PPDs of our own:
// which rows and folding controls show, the staple and punch position rules,
// the folding group's defaults, pictures and divide-set number, and the
// panel's height as rows come and go.
#include "MRPDEFoldingOptionsViewController.h"
#include "MRPDEStepperController.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "MRPDE_MACFinishingEH.h"
#include "MRPDE_MACFinishingPDEController.h"
#include "PDEBundle.h"
#include "PDEStepper.h"
#include "PanelDescriber.h"
#include "TestSupport.h"
#include "ui_Finishing.h"
#include "ui_FoldingOptions.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {
struct Panel {
    std::unique_ptr<PrintDialogHost> host;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> model;
    std::shared_ptr<MRPDE_MACFinishingEH> eh;
    MRPDE_MACFinishingPDEController* controller = nullptr;
    Ui::Finishing* ui = nullptr;
    Ui::FoldingOptions* fold = nullptr;

    QString value(const char* key) const
    {
        PDEFeaturePtr f = model->featureWithKey(QString::fromLatin1(key));
        return f && f->currentValue() ? f->currentValue()->keyword() : QString();
    }
    QJsonObject control(const char* name) const
    {
        return PanelDescriber::describeControls(eh->panelView()).value(QString::fromLatin1(name)).toObject();
    }
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
    p->eh = MRPDE_MACFinishingEH::create(bundle, p->model);
    if (!p->eh)
        return nullptr;
    p->controller = static_cast<MRPDE_MACFinishingPDEController*>(p->eh->controller());
    p->ui = p->controller->ui();
    p->fold = p->controller->foldingOptionsViewController()->ui();
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

// A folder of V-folds only, with a staple position but no stapling.
const QString kVFoldPPD = QStringLiteral(R"(
*OpenUI *StaplePosition/Staple Position: PickOne
*DefaultStaplePosition: Left
*StaplePosition Left/Left: ""
*StaplePosition Right/Right: ""
*CloseUI: *StaplePosition
*OpenUI *FoldingOptions/Folding: PickOne
*DefaultFoldingOptions: None
*FoldingOptions None/Off: ""
*FoldingOptions VFolding/V-Fold: ""
*CloseUI: *FoldingOptions
*OpenUI *VFoldingPattern/V-Fold Pattern: PickOne
*DefaultVFoldingPattern: None
*VFoldingPattern None/None: ""
*VFoldingPattern Inside/Print Inside: ""
*VFoldingPattern Outside/Print Outside: ""
*CloseUI: *VFoldingPattern
*OpenUI *VFoldingDividedSet/Sheets per Set: PickOne
*DefaultVFoldingDividedSet: Unknown
*CloseUI: *VFoldingDividedSet
*VFoldingMAXSET: "12"
)");
}

class FinishingTest : public QObject {
    Q_OBJECT
private slots:
    void rowsAndHeight_data();
    void rowsAndHeight();
    void positionTriggers_data();
    void positionTriggers();
    void folding_data();
    void folding();
    void throughCommandLine_data();
    void throughCommandLine();

private:
    QTemporaryDir m_dir;
};

void FinishingTest::rowsAndHeight_data()
{
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<bool>("folding");
    QTest::newRow("finisher with folding unit")
        << TestSupport::samplePPD()
        << QStringList{"Sorting:", "Staple:", "Staple Position:", "Hole Punch:", "Punch Position:", "Output Mode:", "Output Bin:"} << true;
    QTest::newRow("small printer") << TestSupport::samplePPD(QStringLiteral("velmora-m200")) << QStringList{"Sorting:", "Output Bin:"}
                                   << false;
    QTest::newRow("V-fold only") << TestSupport::writePPD(m_dir, QStringLiteral("v.ppd"), kVFoldPPD) << QStringList{"Staple Position:"}
                                 << true;
}

void FinishingTest::rowsAndHeight()
{
    QFETCH(QString, ppd);
    QFETCH(QStringList, labels);
    QFETCH(bool, folding);
    auto p = openPanel(ppd);
    QVERIFY(p);
    QStringList shown;
    for (int i = 1; i <= 7; ++i) {
        const QJsonObject label = p->control(qPrintable(QStringLiteral("tab1Label%1").arg(i)));
        if (label.value(QStringLiteral("visible")).toBool())
            shown << label.value(QStringLiteral("text")).toString();
    }
    QCOMPARE(shown, labels);
    // The group sits right below the last row, collapsed while folding is off.
    QCOMPARE(p->control("_foldingOptionsPopUpButton").value(QStringLiteral("visible")).toBool(), folding);
    const int rows = 14 + 30 * int(labels.size());
    QCOMPARE(p->eh->panelView()->height(), rows + (folding ? 30 : 0) + 14);
    if (folding)
        QCOMPARE(p->fold->_foldingOptionsPopUpButton->mapTo(p->eh->panelView(), QPoint(0, 0)).y(), rows);
    // A staple position without stapling can always be chosen.
    if (!p->model->featureWithKey(QStringLiteral("StapleLocation")))
        QVERIFY(p->ui->tab1PopUpButton1->isEnabled());
}

void FinishingTest::positionTriggers_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("on");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("positionEnabled");
    QTest::newRow("one staple") << 2 << "2 Staples" << "1 Staple" << true;
    QTest::newRow("staples off") << 2 << "2 Staples" << "Off" << false;
    QTest::newRow("three holes") << 4 << "2 Holes" << "3 Holes" << true;
    QTest::newRow("punch off") << 4 << "4 Holes" << "Off" << false;
}

void FinishingTest::positionTriggers()
{
    QFETCH(int, row);
    QFETCH(QString, on);
    QFETCH(QString, choice);
    QFETCH(bool, positionEnabled);
    auto p = openPanel(TestSupport::samplePPD());
    QVERIFY(p);
    auto* trigger = p->eh->panelView()->findChild<QComboBox*>(QStringLiteral("tab1PopUpButton%1").arg(row));
    auto* position = p->eh->panelView()->findChild<QComboBox*>(QStringLiteral("tab1PopUpButton%1").arg(row + 1));
    auto* label = p->eh->panelView()->findChild<QLabel*>(QStringLiteral("tab1Label%1").arg(row + 1));
    // Off at first: the position waits for stapling or punching.
    QVERIFY(!position->isEnabled() && !label->isEnabled());
    pick(trigger, on);
    QVERIFY(position->isEnabled());
    pick(trigger, choice);
    QCOMPARE(position->isEnabled(), positionEnabled);
    QCOMPARE(label->isEnabled(), positionEnabled);
}

void FinishingTest::folding_data()
{
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<QString>("fold");
    QTest::addColumn<QString>("patternKey");
    QTest::addColumn<QString>("firstPattern");
    QTest::addColumn<QString>("firstImage");
    QTest::addColumn<QString>("lastPatternTitle");
    QTest::addColumn<QString>("lastImage");
    QTest::addColumn<QString>("divideSetKey");
    QTest::addColumn<int>("maximum");
    QTest::newRow("C-fold") << TestSupport::samplePPD() << "C-Fold" << "CFoldingPattern" << "Pattern1" << "pattern1" << "Pattern 4"
                            << "pattern4" << "CFoldingDividedSet" << 5;
    QTest::newRow("V-fold beside C-fold") << TestSupport::samplePPD() << "V-Fold" << "VFoldingPattern" << "Inside" << "vfolding_inside"
                                          << "Print Outside" << "vfolding_outside" << "VFoldingDividedSet" << 3;
    QTest::newRow("V-fold only") << TestSupport::writePPD(m_dir, QStringLiteral("v.ppd"), kVFoldPPD) << "V-Fold" << "VFoldingPattern"
                                 << "Inside" << "vfolding_inside" << "Print Outside" << "vfolding_outside" << "VFoldingDividedSet" << 12;
}

void FinishingTest::folding()
{
    QFETCH(QString, ppd);
    QFETCH(QString, fold);
    QFETCH(QString, patternKey);
    QFETCH(QString, firstPattern);
    QFETCH(QString, firstImage);
    QFETCH(QString, lastPatternTitle);
    QFETCH(QString, lastImage);
    QFETCH(QString, divideSetKey);
    QFETCH(int, maximum);
    auto p = openPanel(ppd);
    QVERIFY(p);
    auto& f = *p->fold;
    const int collapsed = p->eh->panelView()->height();
    QVERIFY(!f._foldingPatternPopUpButton->isVisibleTo(p->eh->panelView()));

    pick(f._foldingOptionsPopUpButton, fold);
    // Folding starts with the first real pattern, its picture and one set.
    QCOMPARE(p->value(qPrintable(patternKey)), firstPattern);
    QCOMPARE(p->control("_foldingOptionsImageView").value(QStringLiteral("image")).toString(), firstImage);
    QCOMPARE(p->control("_foldingDivideSetRangeLabel").value(QStringLiteral("text")).toString(), QStringLiteral("(1 - %1)").arg(maximum));
    QCOMPARE(p->value(qPrintable(divideSetKey)), QStringLiteral("1"));
    QVERIFY(f._foldingPatternPopUpButton->isVisibleTo(p->eh->panelView()) && f._foldingDivideSetStepper->isEnabled());
    QCOMPARE(p->eh->panelView()->height(), collapsed + MRPDEFoldingOptionsViewController::kExpandedHeight -
                                               MRPDEFoldingOptionsViewController::kCollapsedHeight);

    pick(f._foldingPatternPopUpButton, lastPatternTitle);
    QCOMPARE(p->control("_foldingOptionsImageView").value(QStringLiteral("image")).toString(), lastImage);
    // The divide-set number: stepped up, then a number above the maximum is put back.
    f._foldingDivideSetStepper->stepUp();
    QCOMPARE(p->value(qPrintable(divideSetKey)), QStringLiteral("2"));
    f._foldingDivideSetTextField->setFocus();
    f._foldingDivideSetTextField->selectAll();
    QTest::keyClicks(f._foldingDivideSetTextField, QString::number(maximum + 1));
    QCOMPARE(f._foldingDivideSetTextField->text(), maximum + 1 > 9 ? QStringLiteral("1") : QStringLiteral("2"));

    pick(f._foldingOptionsPopUpButton, QStringLiteral("Off"));
    QVERIFY(!f._foldingPatternPopUpButton->isEnabled() && !f._foldingDivideSetTextField->isEnabled());
    QCOMPARE(f._foldingDivideSetStepper->value(), 1);
    QCOMPARE(f._foldingDivideSetTextField->text(), QStringLiteral("1"));
    QCOMPARE(f._foldingPatternPopUpButton->currentIndex(), 0);
    QVERIFY(!f._foldingPatternPopUpButton->isVisibleTo(p->eh->panelView()));
    QCOMPARE(p->eh->panelView()->height(), collapsed);
}

void FinishingTest::throughCommandLine_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("image");
    QTest::newRow("C-fold") << "FoldingOptions=CFolding" << QStringList{"CFoldingPattern=Pattern1", "CFoldingDividedSet=1"} << "pattern1";
    QTest::newRow("V-fold outside") << "FoldingOptions=VFolding VFoldingPattern=Outside VFoldingDividedSet=3"
                                    << QStringList{"VFoldingPattern=Outside", "VFoldingDividedSet=3"} << "vfolding_outside";
}

void FinishingTest::throughCommandLine()
{
    QFETCH(QString, option);
    QFETCH(QStringList, expected);
    QFETCH(QString, image);
    QString out, err;
    QCOMPARE(TestSupport::runApp({"--ppd", TestSupport::samplePPD(), "--print-options", "-o", option}, &out, &err), 0);
    for (const QString& e : expected)
        QVERIFY2(out.split(QLatin1Char('\n')).contains(e), qPrintable(e + QStringLiteral(" in\n") + out));
    QCOMPARE(TestSupport::runApp({"--ppd", TestSupport::samplePPD(), "--describe", "-o", option}, &out, &err), 0);
    for (const QJsonValue& panel : QJsonDocument::fromJson(out.toUtf8()).object().value(QStringLiteral("panels")).toArray())
        if (panel.toObject().value(QStringLiteral("kind")).toString().endsWith(QStringLiteral(".finishing")))
            out = panel.toObject().value(QStringLiteral("controls")).toObject().value(QStringLiteral("_foldingOptionsImageView")).toObject().value(QStringLiteral("image")).toString();
    QCOMPARE(out, image);
}

QTEST_MAIN(FinishingTest)
#include "tst_finishing.moc"
