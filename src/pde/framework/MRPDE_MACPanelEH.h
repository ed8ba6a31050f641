#pragma once
#include "PDEPanel.h"

#include <QStringList>
#include <memory>

class PDEBundle;
class MRPDE_MACChangeHandlerModel;
class MRPDEMainBaseController;

// A model-driven panel as the dialog sees it: answers the panel protocol on
// top of the shared model and owns the panel's view controller. Each panel
// differs only in its description (kind, name, help page, summary options)
// and its controller.
class MRPDE_MACPanelEH : public PDEPanel {
public:
    struct Description {
        QString kindSuffix;            // appended to the bundle identifier
        QString nameKey;               // localization key of the name
        QString nameLogFormat;         // log line with the name
        QString summaryLogFormat;      // log line with the summary
        QString helpPage;              // page of the help book
        QStringList summaryKeywords;   // options listed in the summary, in order
    };

    MRPDE_MACPanelEH(std::shared_ptr<PDEBundle> bundle, std::shared_ptr<MRPDE_MACChangeHandlerModel> model,
                     std::unique_ptr<MRPDEMainBaseController> controller, Description description);
    ~MRPDE_MACPanelEH() override;

    std::shared_ptr<PDEBundle> pdeBundle() const { return m_pdeBundle; }
    std::shared_ptr<MRPDE_MACChangeHandlerModel> dataModel() const { return m_dataModel; }
    MRPDEMainBaseController* controller() const { return m_controller.get(); }

    QString panelKind() override;
    QString panelName() override;
    QWidget* panelView() override;
    bool willShow() override;
    bool shouldHide() override;
    bool respondsToShouldPrint() const override;
    bool shouldPrint() override;
    QVariantMap summaryInfo() override;
    QStringList supportedPPDOptionKeys() override;
    bool restoreValuesAndReturnError(QString* error) override;
    bool saveValuesAndReturnError(QString* error) override;
    void PPDOptionKeyValueDidChange(const QString& option, const QString& choice) override;
    bool shouldShowHelp() override;

private:
    std::shared_ptr<PDEBundle> m_pdeBundle;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> m_dataModel;
    std::unique_ptr<MRPDEMainBaseController> m_controller;
    Description m_description;
};
