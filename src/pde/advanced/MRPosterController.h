#pragma once
#include <QObject>
#include <QVariantMap>

namespace Ui {
class AdvancedOptionPDE;
}
class MRAdvancedOptionPDE;
class QLabel;

// The poster part of the Advanced Options panel: the overlap field with its
// stepper and unit, and the concept picture of the chosen layout for the
// printer's colour capability and the page orientation.
class MRPosterController : public QObject {
    Q_OBJECT
public:
    MRPosterController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui);

    void initializeUI();
    // Enabling and picture for the poster pop-up's index (0 none, 1 to 3 the
    // layouts); other indexes change nothing.
    void showSelectedPosterSettings(int index);
    // The concept picture's name for an index and orientation text; null
    // when there is none.
    static QString conceptPictureName(int index, bool colour, const QString& orientation);
    // Stepper action: the field takes the stepper's value.
    void upAndDownOverlap();
    // Switches the overlap between millimetres and inches.
    void setMetric(bool metric);

    static int getOverlapMMValue(float inches);
    static QString getOverlapInchValue(int millimetres);
    QVariantMap getPosterStatusString() const;
    QString getPosterStringFilePath() const;
    QLabel* layoutTitle() const;

private:
    MRAdvancedOptionPDE* AdvancedOptionPDEObject;
    Ui::AdvancedOptionPDE* m_ui;
    bool m_metric = false;
};
