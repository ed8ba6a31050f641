#include "MRPDEStepperController.h"

#include "MRPDEStringFormatter.h"
#include "PDELog.h"
#include "PDEStepper.h"
#include "PDETextFieldDelegate.h"

#include <QLineEdit>
#include <algorithm>
#include <limits>

int PDEIntValue(const QString& text)
{
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+')))
        negative = text[i++] == QLatin1Char('-');
    qint64 value = 0;
    for (; i < text.size() && text[i] >= QLatin1Char('0') && text[i] <= QLatin1Char('9'); ++i) {
        value = value * 10 + (text[i].unicode() - '0');
        if (value > qint64(std::numeric_limits<int>::max()) + 1)
            break;
    }
    if (negative)
        value = -value;
    return int(std::clamp<qint64>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

namespace {
int toInt(qint64 v)
{
    return int(std::clamp<qint64>(v, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}
}

MRPDEStepperController::MRPDEStepperController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACBaseController(feature, control, model)
{
    PDEStepper* s = stepper();
    if (!s || !feature)
        return;
    connect(s, &PDEStepper::stepped, this, [this, s] { stepperButtonClicked(s); });
    observeFeatureCurrentValue(true);
}

MRPDEStepperController::~MRPDEStepperController()
{
    delete m_textFieldDelegate;
}

std::shared_ptr<MRPDEStepperController>
MRPDEStepperController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                     MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDEStepperController>(feature, control, model);
}

PDEStepper* MRPDEStepperController::stepper() const
{
    return qobject_cast<PDEStepper*>(control());
}

qint64 MRPDEStepperController::digitLimitForMaxValue(qint64 maxValue)
{
    // 1 + floor(log10(|max|)), counted exactly; 0 has one digit.
    qint64 magnitude = qAbs(qint64(qint32(maxValue)));
    qint64 digits = 1;
    while (magnitude >= 10) {
        magnitude /= 10;
        ++digits;
    }
    return digits;
}

void MRPDEStepperController::setTextField(QLineEdit* field)
{
    delete m_textFieldDelegate;
    m_textFieldDelegate = nullptr;
    m_textField = field;
    if (!field)
        return;
    m_textFieldDelegate = new PDETextFieldDelegate(field, [this](QLineEdit* f) { controlTextDidChange(f); }, nullptr, this);
    const QValidator* old = field->validator();
    field->setValidator(MRPDEStringFormatter::allowedCharacterSetDisallowedCharacterSetMaxLimit(
        PDECharacterSet::decimalDigits(), PDECharacterSet(), digitLimitForMaxValue(m_maxValue), field));
    if (old && old->parent() == field && qobject_cast<const MRPDEStringFormatter*>(old))
        delete old;
}

void MRPDEStepperController::resetConfiguration()
{
    if (PDEStepper* s = stepper()) {
        s->setMaximum(toInt(m_maxValue));
        s->setMinimum(toInt(m_minValue));
        s->setSingleStep(toInt(m_stepValue));
        s->setValue(1);
        s->setWrapping(false);
    }
    m_prevValue = 1;
    updateControlsBasedOnFeature();
}

void MRPDEStepperController::resetControlValue()
{
    if (PDEStepper* s = stepper())
        s->setValue(1);
    if (m_textField)
        m_textField->setText(QStringLiteral("1"));
    m_prevValue = 1;
}

void MRPDEStepperController::writeFeature(qint64 value)
{
    const QString text = QString::number(toInt(value));
    if (const PDEFeaturePtr f = feature())
        f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(text, text));
}

void MRPDEStepperController::updateControlsBasedOnFeature()
{
    PDEStepper* s = stepper();
    const int value = s ? s->value() : 0;
    writeFeature(value);
    m_prevValue = value;
}

void MRPDEStepperController::stepperButtonClicked(PDEStepper*)
{
    PDENSLog(QStringLiteral("Stepper Button Clicked"));
    updateControlsBasedOnFeature();
}

void MRPDEStepperController::controlTextDidChange(QLineEdit* field)
{
    if (!field)
        return;
    const int v = PDEIntValue(field->text());
    if (PDEStepper* s = stepper())
        s->setValue(v);
    // Written before it is checked: a rejected number stays in the feature
    // until the next change, while both controls show the last accepted one.
    writeFeature(v);
    if (field->text().isEmpty() || v <= 0 || v > m_maxValue) {
        if (PDEStepper* s = stepper())
            s->setValue(toInt(m_prevValue));
        field->setText(QString::number(toInt(m_prevValue)));
    }
    m_prevValue = PDEIntValue(field->text());
}

void MRPDEStepperController::observeValueForKeyPath(const QString& keyPath, QObject*, void*)
{
    if (keyPath != kCurrentValueKeyPath)
        return;
    const PDEFeaturePtr f = feature();
    const PDEChoicePtr value = f ? f->currentValue() : nullptr;
    const QString keyword = value ? value->keyword() : QString();
    PDENSLog(QStringLiteral("observeValueForKeyPath:KeyPath:ofObject:Change:: Updating stepper controls based on feature : [%@]"),
             keyword);
    if (PDEStepper* s = stepper())
        s->setValue(PDEIntValue(keyword));
    if (m_textField && m_textField->text() != keyword)
        m_textField->setText(keyword);
}

void MRPDEStepperController::setEnabled(bool enabled)
{
    if (m_textField)
        m_textField->setEnabled(enabled);
    if (PDEStepper* s = stepper())
        s->setEnabled(enabled);
    MRPDE_MACBaseController::setEnabled(enabled);
}
