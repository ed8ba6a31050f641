#include "MRPDESecureTextFieldController.h"

#include "PDELog.h"

#include <QLineEdit>

MRPDESecureTextFieldController::MRPDESecureTextFieldController(const PDEFeaturePtr& feature, QWidget* control,
                                                               MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACTextFieldController(feature, control, model)
{
    QLineEdit* field = textField();
    if (field && feature && field->echoMode() == QLineEdit::Normal)
        field->setEchoMode(QLineEdit::Password);
}

std::shared_ptr<MRPDESecureTextFieldController>
MRPDESecureTextFieldController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                             MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDESecureTextFieldController>(feature, control, model);
}

void MRPDESecureTextFieldController::controlTextDidChange(QLineEdit*)
{
    if (delayedFeatureWrite())
        return;
    updateFeatureValue();
}

void MRPDESecureTextFieldController::updateFeatureValue()
{
    const PDEFeaturePtr f = feature();
    QLineEdit* field = textField();
    if (!f || !field)
        return;
    const QString text = field->text();
    const PDEChoicePtr stored = f->currentValue();
    const qsizetype storedLength = stored ? stored->displayString().size() : 0;
    // A shorter text is always written, so that deleting reaches the feature
    // even below the minimum.
    if ((minimumLengthHolds(text) && maximumLengthHolds(text)) || text.size() < storedLength)
        f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(text, text));
}

bool MRPDESecureTextFieldController::goingToPrint()
{
    if (delayedFeatureWrite())
        updateFeatureValue();
    return true;
}

bool MRPDESecureTextFieldController::controlTextShouldEndEditing(QLineEdit* field)
{
    // The result is logged in the entry line's own form.
    _PDELog(this, QStringLiteral(" UIDelegate --::-- textShouldEndEditing (%@) "), PDEDescribeControl(field));
    const bool result = minimumLengthHolds(field ? field->text() : QString());
    _PDELog(this, QStringLiteral(" UIDelegate --::-- textShouldEndEditing (%@) "), result ? QStringLiteral("YES") : QStringLiteral("NO"));
    return result;
}
