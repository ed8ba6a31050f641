#include "PDETextFieldDelegate.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

PDETextFieldDelegate::PDETextFieldDelegate(QLineEdit* field, TextDidChange didChange, TextShouldEndEditing shouldEnd,
                                           QObject* parent)
    : QObject(parent), m_field(field), m_didChange(std::move(didChange)), m_shouldEnd(std::move(shouldEnd))
{
    if (!field)
        return;
    m_textEdited = connect(field, &QLineEdit::textEdited, this, [this] {
        if (m_field && m_didChange)
            m_didChange(m_field);
    });
    if (m_shouldEnd)
        field->installEventFilter(this);
}

PDETextFieldDelegate::~PDETextFieldDelegate()
{
    disconnect(m_textEdited);
    if (m_field)
        m_field->removeEventFilter(this);
}

bool PDETextFieldDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_field || !m_shouldEnd)
        return false;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool ends = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab;
        // A refused end of editing swallows the key: no focus change, no default button.
        return ends && !m_shouldEnd(m_field);
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        // Only the user moving on ends editing; switching windows, opening a
        // menu or focus moved by code does not (so two fields that both refuse
        // cannot hand the focus back and forth).
        if (reason != Qt::MouseFocusReason && reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason
            && reason != Qt::ShortcutFocusReason)
            return false;
        if (!m_shouldEnd(m_field)) {
            // The focus is already moving; take it back once the move is done.
            QPointer<QLineEdit> field = m_field;
            QMetaObject::invokeMethod(
                field,
                [field] {
                    if (field && field->isVisible() && field->isEnabled())
                        field->setFocus(Qt::OtherFocusReason);
                },
                Qt::QueuedConnection);
        }
    }
    return false;
}
