#pragma once
#include "MRPDE_MACFeature.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <memory>

class MRPDESecurityPanelController;
namespace Ui {
class PasswordJobView;
class SecureWatermarkView;
}

// The entries of the hard-copy security modes: the secure watermark (text,
// custom text, size, direction, pattern, colour, darkness) and the password
// job (a password entered twice). Choosing a watermark text applies that
// text's usual settings from the bundle's "SecureWatermarkData" table.
class MRPDEHardCopySecurityController : public QObject {
    Q_OBJECT
public:
    explicit MRPDEHardCopySecurityController(MRPDESecurityPanelController* pdeSecurityPanelController);
    ~MRPDEHardCopySecurityController() override;

    // Whether the printer offers hard-copy security.
    bool shouldDisplayTab() const;
    void configure();
    void loadSecureWatermarkView();
    void loadPasswordJobView();

    QWidget* secureWatermarkView() const { return m_secureWatermarkView; }
    QWidget* passwordJobView() const { return m_passwordJobView; }
    Ui::SecureWatermarkView* secureWatermarkUi() const { return m_secureWatermarkUi.get(); }
    Ui::PasswordJobView* passwordJobUi() const { return m_passwordJobUi.get(); }

    // Applies the chosen watermark text's settings, when the table has them.
    void currentSecureWaterMarkClicked();
    // False, after telling the user, when a password job's two entries differ.
    bool isEverythingAlright();

    static QString passwordCharacters();

private:
    MRPDE_MACChangeHandlerModel* dataModel() const;
    QString localized(const QString& key) const;
    void defaultItems();

    MRPDESecurityPanelController* _pdeSecurityPanelController;  // owns this controller
    std::unique_ptr<Ui::SecureWatermarkView> m_secureWatermarkUi;
    std::unique_ptr<Ui::PasswordJobView> m_passwordJobUi;
    QPointer<QWidget> m_secureWatermarkView;
    QPointer<QWidget> m_passwordJobView;
    QList<PDEFeaturePtr> m_currentValueObservedFeatures;
    QVariantMap m_defaultItems;
    bool m_defaultItemsRead = false;
};
