#pragma once
#include "MRPDE_MACFeature.h"
#include "PDETriggerProtocol.h"

// Set while a feature's current choice keyword equals a given keyword.
class MRPDEBasicTrigger : public PDETriggerProtocol {
    Q_OBJECT
public:
    // initWithFeature:valueKey: — with a missing argument the trigger stays
    // unconfigured: never set, never changing.
    MRPDEBasicTrigger(const PDEFeaturePtr& feature, const QString& valueKey);
    ~MRPDEBasicTrigger() override;

    PDEFeaturePtr feature() const { return m_feature; }
    QString featureValue() const { return m_featureValue; }
    QString description() const override;

private:
    void observeValue(MRPDE_MACFeature* feature);

    PDEFeaturePtr m_feature;
    QString m_featureValue;
};

// A basic trigger, or null when either argument is missing.
std::shared_ptr<MRPDEBasicTrigger> PDEMakeBasicTrigger(const PDEFeaturePtr& feature, const QString& valueKey);
