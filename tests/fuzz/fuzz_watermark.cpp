// The custom watermark text and its escaped wire form. The input is a text
// the message field holds: escaped and read back it is the same text. The
// input is also a wire form found in the print settings: the Advanced
// Options panel restores it and saves what it shows, escaped again.
#include "FuzzSupport.h"
#include "MRAdvancedOptionPDE.h"
#include "MRMessageFormatter.h"
#include "PrintDialogHost.h"
#include "ui_AdvancedOptionPDE.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzSupport::start();
    const QString text = FuzzSupport::text(data, size);
    MRMessageFormatter formatter;
    if (formatter.isPartialStringValid(text)) {
        const QString wire = MRAdvancedOptionPDE::escapeWatermarkText(text);
        FuzzSupport::check(!wire.contains(QLatin1Char(',')) && !wire.contains(QLatin1Char('\'')), "the wire form keeps a separator", wire);
        FuzzSupport::check(MRAdvancedOptionPDE::unescapeWatermarkText(wire) == text, "a watermark text does not survive its wire form", text);
    }

    QString error;
    auto host = FuzzSupport::sampleHost();
    host->printSettings()->setValue(QString::fromLatin1(kNSWatermarkCustomeStrKey), text);
    auto panel = MRAdvancedOptionPDE::create(host.get(), PDEBundle::embedded());
    FuzzSupport::check(panel != nullptr, "advanced options panel");
    panel->restoreValuesAndReturnError(&error);
    panel->willShow();
    const QString shown = panel->ui()->watermarkMessageField->text();
    panel->saveValuesAndReturnError(&error);
    const QString saved = host->printSettings()->value(QString::fromLatin1(kNSWatermarkCustomeStrKey));
    if (!saved.isNull())
        FuzzSupport::check(MRAdvancedOptionPDE::unescapeWatermarkText(saved) == shown, "the saved watermark is not the one shown", shown);
    return 0;
}
