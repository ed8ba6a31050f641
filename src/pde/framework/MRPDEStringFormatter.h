#pragma once
#include "PDECharacterSet.h"

#include <QValidator>

// Filters the edits of a text field: an edit is accepted only when the whole
// proposed text passes every restriction. It never rewrites the text or the
// cursor; a refused edit leaves the field as it was.
//   - allowed set: every character of the text must belong to it;
//   - disallowed set: no character of the text may belong to it;
//   - maximum: the text is at most that many UTF-16 units long (0: no limit).
// A null set imposes nothing.
class MRPDEStringFormatter : public QValidator {
    Q_OBJECT
public:
    explicit MRPDEStringFormatter(QObject* parent = nullptr);
    ~MRPDEStringFormatter() override;

    // allowedCharacterSet:disallowedCharacterSet:maxLimit:
    static MRPDEStringFormatter* allowedCharacterSetDisallowedCharacterSetMaxLimit(const PDECharacterSet& allowed,
                                                                                  const PDECharacterSet& disallowed,
                                                                                  qint64 maxLimit, QObject* parent = nullptr);

    PDECharacterSet allowedCharacterSet() const { return m_allowedCharacterSet; }
    void setAllowedCharacterSet(const PDECharacterSet& set) { m_allowedCharacterSet = set; }
    PDECharacterSet disAllowedCharacterSet() const { return m_disAllowedCharacterSet; }
    void setDisAllowedCharacterSet(const PDECharacterSet& set) { m_disAllowedCharacterSet = set; }
    qint64 maximumCharacters() const { return m_maximumCharacters; }
    void setMaximumCharacters(qint64 max) { m_maximumCharacters = max; }

    // Whether a proposed text may replace the field's text.
    bool isPartialStringValid(const QString& proposed) const;

    // QValidator: Acceptable or Invalid, the input and position untouched.
    State validate(QString& input, int& pos) const override;

private:
    PDECharacterSet m_allowedCharacterSet;
    PDECharacterSet m_disAllowedCharacterSet;
    qint64 m_maximumCharacters = 0;
};
