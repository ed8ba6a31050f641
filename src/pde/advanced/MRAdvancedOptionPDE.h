#pragma once
#include "MRStandalonePDE.h"
#include "PDEChoiceList.h"

#include <memory>

namespace Ui {
class AdvancedOptionPDE;
}
class MRBookletController;
class MRManualBookletController;
class MRPosterController;
class MRWatermarkController;
struct ppd_option_s;

// Print-settings keys of the advanced options (values are text).
inline constexpr char kNSWatermarkCustomeStrKey[] = "WMCustomStr";
inline constexpr char kNSWatermarkFontNameKey[] = "WMFontName";
inline constexpr char kNSWatermarkStyleKey[] = "WMStyle";
inline constexpr char kNSWatermarkStyleFullNameKey[] = "WMStyleFullName";
inline constexpr char kNSWatermarkColorKey[] = "WMColor";
inline constexpr char kNSWatermarkShadeKey[] = "WMShade";
inline constexpr char kNSWatermarkAngleKey[] = "WMAngle";
inline constexpr char kNSWatermarkAngleNumberKey[] = "WMAngleNumber";
inline constexpr char kNSWatermarkAngleDefinedKey[] = "WMAngleDefinedNumber";
inline constexpr char kNSWatermarkFontSizeKey[] = "WMFontSize";
inline constexpr char kNSWatermarkFirstPageOnlyKey[] = "WMFirstPageOnly";
inline constexpr char kNSPosterOverlapKey[] = "PosterOverlap";
inline constexpr char kNSBookletSheetperKey[] = "BookletSheetperSet";
inline constexpr char kNSBookletGutterKey[] = "BookletGutterSize";
inline constexpr char kNSBookletRightBindingKey[] = "BookletRightBinding";
inline constexpr char kNSBookletNupBorderKey[] = "BookletNupBorder";
inline constexpr char kNSBookletNupLayoutKey[] = "BookletNupLayout";
inline constexpr char kNSBookletNupPageOrderKey[] = "BookletNupPageOrder";
// PPD options.
inline constexpr char kNSWatermarkKey[] = "VELWatermarkOption";
inline constexpr char kNSPosterKey[] = "VELPosterOption";
inline constexpr char kNSBookletKey[] = "VELBookletOption";
inline constexpr char kNSFoldMethodKey[] = "VELFoldMethod";
inline constexpr char kNSBookletPageSizeKey[] = "BookletOutputPageSize";
inline constexpr char kNSBookletFoldingOptionKey[] = "VELBookletFinishing";
inline constexpr char kNSManualBookletKey[] = "VELManualBookletOption";
inline constexpr char kNSInstallableFinisherKey[] = "Finisher";
// Localization keys of titles.
inline constexpr char kNSAdvancedOptiosTitleKey[] = "AdvancedOptions";
inline constexpr char kNSConceptViewTitleKey[] = "ConceptPreview";
inline constexpr char kNSPrintingTipTitleKey[] = "PrintingTip";

// The Advanced Options panel: watermark, booklet (with fold method, finisher
// and manual booklet) and poster printing. Its pop-ups are PPD options marked
// through the dialog; every other setting travels in the print settings under
// the keys above, lengths in inches with two decimals.
class MRAdvancedOptionPDE : public MRStandalonePDE {
    Q_OBJECT
public:
    // initWithCallback:andBundle: null when the PPD has none of the
    // watermark, poster, booklet, fold-method, folding and manual-booklet options.
    static std::shared_ptr<MRAdvancedOptionPDE> create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    ~MRAdvancedOptionPDE() override;

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
    void updatePrinterUI() override;

    void initializeUI();
    void updateUI();
    void updateMarkedSelections() override;
    void tabViewDidSelectTabViewItem(int index);
    void changeFoldingOptionsImage();

    // Pop-up actions.
    void changeWatermarkOption();
    void changePosterOption();
    void changeBookletOption();
    void changeBookletFinishingOption();
    void changeFoldMethodOption();
    void changePageSizeOption();
    void changeManualBookletOption();

    // Print settings.
    void getNonPPDSettingsFromPrintSettings();
    void writeNonPPDSettingsToPrintSettings();

    // PPD readers: the maximum sheets per set ("15" without one), the colour
    // capability ("True", "False", "NULL" when the PPD does not say), the
    // fold method ("FoldMethodON"/"FoldMethodOFF"), the booklet n-up settings
    // ("True"/"False", "NULL"), the basic-booklet form ("True"/"False",
    // "NULL") and the installed booklet finisher ("BookletFinisher" or
    // "NotBookletFinisher").
    QString readMaxperset() const;
    QString PDEColorDevicestr() const;
    QString foldmethodstr() const;
    QString UseBookletNupstr() const;
    QString BasicBookletstr() const;
    QString IsExistedBookletFinisher() const;

    // Bundle resources.
    QString getWatermarkDataFileOriginPath() const;
    QVariantMap getBookletStatusString() const;
    QString getBookletStringFilePath() const;

    // The custom watermark text in its wire form: "," becomes "c|$ma*&|",
    // then "'" becomes "|q*u&tn|"; and back.
    static QString escapeWatermarkText(const QString& text);
    static QString unescapeWatermarkText(const QString& wire);
    // Unit helpers.
    static int getGutterMMValue(float inches);
    static int getOverlapMMValue(float inches);
    static QString getOverlapInchValue(int millimetres);

    // Lengths are shown in millimetres (metric) or inches; the user's
    // measurement system by default.
    bool metric() const { return m_metric; }
    void setMetric(bool metric);

    std::shared_ptr<MRAdvancedPDEChoice> watermarkSelection() const { return m_watermarkSelection; }
    std::shared_ptr<MRAdvancedPDEChoice> posterSelection() const { return m_posterSelection; }
    std::shared_ptr<MRAdvancedPDEChoice> bookletSelection() const { return m_bookletSelection; }
    std::shared_ptr<MRAdvancedPDEChoice> manualbookletSelection() const { return m_manualbookletSelection; }
    MRWatermarkController* watermarkController() const { return m_watermark.get(); }
    MRBookletController* bookletController() const { return m_booklet.get(); }
    MRPosterController* posterController() const { return m_poster.get(); }
    MRManualBookletController* manualBookletController() const { return m_manualBooklet.get(); }
    Ui::AdvancedOptionPDE* ui() const { return m_ui.get(); }

protected:
    MRAdvancedOptionPDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    QString panelNameKey() const override { return QString::fromLatin1(kNSAdvancedOptiosTitleKey); }
    QString helpPage() const override { return QStringLiteral("AdvancedOptionPDEHelp.html"); }

private:
    struct Feature {
        explicit Feature(const char* k) : keyword(k) {}
        const char* keyword;
        ppd_option_s* option = nullptr;
        MRAdvancedPDEChoiceArray choices;
    };
    bool hasAnyOption() const;
    Feature* feature(const QString& keyword);
    void selectInPopUp(QComboBox* popUp, const std::shared_ptr<MRAdvancedPDEChoice>& selection, const Feature& f);
    int selectionIndex(const std::shared_ptr<MRAdvancedPDEChoice>& selection, const Feature& f) const;
    QString attributeValue(const char* name) const;
    void store(const char* key, const QString& value);
    QString readValue(const char* key) const;
    int readIndex(const char* key, int count, int fallback) const;
    void applyPosterRule();
    void readWatermarkSettings();
    void readPosterSettings();
    void readBookletSettings();
    void writeWatermarkSettings();
    void writePosterSettings();
    void writeBookletSettings();

    Feature m_watermarkOption{kNSWatermarkKey};
    Feature m_posterOption{kNSPosterKey};
    Feature m_bookletOption{kNSBookletKey};
    Feature m_foldmethodOption{kNSFoldMethodKey};
    Feature m_foldingoptionOption{kNSBookletFoldingOptionKey};
    Feature m_PagesizeOption{kNSBookletPageSizeKey};
    Feature m_manualbookletOption{kNSManualBookletKey};
    Feature m_InstallableFinisherOption{kNSInstallableFinisherKey};

    std::shared_ptr<MRAdvancedPDEChoice> m_watermarkSelection;
    std::shared_ptr<MRAdvancedPDEChoice> m_posterSelection;
    std::shared_ptr<MRAdvancedPDEChoice> m_bookletSelection;
    std::shared_ptr<MRAdvancedPDEChoice> m_manualbookletSelection;
    std::shared_ptr<MRAdvancedPDEChoice> m_foldmethodSelection;
    std::shared_ptr<MRAdvancedPDEChoice> m_foldingoptionSelection;
    std::shared_ptr<MRAdvancedPDEChoice> m_pagesizeSelection;

    std::unique_ptr<Ui::AdvancedOptionPDE> m_ui;
    QPointer<QWidget> m_pdeView;
    std::unique_ptr<MRWatermarkController> m_watermark;
    std::unique_ptr<MRBookletController> m_booklet;
    std::unique_ptr<MRManualBookletController> m_manualBooklet;
    std::unique_ptr<MRPosterController> m_poster;
    QStringList m_supportedOptions;
    bool m_metric;
    // The watermark whose settings the controls were last filled with.
    int m_shownWatermarkIndex = -1;
    unsigned m_nCopiesValue = 1;
    int m_nupvalue = 1;
};
