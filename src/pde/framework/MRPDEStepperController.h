#pragma once
#include "MRPDE_MACBaseController.h"

#include <QLineEdit>
#include <QPointer>

class PDEStepper;
class PDETextFieldDelegate;

// A stepper (the control) and its companion number field over a free-text
// feature holding a decimal integer. Clicking the stepper writes its value;
// typing in the field writes the number at once and then puts both controls
// back to the last accepted value when the number is empty, 0 or less, or
// above maxValue (the feature keeps the rejected number until the next
// change). The field takes digits only, at most as many as maxValue has.
// Trigger notifications are not acted on.
//
// Order of use: create; set maxValue, minValue and stepValue; setTextField;
// resetConfiguration.
class MRPDEStepperController : public MRPDE_MACBaseController {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model: — control is a PDEStepper.
    MRPDEStepperController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    ~MRPDEStepperController() override;

    // initiateControllerForFeature:withControl:model:
    static std::shared_ptr<MRPDEStepperController>
    initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    PDEStepper* stepper() const;

    qint64 stepValue() const { return m_stepValue; }
    void setStepValue(qint64 v) { m_stepValue = v; }
    qint64 maxValue() const { return m_maxValue; }
    void setMaxValue(qint64 v) { m_maxValue = v; }
    qint64 minValue() const { return m_minValue; }
    void setMinValue(qint64 v) { m_minValue = v; }

    QLineEdit* textField() const { return m_textField; }
    // Adopts the companion field: the controller becomes its delegate and
    // filters its keystrokes to the number of digits of maxValue.
    void setTextField(QLineEdit* field);

    // Range and step from maxValue/minValue/stepValue, no wrapping, value 1,
    // written to the feature.
    void resetConfiguration();
    // Both controls show 1 again; the feature is not written.
    void resetControlValue();
    // Writes the stepper's value to the feature and accepts it.
    void updateControlsBasedOnFeature();
    // The stepper's action.
    void stepperButtonClicked(PDEStepper* sender);
    // Delegate of the field: the user changed the number.
    void controlTextDidChange(QLineEdit* field);
    void setEnabled(bool enabled) override;

    // The number of decimal digits of maxValue taken as a 32-bit integer.
    static qint64 digitLimitForMaxValue(qint64 maxValue);

protected:
    // Acts on the feature's value only; never passes anything on.
    void observeValueForKeyPath(const QString& keyPath, QObject* object, void* context) override;

private:
    void writeFeature(qint64 value);

    qint64 m_stepValue = 1;
    qint64 m_maxValue = 0;
    qint64 m_minValue = 0;
    qint64 m_prevValue = 1;
    QPointer<QLineEdit> m_textField;
    PDETextFieldDelegate* m_textFieldDelegate = nullptr;
};

// The leading integer of a text as a number reads it: optional blanks, an
// optional sign, digits; 0 when there is none, clamped to 32 bits.
int PDEIntValue(const QString& text);
