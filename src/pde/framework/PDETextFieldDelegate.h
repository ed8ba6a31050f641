#pragma once
#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <functional>

// A text field's delegate: tells its owner when the user changed the text
// (typing, deleting, pasting, an input method; not a change made by code)
// and asks it whether editing may end. Editing ends with Return, Enter, Tab,
// Back-Tab or when the user moves the focus away (click, shortcut); when the owner answers
// no, the key is swallowed or the focus is given back, so the user stays in
// the field.
class PDETextFieldDelegate : public QObject {
    Q_OBJECT
public:
    using TextDidChange = std::function<void(QLineEdit*)>;
    using TextShouldEndEditing = std::function<bool(QLineEdit*)>;

    // The delegate lives as long as its parent; it stops working when the
    // field goes away. A null shouldEnd lets editing always end.
    PDETextFieldDelegate(QLineEdit* field, TextDidChange didChange, TextShouldEndEditing shouldEnd, QObject* parent);
    ~PDETextFieldDelegate() override;

    QLineEdit* field() const { return m_field; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QLineEdit> m_field;
    TextDidChange m_didChange;
    TextShouldEndEditing m_shouldEnd;
    QMetaObject::Connection m_textEdited;
};
