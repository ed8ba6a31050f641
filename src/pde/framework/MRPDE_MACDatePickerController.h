#pragma once
#include "MRPDE_MACBaseController.h"

class QDateTimeEdit;

// A date-and-time picker over a free-text feature holding a moment as
// "MM/dd/yyyy//HH:mm" in local time. The feature receives the present moment
// when the controller is made; afterwards every change the user makes is
// written, and changes of the feature are shown. Trigger notifications are
// not acted on.
class MRPDE_MACDatePickerController : public MRPDE_MACBaseController {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model: — control is a QDateTimeEdit.
    MRPDE_MACDatePickerController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    ~MRPDE_MACDatePickerController() override;

    // initiateControllerForFeature:withControl:model:
    static std::shared_ptr<MRPDE_MACDatePickerController>
    initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    QDateTimeEdit* datePicker() const;

    // The picker's action: writes its moment unless the feature holds it already.
    void stepperButtonClicked(QDateTimeEdit* sender);

    static const QString kDatePattern;  // "MM/dd/yyyy//HH:mm"

protected:
    // Acts on the feature's value only; never passes anything on.
    void observeValueForKeyPath(const QString& keyPath, QObject* object, void* context) override;
};
