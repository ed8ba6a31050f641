#!/usr/bin/env bash
# Checks the printer descriptions (PPD files) that the project ships in
# bundle/printers and the ones its tests use in tests/fixtures:
#   - cupstestppd passes each file (warnings are allowed, failures are not);
#   - each file is valid UTF-8 (CUPS reads translations as UTF-8);
#   - every group whose name starts like "Install..."/"Instal..." (any case) is
#     opened exactly as "*OpenGroup: InstallableOptions/<text>" and closed as
#     "*CloseGroup: InstallableOptions": the panels find installed hardware
#     through that group name, and a misspelled name is accepted silently by
#     both cupstestppd and libcups;
#   - both sample printers have a non-empty InstallableOptions group.
# Usage: tests/sh/check_ppds.sh REPO_ROOT
# The last line is "N passed, M failed"; the exit status is 0 only when
# nothing failed and at least one PPD was checked.
set -euo pipefail

root=${1:?usage: check_ppds.sh REPO_ROOT}
root=${root%/}
passed=0
failed=0

pass() {
    passed=$((passed + 1))
    printf 'ok   %s\n' "$1"
}

fail() {
    failed=$((failed + 1))
    printf 'FAIL %s\n' "$1"
    if [ $# -gt 1 ] && [ -n "$2" ]; then
        printf '%s\n' "$2" | sed 's/^/     /'
    fi
}

finish() {
    printf '%d passed, %d failed\n' "$passed" "$failed"
    if [ "$failed" -eq 0 ]; then
        exit 0
    fi
    exit 1
}

if ! command -v cupstestppd >/dev/null 2>&1; then
    fail "cupstestppd is not installed (Debian package: cups)"
    finish
fi

dirs=()
if [ -d "$root/bundle/printers" ]; then
    dirs+=("$root/bundle/printers")
else
    fail "missing folder $root/bundle/printers"
fi
if [ -d "$root/tests/fixtures" ]; then
    dirs+=("$root/tests/fixtures")
fi

ppds=()
if [ ${#dirs[@]} -gt 0 ]; then
    while IFS= read -r -d '' f; do
        ppds+=("$f")
    done < <(find "${dirs[@]}" -type f -name '*.ppd' -print0 | LC_ALL=C sort -z)
fi
if [ ${#ppds[@]} -eq 0 ]; then
    fail "no *.ppd files found under bundle/printers or tests/fixtures"
    finish
fi

# Prints one line per bad group line: "LINE: TEXT". A group is ours to check
# when its name (before "/") starts with "instal", compared without case.
bad_group_lines() {
    awk '
        {
            sub(/\r$/, "")
        }
        /^\*(Open|Close)Group:/ {
            line = $0
            name = line
            sub(/^\*(Open|Close)Group:[ \t]*/, "", name)
            sub(/\/.*/, "", name)
            sub(/[ \t]+$/, "", name)
            if (tolower(name) !~ /^instal/)
                next
            if (line ~ /^\*OpenGroup:/) {
                if (line !~ /^\*OpenGroup: InstallableOptions\/[^ \t].*$/)
                    print NR ": " line
                else
                    opened++
            } else {
                if (line != "*CloseGroup: InstallableOptions")
                    print NR ": " line
                else
                    closed++
            }
        }
        END {
            if (opened != closed)
                print "InstallableOptions opened " (opened + 0) " times but closed " (closed + 0) " times"
        }
    ' "$1"
}

for f in "${ppds[@]}"; do
    rel=${f#"$root"/}

    if out=$(cupstestppd "$f" 2>&1); then
        rc=0
    else
        rc=$?
    fi
    if [ "$rc" -eq 0 ] && ! grep -q 'FAIL' <<<"$out"; then
        pass "cupstestppd $rel"
    else
        fail "cupstestppd $rel (exit status $rc)" "$out"
    fi

    if iconv -f UTF-8 -t UTF-8 "$f" >/dev/null 2>&1; then
        pass "UTF-8 $rel"
    else
        fail "UTF-8 $rel: the file is not valid UTF-8"
    fi

    bad=$(bad_group_lines "$f")
    if [ -z "$bad" ]; then
        pass "installable-options group name $rel"
    else
        fail "installable-options group name $rel: expected '*OpenGroup: InstallableOptions/<text>' and '*CloseGroup: InstallableOptions'" "$bad"
    fi
done

# The sample printers must declare their installed hardware.
for name in velmora-c5500.ppd velmora-m200.ppd; do
    f="$root/bundle/printers/$name"
    if [ ! -f "$f" ]; then
        fail "sample printer bundle/printers/$name is missing"
        continue
    fi
    options=$(awk '
        { sub(/\r$/, "") }
        /^\*OpenGroup: InstallableOptions\// { inside = 1; found = 1; next }
        /^\*CloseGroup: InstallableOptions$/ { inside = 0; next }
        inside && /^\*OpenUI[ \t]/ { n++ }
        END { if (found) print n + 0; else print "none" }
    ' "$f")
    if [ "$options" = "none" ]; then
        fail "bundle/printers/$name has no InstallableOptions group"
    elif [ "$options" -eq 0 ]; then
        fail "bundle/printers/$name has an empty InstallableOptions group"
    else
        pass "bundle/printers/$name has an InstallableOptions group ($options options)"
    fi
done

finish
