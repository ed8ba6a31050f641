#include "MRPDEBasicTrigger.h"

#include "PDELog.h"
#include "PDETriggerLog.h"

MRPDEBasicTrigger::MRPDEBasicTrigger(const PDEFeaturePtr& feature, const QString& valueKey)
{
    if (!feature || valueKey.isNull())
        return;
    m_feature = feature;
    m_featureValue = valueKey;
    m_feature->observeCurrentValue(this, [this](MRPDE_MACFeature* f) { observeValue(f); }, true);
}

MRPDEBasicTrigger::~MRPDEBasicTrigger()
{
    if (m_feature)
        disconnect(m_feature.get(), nullptr, this, nullptr);
}

void MRPDEBasicTrigger::observeValue(MRPDE_MACFeature* feature)
{
    if (!feature || !feature->currentValue())
        return;
    setIsSet(feature->currentValue()->keyword() == m_featureValue);
    PDELogTriggerEvaluation(this, QStringLiteral("B_TRIGGER"), QStringLiteral("PDEBasicTrigger (control) : observeValueForKeyPath: %@"));
}

QString MRPDEBasicTrigger::description() const
{
    return PDEStringWithFormat(QStringLiteral("%@: %@=>%@ isSet(%d)"),
                               {PDEBaseDescription("MRPDEBasicTrigger", this),
                                m_feature ? PDEDescribe(m_feature->keyword()) : QStringLiteral("(null)"),
                                PDEDescribe(m_featureValue), PDEDescribe(m_isSet)});
}

std::shared_ptr<MRPDEBasicTrigger> PDEMakeBasicTrigger(const PDEFeaturePtr& feature, const QString& valueKey)
{
    if (!feature || valueKey.isNull())
        return nullptr;
    return std::make_shared<MRPDEBasicTrigger>(feature, valueKey);
}
