// Every panel restored from print settings as a saved preset or another
// program may have left them: one "key=value" entry a line, put into the
// sample printer's print settings before the plug-in makes its panels. Each
// panel restores, shows and saves; saving again after restoring what was
// saved changes nothing.
#include "FuzzSupport.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDEPanel.h"
#include "PrintDialogHost.h"

namespace {
QList<PMPrintSettings::Entry> restoreAndSave(PrintDialogHost& host, const QList<std::shared_ptr<PDEPanel>>& panels)
{
    QString error;
    for (const auto& panel : panels)
        panel->restoreValuesAndReturnError(&error);
    for (const auto& panel : panels) {
        panel->willShow();
        panel->saveValuesAndReturnError(&error);
    }
    return host.printSettings()->entries();
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzSupport::start();
    QString error;
    auto host = FuzzSupport::sampleHost();
    for (const QString& line : FuzzSupport::text(data, size).split(QLatin1Char('\n'))) {
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq > 0)
            host->printSettings()->setValue(line.left(eq), line.mid(eq + 1));
    }
    MRPDE_MACFirstEventHandler entry;
    entry.initWithBundle(PDEBundle::embedded());
    const auto panels = entry.PDEPanelsForType(QStringLiteral("com.apple.print.pde.PrintDialogType"), host.get());
    QList<PDEPanel*> raw;
    for (const auto& p : panels)
        raw.append(p.get());
    host->setPanels(raw);
    const auto saved = restoreAndSave(*host, panels);
    const auto again = restoreAndSave(*host, panels);
    FuzzSupport::check(saved == again, "saving what was restored changed the settings");
    host->setPanels({});
    return 0;
}
