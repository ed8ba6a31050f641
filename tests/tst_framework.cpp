// The panel framework: binding rows of controls, resizing by tab, and the
// panel protocol answers shared by the model-driven panels.
#include "MRPDEMainBaseController.h"
#include "MRPDE_MACGraphicsPaperEH.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPanelEH.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "PDEBundle.h"
#include "TestSupport.h"

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

namespace {
const QString kRowsPPD = QStringLiteral(R"(
*OpenUI *Second/Second: PickOne
*DefaultSecond: A
*Second A/A: ""
*Second B/B: ""
*CloseUI: *Second
*OpenUI *Fourth/Fourth: PickOne
*DefaultFourth: X
*Fourth X/X: ""
*Fourth Y/Y: ""
*CloseUI: *Fourth
)");

// A controller whose tabs report a fixed height and whose entries can be made invalid.
class FixedController : public MRPDEMainBaseController {
public:
    using MRPDEMainBaseController::MRPDEMainBaseController;
    std::optional<int> totalHeightOfActiveViewContentRowsInTabViewItem(QWidget*) override { return rows; }
    bool isEverythingAlright() override { return alright; }
    int rows = 0;
    bool alright = true;
};
}

class FrameworkTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void rowsCloseUp();
    void singleControl();
    void tabHeights_data();
    void tabHeights();
    void protocol();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<PrintDialogHost> m_host;
    std::unique_ptr<PartialCallback> m_callback;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> m_model;
};

void FrameworkTest::init()
{
    m_host = TestSupport::openHost(TestSupport::writePPD(m_dir, QStringLiteral("rows.ppd"), kRowsPPD));
    QVERIFY(m_host);
    m_callback = std::make_unique<PartialCallback>(m_host.get());
    m_model = std::make_shared<MRPDE_MACChangeHandlerModel>(PDEBundle::embedded(), m_callback.get());
}

void FrameworkTest::cleanup()
{
    m_model.reset();
    m_callback.reset();
    m_host.reset();
}

void FrameworkTest::rowsCloseUp()
{
    MRPDEMainBaseController c(m_model.get());
    QWidget view;
    QList<QWidget*> boxes;
    for (int i = 0; i < 4; ++i)
        boxes << new QComboBox(&view);
    const QList<PDEFeatureRow> rows{{"KEY_First", {"First", "Missing"}}, {"KEY_Second", {"Absent", "Second"}},
                                    {"KEY_Third", {"Third"}}, {"KEY_Fourth", {"Fourth"}}};
    c.assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), rows, boxes);
    view.show();
    QCOMPARE(c.controllersForIdentifier(QStringLiteral("KEY_Second")).size(), 1);
    QCOMPARE(c.controllersForIdentifier(QStringLiteral("KEY_Second")).first()->control(), boxes[0]);
    QCOMPARE(c.controllersForIdentifier(QStringLiteral("KEY_Fourth")).first()->control(), boxes[1]);
    QVERIFY(c.controllersForIdentifier(QStringLiteral("KEY_First")).isEmpty());
    QCOMPARE(static_cast<QComboBox*>(boxes[1])->currentText(), QStringLiteral("X"));
    QVERIFY(boxes[0]->isVisible() && boxes[1]->isVisible());
    QVERIFY(!boxes[2]->isVisible() && !boxes[3]->isVisible());
    // Asking for absent options created nothing.
    QCOMPARE(m_model->features().size(), 2);
}

void FrameworkTest::singleControl()
{
    MRPDEMainBaseController c(m_model.get());
    QWidget view;
    auto* present = new QComboBox(&view);
    auto* absent = new QComboBox(&view);
    view.show();
    QVERIFY(!c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACPopUpButtonController>(),
                                                                                  QString(), QStringLiteral("KEY_X"), absent));
    QVERIFY(absent->isVisible());
    QVERIFY(!c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACPopUpButtonController>(),
                                                                                  QStringLiteral("Nope"), QStringLiteral("KEY_X"), absent));
    QVERIFY(!absent->isVisible());
    present->hide();
    auto made = c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
        PDEControllerClass<MRPDE_MACPopUpButtonController>(), QStringLiteral("Second"), QStringLiteral("KEY_S"), present);
    QVERIFY(made && present->isVisible());
    c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACLabelController>(),
                                                                         QStringLiteral("Second"), QStringLiteral("KEY_S"),
                                                                         new QLabel(&view));
    QCOMPARE(c.controllersForIdentifier(QStringLiteral("KEY_S")).size(), 2);
}

void FrameworkTest::tabHeights_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("active");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("resizesTold");
    QTest::newRow("short tab gets the least height") << 100 << true << 180 << 1;
    QTest::newRow("rows plus 55") << 200 << true << 255 << 1;
    QTest::newRow("exactly 125") << 125 << true << 180 << 1;
    QTest::newRow("hidden panel does not tell the dialog") << 200 << false << 255 << 0;
}

void FrameworkTest::tabHeights()
{
    QFETCH(int, rows);
    QFETCH(bool, active);
    QFETCH(int, height);
    QFETCH(int, resizesTold);
    FixedController c(m_model.get());
    auto* view = new QWidget;
    view->resize(500, 400);
    c.setMainView(view);
    auto* tabs = new QTabWidget(view);
    tabs->addTab(new QWidget, QStringLiteral("One"));
    c.rows = rows;
    c.setCurrentlyActive(active);
    c.tabViewDidSelectTabViewItem(tabs, 0);
    QCOMPARE(view->height(), height);
    QCOMPARE(view->width(), 500);
    QCOMPARE(tabs->geometry(), QRect(0, 0, 500, height));
    QCOMPARE(m_callback->resizes, resizesTold);
}

void FrameworkTest::protocol()
{
    auto bundle = PDEBundle::embedded();
    auto controller = std::make_unique<FixedController>(m_model.get());
    FixedController* fixed = controller.get();
    fixed->setMainView(new QWidget);
    MRPDE_MACPanelEH panel(bundle, m_model, std::move(controller),
                           {".test", "Security", "%@", "%@", QString(), {"Fourth", "Missing", "Second"}});
    auto graphics = MRPDE_MACGraphicsPaperEH::create(bundle, m_model);
    QVERIFY(graphics);

    const QVariantMap summary = panel.summaryInfo();
    QCOMPARE(summary, (QVariantMap{{"Fourth", "X"}, {"Second", "A"}}));
    // Every panel on one model supports the same keys: every feature made so far.
    QCOMPARE(panel.supportedPPDOptionKeys(), graphics->supportedPPDOptionKeys());
    QVERIFY(panel.supportedPPDOptionKeys().contains(QStringLiteral("Fourth")));
    // Without a help page the panel answers yes and opens nothing.
    QVERIFY(panel.shouldShowHelp());
    QVERIFY(!panel.respondsToShouldPrint());

    // A panel with invalid entries saves nothing.
    QString error;
    m_model->featureWithKey(QStringLiteral("Fourth"))->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Y"));
    fixed->alright = false;
    QVERIFY(!panel.saveValuesAndReturnError(&error));
    QVERIFY(!m_host->printSettings()->contains(QStringLiteral("Fourth")));
    fixed->alright = true;
    QVERIFY(panel.saveValuesAndReturnError(&error));
    QCOMPARE(m_host->printSettings()->value(QStringLiteral("Fourth")), QStringLiteral("Y"));

    // A change made by the dialog reaches the feature through the panel.
    panel.PPDOptionKeyValueDidChange(QStringLiteral("Second"), QStringLiteral("B"));
    QCOMPARE(m_model->featureWithKey(QStringLiteral("Second"))->currentValue()->keyword(), QStringLiteral("B"));
}

QTEST_MAIN(FrameworkTest)
#include "tst_framework.moc"
