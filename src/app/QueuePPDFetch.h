#pragma once
#include "CupsPrinterList.h"

#include <QString>

// The PPD of a queue, fetched to open it: one HTTP GET of /printers/NAME.ppd
// on the server (for a class, its first member's PPD) into a temporary file.
// A queue whose URI is on another host is fetched as libcups fetches it
// (cupsGetPPD3 finds that host): correct before fast.
class QueuePPDFetch {
public:
    // The temporary file (the caller removes it), or empty with *error
    // ("printer QUEUE has no PPD: ..."). queue is the name the user gave.
    static QString fetch(const CupsPrinterList::Printer& printer, const QString& queue, QString* error);
};
