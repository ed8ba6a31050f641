#pragma once
#include "MRValidatingTextField.h"

// The booklet's gutter: at most 0.98 inch or 25 mm (MRGutterFormatter). In
// inches the limit holds while the user types; in millimetres when editing
// ends.
class MRBookletGutterTextField : public MRValidatingTextField {
    Q_OBJECT
public:
    explicit MRBookletGutterTextField(QWidget* parent = nullptr);
    bool isMetric() const { return m_metric; }
    // Switches the unit system (and the formatter with it).
    void setMetric(bool metric);
    static QString limitedGutter(const QString& text, bool metric);

protected:
    QString limitedText(const QString& text) const override { return m_metric ? text : limitedGutter(text, false); }
    QString correctedText(const QString& text) const override { return limitedGutter(text, m_metric); }

private:
    bool m_metric;
};
