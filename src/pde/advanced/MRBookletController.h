#pragma once
#include <QObject>
#include <QVariantMap>

namespace Ui {
class AdvancedOptionPDE;
}
class MRAdvancedOptionPDE;

// The booklet part of the Advanced Options panel: fold method, sheets per
// set, output paper size, the booklet finisher's folding, gutter, right
// binding and the n-up settings of the booklet's pages, enabled by the
// booklet choice's position and by what the printer has.
class MRBookletController : public QObject {
    Q_OBJECT
public:
    MRBookletController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui);

    // Labels and the sheets-per-set limit from the PPD.
    void initializeUI();
    // Enabling for the booklet pop-up's index: 0 off, 1 on, 2 the PPD's third
    // form; other indexes change nothing.
    void showSelectedBookletSettings(int index);
    // The page order only matters with more than one page per side.
    void selectBookletNupLayoutPopupOption();
    // Stepper actions: the field takes the stepper's value.
    void upAndDownSheetperSet();
    void upAndDownGutter();
    // The folding picture and title for no folding.
    void getFoldingOptionString();
    void hideGutterAndRightBindingOptions(bool hide);
    // Switches the gutter between millimetres and inches.
    void setMetric(bool metric);

    static int getGutterMMValue(float inches);
    QVariantMap getBookletStatusString() const;
    QString getBookletStringFilePath() const;

private:
    void enable(QWidget* control, QWidget* label, bool enabled);
    void applyPageOrderRule();
    void applyFinisherRule();

    MRAdvancedOptionPDE* AdvancedOptionPDEObject;
    Ui::AdvancedOptionPDE* m_ui;
    bool m_metric = false;
};
