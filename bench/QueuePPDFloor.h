#pragma once
// The least any program must do to open a CUPS queue's options: fetch the
// queue's PPD from CUPS, open it and mark the PPD's defaults and the queue's
// saved options with libcups. Shared by ppd_process_floor and headless_bound.
#include <cups/cups.h>
#include <cups/ppd.h>

#include <cstdio>
#include <unistd.h>

// False, with a line on stderr naming program, when the queue or its PPD
// cannot be had.
inline bool openAndMarkQueuePPD(const char* program, const char* queue)
{
    cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue, nullptr);
    char path[1024] = "";
    time_t modtime = 0;
    if (!dest || cupsGetPPD3(CUPS_HTTP_DEFAULT, queue, &modtime, path, sizeof path) != HTTP_STATUS_OK) {
        std::fprintf(stderr, "%s: %s: %s\n", program, queue, cupsLastErrorString());
        cupsFreeDests(dest ? 1 : 0, dest);
        return false;
    }
    ppd_file_t* ppd = ppdOpenFile(path);
    ::unlink(path);
    if (!ppd) {
        std::fprintf(stderr, "%s: %s: the PPD cannot be read\n", program, queue);
        cupsFreeDests(1, dest);
        return false;
    }
    ppdMarkDefaults(ppd);
    cupsMarkOptions(ppd, dest->num_options, dest->options);
    ppdClose(ppd);
    cupsFreeDests(1, dest);
    return true;
}
