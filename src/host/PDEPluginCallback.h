#pragma once
#include <QString>

struct ppd_file_s;
class PMPrintSettings;
class PMPageFormat;
class PMPrinter;
class PMPrintSession;

// What the print dialog offers a plug-in. A callback says which operations it
// actually offers through respondsToOperation(); a plug-in must not call an
// operation that is not offered.
class PDEPluginCallback {
public:
    enum class Operation {
        PrintSession,
        PrintSettings,
        PageFormat,
        PMPrinter,
        PPDFile,
        WillChangePPDOptionKeyValue,
        PanelViewDidResize,
    };

    virtual ~PDEPluginCallback() = default;

    virtual bool respondsToOperation(Operation op) const = 0;

    virtual PMPrintSession* printSession() = 0;
    virtual PMPrintSettings* printSettings() = 0;
    virtual PMPageFormat* pageFormat() = 0;
    virtual PMPrinter* pmPrinter() = 0;
    virtual ppd_file_s* ppdFile() = 0;
    // Asks the dialog to change a PPD option; true when it did.
    virtual bool willChangePPDOptionKeyValue(const QString& option, const QString& choice) = 0;
    virtual void panelViewDidResize() = 0;
};
