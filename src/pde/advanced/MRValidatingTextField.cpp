#include "MRValidatingTextField.h"

#include "MRFormatter.h"
#include "PDEStepper.h"

#include <QtMath>

MRValidatingTextField::MRValidatingTextField(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::editingFinished, this, &MRValidatingTextField::controlTextDidEndEditing);
    connect(this, &QLineEdit::textEdited, this, [this] { controlTextDidChange(); });
}

void MRValidatingTextField::setCompanion(PDEStepper* stepper, int scale)
{
    m_companion = stepper;
    m_scale = qMax(1, scale);
}

void MRValidatingTextField::syncCompanion()
{
    if (m_companion)
        m_companion->setValue(qRound(MRFormatter::doubleValue(text()) * m_scale));
}

void MRValidatingTextField::controlTextDidBeginEditing()
{
    m_textAtBeginEditing = text();
}

void MRValidatingTextField::focusInEvent(QFocusEvent* event)
{
    controlTextDidBeginEditing();
    QLineEdit::focusInEvent(event);
}

void MRValidatingTextField::controlTextDidChange()
{
    const QString limited = limitedText(text());
    if (limited != text())
        setText(limited);
    syncCompanion();
}

void MRValidatingTextField::controlTextDidEndEditing()
{
    const QString corrected = correctedText(text());
    if (corrected != text())
        setText(corrected);
    syncCompanion();
}
