#pragma once
#include "MRFormatter.h"

// The booklet gutter: in inches, digits and "." and at most 4 characters
// ("0.98"); in millimetres, digits only and at most 2.
class MRGutterFormatter : public MRFormatter {
    Q_OBJECT
public:
    explicit MRGutterFormatter(QObject* parent = nullptr);
    MRGutterFormatter(bool metric, QObject* parent);
    bool metric() const { return m_metric; }
    bool isPartialStringValid(const QString& proposed) const override;

private:
    bool m_metric;
};
