#include "MRManualDuplexController.h"

#include "MRManualDuplexPDE.h"
#include "PDELog.h"
#include "ui_ManualDuplexPDE.h"

#include <QApplication>

MRManualDuplexController::MRManualDuplexController(MRManualDuplexPDE* owner, Ui::ManualDuplexPDE* ui)
    : ManualDuplexPDEPDEObject(owner), m_ui(ui)
{
}

QString MRManualDuplexController::bindingPictureName(int index, const QString& orientation)
{
    // Rows: one-sided, long edge, short edge; columns: the four orientations.
    static const char* const names[3][4] = {
        {"doubleside_none", "doubleside_landnone", "doubleside_none_rotate", "doubleside_landnone_rotate"},
        {"doubleside_long", "doubleside_landlong", "doubleside_long_rotate", "doubleside_landlong_rotate"},
        {"doubleside_short", "doubleside_landshort", "doubleside_short_rotate", "doubleside_landshort_rotate"},
    };
    bool ok = false;
    const int column = orientation.toInt(&ok) - 1;
    if (!ok || index < 0 || index > 2 || column < 0 || column > 3)
        return QString();
    return QString::fromLatin1(names[index][column]);
}

void MRManualDuplexController::showSelectedManualDuplexSettings(int index)
{
    MRManualDuplexPDE* panel = ManualDuplexPDEPDEObject;
    const QString orientation = panel->ReadOrientation();
    panel->setAppOrientation(orientation);
    const PDEBundle* bundle = panel->pluginBundle().get();
    MRStandalonePDE::setImage(m_ui->ManualDuplexView, bundle, bindingPictureName(index, orientation));

    const struct {
        QLabel* label;
        const char* key;
    } tips[] = {{m_ui->PrintingTipDescription, "PrintingTipDescription"},
                {m_ui->PrintingTipCoverPage, "PrintingTipCoverPage"},
                {m_ui->PrintingTipStep1, "PrintingTipStep1"},
                {m_ui->PrintingTipStep2, "PrintingTipStep2"},
                {m_ui->PrintingTipStep3, "PrintingTipStep3"}};
    for (const auto& tip : tips) {
        // Grey while printing one-sided, black for a binding.
        if (index >= 0 && index <= 2)
            MRStandalonePDE::setLabelActive(tip.label, index != 0);
        tip.label->setText(panel->getLocalizationWithKey(QString::fromLatin1(tip.key)));
        // The system font a step smaller than the dialog's own (12 against 13 points).
        QFont font = tip.label->font();
        font.setPointSizeF(QApplication::font().pointSizeF() * 12.0 / 13.0);
        tip.label->setFont(font);
    }

    // The printer's own step pictures when its PPD names the first one.
    QLabel* const steps[] = {m_ui->Step1ImageView, m_ui->Step2ImageView, m_ui->Step3ImageView};
    if (panel->ppdMDimage1Str() == QLatin1String("NULL")) {
        for (int i = 0; i < 3; ++i)
            MRStandalonePDE::setImage(steps[i], bundle, QStringLiteral("itdrvM%1").arg(i + 1));
        return;
    }
    const QString paths[] = {panel->ppdMDimage1Str(), panel->ppdMDimage2Str(), panel->ppdMDimage3Str()};
    for (int i = 0; i < 3; ++i) {
        MRStandalonePDE::setImageFromFile(steps[i], paths[i]);
        if (steps[i]->property("imageName").toString().isEmpty())
            PDENSLog(QStringLiteral("ManualDuplexPDE: ERROR : the step picture \"%@\" named by the PPD cannot be read"), paths[i]);
    }
}
