// The least a process must do to open a CUPS queue's options: a Qt
// application (off screen) that fetches the queue's PPD from CUPS, opens it
// and marks the PPD's defaults and the queue's saved options with libcups.
// bench/dialog compares print-panels' headless runs against it.
#include <QApplication>
#include <cups/cups.h>
#include <cups/ppd.h>

#include <cstdio>
#include <unistd.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: ppd_process_floor QUEUE\n");
        return 2;
    }
    cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, argv[1], nullptr);
    char path[1024] = "";
    time_t modtime = 0;
    if (!dest || cupsGetPPD3(CUPS_HTTP_DEFAULT, argv[1], &modtime, path, sizeof path) != HTTP_STATUS_OK) {
        std::fprintf(stderr, "ppd_process_floor: %s: %s\n", argv[1], cupsLastErrorString());
        cupsFreeDests(dest ? 1 : 0, dest);
        return 2;
    }
    ppd_file_t* ppd = ppdOpenFile(path);
    ::unlink(path);
    if (!ppd) {
        std::fprintf(stderr, "ppd_process_floor: %s: the PPD cannot be read\n", argv[1]);
        cupsFreeDests(1, dest);
        return 2;
    }
    ppdMarkDefaults(ppd);
    cupsMarkOptions(ppd, dest->num_options, dest->options);
    ppdClose(ppd);
    cupsFreeDests(1, dest);
    return 0;
}
