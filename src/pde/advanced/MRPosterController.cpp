#include "MRPosterController.h"

#include "MRAdvancedOptionPDE.h"
#include "MRAdvancedUnits.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "ui_AdvancedOptionPDE.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

MRPosterController::MRPosterController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui)
    : AdvancedOptionPDEObject(panel), m_ui(ui), m_metric(panel->metric())
{
    initializeUI();
    connect(m_ui->overlapStepper, &PDEStepper::stepped, this, &MRPosterController::upAndDownOverlap);
}

void MRPosterController::initializeUI()
{
    MRAdvancedOptionPDE* p = AdvancedOptionPDEObject;
    m_ui->layoutTitle->setText(QStringLiteral("%1:").arg(p->getLocalizationWithKey(QStringLiteral("LayoutTitle"))));
    m_ui->overlapTitle->setText(QStringLiteral("%1:").arg(p->getLocalizationWithKey(QStringLiteral("OverlapTitle"))));
    m_ui->ConceptPreviewTitle->setText(QStringLiteral("%1:").arg(p->getLocalizationWithKey(QString::fromLatin1(kNSConceptViewTitleKey))));
    setMetric(m_metric);
}

void MRPosterController::setMetric(bool metric)
{
    m_metric = metric;
    m_ui->overlapMetric->setText(
        AdvancedOptionPDEObject->getLocalizationWithKey(metric ? QStringLiteral("OverlapMM") : QStringLiteral("OverlapInch")));
    m_ui->overlapField->setMetric(metric);
    // In inches the stepper counts hundredths.
    m_ui->overlapStepper->setRange(0, metric ? 25 : 100);
    m_ui->overlapField->setCompanion(m_ui->overlapStepper, metric ? 1 : 100);
}

QLabel* MRPosterController::layoutTitle() const
{
    return m_ui->layoutTitle;
}

QString MRPosterController::conceptPictureName(int index, bool colour, const QString& orientation)
{
    static const QStringList layouts{"poster_none", "poster2_2", "poster3_3", "poster4_4"};
    static const QMap<QString, QString> orientations{{"1", ""}, {"2", "L"}, {"3", "R_"}, {"4", "R_L"}};
    if (index < 0 || index >= layouts.size() || !orientations.contains(orientation))
        return QString();
    return (colour ? QStringLiteral("C_") : QString()) + orientations.value(orientation) + layouts[index];
}

void MRPosterController::showSelectedPosterSettings(int index)
{
    if (index < 0 || index > 3)
        return;
    const bool on = index != 0;
    MRStandalonePDE::setLabelActive(m_ui->overlapTitle, on);
    MRStandalonePDE::setLabelActive(m_ui->overlapMetric, on);
    m_ui->overlapField->setEnabled(on);
    m_ui->overlapStepper->setEnabled(on);
    const bool colour = AdvancedOptionPDEObject->PDEColorDevicestr() != QLatin1String("False");
    const QString name = conceptPictureName(index, colour, AdvancedOptionPDEObject->ReadOrientation());
    if (!name.isNull())
        MRStandalonePDE::setImage(m_ui->posterView, AdvancedOptionPDEObject->pluginBundle().get(), name);
}

void MRPosterController::upAndDownOverlap()
{
    _PDELog(this, QStringLiteral("<< PosterController:upAndDownOverlap >>"));
    if (m_metric) {
        m_ui->overlapField->setText(QString::number(m_ui->overlapStepper->value()));
        return;
    }
    const QString text = MRAdvancedUnits::inchText(m_ui->overlapStepper->value() / 100.0);
    m_ui->overlapField->setText(text);
    m_ui->overlapStepper->setValue(qRound(text.toDouble() * 100));
}

int MRPosterController::getOverlapMMValue(float inches)
{
    return MRAdvancedUnits::millimetresFromInches(inches);
}

QString MRPosterController::getOverlapInchValue(int millimetres)
{
    return MRAdvancedUnits::inchTextFromMillimetres(millimetres);
}

QVariantMap MRPosterController::getPosterStatusString() const
{
    QFile file(getPosterStringFilePath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object().toVariantMap().value(AdvancedOptionPDEObject->LocalizationsInfo()).toMap();
}

QString MRPosterController::getPosterStringFilePath() const
{
    const std::shared_ptr<PDEBundle> bundle = AdvancedOptionPDEObject->pluginBundle();
    return bundle ? bundle->pathForResource(QStringLiteral("PosterString"), QStringLiteral("plist")) : QString();
}
