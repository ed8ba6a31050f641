// Preloaded into a benchmarked process: counts how often it parses a PPD.
// Every libcups PPD opener (ppdOpen, ppdOpen2, ppdOpenFd, ppdOpenFile) ends
// in the exported _ppdOpen, called through the library's PLT, so wrapping
// that one function sees them all. At exit the count is appended to the
// file named by PRINT_PANELS_BENCH_COUNT_FILE as "ppd-parses N".
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>

static int parses;

void* _ppdOpen(void* fp, int localization)
{
    static void* (*real)(void*, int);
    if (!real)
        real = (void* (*)(void*, int))dlsym(RTLD_NEXT, "_ppdOpen");
    ++parses;
    return real ? real(fp, localization) : NULL;
}

__attribute__((destructor)) static void writeCount(void)
{
    const char* path = getenv("PRINT_PANELS_BENCH_COUNT_FILE");
    FILE* f = path ? fopen(path, "a") : NULL;
    if (!f)
        return;
    fprintf(f, "ppd-parses %d\n", parses);
    fclose(f);
}
