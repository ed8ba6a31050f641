#include "MRPDEFoldingOptionsViewController.h"

#include "MRPDEStepperController.h"
#include "MRPDE_MACFinishingPDEController.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "PDEBundle.h"
#include "PDELazyPicture.h"
#include "PDELog.h"
#include "PDEStepper.h"
#include "ui_FoldingOptions.h"

#include <QApplication>

const MRPDEFoldingOptionsViewController::FoldKind MRPDEFoldingOptionsViewController::kCFolding{
    QStringLiteral("CFoldingPattern"), QStringLiteral("CFoldingDividedSet"), QStringLiteral("KEY_CFoldingPattern"),
    QStringLiteral("KEY_CFoldingDivideSet"), QStringLiteral("CFoldingMAXSET")};
const MRPDEFoldingOptionsViewController::FoldKind MRPDEFoldingOptionsViewController::kVFolding{
    QStringLiteral("VFoldingPattern"), QStringLiteral("VFoldingDividedSet"), QStringLiteral("KEY_VFoldingPattern"),
    QStringLiteral("KEY_VFoldingDivideSet"), QStringLiteral("VFoldingMAXSET")};

MRPDEFoldingOptionsViewController::MRPDEFoldingOptionsViewController(MRPDE_MACFinishingPDEController* finishingPDEController)
    : _finishingPDEController(finishingPDEController), m_ui(std::make_unique<Ui::FoldingOptions>())
{
    auto* view = new QWidget;
    m_ui->setupUi(view);
    m_foldingOptionsMainView = view;
    // No picture until a pattern is chosen.
    m_ui->_foldingOptionsImageView->setProperty("imageName", QString());
    awakeFromNib();
}

MRPDEFoldingOptionsViewController::~MRPDEFoldingOptionsViewController()
{
    for (const PDEFeaturePtr& f : std::as_const(m_currentValueObservedFeatures))
        disconnect(f.get(), nullptr, this, nullptr);
    // Placed in the panel's view, the group goes with it; otherwise it is ours.
    if (m_foldingOptionsMainView && !m_foldingOptionsMainView->parent())
        delete m_foldingOptionsMainView.data();
}

void MRPDEFoldingOptionsViewController::awakeFromNib()
{
    dataModel = _finishingPDEController ? _finishingPDEController->dataModel() : nullptr;
    if (!dataModel)
        return;
    foldingOptionsFeature = dataModel->featureWithKey(QStringLiteral("FoldingOptions"));
    CFoldingPatternFeature = dataModel->featureWithKey(kCFolding.patternKey);
    CFoldingDivideSetFeature = dataModel->featureWithKey(kCFolding.divideSetKey);
    VFoldingPatternFeature = dataModel->featureWithKey(kVFolding.patternKey);
    VFoldingDivideSetFeature = dataModel->featureWithKey(kVFolding.divideSetKey);
    // The divide-set numbers are free text starting at one set.
    for (const PDEFeaturePtr& f : {CFoldingDivideSetFeature, VFoldingDivideSetFeature}) {
        if (!f)
            continue;
        f->setIsCurrentValueAPPDChoice(false);
        f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(QStringLiteral("1"), QStringLiteral("1")));
        f->setDefaultValue(PDE_MACChoice::choiceWithKeywordDisplayString(QStringLiteral("1"), QStringLiteral("1")));
    }
    m_isControllerActive = foldingOptionsFeature
                           && ((CFoldingPatternFeature && CFoldingDivideSetFeature) || (VFoldingPatternFeature && VFoldingDivideSetFeature));
}

bool MRPDEFoldingOptionsViewController::hasAttribute(const QString& key) const
{
    return dataModel && dataModel->attributeWithKey(key);
}

void MRPDEFoldingOptionsViewController::observe(const PDEFeaturePtr& feature, void (MRPDEFoldingOptionsViewController::*handler)())
{
    if (!feature)
        return;
    if (!m_currentValueObservedFeatures.contains(feature))
        m_currentValueObservedFeatures.append(feature);
    m_observingInitially = true;
    feature->observeCurrentValue(this, [this, handler](MRPDE_MACFeature*) { (this->*handler)(); }, true);
    m_observingInitially = false;
}

void MRPDEFoldingOptionsViewController::configure()
{
    if (!m_isControllerActive || !_finishingPDEController)
        return;
    auto& u = *m_ui;
    _foldingOptionsLabelController = std::dynamic_pointer_cast<MRPDE_MACLabelController>(
        _finishingPDEController->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
            PDEControllerClass<MRPDE_MACLabelController>(), QStringLiteral("FoldingOptions"), QStringLiteral("KEY_FoldingOptions"),
            u._foldingOptionsLabel));
    _finishingPDEController->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
        PDEControllerClass<MRPDE_MACPopUpButtonController>(), QStringLiteral("FoldingOptions"), QStringLiteral("KEY_FoldingOptions"),
        u._foldingOptionsPopUpButton);
    observe(foldingOptionsFeature, &MRPDEFoldingOptionsViewController::foldingOptionsChanged);
    const bool cFolding = hasAttribute(kCFolding.maxSetKey);
    const bool vFolding = hasAttribute(kVFolding.maxSetKey);
    if (cFolding)
        observe(CFoldingPatternFeature, &MRPDEFoldingOptionsViewController::CFoldingPatternOptionsChanged);
    if (vFolding)
        observe(VFoldingPatternFeature, &MRPDEFoldingOptionsViewController::VFoldingPatternOptionsChanged);
    // C-folding's controls first, unless the job already asks for a V-fold.
    const PDEChoicePtr folding = foldingOptionsFeature->currentValue();
    if (cFolding && !(vFolding && folding && folding->keyword() == QLatin1String("VFolding")))
        assignControlsForCFolding();
    else if (vFolding)
        assignControlsForVFolding();
    // Binding shows the rows; they stay collapsed while folding is off.
    arrangeUIforFolding(folding && folding->keyword() != QLatin1String("None"));
}

void MRPDEFoldingOptionsViewController::assignControlsForCFolding()
{
    assignControlsForFoldKind(kCFolding);
}

void MRPDEFoldingOptionsViewController::assignControlsForVFolding()
{
    assignControlsForFoldKind(kVFolding);
}

void MRPDEFoldingOptionsViewController::assignControlsForFoldKind(const FoldKind& kind)
{
    if (!_finishingPDEController)
        return;
    auto& u = *m_ui;
    auto& map = _finishingPDEController->controllersMap();
    // The pattern and divide-set controls serve one fold kind at a time: the
    // other kind's controllers let go of them first.
    for (const FoldKind* k : {&kCFolding, &kVFolding}) {
        map.remove(k->patternIdentifier);
        map.remove(k->divideSetIdentifier);
    }
    _foldingPatternLabelController = std::dynamic_pointer_cast<MRPDE_MACLabelController>(
        _finishingPDEController->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
            PDEControllerClass<MRPDE_MACLabelController>(), kind.patternKey, kind.patternIdentifier, u._foldingPatternLabel));
    _finishingPDEController->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
        PDEControllerClass<MRPDE_MACPopUpButtonController>(), kind.patternKey, kind.patternIdentifier, u._foldingPatternPopUpButton);
    _foldingDivideSetLabelController = std::dynamic_pointer_cast<MRPDE_MACLabelController>(
        _finishingPDEController->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
            PDEControllerClass<MRPDE_MACLabelController>(), kind.divideSetKey, kind.divideSetIdentifier, u._foldingDivideSetLabel));
    m_foldingDivideSetStepperController = std::dynamic_pointer_cast<MRPDEStepperController>(
        _finishingPDEController->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
            PDEControllerClass<MRPDEStepperController>(), kind.divideSetKey, kind.divideSetIdentifier, u._foldingDivideSetStepper));
    const PDEAttributePtr maxSet = dataModel ? dataModel->attributeWithKey(kind.maxSetKey) : nullptr;
    int maximum = maxSet ? PDEIntValue(maxSet->attributeValue()) : 0;
    if (maximum < 1) {
        // A printer that states no usable limit folds one sheet at a time.
        _PDELog(this, QStringLiteral("PDEFoldingOptionsViewController (control): %@ is not a positive number [%@], 1 is used"),
                kind.maxSetKey, maxSet ? maxSet->attributeValue() : QString());
        maximum = 1;
    }
    if (m_foldingDivideSetStepperController) {
        m_foldingDivideSetStepperController->setMaxValue(maximum);
        m_foldingDivideSetStepperController->setMinValue(1);
        m_foldingDivideSetStepperController->setStepValue(1);
        m_foldingDivideSetStepperController->setTextField(u._foldingDivideSetTextField);
        m_foldingDivideSetStepperController->resetConfiguration();
    }
    std::shared_ptr<PDEBundle> bundle = dataModel ? dataModel->pdeBundle() : nullptr;
    const QString key = QStringLiteral("(1 - %d)");
    QString range = bundle ? bundle->localizedString(key, QStringLiteral("Localizable")) : key;
    u._foldingDivideSetRangeLabel->setText(range.replace(QLatin1String("%d"), QString::number(maximum)));
}

void MRPDEFoldingOptionsViewController::setEnabledForIdentifiers(const QStringList& identifiers, bool enabled)
{
    if (!_finishingPDEController)
        return;
    for (const QString& id : identifiers)
        for (const MRPDEControllerPtr& c : _finishingPDEController->controllersForIdentifier(id))
            c->setEnabled(enabled);
}

void MRPDEFoldingOptionsViewController::colorRangeLabel(bool enabled)
{
    QLabel* l = m_ui->_foldingDivideSetRangeLabel;
    QPalette palette = l->palette();
    palette.setColor(QPalette::WindowText,
                     QApplication::palette(l).color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    l->setPalette(palette);
    l->setVisible(enabled);
}

void MRPDEFoldingOptionsViewController::foldingTurnedOn(const FoldKind& kind, const PDEFeaturePtr& pattern)
{
    // The controls follow the fold kind chosen, where the printer has its maximum.
    if (!m_observingInitially && _finishingPDEController
        && _finishingPDEController->controllersForIdentifier(kind.patternIdentifier).isEmpty() && hasAttribute(kind.maxSetKey))
        assignControlsForFoldKind(kind);
    setEnabledForIdentifiers({kind.patternIdentifier, kind.divideSetIdentifier}, true);
    colorRangeLabel(true);
    arrangeUIforFolding(true);
    // Folding starts with the first real pattern. A pattern that came with
    // the job's options (folding already on when the panel is made) stays.
    const bool patternChosen = pattern && !pattern->choices().isEmpty() && pattern->currentValue() != pattern->choices().first();
    if (pattern && pattern->choices().size() > 1 && !(m_observingInitially && patternChosen))
        pattern->setCurrentValue(pattern->choices().at(1));
}

void MRPDEFoldingOptionsViewController::foldingOptionsChanged()
{
    const PDEChoicePtr value = foldingOptionsFeature ? foldingOptionsFeature->currentValue() : nullptr;
    const QString keyword = value ? value->keyword() : QString();
    PDENSLog(QStringLiteral("foldingOptionsCurrentValue [%@]"), keyword);
    if (keyword == QLatin1String("CFolding")) {
        foldingTurnedOn(kCFolding, CFoldingPatternFeature);
        CFoldingPatternOptionsChanged();
    } else if (keyword == QLatin1String("VFolding")) {
        foldingTurnedOn(kVFolding, VFoldingPatternFeature);
        VFoldingPatternOptionsChanged();
    } else if (keyword == QLatin1String("None")) {
        setEnabledForIdentifiers({kCFolding.patternIdentifier, kCFolding.divideSetIdentifier, kVFolding.patternIdentifier,
                                  kVFolding.divideSetIdentifier},
                                 false);
        colorRangeLabel(false);
        arrangeUIforFolding(false);
        if (m_foldingDivideSetStepperController)
            m_foldingDivideSetStepperController->resetControlValue();
        m_ui->_foldingPatternPopUpButton->setCurrentIndex(0);
    }
}

void MRPDEFoldingOptionsViewController::showPatternImage(const QString& foldKeyword, const PDEFeaturePtr& pattern,
                                                         const QStringList& keywords, const QStringList& images)
{
    // Only the fold being made has its picture shown.
    const PDEChoicePtr folding = foldingOptionsFeature ? foldingOptionsFeature->currentValue() : nullptr;
    if (!folding || folding->keyword() != foldKeyword)
        return;
    const PDEChoicePtr value = pattern ? pattern->currentValue() : nullptr;
    const qsizetype index = value ? keywords.indexOf(value->keyword()) : -1;
    QLabel* view = m_ui->_foldingOptionsImageView;
    if (index < 0 && value && value->keyword() != QLatin1String("None"))
        return;  // a pattern without a picture leaves the picture as it is
    const QString name = index >= 0 ? images.at(index) : QString();
    std::shared_ptr<PDEBundle> bundle = dataModel ? dataModel->pdeBundle() : nullptr;
    const QString path = bundle && !name.isEmpty() ? bundle->pathForResource(name, QStringLiteral("png")) : QString();
    const bool shown = PDELazyPicture::set(view, path);
    view->setProperty("imageName", shown ? name : QString());
}

void MRPDEFoldingOptionsViewController::CFoldingPatternOptionsChanged()
{
    showPatternImage(QStringLiteral("CFolding"), CFoldingPatternFeature, {"Pattern1", "Pattern2", "Pattern3", "Pattern4"},
                     {"pattern1", "pattern2", "pattern3", "pattern4"});
}

void MRPDEFoldingOptionsViewController::VFoldingPatternOptionsChanged()
{
    showPatternImage(QStringLiteral("VFolding"), VFoldingPatternFeature, {"Inside", "Outside"}, {"vfolding_inside", "vfolding_outside"});
}

void MRPDEFoldingOptionsViewController::arrangeUIforFolding(bool folding)
{
    auto& u = *m_ui;
    u._foldingPatternControls->setVisible(folding);
    u._foldingDivideSetControls->setVisible(folding);
    u._foldingOptionsImageView->setVisible(folding);
    QWidget* view = m_foldingOptionsMainView;
    if (view) {
        const int height = folding ? kExpandedHeight : kCollapsedHeight;
        view->setMinimumHeight(height);
        view->resize(view->width(), height);
    }
}
