#include "MRPDESecureTextFieldController.h"

#include "MRPDEStringFormatter.h"
#include "PDELog.h"
#include "PDETextFieldDelegate.h"

#include <QLineEdit>

MRPDESecureTextFieldController::MRPDESecureTextFieldController(const PDEFeaturePtr& feature, QWidget* control,
                                                               MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACBaseController(feature, control, model)
{
    QLineEdit* field = textField();
    if (!field || !feature)
        return;
    if (field->echoMode() == QLineEdit::Normal)
        field->setEchoMode(QLineEdit::Password);
    m_delegate = new PDETextFieldDelegate(
        field, [this](QLineEdit* f) { controlTextDidChange(f); }, [this](QLineEdit* f) { return controlTextShouldEndEditing(f); },
        this);
    observeFeatureCurrentValue(true);
}

MRPDESecureTextFieldController::~MRPDESecureTextFieldController()
{
    delete m_delegate;
}

std::shared_ptr<MRPDESecureTextFieldController>
MRPDESecureTextFieldController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                             MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDESecureTextFieldController>(feature, control, model);
}

QLineEdit* MRPDESecureTextFieldController::textField() const
{
    return qobject_cast<QLineEdit*>(control());
}

void MRPDESecureTextFieldController::setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(
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
    const bool minimumHolds = m_minLength == 0 || text.size() >= m_minLength;
    const bool maximumHolds = m_maxLength == 0 || text.size() <= m_maxLength;
    const PDEChoicePtr stored = f->currentValue();
    const qsizetype storedLength = stored ? stored->displayString().size() : 0;
    // A shorter text is always written, so that deleting reaches the feature
    // even below the minimum.
    if ((minimumHolds && maximumHolds) || text.size() < storedLength)
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
    _PDELog(this, QStringLiteral(" UIDelegate --::-- textShouldEndEditing (%@) "), PDEDescribeControl(field));
    const qsizetype length = field ? field->text().size() : 0;
    const bool result = m_minLength == 0 || length >= m_minLength;
    _PDELog(this, QStringLiteral(" UIDelegate --::-- textShouldEndEditing (%@) "), result ? QStringLiteral("YES") : QStringLiteral("NO"));
    return result;
}

void MRPDESecureTextFieldController::observeValueForKeyPath(const QString& keyPath, QObject* object, void* context)
{
    if (keyPath == kCurrentValueKeyPath) {
        const PDEFeaturePtr f = feature();
        const PDEChoicePtr value = f ? f->currentValue() : nullptr;
        QLineEdit* field = textField();
        if (value && !value->keyword().isNull() && field && field->text() != value->keyword())
            field->setText(value->keyword());
    }
    MRPDE_MACBaseController::observeValueForKeyPath(keyPath, object, context);
}
