#include "PDEJobHandlingRules.h"

#include "MRFormatter.h"
#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEStringExtension.h"

namespace {
const QString kLettersAndDigits = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz1234567890");
const QString kUserIDExtras = QStringLiteral("`-~!#$%^&()_{}'. ");
const QString kPrintPasswordExtras = QStringLiteral("`-=@~!#$%&*()[]?+_:|{};'^,./");
const QString kAccountPasswordExtras = QStringLiteral(" \\\"<>");
const QString kJobNameForbidden = QStringLiteral("\\/:*?\"<>|\n");
constexpr qint64 kIDPartMaximum = 64;
constexpr qint64 kAccountIDDefaultMaximum = 129;
}

PDEJobHandlingRules::PDEJobHandlingRules(MRPDE_MACChangeHandlerModel* model) : m_model(model)
{
    const PDEAttributePtr extra = model ? model->attributeWithKey(QStringLiteral("AccountExtraAllowedCharacters")) : nullptr;
    if (extra)
        m_extraAllowedCharacters = extra->attributeValue();
}

PDECharacterSet PDEJobHandlingRules::alphanumericSet()
{
    return PDECharacterSet::fromString(kLettersAndDigits);
}

PDECharacterSet PDEJobHandlingRules::userIDSet()
{
    return PDECharacterSet::fromString(kLettersAndDigits + kUserIDExtras);
}

PDECharacterSet PDEJobHandlingRules::printPasswordSet()
{
    return PDECharacterSet::fromString(kLettersAndDigits + kPrintPasswordExtras);
}

PDECharacterSet PDEJobHandlingRules::accountPasswordSet()
{
    return PDECharacterSet::fromString(kLettersAndDigits + kPrintPasswordExtras + kAccountPasswordExtras);
}

PDECharacterSet PDEJobHandlingRules::jobNameForbiddenSet()
{
    return PDECharacterSet::fromString(kJobNameForbidden);
}

PDECharacterSet PDEJobHandlingRules::accountIDSet() const
{
    return PDECharacterSet::fromString(kLettersAndDigits + kUserIDExtras + QLatin1Char('\\') + m_extraAllowedCharacters);
}

bool PDEJobHandlingRules::rangeIsAlphanumeric(const QString& rangeAttribute) const
{
    const PDEAttributePtr range = m_model ? m_model->attributeWithKey(rangeAttribute) : nullptr;
    return range && range->attributeValue().contains(QLatin1String("Alphanumeric"));
}

qint64 PDEJobHandlingRules::lengthAttribute(const QString& key, qint64 fallback) const
{
    const PDEAttributePtr a = m_model ? m_model->attributeWithKey(key) : nullptr;
    if (!a)
        return fallback;
    // The leading integer of the text, as "8" or " 8 characters"; a limit
    // that is not a number, or not positive, limits nothing.
    return qMax(0, MRFormatter::intValue(a->attributeValue()));
}

qint64 PDEJobHandlingRules::accountIDMaximum() const
{
    return lengthAttribute(QStringLiteral("AccountMaxIDLength"), kAccountIDDefaultMaximum);
}

bool PDEJobHandlingRules::UserIDValidationCheckForString(const QString& s)
{
    const qsizetype slash = s.indexOf(QLatin1Char('\\'), 0, Qt::CaseInsensitive);
    if (slash < 0)
        return !s.isEmpty() && s.size() <= kIDPartMaximum;
    const qsizetype userLength = s.size() - slash - 1;
    return slash <= kIDPartMaximum && userLength >= 1 && userLength <= kIDPartMaximum;
}

bool PDEJobHandlingRules::textFollows(const QString& text, const PDECharacterSet& set, qint64 min, qint64 max)
{
    if ((min > 0 && text.size() < min) || (max > 0 && text.size() > max))
        return false;
    return stringByRemovingCharactersInSet(text, &set).isEmpty();
}

bool PDEJobHandlingRules::accountIDAllowed(const QString& text) const
{
    return textFollows(text, accountIDSet(), 0, accountIDMaximum()) && UserIDValidationCheckForString(text);
}

bool PDEJobHandlingRules::accountPasswordAllowed(const QString& text, const QString& rangeAttribute) const
{
    const PDECharacterSet set = rangeIsAlphanumeric(rangeAttribute) ? alphanumericSet() : accountPasswordSet();
    return !text.isEmpty()
           && textFollows(text, set, lengthAttribute(QStringLiteral("AccountMinLength")), lengthAttribute(QStringLiteral("AccountMaxLength")));
}

bool PDEJobHandlingRules::newPINAllowed(const QString& text) const
{
    return !text.isEmpty()
           && textFollows(text, PDECharacterSet::decimalDigits(), lengthAttribute(QStringLiteral("NewPINMinLength")),
                          lengthAttribute(QStringLiteral("NewPINMaxLength")));
}
