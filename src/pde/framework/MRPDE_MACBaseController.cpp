#include "MRPDE_MACBaseController.h"

#include "PDELog.h"

const QString MRPDE_MACBaseController::kCurrentValueKeyPath = QStringLiteral("currentValue");
const QString MRPDE_MACBaseController::kIsSetKeyPath = QStringLiteral("isSet");

QString PDEDescribeControl(const QObject* control)
{
    return control ? PDEBaseDescription(control->metaObject()->className(), control) : QStringLiteral("(null)");
}

MRPDE_MACBaseController::MRPDE_MACBaseController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model)
{
    setFeature(feature);
    setControl(control);
    setModel(model);
    // The option a control shows, for those who describe it (and keep a
    // password or PIN out of what they print).
    if (control && feature)
        control->setProperty("pdeOptionKey", feature->keyword());
}

MRPDE_MACBaseController::MRPDE_MACBaseController(const PDEAttributePtr& attribute, QWidget* control,
                                                 MRPDE_MACChangeHandlerModel* model)
{
    setAttribute(attribute);
    setControl(control);
    setModel(model);
}

MRPDE_MACBaseController::~MRPDE_MACBaseController()
{
    disconnect(m_disableObservation);
    disconnect(m_hiddenObservation);
    disconnect(m_resetObservation);
    stopObservingFeature();
    m_disableTrigger.reset();
    m_hiddenTrigger.reset();
    m_resetToDefaultTrigger.reset();
    m_model = nullptr;
    m_feature.reset();
    m_control = nullptr;
}

void MRPDE_MACBaseController::setFeature(const PDEFeaturePtr& feature)
{
    if (feature == m_feature)
        return;
    disconnect(m_featureObservation);
    m_feature = feature;
    if (m_observesFeature && m_feature)
        m_featureObservation = m_feature->observeCurrentValue(
            this, [this](MRPDE_MACFeature* f) { observeValueForKeyPath(kCurrentValueKeyPath, f, nullptr); },
            m_observesFeatureInitially);
}

void MRPDE_MACBaseController::observeFeatureCurrentValue(bool initial)
{
    disconnect(m_featureObservation);
    m_observesFeature = true;
    m_observesFeatureInitially = initial;
    if (m_feature)
        m_featureObservation = m_feature->observeCurrentValue(
            this, [this](MRPDE_MACFeature* f) { observeValueForKeyPath(kCurrentValueKeyPath, f, nullptr); }, initial);
}

void MRPDE_MACBaseController::stopObservingFeature()
{
    disconnect(m_featureObservation);
    m_observesFeature = false;
}

void MRPDE_MACBaseController::setDisableTrigger(const PDETriggerPtr& trigger)
{
    setTrigger(m_disableTrigger, m_disableObservation, trigger);
}

void MRPDE_MACBaseController::setHiddenTrigger(const PDETriggerPtr& trigger)
{
    setTrigger(m_hiddenTrigger, m_hiddenObservation, trigger);
}

void MRPDE_MACBaseController::setResetToDefaultTrigger(const PDETriggerPtr& trigger)
{
    setTrigger(m_resetToDefaultTrigger, m_resetObservation, trigger);
}

void MRPDE_MACBaseController::setTrigger(PDETriggerPtr& held, QMetaObject::Connection& observation, const PDETriggerPtr& trigger)
{
    // A trigger can be replaced but never removed.
    if (!trigger || trigger == held)
        return;
    disconnect(observation);
    held = trigger;
    PDETriggerProtocol* context = trigger.get();
    observation = trigger->observeIsSet(
        this, [this, context](PDETriggerProtocol* t) { observeValueForKeyPath(kIsSetKeyPath, t, context); }, true);
}

void MRPDE_MACBaseController::observeValueForKeyPath(const QString& keyPath, QObject* object, void*)
{
    if (keyPath != kIsSetKeyPath)
        return;
    auto* trigger = qobject_cast<PDETriggerProtocol*>(object);
    if (!trigger)
        return;
    // One trigger may fill several roles; each role it holds takes effect.
    if (m_disableTrigger && trigger == m_disableTrigger.get())
        setEnabled(!trigger->isSet());
    if (m_hiddenTrigger && trigger == m_hiddenTrigger.get())
        setHidden(trigger->isSet());
    if (m_resetToDefaultTrigger && trigger == m_resetToDefaultTrigger.get() && trigger->isSet())
        resetToDefaultValues();
}

void MRPDE_MACBaseController::setEnabled(bool enabled)
{
    _PDELog(this, QStringLiteral("%@: setEnabled:%d"), this, enabled);
    if (m_control)
        m_control->setEnabled(enabled);
}

void MRPDE_MACBaseController::setHidden(bool hidden)
{
    _PDELog(this, QStringLiteral("%@: setHidden:%d"), this, hidden);
    if (m_control)
        m_control->setHidden(hidden);
}

void MRPDE_MACBaseController::resetToDefaultValues()
{
    _PDELog(this, QStringLiteral("%@: resetToDefaultValues"), this);
    if (m_feature)
        m_feature->setCurrentValue(m_feature->defaultValue());
}

bool MRPDE_MACBaseController::goingToPrint()
{
    return true;
}

QString MRPDE_MACBaseController::description() const
{
    return PDEStringWithFormat(QStringLiteral("%@: control(%@) feature.keyword(%@)"),
                               {PDEBaseDescription(metaObject()->className(), this), PDEDescribeControl(m_control),
                                m_feature ? PDEDescribe(m_feature->keyword()) : QStringLiteral("(null)")});
}
