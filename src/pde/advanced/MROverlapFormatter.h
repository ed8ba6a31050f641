#pragma once
#include "MRFormatter.h"

// The poster overlap: in inches, digits and "." and at most 4 characters
// ("0.98"); in millimetres, digits only and at most 2.
class MROverlapFormatter : public MRFormatter {
    Q_OBJECT
public:
    explicit MROverlapFormatter(QObject* parent = nullptr);
    MROverlapFormatter(bool metric, QObject* parent);
    bool metric() const { return m_metric; }
    bool isPartialStringValid(const QString& proposed) const override;

private:
    bool m_metric;
};
