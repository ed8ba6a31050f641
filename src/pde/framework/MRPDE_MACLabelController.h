#pragma once
#include "MRPDE_MACBaseController.h"

class QLabel;

// A static label: the feature's display string with a colon, or a text from
// a PPD attribute (translated for the user's language where the PPD has a
// translation), or the allowed length of an account ID. It does not follow
// the feature afterwards; triggers grey it out or hide it.
class MRPDE_MACLabelController : public MRPDE_MACBaseController {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model: — control is a QLabel.
    MRPDE_MACLabelController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    ~MRPDE_MACLabelController() override;

    // initiateControllerForFeature:withControl:model:
    static std::shared_ptr<MRPDE_MACLabelController>
    initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    QLabel* label() const;

    // Shows the model's attribute under key, its translation when there is one.
    void contentFromLocalizedAttributeKey(const QString& key);
    // Shows "(MIN-MAX Alphanumeric)" from "AccountMinLength" and "AccountMaxLength".
    void rangeControllerLabel();
    // Colours the text as enabled or disabled control text, then enables or disables.
    void setEnabled(bool enabled) override;
};
