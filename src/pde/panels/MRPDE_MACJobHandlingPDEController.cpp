#include "MRPDE_MACJobHandlingPDEController.h"

#include "MRPDESecureTextFieldController.h"
#include "MRPDEStringFormatter.h"
#include "MRPDE_MACDatePickerController.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "MRPDE_MACTextFieldController.h"
#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "PDEStringExtension.h"
#include "ui_JAConfirmPopUpWindow.h"
#include "ui_JobHandling.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {
const QString kLine = QStringLiteral("-----------------------------------");
const QString kTable = QStringLiteral("Localizable");
constexpr qint64 kUserIDMaximum = 64;
constexpr qint64 kJobNameMaximum = 64;

// The built-in alert texts, used when the printer has no text of its own.
const QString kPrintModeWarning = QStringLiteral(
    "You must enter an alphanumeric password and re-enter it for confirmation in order to use Print Mode feature");
const QString kJobAccountingWarning = QStringLiteral(
    "You must enter an alphanumeric password and re-enter it for confirmation in order to use Job Accounting feature");
const QString kPINWarning = QStringLiteral("You must enter a 4-32 digit PIN Code.");

// The print modes by number, as the printer's mode lists name them.
const QHash<QString, QString> kPrintModes{{"1", "Normal"}, {"2", "Confidential"}, {"3", "Store"}, {"4", "StoreNPrint"}, {"5", "Delay"}};

const QStringList kFreeTextFeatures{"EnterPassword", "ConfirmPassword", "AccountPassword", "ConfirmAcctPassword",
                                    "NewPIN",        "ConfirmNewPIN",   "PINCode",         "PrintAt"};

bool isTrue(const PDEAttributePtr& attribute)
{
    return attribute && attribute->attributeValue().trimmed().compare(QLatin1String("True"), Qt::CaseInsensitive) == 0;
}
}

MRPDE_MACJobHandlingPDEController::MRPDE_MACJobHandlingPDEController(MRPDE_MACChangeHandlerModel* model)
    : MRPDEMainBaseController(model), m_ui(std::make_unique<Ui::JobHandling>()), m_rules(model)
{
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController(control): ======================================== START Loading JOB "
                                 "HANDLING Plugin ======================================================"));
    auto* view = new QWidget;
    m_ui->setupUi(view);
    setMainView(view);
    // The sub-views stay outside the panel until their value is chosen.
    auto& u = *m_ui;
    for (QWidget* v : {u.customNormalView, u.customConfidentialView, u.customStorePrintView, u.customPrintScheduleView,
                       u.customJobAccountingAccountingView, u.customJobAccountingIDOnlyView, u.customJobAccountingPINCodeView}) {
        v->hide();
        v->setParent(nullptr);
        m_subViews.append(v);
    }
    delete u.subViews;
    u.subViews = nullptr;

    setUpPrintModeConstraints();
    const bool jobSetting = loadJobSettingTab();
    const bool jobAccounting = loadJobAccountingTab();
    if (jobSetting || jobAccounting) {
        initiateJAConfirmPopUpWindow();
        for (const QString& key : kFreeTextFeatures)
            if (PDEFeaturePtr f = model ? model->featureWithKey(key) : nullptr)
                f->setIsCurrentValueAPPDChoice(false);
    }
    connect(u.m_tabView, &QTabWidget::currentChanged, this, [this](int index) { tabViewDidSelectTabViewItem(m_ui->m_tabView, index); });
}

MRPDE_MACJobHandlingPDEController::~MRPDE_MACJobHandlingPDEController()
{
    for (const PDEFeaturePtr& f : std::as_const(m_currentValueObservedFeatures))
        disconnect(f.get(), nullptr, this, nullptr);
    // Controllers first: they refer to the controls below.
    controllersMap().clear();
    delete m_jaConfirmWindow.data();
    for (const QPointer<QWidget>& v : std::as_const(m_subViews))
        if (v && !v->parentWidget())
            delete v.data();
}

QTabWidget* MRPDE_MACJobHandlingPDEController::tabView() const
{
    return m_ui->m_tabView;
}

PDEFeaturePtr MRPDE_MACJobHandlingPDEController::feature(const char* key) const
{
    return dataModel() ? dataModel()->featureWithKey(QString::fromLatin1(key)) : nullptr;
}

QString MRPDE_MACJobHandlingPDEController::currentText(const char* key) const
{
    const PDEFeaturePtr f = feature(key);
    return f && f->currentValue() ? f->currentValue()->keyword() : QString();
}

QString MRPDE_MACJobHandlingPDEController::localized(const QString& key) const
{
    std::shared_ptr<PDEBundle> bundle = dataModel() ? dataModel()->pdeBundle() : nullptr;
    return bundle ? bundle->localizedString(key, kTable) : key;
}

QString MRPDE_MACJobHandlingPDEController::localizedAttributeText(const QString& key, const QString& builtInKey) const
{
    const PDEAttributePtr attribute = dataModel() ? dataModel()->attributeWithKey(key) : nullptr;
    if (!attribute)
        return localized(builtInKey);
    const PDEAttributePtr translation = attribute->localizedAttribute();
    return translation ? translation->attributeValue() : attribute->attributeValue();
}

// --- print modes ---------------------------------------------------------------

void MRPDE_MACJobHandlingPDEController::setUpPrintModeConstraints()
{
    MRPDE_MACChangeHandlerModel* model = dataModel();
    if (!model)
        return;
    const PDEFeaturePtr printMode = feature("JobSetting");
    const PDEFeaturePtr memory = feature("InstalledMemory");
    const PDEFeaturePtr disk = feature("Option4");
    const PDEFeaturePtr secureRelease = feature("VELSecureReleaseOption3");
    const PDEAttributePtr criticalMemory = model->attributeWithKey(QStringLiteral("CriticalMemorySize"));
    const PDEAttributePtr memoryModes = model->attributeWithKey(QStringLiteral("JobSettingMemoryOn"));
    const PDEAttributePtr diskModes = model->attributeWithKey(QStringLiteral("JobSettingHDDOn"));

    // With a disk or memory option, a mode is offered only when the hardware allows it.
    if ((disk || memory) && printMode) {
        printMode->setSelectable(false);
        for (const PDEChoicePtr& c : std::as_const(printMode->choices()))
            c->setSelectable(false);
    }
    if (disk) {
        // The disk decides alone; the memory rule does not apply.
        if (disk->currentValue() && disk->currentValue()->keyword() == QLatin1String("True") && diskModes)
            enablePrintModeOptionsBasedOnArrayPrintModeFeature(diskModes->attributeValue().split(QLatin1Char(',')), printMode);
    } else if (memory && criticalMemory) {
        const std::optional<int> installed = filteredNumberFromString(memory->currentValue() ? memory->currentValue()->keyword() : QString());
        const std::optional<int> threshold = filteredNumberFromString(criticalMemory->attributeValue());
        if (installed && threshold && *installed >= *threshold && memoryModes)
            enablePrintModeOptionsBasedOnArrayPrintModeFeature(memoryModes->attributeValue().split(QLatin1Char(',')), printMode);
    }
    if (secureRelease && secureRelease->currentValue() && secureRelease->currentValue()->keyword() != QLatin1String("Off"))
        _isInstOptSecReleaseEnabled = true;
}

void MRPDE_MACJobHandlingPDEController::enablePrintModeOptionsBasedOnArrayPrintModeFeature(const QStringList& modes,
                                                                                          const PDEFeaturePtr& printModeFeature)
{
    if (!printModeFeature || modes.isEmpty())
        return;
    for (const QString& mode : modes) {
        // "1, 2" is read as "1,2".
        const QString keyword = kPrintModes.value(mode.trimmed());
        if (keyword.isEmpty())
            continue;
        if (PDEChoicePtr choice = printModeFeature->getChoiceWithKeyword(keyword)) {
            printModeFeature->setSelectable(true);
            choice->setSelectable(true);
        }
    }
}

// --- tabs and sub-views --------------------------------------------------------

void MRPDE_MACJobHandlingPDEController::removeTab(QWidget* page)
{
    const int index = m_ui->m_tabView->indexOf(page);
    if (index >= 0)
        m_ui->m_tabView->removeTab(index);
    page->setParent(nullptr);
    delete page;
}

void MRPDE_MACJobHandlingPDEController::observeFeature(const PDEFeaturePtr& f)
{
    if (!m_currentValueObservedFeatures.contains(f))
        m_currentValueObservedFeatures.append(f);
    f->observeCurrentValue(this, [this](MRPDE_MACFeature* changed) { observeValueForKeyPath(changed); }, true);
}

bool MRPDE_MACJobHandlingPDEController::loadJobSettingTab()
{
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController (control): %1 Loading JobSetting tab %1").arg(kLine));
    const PDEFeaturePtr printMode = feature("JobSetting");
    auto& u = *m_ui;
    if (printMode) {
        u.m_tabView->setTabText(u.m_tabView->indexOf(u.tabViewItemJobSetting), localized(QStringLiteral("Job Setting")));
        bindLabel("JobSetting", "KEY_PrintMode", u.printModeLabel);
        bind(PDEControllerClass<MRPDE_MACPopUpButtonController>(), "JobSetting", "KEY_PrintMode", u.printModePopUpButton);
        loadNormalView();
        loadConfidentialView();
        loadStoreView();
        loadPrintAtView();
        observeFeature(printMode);
    } else {
        removeTab(u.tabViewItemJobSetting);
        u.tabViewItemJobSetting = nullptr;
    }
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController (control): %1 END JobSetting Tab %1").arg(kLine));
    for (int i = 0; i < 3; ++i)
        _PDELog(this, QStringLiteral("'"));
    return printMode != nullptr;
}

bool MRPDE_MACJobHandlingPDEController::loadJobAccountingTab()
{
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController (control): %1 loadJobAccountingTab %1").arg(kLine));
    const PDEFeaturePtr accountType = feature("AccountType");
    auto& u = *m_ui;
    if (accountType) {
        u.m_tabView->setTabText(u.m_tabView->indexOf(u.tabViewItemJobAccounting), localized(QStringLiteral("Job Accounting")));
        bindLabel("AccountType", "KEY_AccountType", u.accountingTypeLabel);
        bind(PDEControllerClass<MRPDE_MACPopUpButtonController>(), "AccountType", "KEY_AccountType", u.accountingTypePopUpButton);
        loadAccountingView();
        loadIDOnlyView();
        loadPINCodeView();
        observeFeature(accountType);
    } else {
        removeTab(u.tabViewItemJobAccounting);
        u.tabViewItemJobAccounting = nullptr;
    }
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController (control): %1 END loadJobAccountingTab %1").arg(kLine));
    for (int i = 0; i < 3; ++i)
        _PDELog(this, QStringLiteral("'"));
    return accountType != nullptr;
}

void MRPDE_MACJobHandlingPDEController::logViewLine(const QString& what)
{
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController (control): %1 %2 %1").arg(kLine, what));
}

MRPDEControllerPtr MRPDE_MACJobHandlingPDEController::bind(const MRPDEControllerFactory& make, const char* key, const char* identifier,
                                                           QWidget* control)
{
    return createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(make, QString::fromLatin1(key),
                                                                              QString::fromLatin1(identifier), control);
}

void MRPDE_MACJobHandlingPDEController::bindLabel(const char* key, const char* identifier, QWidget* control)
{
    bind(PDEControllerClass<MRPDE_MACLabelController>(), key, identifier, control);
}

void MRPDE_MACJobHandlingPDEController::bindRangeLabel(const char* key, const char* identifier, QWidget* control, const char* rangeAttribute)
{
    const MRPDEControllerPtr c = bind(PDEControllerClass<MRPDE_MACLabelController>(), key, identifier, control);
    if (auto* label = dynamic_cast<MRPDE_MACLabelController*>(c.get()))
        label->contentFromLocalizedAttributeKey(QString::fromLatin1(rangeAttribute));
}

void MRPDE_MACJobHandlingPDEController::restrict(const MRPDEControllerPtr& controller, const PDECharacterSet& allowed,
                                                 const PDECharacterSet& disallowed, qint64 maximum, qint64 minimum)
{
    if (auto* field = dynamic_cast<MRPDE_MACTextFieldController*>(controller.get()))
        field->setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(allowed, disallowed, maximum, minimum);
}

void MRPDE_MACJobHandlingPDEController::bindUserIDAndJobName(QWidget* userIDLabel, QWidget* userIDField, QWidget* jobNameLabel,
                                                             QWidget* jobNameField)
{
    bindLabel("USERID", "KEY_UserID", userIDLabel);
    bindLabel("JOBNAME", "KEY_JobName", jobNameLabel);
    restrict(bind(PDEControllerClass<MRPDE_MACTextFieldController>(), "USERID", "KEY_UserID", userIDField), PDEJobHandlingRules::userIDSet(),
             PDECharacterSet(), kUserIDMaximum);
    restrict(bind(PDEControllerClass<MRPDE_MACTextFieldController>(), "JOBNAME", "KEY_JobName", jobNameField), PDECharacterSet(),
             PDEJobHandlingRules::jobNameForbiddenSet(), kJobNameMaximum);
}

void MRPDE_MACJobHandlingPDEController::loadNormalView()
{
    logViewLine(QStringLiteral("loadNormalView"));
    auto& u = *m_ui;
    bindUserIDAndJobName(u.normalViewUserIdLabel, u.normalViewUserIdTextField, u.normalViewJobNameLabel, u.normalViewJobNameTextField);
    // The two rows go together: both shown or both hidden, both usable or neither.
    const PDEFeaturePtr userID = feature("USERID");
    const PDEFeaturePtr jobName = feature("JOBNAME");
    const QList<QWidget*> rows{u.normalViewUserIdTextField, u.normalViewJobNameTextField, u.normalViewUserIdLabel, u.normalViewJobNameLabel};
    if (!userID || !jobName) {
        for (QWidget* w : rows)
            w->setVisible(false);
    } else {
        const bool enabled = userID->selectable() && jobName->selectable();
        for (const char* id : {"KEY_UserID", "KEY_JobName"})
            for (const MRPDEControllerPtr& c : controllersForIdentifier(QString::fromLatin1(id)))
                if (rows.contains(c->control()))
                    c->setEnabled(enabled);
    }
    logViewLine(QStringLiteral("END loadNormalView"));
}

void MRPDE_MACJobHandlingPDEController::loadConfidentialView()
{
    logViewLine(QStringLiteral("loadConfidentialView"));
    auto& u = *m_ui;
    bindLabel("EnterPassword", "KEY_EnterPassword", u.confidentialViewEnterPasswordLabel);
    bindLabel("ConfirmPassword", "KEY_ConfirmPassword", u.confidentialViewConfirmPasswordLabel);
    bindRangeLabel("EnterPassword", "KEY_EnterPassword", u.confidentialViewEnterPasswordRangeLabel, "PWRange");
    bindRangeLabel("ConfirmPassword", "KEY_ConfirmPassword", u.confidentialViewConfirmPasswordRangeLabel, "ConfirmRange");
    bindUserIDAndJobName(u.confidentialViewUserIdLabel, u.confidentialViewUserIdTextField, u.confidentialViewJobNameLabel,
                         u.confidentialViewJobNameTextField);
    const MRPDEControllerPtr password =
        bind(PDEControllerClass<MRPDESecureTextFieldController>(), "EnterPassword", "KEY_EnterPassword", u.confidentialViewEnterPasswordTextField);
    const MRPDEControllerPtr confirm = bind(PDEControllerClass<MRPDESecureTextFieldController>(), "ConfirmPassword", "KEY_ConfirmPassword",
                                            u.confidentialViewConfirmPasswordTextField);
    if (_isInstOptSecReleaseEnabled) {
        // The secure release kit holds the job: no password is asked here.
        const QList<QWidget*> rows{u.confidentialViewEnterPasswordLabel,      u.confidentialViewConfirmPasswordLabel,
                                   u.confidentialViewEnterPasswordRangeLabel, u.confidentialViewConfirmPasswordRangeLabel,
                                   u.confidentialViewEnterPasswordTextField,  u.confidentialViewConfirmPasswordTextField};
        for (const char* id : {"KEY_EnterPassword", "KEY_ConfirmPassword"})
            for (const MRPDEControllerPtr& c : controllersForIdentifier(QString::fromLatin1(id)))
                if (rows.contains(c->control()))
                    c->setEnabled(false);
    } else {
        const qint64 minimum = m_rules.lengthAttribute(QStringLiteral("MinLength"));
        const qint64 maximum = m_rules.lengthAttribute(QStringLiteral("MaxLength"));
        auto set = [this](const char* range) {
            return m_rules.rangeIsAlphanumeric(QString::fromLatin1(range)) ? PDEJobHandlingRules::alphanumericSet()
                                                                           : PDEJobHandlingRules::printPasswordSet();
        };
        restrict(password, set("PWRange"), PDECharacterSet(), maximum, minimum);
        restrict(confirm, set("ConfirmRange"), PDECharacterSet(), maximum, minimum);
    }
    logViewLine(QStringLiteral("END loadConfidentialView"));
}

void MRPDE_MACJobHandlingPDEController::loadStoreView()
{
    logViewLine(QStringLiteral("loadStoreView"));
    auto& u = *m_ui;
    bindUserIDAndJobName(u.storeViewUserIdLabel, u.storeViewUserIdTextField, u.storeViewJobNameLabel, u.storeViewJobNameTextField);
    logViewLine(QStringLiteral("END loadStoreView"));
}

void MRPDE_MACJobHandlingPDEController::loadPrintAtView()
{
    logViewLine(QStringLiteral("loadPrintAtView"));
    auto& u = *m_ui;
    bindLabel("PrintAt", "KEY_PrintAt", u.printAtLabel);
    bind(PDEControllerClass<MRPDE_MACDatePickerController>(), "PrintAt", "KEY_PrintAt", u.printAtDatePicker);
    bindUserIDAndJobName(u.printAtViewUserIdLabel, u.printAtViewUserIdTextField, u.printAtJobNameLabel, u.printAtJobNameTextField);
    bind(PDEControllerClass<MRPDE_MACPopUpButtonController>(), "Permission", "KEY_Permission", u.jobAccountingAccountingPermissionPopUpButton);
    logViewLine(QStringLiteral("END loadPrintAtView"));
}

void MRPDE_MACJobHandlingPDEController::loadAccountingView()
{
    logViewLine(QStringLiteral("loadAccountingView"));
    auto& u = *m_ui;
    bindLabel("Permission", "KEY_Permission", u.jobAccountingAccountingPermissionLabel);
    bindLabel("AccountID", "KEY_AccountID", u.jobAccountingAccountingUserIDLabel);
    bindLabel("AccountPassword", "KEY_AccountPassword", u.jobAccountingAccountingPasswordLabel);
    bindLabel("ConfirmAcctPassword", "KEY_AccountConfirmPassword", u.jobAccountingAccountingConfirmPasswordLabel);
    bindRangeLabel("AccountPassword", "KEY_AccountPassword", u.jobAccountingAccountingPasswordRangeLabel, "APWRange");
    bindRangeLabel("ConfirmAcctPassword", "KEY_AccountConfirmPassword", u.jobAccountingAccountingConfirmPasswordRangeLabel, "AConfirmRange");
    bind(PDEControllerClass<MRPDE_MACPopUpButtonController>(), "Permission", "KEY_Permission", u.jobAccountingAccountingPermissionPopUpButton);
    restrict(bind(PDEControllerClass<MRPDE_MACTextFieldController>(), "AccountID", "KEY_AccountID", u.jobAccountingAccountingUserIDTextField),
             m_rules.accountIDSet(), PDECharacterSet(), m_rules.accountIDMaximum());

    // The password field is registered under the confidential password's identifier.
    const qint64 minimum = m_rules.lengthAttribute(QStringLiteral("AccountMinLength"));
    const qint64 maximum = m_rules.lengthAttribute(QStringLiteral("AccountMaxLength"));
    const QList<std::pair<MRPDEControllerPtr, const char*>> fields{
        {bind(PDEControllerClass<MRPDESecureTextFieldController>(), "AccountPassword", "KEY_EnterPassword",
              u.jobAccountingAccountingPasswordTextField),
         "APWRange"},
        {bind(PDEControllerClass<MRPDESecureTextFieldController>(), "ConfirmAcctPassword", "KEY_AccountConfirmPassword",
              u.jobAccountingAccountingConfirmPasswordTextField),
         "AConfirmRange"}};
    for (const auto& [controller, range] : fields) {
        if (!controller)
            continue;
        controller->setDelayedFeatureWrite(true);
        restrict(controller,
                 m_rules.rangeIsAlphanumeric(QString::fromLatin1(range)) ? PDEJobHandlingRules::alphanumericSet()
                                                                         : PDEJobHandlingRules::accountPasswordSet(),
                 PDECharacterSet(), maximum, minimum);
    }
    logViewLine(QStringLiteral("END loadAccountingView"));
}

void MRPDE_MACJobHandlingPDEController::loadIDOnlyView()
{
    logViewLine(QStringLiteral("loadIDOnlyView"));
    auto& u = *m_ui;
    bindLabel("Permission", "KEY_Permission", u.jobAccountingIDOnlypermissionLabel);
    bindLabel("PINCode", "KEY_PinCode", u.jobAccountingIDOnlyUserIDLabel);
    bind(PDEControllerClass<MRPDE_MACPopUpButtonController>(), "Permission", "KEY_Permission", u.jobAccountingIDOnlyPermissionPopUpButton);
    restrict(bind(PDEControllerClass<MRPDE_MACTextFieldController>(), "PINCode", "KEY_PinCode", u.jobAccountingIDOnlyUserIDTextField),
             m_rules.accountIDSet(), PDECharacterSet(), m_rules.accountIDMaximum());
    bindRangeLabel("PINCode", "KEY_PinCode", u.jobAccountingIDOnlyUserIDRangeLabel, "PINCodeRange");
    logViewLine(QStringLiteral("END loadIDOnlyView"));
}

void MRPDE_MACJobHandlingPDEController::loadPINCodeView()
{
    logViewLine(QStringLiteral("loadPINCodeView"));
    auto& u = *m_ui;
    bindLabel("Permission", "KEY_Permission", u.jobAccountingPINCodePermissionLabel);
    bindLabel("NewPIN", "KEY_NewPIN", u.jobAccountingPINCodePasswordLabel);
    bindLabel("ConfirmNewPIN", "KEY_ConfirmNewPIN", u.jobAccountingPINCodeConfirmPasswordLabel);
    bind(PDEControllerClass<MRPDE_MACPopUpButtonController>(), "Permission", "KEY_Permission", u.jobAccountingPINCodePermissionPopUpButton);
    bindRangeLabel("NewPIN", "KEY_NewPIN", u.jobAccountingPINCodePasswordRangeLabel, "NPRange");
    bindRangeLabel("ConfirmNewPIN", "KEY_ConfirmNewPIN", u.jobAccountingPINCodeConfirmPasswordRangeLabel, "NPConfirmRange");
    const qint64 minimum = m_rules.lengthAttribute(QStringLiteral("NewPINMinLength"));
    const qint64 maximum = m_rules.lengthAttribute(QStringLiteral("NewPINMaxLength"));
    for (const MRPDEControllerPtr& c :
         {bind(PDEControllerClass<MRPDESecureTextFieldController>(), "NewPIN", "KEY_NewPIN", u.jobAccountingPINCodePasswordTextField),
          bind(PDEControllerClass<MRPDESecureTextFieldController>(), "ConfirmNewPIN", "KEY_ConfirmNewPIN",
               u.jobAccountingPINCodeConfirmPasswordTextField)}) {
        if (!c)
            continue;
        c->setDelayedFeatureWrite(true);
        restrict(c, PDECharacterSet::decimalDigits(), PDECharacterSet(), maximum, minimum);
    }
    logViewLine(QStringLiteral("END loadPINCodeView"));
}

void MRPDE_MACJobHandlingPDEController::showSubView(QWidget* container, QWidget* subView)
{
    for (QWidget* child : container->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        child->hide();
        child->setParent(nullptr);
    }
    if (!subView)
        return;
    subView->setParent(container);
    subView->move(0, 0);
    subView->show();
}

QWidget* MRPDE_MACJobHandlingPDEController::currentPrintModeView() const
{
    const auto children = m_ui->customPrintModeMainView->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    return children.value(0);
}

QWidget* MRPDE_MACJobHandlingPDEController::currentJobAccountingView() const
{
    const auto children = m_ui->customJobAccountingMainView->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    return children.value(0);
}

void MRPDE_MACJobHandlingPDEController::observeValueForKeyPath(MRPDE_MACFeature* f)
{
    if (!f || !f->currentValue())
        return;
    const QString value = f->currentValue()->keyword();
    auto& u = *m_ui;
    if (f->keyword() == QLatin1String("JobSetting")) {
        QWidget* view = nullptr;
        if (value == QLatin1String("Store") || value == QLatin1String("StoreNPrint"))
            view = u.customStorePrintView;
        else if (value == QLatin1String("Delay"))
            view = u.customPrintScheduleView;
        else if (value == QLatin1String("Normal"))
            view = u.customNormalView;
        else if (value == QLatin1String("Confidential"))
            view = u.customConfidentialView;
        showSubView(u.customPrintModeMainView, view);
    } else if (f->keyword() == QLatin1String("AccountType")) {
        QWidget* view = nullptr;
        if (value == QLatin1String("Accounting"))
            view = u.customJobAccountingAccountingView;
        else if (value == QLatin1String("Pincode"))
            view = u.customJobAccountingIDOnlyView;
        else if (value == QLatin1String("NewPin"))
            view = u.customJobAccountingPINCodeView;
        showSubView(u.customJobAccountingMainView, view);
    } else {
        return;
    }
    tabViewDidSelectTabViewItem(u.m_tabView, u.m_tabView->currentIndex());
}

std::optional<int> MRPDE_MACJobHandlingPDEController::totalHeightOfActiveViewContentRowsInTabViewItem(QWidget* tabPage)
{
    // The rows end with the lowest control that shows, sub-view included.
    return bottomOfVisibleRows(tabPage);
}

void MRPDE_MACJobHandlingPDEController::selectTabViewItemLater(QWidget* tabPage)
{
    // Posted: the tab changes once the dialog's current call has returned.
    QPointer<QTabWidget> tabs = m_ui->m_tabView;
    QPointer<QWidget> page = tabPage;
    QMetaObject::invokeMethod(
        tabs.data(),
        [tabs, page] {
            if (tabs && page && tabs->indexOf(page) >= 0)
                tabs->setCurrentWidget(page);
        },
        Qt::QueuedConnection);
}

// --- checks before printing ----------------------------------------------------

bool MRPDE_MACJobHandlingPDEController::UserIDValidationCheckForString(const QString& s) const
{
    return PDEJobHandlingRules::UserIDValidationCheckForString(s);
}

bool MRPDE_MACJobHandlingPDEController::IDOnlyValidationCheckForString(const QString& s) const
{
    return PDEJobHandlingRules::UserIDValidationCheckForString(s);
}

void MRPDE_MACJobHandlingPDEController::showAlert(const QString& text)
{
    PDEAlerts::Alert alert;
    alert.title = text;
    alert.informational = true;
    PDEAlerts::runAlertPanel(alert);
}

void MRPDE_MACJobHandlingPDEController::displayAccountingUserIDValidationError()
{
    showAlert(localizedAttributeText(QStringLiteral("PINcodeWarningText"), kJobAccountingWarning));
}

bool MRPDE_MACJobHandlingPDEController::isEverythingAlright()
{
    // Delayed secure fields reach their features now.
    for (const QList<MRPDEControllerPtr>& controllers : std::as_const(controllersMap()))
        for (const MRPDEControllerPtr& c : controllers)
            c->goingToPrint();
    // A delayed job that was never given a time prints at the time the picker shows.
    if (currentText("JobSetting") == QLatin1String("Delay") && currentText("PrintAt").isEmpty())
        for (const MRPDEControllerPtr& c : controllersForIdentifier(QStringLiteral("KEY_PrintAt")))
            if (auto* picker = dynamic_cast<MRPDE_MACDatePickerController*>(c.get()))
                picker->stepperButtonClicked(picker->datePicker());

    // A refused entry brings its tab to the front.
    QWidget* faultyTab = nullptr;
    if (currentText("JobSetting") == QLatin1String("Confidential") && !_isInstOptSecReleaseEnabled && feature("EnterPassword")
        && feature("ConfirmPassword")) {
        const QString password = currentText("EnterPassword");
        if (password.isEmpty() || password != currentText("ConfirmPassword")) {
            showAlert(localizedAttributeText(QStringLiteral("WarningText"), kPrintModeWarning));
            faultyTab = m_ui->tabViewItemJobSetting;
        }
    }
    const QString accountType = currentText("AccountType");
    if (!faultyTab && accountType == QLatin1String("Accounting")) {
        const QString password = currentText("AccountPassword");
        if (password.isEmpty() || password != currentText("ConfirmAcctPassword")) {
            showAlert(localizedAttributeText(QStringLiteral("AWarningText"), kJobAccountingWarning));
            faultyTab = m_ui->tabViewItemJobAccounting;
        } else if (!UserIDValidationCheckForString(currentText("AccountID"))) {
            displayAccountingUserIDValidationError();
            faultyTab = m_ui->tabViewItemJobAccounting;
        }
    }
    if (!faultyTab && accountType == QLatin1String("Pincode") && !IDOnlyValidationCheckForString(currentText("PINCode"))) {
        displayAccountingUserIDValidationError();
        faultyTab = m_ui->tabViewItemJobAccounting;
    }
    if (!faultyTab && accountType == QLatin1String("NewPin")) {
        const QString pin = currentText("NewPIN");
        if (pin.isEmpty() || pin != currentText("ConfirmNewPIN")) {
            showAlert(localizedAttributeText(QStringLiteral("NPWarningText"), kPINWarning));
            faultyTab = m_ui->tabViewItemJobAccounting;
        }
    }
    if (!faultyTab)
        return true;
    selectTabViewItemLater(faultyTab);
    return false;
}

// --- job-accounting confirmation -----------------------------------------------

void MRPDE_MACJobHandlingPDEController::initiateJAConfirmPopUpWindow()
{
    MRPDE_MACChangeHandlerModel* model = dataModel();
    if (!model || !isTrue(model->attributeWithKey(QStringLiteral("JACPopupEnable")))) {
        _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController(control): initiateJAConfirmPopUpWindow: not enabled"));
        return;
    }
    const bool confirmPIN = isTrue(model->attributeWithKey(QStringLiteral("JACPopupConfirmPIN")));
    const PDEAttributePtr modeAttribute = model->attributeWithKey(QStringLiteral("JACPopupMode"));
    const PDEFeaturePtr accountType = feature("AccountType");
    // The account types to confirm: those of the list that the printer
    // offers, with the fields they need.
    for (const QString& item : modeAttribute ? modeAttribute->attributeValue().split(QLatin1Char(',')) : QStringList()) {
        const QString mode = item.trimmed();
        const PDEChoicePtr choice = accountType ? accountType->getChoiceWithKeyword(mode) : nullptr;
        bool usable = choice && choice->selectable();
        if (mode == QLatin1String("Accounting"))
            usable = usable && feature("AccountID") && feature("AccountPassword") && (!confirmPIN || feature("ConfirmAcctPassword"));
        else if (mode == QLatin1String("Pincode"))
            usable = usable && feature("PINCode");
        else if (mode == QLatin1String("NewPin"))
            usable = usable && feature("NewPIN") && (!confirmPIN || feature("ConfirmNewPIN"));
        else
            usable = false;
        if (usable && !m_jaConfirmModes.contains(mode))
            m_jaConfirmModes.append(mode);
        else if (!usable)
            _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController(control): initiateJAConfirmPopUpWindow: JACPopupMode (%@) is not an "
                                         "account type of this printer"),
                    mode);
    }
    if (m_jaConfirmModes.isEmpty())
        return;
    m_jaConfirmPIN = confirmPIN;
    m_jaConfirmColorOnly = isTrue(model->attributeWithKey(QStringLiteral("JACPopupColorMode")));

    m_jaConfirmUi = std::make_unique<Ui::JAConfirmPopUpWindow>();
    m_jaConfirmWindow = new QDialog;
    auto& w = *m_jaConfirmUi;
    w.setupUi(m_jaConfirmWindow);
    m_jaConfirmWindow->setWindowTitle(
        localizedAttributeText(QStringLiteral("ConfirmationTitle"), QStringLiteral("Job Accounting Confirmation")));
    w.jaConfirmMessageLabel->setText(localized(QStringLiteral("Enter the account to charge for this job, then click OK to print.")));
    w.jaConfirmIDLabel->setText(localizedAttributeText(QStringLiteral("AccountTitle"), QStringLiteral("Account ID")) + QLatin1Char(':'));
    w.jaConfirmOkButton->setText(localized(QStringLiteral("OK")));
    w.jaConfirmCancelButton->setText(localized(QStringLiteral("Cancel")));
    connect(w.jaConfirmOkButton, &QPushButton::clicked, this, [this] { JAConfirmPopUpOkButton(); });
    connect(w.jaConfirmCancelButton, &QPushButton::clicked, this, [this] { JAConfirmPopUpCancelButton(); });
}

void MRPDE_MACJobHandlingPDEController::configureJAConfirmPopUpWindowForMode(const QString& mode)
{
    MRPDE_MACChangeHandlerModel* model = dataModel();
    auto& w = *m_jaConfirmUi;
    auto hint = [model](QLabel* label, const char* key) {
        const PDEAttributePtr a = key && model ? model->attributeWithKey(QString::fromLatin1(key)) : nullptr;
        const PDEAttributePtr t = a ? a->localizedAttribute() : nullptr;
        label->setText(t ? t->attributeValue() : a ? a->attributeValue() : QString());
    };
    // The panel's own keystroke rules, on the window's fields.
    auto filter = [](QLineEdit* field, const PDECharacterSet& set, qint64 maximum) {
        delete field->validator();
        field->setValidator(MRPDEStringFormatter::allowedCharacterSetDisallowedCharacterSetMaxLimit(set, PDECharacterSet(), maximum, field));
    };
    m_jaConfirmMode = mode;
    const bool accounting = mode == QLatin1String("Accounting");
    const bool hasID = mode != QLatin1String("NewPin");
    const bool hasPassword = mode != QLatin1String("Pincode");
    const bool hasConfirm = hasPassword && m_jaConfirmPIN;
    filter(w.jaConfirmIDTextField, m_rules.accountIDSet(), m_rules.accountIDMaximum());
    hint(w.jaConfirmIDRangeLabel, mode == QLatin1String("Pincode") ? "PINCodeRange" : nullptr);
    w.jaConfirmPasswordLabel->setText(localized(accounting ? QStringLiteral("Password:") : QStringLiteral("PIN Code:")));
    w.jaConfirmConfirmPasswordLabel->setText(localized(accounting ? QStringLiteral("Confirm Password:") : QStringLiteral("Confirm PIN Code:")));
    const qint64 maximum = m_rules.lengthAttribute(accounting ? QStringLiteral("AccountMaxLength") : QStringLiteral("NewPINMaxLength"));
    for (const auto& [field, range] : {std::pair{w.jaConfirmPasswordTextField, accounting ? "APWRange" : "NPRange"},
                                       {w.jaConfirmConfirmPasswordTextField, accounting ? "AConfirmRange" : "NPConfirmRange"}}) {
        const PDECharacterSet set = !accounting ? PDECharacterSet::decimalDigits()
                                    : m_rules.rangeIsAlphanumeric(QString::fromLatin1(range)) ? PDEJobHandlingRules::alphanumericSet()
                                                                                              : PDEJobHandlingRules::accountPasswordSet();
        filter(field, set, maximum);
    }
    hint(w.jaConfirmPasswordRangeLabel, accounting ? "APWRange" : "NPRange");
    hint(w.jaConfirmConfirmPasswordRangeLabel, accounting ? "AConfirmRange" : "NPConfirmRange");
    for (QWidget* c : QList<QWidget*>{w.jaConfirmIDLabel, w.jaConfirmIDTextField, w.jaConfirmIDRangeLabel})
        c->setVisible(hasID);
    for (QWidget* c : QList<QWidget*>{w.jaConfirmPasswordLabel, w.jaConfirmPasswordTextField, w.jaConfirmPasswordRangeLabel})
        c->setVisible(hasPassword);
    for (QWidget* c : QList<QWidget*>{w.jaConfirmConfirmPasswordLabel, w.jaConfirmConfirmPasswordTextField, w.jaConfirmConfirmPasswordRangeLabel})
        c->setVisible(hasConfirm);

    // Filled with what the panel holds: the window confirms it or corrects it.
    auto& u = *m_ui;
    w.jaConfirmIDTextField->setText(currentText(accounting ? "AccountID" : "PINCode"));
    w.jaConfirmPasswordTextField->setText(accounting ? u.jobAccountingAccountingPasswordTextField->text()
                                                     : u.jobAccountingPINCodePasswordTextField->text());
    w.jaConfirmConfirmPasswordTextField->setText(accounting ? u.jobAccountingAccountingConfirmPasswordTextField->text()
                                                            : u.jobAccountingPINCodeConfirmPasswordTextField->text());
}

bool MRPDE_MACJobHandlingPDEController::needsJAConfirmation()
{
    if (m_jaConfirmModes.isEmpty() || !m_jaConfirmWindow || !m_jaConfirmModes.contains(currentText("AccountType")))
        return false;
    if (m_jaConfirmColorOnly) {
        // Only colour jobs are confirmed; a printer without a colour mode prints grey.
        const QString colorModel = currentText("ColorModel");
        if (colorModel.isEmpty() || colorModel == QLatin1String("Gray")) {
            _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController(control): no job accounting confirmation for a job in gray"));
            return false;
        }
    }
    return true;
}

void MRPDE_MACJobHandlingPDEController::setPanelText(QLineEdit* field, const char* key, const QString& text)
{
    if (field->text() != text)
        field->setText(text);
    if (const PDEFeaturePtr f = feature(key))
        f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(text, text));
}

bool MRPDE_MACJobHandlingPDEController::commitJAConfirmPopUpValues()
{
    auto& w = *m_jaConfirmUi;
    auto& u = *m_ui;
    const QString id = w.jaConfirmIDTextField->text();
    const QString password = w.jaConfirmPasswordTextField->text();
    // Without a confirmation field the one entry stands for both.
    const QString confirm = m_jaConfirmPIN ? w.jaConfirmConfirmPasswordTextField->text() : password;
    if (m_jaConfirmMode == QLatin1String("Accounting")) {
        if (!m_rules.accountPasswordAllowed(password, QStringLiteral("APWRange")) || password != confirm) {
            showAlert(localizedAttributeText(QStringLiteral("AWarningText"), kJobAccountingWarning));
            return false;
        }
        if (!m_rules.accountIDAllowed(id)) {
            displayAccountingUserIDValidationError();
            return false;
        }
        if (const PDEFeaturePtr f = feature("AccountID"))
            f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(id, id));
        setPanelText(u.jobAccountingAccountingPasswordTextField, "AccountPassword", password);
        setPanelText(u.jobAccountingAccountingConfirmPasswordTextField, "ConfirmAcctPassword", confirm);
    } else if (m_jaConfirmMode == QLatin1String("Pincode")) {
        if (!m_rules.accountIDAllowed(id)) {
            displayAccountingUserIDValidationError();
            return false;
        }
        if (const PDEFeaturePtr f = feature("PINCode"))
            f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(id, id));
    } else {
        if (!m_rules.newPINAllowed(password) || password != confirm) {
            showAlert(localizedAttributeText(QStringLiteral("NPWarningText"), kPINWarning));
            return false;
        }
        setPanelText(u.jobAccountingPINCodePasswordTextField, "NewPIN", password);
        setPanelText(u.jobAccountingPINCodeConfirmPasswordTextField, "ConfirmNewPIN", confirm);
    }
    return true;
}

void MRPDE_MACJobHandlingPDEController::JAConfirmPopUpOkButton()
{
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController(control): JAConfirmPopUpOkButton"));
    if (m_jaConfirmWindow && commitJAConfirmPopUpValues())
        m_jaConfirmWindow->accept();
}

void MRPDE_MACJobHandlingPDEController::JAConfirmPopUpCancelButton()
{
    _PDELog(this, QStringLiteral("PDE_MACJobHandlingPDEController(control): JAConfirmPopUpCancelButton"));
    if (m_jaConfirmWindow)
        m_jaConfirmWindow->reject();
}

bool MRPDE_MACJobHandlingPDEController::runJAConfirmPopUpWindow()
{
    if (!m_jaConfirmWindow)
        return true;
    configureJAConfirmPopUpWindowForMode(currentText("AccountType"));
    // Over the dialog that shows the panel.
    QWidget* top = mainView() ? mainView()->window() : nullptr;
    if (top && top != mainView() && m_jaConfirmWindow->parentWidget() != top)
        m_jaConfirmWindow->setParent(top, Qt::Dialog);
    auto& w = *m_jaConfirmUi;
    for (QLineEdit* field : {w.jaConfirmIDTextField, w.jaConfirmPasswordTextField, w.jaConfirmConfirmPasswordTextField}) {
        if (!field->isHidden() && field->text().isEmpty()) {
            field->setFocus();
            break;
        }
    }
    const bool confirmed = m_jaConfirmWindow->exec() == QDialog::Accepted;
    clearJAConfirmPopUpSecrets();
    return confirmed;
}

bool MRPDE_MACJobHandlingPDEController::confirmJAConfirmPopUpValuesWithoutWindow()
{
    if (!m_jaConfirmWindow)
        return true;
    configureJAConfirmPopUpWindowForMode(currentText("AccountType"));
    const bool confirmed = commitJAConfirmPopUpValues();
    clearJAConfirmPopUpSecrets();
    return confirmed;
}

void MRPDE_MACJobHandlingPDEController::clearJAConfirmPopUpSecrets()
{
    // The window does not keep what was typed.
    m_jaConfirmUi->jaConfirmPasswordTextField->clear();
    m_jaConfirmUi->jaConfirmConfirmPasswordTextField->clear();
}

bool MRPDE_MACJobHandlingPDEController::shouldPrint()
{
    if (needsJAConfirmation()) {
        // Without windows, the entries the job already has are confirmed as they are.
        const bool confirmed = PDEAlerts::showsWindows() ? runJAConfirmPopUpWindow() : confirmJAConfirmPopUpValuesWithoutWindow();
        if (!confirmed) {
            selectTabViewItemLater(m_ui->tabViewItemJobAccounting);
            return false;
        }
    }
    return isEverythingAlright();
}
