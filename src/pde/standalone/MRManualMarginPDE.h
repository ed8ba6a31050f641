#pragma once
#include "MRStandalonePDE.h"
#include "PDEChoiceList.h"

#include <QSizeF>
#include <array>
#include <memory>

namespace Ui {
class ManualMarginPDE;
}
class PDEStepper;
class QButtonGroup;
class QLineEdit;
struct ppd_option_s;

inline constexpr char kManualMarginNibName[] = "ManualMarginPDE";
inline constexpr char kManualMarginPanelNameKey[] = "ManualMarginPanelName";
inline constexpr char kManualMarginHelpPage[] = "ManualMarginPDEHelp.html";
// PPD options: what the margin is for (none, binding margin, image shift),
// the binding edge (left, right, top) and the colour mode (read only).
inline constexpr char kNSMarginForKey[] = "VELMarginFor";
inline constexpr char kNSBindingPositionKey[] = "VELBindingPosition";
inline constexpr char kNSColorModelKey[] = "ColorModel";

// The Manual Margin panel: a binding margin (a gutter on one edge, the same or
// different on front and back, optionally with the page image reduced to
// fit) or an image shift (the printed image moved left/right and up/down,
// per side). The kind and the binding edge are PPD options; the distances
// and switches travel in the print settings under thirteen keys of the
// panel's own, lengths in inches with two decimals.
class MRManualMarginPDE : public MRStandalonePDE {
    Q_OBJECT
public:
    // The thirteen print-settings values, in the order of their keys.
    enum Value {
        AutoReduction,
        SameFrontBack,
        FrontSide,
        BackSide,
        ISSameFrontBack,
        FrontLROption,
        FrontLRSize,
        FrontTBOption,
        FrontTBSize,
        BackLROption,
        BackLRSize,
        BackTBOption,
        BackTBSize,
        ValueCount
    };
    // The length fields by tag: the binding margins, then the image shifts.
    enum Tag { FrontMarginTag = 1, BackMarginTag, FrontLRTag, FrontTBTag, BackLRTag, BackTBTag };

    // initWithCallback:andBundle: null when the PPD has neither VELMarginFor
    // nor VELBindingPosition.
    static std::shared_ptr<MRManualMarginPDE> create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    ~MRManualMarginPDE() override;

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
    void updateUIDependency();
    void makePDEView();
    void updateConceptImage();
    void updateMarkedSelections() override;
    void getNonPPDSettingsFromPrintSettings();
    void writeNonPPDSettingsToPrintSettings();

    // Actions.
    void changeMarginFor();
    void changeBindingPosition();
    void changeAutoReduction();
    void changeSameValue();
    void changeFrontSide();
    void changeBackSide();
    void changeConceptPreview();
    void changeSameValueIS();
    void changeFrontLeft();
    void changeFrontRight();
    void changeFrontTop();
    void changeFrontBottom();
    void changeFrontStepper1();
    void changeFrontStepper2();
    void changeBackLeft();
    void changeBackRight();
    void changeBackTop();
    void changeBackBottom();
    void changeBackStepper1();
    void changeBackStepper2();
    // The user changed the text of the length field with this tag.
    void controlTextDidChange(int tag);

    // A number typed or stepped (millimetres or inches) as stored inches,
    // "%0.2f": 10 mm gives "0.39".
    static QString getInchValue(double number, bool metric);
    // A stored length as the field shows it: whole millimetres ("0.4" shows
    // as 10) or inches with two decimals.
    static QString displayValue(const QString& inches, bool metric);
    // Whether a typed text may stand in the field with this tag: whole
    // millimetres without a leading zero, or inches as d, d.d or d.dd; within
    // 50 mm / 2.00 inches for the binding margins, 25 mm / 1.00 inch for the
    // shifts; never empty.
    static bool isAcceptableInput(const QString& text, int tag, bool metric);
    // The largest length of a tag, in inches.
    static double maximumInches(int tag);

    // The print-settings key, the default and the name of each value.
    static QString keyOf(Value v);
    static QString defaultOf(Value v);
    QString value(Value v) const { return m_values[v]; }

    // Lengths in millimetres (metric) or inches; the user's measurement system
    // by default.
    bool metric() const { return m_metric; }
    void setMetric(bool metric);

    std::shared_ptr<MRPDEChoice> marginForSelection() const { return m_marginForSelection; }
    std::shared_ptr<MRPDEChoice> bindingPositionSelection() const { return m_bindingPositionSelection; }
    quint32 nupvalue() const { return m_nupvalue; }
    QString manualMarginKindID() const { return m_kManualMarginKindID; }
    // The position of the current VELMarginFor choice: 0 none, 1 binding
    // margin, 2 image shift; -1 without one.
    int marginForIndex() const;
    Ui::ManualMarginPDE* ui() const { return m_ui.get(); }

protected:
    MRManualMarginPDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    QString panelNameKey() const override { return QString::fromLatin1(kManualMarginPanelNameKey); }
    QString helpPage() const override { return QString::fromLatin1(kManualMarginHelpPage); }
    QString localizationTable() const override { return QString::fromLatin1(kManualMarginPDELocalizable); }

private:
    struct Length {
        QLineEdit* field;
        PDEStepper* stepper;
        Value value;
    };
    Length lengthOfTag(int tag) const;
    int bindingPositionIndex() const;
    void setValueOfFieldOfStepperValue(QLineEdit* field, PDEStepper* stepper, const QString& value) const;
    void showLength(int tag) const;
    void setLength(int tag, const QString& inches);
    void stepped(int tag);
    void setDirection(Value option, const QString& value);
    void setupSteppers();
    QString sanitized(Value v, const QString& read) const;
    void selectInPopUp(QComboBox* popUp, const std::shared_ptr<MRPDEChoice>& selection, const MRPDEChoiceArray& choices,
                       const char* notFound);

    QString m_kManualMarginKindID;
    ppd_option_s* m_marginForOption = nullptr;
    ppd_option_s* m_bindingPositionOption = nullptr;
    ppd_option_s* m_colorModelOption = nullptr;
    MRPDEChoiceArray m_marginForChoices;
    MRPDEChoiceArray m_bindingPositionChoices;
    std::shared_ptr<MRPDEChoice> m_marginForSelection;
    std::shared_ptr<MRPDEChoice> m_bindingPositionSelection;
    QStringList m_supportedOptions;
    std::array<QString, ValueCount> m_values;
    QString m_nupRows;
    QString m_nupColumns;
    quint32 m_nupvalue = 1;
    bool m_metric;

    QSizeF m_sizeMarginView, m_sizeConceptView, m_sizeButtonView, m_sizeBindingView, m_sizeISView, m_sizePDEView;
    std::unique_ptr<Ui::ManualMarginPDE> m_ui;
    QPointer<QWidget> m_viewPDE;
};
