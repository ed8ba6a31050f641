#include "MRPDE_MACFinishingPDEController.h"

#include "MRPDEBasicTrigger.h"
#include "MRPDEFoldingOptionsViewController.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "ui_Finishing.h"

#include <QLabel>

namespace {
const QString kLine = QStringLiteral("-----------------------------------");
}

MRPDE_MACFinishingPDEController::MRPDE_MACFinishingPDEController(MRPDE_MACChangeHandlerModel* model)
    : MRPDEMainBaseController(model), m_ui(std::make_unique<Ui::Finishing>())
{
    _PDELog(this, QStringLiteral("PDE+MACFinishingPDEController(control): ======================================== START Loading Finishing "
                                 "Plugin ======================================================"));
    auto* view = new QWidget;
    m_ui->setupUi(view);
    setMainView(view);
    // The layout names each row's text by its key; the bundle has the words.
    std::shared_ptr<PDEBundle> bundle = model ? model->pdeBundle() : nullptr;
    for (QLabel* l : view->findChildren<QLabel*>())
        if (bundle && l->text().startsWith(QLatin1String("KEY_")))
            l->setText(bundle->localizedString(l->text(), QStringLiteral("Localizable")));
    m_foldingOptionsViewController = std::make_unique<MRPDEFoldingOptionsViewController>(this);

    loadTabOne();
    // A position is for stapling or punching only.
    setDisableTriggerForIdentifier(QStringLiteral("KEY_StaplePosition"), QStringLiteral("StapleLocation"), QStringLiteral("None"));
    setDisableTriggerForIdentifier(QStringLiteral("KEY_PunchPosition"), QStringLiteral("Punch"), QStringLiteral("None"));
    recomputeTheUIHeightAndAll();
}

MRPDE_MACFinishingPDEController::~MRPDE_MACFinishingPDEController()
{
    for (const PDEFeaturePtr& f : std::as_const(m_currentValueObservedFeatures))
        disconnect(f.get(), nullptr, this, nullptr);
    controllersMap().clear();
    m_foldingOptionsViewController.reset();
}

void MRPDE_MACFinishingPDEController::setDisableTriggerForIdentifier(const QString& identifier, const QString& featureKey,
                                                                     const QString& offKeyword)
{
    PDEFeaturePtr feature = dataModel() ? dataModel()->featureWithKey(featureKey) : nullptr;
    if (!feature)
        return;
    const PDETriggerPtr trigger = PDEMakeBasicTrigger(feature, offKeyword);
    for (const MRPDEControllerPtr& c : controllersForIdentifier(identifier))
        c->setDisableTrigger(trigger);
}

QList<QWidget*> MRPDE_MACFinishingPDEController::popUpButtons() const
{
    const auto& u = *m_ui;
    return {u.tab1PopUpButton1, u.tab1PopUpButton2, u.tab1PopUpButton3, u.tab1PopUpButton4,
            u.tab1PopUpButton5, u.tab1PopUpButton6, u.tab1PopUpButton7};
}

bool MRPDE_MACFinishingPDEController::loadTabOne()
{
    _PDELog(this, QStringLiteral("PDE_MACFinishingPDEController (control): %1 Loading Tab ONE%1").arg(kLine));
    MRPDE_MACChangeHandlerModel* model = dataModel();
    bool any = false;
    for (const char* key : {"SortOptions", "StapleLocation", "StaplePosition", "Punch", "PunchPosition", "OutputMode", "OutputBin",
                            "FoldingOptions"})
        any = (model && model->featureWithKey(QString::fromLatin1(key))) || any;
    const auto& u = *m_ui;
    const QList<QWidget*> labels{u.tab1Label1, u.tab1Label2, u.tab1Label3, u.tab1Label4, u.tab1Label5, u.tab1Label6, u.tab1Label7};
    if (any) {
        const QList<PDEFeatureRow> rows{{"KEY_SortOptions", {"SortOptions"}},   {"KEY_StapleLocation", {"StapleLocation"}},
                                        {"KEY_StaplePosition", {"StaplePosition"}}, {"KEY_Punch", {"Punch"}},
                                        {"KEY_PunchPosition", {"PunchPosition"}}, {"KEY_OutputMode", {"OutputMode"}},
                                        {"KEY_OutputBin", {"OutputBin"}}};
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), rows, popUpButtons());
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACLabelController>(), rows, labels);
        if (PDEFeaturePtr folding = model->featureWithKey(QStringLiteral("FoldingOptions"))) {
            m_foldingOptionsViewController->configure();
            if (m_foldingOptionsViewController->isControllerActive()) {
                m_foldingOptionsViewController->foldingOptionsMainView()->setParent(mainView());
                // Observed after the group, so that the new height sees its rows shown or collapsed.
                m_currentValueObservedFeatures.append(folding);
                folding->observeCurrentValue(this, [this](MRPDE_MACFeature* f) { observeValueForKeyPath(f); }, false);
            }
        }
    } else {
        // Nothing to finish: no row shows.
        for (QWidget* w : popUpButtons() + labels)
            w->setVisible(false);
    }
    _PDELog(this, QStringLiteral("PDE_MACFinishingPDEController (control): %1 END Tab ONE%1\n\n\n\n\n").arg(kLine));
    for (int i = 0; i < 3; ++i)
        _PDELog(this, QStringLiteral("'"));
    return any;
}

void MRPDE_MACFinishingPDEController::observeValueForKeyPath(MRPDE_MACFeature* feature)
{
    if (feature && feature->keyword() == QLatin1String("FoldingOptions"))
        recomputeTheUIHeightAndAll();
}

int MRPDE_MACFinishingPDEController::totalHeightOfInActiveViewContentRows() const
{
    int hidden = 0;
    for (QWidget* w : popUpButtons())
        if (w->isHidden())
            hidden += kRowHeight;
    return hidden;
}

void MRPDE_MACFinishingPDEController::recomputeTheUIHeightAndAll()
{
    // The rows close up from the top: the group goes below the last one shown.
    const int rowsBottom = kTopMargin + int(popUpButtons().size()) * kRowHeight - totalHeightOfInActiveViewContentRows();
    int height = rowsBottom + kBottomMargin;
    QWidget* group = m_foldingOptionsViewController ? m_foldingOptionsViewController->foldingOptionsMainView() : nullptr;
    if (group && group->parent() == mainView()) {
        group->move(0, rowsBottom);
        group->show();
        height = rowsBottom + group->height() + kBottomMargin;
    }
    const int width = mainView() ? mainView()->width() : 0;
    resizeMainViewToFrame(QRect(0, 0, width, height));
}
