#include "MRBookletController.h"

#include "MRAdvancedOptionPDE.h"
#include "MRAdvancedUnits.h"
#include "MRFormatter.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "ui_AdvancedOptionPDE.h"

MRBookletController::MRBookletController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui)
    : AdvancedOptionPDEObject(panel), m_ui(ui), m_metric(panel->metric())
{
    initializeUI();
    m_ui->SheetperSetField->setCompanion(m_ui->SheetStepper);
    connect(m_ui->BookletNupLayoutPopup, &QComboBox::activated, this, &MRBookletController::selectBookletNupLayoutPopupOption);
    connect(m_ui->SheetStepper, &PDEStepper::stepped, this, &MRBookletController::upAndDownSheetperSet);
    connect(m_ui->GutterStepper, &PDEStepper::stepped, this, &MRBookletController::upAndDownGutter);
}

void MRBookletController::initializeUI()
{
    MRAdvancedOptionPDE* p = AdvancedOptionPDEObject;
    const QString maxperset = p->readMaxperset();
    const int maximum = maxperset == QLatin1String("15") ? 15 : MRFormatter::intValue(maxperset);
    const QString range = QStringLiteral("%1 %2 %3)").arg(QStringLiteral("(1"), p->getLocalizationWithKey(QStringLiteral("SheetsPerSetTitleSign")))
                              .arg(maximum);
    const QString description = QStringLiteral("%1 %2").arg(p->getLocalizationWithKey(QStringLiteral("SheetsPerSetTitle")), range);
    m_ui->SheetStepper->setRange(1, qMax(1, maximum));
    m_ui->SheetperSetField->setMaximumPerSet(maxperset);
    m_ui->SheetperSetDes->setText(description);
    MRStandalonePDE::setSystemFontSize(m_ui->SheetperSetDes, 11);
    const auto title = [p](const char* key) { return QStringLiteral("%1:").arg(p->getLocalizationWithKey(QString::fromLatin1(key))); };
    m_ui->BookletTitle->setText(title("VELBookletOption"));
    m_ui->FoldermethodTitle->setText(title("VELFoldMethod"));
    m_ui->OutputSizeTitle->setText(title("BookletOutputPageSize"));
    m_ui->ManualBookletTitle->setText(title("VELManualBookletOption"));
    m_ui->GutterTitle->setText(title("GutterTitle"));
    m_ui->RightBindingCheckBox->setText(p->getLocalizationWithKey(QStringLiteral("RightBindingTitle")));
    m_ui->BookletNupTitle->setText(p->getLocalizationWithKey(QStringLiteral("NupTitle")));
    MRStandalonePDE::setSystemFontSize(m_ui->BookletNupTitle, 11);
    m_ui->BookletNupBorderTitle->setText(title("PageBorderTitle"));
    m_ui->BookletNupLayoutTitle->setText(title("PagePerSideTitle"));
    m_ui->BookletNupPageOrderTitle->setText(title("PageOrder"));
    setMetric(m_metric);
    getFoldingOptionString();
}

void MRBookletController::setMetric(bool metric)
{
    m_metric = metric;
    m_ui->GutterDes->setText(AdvancedOptionPDEObject->getLocalizationWithKey(
        metric ? QStringLiteral("GutterSizemmDes") : QStringLiteral("GutterSizeInchDes")));
    m_ui->GutterTextField->setMetric(metric);
    // In inches the stepper counts hundredths.
    m_ui->GutterStepper->setRange(0, metric ? 25 : 98);
    m_ui->GutterTextField->setCompanion(m_ui->GutterStepper, metric ? 1 : 100);
}

void MRBookletController::enable(QWidget* control, QWidget* label, bool enabled)
{
    if (control)
        control->setEnabled(enabled);
    MRStandalonePDE::setLabelActive(label, enabled);
}

void MRBookletController::applyPageOrderRule()
{
    const bool several = m_ui->BookletNupLayoutPopup->currentIndex() != 0;
    enable(m_ui->BookletNupPageOrderPopup, m_ui->BookletNupPageOrderTitle, several);
}

void MRBookletController::applyFinisherRule()
{
    const bool finisher = AdvancedOptionPDEObject->IsExistedBookletFinisher() == QLatin1String("BookletFinisher");
    enable(m_ui->FoldingOptionsPopup, m_ui->FoldingOptionTitle, finisher);
}

void MRBookletController::showSelectedBookletSettings(int index)
{
    const bool nupOffered = AdvancedOptionPDEObject->UseBookletNupstr() != QLatin1String("False");
    if (index == 1) {
        enable(m_ui->FoldermethodPopup, m_ui->FoldermethodTitle, true);
        const bool bySet = m_ui->FoldermethodPopup->currentIndex() != 0;
        enable(m_ui->SheetperSetField, m_ui->SheetperSetDes, bySet);
        m_ui->SheetStepper->setEnabled(bySet);
        enable(m_ui->OutputSizePopup, m_ui->OutputSizeTitle, true);
        enable(m_ui->GutterTextField, m_ui->GutterTitle, true);
        enable(m_ui->GutterStepper, m_ui->GutterDes, true);
        m_ui->RightBindingCheckBox->setEnabled(true);
        enable(m_ui->BookletNupBorderPopup, m_ui->BookletNupBorderTitle, true);
        enable(m_ui->BookletNupLayoutPopup, m_ui->BookletNupLayoutTitle, true);
        MRStandalonePDE::setLabelActive(m_ui->BookletNupTitle, true);
        m_ui->BookletNUPBOX->setVisible(nupOffered);
        applyPageOrderRule();
        applyFinisherRule();
        return;
    }
    if (index != 0 && index != 2)
        return;
    m_ui->bookletcustomview->setVisible(AdvancedOptionPDEObject->foldmethodstr() == QLatin1String("FoldMethodON"));
    enable(m_ui->FoldermethodPopup, m_ui->FoldermethodTitle, false);
    enable(m_ui->SheetperSetField, m_ui->SheetperSetDes, false);
    m_ui->SheetStepper->setEnabled(false);
    enable(m_ui->OutputSizePopup, m_ui->OutputSizeTitle, false);
    enable(m_ui->FoldingOptionsPopup, m_ui->FoldingOptionTitle, false);
    enable(m_ui->GutterTextField, m_ui->GutterTitle, false);
    enable(m_ui->GutterStepper, m_ui->GutterDes, false);
    m_ui->RightBindingCheckBox->setEnabled(false);
    enable(m_ui->BookletNupPageOrderPopup, m_ui->BookletNupPageOrderTitle, false);
    enable(m_ui->BookletNupBorderPopup, m_ui->BookletNupBorderTitle, false);
    enable(m_ui->BookletNupLayoutPopup, m_ui->BookletNupLayoutTitle, false);
    MRStandalonePDE::setLabelActive(m_ui->BookletNupTitle, false);
    if (index == 0) {
        _PDELog(this, QStringLiteral("aaaaaaaaaaaaaaaaaaaaaaaa==========1"));
    } else {
        _PDELog(this, QStringLiteral("aaaaaaaaaaaaaaaaaaaaaaaa==========4"));
        m_ui->BookletNUPBOX->setVisible(nupOffered);
        applyFinisherRule();
    }
    if (m_ui->BookletNupLayoutPopup->currentIndex() == 0)
        enable(m_ui->BookletNupPageOrderPopup, m_ui->BookletNupPageOrderTitle, false);
}

void MRBookletController::selectBookletNupLayoutPopupOption()
{
    applyPageOrderRule();
}

void MRBookletController::upAndDownSheetperSet()
{
    m_ui->SheetperSetField->setText(QString::number(m_ui->SheetStepper->value()));
}

void MRBookletController::upAndDownGutter()
{
    _PDELog(this, QStringLiteral("<< BookletController:upAndDownGutter >>"));
    if (m_metric) {
        m_ui->GutterTextField->setText(QString::number(m_ui->GutterStepper->value()));
        return;
    }
    const QString text = MRAdvancedUnits::inchText(m_ui->GutterStepper->value() / 100.0);
    m_ui->GutterTextField->setText(text);
    m_ui->GutterStepper->setValue(qRound(text.toDouble() * 100));
}

void MRBookletController::getFoldingOptionString()
{
    _PDELog(this, QStringLiteral("<< v_getFoldingOptionString >> "));
    MRStandalonePDE::setImage(m_ui->BookletFoldingImageView, AdvancedOptionPDEObject->pluginBundle().get(), QStringLiteral("folding_none"));
    m_ui->FoldingOptionTitle->setText(
        QStringLiteral("%1:").arg(AdvancedOptionPDEObject->getLocalizationWithKey(QStringLiteral("VELBookletFinishing"))));
}

void MRBookletController::hideGutterAndRightBindingOptions(bool hide)
{
    for (QWidget* w : std::initializer_list<QWidget*>{m_ui->GutterTextField, m_ui->GutterStepper, m_ui->GutterTitle, m_ui->GutterDes,
                                                      m_ui->RightBindingCheckBox})
        w->setVisible(!hide);
}

int MRBookletController::getGutterMMValue(float inches)
{
    return MRAdvancedUnits::millimetresFromInches(inches);
}

QVariantMap MRBookletController::getBookletStatusString() const
{
    return AdvancedOptionPDEObject->getBookletStatusString();
}

QString MRBookletController::getBookletStringFilePath() const
{
    return AdvancedOptionPDEObject->getBookletStringFilePath();
}
