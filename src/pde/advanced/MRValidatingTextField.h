#pragma once
#include "PDEStepper.h"

#include <QLineEdit>
#include <QPointer>

// The base of the panels' validating text fields: the field installs its
// formatter, remembers the text when editing begins, may limit the value
// while the user types and corrects it when editing ends (Return, Enter or
// the focus leaving), and mirrors its value into a companion stepper.
class MRValidatingTextField : public QLineEdit {
    Q_OBJECT
public:
    explicit MRValidatingTextField(QWidget* parent = nullptr);

    // The stepper that follows the field; `scale` stepper units make one unit
    // of the field (100 for a field in hundredths of an inch).
    void setCompanion(PDEStepper* stepper, int scale = 1);
    PDEStepper* companion() const { return m_companion; }
    int companionScale() const { return m_scale; }
    // Sets the stepper from the field's value.
    void syncCompanion();

    QString textAtBeginEditing() const { return m_textAtBeginEditing; }
    // The end-of-editing correction; also run by the field itself.
    void controlTextDidEndEditing();

protected:
    // The text when editing ends; unchanged by default.
    virtual QString correctedText(const QString& text) const { return text; }
    // The text after a change by the user; unchanged by default.
    virtual QString limitedText(const QString& text) const { return text; }
    virtual void controlTextDidChange();
    void controlTextDidBeginEditing();
    void focusInEvent(QFocusEvent* event) override;

private:
    QPointer<PDEStepper> m_companion;
    int m_scale = 1;
    QString m_textAtBeginEditing;
};
