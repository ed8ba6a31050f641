#include "MRPDESecurityPanelController.h"

#include "MRPDEHardCopySecurityController.h"
#include "MRPDESecurityController.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "ui_Security.h"

#include <QLabel>
#include <QTabWidget>

namespace {
const QString kLine = QStringLiteral("-----------------------------------");

QString hardCopyMode(MRPDE_MACChangeHandlerModel* model)
{
    const PDEFeaturePtr mode = model ? model->featureWithKey(QStringLiteral("VELHardCopySecurity")) : nullptr;
    return mode && mode->currentValue() ? mode->currentValue()->keyword() : QString();
}
}

MRPDESecurityPanelController::MRPDESecurityPanelController(MRPDE_MACChangeHandlerModel* model)
    : MRPDEMainBaseController(model), m_ui(std::make_unique<Ui::Security>())
{
    _PDELog(this, QStringLiteral("PDESecurityPanelController(control): ======================================== START Loading Security "
                                 "Panel Plugin ======================================================"));
    auto* view = new QWidget;
    m_ui->setupUi(view);
    setMainView(view);
    for (QLabel* l : view->findChildren<QLabel*>())
        if (l->text().startsWith(QLatin1String("KEY_")))
            l->setText(localized(l->text()));
    m_ui->m_tabView->setTabText(m_ui->m_tabView->indexOf(m_ui->tabViewItemSecurity), localized(QStringLiteral("Security")));
    m_securityController = std::make_unique<MRPDESecurityController>(this);
    m_hardCopySecurityController = std::make_unique<MRPDEHardCopySecurityController>(this);

    loadHardCopySecurityTab();
    loadSecurityTab();
    connect(m_ui->m_tabView, &QTabWidget::currentChanged, this,
            [this](int index) { tabViewDidSelectTabViewItem(m_ui->m_tabView, index); });
    tabViewDidSelectTabViewItem(m_ui->m_tabView, m_ui->m_tabView->currentIndex());
}

MRPDESecurityPanelController::~MRPDESecurityPanelController()
{
    for (const PDEFeaturePtr& f : std::as_const(m_currentValueObservedFeatures))
        disconnect(f.get(), nullptr, this, nullptr);
    // The controllers let go of the sub-views' controls before the sub-views go.
    controllersMap().clear();
    m_hardCopySecurityController.reset();
    m_securityController.reset();
}

QTabWidget* MRPDESecurityPanelController::tabView() const
{
    return m_ui->m_tabView;
}

QString MRPDESecurityPanelController::localized(const QString& key) const
{
    std::shared_ptr<PDEBundle> bundle = dataModel() ? dataModel()->pdeBundle() : nullptr;
    return bundle ? bundle->localizedString(key, QStringLiteral("Localizable")) : key;
}

void MRPDESecurityPanelController::removeTab(QWidget* page)
{
    const int index = m_ui->m_tabView->indexOf(page);
    if (index >= 0)
        m_ui->m_tabView->removeTab(index);
    // A removed tab's controls are gone for the life of the panel.
    page->setParent(nullptr);
    page->deleteLater();
}

bool MRPDESecurityPanelController::loadHardCopySecurityTab()
{
    _PDELog(this, QStringLiteral("PDESecurityPanelController (control): %1 loadHardCopySecurityTab %1").arg(kLine));
    auto& u = *m_ui;
    if (!m_hardCopySecurityController->shouldDisplayTab()) {
        removeTab(u.tabViewItemHardCopySecurity);
        return false;
    }
    u.m_tabView->setTabText(u.m_tabView->indexOf(u.tabViewItemHardCopySecurity), localized(QStringLiteral("Hard Copy Security")));
    const QString key = QStringLiteral("VELHardCopySecurity");
    const QString identifier = QStringLiteral("KEY_HardCopySecurity");
    createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACLabelController>(), key, identifier,
                                                                       u.hardCopySecurityLabel);
    createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACPopUpButtonController>(), key,
                                                                       identifier, u.hardCopySecurityPopUpButton);
    const PDEFeaturePtr mode = dataModel()->featureWithKey(key);
    m_currentValueObservedFeatures.append(mode);
    mode->observeCurrentValue(this, [this](MRPDE_MACFeature*) { hardCopySecurityChanged(); }, true);
    m_hardCopySecurityController->configure();
    return true;
}

bool MRPDESecurityPanelController::loadSecurityTab()
{
    if (!m_securityController->shouldDisplayTab()) {
        removeTab(m_ui->tabViewItemSecurity);
        return false;
    }
    m_securityController->configure();
    return true;
}

void MRPDESecurityPanelController::hardCopySecurityChanged()
{
    const QString mode = hardCopyMode(dataModel());
    QWidget* area = m_ui->hardCopySecurityMainView;
    QWidget* shown = nullptr;
    if (mode == QLatin1String("Secure"))
        shown = m_hardCopySecurityController->secureWatermarkView();
    else if (mode == QLatin1String("Password"))
        shown = m_hardCopySecurityController->passwordJobView();
    const bool known = shown || mode == QLatin1String("None") || mode == QLatin1String("Restriction");
    if (known) {
        // The sub-views stay the hard-copy controller's when taken out.
        for (QWidget* w : area->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            w->setParent(nullptr);
        if (shown) {
            shown->setParent(area);
            shown->move(0, 0);
            shown->show();
        }
    }
    tabViewDidSelectTabViewItem(m_ui->m_tabView, m_ui->m_tabView->currentIndex());
}

std::optional<int> MRPDESecurityPanelController::totalHeightOfActiveViewContentRowsInTabViewItem(QWidget* tabPage)
{
    if (!tabPage)
        return 0;
    if (tabPage == m_ui->tabViewItemHardCopySecurity) {
        const QString mode = hardCopyMode(dataModel());
        if (mode == QLatin1String("Secure"))
            return kHardCopyModeRowHeight + m_hardCopySecurityController->secureWatermarkView()->height();
        if (mode == QLatin1String("Password"))
            return kHardCopyModeRowHeight + m_hardCopySecurityController->passwordJobView()->height();
        return kHardCopyModeRowHeight;
    }
    // The Security tab: down to the lowest control that shows.
    return bottomOfVisibleRows(tabPage);
}

void MRPDESecurityPanelController::selectHardCopySecurityTabViewitem()
{
    // Switched after the current call returns, as the dialog expects.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_ui->m_tabView->indexOf(m_ui->tabViewItemHardCopySecurity) >= 0)
                m_ui->m_tabView->setCurrentWidget(m_ui->tabViewItemHardCopySecurity);
        },
        Qt::QueuedConnection);
}

bool MRPDESecurityPanelController::isEverythingAlright()
{
    return m_hardCopySecurityController->isEverythingAlright();
}
