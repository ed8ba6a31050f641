#pragma once
#include "MRPDEMainBaseController.h"
#include "PDEJobHandlingRules.h"

#include <QPointer>
#include <memory>

#include <QDialog>
class QLineEdit;
class QTabWidget;
namespace Ui {
class JobHandling;
class JAConfirmPopUpWindow;
}

// The Job Handling panel's view: the print mode (normal, confidential,
// stored, stored and printed, delayed) and the job accounting, each a tab
// whose lower part is the sub-view of the chosen value. It offers only the
// print modes the installed hardware allows, keeps every text field to its
// characters and lengths, checks the entries before printing and, when the
// printer asks for it, has the account confirmed when printing starts.
class MRPDE_MACJobHandlingPDEController : public MRPDEMainBaseController {
    Q_OBJECT
public:
    explicit MRPDE_MACJobHandlingPDEController(MRPDE_MACChangeHandlerModel* model);  // initWithModel:
    ~MRPDE_MACJobHandlingPDEController() override;

    // Makes only the print modes of the installed disk or memory selectable.
    void setUpPrintModeConstraints();
    // Makes the feature and the choices of the mode numbers ("1" Normal ...
    // "5" Delay) selectable; other elements are ignored.
    void enablePrintModeOptionsBasedOnArrayPrintModeFeature(const QStringList& modes, const PDEFeaturePtr& printModeFeature);

    bool loadJobSettingTab();
    bool loadJobAccountingTab();
    void loadNormalView();
    void loadConfidentialView();
    void loadStoreView();
    void loadPrintAtView();
    void loadAccountingView();
    void loadIDOnlyView();
    void loadPINCodeView();

    bool isEverythingAlright() override;
    bool UserIDValidationCheckForString(const QString& s) const;
    bool IDOnlyValidationCheckForString(const QString& s) const;
    void displayAccountingUserIDValidationError();

    // The job-accounting confirmation: built when the printer enables it
    // ("JACPopupEnable"); when printing starts, a job whose account type is
    // one of "JACPopupMode" (and, with "JACPopupColorMode", one in colour)
    // has its account confirmed in a window, or without windows checked as
    // it stands.
    void initiateJAConfirmPopUpWindow();
    bool respondsToShouldPrint() const override { return true; }
    // The confirmation, then the checks of isEverythingAlright.
    bool shouldPrint() override;
    void JAConfirmPopUpOkButton();
    void JAConfirmPopUpCancelButton();
    // Whether this job's account is confirmed when printing starts.
    bool needsJAConfirmation();
    // Shows the window, filled from the panel, until OK with valid entries
    // (true) or Cancel (false).
    bool runJAConfirmPopUpWindow();
    // Without windows: the panel's entries checked and taken as the window's OK would.
    bool confirmJAConfirmPopUpValuesWithoutWindow();

    QTabWidget* tabView() const;
    Ui::JobHandling* ui() const { return m_ui.get(); }
    QDialog* JAConfirmPopUpWindow() const { return m_jaConfirmWindow; }
    Ui::JAConfirmPopUpWindow* JAConfirmPopUpUi() const { return m_jaConfirmUi.get(); }
    // The account types confirmed ("Accounting", "Pincode", "NewPin");
    // empty when there is no confirmation.
    QStringList JAConfirmPopUpModes() const { return m_jaConfirmModes; }
    QString extraAllowedCharacters() const { return m_rules.extraAllowedCharacters(); }
    bool isInstOptSecReleaseEnabled() const { return _isInstOptSecReleaseEnabled; }
    // The sub-view each tab shows now (null: none).
    QWidget* currentPrintModeView() const;
    QWidget* currentJobAccountingView() const;

    std::optional<int> totalHeightOfActiveViewContentRowsInTabViewItem(QWidget* tabPage) override;

private:
    void observeValueForKeyPath(MRPDE_MACFeature* feature);
    void observeFeature(const PDEFeaturePtr& feature);
    void showSubView(QWidget* container, QWidget* subView);
    void selectTabViewItemLater(QWidget* tabPage);
    void removeTab(QWidget* page);
    PDEFeaturePtr feature(const char* key) const;
    QString currentText(const char* key) const;
    QString localized(const QString& key) const;
    QString localizedAttributeText(const QString& key, const QString& builtInKey) const;
    void showAlert(const QString& text);
    MRPDEControllerPtr bind(const MRPDEControllerFactory& make, const char* key, const char* identifier, QWidget* control);
    void bindLabel(const char* key, const char* identifier, QWidget* control);
    void bindRangeLabel(const char* key, const char* identifier, QWidget* control, const char* rangeAttribute);
    void bindUserIDAndJobName(QWidget* userIDLabel, QWidget* userIDField, QWidget* jobNameLabel, QWidget* jobNameField);
    void restrict(const MRPDEControllerPtr& controller, const PDECharacterSet& allowed, const PDECharacterSet& disallowed,
                  qint64 maximum, qint64 minimum = 0);
    void logViewLine(const QString& what);
    // The window's rows, rules and entries for an account type, filled from
    // the panel; the entries' checks and their writing back.
    void configureJAConfirmPopUpWindowForMode(const QString& mode);
    bool commitJAConfirmPopUpValues();
    void clearJAConfirmPopUpSecrets();
    void setPanelText(QLineEdit* field, const char* key, const QString& text);

    std::unique_ptr<Ui::JobHandling> m_ui;
    QList<QPointer<QWidget>> m_subViews;
    QList<PDEFeaturePtr> m_currentValueObservedFeatures;
    PDEJobHandlingRules m_rules;
    bool _isInstOptSecReleaseEnabled = false;

    std::unique_ptr<Ui::JAConfirmPopUpWindow> m_jaConfirmUi;
    QPointer<QDialog> m_jaConfirmWindow;
    QStringList m_jaConfirmModes;
    QString m_jaConfirmMode;
    bool m_jaConfirmColorOnly = false;
    bool m_jaConfirmPIN = false;
};
