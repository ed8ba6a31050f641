#include "MRPDESecurityController.h"

#include "MRPDEBasicTrigger.h"
#include "MRPDESecurityPanelController.h"
#include "MRPDE_MACLabelController.h"
#include "MRPDE_MACPopUpButtonController.h"
#include "MRPDE_MACTextFieldController.h"
#include "ui_Security.h"

MRPDESecurityController::MRPDESecurityController(MRPDESecurityPanelController* pdeSecurityPanelController)
    : _pdeSecurityPanelController(pdeSecurityPanelController)
{
    if (!pdeSecurityPanelController)
        return;
    const auto& u = *pdeSecurityPanelController->ui();
    securityMainView = u.securityMainView;
    secureTrueLabel = u.secureTrueLabel;
    secureTruePopUpButton = u.secureTruePopUpButton;
    secureTrueUserIDLabel = u.secureTrueUserIDLabel;
    secureTrueTextField = u.secureTrueTextField;
}

MRPDESecurityController::~MRPDESecurityController() = default;

QString MRPDESecurityController::userIDCharacters()
{
    return QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz1234567890`-~!#$%^&*()_{}'. ");
}

bool MRPDESecurityController::shouldDisplayTab() const
{
    MRPDE_MACChangeHandlerModel* model = _pdeSecurityPanelController ? _pdeSecurityPanelController->dataModel() : nullptr;
    return model
           && (model->featureWithKey(QStringLiteral("VELSecureReleaseOption3")) || model->featureWithKey(QStringLiteral("VELSecureReleaseOption2")));
}

void MRPDESecurityController::configure()
{
    MRPDESecurityPanelController* panel = _pdeSecurityPanelController;
    MRPDE_MACChangeHandlerModel* model = panel ? panel->dataModel() : nullptr;
    if (!model)
        return;
    panel->assignContolFromFeatureArrayControls(PDEControllerClass<MRPDE_MACPopUpButtonController>(),
                                                {{"KEY_SecuTrue", {"VELSecureReleaseOption2"}}}, {secureTruePopUpButton.data()});
    // A label without its pop-up says nothing.
    secureTrueLabel->setVisible(!secureTruePopUpButton->isHidden());
    const PDEFeaturePtr release = model->featureWithKey(QStringLiteral("VELSecureReleaseOption2"));
    if (!release) {
        secureTrueUserIDLabel->setVisible(false);
        secureTrueTextField->setVisible(false);
        return;
    }
    const QString identifier = QStringLiteral("KEY_SecuTrueUserID");
    const QString key = QStringLiteral("PSSUSERID");
    MRPDEControllerPtr label = panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
        PDEControllerClass<MRPDE_MACLabelController>(), key, identifier, secureTrueUserIDLabel);
    MRPDEControllerPtr field = panel->createControlUsingClassFeatureKeyFeatureKeyIdentifierControlOutlet(
        PDEControllerClass<MRPDE_MACTextFieldController>(), key, identifier, secureTrueTextField);
    if (auto text = std::dynamic_pointer_cast<MRPDE_MACTextFieldController>(field))
        text->setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(
            PDECharacterSet::fromString(userIDCharacters()), PDECharacterSet(), kUserIDMaximumLength, 0);
    // The user ID is for secure release only.
    const PDETriggerPtr off = PDEMakeBasicTrigger(release, QStringLiteral("Off"));
    for (const MRPDEControllerPtr& c : {label, field})
        if (c)
            c->setDisableTrigger(off);
}
