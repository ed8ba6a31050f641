#pragma once
#include <QObject>
#include <QPointer>

class MRPDESecurityPanelController;
class QComboBox;
class QLabel;
class QLineEdit;

// The Security tab: secure release on or off, and the user ID the job is
// released with (letters, digits and a few signs, at most 32 characters),
// which can be typed only while secure release is on.
class MRPDESecurityController : public QObject {
    Q_OBJECT
public:
    explicit MRPDESecurityController(MRPDESecurityPanelController* pdeSecurityPanelController);
    ~MRPDESecurityController() override;

    // Whether the printer offers secure release.
    bool shouldDisplayTab() const;
    void configure();

    // The characters a user ID may hold.
    static QString userIDCharacters();
    static constexpr int kUserIDMaximumLength = 32;

private:
    MRPDESecurityPanelController* _pdeSecurityPanelController;  // owns this tab's controller
    QPointer<QWidget> securityMainView;
    QPointer<QLabel> secureTrueLabel;
    QPointer<QComboBox> secureTruePopUpButton;
    QPointer<QLabel> secureTrueUserIDLabel;
    QPointer<QLineEdit> secureTrueTextField;
};
