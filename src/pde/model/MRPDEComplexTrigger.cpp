#include "MRPDEComplexTrigger.h"

#include "PDELog.h"
#include "PDETriggerLog.h"

MRPDEComplexTrigger::MRPDEComplexTrigger(int op, const QList<PDETriggerPtr>& features)
{
    if (features.isEmpty())
        return;
    m_operator = op;
    m_features = features;
    for (const PDETriggerPtr& member : features)
        if (member)
            member->observeIsSet(this, [this](PDETriggerProtocol* t) { observeMember(t); }, true);
}

MRPDEComplexTrigger::~MRPDEComplexTrigger()
{
    for (const PDETriggerPtr& member : std::as_const(m_features))
        if (member)
            disconnect(member.get(), nullptr, this, nullptr);
}

void MRPDEComplexTrigger::observeMember(PDETriggerProtocol* member)
{
    if (!member)
        return;
    qsizetype set = 0;
    for (const PDETriggerPtr& m : std::as_const(m_features))
        if (m && m->isSet())
            ++set;
    const qsizetype all = m_features.size();
    switch (m_operator) {
    case 1:
        setIsSet(set > 0);
        break;
    case 0:
        setIsSet(set == all - 1);
        break;
    case 2:
        setIsSet(set == 0);
        break;
    default:
        break;
    }
    PDELogTriggerEvaluation(this, QStringLiteral("C_TRIGGER"), QStringLiteral("PDEComplexTrigger (control): observeValueForKeyPath: %@"));
}

QString MRPDEComplexTrigger::description() const
{
    return PDEStringWithFormat(QStringLiteral("%@: m_features(%@) m_operator(%d) isSet(%d)"),
                               {PDEBaseDescription("MRPDEComplexTrigger", this), PDEDescribe(m_features),
                                QString::number(m_operator), PDEDescribe(m_isSet)});
}

std::shared_ptr<MRPDEComplexTrigger> PDEMakeComplexTrigger(int op, const QList<PDETriggerPtr>& triggers)
{
    if (triggers.isEmpty())
        return nullptr;
    return std::make_shared<MRPDEComplexTrigger>(op, triggers);
}
