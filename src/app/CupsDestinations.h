#pragma once
#include <QList>
#include <QString>
#include <QStringList>

// What CUPS offers the dialog: the queues of the server (cupsGetDests2) and
// the cover pages (banners) a queue supports.
class CupsDestinations {
public:
    struct Queue {
        QString name;
        QString description;  // printer-info, or empty
        bool isDefault = false;
    };

    // Every queue of the current server, in the server's order. Instances
    // (presets) are not queues of their own and are left out.
    static QList<Queue> queues();
    // The cover pages of a queue (its job-sheets-supported), or, for a PPD
    // file without a queue, the banners installed with CUPS. "none" first.
    static QStringList coverPages(const QString& queue);
};
