#pragma once
#include "MRPDEMainBaseController.h"

#include <memory>

class QTabWidget;
namespace Ui {
class GraphicsAndPaper;
}

// The Graphics/Paper panel's view: four tabs (Quality, Color, Levels, Paper)
// whose rows show whichever of their options the printer has, kept
// consistent by the document-type, media-type and colour-model rules.
class MRPDE_MACGraphicsPaperController : public MRPDEMainBaseController {
    Q_OBJECT
public:
    explicit MRPDE_MACGraphicsPaperController(MRPDE_MACChangeHandlerModel* model);  // initWithModel:
    ~MRPDE_MACGraphicsPaperController() override;

    bool loadTabOne();
    bool loadTabTwo();
    bool loadTabThree();
    bool loadTabFour();

    QTabWidget* tabView() const;
    Ui::GraphicsAndPaper* ui() const { return m_ui.get(); }
    qint64 numberOfUnusedCheckBoxes() const { return m_numberOfUnusedCheckBoxes; }

    // The y at which the Preferred Color view goes: 10 points below the
    // last of the controls that is not hidden; 0 when all are hidden.
    int yOriginAfterRecomputingForPreferredColorViewWithRefTo(const QList<QWidget*>& controls) const;
    std::optional<int> totalHeightOfActiveViewContentRowsInTabViewItem(QWidget* tabPage) override;
    bool isEverythingAlright() override { return true; }

private:
    void observeValueForKeyPath(MRPDE_MACFeature* feature);
    void observeFeature(const PDEFeaturePtr& feature, bool initial);
    bool hasAnyFeature(const QStringList& keys);
    void removeTab(QWidget* page);
    void setTabLabel(QWidget* page, const QString& key);
    void localizeRowLabels(QWidget* root);
    void applyTriggers();
    void setTriggers(const QStringList& identifiers, const PDETriggerPtr& trigger, bool disable, bool reset, bool hide);
    void resetControllers(const QStringList& identifiers);
    void logTabEnd(const QString& number);
    QString localized(const QString& key) const;

    std::unique_ptr<Ui::GraphicsAndPaper> m_ui;
    QList<PDEFeaturePtr> m_currentValueObservedFeatures;
    qint64 m_numberOfUnusedCheckBoxes = 0;
};
