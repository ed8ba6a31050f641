#include "MRPDEHardCopySecurityController.h"

#include "MRPDEBasicTrigger.h"
#include "MRPDEComplexTrigger.h"
#include "MRPDESecureTextFieldController.h"
#include "MRPDESecurityPanelController.h"
#include "MRPDEStepperController.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "MRPDE_MACTextFieldController.h"
#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "ui_PasswordJobView.h"
#include "ui_SecureWatermarkView.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>

namespace {
enum : int { kNOT = 2 };
}

MRPDEHardCopySecurityController::MRPDEHardCopySecurityController(MRPDESecurityPanelController* pdeSecurityPanelController)
    : _pdeSecurityPanelController(pdeSecurityPanelController), m_secureWatermarkUi(std::make_unique<Ui::SecureWatermarkView>()),
      m_passwordJobUi(std::make_unique<Ui::PasswordJobView>())
{
    // The mode's sub-views are ours; the panel shows one at a time.
    m_secureWatermarkView = new QWidget;
    m_secureWatermarkUi->setupUi(m_secureWatermarkView);
    m_passwordJobView = new QWidget;
    m_passwordJobUi->setupUi(m_passwordJobView);
    for (QWidget* view : {m_secureWatermarkView.data(), m_passwordJobView.data()})
        for (QLabel* l : view->findChildren<QLabel*>())
            if (l->text().startsWith(QLatin1String("KEY_")))
                l->setText(localized(l->text()));
}

MRPDEHardCopySecurityController::~MRPDEHardCopySecurityController()
{
    for (const PDEFeaturePtr& f : std::as_const(m_currentValueObservedFeatures))
        disconnect(f.get(), nullptr, this, nullptr);
    delete m_secureWatermarkView.data();
    delete m_passwordJobView.data();
}

MRPDE_MACChangeHandlerModel* MRPDEHardCopySecurityController::dataModel() const
{
    return _pdeSecurityPanelController ? _pdeSecurityPanelController->dataModel() : nullptr;
}

QString MRPDEHardCopySecurityController::localized(const QString& key) const
{
    return _pdeSecurityPanelController ? _pdeSecurityPanelController->localized(key) : key;
}

QString MRPDEHardCopySecurityController::passwordCharacters()
{
    return QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz1234567890");
}

bool MRPDEHardCopySecurityController::shouldDisplayTab() const
{
    return dataModel() && dataModel()->featureWithKey(QStringLiteral("VELHardCopySecurity"));
}

void MRPDEHardCopySecurityController::configure()
{
    loadSecureWatermarkView();
    loadPasswordJobView();
    if (PDEFeaturePtr text = dataModel() ? dataModel()->featureWithKey(QStringLiteral("SWMTEXT")) : nullptr) {
        m_currentValueObservedFeatures.append(text);
        text->observeCurrentValue(this, [this](MRPDE_MACFeature*) { currentSecureWaterMarkClicked(); }, true);
    }
}

void MRPDEHardCopySecurityController::loadSecureWatermarkView()
{
    MRPDESecurityPanelController* panel = _pdeSecurityPanelController;
    MRPDE_MACChangeHandlerModel* model = dataModel();
    if (!panel || !model)
        return;
    const auto& u = *m_secureWatermarkUi;
    const QList<PDEFeatureRow> rows{{"KEY_HardCopyCurrSecureWatermark", {"SWMTEXT"}}, {"KEY_HardCopySize", {"SWMSIZE"}},
                                    {"KEY_HardCopyDirection", {"SWMDIRECTION"}},     {"KEY_HardCopyPattern", {"SWMPATTERN"}},
                                    {"KEY_HardCopyColor", {"SWMCOLOR"}},             {"KEY_HardCopyDarkness", {"SWMDARKNESS"}}};
    const QList<std::pair<QWidget*, QWidget*>> controls{
        {u.currentSecureWaterMarkLabel, u.currentSecureWaterMarkPopUpBtn}, {u.hardCopySizeLabel, u.hardCopySizePopUpBtn},
        {u.hardCopyDirectionLabel, u.hardCopyDirectionPopUpBtn},         {u.hardCopyPatternLabel, u.hardCopyPatternPopUpBtn},
        {u.hardCopyColorLabel, u.hardCopyColorPopUpBtn},                 {u.hardCopyDarkenessLabel, u.hardCopyDarknessPopUpBtn}};
    // Each row keeps its place; a row the printer lacks is hidden.
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString key = rows[i].candidates.first();
        panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACLabelController>(), key,
                                                                                 rows[i].identifier, controls[i].first);
        panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACPopUpButtonController>(),
                                                                                 key, rows[i].identifier, controls[i].second);
    }
    const QString custom = QStringLiteral("HCSCustomWatermark");
    const QString customIdentifier = QStringLiteral("KEY_HCSCustomWatermark");
    if (PDEFeaturePtr customText = model->featureWithKey(custom))
        customText->setDefaultValue(PDE_MACChoice::choiceWithKeywordDisplayString(QLatin1String(""), QLatin1String("")));
    MRPDEControllerPtr customLabel = panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
        PDEControllerClass<MRPDE_MACLabelController>(), custom, customIdentifier, u.waterMarkMessageLabel);
    MRPDEControllerPtr customField = panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
        PDEControllerClass<MRPDE_MACTextFieldController>(), custom, customIdentifier, u.watermarkMessageField);
    // The custom text is for the "Custom" watermark only.
    if (PDEFeaturePtr text = model->featureWithKey(QStringLiteral("SWMTEXT"))) {
        const PDETriggerPtr notCustom = PDEMakeComplexTrigger(kNOT, {PDEMakeBasicTrigger(text, QStringLiteral("Custom"))});
        for (const MRPDEControllerPtr& c : {customLabel, customField})
            if (c)
                c->setDisableTrigger(notCustom);
    }
}

void MRPDEHardCopySecurityController::loadPasswordJobView()
{
    MRPDESecurityPanelController* panel = _pdeSecurityPanelController;
    MRPDE_MACChangeHandlerModel* model = dataModel();
    if (!panel || !model)
        return;
    const auto& u = *m_passwordJobUi;
    const PDEAttributePtr maxLength = model->attributeWithKey(QStringLiteral("HCSMaxLength"));
    const PDEAttributePtr minLength = model->attributeWithKey(QStringLiteral("HCSMinLength"));
    const qint64 maximum = maxLength ? PDEIntValue(maxLength->attributeValue()) : 0;
    const qint64 minimum = minLength ? PDEIntValue(minLength->attributeValue()) : 0;
    struct Row {
        QString key, identifier;
        QWidget *label, *field, *range;
    };
    for (const Row& row : {Row{"HCSEnterPassword", "KEY_HardCopyEnterPassword", u.hardCopyEnterPasswordLabel, u.hardCopyEnterPasswordField,
                               u.hardCopyEnterPasswordRangeLabel},
                           Row{"HCSConfirmPassword", "KEY_HCSConfirmPassword", u.hardCopyConfirmPasswordLabel,
                               u.hardCopyConfirmPasswordField, u.hardCopyConfirmPasswordRangeLabel}}) {
        panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(PDEControllerClass<MRPDE_MACLabelController>(), row.key,
                                                                                 row.identifier, row.label);
        auto field = std::dynamic_pointer_cast<MRPDESecureTextFieldController>(
            panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
                PDEControllerClass<MRPDESecureTextFieldController>(), row.key, row.identifier, row.field));
        if (field)
            field->setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(
                PDECharacterSet::fromString(passwordCharacters()), PDECharacterSet(), maximum, minimum);
        auto range = std::dynamic_pointer_cast<MRPDE_MACLabelController>(panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
            PDEControllerClass<MRPDE_MACLabelController>(), row.key, row.identifier, row.range));
        if (range)
            range->contentFromLocalizedAttributeKey(QStringLiteral("HCSPasswordRange"));
    }
}

void MRPDEHardCopySecurityController::defaultItems()
{
    if (m_defaultItemsRead)
        return;
    m_defaultItemsRead = true;
    std::shared_ptr<PDEBundle> bundle = dataModel() ? dataModel()->pdeBundle() : nullptr;
    const QString path = bundle ? bundle->pathForResource(QStringLiteral("SecureWatermarkData"), QStringLiteral("plist")) : QString();
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        _PDELog(this, QStringLiteral("PDEHardCopySecurityController (control): SecureWatermarkData could not be read"));
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        _PDELog(this, QStringLiteral("PDEHardCopySecurityController (control): SecureWatermarkData is not a table: %@"), error.errorString());
        return;
    }
    m_defaultItems = document.object().toVariantMap();
}

void MRPDEHardCopySecurityController::currentSecureWaterMarkClicked()
{
    MRPDE_MACChangeHandlerModel* model = dataModel();
    const PDEFeaturePtr text = model ? model->featureWithKey(QStringLiteral("SWMTEXT")) : nullptr;
    if (!text || !text->currentValue())
        return;
    defaultItems();
    const QVariant entry = m_defaultItems.value(text->currentValue()->keyword());
    if (!entry.isValid())
        return;
    const QVariantMap values = entry.toMap();
    for (const char* key : {"SWMSIZE", "SWMDIRECTION", "SWMPATTERN", "SWMCOLOR", "SWMDARKNESS"}) {
        const QString k = QString::fromLatin1(key);
        if (!values.contains(k))
            continue;
        if (PDEFeaturePtr f = model->featureWithKey(k))
            f->setCurrentValueWithChoiceWithKeyword(values.value(k).toString());
    }
}

bool MRPDEHardCopySecurityController::isEverythingAlright()
{
    MRPDE_MACChangeHandlerModel* model = dataModel();
    const PDEFeaturePtr mode = model ? model->featureWithKey(QStringLiteral("VELHardCopySecurity")) : nullptr;
    if (!mode || !mode->currentValue() || mode->currentValue()->keyword() != QLatin1String("Password"))
        return true;
    const PDEFeaturePtr enter = model->featureWithKey(QStringLiteral("HCSEnterPassword"));
    const PDEFeaturePtr confirm = model->featureWithKey(QStringLiteral("HCSConfirmPassword"));
    if (!enter || !confirm)
        return true;
    const auto text = [](const PDEFeaturePtr& f) { return f->currentValue() ? f->currentValue()->keyword() : QString(); };
    if (text(enter) == text(confirm))
        return true;
    QString message;
    if (const PDEAttributePtr warning = model->attributeWithKey(QStringLiteral("HCSWarningText"))) {
        const PDEAttributePtr local = warning->localizedAttribute();
        message = local ? local->attributeValue() : warning->attributeValue();
    } else {
        message = localized(QStringLiteral(
            "You must enter a 1-9 alphanumeric password and re-enter it for confirmation in order to use Password Job feature."));
    }
    PDEAlerts::Alert alert;
    alert.title = localized(QStringLiteral("Hard Copy Security"));
    alert.message = message;
    alert.defaultButton = localized(QStringLiteral("OK"));
    alert.informational = true;
    PDEAlerts::runAlertPanel(alert);
    if (_pdeSecurityPanelController)
        _pdeSecurityPanelController->selectHardCopySecurityTabViewitem();
    return false;
}
