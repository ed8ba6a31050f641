// The panel framework over tests/fixtures/controls.ppd: binding rows of
// controls, resizing by tab, and the panel protocol answers shared by the
// model-driven panels.
#include "MRPDEMainBaseController.h"
#include "MRPDE_MACGraphicsPaperEH.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPanelEH.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "PDEBundle.h"
#include "PDELazyPicture.h"
#include "TestSupport.h"

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
// A controller whose tabs report a fixed height and whose entries can be made invalid.
class FixedController : public MRPDEMainBaseController {
public:
    using MRPDEMainBaseController::MRPDEMainBaseController;
    std::optional<int> totalHeightOfActiveViewContentRowsInTabViewItem(QWidget*) override { return rows; }
    bool isEverythingAlright() override { return alright; }
    int rows = 0;
    bool alright = true;
};
const MRPDEControllerFactory kPopUp = PDEControllerClass<MRPDE_MACPopUpButtonController>();
}

class FrameworkTest : public QObject {
    Q_OBJECT
    std::unique_ptr<PrintDialogHost> m_host;
    std::unique_ptr<PartialCallback> m_callback;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> m_model;

private slots:
    void init()
    {
        m_host = TestSupport::openHost(TestSupport::fixture(u"controls.ppd"_s));
        QVERIFY(m_host);
        m_callback = std::make_unique<PartialCallback>(m_host.get());
        m_model = std::make_shared<MRPDE_MACChangeHandlerModel>(PDEBundle::embedded(), m_callback.get());
    }
    void cleanup()
    {
        m_model.reset();
        m_callback.reset();
        m_host.reset();
    }

    // Each row takes its first feature the PPD has; rows without one are left
    // out and the controls close up, the unused ones hidden.
    void rowsCloseUp()
    {
        MRPDEMainBaseController c(m_model.get());
        QWidget view;
        QList<QWidget*> boxes;
        for (int i = 0; i < 4; ++i)
            boxes << new QComboBox(&view);
        c.assignContolFromFeatureArrayControls(
            kPopUp, {{"KEY_First", {"First", "Missing"}}, {"KEY_Second", {"Absent", "Sealing"}}, {"KEY_Third", {"Third"}}, {"KEY_Fourth", {"CurlMode"}}},
            boxes);
        view.show();
        QCOMPARE(c.controllersForIdentifier(u"KEY_Second"_s).size(), 1);
        QCOMPARE(c.controllersForIdentifier(u"KEY_Second"_s).first()->control(), boxes[0]);
        QCOMPARE(c.controllersForIdentifier(u"KEY_Fourth"_s).first()->control(), boxes[1]);
        QVERIFY(c.controllersForIdentifier(u"KEY_First"_s).isEmpty());
        QCOMPARE(static_cast<QComboBox*>(boxes[1])->currentText(), u"Off"_s);
        QVERIFY(boxes[0]->isVisible() && boxes[1]->isVisible() && !boxes[2]->isVisible() && !boxes[3]->isVisible());
        QCOMPARE(m_model->features().size(), 2);  // asking for absent options created nothing
    }

    void singleControl()
    {
        MRPDEMainBaseController c(m_model.get());
        QWidget view;
        auto* present = new QComboBox(&view);
        auto* absent = new QComboBox(&view);
        view.show();
        // No key: nothing made, the control untouched; an absent feature hides it.
        QVERIFY(!c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(kPopUp, QString(), u"KEY_X"_s, absent));
        QVERIFY(absent->isVisible());
        QVERIFY(!c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(kPopUp, u"Nope"_s, u"KEY_X"_s, absent));
        QVERIFY(!absent->isVisible());
        present->hide();
        QVERIFY(c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(kPopUp, u"Sealing"_s, u"KEY_S"_s, present));
        QVERIFY(present->isVisible());
        c.createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACLabelController>(), u"Sealing"_s,
                                                                             u"KEY_S"_s, new QLabel(&view));
        QCOMPARE(c.controllersForIdentifier(u"KEY_S"_s).size(), 2);
    }

    void tabHeights_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("active");
        QTest::addColumn<int>("height");
        QTest::newRow("short tab gets the least height") << 100 << true << 180;
        QTest::newRow("rows plus 55") << 200 << true << 255;
        QTest::newRow("exactly 125") << 125 << true << 180;
        QTest::newRow("hidden panel does not tell the dialog") << 200 << false << 255;
    }
    void tabHeights()
    {
        QFETCH(int, rows);
        QFETCH(bool, active);
        QFETCH(int, height);
        FixedController c(m_model.get());
        auto* view = new QWidget;
        view->resize(500, 400);
        c.setMainView(view);
        auto* tabs = new QTabWidget(view);
        tabs->addTab(new QWidget, u"One"_s);
        c.rows = rows;
        c.setCurrentlyActive(active);
        c.tabViewDidSelectTabViewItem(tabs, 0);
        QCOMPARE(view->size(), QSize(500, height));
        QCOMPARE(tabs->geometry(), QRect(0, 0, 500, height));
        QCOMPARE(m_callback->resizes, int(active));
    }

    void protocol()
    {
        auto bundle = PDEBundle::embedded();
        auto controller = std::make_unique<FixedController>(m_model.get());
        FixedController* fixed = controller.get();
        fixed->setMainView(new QWidget);
        MRPDE_MACPanelEH panel(bundle, m_model, std::move(controller), {".test", "Security", "%@", "%@", QString(), {"CurlMode", "Missing", "Sealing"}});
        QCOMPARE(panel.summaryInfo(), (QVariantMap {{"CurlMode", "Off"}, {"Sealing", "Weak"}}));
        // Every panel on one model supports the same keys: every feature made so
        // far (the other panel is made first, as it makes features of its own).
        const QStringList graphicsKeys = MRPDE_MACGraphicsPaperEH::create(bundle, m_model)->supportedPPDOptionKeys();
        QCOMPARE(panel.supportedPPDOptionKeys(), graphicsKeys);
        QVERIFY(panel.supportedPPDOptionKeys().contains(u"CurlMode"_s));
        // Without a help page the panel answers yes and opens nothing.
        QVERIFY(panel.shouldShowHelp());
        QVERIFY(!panel.respondsToShouldPrint());

        // A panel with invalid entries saves nothing.
        QString error;
        m_model->featureWithKey(u"CurlMode"_s)->setCurrentValueWithChoiceWithKeyword(u"On"_s);
        fixed->alright = false;
        QVERIFY(!panel.saveValuesAndReturnError(&error));
        QVERIFY(!m_host->printSettings()->contains(u"CurlMode"_s));
        fixed->alright = true;
        QVERIFY(panel.saveValuesAndReturnError(&error));
        QCOMPARE(m_host->printSettings()->value(u"CurlMode"_s), u"On"_s);

        // A change made by the dialog reaches the feature through the panel.
        panel.PPDOptionKeyValueDidChange(u"Sealing"_s, u"Strong"_s);
        QCOMPARE(m_model->featureWithKey(u"Sealing"_s)->currentValue()->keyword(), u"Strong"_s);
    }
    // A picture is decoded when its label is first shown; before that the
    // label asks for the same room, and a newer picture replaces a waiting one.
    void lazyPicture()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* label = new QLabel;
        layout->addWidget(label);
        const QString first = PDE_SOURCE_BUNDLE_DIR "/images/itdrvM1.png", second = PDE_SOURCE_BUNDLE_DIR "/images/poster_none.png";
        QVERIFY(!PDELazyPicture::set(label, u"/nonexistent.png"_s));
        QVERIFY(PDELazyPicture::set(label, first));
        QVERIFY(PDELazyPicture::set(label, second));
        QVERIFY(label->pixmap().isNull());
        const QSize before = window.sizeHint();
        window.show();
        QCOMPARE(label->pixmap().size(), QImage(second).size());
        QCOMPARE(window.sizeHint(), before);
        QCOMPARE(label->minimumSize(), QSize(0, 0));
        // An icon answers the picture's size before it is read, and draws it.
        QVERIFY(PDELazyPicture::icon(u"/nonexistent.png"_s).isNull());
        const QIcon icon = PDELazyPicture::icon(second);
        const QImage picture(second);
        QCOMPARE(icon.actualSize(QSize(1000, 1000)), picture.size());
        QCOMPARE(icon.pixmap(picture.size()).toImage().convertToFormat(QImage::Format_ARGB32),
                 picture.convertToFormat(QImage::Format_ARGB32));
    }
};

QTEST_MAIN(FrameworkTest)
#include "tst_framework.moc"
