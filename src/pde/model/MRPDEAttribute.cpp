#include "MRPDEAttribute.h"

#include "MRPDE_MACChangeHandlerModel.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDELog.h"
#include "PDESecrets.h"
#include "PDEUserInfo.h"
#include "PMPrintSettings.h"

#include <cups/ppd.h>

PDEAttributePtr MRPDEAttribute::attributeWithppdAttribute(ppd_attr_t* attr, MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDEAttribute>(attr, model);
}

MRPDEAttribute::MRPDEAttribute(ppd_attr_t* attr, MRPDE_MACChangeHandlerModel* model)
    : m_ppdAttribute(attr), m_modelDelegate(model)
{
    restoreValues();
}

void MRPDEAttribute::restoreValues()
{
    if (m_ppdAttribute) {
        m_keyword = QString::fromUtf8(m_ppdAttribute->name);
        m_attributeValue = QString::fromUtf8(m_ppdAttribute->value ? m_ppdAttribute->value : "");
        return;
    }
    QString value = QLatin1String("");
    const int status = m_modelDelegate ? PMPrintSettingsGetValue(m_modelDelegate->printSettings(), m_keyword, &value)
                                       : int(kPMInvalidParameter);
    if (status != kPMNoError)
        _PDELog(this, QStringLiteral("PDEAttribute: Error::(%@) Unable to restore ppdAttribute(%@)"), this, m_keyword);
    if (!value.isNull())
        m_attributeValue = value;
}

void MRPDEAttribute::saveValues()
{
    if (!m_isPrintSetting || m_ppdAttribute || !m_modelDelegate)
        return;
    PMPrintSettings* settings = m_modelDelegate->printSettings();
    if (PMPrintSettingsSetValue(settings, m_keyword, m_attributeValue, false) != kPMNoError)
        _PDELog(this, QStringLiteral("PDE_MACFeature: saveValues failed for keyword(%@) currentValue(%@) "), m_keyword,
                PDESecrets::forLog(m_keyword, m_attributeValue));
    if (MRPDE_MACFirstEventHandler::debug()) {
        QString readBack;
        if (PMPrintSettingsGetValue(settings, m_keyword, &readBack) == kPMNoError)
            PDENSLog(QStringLiteral("SavedValuesPDEAttribute: keyword(%@) value(%@)"), m_keyword, PDESecrets::loggable(m_keyword, readBack));
        else
            PDENSLog(QStringLiteral("Error::Unable to find ppdAttribute(%@)"), m_keyword);
    }
}

PDEAttributePtr MRPDEAttribute::localizedAttribute() const
{
    const QStringList languages = PDEUserInfo::preferredLanguages();
    if (languages.isEmpty() || !m_modelDelegate)
        return nullptr;
    QString code = languages.first();
    if (code.startsWith(QLatin1String("zh-Hant")))
        code = QStringLiteral("zh_TW");
    else if (code.startsWith(QLatin1String("zh-Hans")))
        code = QStringLiteral("zh_CN");
    // Linux names languages with a region ("de-DE"); PPDs name them "de_DE" or "de".
    code.replace(QLatin1Char('-'), QLatin1Char('_'));
    PDEAttributePtr found = m_modelDelegate->attributeWithKey(code + QLatin1Char('.') + m_keyword);
    if (!found && code.contains(QLatin1Char('_')))
        found = m_modelDelegate->attributeWithKey(code.section(QLatin1Char('_'), 0, 0) + QLatin1Char('.') + m_keyword);
    return found;
}

QString MRPDEAttribute::description() const
{
    return PDEStringWithFormat(QStringLiteral("%@: K(%@) V(%@)"),
                               {PDEBaseDescription("MRPDEAttribute", this), PDEDescribe(m_keyword), PDEDescribe(m_attributeValue)});
}
