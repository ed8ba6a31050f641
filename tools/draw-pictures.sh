#!/usr/bin/env bash
# Draws the bundle's pictures again into bundle/images/ (old ones replaced).
#   tools/draw-pictures.sh [NAME...]
set -euo pipefail
cd "$(dirname "$0")/.."
./setup
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target draw-pictures
[ $# -eq 0 ] && rm -f bundle/images/*.png
build/tools/pictures/draw-pictures bundle/images "$@"
