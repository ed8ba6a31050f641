#pragma once
#include "MRPDEAttribute.h"
#include "MRPDE_MACFeature.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>
#include <memory>

struct ppd_file_s;
class PDEBundle;
class PDEPluginCallback;
class PMPrintSettings;
class PMPrintSession;
class PMPageFormat;
class PMPrinter;

// The option model behind the model-driven panels: hands out features and
// attributes by key (made from the PPD on first request), leaves out choices
// that the installed hardware rules out, adds the features the PPD lacks,
// sends every change to the dialog for approval and saves and restores all
// values through the print settings.
class MRPDE_MACChangeHandlerModel : public QObject {
    Q_OBJECT
public:
    MRPDE_MACChangeHandlerModel(std::shared_ptr<PDEBundle> bundle, PDEPluginCallback* callback);  // initWithBundle:pdeCallback:
    ~MRPDE_MACChangeHandlerModel() override;

    PDEPluginCallback* pdeCallBack() const { return m_pdeCallBack; }
    std::shared_ptr<PDEBundle> pdeBundle() const { return m_pdeBundle; }
    PMPrintSettings* printSettings();
    ppd_file_s* ppd() const { return m_ppdFile; }
    void setPpd(ppd_file_s* ppd) { m_ppdFile = ppd; }
    const QList<PDEFeaturePtr>& features() const { return m_features; }
    const QList<PDEAttributePtr>& ppdAttributes() const { return m_ppdAttributes; }

    PDEFeaturePtr featureWithKey(const QString& key);
    PDEAttributePtr attributeWithKey(const QString& key);

    bool willChangePPDOptionKeyValue(const QString& option, const QString& choice);
    void PPDOptionKeyValueDidChange(const QString& option, const QString& choice);

    bool isInstallableOptionConstrainedWithChoice(const QString& choice, const QString& option) const;
    void addFeatureToInstallableOptionDictionary(const QString& option, const QString& choice);

    bool restoreValuesAndReturnError(QString* error);
    bool saveValuesAndReturnError(QString* error);

    // The folder of the user-defined colour profiles: "%@" is replaced by the
    // manufacturer and then by the model's nick name. The default lies under
    // /usr/share; PRINT_PANELS_VCMS_FOLDER or this setter replace it.
    static QString colorProfileFolderFormat();
    static void setColorProfileFolderFormat(const QString& format);

private:
    void initializeInstallableOptionsConstraints();
    void makeCustomFeatures();
    void makeUserDefinedColorFeature();
    QString localizedString(const QString& key) const;

    PDEPluginCallback* m_pdeCallBack = nullptr;
    std::shared_ptr<PDEBundle> m_pdeBundle;
    PMPrintSession* m_printSession = nullptr;
    PMPrintSettings* m_printSettings = nullptr;
    PMPageFormat* m_pageFormat = nullptr;
    PMPrinter* m_printer = nullptr;
    ppd_file_s* m_ppdFile = nullptr;
    QList<PDEFeaturePtr> m_features;
    QList<PDEAttributePtr> m_ppdAttributes;
    QHash<QString, QStringList> m_installableOptionsDictionary;
};
