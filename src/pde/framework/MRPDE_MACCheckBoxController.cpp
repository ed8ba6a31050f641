#include "MRPDE_MACCheckBoxController.h"

#include "PDELog.h"

#include <QAbstractButton>

MRPDE_MACCheckBoxController::MRPDE_MACCheckBoxController(const PDEFeaturePtr& feature, QWidget* control,
                                                         MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACBaseController(feature, control, model)
{
    QAbstractButton* box = checkBox();
    if (!box || !feature)
        return;
    box->setText(feature->displayString());
    box->setCheckable(true);
    connect(box, &QAbstractButton::clicked, this, [this, box] { handleCheckBoxSelection(box); });
    // The box starts from the default value. Only "YES" in capitals counts
    // here, while the value handler reads "Yes"; a default of "Yes" therefore
    // starts off.
    const PDEChoicePtr def = feature->defaultValue();
    const QString keyword = def ? def->keyword() : QString();
    box->setChecked(keyword == QLatin1String("True") || keyword == QLatin1String("YES"));
    observeFeatureCurrentValue(false);
}

MRPDE_MACCheckBoxController::~MRPDE_MACCheckBoxController() = default;

std::shared_ptr<MRPDE_MACCheckBoxController>
MRPDE_MACCheckBoxController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                          MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDE_MACCheckBoxController>(feature, control, model);
}

QAbstractButton* MRPDE_MACCheckBoxController::checkBox() const
{
    return qobject_cast<QAbstractButton*>(control());
}

void MRPDE_MACCheckBoxController::observeValueForKeyPath(const QString& keyPath, QObject* object, void* context)
{
    if (keyPath == kCurrentValueKeyPath) {
        const PDEFeaturePtr f = feature();
        const PDEChoicePtr value = f ? f->currentValue() : nullptr;
        const QString keyword = value ? value->keyword() : QString();
        if (QAbstractButton* box = checkBox()) {
            if (keyword == QLatin1String("True") || keyword == QLatin1String("Yes") || keyword == QLatin1String("On"))
                box->setChecked(true);
            else if (keyword == QLatin1String("False") || keyword == QLatin1String("No") || keyword == QLatin1String("Off"))
                box->setChecked(false);
            // Any other keyword leaves the box as it is.
        }
    }
    MRPDE_MACBaseController::observeValueForKeyPath(keyPath, object, context);
}

void MRPDE_MACCheckBoxController::handleCheckBoxSelection(QAbstractButton* sender)
{
    _PDELog(this, QStringLiteral(" OOOOOOOOOOOOOOOOO--> --> --> --> --> --> UIAction --::-- handleCheckBoxSelection (%@) "),
            PDEDescribeControl(sender));
    const PDEFeaturePtr f = feature();
    if (!f || !sender)
        return;
    auto currentKeyword = [&f] {
        const PDEChoicePtr value = f->currentValue();
        return value ? value->keyword() : QString();
    };
    // The value is read again before each test.
    if (!sender->isChecked()) {
        if (currentKeyword() == QLatin1String("True"))
            f->setCurrentValueWithChoiceWithKeyword(QStringLiteral("False"));
        if (currentKeyword() == QLatin1String("Yes"))
            f->setCurrentValueWithChoiceWithKeyword(QStringLiteral("No"));
        if (currentKeyword() == QLatin1String("On"))
            f->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Off"));
    } else {
        if (currentKeyword() == QLatin1String("False"))
            f->setCurrentValueWithChoiceWithKeyword(QStringLiteral("True"));
        if (currentKeyword() == QLatin1String("No"))
            f->setCurrentValueWithChoiceWithKeyword(QStringLiteral("Yes"));
        if (currentKeyword() == QLatin1String("Off"))
            f->setCurrentValueWithChoiceWithKeyword(QStringLiteral("On"));
    }
    // Show what the feature holds now (a refused change puts the box back).
    observeValueForKeyPath(kCurrentValueKeyPath, f.get(), nullptr);
}
