#pragma once
#include <QString>

namespace Ui {
class ManualDuplexPDE;
}
class MRManualDuplexPDE;

// The tip area of the Manual Duplex panel: the picture of the chosen binding
// for the page's orientation, the printing tip's texts and its three step
// pictures.
class MRManualDuplexController {
public:
    MRManualDuplexController(MRManualDuplexPDE* owner, Ui::ManualDuplexPDE* ui);

    // Redraws the tip area for the pop-up's item at index (0 one-sided,
    // 1 long-edge binding, 2 short-edge binding), reading the orientation.
    void showSelectedManualDuplexSettings(int index);

    // The bundle picture of a binding (index as above) in an orientation
    // ("1" portrait, "2" landscape, "3" reverse portrait, "4" reverse
    // landscape); null for any other index or orientation.
    static QString bindingPictureName(int index, const QString& orientation);

private:
    MRManualDuplexPDE* ManualDuplexPDEPDEObject;  // the owning panel
    Ui::ManualDuplexPDE* m_ui;
};
