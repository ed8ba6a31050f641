#include "MRPDE_MACGraphicsPaperController.h"

#include "MRPDEBasicTrigger.h"
#include "MRPDEComplexTrigger.h"
#include "MRPDE_MACCheckBoxController.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "ui_GraphicsAndPaper.h"

#include <QLabel>
#include <QTabWidget>

namespace {
enum : int { kNOT = 2, kOR = 1 };

const QStringList kDocTypeRuled{"KEY_ColorModel", "KEY_BlackOptimization", "KEY_Brightness", "KEY_Contrast", "KEY_Saturation",
                                "KEY_RCBalance",  "KEY_GMBalance",         "KEY_BYBalance",  "KEY_VELSimulator", "KEY_RGBColor",
                                "KEY_HalftoneLPI", "KEY_EdgeEnhance",      "KEY_VELResolution", "KEY_Trapping",
                                "KEY_PreferredColorCheck", "KEY_Skin",     "KEY_Grass",      "KEY_Sky"};
const QStringList kGrayRuled{"KEY_BlackOptimization", "KEY_Saturation", "KEY_RCBalance", "KEY_GMBalance",
                             "KEY_BYBalance",         "KEY_VELSimulator", "KEY_Trapping", "KEY_RGBColor",
                             "KEY_PreferredColorCheck", "KEY_Skin",      "KEY_Grass",    "KEY_Sky"};

// Every row's label is bound with the pop-up of the same row.
QList<QWidget*> widgets(std::initializer_list<QWidget*> list)
{
    return QList<QWidget*>(list);
}

const QString kLine = QStringLiteral("-----------------------------------");
}

MRPDE_MACGraphicsPaperController::MRPDE_MACGraphicsPaperController(MRPDE_MACChangeHandlerModel* model)
    : MRPDEMainBaseController(model), m_ui(std::make_unique<Ui::GraphicsAndPaper>())
{
    _PDELog(this, QStringLiteral("PDE+PDE_MACGraphicsPaperController(control): ======================================== START Loading "
                                 "GRAPHICS/PAPER Plugin ======================================================"));
    auto* view = new QWidget;
    m_ui->setupUi(view);
    setMainView(view);
    localizeRowLabels(view);

    // Every tab is loaded, whatever the others answer.
    const bool one = loadTabOne();
    const bool two = loadTabTwo();
    const bool three = loadTabThree();
    const bool four = loadTabFour();
    if (one || two || three || four)
        applyTriggers();
    connect(m_ui->m_tabView, &QTabWidget::currentChanged, this,
            [this](int index) { tabViewDidSelectTabViewItem(m_ui->m_tabView, index); });
}

MRPDE_MACGraphicsPaperController::~MRPDE_MACGraphicsPaperController()
{
    for (const PDEFeaturePtr& f : std::as_const(m_currentValueObservedFeatures))
        disconnect(f.get(), nullptr, this, nullptr);
}

QTabWidget* MRPDE_MACGraphicsPaperController::tabView() const
{
    return m_ui->m_tabView;
}

QString MRPDE_MACGraphicsPaperController::localized(const QString& key) const
{
    std::shared_ptr<PDEBundle> bundle = dataModel() ? dataModel()->pdeBundle() : nullptr;
    return bundle ? bundle->localizedString(key, QStringLiteral("Localizable")) : key;
}

void MRPDE_MACGraphicsPaperController::localizeRowLabels(QWidget* root)
{
    // The layout names each row's text by its key; the bundle has the words.
    for (QLabel* l : root->findChildren<QLabel*>())
        if (l->text().startsWith(QLatin1String("KEY_")))
            l->setText(localized(l->text()));
    for (QCheckBox* b : root->findChildren<QCheckBox*>())
        if (b->text().startsWith(QLatin1String("KEY_")))
            b->setText(localized(b->text()));
}

bool MRPDE_MACGraphicsPaperController::hasAnyFeature(const QStringList& keys)
{
    bool any = false;
    for (const QString& k : keys)
        any = (dataModel() && dataModel()->featureWithKey(k)) || any;
    return any;
}

void MRPDE_MACGraphicsPaperController::setTabLabel(QWidget* page, const QString& key)
{
    const int index = m_ui->m_tabView->indexOf(page);
    if (index >= 0)
        m_ui->m_tabView->setTabText(index, localized(key));
}

void MRPDE_MACGraphicsPaperController::removeTab(QWidget* page)
{
    const int index = m_ui->m_tabView->indexOf(page);
    if (index >= 0)
        m_ui->m_tabView->removeTab(index);
    // A removed tab's controls are gone for the life of the panel.
    page->deleteLater();
    page->setParent(nullptr);
}

void MRPDE_MACGraphicsPaperController::logTabEnd(const QString& number)
{
    _PDELog(this, QStringLiteral("PDE_MACGraphicsPaperController (control): %1 END Tab %2%1").arg(kLine, number));
    for (int i = 0; i < 3; ++i)
        _PDELog(this, QStringLiteral("'"));
}

bool MRPDE_MACGraphicsPaperController::loadTabOne()
{
    _PDELog(this, QStringLiteral("PDE_MACGraphicsPaperController (control): %1 Loading Tab ONE%1").arg(kLine));
    const bool kept = hasAnyFeature({"DocType", "id_DocType", "XrayContrast", "VELResolution", "id_SaveMode", "SaveMode", "TonerSaving",
                                     "Darkness", "DarkenText", "id_EdgeEnhance", "EdgeEnhance", "id_FineEdge", "FineEdge",
                                     "id_Trapping", "Trapping"});
    setTabLabel(m_ui->tabViewItemQuality, QStringLiteral("Quality"));
    if (kept) {
        const QList<PDEFeatureRow> rows{{"KEY_DocType", {"DocType", "id_DocType"}},
                                        {"KEY_XrayContrast", {"XrayContrast", "XrayContrast"}},
                                        {"KEY_VELResolution", {"VELResolution"}},
                                        {"KEY_SaveMode", {"id_SaveMode", "SaveMode", "TonerSaving"}},
                                        {"KEY_Darkness", {"Darkness"}},
                                        {"KEY_DarkenText", {"DarkenText"}},
                                        {"KEY_EdgeEnhance", {"id_EdgeEnhance", "EdgeEnhance"}},
                                        {"KEY_FineEdge", {"id_FineEdge", "FineEdge"}},
                                        {"KEY_Trapping", {"id_Trapping", "Trapping"}}};
        const auto& u = *m_ui;
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), rows,
                                             widgets({u.tab1PopUpButton1, u.tab1PopUpButton2, u.tab1PopUpButton3, u.tab1PopUpButton4,
                                                      u.tab1PopUpButton5, u.tab1PopUpButton6, u.tab1PopUpButton7, u.tab1PopUpButton8}));
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACLabelController>(), rows,
                                             widgets({u.tab1Label1, u.tab1Label2, u.tab1Label3, u.tab1Label4, u.tab1Label5,
                                                      u.tab1Label6, u.tab1Label7, u.tab1Label8}));
    } else {
        removeTab(m_ui->tabViewItemQuality);
    }
    logTabEnd(QStringLiteral("ONE"));
    return kept;
}

bool MRPDE_MACGraphicsPaperController::loadTabTwo()
{
    _PDELog(this, QStringLiteral("PDE_MACGraphicsPaperController (control): %1 Loading Tab TWO%1").arg(kLine));
    // The colour tab belongs to printers whose colour model offers "RGBA".
    PDEFeaturePtr colorModel = dataModel() ? dataModel()->featureWithKey(QStringLiteral("ColorModel")) : nullptr;
    bool kept = colorModel && colorModel->getChoiceWithKeyword(QStringLiteral("RGBA"));
    if (kept)
        kept = hasAnyFeature({"ColorModel", "BlackOptimization", "VELCMYKBypass", "VELSimulator", "RGBColor", "id_RGBColor",
                              "VELRGBColor", "HalftoneLPI", "id_HalftoneLPI", "Screen"});
    setTabLabel(m_ui->tabViewItemColor, QStringLiteral("Color"));
    if (kept) {
        const QList<PDEFeatureRow> rows{{"KEY_ColorModel", {"ColorModel"}},
                                        {"KEY_BlackOptimization", {"BlackOptimization"}},
                                        {"KEY_CMYKByPass", {"VELCMYKBypass"}},
                                        {"KEY_VELSimulator", {"VELSimulator"}},
                                        {"KEY_RGBColor", {"RGBColor", "id_RGBColor", "VELRGBColor"}},
                                        {"KEY_HalftoneLPI", {"HalftoneLPI", "id_HalftoneLPI", "Screen"}},
                                        {"KEY_UserDefinedColor", {"UserDefinedColor"}}};
        const auto& u = *m_ui;
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), rows,
                                             widgets({u.tab2PopUpButton1, u.tab2PopUpButton2, u.tab2PopUpButton3, u.tab2PopUpButton4,
                                                      u.tab2PopUpButton5, u.tab2PopUpButton6, u.tab2PopUpButton7}));
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACLabelController>(), rows,
                                             widgets({u.tab2Label1, u.tab2Label2, u.tab2Label3, u.tab2Label4, u.tab2Label5,
                                                      u.tab2Label6, u.tab2Label7}));
    } else {
        removeTab(m_ui->tabViewItemColor);
    }
    logTabEnd(QStringLiteral("TWO"));
    return kept;
}

bool MRPDE_MACGraphicsPaperController::loadTabThree()
{
    _PDELog(this, QStringLiteral("PDE_MACGraphicsPaperController (control): %1 Loading Tab THREE%1").arg(kLine));
    const bool kept = hasAnyFeature({"n_Brightness", "n_Contrast", "n_Saturation", "n_RCBalance", "n_GMBalance", "n_BYBalance"});
    setTabLabel(m_ui->tabViewItemLevels, QStringLiteral("Levels"));
    auto& u = *m_ui;
    if (kept) {
        createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACCheckBoxController>(),
                                                                           QStringLiteral("PreferredColorCheck"),
                                                                           QStringLiteral("KEY_PreferredColorCheck"),
                                                                           u.preferredColorCheckButton);
        PDEFeaturePtr preferred = dataModel()->featureWithKey(QStringLiteral("PreferredColorCheck"));
        // Observed before the rows are bound: the first call finds no balance
        // or memory-colour controller to reset, so restored values survive.
        if (preferred)
            observeFeature(preferred, true);
        const QList<QWidget*> popUps = widgets({u.tab3PopUpButton1, u.tab3PopUpButton2, u.tab3PopUpButton3, u.tab3PopUpButton4,
                                                u.tab3PopUpButton5, u.tab3PopUpButton6, u.tab3PopUpButton7});
        const QList<QWidget*> labels =
            widgets({u.tab3Label1, u.tab3Label2, u.tab3Label3, u.tab3Label4, u.tab3Label5, u.tab3Label6, u.tab3Label7});
        QList<PDEFeatureRow> rows{{"KEY_Brightness", {"n_Brightness"}},
                                  {"KEY_Contrast", {"n_Contrast"}},
                                  {"KEY_Saturation", {"n_Saturation"}}};
        if (!preferred) {
            rows += QList<PDEFeatureRow>{{"KEY_RCBalance", {"n_RCBalance"}},
                                         {"KEY_GMBalance", {"n_GMBalance"}},
                                         {"KEY_BYBalance", {"n_BYBalance"}}};
            u.preferredColorView->setVisible(false);
        }
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), rows, popUps);
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACLabelController>(), rows, labels);
        if (preferred) {
            u.preferredColorView->setVisible(true);
            u.preferredColorView->move(u.preferredColorView->x(), yOriginAfterRecomputingForPreferredColorViewWithRefTo(popUps));
            const QList<PDEFeatureRow> prefRows{{"KEY_RCBalance", {"n_RCBalance"}}, {"KEY_GMBalance", {"n_GMBalance"}},
                                                {"KEY_BYBalance", {"n_BYBalance"}}, {"KEY_Skin", {"n_Skin"}},
                                                {"KEY_Grass", {"n_Grass"}},         {"KEY_Sky", {"n_Sky"}}};
            assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), prefRows,
                                                 widgets({u.tab3PrefPopUpButton1, u.tab3PrefPopUpButton2, u.tab3PrefPopUpButton3,
                                                          u.tab3PrefPopUpButton4, u.tab3PrefPopUpButton5, u.tab3PrefPopUpButton6}));
            assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACLabelController>(), prefRows,
                                                 widgets({u.tab3PrefLabel1, u.tab3PrefLabel2, u.tab3PrefLabel3, u.tab3PrefLabel4,
                                                          u.tab3PrefLabel5, u.tab3PrefLabel6}));
        }
    } else {
        removeTab(u.tabViewItemLevels);
    }
    logTabEnd(QStringLiteral("THREE"));
    return kept;
}

bool MRPDE_MACGraphicsPaperController::loadTabFour()
{
    _PDELog(this, QStringLiteral("PDE_MACGraphicsPaperController (control): %1 Loading Tab FOUR%1").arg(kLine));
    const bool kept = hasAnyFeature({"ReverseDuplex", "VELReverseDuplex", "id_CurlMode", "CurlMode", "SkipBlankPages", "MediaType",
                                     "SeparatorsOption", "SeparatorsSource"});
    setTabLabel(m_ui->tabViewItemPaper, QStringLiteral("Paper"));
    auto& u = *m_ui;
    if (kept) {
        const QList<PDEFeatureRow> media{{"KEY_MediaType", {"MediaType"}}};
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), media,
                                             widgets({u.tab4PopUpButton1}));
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACLabelController>(), media, widgets({u.tab4Label1}));

        const QList<PDEFeatureRow> separators{{"KEY_SeparatorsOption", {"SeparatorsOption"}},
                                              {"KEY_SeparatorsSource", {"SeparatorsSource"}}};
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(), separators,
                                             widgets({u.tab4SeperatorOptionPopUpButton, u.tab4SeperatorSourcePopUpButton}));
        assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACLabelController>(), separators,
                                             widgets({u.tab4SeperatorOptionLabel, u.tab4SeperatorSourceLabel}));

        const QList<PDEFeatureRow> boxes{{"KEY_SkipBlankpages", {"SkipBlankPages"}},
                                         {"KEY_CurlMode", {"id_CurlMode", "CurlMode"}},
                                         {"KEY_ReverseDuplex", {"ReverseDuplex", "VELReverseDuplex"}}};
        assignContolFromFeatureArrayControls(
            PDEControllerClass<MRPDE_MACCheckBoxController>(), boxes,
            widgets({u.skipBlankPagesCheckBoxButton, u.pageCurlReductionCheckBoxButton, u.reverseDuplexCheckBoxButton}));

        m_numberOfUnusedCheckBoxes = 0;
        for (const PDEFeatureRow& row : boxes)
            if (!hasAnyFeature(row.candidates))
                ++m_numberOfUnusedCheckBoxes;
        // The separator rows close the gap the hidden check boxes leave.
        for (QWidget* w : widgets({u.tab4SeperatorSourcePopUpButton, u.tab4SeperatorSourceLabel, u.tab4SeperatorOptionPopUpButton,
                                   u.tab4SeperatorOptionLabel}))
            w->move(w->x(), w->y() - int(26 * m_numberOfUnusedCheckBoxes));

        // German and French words are longer: the labels give 48 points to the controls.
        std::shared_ptr<PDEBundle> bundle = dataModel() ? dataModel()->pdeBundle() : nullptr;
        const QString language = bundle ? bundle->language() : QString();
        if (language == QLatin1String("de") || language == QLatin1String("fr")) {
            for (QWidget* l : widgets({u.tab4SeperatorSourceLabel, u.tab4SeperatorOptionLabel, u.tab4Label1}))
                l->resize(l->width() - 48, l->height());
            for (QWidget* c : widgets({u.reverseDuplexCheckBoxButton, u.pageCurlReductionCheckBoxButton, u.skipBlankPagesCheckBoxButton,
                                       u.tab4SeperatorSourcePopUpButton, u.tab4SeperatorOptionPopUpButton, u.tab4PopUpButton1}))
                c->setGeometry(c->x() - 48, c->y(), c->width() + 48, c->height());
        }
    } else {
        removeTab(u.tabViewItemPaper);
    }
    logTabEnd(QStringLiteral("FOUR"));
    return kept;
}

void MRPDE_MACGraphicsPaperController::observeFeature(const PDEFeaturePtr& feature, bool initial)
{
    if (!m_currentValueObservedFeatures.contains(feature))
        m_currentValueObservedFeatures.append(feature);
    feature->observeCurrentValue(this, [this](MRPDE_MACFeature* f) { observeValueForKeyPath(f); }, initial);
}

void MRPDE_MACGraphicsPaperController::setTriggers(const QStringList& identifiers, const PDETriggerPtr& trigger, bool disable,
                                                   bool reset, bool hide)
{
    for (const QString& id : identifiers) {
        for (const MRPDEControllerPtr& c : controllersForIdentifier(id)) {
            if (disable)
                c->setDisableTrigger(trigger);
            if (reset)
                c->setResetToDefaultTrigger(trigger);
            if (hide)
                c->setHiddenTrigger(trigger);
        }
    }
}

void MRPDE_MACGraphicsPaperController::applyTriggers()
{
    MRPDE_MACChangeHandlerModel* model = dataModel();
    PDEFeaturePtr docType = model->featureWithKey(QStringLiteral("DocType"));
    if (!docType)
        docType = model->featureWithKey(QStringLiteral("id_DocType"));
    PDETriggerPtr notStandard;
    if (docType) {
        // Anything but a standard document greys out and resets the image options.
        _PDELog(this, QStringLiteral("PDEGraphicsPaperController (controller): initWithModel: MakeComplexTrigger for DocTypeFeature-- NOT -->Standard"));
        notStandard = PDEMakeComplexTrigger(kNOT, {PDEMakeBasicTrigger(docType, QStringLiteral("Standard"))});
        setTriggers(kDocTypeRuled, notStandard, true, true, false);
        // X-ray contrast only for X-ray documents.
        _PDELog(this, QStringLiteral("PDEGraphicsPaperController (controller): initWithModel: MakeComplexTrigger for DocTypeFeature-- NOT -->Standard"));
        auto notXRay = PDEMakeComplexTrigger(kNOT, {PDEMakeBasicTrigger(docType, QStringLiteral("XRay"))});
        setTriggers({"KEY_XrayContrast"}, notXRay, true, true, false);
    }
    if (PDEFeaturePtr media = model->featureWithKey(QStringLiteral("MediaType"))) {
        // Separator sheets are for transparencies only.
        _PDELog(this, QStringLiteral("PDEGraphicsPaperController (controller): initWithModel: MakeComplexTrigger for MediaType-- NOT -->Transparency"));
        auto notTransparency = PDEMakeComplexTrigger(kNOT, {PDEMakeBasicTrigger(media, QStringLiteral("Transparency"))});
        setTriggers({"KEY_SeparatorsOption", "KEY_SeparatorsSource"}, notTransparency, false, false, true);
        // Observed after the separators' trigger, so that the new layout sees them shown or hidden.
        observeFeature(media, false);
    }
    if (PDEFeaturePtr colorModel = model->featureWithKey(QStringLiteral("ColorModel"))) {
        // Colour-only options go grey, and back to their defaults, in grey printing.
        _PDELog(this, QStringLiteral("PDEGraphicsPaperController (controller): initWithModel: MakeComplexTrigger for docType-[not]->standard [OR] colorModel->Gray"));
        PDETriggerPtr gray = PDEMakeBasicTrigger(colorModel, QStringLiteral("Gray"));
        PDETriggerPtr grayOrNotStandard = notStandard ? PDETriggerPtr(PDEMakeComplexTrigger(kOR, {notStandard, gray})) : gray;
        setTriggers(kGrayRuled, grayOrNotStandard, true, true, false);
    }
}

void MRPDE_MACGraphicsPaperController::resetControllers(const QStringList& identifiers)
{
    for (const QString& id : identifiers)
        for (const MRPDEControllerPtr& c : controllersForIdentifier(id))
            c->resetToDefaultValues();
}

void MRPDE_MACGraphicsPaperController::observeValueForKeyPath(MRPDE_MACFeature* feature)
{
    if (!feature)
        return;
    if (feature->keyword() == QLatin1String("MediaType")) {
        // The separator rows may have come or gone: lay the tab out again.
        tabViewDidSelectTabViewItem(m_ui->m_tabView, m_ui->m_tabView->currentIndex());
        return;
    }
    if (feature->keyword() != QLatin1String("PreferredColorCheck"))
        return;
    const bool on = feature->currentValue() && feature->currentValue()->keyword() == QLatin1String("On");
    m_ui->preferredColorOFFView->setVisible(!on);
    m_ui->preferredColorONView->setVisible(on);
    if (on)
        resetControllers({"KEY_RCBalance", "KEY_GMBalance", "KEY_BYBalance"});
    else
        resetControllers({"KEY_Skin", "KEY_Grass", "KEY_Sky"});
}

int MRPDE_MACGraphicsPaperController::yOriginAfterRecomputingForPreferredColorViewWithRefTo(const QList<QWidget*>& controls) const
{
    for (qsizetype i = controls.size() - 1; i >= 0; --i) {
        QWidget* c = controls[i];
        if (c && !c->isHidden())
            return c->y() + c->height() + 10;
    }
    return 0;
}

std::optional<int> MRPDE_MACGraphicsPaperController::totalHeightOfActiveViewContentRowsInTabViewItem(QWidget* tabPage)
{
    return bottomOfVisibleRows(tabPage);
}
