// The least a process must do to open a CUPS queue's options: a Qt
// application (off screen) that fetches the queue's PPD from CUPS, opens it
// and marks the PPD's defaults and the queue's saved options with libcups.
// bench/dialog compares print-panels' headless runs against it.
#include "QueuePPDFloor.h"

#include <QApplication>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: ppd_process_floor QUEUE\n");
        return 2;
    }
    return openAndMarkQueuePPD("ppd_process_floor", argv[1]) ? 0 : 2;
}
