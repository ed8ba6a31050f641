#pragma once
#include "MRPDE_MACBaseController.h"

#include <QObject>
#include <QPointer>
#include <memory>

class MRPDE_MACFinishingPDEController;
class MRPDE_MACLabelController;
class MRPDEStepperController;
class QComboBox;
class QLabel;
class QLineEdit;
class PDEStepper;
namespace Ui {
class FoldingOptions;
}

// The folding group of the Finishing panel: the folding pop-up (off, C-fold,
// V-fold) and, while folding is on, the fold pattern with its picture and the
// number of sheets folded as one set (1 up to the printer's "CFoldingMAXSET"
// or "VFoldingMAXSET"). Its controllers live in the Finishing panel's map.
class MRPDEFoldingOptionsViewController : public QObject {
    Q_OBJECT
public:
    // Makes the group's view and primes the folding features (awakeFromNib).
    explicit MRPDEFoldingOptionsViewController(MRPDE_MACFinishingPDEController* finishingPDEController);
    ~MRPDEFoldingOptionsViewController() override;

    // Whether the printer folds: "FoldingOptions" with both features of
    // C-folding, or with both of V-folding.
    bool isControllerActive() const { return m_isControllerActive; }
    QWidget* foldingOptionsMainView() const { return m_foldingOptionsMainView; }
    Ui::FoldingOptions* ui() const { return m_ui.get(); }
    MRPDEStepperController* foldingDivideSetStepperController() const { return m_foldingDivideSetStepperController.get(); }

    // Binds the folding pop-up and follows the folding features.
    void configure();
    // Binds the pattern pop-up and the divide-set stepper to one fold kind.
    void assignControlsForCFolding();
    void assignControlsForVFolding();

    void foldingOptionsChanged();
    void CFoldingPatternOptionsChanged();
    void VFoldingPatternOptionsChanged();
    // Shows the pattern and divide-set rows, or collapses the group to its
    // folding row.
    void arrangeUIforFolding(bool folding);

    // The group's height with and without its pattern and divide-set rows.
    static constexpr int kExpandedHeight = 136;
    static constexpr int kCollapsedHeight = 30;

private:
    struct FoldKind {
        QString patternKey, divideSetKey, patternIdentifier, divideSetIdentifier, maxSetKey;
    };
    static const FoldKind kCFolding;
    static const FoldKind kVFolding;

    void awakeFromNib();
    void assignControlsForFoldKind(const FoldKind& kind);
    void foldingTurnedOn(const FoldKind& kind, const PDEFeaturePtr& pattern);
    void showPatternImage(const QString& foldKeyword, const PDEFeaturePtr& pattern, const QStringList& keywords, const QStringList& images);
    void setEnabledForIdentifiers(const QStringList& identifiers, bool enabled);
    void colorRangeLabel(bool enabled);
    void observe(const PDEFeaturePtr& feature, void (MRPDEFoldingOptionsViewController::*handler)());
    bool hasAttribute(const QString& key) const;

    MRPDE_MACFinishingPDEController* _finishingPDEController;  // owns this group
    MRPDE_MACChangeHandlerModel* dataModel = nullptr;
    bool m_isControllerActive = false;
    bool m_observingInitially = false;  // inside the first call of a new observation
    std::unique_ptr<Ui::FoldingOptions> m_ui;
    QPointer<QWidget> m_foldingOptionsMainView;

    std::shared_ptr<MRPDE_MACLabelController> _foldingOptionsLabelController;
    std::shared_ptr<MRPDE_MACLabelController> _foldingPatternLabelController;
    std::shared_ptr<MRPDE_MACLabelController> _foldingDivideSetLabelController;
    std::shared_ptr<MRPDEStepperController> m_foldingDivideSetStepperController;

    PDEFeaturePtr foldingOptionsFeature;
    PDEFeaturePtr CFoldingPatternFeature;
    PDEFeaturePtr CFoldingDivideSetFeature;
    PDEFeaturePtr VFoldingPatternFeature;
    PDEFeaturePtr VFoldingDivideSetFeature;
    QList<PDEFeaturePtr> m_currentValueObservedFeatures;
};
