#pragma once
#include "PDETriggerProtocol.h"

#include <QList>

// A combination of triggers. Operator 1: set when any member is set (OR);
// 2: set when no member is set (NOT); 0: set when all members but one are
// set. Any other operator never changes the state.
class MRPDEComplexTrigger : public PDETriggerProtocol {
    Q_OBJECT
public:
    MRPDEComplexTrigger(int op, const QList<PDETriggerPtr>& features);  // initWithOperator:features:
    ~MRPDEComplexTrigger() override;

    int triggerOperator() const { return m_operator; }
    const QList<PDETriggerPtr>& features() const { return m_features; }
    QString description() const override;

private:
    void observeMember(PDETriggerProtocol* member);

    int m_operator = 0;
    QList<PDETriggerPtr> m_features;
};

// A complex trigger, or null when the list is empty.
std::shared_ptr<MRPDEComplexTrigger> PDEMakeComplexTrigger(int op, const QList<PDETriggerPtr>& triggers);
