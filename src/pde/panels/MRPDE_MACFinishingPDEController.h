#pragma once
#include "MRPDEMainBaseController.h"

#include <memory>

class MRPDEFoldingOptionsViewController;
namespace Ui {
class Finishing;
}

// The Finishing panel's view: a column of finisher options (sorting,
// stapling, punching, output mode and bin) that closes up over the options
// the printer lacks, and below it the folding group when the printer folds.
// A staple or punch position can be chosen only while stapling or punching
// is on. The view's height follows the rows that show.
class MRPDE_MACFinishingPDEController : public MRPDEMainBaseController {
    Q_OBJECT
public:
    explicit MRPDE_MACFinishingPDEController(MRPDE_MACChangeHandlerModel* model);  // initWithModel:
    ~MRPDE_MACFinishingPDEController() override;

    bool loadTabOne();
    Ui::Finishing* ui() const { return m_ui.get(); }
    MRPDEFoldingOptionsViewController* foldingOptionsViewController() const { return m_foldingOptionsViewController.get(); }

    // Places the folding group below the last row that shows and gives the
    // view the height of what shows.
    void recomputeTheUIHeightAndAll();
    // The height of the rows the printer has no option for.
    int totalHeightOfInActiveViewContentRows() const;
    bool isEverythingAlright() override { return true; }

    static constexpr int kRowHeight = 30;
    static constexpr int kTopMargin = 14;
    static constexpr int kBottomMargin = 14;

private:
    void observeValueForKeyPath(MRPDE_MACFeature* feature);
    void setDisableTriggerForIdentifier(const QString& identifier, const QString& featureKey, const QString& offKeyword);
    QList<QWidget*> popUpButtons() const;

    std::unique_ptr<Ui::Finishing> m_ui;
    std::unique_ptr<MRPDEFoldingOptionsViewController> m_foldingOptionsViewController;
    QList<PDEFeaturePtr> m_currentValueObservedFeatures;
};
