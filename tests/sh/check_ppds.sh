#!/usr/bin/env bash
# Checks every PPD of bundle/printers and tests/fixtures: cupstestppd passes
# it, it is UTF-8, and a group named like "Install..." is exactly
# "InstallableOptions" (the panels find installed hardware by that name, and a
# misspelled one passes cupstestppd and libcups silently). Both sample
# printers must have installable options. Usage: check_ppds.sh REPO_ROOT
set -uo pipefail
root=${1:?usage: check_ppds.sh REPO_ROOT}
failed=0
fail() { failed=$((failed + 1)); printf 'FAIL %s\n%s\n' "$1" "${2:-}"; }

command -v cupstestppd >/dev/null || { echo "FAIL cupstestppd is not installed (Debian package: cups)"; exit 1; }
mapfile -d '' ppds < <(find "$root/bundle/printers" "$root/tests/fixtures" -name '*.ppd' -print0 | LC_ALL=C sort -z)
[ ${#ppds[@]} -gt 0 ] || { echo "FAIL no PPD found"; exit 1; }
for f in "${ppds[@]}"; do
    rel=${f#"$root"/}
    out=$(cupstestppd "$f" 2>&1) && ! grep -q FAIL <<<"$out" || fail "cupstestppd $rel" "$out"
    iconv -f UTF-8 -t UTF-8 "$f" >/dev/null 2>&1 || fail "$rel is not valid UTF-8"
    # Group lines whose name starts with "instal" (any case) but are not the exact forms.
    bad=$(awk '{ sub(/\r$/, "") }
        /^\*(Open|Close)Group:/ { name = $0; sub(/^\*(Open|Close)Group:[ \t]*/, "", name); sub(/\/.*/, "", name)
            if (tolower(name) !~ /^instal/) next
            if ($0 ~ /^\*OpenGroup: InstallableOptions\/[^ \t]/) opened++
            else if ($0 == "*CloseGroup: InstallableOptions") closed++
            else print NR ": " $0 }
        END { if (opened != closed) print "opened " opened + 0 " times, closed " closed + 0 }' "$f")
    [ -z "$bad" ] || fail "$rel: groups must be '*OpenGroup: InstallableOptions/TEXT' and '*CloseGroup: InstallableOptions'" "$bad"
done
for name in velmora-c5500.ppd velmora-m200.ppd; do
    n=$(awk '/^\*OpenGroup: InstallableOptions\// { inside = 1; next } /^\*CloseGroup: InstallableOptions/ { inside = 0 }
             inside && /^\*OpenUI[ \t]/ { n++ } END { print n + 0 }' "$root/bundle/printers/$name" 2>/dev/null)
    [ "${n:-0}" -gt 0 ] || fail "bundle/printers/$name has no installable options"
done
echo "${#ppds[@]} PPDs checked, $failed failures"
[ "$failed" -eq 0 ]
