#pragma once
#include "MRPDE_MACBaseController.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QStringList>
#include <optional>

class QTabWidget;

// One row of like controls: an identifier ("KEY_…", also the key of the
// controllers map and of the row's label text) and the option keywords that
// may fill it, in order of preference.
struct PDEFeatureRow {
    QString identifier;
    QStringList candidates;
};

// The base of the model-driven panels' view controllers: holds the panel's
// main view and the controllers map (identifier to the controllers made for
// it), binds controls to features and resizes the view.
class MRPDEMainBaseController : public QObject {
    Q_OBJECT
public:
    explicit MRPDEMainBaseController(MRPDE_MACChangeHandlerModel* model);  // initWithModel:
    ~MRPDEMainBaseController() override;

    MRPDE_MACChangeHandlerModel* dataModel() const { return m_dataModel; }
    QWidget* mainView() const { return m_mainView; }
    void setMainView(QWidget* view) { m_mainView = view; }
    bool currentlyActive() const { return m_currentlyActive; }
    void setCurrentlyActive(bool active) { m_currentlyActive = active; }
    QMap<QString, QList<MRPDEControllerPtr>>& controllersMap() { return m_controllersMap; }
    // The controllers made under an identifier (none: an empty list).
    QList<MRPDEControllerPtr> controllersForIdentifier(const QString& identifier) const
    {
        return m_controllersMap.value(identifier);
    }

    // Binds one control to the feature of key: shows the control and
    // registers its controller under identifier, or hides the control when
    // the model has no such feature.
    MRPDEControllerPtr createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(const MRPDEControllerFactory& make,
                                                                                         const QString& featureKey,
                                                                                         const QString& identifier,
                                                                                         QWidget* control);
    // Binds a column of like controls to rows: each row with an available
    // feature takes the next control; controls left over are hidden.
    void assignContolFromFeatureArrayControls(const MRPDEControllerFactory& make, const QList<PDEFeatureRow>& rows,
                                              const QList<QWidget*>& controls);
    // Gives the main view the size of frame and, while the panel is shown,
    // asks the dialog to lay itself out again.
    void resizeMainViewToFrame(const QRect& frame);
    // Resizes the panel to the selected tab's visible rows (at least 180 points).
    void tabViewDidSelectTabViewItem(QTabWidget* tabView, int index);

    // Panels with tabs answer the height of a tab's visible rows.
    virtual std::optional<int> totalHeightOfActiveViewContentRowsInTabViewItem(QWidget* tabPage);
    // Where a page's rows end: the bottom of its lowest named control (pop-up,
    // check box, label, text field, date) that the panel lets show; 0 for none.
    static int bottomOfVisibleRows(QWidget* page);
    // Whether the panel's entries are valid for saving; base: yes.
    virtual bool isEverythingAlright();
    // Panels with print checks answer true here and check in shouldPrint().
    virtual bool respondsToShouldPrint() const { return false; }
    virtual bool shouldPrint() { return true; }

protected:
    void registerController(const QString& identifier, const MRPDEControllerPtr& controller);

private:
    MRPDE_MACChangeHandlerModel* m_dataModel;
    QPointer<QWidget> m_mainView;
    QMap<QString, QList<MRPDEControllerPtr>> m_controllersMap;
    bool m_currentlyActive = false;
};

// Adapts a controller class's factory to the generic factory type.
template <typename Controller>
MRPDEControllerFactory PDEControllerClass()
{
    return [](const PDEFeaturePtr& f, QWidget* c, MRPDE_MACChangeHandlerModel* m) -> MRPDEControllerPtr {
        return Controller::initiateControllerForFeatureWithControlModel(f, c, m);
    };
}
