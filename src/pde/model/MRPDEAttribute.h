#pragma once
#include <QString>
#include <memory>

struct ppd_attr_s;
class MRPDE_MACChangeHandlerModel;

// One PPD attribute, or a print-settings value that has no PPD option and is
// saved under its keyword.
class MRPDEAttribute {
public:
    static std::shared_ptr<MRPDEAttribute> attributeWithppdAttribute(ppd_attr_s* attr, MRPDE_MACChangeHandlerModel* model);
    MRPDEAttribute() = default;
    MRPDEAttribute(ppd_attr_s* attr, MRPDE_MACChangeHandlerModel* model);

    QString keyword() const { return m_keyword; }
    void setKeyword(const QString& k) { m_keyword = k; }
    QString attributeValue() const { return m_attributeValue; }
    void setAttributeValue(const QString& v) { m_attributeValue = v; }
    bool isPrintSetting() const { return m_isPrintSetting; }
    void setIsPrintSetting(bool b) { m_isPrintSetting = b; }
    MRPDE_MACChangeHandlerModel* modelDelegate() const { return m_modelDelegate; }
    void setModelDelegate(MRPDE_MACChangeHandlerModel* m) { m_modelDelegate = m; }

    void saveValues();
    void restoreValues();
    // The PPD's translation of this attribute for the user's language ("de.KEY").
    std::shared_ptr<MRPDEAttribute> localizedAttribute() const;

    QString description() const;

private:
    QString m_keyword;
    QString m_attributeValue;
    ppd_attr_s* m_ppdAttribute = nullptr;
    bool m_isPrintSetting = false;
    MRPDE_MACChangeHandlerModel* m_modelDelegate = nullptr;
};

using PDEAttributePtr = std::shared_ptr<MRPDEAttribute>;
