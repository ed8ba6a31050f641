#pragma once
#include <QString>

// Whether a queue's PPD on the CUPS server is still the one a dialog opened
// with: another administrator may have given the queue another driver
// (lpadmin -P) while the dialog was open. The server's PPD is fetched again
// and compared byte for byte (a modification time has a resolution of one
// second and misses a change made within it).
class QueuePPDCheck {
public:
    enum class Result {
        Same,
        Changed,
        Unknown  // the server cannot be asked now; printing finds out why
    };
    // queue: "name" or "name/instance"; server: "host:port" or empty.
    static Result compare(const QString& queue, const QString& server, const QString& openedPPD);
};
