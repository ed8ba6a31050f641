#pragma once
#include "MRStandalonePDE.h"
#include "PDEChoiceList.h"

#include <memory>

namespace Ui {
class SecureReleasePDE;
}
struct ppd_option_s;

inline constexpr char kSecureReleaseKey[] = "VELSecureReleaseOption";
// The print setting that carries the user who releases the job at the printer.
inline constexpr char kSecureReleaseUserIDKey[] = "PSSUSERID";
inline constexpr char kSecureReleasePanelNameKey[] = "SecureRelease";
inline constexpr char kSecureReleaseUserIDTitleKey[] = "UserID";
inline constexpr char kSecureReleaseKindID[] = "com.vel.print.SecureReleasePDE.SecureReleaseKind";

// The Secure Release panel: one pop-up of the PPD's secure-release option and
// the user ID under which the printer holds the job. Any choice but the first
// asks for the user ID; the ID travels in the print settings, and a job always
// carries it, empty when none was given.
class MRSecureReleasePDE : public MRStandalonePDE {
    Q_OBJECT
public:
    // initWithCallback:andBundle: null when the PPD has no secure-release option.
    static std::shared_ptr<MRSecureReleasePDE> create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    ~MRSecureReleasePDE() override;

    // Panel protocol.
    QString panelKind() override;
    QWidget* panelView() override;
    bool willShow() override;
    bool shouldHide() override;
    bool respondsToShouldPrint() const override { return true; }
    bool shouldPrint() override;
    QVariantMap summaryInfo() override;
    QStringList supportedPPDOptionKeys() override;
    bool restoreValuesAndReturnError(QString* error) override;
    bool saveValuesAndReturnError(QString* error) override;
    void PPDOptionKeyValueDidChange(const QString& option, const QString& choice) override;
    void updatePrinterUI() override;

    void initializeUI();
    void updateUI();
    void updateMarkedSelections() override { updatePSSMarkedSelections(); }
    void updatePSSMarkedSelections();
    // Shows the PPD option's own title in the label named tag.
    void setViewTitleByTagFromOptions(const QString& tag, ppd_option_s* option);
    // The pop-up's action.
    void changepssOption();
    // Writes the user ID to the print settings (from the field once the user
    // has seen the panel).
    void writeUserIDInfo();
    // The user ID given with the job (a preset, the command line), shown in the field.
    void getNonPPDSettingsFromPrintSettings();
    void writeNonPPDSettingsToPrintSettings() {}

    QString sUserID() const { return m_sUserID; }
    bool ClickSecureTab() const { return m_ClickSecureTab; }
    std::shared_ptr<MRAdvancedPDEChoice> pssSelection() const { return m_pssSelection; }
    Ui::SecureReleasePDE* ui() const { return m_ui.get(); }

protected:
    MRSecureReleasePDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    QString panelNameKey() const override { return QString::fromLatin1(kSecureReleasePanelNameKey); }
    // The Manual Duplex help page also covers this panel.
    QString helpPage() const override { return QStringLiteral("ManualDuplexPDEHelp.html"); }

private:
    void storeUserID();

    ppd_option_s* m_pssOption = nullptr;
    MRAdvancedPDEChoiceArray m_pssChoices;
    std::shared_ptr<MRAdvancedPDEChoice> m_pssSelection;
    QString m_sUserID = QStringLiteral("");
    bool m_ClickSecureTab = false;
    QStringList m_supportedOptions;

    std::unique_ptr<Ui::SecureReleasePDE> m_ui;
    QPointer<QWidget> m_pdeView;
};
