#!/usr/bin/env python3
"""Prints the URI of the largest PPD that Debian's openprinting-ppds driver
offers (by its size in the driver's archive index)."""
import importlib.machinery
import importlib.util
import sys

DRIVER = "/usr/lib/cups/driver/openprinting-ppds"

def main():
    loader = importlib.machinery.SourceFileLoader("openprinting_ppds", DRIVER)
    module_info = importlib.util.spec_from_loader("openprinting_ppds", loader)
    module = importlib.util.module_from_spec(module_info)
    loader.exec_module(module)
    index = module.load()
    best = None
    for key, value in index.items():
        if key == "ARCHIVE" or not value[2]:
            continue
        if best is None or value[1] > best[0]:
            best = (value[1], value[2][0])
    if best is None:
        sys.exit("no PPD in the archive")
    uri = best[1].split('"')[1] if '"' in best[1] else best[1].split()[0]
    print("openprinting-ppds:" + uri if ":" not in uri.split("/")[0] else uri)

if __name__ == "__main__":
    main()
