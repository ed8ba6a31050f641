// The `-o` grammar: an option string split, checked and applied to a
// sample printer. A string that is refused changes nothing; one that is
// accepted splits into the options it applies.
#include "FuzzSupport.h"
#include "PrintDialogHost.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzSupport::start();
    const QString options = FuzzSupport::text(data, size);
    QString error;
    const QStringList tokens = PrintDialogHost::splitOptionString(options, &error);
    FuzzSupport::check(PrintDialogHost::validateOptionString(options, nullptr) == error.isEmpty(), "validate and split disagree", options);
    FuzzSupport::check(error.isEmpty() || tokens.isEmpty(), "a refused string has tokens", options);

    auto host = FuzzSupport::sampleHost();
    const PrintDialogHost::OptionList before = host->jobOptions();
    if (!host->applyOptions(options, &error)) {
        FuzzSupport::check(!error.isEmpty(), "refused without a reason", options);
        FuzzSupport::check(host->jobOptions() == before, "a refused string changed the job", options);
    }
    PMPrintSettings settings;
    settings.addCupsOptionString(options);
    return 0;
}
