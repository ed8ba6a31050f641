#include "MRPDEMainBaseController.h"
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QLabel>
#include <QCheckBox>
#include <QComboBox>

#include "PDELog.h"
#include "PDEPluginCallback.h"

#include <QTabWidget>

MRPDEMainBaseController::MRPDEMainBaseController(MRPDE_MACChangeHandlerModel* model) : m_dataModel(model) {}

MRPDEMainBaseController::~MRPDEMainBaseController()
{
    // Controllers go first so that nothing they observe outlives them, then
    // the view, wherever the dialog has put it.
    m_controllersMap.clear();
    delete m_mainView.data();
}

void MRPDEMainBaseController::registerController(const QString& identifier, const MRPDEControllerPtr& controller)
{
    if (controller)
        m_controllersMap[identifier].append(controller);
}

MRPDEControllerPtr MRPDEMainBaseController::createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
    const MRPDEControllerFactory& make, const QString& featureKey, const QString& identifier, QWidget* control)
{
    if (featureKey.isEmpty())
        return nullptr;
    PDEFeaturePtr feature = m_dataModel ? m_dataModel->featureWithKey(featureKey) : nullptr;
    if (!feature) {
        if (control)
            control->setVisible(false);
        return nullptr;
    }
    if (control)
        control->setVisible(true);
    MRPDEControllerPtr controller = make(feature, control, m_dataModel);
    registerController(identifier, controller);
    return controller;
}

void MRPDEMainBaseController::assignContolFromFeatureArrayControls(const MRPDEControllerFactory& make, const QList<PDEFeatureRow>& rows,
                                                                   const QList<QWidget*>& controls)
{
    qsizetype cursor = 0;
    for (const PDEFeatureRow& row : rows) {
        PDEFeaturePtr feature;
        for (const QString& key : row.candidates) {
            feature = m_dataModel ? m_dataModel->featureWithKey(key) : nullptr;
            if (feature)
                break;
        }
        if (!feature)
            continue;
        // A row past the last control still gets its controller: it shows
        // nothing but carries the row's triggers (resets among them).
        QWidget* control = cursor < controls.size() ? controls[cursor] : nullptr;
        registerController(row.identifier, make(feature, control, m_dataModel));
        if (control)
            ++cursor;
    }
    for (qsizetype i = cursor; i < controls.size(); ++i)
        if (controls[i])
            controls[i]->setVisible(false);
}

void MRPDEMainBaseController::resizeMainViewToFrame(const QRect& frame)
{
    _PDELog(this, QStringLiteral("resizeMainViewFrame:x,y(%f,%f) w,h(%f,%f)"), double(frame.x()), double(frame.y()),
            double(frame.width()), double(frame.height()));
    if (m_mainView) {
        // The dialog lays the view out: the new size is also its least size.
        m_mainView->setMinimumSize(frame.size());
        m_mainView->resize(frame.size());
    }
    if (!m_currentlyActive)
        return;
    _PDELog(this, QStringLiteral(":panelViewDidResize"));
    PDEPluginCallback* callback = m_dataModel ? m_dataModel->pdeCallBack() : nullptr;
    if (callback && callback->respondsToOperation(PDEPluginCallback::Operation::PanelViewDidResize))
        callback->panelViewDidResize();
}

void MRPDEMainBaseController::tabViewDidSelectTabViewItem(QTabWidget* tabView, int index)
{
    if (!tabView || index < 0)
        return;
    _PDELog(this, QStringLiteral("PDEMainBaseController (controller): didSelectTabViewItem (%@)"), tabView->tabText(index));
    const std::optional<int> rows = totalHeightOfActiveViewContentRowsInTabViewItem(tabView->widget(index));
    if (!rows)
        return;
    const int height = std::max(*rows + 55, 180);
    const QRect frame(0, 0, m_mainView ? m_mainView->width() : tabView->width(), height);
    resizeMainViewToFrame(frame);
    _PDELog(this, QStringLiteral("TabViewChangeFrame:x,y(%f,%f) w,h(%f,%f)"), double(frame.x()), double(frame.y()),
            double(frame.width()), double(frame.height()));
    tabView->setGeometry(frame);
}

std::optional<int> MRPDEMainBaseController::totalHeightOfActiveViewContentRowsInTabViewItem(QWidget*)
{
    return std::nullopt;
}

int MRPDEMainBaseController::bottomOfVisibleRows(QWidget* page)
{
    int bottom = 0;
    if (!page)
        return bottom;
    for (QWidget* w : page->findChildren<QWidget*>()) {
        if (w->objectName().isEmpty() || !w->isVisibleTo(page))
            continue;
        if (qobject_cast<QComboBox*>(w) || qobject_cast<QCheckBox*>(w) || qobject_cast<QLabel*>(w) || qobject_cast<QLineEdit*>(w)
            || qobject_cast<QDateTimeEdit*>(w))
            bottom = std::max(bottom, w->mapTo(page, QPoint(0, 0)).y() + w->height());
    }
    return bottom;
}

bool MRPDEMainBaseController::isEverythingAlright()
{
    return true;
}
