// The option model on real PPD files (tests/fixtures/model-options.txt):
// installed-hardware constraints, features the PPD lacks,
// approval through the host, and the round trip through the print settings.
#include "MRPDEAttribute.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "MRPDE_MACFeature.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDEBundle.h"
#include "PDELogSink.h"
#include "PDEUserInfo.h"
#include "PMPrintSettings.h"
#include "RecordingPanel.h"
#include "TestSupport.h"

#include <QDir>
#include <QTest>
#include <cups/ppd.h>

using namespace Qt::StringLiterals;

namespace {
QStringList keywords(const QList<PDEChoicePtr>& choices)
{
    QStringList out;
    for (const auto& c : choices)
        out << c->keyword();
    return out;
}
QString current(const PDEFeaturePtr& f) { return f->currentValue() ? f->currentValue()->keyword() : QString(); }
QString marked(PrintDialogHost& host, const char* option) { return QString::fromUtf8(ppdFindMarkedChoice(host.ppd(), option)->choice); }
}

class ModelTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    QString m_ppd;
    std::shared_ptr<PDEBundle> m_bundle;

    // A host on the model PPD, with options applied and print settings stored.
    std::unique_ptr<PrintDialogHost> host(const QString& options = {}, const QVariantMap& settings = {})
    {
        auto h = TestSupport::openHost(m_ppd, options);
        for (auto it = settings.begin(); h && it != settings.end(); ++it)
            h->printSettings()->setValue(it.key(), it.value().toString());
        return h;
    }

private slots:
    void initTestCase()
    {
        m_ppd = TestSupport::writePPDFromFixture(m_dir, u"model.ppd"_s, u"model-options.txt"_s);
        QVERIFY(!m_ppd.isEmpty());
        m_bundle = PDEBundle::embedded();
        m_bundle->setLanguage(u"en"_s);
    }

    void installableConstraints_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QStringList>("choices");
        QTest::addColumn<QString>("current");
        QTest::addColumn<bool>("choiceFeature");
        // Option2 is marked False: both duplex choices go; the conflicting
        // default was resolved to the one left when the PPD was opened.
        QTest::newRow("choice1 equals the marked choice") << "Duplex" << QStringList {"None"} << "None" << true;
        // An empty choice2 takes every choice away: the feature becomes free text.
        QTest::newRow("empty choice2 removes all choices") << "StapleLocation" << QStringList {} << "None" << false;
        // An empty choice1 applies while the installable option is marked anything but None/False.
        QTest::newRow("empty choice1, installed") << "JobType" << QStringList {"Stored", "Secure"} << "Stored" << true;
        QTest::newRow("empty choice1, marked False") << "InputSlot" << QStringList {"Tray1", "Envelope"} << "Tray1" << true;
        QTest::newRow("choice1 not marked") << "MediaType" << QStringList {"Plain", "Thick", "Transparency"} << "Plain" << true;
    }
    void installableConstraints()
    {
        QFETCH(QString, option);
        QFETCH(QStringList, choices);
        auto h = host();
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        PDEFeaturePtr f = model.featureWithKey(option);
        QVERIFY(f);
        QCOMPARE(keywords(f->choices()), choices);
        QTEST(current(f), "current");
        QTEST(f->isCurrentValueAPPDChoice(), "choiceFeature");
        for (const QString& c : choices)
            QVERIFY(!model.isInstallableOptionConstrainedWithChoice(c, option));
    }

    void freeTextRestore_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("saved");
        QTest::addColumn<QString>("fullName");
        QTest::addColumn<QString>("expected");
        QTest::newRow("saved text wins") << "USERID" << "alice" << "Alice Example" << "alice";
        QTest::newRow("no saved value: full name") << "USERID" << QString() << "Alice Example" << "Alice Example";
        QTest::newRow("non-ASCII full name") << "USERID" << QString() << u"Jürgen Groß"_s << "Unknown";
        // Every choice ruled out by the hardware: the marked choice is kept as text.
        QTest::newRow("constrained-away option keeps its mark") << "StapleLocation" << QString() << "x" << "None";
    }
    void freeTextRestore()
    {
        QFETCH(QString, option);
        QFETCH(QString, saved);
        QFETCH(QString, expected);
        PDEUserInfo::setFullUserNameOverride(cell<QString>("fullName"));
        auto h = host({}, saved.isNull() ? QVariantMap() : QVariantMap {{option, saved}});
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        PDEFeaturePtr f = model.featureWithKey(option);
        PDEUserInfo::setFullUserNameOverride(QString());
        QVERIFY(f && !f->isCurrentValueAPPDChoice());
        QCOMPARE(f->currentValue()->keyword(), expected);
        QCOMPARE(f->currentValue()->displayString(), expected);
    }

    void customUserIdFeature()
    {
        // The sample printer has secure release and no user ID option of its own.
        auto h = TestSupport::openHost(TestSupport::samplePPD(u"velmora-m200"_s));
        QVERIFY(h);
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        PDEFeaturePtr id = model.featureWithKey(u"PSSUSERID"_s);
        QVERIFY(id && id->choices().isEmpty() && id->isCurrentValueAPPDChoice());
        QCOMPARE(id->displayString(), u"User ID"_s);
        // Its text cannot come back from the print settings: restoring leaves it as it is.
        h->printSettings()->setValue(u"PSSUSERID"_s, u"bob"_s);
        id->restoreValues();
        QVERIFY(!id->currentValue());
        // Without the secure-release option there is no such feature.
        auto plain = host();
        QVERIFY(!MRPDE_MACChangeHandlerModel(m_bundle, plain.get()).featureWithKey(u"PSSUSERID"_s));
    }

    void userDefinedColor_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QStringList>("files");  // below the profile folder; null list: no folder
        QTest::addColumn<QStringList>("choices");
        QTest::newRow("profiles found recursively") << "1" << QStringList {"office.ucs", "sub/photo.ucs", "notes.txt", "upper.UCS"}
                                                    << QStringList {"None", "office.ucs", "photo.ucs"};
        QTest::newRow("empty folder keeps None") << "1" << QStringList {} << QStringList {"None"};
        QTest::newRow("no folder") << "1" << QStringList {"<none>"} << QStringList {};
        QTest::newRow("mode 0") << "0" << QStringList {"office.ucs"} << QStringList {};
    }
    void userDefinedColor()
    {
        QFETCH(QString, mode);
        QFETCH(QStringList, files);
        QFETCH(QStringList, choices);
        QTemporaryDir dir;
        const QString ppd = TestSupport::writePPD(dir, u"udc.ppd"_s, u"*eCMSMode2: \"%1\"\n"_s.arg(mode));
        const QString root = dir.filePath(u"vcms"_s), folder = root + u"/Velmora/Printer/VCMS/Velmora Test/"_s;
        MRPDE_MACChangeHandlerModel::setColorProfileFolderFormat(root + u"/%@/Printer/VCMS/%@/"_s);
        const bool noFolder = files == QStringList {u"<none>"_s};
        QVERIFY(noFolder || QDir().mkpath(folder));
        for (const QString& f : noFolder ? QStringList() : files) {
            QVERIFY(QDir().mkpath(QFileInfo(folder + f).path()));
            QVERIFY(QFile(folder + f).open(QIODevice::WriteOnly));
        }
        auto h = TestSupport::openHost(ppd);
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        MRPDE_MACChangeHandlerModel::setColorProfileFolderFormat(QString());
        PDEFeaturePtr udc = model.featureWithKey(u"UserDefinedColor"_s);
        PDEAttributePtr path = model.attributeWithKey(u"VCMS2Path"_s);
        QCOMPARE(bool(path), mode == u"1");
        QCOMPARE(bool(udc), !choices.isEmpty());
        if (path) {
            QVERIFY(path->isPrintSetting());
            QCOMPARE(path->attributeValue(), folder);
        }
        if (!udc)
            return;
        QStringList got = keywords(udc->choices());
        // The file system gives its own order; "None" always comes first.
        QCOMPARE(got.first(), u"None"_s);
        std::sort(got.begin() + 1, got.end());
        QCOMPARE(got, choices);
        QCOMPARE(current(udc), u"None"_s);
        QVERIFY(model.saveValuesAndReturnError(nullptr));
        QCOMPARE(h->printSettings()->value(u"VCMS2Path"_s), folder);
        QCOMPARE(h->printSettings()->value(u"UserDefinedColor"_s), u"None"_s);
    }

    void approvalGate()
    {
        auto h = host();
        // Without approval nothing can change, not even the initial value.
        PartialCallback noApproval(h.get(), {PDEPluginCallback::Operation::WillChangePPDOptionKeyValue});
        MRPDE_MACChangeHandlerModel model(m_bundle, &noApproval);
        PDEFeaturePtr media = model.featureWithKey(u"MediaType"_s);
        QVERIFY(media && !media->currentValue());
        QVERIFY(!media->setCurrentValueWithChoiceWithKeyword(u"Thick"_s));
        QVERIFY(!media->currentValue());
        QCOMPARE(noApproval.approvals, 0);

        PartialCallback withApproval(h.get());
        MRPDE_MACChangeHandlerModel model2(m_bundle, &withApproval);
        QVERIFY(!model2.willChangePPDOptionKeyValue(QString(), u"x"_s));
        QVERIFY(!model2.willChangePPDOptionKeyValue(u"MediaType"_s, QString()));
        PDEFeaturePtr m2 = model2.featureWithKey(u"MediaType"_s);
        QVERIFY(m2->setCurrentValueWithChoiceWithKeyword(u"Thick"_s));
        QCOMPARE(marked(*h, "MediaType"), u"Thick"_s);
        QVERIFY(!h->willChangePPDOptionKeyValue(u"MediaType"_s, u"Bogus"_s));  // the host refuses what the PPD lacks
        QVERIFY(!m2->setCurrentValueWithChoiceWithKeyword(u"NotAChoice"_s));
        QVERIFY(!m2->setCurrentValueWithChoiceWithDisplayString(u"Thick "_s));
        QVERIFY(m2->setCurrentValueWithChoiceWithDisplayString(u"Transparency"_s));
        QCOMPARE(current(m2), u"Transparency"_s);
        // A choice that is not selectable never becomes current.
        PDEChoicePtr plain = m2->getChoiceWithKeyword(u"Plain"_s);
        plain->setSelectable(false);
        QVERIFY(!m2->setCurrentValueWithChoiceWithKeyword(u"Plain"_s));
        m2->setCurrentValue(plain);
        QCOMPARE(current(m2), u"Transparency"_s);
        QVERIFY(!m2->getChoiceWithKeyword(QString()));
    }

    void notifications()
    {
        auto h = host();
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        PDEFeaturePtr media = model.featureWithKey(u"MediaType"_s);
        QObject a, b;
        QStringList order;
        media->observeCurrentValue(&a, [&](MRPDE_MACFeature* f) { order << "a:" + f->currentValue()->keyword(); }, false);
        media->observeCurrentValue(&b, [&](MRPDE_MACFeature* f) { order << "b:" + f->currentValue()->keyword(); }, true);
        QCOMPARE(order, QStringList {"b:Plain"});
        order.clear();
        // The same choice object again: no notification.
        media->setCurrentValue(media->currentValue());
        QVERIFY(order.isEmpty());
        // An equal but different object: one notification to each, in registration order, after the store.
        media->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(u"Plain"_s, u"Plain"_s));
        QCOMPARE(order, QStringList({"a:Plain", "b:Plain"}));
        order.clear();
        {
            QObject gone;
            media->observeCurrentValue(&gone, [&](MRPDE_MACFeature*) { order << "gone"; }, false);
        }
        QVERIFY(media->setCurrentValueWithChoiceWithKeyword(u"Thick"_s));
        QCOMPARE(order, QStringList({"a:Thick", "b:Thick"}));
    }

    void conflictResolutionThroughHost()
    {
        auto h = host(u"Option2=True"_s);
        QVERIFY(h);
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        // A panel that hands the host's resolution changes to the model.
        QStringList journal;
        RecordingPanel panel(u"test"_s, &journal);
        panel.forward = [&](const QString& o, const QString& c) { model.PPDOptionKeyValueDidChange(o, c); };
        h->setPanels({&panel});
        PrintDialogHost::OptionList resolved;
        QObject::connect(h.get(), &PrintDialogHost::optionsChangedByResolution, h.get(), [&](const auto& l) { resolved += l; });
        PDEFeaturePtr duplex = model.featureWithKey(u"Duplex"_s);
        QVERIFY(duplex->setCurrentValueWithChoiceWithKeyword(u"DuplexNoTumble"_s));
        QCoreApplication::sendPostedEvents();
        panel.changesReceived.clear();
        resolved.clear();

        QVERIFY(model.featureWithKey(u"MediaType"_s)->setCurrentValueWithChoiceWithKeyword(u"Transparency"_s));
        // The panels hear of the resolution only after the approval has returned.
        QVERIFY(panel.changesReceived.isEmpty());
        QCOMPARE(current(duplex), u"DuplexNoTumble"_s);
        QCoreApplication::sendPostedEvents();
        QVERIFY(!panel.changesReceived.isEmpty() && !panel.changesReceived.contains({u"MediaType"_s, u"Transparency"_s}));
        QCOMPARE(resolved, panel.changesReceived);
        QVERIFY(current(duplex) != u"DuplexNoTumble"_s);
        QCOMPARE(marked(*h, "Duplex"), current(duplex));
        QCOMPARE(ppdConflicts(h->ppd()), 0);
    }

    void saveRestoreRoundTrip()
    {
        const QString user = u"Ann 'x' \"y\""_s;
        QStringList saved;
        {
            auto h = host(u"Option2=True"_s);
            QVERIFY(h);
            MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
            QVERIFY(model.featureWithKey(u"Duplex"_s)->setCurrentValueWithChoiceWithKeyword(u"DuplexNoTumble"_s));
            QVERIFY(!model.featureWithKey(u"MediaType"_s)->setCurrentValueWithChoiceWithKeyword(u"Thick"_s));
            model.featureWithKey(u"USERID"_s)->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(user, QString()));
            QVERIFY(model.saveValuesAndReturnError(nullptr));
            const PMPrintSettings* s = h->printSettings();
            QCOMPARE(s->value(u"Duplex"_s), u"DuplexNoTumble"_s);
            QCOMPARE(s->value(u"MediaType"_s), u"Plain"_s);
            QCOMPARE(s->value(u"USERID"_s), user);
            // Back as one option string, quoted as lp would need it.
            for (const auto& [k, v] : s->entries())
                saved << k + u"='"_s + QString(v).replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
        }
        auto h = host(u"Option2=True "_s + saved.join(u' '));
        QVERIFY(h);
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        PDEFeaturePtr duplex = model.featureWithKey(u"Duplex"_s), user2 = model.featureWithKey(u"USERID"_s);
        QVERIFY(model.restoreValuesAndReturnError(nullptr));
        QCOMPARE(current(duplex), u"DuplexNoTumble"_s);
        QCOMPARE(current(user2), user);
        // A stored value that is no choice leaves the current one.
        h->printSettings()->setValue(u"Duplex"_s, u"Cardboard"_s);
        duplex->restoreValues();
        QCOMPARE(current(duplex), u"DuplexNoTumble"_s);
        h->printSettings()->setValue(u"Duplex"_s, u"None"_s);
        duplex->restoreValues();
        QCOMPARE(current(duplex), u"None"_s);
    }

    void attributes()
    {
        auto h = host();
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        const auto before = model.ppdAttributes().size();
        PDEAttributePtr nick = model.attributeWithKey(u"NickName"_s);
        QVERIFY(nick);
        QCOMPARE(nick->attributeValue(), u"Velmora Test"_s);
        QCOMPARE(model.attributeWithKey(u"NickName"_s), nick);
        QVERIFY(!model.attributeWithKey(u"NoSuchAttribute"_s));
        QCOMPARE(model.ppdAttributes().size(), before + 1);
        // A PPD attribute is never written to the print settings.
        nick->setIsPrintSetting(true);
        QVERIFY(model.saveValuesAndReturnError(nullptr));
        QVERIFY(!h->printSettings()->contains(u"NickName"_s));
    }

    // Turns the process-wide debug switch on, so it comes last.
    void secretsNeverLogged()
    {
        QTemporaryDir dir;
        MRPDE_MACFirstEventHandler entry;
        entry.initWithBundle(TestSupport::bundleWithInfo(dir, {{"DEBUG", "YES"}}));
        QVERIFY(MRPDE_MACFirstEventHandler::debug());
        PDELogCapture log;
        auto h = host({}, {{u"PINCode"_s, u"90210"_s}});
        MRPDE_MACChangeHandlerModel model(m_bundle, h.get());
        PDEFeaturePtr pin = model.featureWithKey(u"PINCode"_s);
        QCOMPARE(current(pin), u"90210"_s);
        pin->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(u"4711"_s, u"4711"_s));
        model.saveValuesAndReturnError(nullptr);
        model.restoreValuesAndReturnError(nullptr);
        model.PPDOptionKeyValueDidChange(u"PINCode"_s, u"4711"_s);
        QVERIFY(log.lines().filter(u"PINCode"_s).size() > 2);
        for (const QString& line : log.lines())
            QVERIFY2(!line.contains(u"4711"_s) && !line.contains(u"90210"_s), qPrintable(line));
    }
};

QTEST_MAIN(ModelTest)
#include "tst_model.moc"
