#pragma once
#include <QList>
#include <QString>
#include <QStringList>

class CupsDestList;

// What CUPS offers the dialog: the queues of the server and the cover pages
// (banners) a queue supports.
class CupsDestinations {
public:
    struct Queue {
        QString name;
        QString description;  // printer-info, or empty
        QString location;     // printer-location, or empty
        QString makeAndModel; // printer-make-and-model, or empty
        int state = 3;        // printer-state: 3 idle, 4 processing, 5 stopped
        bool accepting = true;  // printer-is-accepting-jobs
        bool isDefault = false;
    };

    // Every queue of the list, in the server's order, with what the server
    // says of its state. Instances (presets) are not queues of their own and
    // are left out.
    static QList<Queue> queues(const CupsDestList& dests);
    // The cover pages of a queue of the list (its job-sheets-supported),
    // or, for a PPD file without a queue, the banners installed with CUPS.
    // "none" first.
    static QStringList coverPages(const CupsDestList& dests, const QString& queue);
};
