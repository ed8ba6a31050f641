#!/usr/bin/env bash
# check_pictures.sh GENERATOR IMAGES_DIR: the generator draws every picture the
# bundle holds and no other, each a valid PNG (run tools/draw-pictures.sh
# after changing a drawing).
set -euo pipefail
gen=$1; images=$2
tmp=$(mktemp -d); trap 'rm -rf "$tmp"' EXIT
"$gen" "$tmp" >/dev/null
drawn=$(cd "$tmp" && ls *.png 2>/dev/null | sort || true)
committed=$(cd "$images" 2>/dev/null && ls *.png 2>/dev/null | sort || true)
if [ "$drawn" != "$committed" ]; then
  echo "pictures differ from the generator's (run tools/draw-pictures.sh):"
  diff <(echo "$committed") <(echo "$drawn") || true
  exit 1
fi
for f in $committed; do
  head -c 8 "$images/$f" | od -An -tx1 | grep -q '89 50 4e 47 0d 0a 1a 0a' || { echo "$f is not a PNG"; exit 1; }
done
echo "$(echo "$committed" | grep -c . || true) pictures match"
