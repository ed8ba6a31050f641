#include "MRManualBookletController.h"

#include "MRAdvancedOptionPDE.h"
#include "ui_AdvancedOptionPDE.h"

MRManualBookletController::MRManualBookletController(MRAdvancedOptionPDE* panel, Ui::AdvancedOptionPDE* ui)
    : AdvancedOptionPDEObject(panel), m_ui(ui)
{
}

void MRManualBookletController::showSelectedManualBookletSettings(int index)
{
    struct Tip {
        QLabel* label;
        const char* key;
        int size;
    };
    const Tip tips[] = {{m_ui->PrintingTipDescription, "PrintingTipDescription", 11},
                        {m_ui->PrintingTipCoverPage, "PrintingTipCoverPage", 11},
                        {m_ui->PrintingTipStep1, "PrintingTipStep1", 12},
                        {m_ui->PrintingTipStep2, "PrintingTipStep2", 12},
                        {m_ui->PrintingTipStep3, "PrintingTipStep3", 12}};
    for (const Tip& tip : tips) {
        MRStandalonePDE::setLabelActive(tip.label, index != 0);
        tip.label->setText(AdvancedOptionPDEObject->getLocalizationWithKey(QString::fromLatin1(tip.key)));
        MRStandalonePDE::setSystemFontSize(tip.label, tip.size);
    }
    const PDEBundle* bundle = AdvancedOptionPDEObject->pluginBundle().get();
    MRStandalonePDE::setImage(m_ui->Step1ImageView, bundle, QStringLiteral("itdrvM1"));
    MRStandalonePDE::setImage(m_ui->Step2ImageView, bundle, QStringLiteral("itdrvM2"));
    MRStandalonePDE::setImage(m_ui->Step3ImageView, bundle, QStringLiteral("itdrvM3"));
}

QVariantMap MRManualBookletController::getBookletStatusString() const
{
    return AdvancedOptionPDEObject->getBookletStatusString();
}

QString MRManualBookletController::getBookletStringFilePath() const
{
    return AdvancedOptionPDEObject->getBookletStringFilePath();
}
