#!/usr/bin/env python3
"""The PPDs of Debian's generic PPD packages (openprinting-ppds,
foomatic-db-compressed-ppds, hplip-data), read from their pyppd archives in
/usr/lib/cups/driver/.

  debian_ppds.py largest FILE      writes the largest PPD (by size) to FILE,
                                   once, and prints its URI
  debian_ppds.py corpus DIR [N]    extracts a fixed selection of N PPDs (200)
                                   into DIR, once, and prints their paths
"""
import base64
import lzma
import os
import sys
import types

DRIVERS = ["openprinting-ppds", "foomatic-db-compressed-ppds", "hplip-data"]
DRIVER_DIR = "/usr/lib/cups/driver"


def archive_index(driver):
    """The archive's index: key -> [offset, size, [description lines]], and
    "ARCHIVE": the xz-compressed PPDs, one after the other (base64)."""
    path = os.path.join(DRIVER_DIR, driver)
    module = types.ModuleType(driver.replace("-", "_"))
    with open(path, "rb") as f:
        exec(compile(f.read(), path, "exec"), module.__dict__)
    return module.load()


def all_ppds():
    """{uri: size} of every PPD in the installed archives."""
    found = {}
    for driver in DRIVERS:
        if os.path.exists(os.path.join(DRIVER_DIR, driver)):
            for key, value in archive_index(driver).items():
                if key != "ARCHIVE" and value[2]:
                    found[driver + ":" + key] = value[1]
    if not found:
        sys.exit("debian_ppds.py: no PPD archive installed (apt-get install " + " ".join(DRIVERS) + ")")
    return found


def extract(wanted):
    """Writes each {uri: path}: one streamed decompression per archive, in
    archive order, instead of one whole decompression per PPD."""
    for driver in DRIVERS:
        mine = {uri.split(":", 1)[1]: path for uri, path in wanted.items() if uri.split(":", 1)[0] == driver}
        if not mine:
            continue
        index = archive_index(driver)
        data = base64.b64decode(index["ARCHIVE"])
        decompressor = lzma.LZMADecompressor()
        pos, buf = 0, bytearray()
        for start, length, key in sorted((index[k][0], index[k][1], k) for k in mine):
            while pos + len(buf) < start + length:
                chunk = decompressor.decompress(data, 1 << 24)
                data = b""
                if not chunk and decompressor.eof:
                    sys.exit("debian_ppds.py: %s:%s lies beyond its archive's end" % (driver, key))
                buf += chunk
                if pos + len(buf) <= start:
                    pos += len(buf)
                    buf.clear()
            del buf[:start - pos]
            pos = start
            text = bytes(buf[:length])
            if not text.startswith(b"*PPD-Adobe"):
                sys.exit("debian_ppds.py: %s:%s is not a PPD" % (driver, key))
            with open(mine[key] + ".part", "wb") as f:
                f.write(text)
            os.replace(mine[key] + ".part", mine[key])


def corpus(directory, count):
    """Every len/count-th PPD in URI order: the same selection on every run
    (of the same package versions)."""
    uris = sorted(all_ppds())
    count = min(count, len(uris))
    chosen = [uris[i * len(uris) // count] for i in range(count)]
    os.makedirs(directory, exist_ok=True)
    paths = {uri: os.path.join(directory, uri.replace(":", "_").replace("/", "_")) for uri in chosen}
    extract({uri: path for uri, path in paths.items() if not os.path.exists(path)})
    return [paths[uri] for uri in chosen]


def largest(path):
    """The largest PPD, at path, its URI in path.uri: extracted once."""
    if not (os.path.exists(path) and os.path.exists(path + ".uri")):
        sizes = all_ppds()
        uri = max(sizes, key=lambda u: (sizes[u], u))
        extract({uri: path})
        with open(path + ".uri", "w") as f:
            f.write(uri + "\n")
    with open(path + ".uri") as f:
        return f.read().strip()


def main():
    if len(sys.argv) >= 3 and sys.argv[1] == "largest":
        print(largest(sys.argv[2]))
    elif len(sys.argv) in (3, 4) and sys.argv[1] == "corpus":
        print("\n".join(corpus(sys.argv[2], int(sys.argv[3]) if len(sys.argv) == 4 else 200)))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main()
