#include "MRWatermarkController.h"

#include "MRAdvancedOptionPDE.h"
#include "MRFontCatalog.h"
#include "PDEBundle.h"
#include "PDELazyPicture.h"
#include "PDELog.h"
#include "ui_AdvancedOptionPDE.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
const QStringList kColorKeys{"ColorGray", "ColorRed", "ColorYellow", "ColorGreen", "ColorCyan", "ColorBlue", "ColorMagenta"};
const QStringList kColorPictures{"gray", "red", "yellow", "green", "cyan", "blue", "magenta"};
const QStringList kShadeKeys{"ExtraDark", "Dark", "Medium", "Light", "ExtraLight"};
const QStringList kAngleKeys{"HorizontalTitle", "VerticalTitle", "FreeAngleTitle"};
constexpr int kFreeAngle = 2;

QVariantMap readJson(const QString& file)
{
    QFile f(file);
    if (file.isEmpty() || !f.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(f.readAll()).object().toVariantMap();
}
}

MRWatermarkController::MRWatermarkController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui)
    : AdvancedOptionPDEObject(panel), m_ui(ui)
{
    createFontNameList();
    createFontStyleList();
    createFontColorList();
    createFontShadeList();
    createMessageAngleList();
    initializeUI();

    m_ui->fontSizeStepper->setRange(8, 400);
    m_ui->messageAngleStepper->setRange(-90, 90);
    m_ui->fontSizeTextField->setCompanion(m_ui->fontSizeStepper);
    m_ui->messageAngleField->setCompanion(m_ui->messageAngleStepper);
    connect(m_ui->fontNameButton, &QComboBox::activated, this, &MRWatermarkController::selectFontName);
    connect(m_ui->fontStyleButton, &QComboBox::activated, this, &MRWatermarkController::selectFontStyle);
    connect(m_ui->messageAngleButton, &QComboBox::activated, this, &MRWatermarkController::selectMessageAngle);
    connect(m_ui->fontSizeStepper, &PDEStepper::stepped, this, &MRWatermarkController::upAndDownFontSize);
    connect(m_ui->messageAngleStepper, &PDEStepper::stepped, this, &MRWatermarkController::upAndDownMessageAngle);
}

QString MRWatermarkController::localized(const QString& key) const
{
    return AdvancedOptionPDEObject->getLocalizationWithKey(key);
}

void MRWatermarkController::initializeUI()
{
    const auto title = [this](const char* key) { return QStringLiteral("%1:").arg(localized(QString::fromLatin1(key))); };
    m_ui->watermarkTitle->setText(title("VELWatermarkOption"));
    m_ui->fontNameTitle->setText(title("FontNameTitle"));
    m_ui->fontStyleTitle->setText(title("FontStyleTitle"));
    m_ui->fontColorTitle->setText(title("FontColorTitle"));
    m_ui->fontSizeTitle->setText(title("FontSizeTitle"));
    m_ui->fontShadeTitle->setText(title("FontShadeTitle"));
    m_ui->angleTitle->setText(title("AngleTitle"));
    m_ui->messageFieldTitle->setText(title("MessageFieldTitle"));
    m_ui->firstPageOnlyButton->setText(localized(QStringLiteral("FirstPageButtonTitle")));
    m_ui->sizeRangeField->setText(localized(QStringLiteral("FontSizeRange")));
    m_ui->angleRangeField->setText(localized(QStringLiteral("AngleRange")));
    m_ui->watermarkMessageField->initializeWatermarkStringField(localized(QStringLiteral("No Watermark")));
}

void MRWatermarkController::createFontNameList()
{
    m_ui->fontNameButton->clear();
    m_ui->fontNameButton->addItems(MRFontCatalog::familyNames());
}

void MRWatermarkController::createFontStyleList()
{
    m_ui->fontStyleButton->clear();
    const QList<MRFontCatalog::Member> members = MRFontCatalog::members(m_ui->fontNameButton->currentText());
    for (const MRFontCatalog::Member& m : members)
        m_ui->fontStyleButton->addItem(m.style, m.postScriptName);
    m_postScriptFontName = members.isEmpty() ? QString() : members.first().postScriptName;
}

void MRWatermarkController::createFontColorList()
{
    m_ui->fontColorButton->clear();
    const std::shared_ptr<PDEBundle> bundle = AdvancedOptionPDEObject->pluginBundle();
    for (qsizetype i = 0; i < kColorKeys.size(); ++i) {
        const QString picture = bundle ? bundle->pathForResource(kColorPictures[i], QStringLiteral("png")) : QString();
        // The swatch is read only when drawn.
        m_ui->fontColorButton->addItem(PDELazyPicture::icon(picture), localized(kColorKeys[i]), kColorPictures[i]);
    }
}

void MRWatermarkController::createFontShadeList()
{
    m_ui->fontShadeButton->clear();
    for (const QString& key : kShadeKeys)
        m_ui->fontShadeButton->addItem(localized(key));
}

void MRWatermarkController::createMessageAngleList()
{
    m_ui->messageAngleButton->clear();
    for (const QString& key : kAngleKeys)
        m_ui->messageAngleButton->addItem(localized(key));
}

void MRWatermarkController::selectFontName()
{
    createFontStyleList();
}

void MRWatermarkController::selectFontStyle()
{
    const QString name = m_ui->fontStyleButton->currentData().toString();
    if (m_ui->fontStyleButton->currentIndex() >= 0)
        m_postScriptFontName = name;
}

QString MRWatermarkController::postScriptFontNameFullName()
{
    selectFontStyle();
    return m_postScriptFontName;
}

bool MRWatermarkController::selectFontFamily(const QString& family)
{
    int index = m_ui->fontNameButton->findText(family);
    if (index < 0) {
        const QString standIn = MRFontCatalog::resolvedFamily(family);
        index = standIn.isEmpty() ? -1 : m_ui->fontNameButton->findText(standIn);
    }
    if (index < 0)
        return false;
    m_ui->fontNameButton->setCurrentIndex(index);
    createFontStyleList();
    return true;
}

void MRWatermarkController::selectMessageAngle()
{
    SelectWatermarkandAngleAction();
}

void MRWatermarkController::SelectWatermarkandAngleAction()
{
    const bool free = m_ui->messageAngleButton->currentIndex() == kFreeAngle;
    m_ui->messageAngleField->setVisible(free);
    m_ui->messageAngleStepper->setVisible(free);
    m_ui->angleRangeField->setVisible(free);
    m_ui->messageAngleField->setEnabled(free);
    m_ui->messageAngleStepper->setEnabled(free);
}

void MRWatermarkController::upAndDownFontSize()
{
    m_ui->fontSizeTextField->setText(QString::number(m_ui->fontSizeStepper->value()));
}

void MRWatermarkController::upAndDownMessageAngle()
{
    m_ui->messageAngleField->setText(QString::number(m_ui->messageAngleStepper->value()));
}

QList<QVariantMap> MRWatermarkController::getWatermarkArray() const
{
    QList<QVariantMap> records;
    const QVariantMap data = readJson(AdvancedOptionPDEObject->getWatermarkDataFileOriginPath());
    for (const QVariant& v : data)
        records.append(v.toMap());
    return records;
}

QVariantMap MRWatermarkController::getWatermarkStringFilePath() const
{
    const std::shared_ptr<PDEBundle> bundle = AdvancedOptionPDEObject->pluginBundle();
    const QVariantMap all = readJson(bundle ? bundle->pathForResource(QStringLiteral("WatermarkString"), QStringLiteral("plist")) : QString());
    return all.value(AdvancedOptionPDEObject->LocalizationsInfo()).toMap();
}

void MRWatermarkController::setControlsEnabled(bool enabled)
{
    for (QWidget* w : std::initializer_list<QWidget*>{m_ui->fontNameButton, m_ui->fontStyleButton, m_ui->fontColorButton,
                                                      m_ui->fontSizeTextField, m_ui->fontSizeStepper, m_ui->fontShadeButton,
                                                      m_ui->messageAngleButton, m_ui->watermarkMessageField, m_ui->firstPageOnlyButton})
        w->setEnabled(enabled);
    for (QWidget* label : std::initializer_list<QWidget*>{m_ui->fontNameTitle, m_ui->fontStyleTitle, m_ui->fontColorTitle,
                                                          m_ui->fontSizeTitle, m_ui->fontShadeTitle, m_ui->angleTitle,
                                                          m_ui->messageFieldTitle, m_ui->sizeRangeField, m_ui->angleRangeField})
        MRStandalonePDE::setLabelActive(label, enabled);
}

void MRWatermarkController::showSelectedWatermarkSettings(int index, bool fill)
{
    _PDELog(this, QStringLiteral("III <<WatermakrController: showSelectedWatermarkSettings >>"));
    SelectWatermarkandAngleAction();
    const QList<QVariantMap> records = getWatermarkArray();
    static const QStringList fixed{QString(), QStringLiteral("CONFIDENTIAL"), QStringLiteral("DRAFT"), QStringLiteral("TOP SECRET")};
    if (index >= 1 && index <= 3)
        m_selectedWatermarkString = fixed[index];
    const bool colour = AdvancedOptionPDEObject->PDEColorDevicestr() != QLatin1String("False");

    if (index == 0) {
        setControlsEnabled(false);
        m_ui->messageAngleField->setEnabled(false);
        m_ui->messageAngleStepper->setEnabled(false);
        return;
    }
    if (index == 4) {
        // The user composes a watermark of their own.
        setControlsEnabled(true);
        m_ui->fontColorButton->setEnabled(colour);
        SelectWatermarkandAngleAction();
        return;
    }
    setControlsEnabled(true);
    if (index >= 1 && index <= 3) {
        m_ui->watermarkMessageField->setEnabled(false);
        m_ui->watermarkMessageField->clear();
        MRStandalonePDE::setLabelActive(m_ui->messageFieldTitle, false);
    }
    m_ui->fontColorButton->setEnabled(colour);
    for (const QVariantMap& record : fill ? records : QList<QVariantMap>()) {
        if (record.value(QStringLiteral("string")).toString() == m_selectedWatermarkString) {
            fillFromRecord(record);
            break;
        }
    }
    if (!colour)
        m_ui->fontColorButton->setCurrentIndex(0);
    SelectWatermarkandAngleAction();
}

void MRWatermarkController::fillFromRecord(const QVariantMap& record)
{
    const auto text = [&](const char* key) { return record.value(QString::fromLatin1(key)).toString(); };
    selectFontFamily(text("fontName"));
    const int style = text("fontStyle").toInt();
    if (style >= 0 && style < m_ui->fontStyleButton->count()) {
        m_ui->fontStyleButton->setCurrentIndex(style);
        selectFontStyle();
    }
    if (AdvancedOptionPDEObject->PDEColorDevicestr() != QLatin1String("False"))
        m_ui->fontColorButton->setCurrentIndex(qBound(0, text("fontColor").toInt(), m_ui->fontColorButton->count() - 1));
    else
        m_ui->fontColorButton->setCurrentIndex(0);
    m_ui->fontSizeTextField->setText(text("fontSize"));
    m_ui->fontSizeStepper->setValue(text("fontSize").toInt());
    m_ui->fontShadeButton->setCurrentIndex(qBound(0, text("fontDarkness").toInt(), m_ui->fontShadeButton->count() - 1));
    const QString angle = text("messageAngle");
    if (angle == QLatin1String("0")) {
        m_ui->messageAngleButton->setCurrentIndex(0);
    } else if (angle == QLatin1String("90")) {
        m_ui->messageAngleButton->setCurrentIndex(1);
    } else {
        m_ui->messageAngleButton->setCurrentIndex(kFreeAngle);
        m_ui->messageAngleField->setEnabled(true);
        m_ui->messageAngleStepper->setEnabled(true);
        m_ui->messageAngleField->setText(angle);
        m_ui->messageAngleStepper->setValue(angle.toInt());
    }
    m_ui->firstPageOnlyButton->setChecked(text("firstPageOnly").toInt() != 0);
}
