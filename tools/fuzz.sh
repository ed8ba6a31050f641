#!/usr/bin/env bash
# Builds the libFuzzer targets with clang, AddressSanitizer and UBSan in
# build-fuzz (the whole project and its tests, incrementally after the first
# time), then runs each target for SECONDS (default 30) on a temporary copy
# of its corpus, tests/fuzz/corpus/NAME, so the tree stays as it is.
# A crashing, hanging or memory-hungry input fails the run: its target and
# its file are named, and the file is kept under build-fuzz/fuzz-findings
# to be committed into the target's corpus with the fix.
# With --suite, the test suite runs in that build first (all of it but the
# 300-PPD sample, which runs in the normal build).
# Usage: tools/fuzz.sh [--suite] [SECONDS]
set -euo pipefail
suite=0
if [ "${1:-}" = --suite ]; then suite=1; shift; fi
seconds=${1:-30}
root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build-fuzz
launcher=()
if command -v ccache >/dev/null; then
  launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
# Optimised and with line tables: the sanitizers' usual -O1, and stacks with
# file and line, at about half the compile time of -O2 -g.
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_C_FLAGS_RELWITHDEBINFO="-O1 -gline-tables-only" -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -gline-tables-only" \
  -DPRINT_PANELS_ASAN=ON -DPRINT_PANELS_FUZZ=ON "${launcher[@]}" >/dev/null
cmake --build "$build" -j2
if [ "$suite" = 1 ]; then
  # The 300-PPD sample (900 runs of the program) runs in the normal build;
  # the ppd fuzz target takes PPD text through the same code here.
  (cd "$build" && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2 -E '^ppd_sweep_sample$')
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
findings=$build/fuzz-findings
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export ASAN_OPTIONS=fast_unwind_on_malloc=0:detect_leaks=0
export LSAN_OPTIONS=suppressions=$root/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
failed=0
for dir in "$root"/tests/fuzz/corpus/*/; do
  name=$(basename "$dir")
  corpus=$work/$name/corpus
  mkdir -p "$corpus" "$work/$name/artifacts"
  cp "$dir"* "$corpus"/
  # The PPD target also starts from the test fixtures and the smaller sample printer.
  [ "$name" = ppd ] && cp "$root"/tests/fixtures/*.ppd "$root"/bundle/printers/velmora-m200.ppd "$corpus"/
  # No leak check while fuzzing: fontconfig's configuration and Qt's
  # fallback-font cache read as leaked. The replay tests check leaks.
  args=(-max_total_time="$seconds" -timeout=20 -rss_limit_mb=3072 -print_final_stats=1 -detect_leaks=0
        -artifact_prefix="$work/$name/artifacts/")
  [ -f "$root/tests/fuzz/$name.dict" ] && args+=(-dict="$root/tests/fuzz/$name.dict")
  log=$work/$name/log
  if "$build/tests/fuzz/fuzz_$name" "${args[@]}" "$corpus" >"$log" 2>&1; then
    echo "fuzz_$name: $(grep -ho 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$') runs in ${seconds} s, no finding"
  else
    failed=1
    mkdir -p "$findings/$name"
    tail -n 40 "$log" >&2
    for f in "$work/$name/artifacts"/*; do
      [ -e "$f" ] || continue
      cp "$f" "$findings/$name/"
      echo "fuzz.sh: fuzz_$name fails on $findings/$name/$(basename "$f")" >&2
    done
  fi
done
exit $failed
