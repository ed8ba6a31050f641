// Control controllers and triggers on real widgets, bound to features of the
// real option model over tests/fixtures/controls.ppd; changes are approved by
// the real host (libcups marking and conflict resolution).
#include "MRPDEBasicTrigger.h"
#include "MRPDEComplexTrigger.h"
#include "MRPDESecureTextFieldController.h"
#include "MRPDEStepperController.h"
#include "MRPDEStringFormatter.h"
#include "MRPDE_MACCheckBoxController.h"
#include "MRPDE_MACDatePickerController.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "MRPDE_MACTextFieldController.h"
#include "PDEBundle.h"
#include "PDELogSink.h"
#include "PDEStepper.h"
#include "PanelDescriber.h"
#include "TestSupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFile>
#include <QInputMethodEvent>
#include <QJsonDocument>
#include <QLabel>
#include <QProcess>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <cups/ppd.h>

using namespace Qt::StringLiterals;

namespace {

// A model over the fixture whose changes by conflict resolution reach the
// features (as the panels forward them), and a window for the controls.
// `stored` is the job's print setting for `key` before the model reads it.
struct Bench {
    explicit Bench(const QString& key = {}, const QString& stored = {})
        : host(TestSupport::openHost(TestSupport::fixture(u"controls.ppd"_s)))
    {
        if (!stored.isEmpty())
            host->printSettings()->setValue(key, stored);
        model = std::make_unique<MRPDE_MACChangeHandlerModel>(PDEBundle::embedded(), host.get());
        if (!stored.isEmpty() && f(key))
            model->restoreValuesAndReturnError(nullptr);  // as the dialog does before showing
        QObject::connect(host.get(), &PrintDialogHost::optionsChangedByResolution, model.get(), [this](const auto& changes) {
            for (const auto& [option, choice] : changes)
                model->PPDOptionKeyValueDidChange(option, choice);
        });
        new QVBoxLayout(&panel);
    }
    template <typename W>
    W* add(const QString& name = {})
    {
        auto* w = new W(&panel);
        w->setObjectName(name);
        panel.layout()->addWidget(w);
        return w;
    }
    bool show()
    {
        panel.show();
        panel.activateWindow();
        return QTest::qWaitForWindowActive(&panel);
    }
    PDEFeaturePtr f(const QString& key) const { return model->featureWithKey(key); }
    template <class C>
    std::shared_ptr<C> bind(const QString& key, QWidget* w) { return C::initiateControllerForFeatureWithControlModel(f(key), w, model.get()); }
    QString value(const QString& key) const { return f(key)->currentValue() ? f(key)->currentValue()->keyword() : QString(); }
    void set(const QString& key, const QString& v) const { f(key)->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(v, v)); }
    bool pick(const QString& key, const QString& choice) const { return f(key)->setCurrentValueWithChoiceWithKeyword(choice); }
    // The choice libcups has marked.
    QString marked(const QString& option) const { return QString::fromUtf8(ppdFindMarkedChoice(host->ppd(), qPrintable(option))->choice); }

    std::unique_ptr<PrintDialogHost> host;
    std::unique_ptr<MRPDE_MACChangeHandlerModel> model;
    QWidget panel;
};

// Types as a person does: ASCII by key presses, other characters through the
// input method; "\b" is the backspace key.
void typeText(QWidget* w, const QString& text)
{
    for (qsizetype i = 0, n = 1; i < text.size(); i += n) {
        n = text[i].isHighSurrogate() ? 2 : 1;
        QInputMethodEvent e;
        e.setCommitString(text.mid(i, n));
        if (text[i] == u'\b')
            QTest::keyClick(w, Qt::Key_Backspace);
        else if (text[i].unicode() < 0x80)
            QTest::keyClick(w, text[i].toLatin1());
        else
            QApplication::sendEvent(w, &e);
    }
}

}  // namespace

class ControllersTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The debug switch on, so that the diagnostic lines can be read back;
        // local time other than UTC.
        qputenv("TZ", "America/Sao_Paulo");
        MRPDE_MACFirstEventHandler entry;
        entry.initWithBundle(TestSupport::bundleWithInfo(m_bundleDir, {{u"DEBUG"_s, u"YES"_s}}));
        QVERIFY(MRPDE_MACFirstEventHandler::debug());
    }

    void choiceControls_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("unselectable");  // a choice's keyword, or "feature"
        QTest::addColumn<QList<int>>("keys");       // none: a click
        QTest::addColumn<QString>("before");        // what the control shows
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("value");  // the feature's and libcups's value after
        QTest::addColumn<QString>("coating");
        const QList<int> click, down {Qt::Key_Down};
        const QString heavy = u"Heavy Coating"_s, matte = u"Matte Paper"_s;
        QTest::newRow("check box, True/False") << "SkipBlankPages" << "" << "" << click << "on" << "off" << "False" << heavy;
        QTest::newRow("check box, On/Off") << "CurlMode" << "" << "" << click << "off" << "on" << "On" << heavy;
        // The box starts from the default (Off), not from the value; clicked on,
        // "On" has nothing to move to and the box shows the value.
        QTest::newRow("check box starts from the default") << "CurlMode" << "On" << "" << click << "off" << "on" << "On" << heavy;
        // Only "YES" starts on: a default of "Yes" starts off.
        QTest::newRow("check box, Yes/No") << "Collate" << "" << "" << click << "off" << "on" << "Yes" << heavy;
        // No pair: nothing is written, the box keeps the user's click.
        QTest::newRow("check box, other keywords") << "Sealing" << "" << "" << click << "off" << "on" << "Weak" << heavy;
        // "True" is ruled out without the stapling unit: the box goes back off.
        QTest::newRow("check box refused") << "Staple" << "" << "" << click << "off" << "off" << "False" << heavy;
        // Glossy is approved; resolution changes the coating from Heavy to Light.
        QTest::newRow("pop-up") << "Finish" << "" << "" << down << matte << "Glossy Paper" << "Glossy" << "Light Coating";
        // Draft conflicts with every coating: refused, and the pop-up shows Glossy again.
        QTest::newRow("pop-up refused") << "Finish" << "" << "" << down + down << matte << "Glossy Paper" << "Glossy" << "Light Coating";
        // The keyboard skips a disabled item; the next one (Draft) is refused.
        QTest::newRow("pop-up, disabled item") << "Finish" << "" << "Glossy" << down << matte << matte << "Matte" << heavy;
        // A feature that is not selectable keeps its pop-up disabled, also when told to enable it.
        QTest::newRow("pop-up, unselectable") << "Finish" << "" << "feature" << down << matte << matte << "Matte" << heavy;
    }

    void choiceControls()
    {
        QFETCH(QString, key);
        QFETCH(QString, unselectable);
        QFETCH(QList<int>, keys);
        QFETCH(QString, value);
        Bench b(key, cell<QString>("stored"));
        if (unselectable == u"feature")
            b.f(key)->setSelectable(false);
        else if (!unselectable.isEmpty())
            b.f(key)->getChoiceWithKeyword(unselectable)->setSelectable(false);
        auto* box = keys.isEmpty() ? b.add<QCheckBox>() : nullptr;
        auto* popUp = keys.isEmpty() ? nullptr : b.add<QComboBox>();
        auto* coat = b.add<QComboBox>();
        QVERIFY(b.show());
        MRPDEControllerPtr c = box ? MRPDEControllerPtr(b.bind<MRPDE_MACCheckBoxController>(key, box))
                                   : b.bind<MRPDE_MACPopUpButtonController>(key, popUp);
        auto c2 = b.bind<MRPDE_MACPopUpButtonController>(u"Coating"_s, coat);
        auto shown = [&] { return box ? (box->isChecked() ? u"on"_s : u"off"_s) : popUp->currentText(); };
        QTEST(shown(), "before");
        if (box)
            QTest::mouseClick(box, Qt::LeftButton);
        for (int k : keys)
            QTest::keyClick(popUp, Qt::Key(k));
        QTEST(shown(), "after");
        QCOMPARE(b.value(key), value);
        QCOMPARE(b.marked(key), value);
        QTRY_COMPARE(coat->currentText(), cell<QString>("coating"));
        QCOMPARE(b.marked(u"Coating"_s), b.value(u"Coating"_s));
        c->setEnabled(true);
        QCOMPARE(c->control()->isEnabled(), unselectable != u"feature");
    }

    void triggers()
    {
        // Triggers on the Finish pop-up, whose choices the user picks by keyboard
        // (Home: Matte, End: Satin), acting on a text field over a free-text
        // feature made by hand and a check box over SkipBlankPages.
        Bench b;
        auto* finish = b.add<QComboBox>();
        auto* field = b.add<QLineEdit>();
        auto* box = b.add<QCheckBox>();
        QVERIFY(b.show());
        const QString skip = u"SkipBlankPages"_s;
        auto pc = b.bind<MRPDE_MACPopUpButtonController>(u"Finish"_s, finish);
        auto note = std::make_shared<MRPDE_MACFeature>();  // free text made by hand
        note->setKeyword(u"JobNote"_s);
        note->setModelDelegate(b.model.get());
        auto c = MRPDE_MACTextFieldController::initiateControllerForFeatureWithControlModel(note, field, b.model.get());
        auto bc = b.bind<MRPDE_MACCheckBoxController>(skip, box);
        auto matte = PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Matte"_s);
        auto satin = PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Satin"_s);
        finish->setFocus();

        // Applied at once; the same again is ignored (no second observation); null keeps the old one.
        c->setDisableTrigger(matte);
        QVERIFY(!field->isEnabled());
        c->setDisableTrigger(matte);
        QCOMPARE(matte->observerCount(), 1);
        c->setDisableTrigger(nullptr);
        QTest::keyClick(finish, Qt::Key_End);
        QVERIFY(field->isEnabled());
        QTest::keyClick(finish, Qt::Key_Home);
        QVERIFY(!field->isEnabled());
        // A new one applies at once; the old one is neither observed nor held.
        c->setDisableTrigger(satin);
        QVERIFY(field->isEnabled());
        QCOMPARE(matte->observerCount(), 0);
        const std::weak_ptr<MRPDEBasicTrigger> oldTrigger = matte;
        matte.reset();
        QVERIFY(oldTrigger.expired());

        // A reset happens on becoming set, not on clearing; one trigger in
        // several roles acts in each.
        QTest::mouseClick(box, Qt::LeftButton);  // away from the default, True
        bc->setResetToDefaultTrigger(satin);
        QCOMPARE(b.value(skip), u"False"_s);
        QTest::keyClick(finish, Qt::Key_End);
        QVERIFY(!field->isEnabled() && box->isChecked());
        QCOMPARE(b.value(skip), u"True"_s);
        c->setHiddenTrigger(satin);  // attached while set: at once
        QVERIFY(field->isHidden());
        QCOMPARE(satin->observerCount(), 3);
        QTest::mouseClick(box, Qt::LeftButton);
        QTest::keyClick(finish, Qt::Key_Home);
        QVERIFY(field->isEnabled() && !field->isHidden() && !box->isChecked());
        QCOMPARE(b.value(skip), u"False"_s);
        QTest::keyClick(finish, Qt::Key_End);
        QVERIFY(!field->isEnabled() && field->isHidden() && box->isChecked());

        // A new feature takes the observation over and is shown at once.
        auto other = std::make_shared<MRPDE_MACFeature>();
        other->setKeyword(u"JobRemark"_s);
        other->setModelDelegate(b.model.get());
        other->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(u"remark"_s, u"remark"_s));
        c->setFeature(other);
        QCOMPARE(note->observerCount(), 0);
        QCOMPARE(other->observerCount(), 1);
        QCOMPARE(field->text(), u"remark"_s);
        // Gone: nothing observed any more, the field no longer follows.
        c.reset();
        bc.reset();
        QCOMPARE(other->observerCount(), 0);
        QCOMPARE(satin->observerCount(), 0);
        other->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(u"later"_s, u"later"_s));
        QCOMPARE(field->text(), u"remark"_s);
    }

    void textFields_data()
    {
        QTest::addColumn<bool>("secure");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<QString>("filter");  // "+" and the allowed characters, or "-" and the disallowed ones
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QStringList>("written");  // each value the feature receives
        // Below the minimum the feature keeps the last text that met it.
        QTest::newRow("text, deleting below minimum") << false << 3 << 0 << "" << "Mon" << "d\b\b" << "Mo" << QStringList{"Mond", "Mon"};
        QTest::newRow("text, maximum stops typing") << false << 0 << 2 << "" << "" << "abc" << "ab" << QStringList{"a", "ab"};
        QTest::newRow("text, allowed characters") << false << 0 << 0 << "+0123456789" << "" << "1a2" << "12" << QStringList{"1", "12"};
        QTest::newRow("text, disallowed characters") << false << 0 << 0 << "- /" << "" << "a/b" << "ab" << QStringList{"a", "ab"};
        // Lengths in UTF-16 units: the emoji counts two.
        const QString emoji = u"\U0001F600"_s;
        const QString u = u"ü"_s;
        QTest::newRow("text, UTF-16 maximum") << false << 0 << 3 << "" << "" << u + emoji + u'x' << u + emoji << QStringList{u, u + emoji};
        QTest::newRow("text, UTF-16 minimum") << false << 2 << 0 << "" << "" << emoji << emoji << QStringList{emoji};
        // A shorter text is always written; the limits are set without a
        // keystroke filter, so that texts beyond them can be reached. Secrets use
        // letters that a hex address in a log line cannot contain.
        QTest::newRow("secure, deleting") << true << 4 << 0 << "" << "wxyz" << "\b\b\b\b" << "" << QStringList{"wxy", "wx", "w", ""};
        QTest::newRow("secure, not shorter, below minimum") << true << 4 << 0 << "" << "gh" << "ij" << "ghij" << QStringList{"ghij"};
        QTest::newRow("secure, too long but shorter") << true << 0 << 6 << "" << "klmnopqr" << "\b\bz" << "klmnopz"
                                                      << QStringList{"klmnopq", "klmnop"};
    }

    void textFields()
    {
        QFETCH(bool, secure);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(QString, filter);
        QFETCH(QString, stored);
        QFETCH(QString, shown);
        const QString key = secure ? u"PINCode"_s : u"JOBNAME"_s;
        Bench b(key, stored);
        auto* field = b.add<QLineEdit>();
        auto* next = b.add<QLineEdit>();
        QVERIFY(b.show());
        auto sc = secure ? b.bind<MRPDESecureTextFieldController>(key, field) : nullptr;
        auto tc = secure ? nullptr : b.bind<MRPDE_MACTextFieldController>(key, field);
        const PDECharacterSet set = PDECharacterSet::fromString(filter.mid(1)), none;
        const bool allow = filter.startsWith(u'+'), forbid = filter.startsWith(u'-');
        if (tc)
            tc->setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(allow ? set : none, forbid ? set : none, maximum,
                                                                                                 minimum);
        if (sc) {
            sc->setMinLength(minimum);
            sc->setMaxLength(maximum);
        }
        QCOMPARE(field->echoMode(), secure ? QLineEdit::Password : QLineEdit::Normal);
        QCOMPARE(field->text(), stored);  // shown at once
        QStringList seen;
        QObject observer;
        b.f(key)->observeCurrentValue(&observer, [&seen](MRPDE_MACFeature* f) { seen << f->currentValue()->keyword(); }, false);
        field->setFocus();
        PDELogCapture log;
        typeText(field, cell<QString>("typed"));
        QCOMPARE(field->text(), shown);
        QTEST(seen, "written");

        // Too short: Tab keeps the user in the field, a click elsewhere is taken back.
        const bool mayEnd = shown.size() >= minimum;
        QTest::keyClick(field, Qt::Key_Tab);
        QCOMPARE(next->hasFocus(), mayEnd);
        QTest::mouseClick(next, Qt::LeftButton);
        QTRY_COMPARE(field->hasFocus(), !mayEnd);
        QCOMPARE(log.lines().filter(u"UIAction --::-- controlTextDidChange (<QLineEdit: 0x"_s).isEmpty(), secure);
        if (!secure)
            return;
        // No action line, and the secret is in no line.
        const QStringList lines = log.lines();
        QVERIFY2(lines.filter(u"UIAction"_s).isEmpty() && (shown.isEmpty() || lines.filter(shown).isEmpty()), qPrintable(lines.join(u'\n')));
    }

    void stepper_data()
    {
        QTest::addColumn<qint64>("maxValue");
        QTest::addColumn<int>("digits");    // the most the field takes
        QTest::addColumn<QString>("typed");  // "^": a click on the up arrow, "v": the Down key on the stepper
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("written");
        QTest::newRow("typed") << qint64(999) << 3 << "250" << "250" << "250";
        QTest::newRow("digits only, three at most") << qint64(999) << 3 << "12x34" << "123" << "123";
        // Written first, then checked: the controls go back, the feature keeps it.
        QTest::newRow("zero") << qint64(999) << 3 << "0" << "1" << "0";
        QTest::newRow("emptied") << qint64(999) << 3 << "\b" << "1" << "0";
        QTest::newRow("above maximum") << qint64(500) << 3 << "600" << "60" << "600";
        QTest::newRow("maximum 10") << qint64(10) << 2 << "100" << "10" << "10";
        // The digits of the maximum taken as a 32-bit number, without its sign.
        QTest::newRow("maximum -50") << qint64(-50) << 2 << "5" << "1" << "5";
        QTest::newRow("maximum 0") << qint64(0) << 1 << "5" << "1" << "5";
        QTest::newRow("maximum 2^32 + 7") << qint64(4294967303LL) << 1 << "89" << "8" << "8";
        // The arrows step within the range, without wrapping.
        QTest::newRow("arrows") << qint64(3) << 1 << "^^^v" << "2" << "2";
    }

    void stepper()
    {
        QFETCH(QString, shown);
        Bench b;
        auto* stepper = b.add<PDEStepper>();
        auto* field = b.add<QLineEdit>();
        QVERIFY(b.show());
        auto c = b.bind<MRPDEStepperController>(u"SetCount"_s, stepper);
        c->setMaxValue(cell<qint64>("maxValue"));
        c->setMinValue(1);
        c->setTextField(field);
        c->resetConfiguration();
        QTEST(int(qobject_cast<const MRPDEStringFormatter*>(field->validator())->maximumCharacters()), "digits");
        QCOMPARE(b.value(u"SetCount"_s), u"1"_s);
        QCOMPARE(field->text(), u"1"_s);
        field->setFocus();
        field->selectAll();
        for (QChar action : cell<QString>("typed")) {
            if (action == u'^')
                QTest::mouseClick(stepper->upButton(), Qt::LeftButton);
            else if (action == u'v')
                QTest::keyClick(stepper, Qt::Key_Down);
            else
                typeText(field, action);
        }
        QCOMPARE(field->text(), shown);
        QCOMPARE(stepper->value(), shown.toInt());
        QTEST(b.value(u"SetCount"_s), "written");

        // Changes elsewhere are shown; resetControlValue does not write.
        b.set(u"SetCount"_s, u"2"_s);
        QCOMPARE(field->text(), u"2"_s);
        QCOMPARE(stepper->value(), qMin(2, stepper->maximum()));
        c->resetControlValue();
        QCOMPARE(field->text(), u"1"_s);
        QCOMPARE(b.value(u"SetCount"_s), u"2"_s);
        // Triggers are held but not followed; a direct call reaches both controls.
        c->setDisableTrigger(PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Matte"_s));
        c->setHiddenTrigger(c->disableTrigger());
        QVERIFY(stepper->isEnabled() && field->isEnabled() && !stepper->isHidden());
        c->setEnabled(false);
        QVERIFY(!stepper->isEnabled() && !field->isEnabled());
    }

    void datePicker()
    {
        Bench b(u"PrintAt"_s, u"01/02/2003//04:05"_s);
        auto* picker = b.add<QDateTimeEdit>();
        QVERIFY(b.show());
        QCOMPARE(b.value(u"PrintAt"_s), u"01/02/2003//04:05"_s);
        // The feature receives the present moment, not the other way round.
        const QDateTime before = QDateTime::currentDateTime();
        auto c = b.bind<MRPDE_MACDatePickerController>(u"PrintAt"_s, picker);
        QVERIFY(picker->dateTime() >= before && picker->dateTime() <= QDateTime::currentDateTime());
        QCOMPARE(b.value(u"PrintAt"_s), picker->dateTime().toString(u"MM/dd/yyyy//HH:mm"_s));
        b.set(u"PrintAt"_s, u"12/24/2030//18:45"_s);
        QCOMPARE(picker->dateTime(), QDateTime(QDate(2030, 12, 24), QTime(18, 45)));  // local time
        picker->setFocus();
        QTest::keyClick(picker, Qt::Key_Up);
        QCOMPARE(b.value(u"PrintAt"_s), picker->dateTime().toString(u"MM/dd/yyyy//HH:mm"_s));
        QVERIFY(b.value(u"PrintAt"_s) != u"12/24/2030//18:45"_s);
        // Not a moment: the picker keeps what it shows. Triggers are held but not followed.
        const QDateTime shown = picker->dateTime();
        b.set(u"PrintAt"_s, u"tomorrow"_s);
        QCOMPARE(picker->dateTime(), shown);
        c->setDisableTrigger(PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Matte"_s));
        c->setHiddenTrigger(c->disableTrigger());
        QVERIFY(picker->isEnabled() && !picker->isHidden());
    }

    void label_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("range");  // the account range text
        QTest::newRow("C") << "C.UTF-8" << "LabelText" << "Plain label text" << "(4-16 Alphanumeric)";
        QTest::newRow("German, Austria") << "de_AT.UTF-8" << "LabelText" << "Deutscher Beschriftungstext" << "(4-16 alphanumerisch)";
        QTest::newRow("French, no translation") << "fr_FR.UTF-8" << "LabelText" << "Plain label text" << "(4-16 alphanum\u00e9riques)";
        QTest::newRow("German, plain attribute") << "de_DE.UTF-8" << "UnlocalizedText" << "Only plain text" << "(4-16 alphanumerisch)";
    }

    // The user's language is fixed when a process first asks for it, and libcups
    // reads a PPD's translations only for the language of the process's locale:
    // a row whose locale is not the process's runs again in a process of its own.
    void label()
    {
        QFETCH(QString, locale);
        QFETCH(QString, expected);
        if (qEnvironmentVariable("LC_ALL") != locale) {
            QProcess child;
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.remove(u"LANGUAGE"_s);
            env.insert(u"LC_ALL"_s, locale);
            child.setProcessEnvironment(env);
            child.start(QCoreApplication::applicationFilePath(), {u"label:"_s + QString::fromLatin1(QTest::currentDataTag())});
            QVERIFY(child.waitForFinished(60000));
            const QString out = QString::fromUtf8(child.readAllStandardOutput());
            const QString pass = u"PASS   : ControllersTest::label(%1)"_s.arg(QTest::currentDataTag());
            QVERIFY2(child.exitCode() == 0 && out.contains(pass), qPrintable(out));
            return;
        }
        Bench b;
        auto* text = b.add<QLabel>();
        auto c = b.bind<MRPDE_MACLabelController>(u"USERID"_s, text);
        QCOMPARE(text->text(), u"User ID:"_s);
        b.set(u"USERID"_s, u"dave"_s);  // not followed
        QCOMPARE(text->text(), u"User ID:"_s);
        c->contentFromLocalizedAttributeKey(cell<QString>("key"));
        QCOMPARE(text->text(), expected);
        c->contentFromLocalizedAttributeKey(u"NoSuchAttribute"_s);  // no such attribute: the text stays
        QCOMPARE(text->text(), expected);
        c->rangeControllerLabel();
        QTEST(text->text(), "range");
        // Disabled, it takes the system's colour for disabled text.
        c->setEnabled(false);
        QVERIFY(!text->isEnabled());
        const QColor disabled = QApplication::palette(text).color(QPalette::Disabled, QPalette::WindowText);
        QCOMPARE(text->palette().color(QPalette::Active, QPalette::WindowText), disabled);
    }

    void describer()
    {
        // A small panel with a control of every kind.
        Bench b;
        b.f(u"Finish"_s)->getChoiceWithKeyword(u"Draft"_s)->setSelectable(false);
        auto stepper = b.bind<MRPDEStepperController>(u"SetCount"_s, b.add<PDEStepper>(u"setCountStepper"_s));
        stepper->setTextField(b.add<QLineEdit>(u"setCountTextField"_s));
        const QList<MRPDEControllerPtr> keep {
            stepper, b.bind<MRPDE_MACPopUpButtonController>(u"Finish"_s, b.add<QComboBox>(u"finishPopUpButton"_s)),
            b.bind<MRPDE_MACCheckBoxController>(u"CurlMode"_s, b.add<QCheckBox>(u"curlCheckBoxButton"_s)),
            b.bind<MRPDE_MACLabelController>(u"USERID"_s, b.add<QLabel>(u"userIDLabel"_s)),
            b.bind<MRPDE_MACTextFieldController>(u"USERID"_s, b.add<QLineEdit>(u"userIDTextField"_s)),
            b.bind<MRPDESecureTextFieldController>(u"PINCode"_s, b.add<QLineEdit>(u"pinField"_s)),
            b.bind<MRPDE_MACDatePickerController>(u"PrintAt"_s, b.add<QDateTimeEdit>(u"printAtDatePicker"_s))};
        keep[2]->setHiddenTrigger(PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Glossy"_s));
        keep[3]->setDisableTrigger(keep[2]->hiddenTrigger());
        QVERIFY(b.f(u"Finish"_s)->setCurrentValueWithChoiceWithKeyword(u"Glossy"_s));
        b.set(u"USERID"_s, u"erin"_s);
        b.set(u"PINCode"_s, u"s3cret7"_s);
        b.set(u"SetCount"_s, u"2"_s);
        b.set(u"PrintAt"_s, u"03/04/2031//05:06"_s);
        // The stepper's arrows and the picker's inner field are no controls; a
        // secret shows only as its length.
        const QJsonObject expected = QJsonDocument::fromJson(TestSupport::fixtureText(u"described_panel.json"_s).toUtf8()).object();
        QCOMPARE(PanelDescriber::describeControls(&b.panel), expected);
    }

    // Triggers over the fixture's features: evaluation on registration,
    // operators, nesting, notification on every write, teardown without
    // dangling observers.
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
        Bench b;
        auto t = PDEMakeBasicTrigger(b.f(u"Finish"_s), value);
        QTEST(t->isSet(), "initially");
        QVERIFY(b.pick(u"Finish"_s, u"Satin"_s));
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
        Bench b;
        // Members over three features at their defaults.
        const QList<QPair<QString, QString>> defaults {{u"Finish"_s, u"Matte"_s}, {u"Sealing"_s, u"Weak"_s}, {u"CurlMode"_s, u"Off"_s}};
        QList<PDETriggerPtr> list;
        for (qsizetype i = 0; i < members.size(); ++i)
            list << PDEMakeBasicTrigger(b.f(defaults[i].first), members[i] ? defaults[i].second : u"Other"_s);
        QTEST(PDEMakeComplexTrigger(cell<int>("op"), list)->isSet(), "expected");
    }

    // Arguments missing, nesting, a notification on every write, and no
    // observer left behind by a trigger gone.
    void triggerObservation()
    {
        Bench b;
        QVERIFY(!PDEMakeBasicTrigger(nullptr, u"x"_s));
        QVERIFY(!PDEMakeBasicTrigger(b.f(u"Finish"_s), QString()));
        QVERIFY(!PDEMakeComplexTrigger(1, {}));
        // Unconfigured triggers never change; a feature without a value keeps the trigger's state.
        QVERIFY(!MRPDEBasicTrigger(nullptr, u"x"_s).isSet());
        auto valueless = PDEMakeBasicTrigger(std::make_shared<MRPDE_MACFeature>(), u""_s);
        QVERIFY(valueless && !valueless->isSet());

        auto t = PDEMakeBasicTrigger(b.f(u"CurlMode"_s), u"On"_s);
        QObject observer;
        QList<bool> seen;
        t->observeIsSet(&observer, [&](PDETriggerProtocol* p) { seen << p->isSet(); }, true);
        QCOMPARE(seen, QList<bool>{false});
        // A new but equal choice re-evaluates, and the unchanged state is still written.
        b.set(u"CurlMode"_s, u"Off"_s);
        QCOMPARE(seen, (QList<bool>{false, false}));
        QVERIFY(b.pick(u"CurlMode"_s, u"On"_s));
        QCOMPARE(seen, (QList<bool>{false, false, true}));
        t->setIsSet(true);
        QCOMPARE(seen.size(), 4);

        // Set when Sealing is not Weak or Finish is Satin.
        auto notWeak = PDEMakeComplexTrigger(2, {PDEMakeBasicTrigger(b.f(u"Sealing"_s), u"Weak"_s)});
        auto either = PDEMakeComplexTrigger(1, {notWeak, PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Satin"_s)});
        QVERIFY(!either->isSet());
        QVERIFY(b.pick(u"Sealing"_s, u"Strong"_s));
        QVERIFY(notWeak->isSet() && either->isSet());
        QVERIFY(b.pick(u"Sealing"_s, u"Weak"_s));
        QVERIFY(!either->isSet());
        QVERIFY(b.pick(u"Finish"_s, u"Satin"_s));
        QVERIFY(either->isSet());
        notWeak.reset(), either.reset();

        auto finish = b.f(u"Finish"_s);
        QVERIFY(b.pick(u"Finish"_s, u"Matte"_s));
        int calls = 0;
        {
            auto complex = PDEMakeComplexTrigger(2, {PDEMakeBasicTrigger(finish, u"Satin"_s)});
            complex->observeIsSet(&observer, [&](PDETriggerProtocol*) { ++calls; }, false);
            QVERIFY(b.pick(u"Finish"_s, u"Satin"_s));
            QCOMPARE(calls, 1);
        }
        // Nothing observes the feature any more: changing it reaches no freed object.
        QCOMPARE(finish->observerCount(), 0);
        QVERIFY(b.pick(u"Finish"_s, u"Matte"_s));
        QCOMPARE(calls, 1);
        // A member outliving its complex trigger no longer reports to it.
        auto member = PDEMakeBasicTrigger(finish, u"Satin"_s);
        { auto c = PDEMakeComplexTrigger(1, {member}); }
        QCOMPARE(member->observerCount(), 0);
        QVERIFY(b.pick(u"Finish"_s, u"Satin"_s));
        QVERIFY(member->isSet());
    }

private:
    QTemporaryDir m_bundleDir;
};

QTEST_MAIN(ControllersTest)
#include "tst_controllers.moc"
