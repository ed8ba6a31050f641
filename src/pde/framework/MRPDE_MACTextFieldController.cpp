#include "MRPDE_MACTextFieldController.h"

#include "MRPDEStringFormatter.h"
#include "PDELog.h"
#include "PDETextFieldDelegate.h"

#include <QLineEdit>

MRPDE_MACTextFieldController::MRPDE_MACTextFieldController(const PDEFeaturePtr& feature, QWidget* control,
                                                           MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACBaseController(feature, control, model)
{
    QLineEdit* field = textField();
    if (!field || !feature)
        return;
    m_delegate = new PDETextFieldDelegate(
        field, [this](QLineEdit* f) { controlTextDidChange(f); }, [this](QLineEdit* f) { return controlTextShouldEndEditing(f); },
        this);
    observeFeatureCurrentValue(true);
}

MRPDE_MACTextFieldController::~MRPDE_MACTextFieldController()
{
    delete m_delegate;
}

std::shared_ptr<MRPDE_MACTextFieldController>
MRPDE_MACTextFieldController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                           MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDE_MACTextFieldController>(feature, control, model);
}

QLineEdit* MRPDE_MACTextFieldController::textField() const
{
    return qobject_cast<QLineEdit*>(control());
}

void MRPDE_MACTextFieldController::setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(
    const PDECharacterSet& allowed, const PDECharacterSet& disallowed, qint64 maximum, qint64 minimum)
{
    if (QLineEdit* field = textField()) {
        const QValidator* old = field->validator();
        field->setValidator(MRPDEStringFormatter::allowedCharacterSetDisallowedCharacterSetMaxLimit(allowed, disallowed, maximum, field));
        if (old && old->parent() == field && qobject_cast<const MRPDEStringFormatter*>(old))
            delete old;
    }
    m_maxLength = maximum;
    m_minLength = minimum;
}

void MRPDE_MACTextFieldController::controlTextDidChange(QLineEdit* field)
{
    _PDELog(this, QStringLiteral(" OOOOOOOOOOOOOOOOO--> --> --> --> --> --> UIAction --::-- controlTextDidChange (%@) "),
            PDEDescribeControl(field));
    const PDEFeaturePtr f = feature();
    if (!field || !f)
        return;
    const QString text = field->text();
    // Otherwise the feature keeps its last valid text.
    if (minimumLengthHolds(text) && maximumLengthHolds(text))
        f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(text, text));
}

bool MRPDE_MACTextFieldController::controlTextShouldEndEditing(QLineEdit* field)
{
    _PDELog(this, QStringLiteral(" UIDelegate --::-- textShouldEndEditing (%@) "), PDEDescribeControl(field));
    const bool result = minimumLengthHolds(field ? field->text() : QString());
    _PDELog(this, QStringLiteral(" UIDelegate --::-- textShouldEndEditing = %@ "), result ? QStringLiteral("YES") : QStringLiteral("NO"));
    return result;
}

void MRPDE_MACTextFieldController::observeValueForKeyPath(const QString& keyPath, QObject* object, void* context)
{
    if (keyPath == kCurrentValueKeyPath) {
        const PDEFeaturePtr f = feature();
        const PDEChoicePtr value = f ? f->currentValue() : nullptr;
        QLineEdit* field = textField();
        // Leaving an equal text alone keeps the cursor where the user types.
        if (value && !value->keyword().isNull() && field && field->text() != value->keyword())
            field->setText(value->keyword());
    }
    MRPDE_MACBaseController::observeValueForKeyPath(keyPath, object, context);
}
