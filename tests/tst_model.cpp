// The option model on real PPD files: lazy features, installed-hardware
// constraints, features the PPD lacks, approval through the host, and the
// round trip through the print settings.
#include "MRPDEAttribute.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "MRPDE_MACFeature.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDELogSink.h"
#include "PDEBundle.h"
#include "PDEPanel.h"
#include "PDEUserInfo.h"
#include "PMPrintSettings.h"
#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <cups/ppd.h>

using Op = PDEPluginCallback::Operation;

namespace {
const char kOptions[] = R"(
*OpenGroup: InstallableOptions/Installed Options
*OpenUI *Option2/Duplex Unit: Boolean
*DefaultOption2: False
*Option2 True/Installed: ""
*Option2 False/Not Installed: ""
*CloseUI: *Option2
*OpenUI *Option3/Finisher: PickOne
*DefaultOption3: None
*Option3 None/None: ""
*Option3 FS1/Finisher FS1: ""
*CloseUI: *Option3
*OpenUI *Option4/Hard Disk: PickOne
*DefaultOption4: HD40
*Option4 None/None: ""
*Option4 HD40/40 GB: ""
*CloseUI: *Option4
*OpenUI *Option6/Envelope Feeder: Boolean
*DefaultOption6: False
*Option6 True/Installed: ""
*Option6 False/Not Installed: ""
*CloseUI: *Option6
*CloseGroup: InstallableOptions
*OpenUI *Duplex/Two-Sided: PickOne
*OrderDependency: 20 AnySetup *Duplex
*DefaultDuplex: DuplexTumble
*Duplex None/Off: ""
*Duplex DuplexNoTumble/Long Edge: ""
*Duplex DuplexTumble/Short Edge: ""
*CloseUI: *Duplex
*OpenUI *StapleLocation/Staple: PickOne
*OrderDependency: 20 AnySetup *StapleLocation
*DefaultStapleLocation: None
*StapleLocation None/None: ""
*StapleLocation TopLeft/Top Left: ""
*CloseUI: *StapleLocation
*OpenUI *JobType/Job Type: PickOne
*OrderDependency: 20 AnySetup *JobType
*DefaultJobType: Normal
*JobType Normal/Normal: ""
*JobType Stored/Stored: ""
*JobType Secure/Secure: ""
*CloseUI: *JobType
*OpenUI *InputSlot/Source: PickOne
*OrderDependency: 20 AnySetup *InputSlot
*DefaultInputSlot: Tray1
*InputSlot Tray1/Tray 1: ""
*InputSlot Envelope/Envelope Feeder: ""
*CloseUI: *InputSlot
*OpenUI *MediaType/Paper Type: PickOne
*OrderDependency: 20 AnySetup *MediaType
*DefaultMediaType: Plain
*MediaType Plain/Plain: ""
*MediaType Thick/Thick: ""
*MediaType Transparency/Transparency: ""
*CloseUI: *MediaType
*OpenUI *USERID/User ID: PickOne
*OrderDependency: 20 AnySetup *USERID
*DefaultUSERID: None
*CloseUI: *USERID
*OpenUI *PINCode/PIN: PickOne
*OrderDependency: 20 AnySetup *PINCode
*DefaultPINCode: None
*CloseUI: *PINCode
*UIConstraints: *Option2 False *Duplex DuplexNoTumble
*UIConstraints: *Option2 False *Duplex DuplexTumble
*UIConstraints: *Option3 None *StapleLocation
*UIConstraints: *Option4 *JobType Normal
*UIConstraints: *Option6 *InputSlot Envelope
*UIConstraints: *Option2 True *MediaType Thick
*UIConstraints: *MediaType Transparency *Duplex DuplexNoTumble
*UIConstraints: *Duplex DuplexNoTumble *MediaType Transparency
)";

QStringList keywords(const QList<PDEChoicePtr>& choices)
{
    QStringList out;
    for (const auto& c : choices)
        out << c->keyword();
    return out;
}

// Hands the host's resolution changes to the model, as a panel does.
class ModelPanel : public PDEPanel {
public:
    explicit ModelPanel(MRPDE_MACChangeHandlerModel* m) : model(m) {}
    QString panelKind() override { return QStringLiteral("test"); }
    QString panelName() override { return QStringLiteral("test"); }
    QWidget* panelView() override { return nullptr; }
    bool willShow() override { return true; }
    bool shouldHide() override { return true; }
    QVariantMap summaryInfo() override { return {}; }
    QStringList supportedPPDOptionKeys() override { return {}; }
    bool restoreValuesAndReturnError(QString*) override { return true; }
    bool saveValuesAndReturnError(QString*) override { return true; }
    void PPDOptionKeyValueDidChange(const QString& o, const QString& c) override
    {
        told << o + QLatin1Char('=') + c;
        model->PPDOptionKeyValueDidChange(o, c);
    }
    bool shouldShowHelp() override { return false; }
    MRPDE_MACChangeHandlerModel* model;
    QStringList told;
};
}

class ModelTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void lazyCreation();
    void installableConstraints_data();
    void installableConstraints();
    void freeTextRestore_data();
    void freeTextRestore();
    void customUserIdFeature();
    void userDefinedColor_data();
    void userDefinedColor();
    void approvalGate();
    void notifications();
    void conflictResolutionThroughHost();
    void unresolvableChangeIsRefused();
    void saveRestoreRoundTrip();
    void restoreKeepsUnknownChoice();
    void attributes();
    // Turns the process-wide debug switch on, so it comes last.
    void secretsNeverLogged();

private:
    QTemporaryDir m_dir;
    QString m_ppd;
    std::shared_ptr<PDEBundle> m_bundle;
};

void ModelTest::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_ppd = TestSupport::writePPD(m_dir, QStringLiteral("model.ppd"), QString::fromLatin1(kOptions));
    QVERIFY(!m_ppd.isEmpty());
    m_bundle = PDEBundle::embedded();
    QVERIFY(m_bundle);
    m_bundle->setLanguage(QStringLiteral("en"));
}

void ModelTest::lazyCreation()
{
    auto host = TestSupport::openHost(m_ppd);
    QVERIFY(host);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    QVERIFY(model.features().isEmpty());

    QVERIFY(!model.featureWithKey(QStringLiteral("NoSuchOption")));
    QVERIFY(!model.featureWithKey(QStringLiteral("NoSuchOption")));
    QVERIFY(model.features().isEmpty());

    PDEFeaturePtr media = model.featureWithKey(QStringLiteral("MediaType"));
    PDEFeaturePtr staple = model.featureWithKey(QStringLiteral("StapleLocation"));
    QVERIFY(media && staple);
    QCOMPARE(model.featureWithKey(QStringLiteral("MediaType")), media);
    QCOMPARE(model.features().size(), 2);
    QCOMPARE(model.features().at(0), media);
    QCOMPARE(media->displayString(), QStringLiteral("Paper Type"));
    QCOMPARE(keywords(media->choices()), QStringList({"Plain", "Thick", "Transparency"}));
    QCOMPARE(media->currentValue()->keyword(), QStringLiteral("Plain"));
    QCOMPARE(media->defaultValue()->keyword(), QStringLiteral("Plain"));
    QVERIFY(media->isCurrentValueAPPDChoice());
}

void ModelTest::installableConstraints_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("choices");
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("choiceFeature");

    // Option2 is marked False: both duplex choices go; the conflicting
    // default was resolved to the one left when the PPD was opened.
    QTest::newRow("choice1 equals the marked choice") << "Duplex" << QStringList{"None"} << "None" << true;
    // An empty choice2 takes every choice away: the feature becomes free text.
    QTest::newRow("empty choice2 removes all choices") << "StapleLocation" << QStringList{} << "None" << false;
    // An empty choice1 applies while the installable option is marked anything but None/False.
    QTest::newRow("empty choice1, installed") << "JobType" << QStringList{"Stored", "Secure"} << "Stored" << true;
    QTest::newRow("empty choice1, marked False") << "InputSlot" << QStringList{"Tray1", "Envelope"} << "Tray1" << true;
    QTest::newRow("choice1 not marked") << "MediaType" << QStringList{"Plain", "Thick", "Transparency"} << "Plain" << true;
}

void ModelTest::installableConstraints()
{
    QFETCH(QString, option);
    QFETCH(QStringList, choices);
    QFETCH(QString, current);
    QFETCH(bool, choiceFeature);

    auto host = TestSupport::openHost(m_ppd);
    QVERIFY(host);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    PDEFeaturePtr f = model.featureWithKey(option);
    QVERIFY(f);
    QCOMPARE(keywords(f->choices()), choices);
    QCOMPARE(f->currentValue() ? f->currentValue()->keyword() : QString(), current);
    QCOMPARE(f->isCurrentValueAPPDChoice(), choiceFeature);
    for (const QString& c : choices)
        QVERIFY(!model.isInstallableOptionConstrainedWithChoice(c, option));
}

void ModelTest::freeTextRestore_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("fullName");
    QTest::addColumn<QString>("expected");

    QTest::newRow("saved text wins") << "USERID" << "alice" << "Alice Example" << "alice";
    QTest::newRow("no saved value: full name") << "USERID" << QString() << "Alice Example" << "Alice Example";
    QTest::newRow("non-ASCII full name") << "USERID" << QString() << QString::fromUtf8("Jürgen Groß") << "Unknown";
    QTest::newRow("saved text with blanks and quotes") << "USERID" << "O'Brien \"Bob\"" << "x" << "O'Brien \"Bob\"";
    // Every choice ruled out by the hardware: the marked choice is kept as text.
    QTest::newRow("constrained-away option keeps its mark") << "StapleLocation" << QString() << "x" << "None";
}

void ModelTest::freeTextRestore()
{
    QFETCH(QString, option);
    QFETCH(QString, saved);
    QFETCH(QString, fullName);
    QFETCH(QString, expected);

    PDEUserInfo::setFullUserNameOverride(fullName);
    auto host = TestSupport::openHost(m_ppd);
    QVERIFY(host);
    if (!saved.isNull())
        host->printSettings()->setValue(option, saved);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    PDEFeaturePtr f = model.featureWithKey(option);
    PDEUserInfo::setFullUserNameOverride(QString());
    QVERIFY(f);
    QVERIFY(!f->isCurrentValueAPPDChoice());
    QCOMPARE(f->currentValue()->keyword(), expected);
    QCOMPARE(f->currentValue()->displayString(), expected);
}

void ModelTest::customUserIdFeature()
{
    QTemporaryDir dir;
    const QString with = TestSupport::writePPD(dir, QStringLiteral("sr.ppd"), QStringLiteral(R"(
*OpenUI *VELSecureReleaseOption2/Secure Release: Boolean
*DefaultVELSecureReleaseOption2: Off
*VELSecureReleaseOption2 On/On: ""
*VELSecureReleaseOption2 Off/Off: ""
*CloseUI: *VELSecureReleaseOption2
)"));
    auto host = TestSupport::openHost(with);
    QVERIFY(host);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    PDEFeaturePtr id = model.featureWithKey(QStringLiteral("PSSUSERID"));
    QVERIFY(id);
    QCOMPARE(id->displayString(), QStringLiteral("User ID"));
    QVERIFY(id->choices().isEmpty());
    QVERIFY(id->isCurrentValueAPPDChoice());
    // Its text cannot come back from the print settings: restoring leaves it as it is.
    host->printSettings()->setValue(QStringLiteral("PSSUSERID"), QStringLiteral("bob"));
    id->restoreValues();
    QVERIFY(!id->currentValue());

    // The sample without the secure-release option has no such feature.
    auto plain = TestSupport::openHost(m_ppd);
    MRPDE_MACChangeHandlerModel plainModel(m_bundle, plain.get());
    QVERIFY(!plainModel.featureWithKey(QStringLiteral("PSSUSERID")));
}

void ModelTest::userDefinedColor_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("files");  // below the profile folder; null list: no folder
    QTest::addColumn<QStringList>("choices");

    QTest::newRow("profiles found recursively")
        << "1" << QStringList{"office.ucs", "sub/photo.ucs", "notes.txt", "upper.UCS"}
        << QStringList{"None", "office.ucs", "photo.ucs"};
    QTest::newRow("empty folder keeps None") << "1" << QStringList{} << QStringList{"None"};
    QTest::newRow("no folder") << "1" << QStringList{"<none>"} << QStringList{};
    QTest::newRow("mode 0") << "0" << QStringList{"office.ucs"} << QStringList{};
}

void ModelTest::userDefinedColor()
{
    QFETCH(QString, mode);
    QFETCH(QStringList, files);
    QFETCH(QStringList, choices);

    QTemporaryDir dir;
    const QString ppd = TestSupport::writePPD(dir, QStringLiteral("udc.ppd"), QStringLiteral("*eCMSMode2: \"%1\"\n").arg(mode));
    const QString root = dir.filePath(QStringLiteral("vcms"));
    MRPDE_MACChangeHandlerModel::setColorProfileFolderFormat(root + QStringLiteral("/%@/Printer/VCMS/%@/"));
    const QString folder = root + QStringLiteral("/Velmora/Printer/VCMS/Velmora Test/");
    if (files != QStringList{"<none>"}) {
        QVERIFY(QDir().mkpath(folder));
        for (const QString& f : files) {
            QDir().mkpath(QFileInfo(folder + f).path());
            QFile file(folder + f);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }
    auto host = TestSupport::openHost(ppd);
    QVERIFY(host);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    MRPDE_MACChangeHandlerModel::setColorProfileFolderFormat(QString());

    PDEFeaturePtr udc = model.featureWithKey(QStringLiteral("UserDefinedColor"));
    PDEAttributePtr path = model.attributeWithKey(QStringLiteral("VCMS2Path"));
    if (mode != QLatin1String("1")) {
        QVERIFY(!udc && !path);
        return;
    }
    QVERIFY(path);
    QCOMPARE(path->attributeValue(), folder);
    QVERIFY(path->isPrintSetting());
    if (choices.isEmpty()) {
        QVERIFY(!udc);
        return;
    }
    QVERIFY(udc);
    QStringList got = keywords(udc->choices());
    // The file system gives its own order; "None" always comes first.
    QCOMPARE(got.first(), QStringLiteral("None"));
    std::sort(got.begin() + 1, got.end());
    QCOMPARE(got, choices);
    QCOMPARE(udc->currentValue()->keyword(), QStringLiteral("None"));

    QString error;
    QVERIFY(model.saveValuesAndReturnError(&error));
    QCOMPARE(host->printSettings()->value(QStringLiteral("VCMS2Path")), folder);
    QCOMPARE(host->printSettings()->value(QStringLiteral("UserDefinedColor")), QStringLiteral("None"));
}

void ModelTest::approvalGate()
{
    auto host = TestSupport::openHost(m_ppd);
    QVERIFY(host);
    PartialCallback noApproval(host.get(), {Op::WillChangePPDOptionKeyValue});
    MRPDE_MACChangeHandlerModel model(m_bundle, &noApproval);
    // Without approval nothing can change, not even the initial value.
    PDEFeaturePtr media = model.featureWithKey(QStringLiteral("MediaType"));
    QVERIFY(media);
    QVERIFY(!media->currentValue());
    QVERIFY(!media->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Thick")));
    QVERIFY(!media->currentValue());
    QCOMPARE(noApproval.approvals, 0);

    PartialCallback withApproval(host.get());
    MRPDE_MACChangeHandlerModel model2(m_bundle, &withApproval);
    QVERIFY(!model2.willChangePPDOptionKeyValue(QString(), QStringLiteral("x")));
    QVERIFY(!model2.willChangePPDOptionKeyValue(QStringLiteral("MediaType"), QString()));
    PDEFeaturePtr m2 = model2.featureWithKey(QStringLiteral("MediaType"));
    QVERIFY(m2->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Thick")));
    QCOMPARE(ppdFindMarkedChoice(host->ppd(), "MediaType")->choice, "Thick");
    QVERIFY(!m2->setCurrentValueWithChoiceWithKeyword(QStringLiteral("NotAChoice")));
    QVERIFY(!m2->setCurrentValueWithChoiceWithDisplayString(QStringLiteral("Thick ")));
    QVERIFY(m2->setCurrentValueWithChoiceWithDisplayString(QStringLiteral("Transparency")));
    QCOMPARE(m2->currentValue()->keyword(), QStringLiteral("Transparency"));

    // A choice that is not selectable never becomes current.
    PDEChoicePtr plain = m2->getChoiceWithKeyword(QStringLiteral("Plain"));
    plain->setSelectable(false);
    QVERIFY(!m2->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Plain")));
    m2->setCurrentValue(plain);
    QCOMPARE(m2->currentValue()->keyword(), QStringLiteral("Transparency"));
    QVERIFY(!m2->getChoiceWithKeyword(QString()));
}

void ModelTest::notifications()
{
    auto host = TestSupport::openHost(m_ppd);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    PDEFeaturePtr media = model.featureWithKey(QStringLiteral("MediaType"));
    QObject a, b;
    QStringList order;
    media->observeCurrentValue(&a, [&](MRPDE_MACFeature* f) { order << "a:" + f->currentValue()->keyword(); }, false);
    media->observeCurrentValue(&b, [&](MRPDE_MACFeature* f) { order << "b:" + f->currentValue()->keyword(); }, true);
    QCOMPARE(order, QStringList{"b:Plain"});
    order.clear();

    // The same choice object again: no notification.
    media->setCurrentValue(media->currentValue());
    QVERIFY(order.isEmpty());
    // An equal but different object: one notification to each, in registration order, after the store.
    media->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(QStringLiteral("Plain"), QStringLiteral("Plain")));
    QCOMPARE(order, QStringList({"a:Plain", "b:Plain"}));
    order.clear();
    {
        QObject gone;
        media->observeCurrentValue(&gone, [&](MRPDE_MACFeature*) { order << "gone"; }, false);
    }
    QVERIFY(media->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Thick")));
    QCOMPARE(order, QStringList({"a:Thick", "b:Thick"}));
}

void ModelTest::conflictResolutionThroughHost()
{
    auto host = TestSupport::openHost(m_ppd);
    host->applyOptions(QStringLiteral("Option2=True"), nullptr);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    ModelPanel panel(&model);
    host->setPanels({&panel});
    QStringList resolvedSignal;
    QObject::connect(host.get(), &PrintDialogHost::optionsChangedByResolution, host.get(),
                     [&](const PrintDialogHost::OptionList& l) {
                         for (const auto& [k, v] : l)
                             resolvedSignal << k + '=' + v;
                     });
    PDEFeaturePtr duplex = model.featureWithKey(QStringLiteral("Duplex"));
    PDEFeaturePtr media = model.featureWithKey(QStringLiteral("MediaType"));
    QVERIFY(duplex->setCurrentValueWithChoiceWithKeyword(QStringLiteral("DuplexNoTumble")));
    QCoreApplication::sendPostedEvents();
    panel.told.clear();
    resolvedSignal.clear();

    QVERIFY(media->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Transparency")));
    // The panels hear of the resolution only after the approval has returned.
    QVERIFY(panel.told.isEmpty());
    QCOMPARE(duplex->currentValue()->keyword(), QStringLiteral("DuplexNoTumble"));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!panel.told.isEmpty());
    QVERIFY(!panel.told.contains(QStringLiteral("MediaType=Transparency")));
    QCOMPARE(resolvedSignal, panel.told);
    QVERIFY(duplex->currentValue()->keyword() != QLatin1String("DuplexNoTumble"));
    QCOMPARE(QString::fromUtf8(ppdFindMarkedChoice(host->ppd(), "Duplex")->choice), duplex->currentValue()->keyword());
    QCOMPARE(ppdConflicts(host->ppd()), 0);
}

void ModelTest::unresolvableChangeIsRefused()
{
    // Only the installed hardware could make room for a long-edge duplex.
    // The conflicting default was resolved when the PPD opened.
    auto host = TestSupport::openHost(m_ppd);
    QCOMPARE(ppdFindMarkedChoice(host->ppd(), "Duplex")->choice, "None");
    QVERIFY(!host->willChangePPDOptionKeyValue(QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble")));
    QCOMPARE(ppdFindMarkedChoice(host->ppd(), "Duplex")->choice, "None");
    QVERIFY(!host->willChangePPDOptionKeyValue(QStringLiteral("Duplex"), QStringLiteral("Bogus")));
    // Free text and keys that are no PPD option are approved unchanged.
    QVERIFY(host->willChangePPDOptionKeyValue(QStringLiteral("USERID"), QStringLiteral("anything at all")));
    QVERIFY(host->willChangePPDOptionKeyValue(QStringLiteral("WMCustomStr"), QStringLiteral("x")));
}

void ModelTest::saveRestoreRoundTrip()
{
    QStringList saved;
    {
        auto host = TestSupport::openHost(m_ppd);
        QString error;
        QVERIFY(host->applyOptions(QStringLiteral("Option2=True"), &error));
        MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
        QVERIFY(model.featureWithKey(QStringLiteral("Duplex"))->setCurrentValueWithChoiceWithKeyword(QStringLiteral("DuplexNoTumble")));
        QVERIFY(model.featureWithKey(QStringLiteral("MediaType"))->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Thick")) == false);
        model.featureWithKey(QStringLiteral("USERID"))
            ->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(QStringLiteral("Ann 'x' \"y\""), QString()));
        QVERIFY(model.saveValuesAndReturnError(&error));
        const PMPrintSettings* s = host->printSettings();
        QCOMPARE(s->value(QStringLiteral("Duplex")), QStringLiteral("DuplexNoTumble"));
        QCOMPARE(s->value(QStringLiteral("MediaType")), QStringLiteral("Plain"));
        QCOMPARE(s->value(QStringLiteral("USERID")), QStringLiteral("Ann 'x' \"y\""));
        // Back as one option string, quoted as lp would need it.
        for (const auto& [k, v] : s->entries()) {
            QString q = v;
            q.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('\''), QStringLiteral("\\'"));
            saved << k + QStringLiteral("='") + q + QLatin1Char('\'');
        }
    }
    auto host = TestSupport::openHost(m_ppd);
    QString error;
    QVERIFY2(host->applyOptions(QStringLiteral("Option2=True ") + saved.join(QLatin1Char(' ')), &error), qPrintable(error));
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    PDEFeaturePtr duplex = model.featureWithKey(QStringLiteral("Duplex"));
    PDEFeaturePtr user = model.featureWithKey(QStringLiteral("USERID"));
    QVERIFY(model.restoreValuesAndReturnError(&error));
    QCOMPARE(duplex->currentValue()->keyword(), QStringLiteral("DuplexNoTumble"));
    QCOMPARE(user->currentValue()->keyword(), QStringLiteral("Ann 'x' \"y\""));
}

void ModelTest::restoreKeepsUnknownChoice()
{
    auto host = TestSupport::openHost(m_ppd);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    PDEFeaturePtr media = model.featureWithKey(QStringLiteral("MediaType"));
    QVERIFY(media->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Thick")));
    host->printSettings()->setValue(QStringLiteral("MediaType"), QStringLiteral("Cardboard"));
    media->restoreValues();
    QCOMPARE(media->currentValue()->keyword(), QStringLiteral("Thick"));
    host->printSettings()->setValue(QStringLiteral("MediaType"), QStringLiteral("Transparency"));
    media->restoreValues();
    QCOMPARE(media->currentValue()->keyword(), QStringLiteral("Transparency"));
}

void ModelTest::attributes()
{
    auto host = TestSupport::openHost(m_ppd);
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    const int before = int(model.ppdAttributes().size());
    PDEAttributePtr nick = model.attributeWithKey(QStringLiteral("NickName"));
    QVERIFY(nick);
    QCOMPARE(nick->attributeValue(), QStringLiteral("Velmora Test"));
    QCOMPARE(model.attributeWithKey(QStringLiteral("NickName")), nick);
    QVERIFY(!model.attributeWithKey(QStringLiteral("NoSuchAttribute")));
    QCOMPARE(int(model.ppdAttributes().size()), before + 1);
    // A PPD attribute is never written to the print settings.
    nick->setIsPrintSetting(true);
    QString error;
    QVERIFY(model.saveValuesAndReturnError(&error));
    QVERIFY(!host->printSettings()->contains(QStringLiteral("NickName")));
}

void ModelTest::secretsNeverLogged()
{
    QTemporaryDir dir;
    MRPDE_MACFirstEventHandler entry;
    entry.initWithBundle(TestSupport::bundleWithInfo(dir, {{"DEBUG", "YES"}}));
    QVERIFY(MRPDE_MACFirstEventHandler::debug());
    PDELogCapture log;
    auto host = TestSupport::openHost(m_ppd);
    host->printSettings()->setValue(QStringLiteral("PINCode"), QStringLiteral("90210"));
    MRPDE_MACChangeHandlerModel model(m_bundle, host.get());
    PDEFeaturePtr pin = model.featureWithKey(QStringLiteral("PINCode"));
    QCOMPARE(pin->currentValue()->keyword(), QStringLiteral("90210"));
    pin->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(QStringLiteral("4711"), QStringLiteral("4711")));
    QString error;
    model.saveValuesAndReturnError(&error);
    model.restoreValuesAndReturnError(&error);
    model.PPDOptionKeyValueDidChange(QStringLiteral("PINCode"), QStringLiteral("4711"));
    QVERIFY(!log.lines().isEmpty());
    QVERIFY(log.lines().filter(QStringLiteral("PINCode")).size() > 2);
    for (const QString& line : log.lines())
        QVERIFY2(!line.contains(QStringLiteral("4711")) && !line.contains(QStringLiteral("90210")), qPrintable(line));
}

QTEST_MAIN(ModelTest)
#include "tst_model.moc"
