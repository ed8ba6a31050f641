#pragma once
#include <QValidator>

// The base of the panels' validating formatters: while the user types, each
// proposed text is accepted whole or refused whole (the field then keeps what
// it had); the text itself is never rewritten. Formatters that depend on the
// unit system take it at construction (the user's by default).
class MRFormatter : public QValidator {
    Q_OBJECT
public:
    explicit MRFormatter(QObject* parent = nullptr);

    // Whether the proposed text may stand.
    virtual bool isPartialStringValid(const QString& proposed) const = 0;
    // Text and object value are the same text.
    QString getObjectValueForString(const QString& text) const { return text; }
    QString stringForObjectValue(const QString& value) const { return value; }

    // QValidator: Acceptable or Invalid; input and cursor are left alone.
    State validate(QString& input, int& pos) const override;

    // The number a text starts with, as C's atoi reads it: leading blanks, an
    // optional sign, then digits; 0 when there are none. Saturates at the
    // limits of a 32-bit integer.
    static int intValue(const QString& text);
    // The same for a decimal number ("0.16", ".5", "1."); 0 when there is none.
    static double doubleValue(const QString& text);
    // Whether every character of text is a decimal digit 0-9 (true for "").
    static bool onlyDigits(const QString& text, const QString& extra = QString());
};
