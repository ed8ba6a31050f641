#pragma once
#include "MRStandalonePDE.h"
#include "PDEChoiceList.h"

#include <memory>

namespace Ui {
class ManualDuplexPDE;
}
class MRManualDuplexController;
struct ppd_option_s;

inline constexpr char kManualDuplexNibName[] = "ManualDuplexPDE";
inline constexpr char kManualDuplexPanelNameKey[] = "ManualDuplex";
inline constexpr char kManualDuplexKindID[] = "com.vel.print.ManualDuplexPDE.ManualDuplexKind";
// The manual 2-sided option and the installable duplex unit.
inline constexpr char kManualDuplexKey[] = "VELManualDuplexOption";
inline constexpr char kDuplexUnitKey[] = "Option2";
// PPD attributes that name the printer's own pictures of the three steps.
inline constexpr char kMDimage1key[] = "VELManualDuplexImage1";
inline constexpr char kMDimage2key[] = "VELManualDuplexImage2";
inline constexpr char kMDimage3key[] = "VELManualDuplexImage3";

// The Manual Duplex panel: whether, and along which edge, the job is printed
// on both sides by hand. One pop-up of the PPD option, a picture of the chosen
// binding for the page orientation and a printing tip. The choice is a PPD
// mark kept by the dialog; multi-copy jobs are printed one-sided, and a
// printer with its duplex unit installed does not offer the choice.
class MRManualDuplexPDE : public MRStandalonePDE {
    Q_OBJECT
public:
    // initWithCallback:andBundle: null when the PPD has no manual 2-sided option.
    static std::shared_ptr<MRManualDuplexPDE> create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    ~MRManualDuplexPDE() override;

    // Panel protocol.
    QString panelKind() override;
    QWidget* panelView() override;
    bool willShow() override;
    bool shouldHide() override;
    QVariantMap summaryInfo() override;
    QStringList supportedPPDOptionKeys() override;
    bool restoreValuesAndReturnError(QString* error) override;
    bool saveValuesAndReturnError(QString* error) override;
    void PPDOptionKeyValueDidChange(const QString& option, const QString& choice) override;
    // The copy count or the orientation changed: the tip area is redrawn and
    // the copies and duplex-unit rules applied again.
    void updatePrinterUI() override;

    void initializeUI();
    void updateUI();
    void updateMarkedSelections() override { updateManualDuplexMarkedSelections(); }
    void updateManualDuplexMarkedSelections();
    // The pop-up's action.
    void changeManualDuplexOption();
    // Shows the PPD option's own title in the label named tag.
    void setViewTitleByTagFromOptions(const QString& tag, ppd_option_s* option);
    // Reads the marked (else default) duplex-unit choice into
    // DuplexUnitSelection() and DuplexUnitStr().
    void getManaulduplexselection();
    // The pictures the PPD names for the three steps, "NULL" when it names none.
    QString ppdMDimage1Str();
    QString ppdMDimage2Str();
    QString ppdMDimage3Str();
    // The copy count; the panel's choice is a PPD mark, so nothing is written.
    void getNonPPDSettingsFromPrintSettings();
    void writeNonPPDSettingsToPrintSettings() {}

    std::shared_ptr<MRAdvancedPDEChoice> manualduplexSelection() const { return m_manualduplexSelection; }
    std::shared_ptr<MRAdvancedPDEChoice> DuplexUnitSelection() const { return m_DuplexUnitSelection; }
    const MRAdvancedPDEChoiceArray& manualduplexChoices() const { return m_manualduplexChoices; }
    QString DuplexUnitStr() const { return m_DuplexUnitStr; }
    unsigned nCopiesValue() const { return m_nCopiesValue; }
    // The orientation the tip area was last drawn for ("1" to "4").
    QString appOrientation() const { return m_appOrientation; }
    void setAppOrientation(const QString& orientation) { m_appOrientation = orientation; }
    MRManualDuplexController* ManualDuplexControllerObject() const { return m_controller.get(); }
    Ui::ManualDuplexPDE* ui() const { return m_ui.get(); }

protected:
    MRManualDuplexPDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    QString panelNameKey() const override { return QString::fromLatin1(kManualDuplexPanelNameKey); }
    QString helpPage() const override { return QStringLiteral("ManualDuplexPDEHelp.html"); }

private:
    std::shared_ptr<MRAdvancedPDEChoice> markedChoice(const char* key, const MRAdvancedPDEChoiceArray& choices) const;
    QString ppdImageString(const char* key, QString* field);
    void applyCopiesRule();
    void applyDuplexUnitRule();

    ppd_option_s* m_manualduplexOption = nullptr;
    ppd_option_s* m_DuplexUnitOption = nullptr;
    MRAdvancedPDEChoiceArray m_manualduplexChoices;
    MRAdvancedPDEChoiceArray m_DuplexUnitChoices;
    std::shared_ptr<MRAdvancedPDEChoice> m_manualduplexSelection;
    std::shared_ptr<MRAdvancedPDEChoice> m_DuplexUnitSelection;
    QString m_appOrientation;
    QString m_DuplexUnitStr;
    QString m_kMDimage1keyStr;
    QString m_kMDimage2keyStr;
    QString m_kMDimage3keyStr;
    unsigned m_nCopiesValue = 1;
    QStringList m_supportedOptions;

    std::unique_ptr<Ui::ManualDuplexPDE> m_ui;
    QPointer<QWidget> m_pdeView;
    std::unique_ptr<MRManualDuplexController> m_controller;
};
