#pragma once
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace Ui {
class AdvancedOptionPDE;
}
class MRAdvancedOptionPDE;

// The watermark part of the Advanced Options panel: the fonts, styles,
// colours, shades and angles, the settings a chosen watermark brings with it
// (from the bundle's "WatermarkData") and which controls may be used.
class MRWatermarkController : public QObject {
    Q_OBJECT
public:
    // Fills the lists and the labels.
    MRWatermarkController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui);

    void initializeUI();
    void createFontNameList();
    void createFontStyleList();
    void createFontColorList();
    void createFontShadeList();
    void createMessageAngleList();

    // Font pop-up action: the styles of the chosen family.
    void selectFontName();
    // Style pop-up action: the PostScript name of the chosen member.
    void selectFontStyle();
    QString postScriptFontNameFullName();
    // Selects a family by name (or the installed family that stands in for
    // it) and rebuilds the styles; false when neither is installed.
    bool selectFontFamily(const QString& family);

    // The free angle's field, stepper and range show only for "free angle".
    void selectMessageAngle();
    void SelectWatermarkandAngleAction();
    // Stepper actions: the field takes the stepper's value.
    void upAndDownFontSize();
    void upAndDownMessageAngle();

    // Enables the controls for the watermark pop-up's index and, with fill,
    // fills them from the chosen watermark's record (without it the user's
    // own changes to the watermark's settings stand).
    void showSelectedWatermarkSettings(int index, bool fill = true);
    QString selectedWatermarkString() const { return m_selectedWatermarkString; }

    // The watermark records of "WatermarkData", and the display strings of
    // "WatermarkString" for the user's language.
    QList<QVariantMap> getWatermarkArray() const;
    QVariantMap getWatermarkStringFilePath() const;
    // Deliberately empty: no sorting source is read.
    QStringList getSortedPlistStringArray() const { return {}; }

private:
    void setControlsEnabled(bool enabled);
    void fillFromRecord(const QVariantMap& record);
    QString localized(const QString& key) const;

    MRAdvancedOptionPDE* AdvancedOptionPDEObject;
    Ui::AdvancedOptionPDE* m_ui;
    QString m_selectedWatermarkString;
    QString m_postScriptFontName;
};
