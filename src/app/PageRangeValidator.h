#pragma once
#include <QValidator>

// Page ranges as CUPS takes them ("1-3,5,8-"), checked by the host's rule for
// page-ranges so the dialog and the command line agree. Blanks are allowed
// while typing and left out of the value; other characters than digits,
// '-' and ',' are refused; a range not complete or not valid is Intermediate.
class PageRangeValidator : public QValidator {
    Q_OBJECT
public:
    using QValidator::QValidator;
    State validate(QString& input, int& pos) const override;
    // The range without blanks.
    static QString normalized(const QString& input);
};
