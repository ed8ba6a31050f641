#include "MRPDEStringFormatter.h"

#include "PDEStringExtension.h"

MRPDEStringFormatter::MRPDEStringFormatter(QObject* parent) : QValidator(parent) {}

MRPDEStringFormatter::~MRPDEStringFormatter()
{
    m_allowedCharacterSet = PDECharacterSet();
    m_disAllowedCharacterSet = PDECharacterSet();
}

MRPDEStringFormatter* MRPDEStringFormatter::allowedCharacterSetDisallowedCharacterSetMaxLimit(const PDECharacterSet& allowed,
                                                                                             const PDECharacterSet& disallowed,
                                                                                             qint64 maxLimit, QObject* parent)
{
    auto* formatter = new MRPDEStringFormatter(parent);
    formatter->setAllowedCharacterSet(allowed);
    formatter->setDisAllowedCharacterSet(disallowed);
    formatter->setMaximumCharacters(maxLimit);
    return formatter;
}

bool MRPDEStringFormatter::isPartialStringValid(const QString& proposed) const
{
    bool valid = true;
    // Anything left after removing the allowed characters is not allowed.
    if (!m_allowedCharacterSet.isNull() && !stringByRemovingCharactersInSet(proposed, &m_allowedCharacterSet).isEmpty())
        valid = false;
    // Removing the disallowed characters must not shorten the text.
    if (!m_disAllowedCharacterSet.isNull()
        && stringByRemovingCharactersInSet(proposed, &m_disAllowedCharacterSet).size() < proposed.size())
        valid = false;
    if (m_maximumCharacters != 0 && proposed.size() > m_maximumCharacters)
        valid = false;
    return valid;
}

QValidator::State MRPDEStringFormatter::validate(QString& input, int&) const
{
    return isPartialStringValid(input) ? Acceptable : Invalid;
}
