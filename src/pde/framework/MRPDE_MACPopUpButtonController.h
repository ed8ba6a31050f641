#pragma once
#include "MRPDE_MACBaseController.h"

class QComboBox;

// A pop-up listing a feature's choices by their display strings, in order;
// choices that cannot be selected are shown disabled. Items and choices are
// matched by display string, never by keyword. A pick the feature refuses
// is undone. The pop-up of a feature that is not selectable stays disabled.
class MRPDE_MACPopUpButtonController : public MRPDE_MACBaseController {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model: — control is a QComboBox.
    MRPDE_MACPopUpButtonController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    ~MRPDE_MACPopUpButtonController() override;

    // initiateControllerForFeature:withControl:model:
    static std::shared_ptr<MRPDE_MACPopUpButtonController>
    initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    QComboBox* popUpButton() const;

    // The pop-up's action, after the user picked an item.
    void handlePopUpSelection(QComboBox* sender);
    void setEnabled(bool enabled) override;

protected:
    void observeValueForKeyPath(const QString& keyPath, QObject* object, void* context) override;

private:
    // Selects the first item with that title, or none.
    void selectItemWithTitle(const QString& title);
};
