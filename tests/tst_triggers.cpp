// Triggers over real features: evaluation on registration, operators,
// nesting, notification on every write, and teardown without dangling observers.
#include "MRPDEBasicTrigger.h"
#include "MRPDEComplexTrigger.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "TestSupport.h"

#include <QTest>

namespace {
const char kOptions[] = R"(
*OpenUI *ColorModel/Color: PickOne
*DefaultColorModel: RGBA
*ColorModel RGBA/Color: ""
*ColorModel Gray/Grayscale: ""
*CloseUI: *ColorModel
*OpenUI *DocType/Document: PickOne
*DefaultDocType: Standard
*DocType Standard/Standard: ""
*DocType XRay/X-Ray: ""
*DocType Text/Text: ""
*CloseUI: *DocType
*OpenUI *StapleLocation/Staple: PickOne
*DefaultStapleLocation: None
*StapleLocation None/None: ""
*StapleLocation TopLeft/Top Left: ""
*CloseUI: *StapleLocation
)";
}

class TriggerTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void basicTrigger_data();
    void basicTrigger();
    void complexOperators_data();
    void complexOperators();
    void nestingPropagates();
    void everyWriteNotifies();
    void makersRejectMissingArguments();
    void teardownStopsObservation();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<PrintDialogHost> m_host;
    std::unique_ptr<MRPDE_MACChangeHandlerModel> m_model;
    PDEFeaturePtr feature(const char* key) { return m_model->featureWithKey(QString::fromLatin1(key)); }
};

void TriggerTest::init()
{
    m_host = TestSupport::openHost(TestSupport::writePPD(m_dir, QStringLiteral("t.ppd"), QString::fromLatin1(kOptions)));
    QVERIFY(m_host);
    m_model = std::make_unique<MRPDE_MACChangeHandlerModel>(PDEBundle::embedded(), m_host.get());
}

void TriggerTest::cleanup()
{
    m_model.reset();
    m_host.reset();
}

void TriggerTest::basicTrigger_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("pick");
    QTest::addColumn<bool>("initially");
    QTest::addColumn<bool>("after");
    QTest::newRow("matches at once") << "RGBA" << "Gray" << true << false;
    QTest::newRow("becomes set") << "Gray" << "Gray" << false << true;
    QTest::newRow("case-sensitive") << "gray" << "Gray" << false << false;
    QTest::newRow("display string is not the keyword") << "Grayscale" << "Gray" << false << false;
}

void TriggerTest::basicTrigger()
{
    QFETCH(QString, value);
    QFETCH(QString, pick);
    QFETCH(bool, initially);
    QFETCH(bool, after);
    auto t = PDEMakeBasicTrigger(feature("ColorModel"), value);
    QVERIFY(t);
    QCOMPARE(t->isSet(), initially);
    QVERIFY(feature("ColorModel")->setCurrentValueWithChoiceWithKeyword(pick));
    QCOMPARE(t->isSet(), after);
    QVERIFY(t->description().endsWith(QStringLiteral(": ColorModel=>%1 isSet(%2)").arg(value).arg(int(after))));
}

void TriggerTest::complexOperators_data()
{
    QTest::addColumn<int>("op");
    QTest::addColumn<QList<bool>>("members");  // whether each member condition holds
    QTest::addColumn<bool>("expected");
    QTest::newRow("OR none") << 1 << QList<bool>{false, false} << false;
    QTest::newRow("OR one") << 1 << QList<bool>{false, true} << true;
    QTest::newRow("NOT of one set") << 2 << QList<bool>{true} << false;
    QTest::newRow("NOT of one unset") << 2 << QList<bool>{false} << true;
    QTest::newRow("NOT of two, one set") << 2 << QList<bool>{true, false} << false;
    // Operator 0: all members but one are set.
    QTest::newRow("0 with exactly one of two set") << 0 << QList<bool>{true, false} << true;
    QTest::newRow("0 with both set") << 0 << QList<bool>{true, true} << false;
    QTest::newRow("0 with none of two set") << 0 << QList<bool>{false, false} << false;
    QTest::newRow("0 with one member unset") << 0 << QList<bool>{false} << true;
    QTest::newRow("0 with two of three set") << 0 << QList<bool>{true, true, false} << true;
    QTest::newRow("unknown operator keeps false") << 7 << QList<bool>{true} << false;
}

void TriggerTest::complexOperators()
{
    QFETCH(int, op);
    QFETCH(QList<bool>, members);
    QFETCH(bool, expected);
    // Members over three features in their default state: RGBA, Standard, None.
    const QList<QPair<const char*, QString>> defaults{{"ColorModel", "RGBA"}, {"DocType", "Standard"}, {"StapleLocation", "None"}};
    QList<PDETriggerPtr> list;
    for (qsizetype i = 0; i < members.size(); ++i) {
        const auto& [key, def] = defaults[i];
        list << PDEMakeBasicTrigger(feature(key), members[i] ? def : QStringLiteral("Other"));
    }
    auto t = PDEMakeComplexTrigger(op, list);
    QVERIFY(t);
    QCOMPARE(t->isSet(), expected);
    QCOMPARE(t->triggerOperator(), op);
}

void TriggerTest::nestingPropagates()
{
    // Colour controls go grey when the document is not Standard or the colour model is Gray.
    auto docNotStandard = PDEMakeComplexTrigger(2, {PDEMakeBasicTrigger(feature("DocType"), QStringLiteral("Standard"))});
    auto gray = PDEMakeBasicTrigger(feature("ColorModel"), QStringLiteral("Gray"));
    auto colourOff = PDEMakeComplexTrigger(1, {docNotStandard, gray});
    QVERIFY(!colourOff->isSet());
    QVERIFY(feature("DocType")->setCurrentValueWithChoiceWithKeyword(QStringLiteral("XRay")));
    QVERIFY(docNotStandard->isSet());
    QVERIFY(colourOff->isSet());
    QVERIFY(feature("DocType")->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Standard")));
    QVERIFY(!colourOff->isSet());
    QVERIFY(feature("ColorModel")->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Gray")));
    QVERIFY(colourOff->isSet());
}

void TriggerTest::everyWriteNotifies()
{
    auto t = PDEMakeBasicTrigger(feature("StapleLocation"), QStringLiteral("TopLeft"));
    QObject observer;
    QList<bool> seen;
    t->observeIsSet(&observer, [&](PDETriggerProtocol* p) { seen << p->isSet(); }, true);
    QCOMPARE(seen, QList<bool>{false});
    // A new but equal choice re-evaluates, and the unchanged state is still written.
    auto staple = feature("StapleLocation");
    staple->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(QStringLiteral("None"), QStringLiteral("None")));
    QCOMPARE(seen, (QList<bool>{false, false}));
    QVERIFY(staple->setCurrentValueWithChoiceWithKeyword(QStringLiteral("TopLeft")));
    QCOMPARE(seen, (QList<bool>{false, false, true}));
    t->setIsSet(true);
    QCOMPARE(seen.size(), 4);
}

void TriggerTest::makersRejectMissingArguments()
{
    QVERIFY(!PDEMakeBasicTrigger(nullptr, QStringLiteral("x")));
    QVERIFY(!PDEMakeBasicTrigger(feature("ColorModel"), QString()));
    QVERIFY(!PDEMakeComplexTrigger(1, {}));
    // Unconfigured triggers never change.
    MRPDEBasicTrigger loose(nullptr, QStringLiteral("x"));
    QVERIFY(!loose.isSet());
    // A feature without a value keeps the trigger's state.
    auto handMade = std::make_shared<MRPDE_MACFeature>();
    auto t = PDEMakeBasicTrigger(handMade, QStringLiteral(""));
    QVERIFY(t && !t->isSet());
}

void TriggerTest::teardownStopsObservation()
{
    auto colour = feature("ColorModel");
    int calls = 0;
    {
        auto basic = PDEMakeBasicTrigger(colour, QStringLiteral("Gray"));
        auto complex = PDEMakeComplexTrigger(2, {basic});
        QObject observer;
        complex->observeIsSet(&observer, [&](PDETriggerProtocol*) { ++calls; }, false);
        QVERIFY(colour->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Gray")));
        QCOMPARE(calls, 1);
    }
    // Nothing observes the feature any more: changing it reaches no freed object.
    QCOMPARE(colour->observerCount(), 0);
    QVERIFY(colour->setCurrentValueWithChoiceWithKeyword(QStringLiteral("RGBA")));
    QCOMPARE(calls, 1);

    // A member outliving its complex trigger no longer reports to it.
    auto member = PDEMakeBasicTrigger(colour, QStringLiteral("Gray"));
    { auto c = PDEMakeComplexTrigger(1, {member}); }
    QCOMPARE(member->observerCount(), 0);
    QVERIFY(colour->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Gray")));
    QVERIFY(member->isSet());
}

QTEST_MAIN(TriggerTest)
#include "tst_triggers.moc"
