#pragma once
#include <QObject>
#include <QVariantMap>

namespace Ui {
class AdvancedOptionPDE;
}
class MRAdvancedOptionPDE;

// The printing tips for a booklet that the user folds by hand: three steps,
// each a picture and a text, drawn black while manual booklet is on.
class MRManualBookletController : public QObject {
    Q_OBJECT
public:
    MRManualBookletController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui);

    void showSelectedManualBookletSettings(int index);
    QVariantMap getBookletStatusString() const;
    QString getBookletStringFilePath() const;

private:
    MRAdvancedOptionPDE* AdvancedOptionPDEObject;
    Ui::AdvancedOptionPDE* m_ui;
};
