#pragma once
#include "MRPDE_MACTextFieldController.h"

// A masked text field (password, PIN) over a free-text feature. As the plain
// text field, but: with delayedFeatureWrite the text reaches the feature only
// when printing (goingToPrint); a text that breaks the length rules is still
// written when it is shorter than the stored one, so deleting always reaches
// the feature, down to the empty text. The text never appears in a log line.
class MRPDESecureTextFieldController : public MRPDE_MACTextFieldController {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model: — control is a QLineEdit;
    // it is put in password mode.
    MRPDESecureTextFieldController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    // initiateControllerForFeature:withControl:model:
    static std::shared_ptr<MRPDESecureTextFieldController>
    initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    // Kept for the panels; the length rules below do not depend on it.
    bool lengthRestrictionCheckingEnabled() const { return m_lengthRestrictionCheckingEnabled; }
    void setLengthRestrictionCheckingEnabled(bool on) { m_lengthRestrictionCheckingEnabled = on; }

    // Delegate: the user changed the text; written at once unless delayed.
    void controlTextDidChange(QLineEdit* field) override;
    // Delegate: may editing end? Only the minimum length is checked.
    bool controlTextShouldEndEditing(QLineEdit* field) override;
    // Writes the field's text to the feature when the length rules allow it.
    void updateFeatureValue();
    // Writes a delayed text; always lets printing go on.
    bool goingToPrint() override;

private:
    bool m_lengthRestrictionCheckingEnabled = false;
};
