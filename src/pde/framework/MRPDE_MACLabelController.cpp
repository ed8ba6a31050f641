#include "MRPDE_MACLabelController.h"

#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "PDELog.h"

#include <QApplication>
#include <QLabel>
#include <QPalette>

MRPDE_MACLabelController::MRPDE_MACLabelController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACBaseController(feature, control, model)
{
    if (QLabel* l = label(); l && feature)
        l->setText(feature->displayString() + QLatin1Char(':'));
}

MRPDE_MACLabelController::~MRPDE_MACLabelController() = default;

std::shared_ptr<MRPDE_MACLabelController>
MRPDE_MACLabelController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                       MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDE_MACLabelController>(feature, control, model);
}

QLabel* MRPDE_MACLabelController::label() const
{
    return qobject_cast<QLabel*>(control());
}

void MRPDE_MACLabelController::contentFromLocalizedAttributeKey(const QString& key)
{
    const PDEAttributePtr attribute = model() ? model()->attributeWithKey(key) : nullptr;
    if (!attribute) {
        _PDELog(this, QStringLiteral("Unable to load label from Attribute Key (%@)"), key);
        return;
    }
    const PDEAttributePtr localized = attribute->localizedAttribute();
    if (QLabel* l = label())
        l->setText(localized ? localized->attributeValue() : attribute->attributeValue());
}

void MRPDE_MACLabelController::rangeControllerLabel()
{
    MRPDE_MACChangeHandlerModel* m = model();
    if (!m)
        return;
    const PDEAttributePtr minimum = m->attributeWithKey(QStringLiteral("AccountMinLength"));
    const PDEAttributePtr maximum = m->attributeWithKey(QStringLiteral("AccountMaxLength"));
    if (!minimum || !maximum)
        return;
    const QString key = QStringLiteral("(%@-%@ Alphanumeric)");
    const std::shared_ptr<PDEBundle> bundle = m->pdeBundle();
    const QString format = bundle ? bundle->localizedString(key, QStringLiteral("Localizable")) : key;
    if (QLabel* l = label())
        l->setText(PDEStringWithFormat(format, {minimum->attributeValue(), maximum->attributeValue()}));
}

void MRPDE_MACLabelController::setEnabled(bool enabled)
{
    if (QLabel* l = label()) {
        const QPalette system = QApplication::palette(l);
        QPalette palette = l->palette();
        palette.setColor(QPalette::WindowText,
                         system.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        l->setPalette(palette);
    }
    MRPDE_MACBaseController::setEnabled(enabled);
}
