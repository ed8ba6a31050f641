// Control controllers on real widgets, bound to features of the real option
// model over tests/fixtures/controls.ppd; changes are approved by the real
// host (libcups marking and conflict resolution).
#include "MRPDEBasicTrigger.h"
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
#include <QInputMethodEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QProcess>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cups/ppd.h>

using namespace Qt::StringLiterals;

namespace {

const QString kPattern = u"MM/dd/yyyy//HH:mm"_s;

// A model over the fixture, in a shown and active window for the controls.
// `settings` are the job's print settings before the model reads them.
struct Bench {
    explicit Bench(const QList<QPair<QString, QString>>& settings = {})
    {
        host = TestSupport::openHost(TestSupport::fixture(u"controls.ppd"_s));
        for (const auto& [key, value] : settings)
            host->printSettings()->setValue(key, value);
        model = std::make_unique<MRPDE_MACChangeHandlerModel>(PDEBundle::embedded(), host.get());
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
    // What the panels do with the options that conflict resolution changed.
    void forwardResolution()
    {
        QObject::connect(host.get(), &PrintDialogHost::optionsChangedByResolution, model.get(),
                         [m = model.get()](const PrintDialogHost::OptionList& changes) {
                             for (const auto& [key, choice] : changes)
                                 m->PPDOptionKeyValueDidChange(key, choice);
                         });
    }
    PDEFeaturePtr f(const QString& key) const { return model->featureWithKey(key); }
    QString value(const QString& key) const
    {
        const PDEFeaturePtr feature = f(key);
        return feature && feature->currentValue() ? feature->currentValue()->keyword() : QString();
    }
    void set(const QString& key, const QString& text) const { f(key)->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(text, text)); }
    // The choice libcups has marked.
    QString marked(const QString& option) const
    {
        const ppd_choice_t* c = ppdFindMarkedChoice(host->ppd(), option.toUtf8().constData());
        return c ? QString::fromUtf8(c->choice) : QString();
    }

    std::unique_ptr<PrintDialogHost> host;
    std::unique_ptr<MRPDE_MACChangeHandlerModel> model;
    QWidget panel;
};

// Types as a person does: ASCII by key presses, other characters through the
// input method; "\b" is the backspace key.
void typeText(QWidget* w, const QString& text)
{
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype n = text[i].isHighSurrogate() ? 2 : 1;
        const QString piece = text.mid(i, n);
        if (piece == u"\b"_s) {
            QTest::keyClick(w, Qt::Key_Backspace);
        } else if (piece[0].unicode() < 0x80) {
            QTest::keyClicks(w, piece);
        } else {
            QInputMethodEvent e;
            e.setCommitString(piece);
            QApplication::sendEvent(w, &e);
        }
        i += n;
    }
}

PDECharacterSet setOf(const QString& members)
{
    return members.isEmpty() ? PDECharacterSet() : PDECharacterSet::fromString(members);
}

int linesWith(const PDELogCapture& log, const QString& text)
{
    return int(std::count_if(log.lines().begin(), log.lines().end(), [&](const QString& l) { return l.contains(text); }));
}

// Real triggers and features that also tell how many observers they have.
struct CountingTrigger : MRPDEBasicTrigger {
    using MRPDEBasicTrigger::MRPDEBasicTrigger;
    int observers() const { return receivers(SIGNAL(isSetChanged(PDETriggerProtocol*))); }
};
struct CountingFeature : MRPDE_MACFeature {
    int observers() const { return receivers(SIGNAL(currentValueChanged(MRPDE_MACFeature*))); }
};

}  // namespace

class ControllersTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void checkBox_data();
    void checkBox();
    void checkBoxStartsFromDefault();
    void popUp_data();
    void popUp();
    void popUpOfUnselectableFeature();
    void triggers_data();
    void triggers();
    void triggerSettersAndLifetime();
    void formatter_data();
    void formatter();
    void textField_data();
    void textField();
    void textFieldEndEditing();
    void secureField_data();
    void secureField();
    void stepperTyping_data();
    void stepperTyping();
    void stepperArrows();
    void stepperDigitLimit_data();
    void stepperDigitLimit();
    void datePicker();
    void label();
    void labelLocalized_data();
    void labelLocalized();
    void labelInLanguage();
    void describer();

private:
    QTemporaryDir m_bundleDir;
};

void ControllersTest::initTestCase()
{
    // The debug switch on, so that the diagnostic lines can be read back.
    MRPDE_MACFirstEventHandler entry;
    entry.initWithBundle(TestSupport::bundleWithInfo(m_bundleDir, {{u"DEBUG"_s, u"YES"_s}}));
    QVERIFY(MRPDE_MACFirstEventHandler::debug());
}

void ControllersTest::checkBox_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("checkedAtStart");
    QTest::addColumn<bool>("checkedAfterClick");
    QTest::addColumn<QString>("valueAfterClick");
    QTest::newRow("True/False, default True") << "SkipBlankPages" << true << false << "False";
    QTest::newRow("On/Off") << "CurlMode" << false << true << "On";
    // A default of "Yes" starts off; a click turns it on, "Yes" has nothing to
    // move to, and the box shows the value: on.
    QTest::newRow("Yes/No, default Yes") << "Collate" << false << true << "Yes";
    // No pair: nothing is written, the box keeps the user's click.
    QTest::newRow("other keywords") << "Sealing" << false << true << "Weak";
    // "True" is ruled out without the stapling unit: the box goes back off.
    QTest::newRow("refused") << "Staple" << false << false << "False";
}

void ControllersTest::checkBox()
{
    QFETCH(QString, key);
    QFETCH(bool, checkedAtStart);
    QFETCH(bool, checkedAfterClick);
    QFETCH(QString, valueAfterClick);
    Bench b;
    auto* box = b.add<QCheckBox>();
    QVERIFY(b.show());
    auto c = MRPDE_MACCheckBoxController::initiateControllerForFeatureWithControlModel(b.f(key), box, b.model.get());
    QCOMPARE(box->text(), b.f(key)->displayString());
    QCOMPARE(box->isChecked(), checkedAtStart);
    PDELogCapture log;
    QTest::mouseClick(box, Qt::LeftButton);
    QCOMPARE(box->isChecked(), checkedAfterClick);
    QCOMPARE(b.value(key), valueAfterClick);
    QCOMPARE(b.marked(key), valueAfterClick);
    QCOMPARE(linesWith(log, u" OOOOOOOOOOOOOOOOO--> --> --> --> --> --> UIAction --::-- handleCheckBoxSelection (<QCheckBox: 0x"_s), 1);
}

void ControllersTest::checkBoxStartsFromDefault()
{
    Bench b({{u"CurlMode"_s, u"On"_s}});
    auto* box = b.add<QCheckBox>();
    b.f(u"CurlMode"_s);
    QVERIFY(b.model->restoreValuesAndReturnError(nullptr));  // as the dialog does before showing
    QCOMPARE(b.value(u"CurlMode"_s), u"On"_s);
    auto c = MRPDE_MACCheckBoxController::initiateControllerForFeatureWithControlModel(b.f(u"CurlMode"_s), box, b.model.get());
    QVERIFY(!box->isChecked());  // the default, "Off"
    // A change by the dialog is shown.
    b.model->PPDOptionKeyValueDidChange(u"CurlMode"_s, u"Off"_s);
    b.model->PPDOptionKeyValueDidChange(u"CurlMode"_s, u"On"_s);
    QVERIFY(box->isChecked());
}

void ControllersTest::popUp_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("unselectable");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("coating");
    // Glossy is approved; resolution changes the coating from Heavy to Light.
    QTest::newRow("glossy") << QList<int>{Qt::Key_Down} << "" << "Glossy Paper" << "Light Coating";
    // Draft conflicts with every coating: refused, and the pop-up shows Glossy again.
    QTest::newRow("draft refused") << QList<int>{Qt::Key_Down, Qt::Key_Down} << "" << "Glossy Paper" << "Light Coating";
    QTest::newRow("last item") << QList<int>{Qt::Key_End} << "" << "Satin Paper" << "Heavy Coating";
    // The keyboard skips a disabled item; the next one (Draft) is refused.
    QTest::newRow("disabled item") << QList<int>{Qt::Key_Down} << "Glossy" << "Matte Paper" << "Heavy Coating";
}

void ControllersTest::popUp()
{
    QFETCH(QList<int>, keys);
    QFETCH(QString, unselectable);
    QFETCH(QString, title);
    QFETCH(QString, coating);
    Bench b;
    b.forwardResolution();
    auto* finish = b.add<QComboBox>();
    auto* coat = b.add<QComboBox>();
    QVERIFY(b.show());
    if (!unselectable.isEmpty())
        b.f(u"Finish"_s)->getChoiceWithKeyword(unselectable)->setSelectable(false);
    auto c1 = MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(b.f(u"Finish"_s), finish, b.model.get());
    auto c2 = MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(b.f(u"Coating"_s), coat, b.model.get());
    QCOMPARE(finish->count(), 4);
    QCOMPARE(finish->itemText(3), u"Satin Paper"_s);
    QCOMPARE(finish->currentText(), u"Matte Paper"_s);
    finish->setFocus();
    for (int key : keys)
        QTest::keyClick(finish, Qt::Key(key));
    QCOMPARE(finish->currentText(), title);
    QCOMPARE(b.f(u"Finish"_s)->currentValue()->displayString(), title);
    QCOMPARE(b.marked(u"Finish"_s), b.value(u"Finish"_s));
    QTRY_COMPARE(coat->currentText(), coating);
    QCOMPARE(b.marked(u"Coating"_s), b.value(u"Coating"_s));
}

void ControllersTest::popUpOfUnselectableFeature()
{
    Bench b;
    auto* popUp = b.add<QComboBox>();
    b.f(u"Finish"_s)->setSelectable(false);
    auto c = MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(b.f(u"Finish"_s), popUp, b.model.get());
    QVERIFY(!popUp->isEnabled());
    // Disabled while the coating is Light; when that clears it stays disabled.
    c->setDisableTrigger(PDEMakeBasicTrigger(b.f(u"Coating"_s), u"Light"_s));
    QVERIFY(b.f(u"Coating"_s)->setCurrentValueWithChoiceWithKeyword(u"Light"_s));
    QVERIFY(b.f(u"Coating"_s)->setCurrentValueWithChoiceWithKeyword(u"Heavy"_s));
    QVERIFY(!c->disableTrigger()->isSet());
    QVERIFY(!popUp->isEnabled());
}

void ControllersTest::triggers_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<bool>("setBeforeAttaching");
    for (const char* role : {"disable", "hidden", "reset"}) {
        QTest::addRow("%s, attached while clear", role) << QString::fromLatin1(role) << false;
        QTest::addRow("%s, attached while set", role) << QString::fromLatin1(role) << true;
    }
}

void ControllersTest::triggers()
{
    QFETCH(QString, role);
    QFETCH(bool, setBeforeAttaching);
    Bench b;
    auto* finish = b.add<QComboBox>();
    auto* box = b.add<QCheckBox>();
    QVERIFY(b.show());
    auto c1 = MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(b.f(u"Finish"_s), finish, b.model.get());
    auto c2 = MRPDE_MACCheckBoxController::initiateControllerForFeatureWithControlModel(b.f(u"SkipBlankPages"_s), box, b.model.get());
    QTest::mouseClick(box, Qt::LeftButton);  // away from the default, so that a reset shows
    const QString skip = u"SkipBlankPages"_s;
    QCOMPARE(b.value(skip), u"False"_s);

    const PDETriggerPtr satin = PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Satin"_s);
    finish->setFocus();
    if (setBeforeAttaching)
        QTest::keyClick(finish, Qt::Key_End);
    if (role == u"disable")
        c2->setDisableTrigger(satin);
    else if (role == u"hidden")
        c2->setHiddenTrigger(satin);
    else
        c2->setResetToDefaultTrigger(satin);
    if (!setBeforeAttaching)
        QTest::keyClick(finish, Qt::Key_End);
    // Set, whether at once when attached or later by the user's pick.
    QVERIFY(satin->isSet());
    QCOMPARE(box->isEnabled(), role != u"disable");
    QCOMPARE(box->isVisibleTo(&b.panel), role != u"hidden");
    QCOMPARE(b.value(skip), role == u"reset" ? u"True"_s : u"False"_s);
    QCOMPARE(box->isChecked(), role == u"reset");

    // Cleared: shown and enabled again; a reset happens only on becoming set.
    if (role == u"reset")
        QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClick(finish, Qt::Key_Home);
    QVERIFY(!satin->isSet());
    QVERIFY(box->isEnabled());
    QVERIFY(box->isVisibleTo(&b.panel));
    QCOMPARE(b.value(skip), u"False"_s);
}

void ControllersTest::triggerSettersAndLifetime()
{
    Bench b;
    auto* field = b.add<QLineEdit>();
    const PDEFeaturePtr finish = b.f(u"Finish"_s);
    auto note = std::make_shared<CountingFeature>();  // free text made by hand
    note->setKeyword(u"JobNote"_s);
    note->setModelDelegate(b.model.get());
    auto c = MRPDE_MACTextFieldController::initiateControllerForFeatureWithControlModel(note, field, b.model.get());
    auto matte = std::make_shared<CountingTrigger>(finish, u"Matte"_s);
    auto satin = std::make_shared<CountingTrigger>(finish, u"Satin"_s);
    QCOMPARE(note->observers(), 1);

    PDELogCapture log;
    c->setDisableTrigger(matte);
    QVERIFY(!field->isEnabled());  // applied at once
    c->setDisableTrigger(matte);   // the same again: ignored, no second call
    QCOMPARE(matte->observers(), 1);
    QCOMPARE(linesWith(log, u": setEnabled:0"_s), 1);
    c->setDisableTrigger(nullptr);  // null keeps the old one, still working
    QCOMPARE(c->disableTrigger(), PDETriggerPtr(matte));
    QVERIFY(finish->setCurrentValueWithChoiceWithKeyword(u"Satin"_s));
    QVERIFY(field->isEnabled());
    QVERIFY(finish->setCurrentValueWithChoiceWithKeyword(u"Matte"_s));
    QVERIFY(!field->isEnabled());

    // A new one applies at once; the old one is neither observed nor held.
    c->setDisableTrigger(satin);
    QVERIFY(field->isEnabled());
    QCOMPARE(matte->observers(), 0);
    const std::weak_ptr<CountingTrigger> oldTrigger = matte;
    matte.reset();
    QVERIFY(oldTrigger.expired());
    // One trigger in two roles acts in both.
    c->setHiddenTrigger(satin);
    QCOMPARE(satin->observers(), 2);
    QVERIFY(finish->setCurrentValueWithChoiceWithKeyword(u"Satin"_s));
    QVERIFY(!field->isEnabled());
    QVERIFY(field->isHidden());

    // A new feature takes the observation over and is shown at once.
    auto other = std::make_shared<CountingFeature>();
    other->setKeyword(u"JobRemark"_s);
    other->setModelDelegate(b.model.get());
    other->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(u"remark"_s, u"remark"_s));
    c->setFeature(other);
    QCOMPARE(note->observers(), 0);
    QCOMPARE(other->observers(), 1);
    QCOMPARE(field->text(), u"remark"_s);

    // Gone: nothing observed any more, the field no longer follows.
    c.reset();
    QCOMPARE(other->observers(), 0);
    QCOMPARE(satin->observers(), 0);
    other->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(u"later"_s, u"later"_s));
    QCOMPARE(field->text(), u"remark"_s);

    // A control that goes first leaves a controller that does nothing.
    auto* popUp = b.add<QComboBox>();
    auto p = MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(finish, popUp, b.model.get());
    delete popUp;
    QVERIFY(finish->setCurrentValueWithChoiceWithKeyword(u"Glossy"_s));
    p->setEnabled(false);
    QVERIFY(p->description().contains(u"control((null)) feature.keyword(Finish)"_s));
}

void ControllersTest::formatter_data()
{
    QTest::addColumn<QString>("allowed");
    QTest::addColumn<QString>("disallowed");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("proposed");
    QTest::addColumn<bool>("valid");
    QTest::newRow("no restriction") << "" << "" << 0 << "any text" << true;
    QTest::newRow("outside allowed") << "0123456789" << "" << 0 << "20a4" << false;
    QTest::newRow("disallowed") << "" << " /" << 0 << "a/b" << false;
    QTest::newRow("surrogate pair counts two") << "" << "" << 3 << u"a\U0001F600"_s << true;
    QTest::newRow("over maximum") << "" << "" << 3 << u"ab\U0001F600"_s << false;
    QTest::newRow("only the length refuses") << "abc" << "c" << 2 << "aba" << false;
}

void ControllersTest::formatter()
{
    QFETCH(QString, allowed);
    QFETCH(QString, disallowed);
    QFETCH(int, maximum);
    QFETCH(QString, proposed);
    QFETCH(bool, valid);
    std::unique_ptr<MRPDEStringFormatter> f(
        MRPDEStringFormatter::allowedCharacterSetDisallowedCharacterSetMaxLimit(setOf(allowed), setOf(disallowed), maximum));
    QString input = proposed;
    int pos = 1;
    QCOMPARE(f->validate(input, pos), valid ? QValidator::Acceptable : QValidator::Invalid);
    QCOMPARE(input, proposed);  // never rewritten
    QCOMPARE(pos, 1);
}

void ControllersTest::textField_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("allowed");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("written");
    QTest::newRow("no limits") << 0 << 0 << "" << "Quarterly report" << "Quarterly report" << "Quarterly report";
    QTest::newRow("below minimum") << 4 << 0 << "" << "abc" << "abc" << "";
    QTest::newRow("minimum reached") << 4 << 0 << "" << "abcd" << "abcd" << "abcd";
    QTest::newRow("maximum stops typing") << 0 << 5 << "" << "abcdefg" << "abcde" << "abcde";
    QTest::newRow("digits only") << 0 << 0 << "0123456789" << "12a3" << "123" << "123";
    QTest::newRow("deleting below minimum") << 3 << 0 << "" << "abcd\b\b" << "ab" << "abc";
    QTest::newRow("UTF-16 units") << 0 << 4 << "" << u"ü\U0001F600xy"_s << u"ü\U0001F600x"_s << u"ü\U0001F600x"_s;
    QTest::newRow("UTF-16 units, minimum") << 3 << 0 << "" << u"\U0001F600"_s << u"\U0001F600"_s << "";
}

void ControllersTest::textField()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(QString, allowed);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(QString, written);
    Bench b;
    auto* field = b.add<QLineEdit>();
    QVERIFY(b.show());
    auto c = MRPDE_MACTextFieldController::initiateControllerForFeatureWithControlModel(b.f(u"JOBNAME"_s), field, b.model.get());
    c->setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(setOf(allowed), PDECharacterSet(), maximum,
                                                                                        minimum);
    field->setFocus();
    PDELogCapture log;
    typeText(field, typed);
    QCOMPARE(field->text(), shown);
    QCOMPARE(b.value(u"JOBNAME"_s), written);
    QVERIFY(linesWith(log, u"UIAction --::-- controlTextDidChange (<QLineEdit: 0x"_s) > 0);
    const bool mayEnd = shown.size() >= minimum;
    QCOMPARE(c->controlTextShouldEndEditing(field), mayEnd);
    QVERIFY(log.contains(mayEnd ? u"PDE:  UIDelegate --::-- textShouldEndEditing = YES "_s
                                : u"PDE:  UIDelegate --::-- textShouldEndEditing = NO "_s));
}

void ControllersTest::textFieldEndEditing()
{
    Bench b({{u"JOBNAME"_s, u"Monthly"_s}});
    auto* field = b.add<QLineEdit>();
    auto* next = b.add<QLineEdit>();
    QVERIFY(b.show());
    auto c = MRPDE_MACTextFieldController::initiateControllerForFeatureWithControlModel(b.f(u"JOBNAME"_s), field, b.model.get());
    QCOMPARE(field->text(), u"Monthly"_s);  // shown at once
    c->setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum({}, {}, 0, 4);
    field->setFocus();
    field->selectAll();
    typeText(field, u"abc"_s);
    // Too short: Tab and Return keep the user in the field, a click elsewhere is taken back.
    QTest::keyClick(field, Qt::Key_Tab);
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(field->hasFocus());
    QTest::mouseClick(next, Qt::LeftButton);
    QTRY_VERIFY(field->hasFocus());
    typeText(field, u"d"_s);
    QCOMPARE(b.value(u"JOBNAME"_s), u"abcd"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    QTRY_VERIFY(next->hasFocus());
}

void ControllersTest::secureField_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("written");
    // Secrets use letters that a hex address in a log line cannot contain.
    QTest::newRow("deleting reaches the feature") << 4 << 0 << "wxyz" << "\b\b\b\b" << QStringList{"wxy", "wx", "w", ""};
    QTest::newRow("short text not written") << 4 << 0 << "" << "wxyz" << QStringList{"wxyz"};
    QTest::newRow("not shorter, below minimum") << 4 << 0 << "gh" << "ij" << QStringList{"ghij"};
    QTest::newRow("too long but shorter") << 0 << 6 << "klmnopqr" << "\b\bz" << QStringList{"klmnopq", "klmnop"};
}

void ControllersTest::secureField()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(QString, stored);
    QFETCH(QString, typed);
    QFETCH(QStringList, written);
    Bench b(stored.isEmpty() ? QList<QPair<QString, QString>>{} : QList<QPair<QString, QString>>{{u"PINCode"_s, stored}});
    auto* field = b.add<QLineEdit>();
    QVERIFY(b.show());
    const PDEFeaturePtr pin = b.f(u"PINCode"_s);
    auto c = MRPDESecureTextFieldController::initiateControllerForFeatureWithControlModel(pin, field, b.model.get());
    QCOMPARE(field->echoMode(), QLineEdit::Password);
    QCOMPARE(field->text(), stored);
    // The length rules alone, without a keystroke filter, so that texts beyond them can be reached.
    c->setMinLength(minimum);
    c->setMaxLength(maximum);
    QStringList seen;
    QObject observer;
    pin->observeCurrentValue(&observer, [&seen](MRPDE_MACFeature* f) { seen << f->currentValue()->keyword(); }, false);
    field->setFocus();
    PDELogCapture log;
    typeText(field, typed);
    QCOMPARE(seen, written);
    const bool mayEnd = field->text().size() >= minimum;
    QCOMPARE(c->controlTextShouldEndEditing(field), mayEnd);
    // The result line has the entry line's form; nothing carries the text.
    QVERIFY(log.contains(mayEnd ? u"PDE:  UIDelegate --::-- textShouldEndEditing (YES) "_s
                                : u"PDE:  UIDelegate --::-- textShouldEndEditing (NO) "_s));
    QCOMPARE(linesWith(log, u"UIAction"_s), 0);
    for (const QString& line : log.lines())
        QVERIFY2(!line.contains(u"UIDelegate"_s) || field->text().isEmpty() || !line.contains(field->text()), qPrintable(line));

    // Delayed: written only when printing.
    c->setMinLength(0);
    c->setMaxLength(0);
    c->setDelayedFeatureWrite(true);
    typeText(field, u"st"_s);
    QVERIFY(pin->currentValue()->keyword() != field->text());
    QVERIFY(c->goingToPrint());
    QCOMPARE(pin->currentValue()->keyword(), field->text());
}

void ControllersTest::stepperTyping_data()
{
    QTest::addColumn<int>("maxValue");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("written");
    QTest::newRow("accepted") << 999 << "250" << "250" << "250";
    QTest::newRow("three digits at most") << 999 << "12x34" << "123" << "123";
    // Written first, then rejected: the controls go back, the feature keeps it.
    QTest::newRow("zero") << 999 << "0" << "1" << "0";
    QTest::newRow("emptied") << 999 << "\b" << "1" << "0";
    QTest::newRow("above maximum") << 500 << "600" << "60" << "600";
}

void ControllersTest::stepperTyping()
{
    QFETCH(int, maxValue);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(QString, written);
    Bench b;
    auto* stepper = b.add<PDEStepper>();
    auto* field = b.add<QLineEdit>();
    QVERIFY(b.show());
    auto c = MRPDEStepperController::initiateControllerForFeatureWithControlModel(b.f(u"SetCount"_s), stepper, b.model.get());
    c->setMaxValue(maxValue);
    c->setMinValue(1);
    c->setTextField(field);
    c->resetConfiguration();
    QCOMPARE(b.value(u"SetCount"_s), u"1"_s);
    QCOMPARE(field->text(), u"1"_s);
    QCOMPARE(stepper->maximum(), maxValue);
    field->setFocus();
    field->selectAll();
    typeText(field, typed);
    QCOMPARE(field->text(), shown);
    QCOMPARE(stepper->value(), shown.toInt());
    QCOMPARE(b.value(u"SetCount"_s), written);
    QVERIFY(b.model->saveValuesAndReturnError(nullptr));
    QCOMPARE(b.host->printSettings()->value(u"SetCount"_s), written);
}

void ControllersTest::stepperArrows()
{
    Bench b;
    auto* stepper = b.add<PDEStepper>();
    auto* field = b.add<QLineEdit>();
    QVERIFY(b.show());
    auto c = MRPDEStepperController::initiateControllerForFeatureWithControlModel(b.f(u"SetCount"_s), stepper, b.model.get());
    c->setMaxValue(3);
    c->setMinValue(1);
    c->setStepValue(1);
    c->setTextField(field);
    c->resetConfiguration();
    PDELogCapture log;
    QTest::mouseClick(stepper->upButton(), Qt::LeftButton);
    QCOMPARE(field->text(), u"2"_s);
    QCOMPARE(b.value(u"SetCount"_s), u"2"_s);
    QTest::mouseClick(stepper->upButton(), Qt::LeftButton);
    QTest::mouseClick(stepper->upButton(), Qt::LeftButton);
    QCOMPARE(stepper->value(), 3);  // no wrapping
    stepper->setFocus();
    QTest::keyClick(stepper, Qt::Key_Down);
    QCOMPARE(b.value(u"SetCount"_s), u"2"_s);
    QCOMPARE(log.count(u"Stepper Button Clicked"_s), 4);
    QVERIFY(log.contains(u"observeValueForKeyPath:KeyPath:ofObject:Change:: Updating stepper controls based on feature : [2]"_s));

    // Changes elsewhere are shown; resetControlValue does not write.
    b.set(u"SetCount"_s, u"3"_s);
    QCOMPARE(stepper->value(), 3);
    QCOMPARE(field->text(), u"3"_s);
    c->resetControlValue();
    QCOMPARE(field->text(), u"1"_s);
    QCOMPARE(b.value(u"SetCount"_s), u"3"_s);

    // Triggers are held but have no effect; a direct call does.
    const PDETriggerPtr set = PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Matte"_s);
    c->setDisableTrigger(set);
    c->setHiddenTrigger(set);
    QVERIFY(stepper->isEnabled() && field->isEnabled() && !stepper->isHidden());
    c->setEnabled(false);
    QVERIFY(!stepper->isEnabled() && !field->isEnabled());
}

void ControllersTest::stepperDigitLimit_data()
{
    QTest::addColumn<qint64>("maxValue");
    QTest::addColumn<int>("digits");
    QTest::newRow("9") << qint64(9) << 1;
    QTest::newRow("10") << qint64(10) << 2;
    QTest::newRow("1000") << qint64(1000) << 4;
    QTest::newRow("-50") << qint64(-50) << 2;
    QTest::newRow("0") << qint64(0) << 1;
    QTest::newRow("2^32 + 7 taken as 7") << qint64(4294967303LL) << 1;
}

void ControllersTest::stepperDigitLimit()
{
    QFETCH(qint64, maxValue);
    QFETCH(int, digits);
    Bench b;
    auto* stepper = b.add<PDEStepper>();
    auto* field = b.add<QLineEdit>();
    QVERIFY(b.show());
    auto c = MRPDEStepperController::initiateControllerForFeatureWithControlModel(b.f(u"SetCount"_s), stepper, b.model.get());
    c->setMaxValue(maxValue);
    c->setTextField(field);
    QCOMPARE(qobject_cast<const MRPDEStringFormatter*>(field->validator())->maximumCharacters(), qint64(digits));
    // "1000..." stays within a positive maximum until the digits run out.
    if (qint32(maxValue) > 0) {
        field->setFocus();
        typeText(field, u"100000000000"_s);
        QCOMPARE(field->text().size(), qsizetype(digits));
    }
}

void ControllersTest::datePicker()
{
    Bench b({{u"PrintAt"_s, u"01/02/2003//04:05"_s}});
    auto* picker = b.add<QDateTimeEdit>();
    QVERIFY(b.show());
    QCOMPARE(b.value(u"PrintAt"_s), u"01/02/2003//04:05"_s);
    // The feature receives the present moment, not the other way round; the
    // picker keeps that moment itself (the text is not read back at once).
    const QDateTime before = QDateTime::currentDateTime();
    auto c = MRPDE_MACDatePickerController::initiateControllerForFeatureWithControlModel(b.f(u"PrintAt"_s), picker, b.model.get());
    const QDateTime after = QDateTime::currentDateTime();
    QVERIFY(picker->dateTime() >= before && picker->dateTime() <= after);
    QCOMPARE(b.value(u"PrintAt"_s), picker->dateTime().toString(kPattern));

    b.set(u"PrintAt"_s, u"12/24/2030//18:45"_s);
    QCOMPARE(picker->dateTime(), QDateTime(QDate(2030, 12, 24), QTime(18, 45)));  // local time
    picker->setFocus();
    QTest::keyClick(picker, Qt::Key_Up);
    QVERIFY(b.value(u"PrintAt"_s) != u"12/24/2030//18:45"_s);
    QCOMPARE(b.value(u"PrintAt"_s), picker->dateTime().toString(kPattern));

    // Not a moment: the picker keeps what it shows.
    const QDateTime shown = picker->dateTime();
    b.set(u"PrintAt"_s, u"tomorrow"_s);
    QCOMPARE(picker->dateTime(), shown);
    // Triggers have no effect.
    c->setDisableTrigger(PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Matte"_s));
    QVERIFY(picker->isEnabled());
}

void ControllersTest::label()
{
    Bench b;
    auto* text = b.add<QLabel>();
    auto c = MRPDE_MACLabelController::initiateControllerForFeatureWithControlModel(b.f(u"USERID"_s), text, b.model.get());
    QCOMPARE(text->text(), u"User ID:"_s);
    b.set(u"USERID"_s, u"dave"_s);  // not followed
    QCOMPARE(text->text(), u"User ID:"_s);
    PDELogCapture log;
    c->contentFromLocalizedAttributeKey(u"NoSuchAttribute"_s);
    QCOMPARE(text->text(), u"User ID:"_s);
    QVERIFY(log.contains(u"PDE: Unable to load label from Attribute Key (NoSuchAttribute)"_s));
    c->rangeControllerLabel();
    QCOMPARE(text->text(), u"(4-16 Alphanumeric)"_s);

    const QPalette system = QApplication::palette(text);
    c->setEnabled(false);
    QVERIFY(!text->isEnabled());
    QCOMPARE(text->palette().color(QPalette::Active, QPalette::WindowText), system.color(QPalette::Disabled, QPalette::WindowText));
    c->setEnabled(true);
    QCOMPARE(text->palette().color(QPalette::Active, QPalette::WindowText), system.color(QPalette::Active, QPalette::WindowText));

    // No account attributes (a dialog that gives no PPD): the label stays.
    PartialCallback noPPD(b.host.get(), {PDEPluginCallback::Operation::PPDFile});
    MRPDE_MACChangeHandlerModel bare(PDEBundle::embedded(), &noPPD);
    auto c2 = MRPDE_MACLabelController::initiateControllerForFeatureWithControlModel(nullptr, text, &bare);
    c2->rangeControllerLabel();
    QCOMPARE(text->text(), u"(4-16 Alphanumeric)"_s);
}

void ControllersTest::labelLocalized_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    QTest::newRow("C") << "C.UTF-8" << "LabelText" << "Plain label text";
    QTest::newRow("German, Austria") << "de_AT.UTF-8" << "LabelText" << "Deutscher Beschriftungstext";
    QTest::newRow("English") << "en_GB.UTF-8" << "LabelText" << "English label text";
    QTest::newRow("French, no translation") << "fr_FR.UTF-8" << "LabelText" << "Plain label text";
    QTest::newRow("German, plain attribute") << "de_DE.UTF-8" << "UnlocalizedText" << "Only plain text";
}

// The user's language is fixed when a process first asks for it, and libcups
// reads a PPD's translations only for the language of the process's locale:
// each locale runs labelInLanguage in a process of its own.
void ControllersTest::labelLocalized()
{
    QFETCH(QString, locale);
    QFETCH(QString, key);
    QFETCH(QString, expected);
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(u"LANGUAGE"_s);
    env.remove(u"LC_MESSAGES"_s);
    env.insert(u"LC_ALL"_s, locale);
    env.insert(u"LANG"_s, locale);
    env.insert(u"PDE_TEST_LABEL_KEY"_s, key);
    env.insert(u"PDE_TEST_LABEL_TEXT"_s, expected);
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), {u"labelInLanguage"_s});
    QVERIFY(child.waitForFinished(60000));
    const QString out = QString::fromUtf8(child.readAllStandardOutput());
    QVERIFY2(child.exitCode() == 0 && out.contains(u"PASS   : ControllersTest::labelInLanguage()"_s), qPrintable(out));
}

void ControllersTest::labelInLanguage()
{
    const QString key = qEnvironmentVariable("PDE_TEST_LABEL_KEY");
    if (key.isEmpty())
        QSKIP("run by labelLocalized in a locale");
    Bench b;
    QLabel text;
    auto c = MRPDE_MACLabelController::initiateControllerForFeatureWithControlModel(nullptr, &text, b.model.get());
    c->contentFromLocalizedAttributeKey(key);
    QCOMPARE(text.text(), qEnvironmentVariable("PDE_TEST_LABEL_TEXT"));
}

void ControllersTest::describer()
{
    Bench b;
    b.forwardResolution();
    MRPDE_MACChangeHandlerModel* m = b.model.get();
    QList<MRPDEControllerPtr> keep;
    auto* finish = b.add<QComboBox>(u"finishPopUpButton"_s);
    b.f(u"Finish"_s)->getChoiceWithKeyword(u"Draft"_s)->setSelectable(false);
    keep << MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(b.f(u"Finish"_s), finish, m);
    auto* coating = b.add<QComboBox>(u"coatingPopUpButton"_s);
    keep << MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(b.f(u"Coating"_s), coating, m);
    keep.last()->setHiddenTrigger(PDEMakeBasicTrigger(b.f(u"Finish"_s), u"Matte"_s));
    auto* skip = b.add<QCheckBox>(u"skipBlankPagesCheckBoxButton"_s);
    keep << MRPDE_MACCheckBoxController::initiateControllerForFeatureWithControlModel(b.f(u"SkipBlankPages"_s), skip, m);
    auto* curl = b.add<QCheckBox>(u"curlCheckBoxButton"_s);
    keep << MRPDE_MACCheckBoxController::initiateControllerForFeatureWithControlModel(b.f(u"CurlMode"_s), curl, m);
    keep.last()->setDisableTrigger(PDEMakeBasicTrigger(b.f(u"SkipBlankPages"_s), u"True"_s));
    auto* label = b.add<QLabel>(u"userIDLabel"_s);
    keep << MRPDE_MACLabelController::initiateControllerForFeatureWithControlModel(b.f(u"USERID"_s), label, m);
    auto* user = b.add<QLineEdit>(u"userIDTextField"_s);
    keep << MRPDE_MACTextFieldController::initiateControllerForFeatureWithControlModel(b.f(u"USERID"_s), user, m);
    auto* pin = b.add<QLineEdit>(u"pinCodeSecureTextField"_s);
    keep << MRPDESecureTextFieldController::initiateControllerForFeatureWithControlModel(b.f(u"PINCode"_s), pin, m);
    auto* stepper = b.add<PDEStepper>(u"setCountStepper"_s);
    auto* count = b.add<QLineEdit>(u"setCountTextField"_s);
    auto sc = MRPDEStepperController::initiateControllerForFeatureWithControlModel(b.f(u"SetCount"_s), stepper, m);
    sc->setMaxValue(99);
    sc->setMinValue(1);
    sc->setTextField(count);
    sc->resetConfiguration();
    auto* when = b.add<QDateTimeEdit>(u"printAtDatePicker"_s);
    keep << sc << MRPDE_MACDatePickerController::initiateControllerForFeatureWithControlModel(b.f(u"PrintAt"_s), when, m);
    QVERIFY(b.show());

    finish->setFocus();
    QTest::keyClick(finish, Qt::Key_Down);
    QTRY_COMPARE(coating->currentText(), u"Light Coating"_s);
    user->setFocus();
    user->selectAll();
    typeText(user, u"erin"_s);
    pin->setFocus();
    typeText(pin, u"s3cret7"_s);
    QTest::mouseClick(stepper->upButton(), Qt::LeftButton);
    QTest::mouseClick(stepper->upButton(), Qt::LeftButton);
    b.set(u"PrintAt"_s, u"03/04/2031//05:06"_s);

    const QJsonObject all = PanelDescriber::describeControls(&b.panel);
    QCOMPARE(all.size(), 10);  // the stepper's arrows and the pickers' inner fields are no controls
    auto get = [&](const char* name) { return all.value(QString::fromLatin1(name)).toObject(); };
    const QJsonObject f = get("finishPopUpButton");
    QCOMPARE(f.value("type").toString(), u"popup"_s);
    QCOMPARE(f.value("value").toString(), u"Glossy Paper"_s);
    QCOMPARE(f.value("items").toArray(), QJsonArray({"Matte Paper", "Glossy Paper", "Draft Paper", "Satin Paper"}));
    QCOMPARE(f.value("disabledItems").toArray(), QJsonArray({"Draft Paper"}));
    QCOMPARE(get("coatingPopUpButton").value("visible").toBool(), true);  // no longer Matte
    QCOMPARE(get("coatingPopUpButton").value("value").toString(), u"Light Coating"_s);
    QCOMPARE(get("skipBlankPagesCheckBoxButton"),
             QJsonObject({{"type", "checkbox"}, {"checked", true}, {"title", "Skip Blank Pages"}, {"enabled", true}, {"visible", true}}));
    QCOMPARE(get("curlCheckBoxButton").value("enabled").toBool(), false);
    QCOMPARE(get("userIDLabel").value("text").toString(), u"User ID:"_s);
    QCOMPARE(get("userIDTextField"), QJsonObject({{"type", "textfield"}, {"text", "erin"}, {"enabled", true}, {"visible", true}}));
    QCOMPARE(get("pinCodeSecureTextField"),
             QJsonObject({{"type", "securefield"}, {"length", 7}, {"enabled", true}, {"visible", true}}));
    QVERIFY(!QJsonDocument(all).toJson().contains("s3cret7"));
    QCOMPARE(b.value(u"PINCode"_s), u"s3cret7"_s);
    QCOMPARE(get("setCountStepper"), QJsonObject({{"type", "stepper"}, {"value", 3}, {"enabled", true}, {"visible", true}}));
    QCOMPARE(get("setCountTextField").value("text").toString(), u"3"_s);
    QCOMPARE(get("printAtDatePicker").value("type").toString(), u"datepicker"_s);
    QCOMPARE(get("printAtDatePicker").value("value").toString(), u"03/04/2031//05:06"_s);

    QTest::keyClick(finish, Qt::Key_Home);  // Matte again hides the coating
    QCOMPARE(PanelDescriber::describeControls(&b.panel).value(u"coatingPopUpButton"_s).toObject().value("visible").toBool(), false);
}

QTEST_MAIN(ControllersTest)
#include "tst_controllers.moc"
