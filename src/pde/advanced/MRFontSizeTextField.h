#pragma once
#include "MRValidatingTextField.h"

// The watermark's font size in points, 8 to 400 (MRFontSizeFormatter); its
// stepper follows the final value.
class MRFontSizeTextField : public MRValidatingTextField {
    Q_OBJECT
public:
    explicit MRFontSizeTextField(QWidget* parent = nullptr);
    // A value of 7 or less becomes "8", above 400 "400".
    static QString correctedFontSize(const QString& text);

protected:
    QString correctedText(const QString& text) const override { return correctedFontSize(text); }
};
