#pragma once
#include "MRPDE_MACBaseController.h"

class QAbstractButton;

// A check box over a two-state feature whose choices pair as "True"/"False",
// "Yes"/"No" or "On"/"Off". The box starts from the feature's default value
// and follows later changes of the current value; a click selects the
// paired choice, and the box then shows whatever the feature holds.
class MRPDE_MACCheckBoxController : public MRPDE_MACBaseController {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model: — control is a QCheckBox
    // (any checkable QAbstractButton).
    MRPDE_MACCheckBoxController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    ~MRPDE_MACCheckBoxController() override;

    // initiateControllerForFeature:withControl:model:
    static std::shared_ptr<MRPDE_MACCheckBoxController>
    initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    QAbstractButton* checkBox() const;

    // The box's action, after the user toggled it.
    void handleCheckBoxSelection(QAbstractButton* sender);

protected:
    void observeValueForKeyPath(const QString& keyPath, QObject* object, void* context) override;
};
