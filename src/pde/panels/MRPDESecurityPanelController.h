#pragma once
#include "MRPDEMainBaseController.h"

#include <memory>

class MRPDEHardCopySecurityController;
class MRPDESecurityController;
class QTabWidget;
namespace Ui {
class Security;
}

// The Security panel's view: a "Security" tab for secure release (the job
// waits at the printer for the user's ID) and a "Hard Copy Security" tab
// whose mode (secure watermark, password job, copy restriction) brings in
// that mode's own entries. A tab the printer has no options for is left out.
class MRPDESecurityPanelController : public MRPDEMainBaseController {
    Q_OBJECT
public:
    explicit MRPDESecurityPanelController(MRPDE_MACChangeHandlerModel* model);  // initWithModel:
    ~MRPDESecurityPanelController() override;

    bool loadHardCopySecurityTab();
    bool loadSecurityTab();

    Ui::Security* ui() const { return m_ui.get(); }
    QTabWidget* tabView() const;
    MRPDESecurityController* securityController() const { return m_securityController.get(); }
    MRPDEHardCopySecurityController* hardCopySecurityController() const { return m_hardCopySecurityController.get(); }

    // Brings the Hard Copy Security tab to the front once the current call
    // to the panel has returned.
    void selectHardCopySecurityTabViewitem();
    // The hard-copy area shows the sub-view of the chosen mode.
    void hardCopySecurityChanged();

    std::optional<int> totalHeightOfActiveViewContentRowsInTabViewItem(QWidget* tabPage) override;
    // The password job's two entries must agree.
    bool isEverythingAlright() override;
    // The same check before printing: the host stops a job only on a
    // refused print check, so a mismatch is caught there, with its alert.
    bool respondsToShouldPrint() const override { return true; }
    bool shouldPrint() override { return isEverythingAlright(); }

    static constexpr int kHardCopyModeRowHeight = 46;

    QString localized(const QString& key) const;

private:
    void removeTab(QWidget* page);

    std::unique_ptr<Ui::Security> m_ui;
    std::unique_ptr<MRPDESecurityController> m_securityController;
    std::unique_ptr<MRPDEHardCopySecurityController> m_hardCopySecurityController;
    QList<PDEFeaturePtr> m_currentValueObservedFeatures;
};
