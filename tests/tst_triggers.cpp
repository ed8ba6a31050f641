// Triggers over real features of tests/fixtures/controls.ppd: evaluation on
// registration, operators, nesting, notification on every write, and
// teardown without dangling observers.
#include "MRPDEBasicTrigger.h"
#include "MRPDEComplexTrigger.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "TestSupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TriggerTest : public QObject {
    Q_OBJECT
    std::unique_ptr<PrintDialogHost> m_host;
    std::unique_ptr<MRPDE_MACChangeHandlerModel> m_model;
    PDEFeaturePtr feature(const QString& key) { return m_model->featureWithKey(key); }
    bool pick(const QString& key, const QString& choice) { return feature(key)->setCurrentValueWithChoiceWithKeyword(choice); }

private slots:
    void init()
    {
        m_host = TestSupport::openHost(TestSupport::fixture(u"controls.ppd"_s));
        QVERIFY(m_host);
        m_model = std::make_unique<MRPDE_MACChangeHandlerModel>(PDEBundle::embedded(), m_host.get());
    }
    void cleanup()
    {
        m_model.reset();
        m_host.reset();
    }

    void basicTrigger_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("initially");
        QTest::addColumn<bool>("after");  // once Finish is Satin
        QTest::newRow("matches at once") << "Matte" << true << false;
        QTest::newRow("becomes set") << "Satin" << false << true;
        QTest::newRow("case-sensitive") << "satin" << false << false;
        QTest::newRow("display string is not the keyword") << "Satin Paper" << false << false;
    }
    void basicTrigger()
    {
        QFETCH(QString, value);
        QFETCH(bool, after);
        auto t = PDEMakeBasicTrigger(feature(u"Finish"_s), value);
        QTEST(t->isSet(), "initially");
        QVERIFY(pick(u"Finish"_s, u"Satin"_s));
        QCOMPARE(t->isSet(), after);
        QVERIFY(t->description().endsWith(u": Finish=>%1 isSet(%2)"_s.arg(value).arg(int(after))));
    }

    void complexOperators_data()
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
    void complexOperators()
    {
        QFETCH(QList<bool>, members);
        // Members over three features at their defaults.
        const QList<QPair<QString, QString>> defaults {{u"Finish"_s, u"Matte"_s}, {u"Sealing"_s, u"Weak"_s}, {u"CurlMode"_s, u"Off"_s}};
        QList<PDETriggerPtr> list;
        for (qsizetype i = 0; i < members.size(); ++i)
            list << PDEMakeBasicTrigger(feature(defaults[i].first), members[i] ? defaults[i].second : u"Other"_s);
        QTEST(PDEMakeComplexTrigger(cell<int>("op"), list)->isSet(), "expected");
    }

    void nestingPropagates()
    {
        // Set when Sealing is not Weak or Finish is Satin.
        auto notWeak = PDEMakeComplexTrigger(2, {PDEMakeBasicTrigger(feature(u"Sealing"_s), u"Weak"_s)});
        auto either = PDEMakeComplexTrigger(1, {notWeak, PDEMakeBasicTrigger(feature(u"Finish"_s), u"Satin"_s)});
        QVERIFY(!either->isSet());
        QVERIFY(pick(u"Sealing"_s, u"Strong"_s));
        QVERIFY(notWeak->isSet() && either->isSet());
        QVERIFY(pick(u"Sealing"_s, u"Weak"_s));
        QVERIFY(!either->isSet());
        QVERIFY(pick(u"Finish"_s, u"Satin"_s));
        QVERIFY(either->isSet());
    }

    void everyWriteNotifies()
    {
        auto t = PDEMakeBasicTrigger(feature(u"CurlMode"_s), u"On"_s);
        QObject observer;
        QList<bool> seen;
        t->observeIsSet(&observer, [&](PDETriggerProtocol* p) { seen << p->isSet(); }, true);
        QCOMPARE(seen, QList<bool>{false});
        // A new but equal choice re-evaluates, and the unchanged state is still written.
        feature(u"CurlMode"_s)->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(u"Off"_s, u"Off"_s));
        QCOMPARE(seen, (QList<bool>{false, false}));
        QVERIFY(pick(u"CurlMode"_s, u"On"_s));
        QCOMPARE(seen, (QList<bool>{false, false, true}));
        t->setIsSet(true);
        QCOMPARE(seen.size(), 4);
    }

    void makersRejectMissingArguments()
    {
        QVERIFY(!PDEMakeBasicTrigger(nullptr, u"x"_s));
        QVERIFY(!PDEMakeBasicTrigger(feature(u"Finish"_s), QString()));
        QVERIFY(!PDEMakeComplexTrigger(1, {}));
        // Unconfigured triggers never change; a feature without a value keeps the trigger's state.
        QVERIFY(!MRPDEBasicTrigger(nullptr, u"x"_s).isSet());
        auto t = PDEMakeBasicTrigger(std::make_shared<MRPDE_MACFeature>(), u""_s);
        QVERIFY(t && !t->isSet());
    }

    void teardownStopsObservation()
    {
        auto finish = feature(u"Finish"_s);
        int calls = 0;
        {
            auto complex = PDEMakeComplexTrigger(2, {PDEMakeBasicTrigger(finish, u"Satin"_s)});
            QObject observer;
            complex->observeIsSet(&observer, [&](PDETriggerProtocol*) { ++calls; }, false);
            QVERIFY(pick(u"Finish"_s, u"Satin"_s));
            QCOMPARE(calls, 1);
        }
        // Nothing observes the feature any more: changing it reaches no freed object.
        QCOMPARE(finish->observerCount(), 0);
        QVERIFY(pick(u"Finish"_s, u"Matte"_s));
        QCOMPARE(calls, 1);
        // A member outliving its complex trigger no longer reports to it.
        auto member = PDEMakeBasicTrigger(finish, u"Satin"_s);
        { auto c = PDEMakeComplexTrigger(1, {member}); }
        QCOMPARE(member->observerCount(), 0);
        QVERIFY(pick(u"Finish"_s, u"Satin"_s));
        QVERIFY(member->isSet());
    }
};

QTEST_MAIN(TriggerTest)
#include "tst_triggers.moc"
