#pragma once
#include "MRValidatingTextField.h"

// The poster's overlap: at most 1.00 inch or 25 mm (MROverlapFormatter). In
// inches the limit holds while the user types; in millimetres when editing
// ends.
class MROverlapTextField : public MRValidatingTextField {
    Q_OBJECT
public:
    explicit MROverlapTextField(QWidget* parent = nullptr);
    bool isMetric() const { return m_metric; }
    void setMetric(bool metric);
    static QString limitedOverlap(const QString& text, bool metric);

protected:
    QString limitedText(const QString& text) const override { return m_metric ? text : limitedOverlap(text, false); }
    QString correctedText(const QString& text) const override { return limitedOverlap(text, m_metric); }

private:
    bool m_metric;
};
