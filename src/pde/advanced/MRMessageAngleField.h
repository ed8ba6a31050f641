#pragma once
#include "MRValidatingTextField.h"

// The watermark's free angle in degrees, -90 to 90 (MRAngleFormatter).
class MRMessageAngleField : public MRValidatingTextField {
    Q_OBJECT
public:
    explicit MRMessageAngleField(QWidget* parent = nullptr);
    // A lone "-" becomes "0", a value below -90 "-90", above 90 "90".
    static QString correctedAngle(const QString& text);

protected:
    QString correctedText(const QString& text) const override { return correctedAngle(text); }
};
