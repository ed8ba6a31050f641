#pragma once
#include "MRPDEAttribute.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "MRPDE_MACFeature.h"
#include "PDETriggerProtocol.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

class MRPDE_MACBaseController;

using MRPDEControllerPtr = std::shared_ptr<MRPDE_MACBaseController>;
// A controller class's factory (initiateControllerForFeatureWithControlModel),
// for code that binds controls without knowing the concrete class.
using MRPDEControllerFactory =
    std::function<MRPDEControllerPtr(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model)>;

// Binds one control to one feature of the option model and keeps the two in
// step; up to three triggers disable, hide or reset the control. The kinds of
// control each have their own subclass; a controller without a control or a
// feature stays inert.
//
// The controller owns its feature, attribute and triggers (shared); the
// control belongs to its view and the model to the plug-in entry, both are
// only referred to. Every observation (feature value, trigger state) ends
// when the controller goes away or replaces what it observes.
class MRPDE_MACBaseController : public QObject {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model:
    MRPDE_MACBaseController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    // initWithControllerForAttribute:withControl:model:
    MRPDE_MACBaseController(const PDEAttributePtr& attribute, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    ~MRPDE_MACBaseController() override;

    QWidget* control() const { return m_control; }
    // Stores the control; a control that was already wired stays wired.
    void setControl(QWidget* control) { m_control = control; }
    PDEFeaturePtr feature() const { return m_feature; }
    // Replacing the feature moves an active observation to the new feature.
    void setFeature(const PDEFeaturePtr& feature);
    PDEAttributePtr attribute() const { return m_attribute; }
    void setAttribute(const PDEAttributePtr& attribute) { m_attribute = attribute; }
    MRPDE_MACChangeHandlerModel* model() const { return m_model; }
    void setModel(MRPDE_MACChangeHandlerModel* model) { m_model = model; }
    bool delayedFeatureWrite() const { return m_delayedFeatureWrite; }
    void setDelayedFeatureWrite(bool delayed) { m_delayedFeatureWrite = delayed; }

    // A trigger takes effect at once. Setting null or the trigger already held
    // changes nothing; a new trigger replaces the old one, which is no longer
    // observed.
    PDETriggerPtr disableTrigger() const { return m_disableTrigger; }
    void setDisableTrigger(const PDETriggerPtr& trigger);
    PDETriggerPtr hiddenTrigger() const { return m_hiddenTrigger; }
    void setHiddenTrigger(const PDETriggerPtr& trigger);
    PDETriggerPtr resetToDefaultTrigger() const { return m_resetToDefaultTrigger; }
    void setResetToDefaultTrigger(const PDETriggerPtr& trigger);

    virtual void setEnabled(bool enabled);
    virtual void setHidden(bool hidden);
    // Sets the feature back to its default value.
    void resetToDefaultValues();
    // Called on every controller before printing; true lets the job go on.
    virtual bool goingToPrint();

    QString description() const;

    static const QString kCurrentValueKeyPath;  // "currentValue", from the feature
    static const QString kIsSetKeyPath;         // "isSet", from a trigger

protected:
    // One entry point for every change observed: keyPath tells what changed
    // (kCurrentValueKeyPath or kIsSetKeyPath), object who changed and context
    // what was given when observing (the trigger itself for triggers). The
    // base acts on its triggers' "isSet" and ignores everything else.
    virtual void observeValueForKeyPath(const QString& keyPath, QObject* object, void* context);

    // Starts observing the feature's current value; `initial` runs the
    // handler once at once.
    void observeFeatureCurrentValue(bool initial);
    void stopObservingFeature();

private:
    void setTrigger(PDETriggerPtr& held, QMetaObject::Connection& observation, const PDETriggerPtr& trigger);

    QPointer<QWidget> m_control;
    PDEFeaturePtr m_feature;
    PDEAttributePtr m_attribute;
    QPointer<MRPDE_MACChangeHandlerModel> m_model;
    bool m_delayedFeatureWrite = false;
    PDETriggerPtr m_disableTrigger;
    PDETriggerPtr m_hiddenTrigger;
    PDETriggerPtr m_resetToDefaultTrigger;

    QMetaObject::Connection m_featureObservation;
    QMetaObject::Connection m_disableObservation;
    QMetaObject::Connection m_hiddenObservation;
    QMetaObject::Connection m_resetObservation;
    bool m_observesFeature = false;
    bool m_observesFeatureInitially = false;
};

// "<QCheckBox: 0x...>" for a control in log lines (never its text), or "(null)".
QString PDEDescribeControl(const QObject* control);
