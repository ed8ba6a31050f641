#pragma once
#include "MRValidatingTextField.h"

// The booklet's sheets per set, 1 to the printer's maximum per set
// (MRSheetPerSetFormatter).
class MRSheetPerSetTextField : public MRValidatingTextField {
    Q_OBJECT
public:
    explicit MRSheetPerSetTextField(QWidget* parent = nullptr);
    // The PPD's maximum as text; none known means 15.
    void setMaximumPerSet(const QString& maximum) { m_maximum = maximum; }
    QString maximumPerSet() const { return m_maximum; }
    // A value above the maximum becomes the maximum, one below 1 becomes "1".
    static QString correctedSheets(const QString& text, const QString& maximum);

protected:
    QString correctedText(const QString& text) const override;
    void controlTextDidChange() override;

private:
    QString m_maximum;
};
