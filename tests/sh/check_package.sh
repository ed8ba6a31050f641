#!/usr/bin/env bash
# Makes the Debian packages in BUILD_DIR (cpack -G DEB), checks them with
# lintian, installs them with apt-get as on a clean machine, uses the
# installed program from a folder outside the source tree, and removes them
# again, checking that no file is left behind:
#   - print-panels --version, the manual page and the bash completion;
#   - --describe on the installed sample printer; the program reads the
#     bundle beside it;
#   - --print to a private cupsd (bench/private-cupsd.sh: own ServerRoot on
#     127.0.0.1, a capture backend), stopped by its pid;
#   - the desktop entry and the AppStream metainfo validate;
#   - the example application builds against the integration library's -dev package.
# It changes the system, so it runs as root only (exit 77, skipped, else).
# Usage: tests/sh/check_package.sh BUILD_DIR
set -euo pipefail

build=$(realpath "${1:?usage: check_package.sh BUILD_DIR}")
if [ "$(id -u)" -ne 0 ]; then
    echo "check_package: skipped: installing and removing packages needs root"
    exit 77
fi
packages=(print-panels libprintpanels-integration0 libprintpanels-integration-dev)
for p in "${packages[@]}"; do
    if dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'installed'; then
        echo "check_package: $p is installed already; remove it first (this check installs and removes it)" >&2
        exit 1
    fi
done

export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
work=$(mktemp -d /tmp/print-panels-package-XXXXXX)
chmod 755 "$work"  # apt's own user reads the .deb files here
cupsd_started=0
repo=$(realpath "$(dirname "$0")/../..")
private_cupsd="$repo/bench/private-cupsd.sh"
installed=0
failed=0

fail() { echo "FAIL $*"; failed=$((failed + 1)); }
pass() { echo "ok   $*"; }
check() {  # check DESCRIPTION COMMAND...: passes when the command does
    local what=$1
    shift
    if "$@"; then pass "$what"; else fail "$what"; fi
}

stop_cupsd() {
    if [ "$cupsd_started" -eq 1 ]; then bash "$private_cupsd" stop "$work/cups"; fi
    cupsd_started=0
}
remove_packages() {
    apt-get purge -y -qq "${packages[@]}" >"$work/purge.log" 2>&1
}
cleanup() {
    stop_cupsd
    if [ "$installed" -eq 1 ]; then remove_packages || cat "$work/purge.log"; fi
    rm -rf "$work"
}
trap cleanup EXIT

# The packages, made from what the build folder has built.
cmake --build "$build" -j2 >"$work/build.log" 2>&1 || { cat "$work/build.log"; exit 1; }
rm -f "$build"/*.deb
(cd "$build" && cpack -G DEB >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; exit 1; }
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
arch=$(dpkg --print-architecture)
debs=()
for p in "${packages[@]}"; do
    deb="$build/${p}_${version}_${arch}.deb"
    check "cpack made $(basename "$deb")" test -f "$deb"
    cp "$deb" "$work/"
    debs+=("$work/$(basename "$deb")")
done
[ "$failed" -eq 0 ] || exit 1

# lintian: no errors (warnings are printed).
lintian_status=0
lintian --fail-on error --tag-display-limit 0 "${debs[@]}" >"$work/lintian.log" 2>&1 || lintian_status=$?
cat "$work/lintian.log"
check "lintian reports no errors" test "$lintian_status" -eq 0
depends=$(dpkg-deb -f "${debs[0]}" Depends)
check "dpkg-shlibdeps found the libraries (Depends: $depends)" \
    bash -c '[[ $0 == *libcups2* && $0 == *libqt6widgets6* ]]' "$depends"

# Every file the packages bring, to check their removal later.
for deb in "${debs[@]}"; do dpkg-deb --fsys-tarfile "$deb" | tar -t; done | sed 's|^\./|/|' |
    grep -v '/$' >"$work/files"
for f in /usr/bin/print-panels /usr/share/print-panels/Info.json /usr/share/print-panels/translations/pde_de.qm \
    /usr/share/print-panels/help/FinishingPDEHelp.html /usr/share/print-panels/images/blank.png \
    /usr/share/print-panels/printers/velmora-c5500.ppd /usr/share/print-panels/data/WatermarkData.json \
    /usr/share/applications/org.printpanels.PrintPanels.desktop /usr/share/metainfo/org.printpanels.PrintPanels.metainfo.xml \
    /usr/share/man/man1/print-panels.1.gz /usr/share/bash-completion/completions/print-panels \
    "/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/libprintpanels_integration.so.0" \
    /usr/include/print-panels/PrintPanelsIntegration.h; do
    check "the packages carry $f" grep -qx "$f" "$work/files"
done

installed=1  # from here on, the packages are removed on the way out
apt-get install -y -qq "${debs[@]}" >"$work/install.log" 2>&1 || { cat "$work/install.log"; exit 1; }
pass "apt-get install ${packages[*]}"

# From now on nothing comes from the source or build tree but the example's sources.
cd "$work"
check "print-panels is /usr/bin/print-panels" test "$(command -v print-panels)" = /usr/bin/print-panels
check "print-panels --version" test "$(print-panels --version)" = "print-panels $version"
check "desktop-file-validate" desktop-file-validate /usr/share/applications/org.printpanels.PrintPanels.desktop
check "appstreamcli validate" appstreamcli validate --no-net /usr/share/metainfo/org.printpanels.PrintPanels.metainfo.xml

# The manual page is --help's text: each of its options is there.
zcat /usr/share/man/man1/print-panels.1.gz | sed 's/\\-/-/g' >"$work/man"
missing=$(print-panels --help | grep -o -- '--[a-z-]*' | sort -u | while read -r o; do
    grep -qF -- "$o" "$work/man" || echo "$o"
done)
check "print-panels(1) has every option of --help${missing:+ (missing: $missing)}" test -z "$missing"

# What the installed bash completion offers at the end of LINE, whose words
# are given as bash splits them ('=' is a word of its own).
completions() {  # completions LINE WORD...
    bash -c '. /usr/share/bash-completion/bash_completion
        . /usr/share/bash-completion/completions/print-panels
        COMP_LINE=$1; COMP_POINT=${#COMP_LINE}; shift
        COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
        _print_panels print-panels "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
        printf "%s\n" "${COMPREPLY[@]}"' completions "$@" 2>/dev/null | sort | tr '\n' ' '
}
offered=$(completions "print-panels --print" print-panels --print)
check "completion of --print: $offered" test "$offered" = "--print --print-options --printer "

# The installed sample printer, described with the installed bundle's pictures.
sample=/usr/share/print-panels/printers/velmora-c5500.ppd
if print-panels --ppd "$sample" --describe >"$work/describe.json" 2>"$work/describe.err"; then
    pass "--describe on $sample"
else
    cat "$work/describe.err"
    fail "--describe on $sample"
fi
check "--describe shows the panels" grep -q '"name": "Finishing"' "$work/describe.json"
# The bundle is the one beside the program, under any prefix: in a copy of
# the program and its bundle whose Info.json turns the diagnostic log on,
# the program writes its diagnostic lines ("PDE: ..."); the installed one,
# whose Info.json does not, writes none.
mkdir -p "$work/prefix/bin" "$work/prefix/share"
cp /usr/bin/print-panels "$work/prefix/bin/"
cp -r /usr/share/print-panels "$work/prefix/share/"
sed -i 's/^{/{ "DEBUG": "YES",/' "$work/prefix/share/print-panels/Info.json"
logged=$(PRINT_PANELS_LOG_STDERR=1 "$work/prefix/bin/print-panels" --ppd "$sample" --describe 2>&1 >/dev/null | grep -c '^PDE: ' || true)
check "a copy under another prefix reads its own bundle ($logged log lines)" test "$logged" -gt 0
logged=$(PRINT_PANELS_LOG_STDERR=1 print-panels --ppd "$sample" --describe 2>&1 >/dev/null | grep -c '^PDE: ' || true)
check "the installed program reads /usr/share/print-panels ($logged log lines)" test "$logged" -eq 0

# The example application, built with the -dev package, lists the panels of
# the sample printer through the installed library.
mkdir "$work/app"
cp "$repo"/examples/qt-app/*.cpp "$repo"/examples/qt-app/*.h "$work/app/"
cat >"$work/app/CMakeLists.txt" <<'EOF'
cmake_minimum_required(VERSION 3.25)
project(PanelsUser CXX)
set(CMAKE_AUTOMOC ON)
find_package(PrintPanels REQUIRED)
add_executable(panels-user main.cpp EditorWindow.cpp)
target_link_libraries(panels-user PRIVATE PrintPanels::Integration)
EOF
if cmake -S "$work/app" -B "$work/app/build" >"$work/app.log" 2>&1 && cmake --build "$work/app/build" >>"$work/app.log" 2>&1 \
    && QT_QPA_PLATFORM=offscreen "$work/app/build/panels-user" --list-tabs --ppd "$sample" >"$work/app.out" 2>>"$work/app.log" \
    && grep -qx Finishing "$work/app.out"; then
    pass "the example built with libprintpanels-integration-dev shows: $(tr '\n' ',' <"$work/app.out")"
else
    cat "$work/app.log" "$work/app.out"
    fail "the example built with libprintpanels-integration-dev"
fi

# --print to a private cupsd (bench/private-cupsd.sh) whose capture backend keeps the job.
cups="$work/cups"
cupsd_started=1  # stopped on the way out, also if starting fails half-way
started=$(bash "$private_cupsd" start "$cups" "velmora=$sample" 2>"$work/lpadmin.log") || { cat "$work/lpadmin.log"; exit 1; }
server=$(head -n 1 <<<"$started")
export HOME="$cups/client" CUPS_SERVERROOT="$cups/client" XDG_RUNTIME_DIR="$cups/client"
echo "A page printed by the installed print-panels." >"$work/page.txt"
if print-panels --server "$server" --printer velmora -o Duplex=DuplexNoTumble --print "$work/page.txt" >"$work/print.out" 2>&1; then
    pass "--print: $(cat "$work/print.out")"
else
    cat "$work/print.out" "$cups/log/error_log" 2>/dev/null
    fail "--print to $server"
fi
for try in $(seq 300); do
    [ -z "$(lpstat -h "$server" -o velmora 2>/dev/null)" ] && [ -e "$cups/spool/c00001" ] && break
    sleep 0.1
done
check "the capture backend got the job" test -s "$cups/capture/velmora/job-1.doc"
# The job's attributes, as cupsd keeps them in its control file.
check "the job carries the panels' options" grep -aq 'DuplexNoTumble' "$cups/spool/c00001"
# The completion of -o asks the queue for its options and their choices.
export CUPS_SERVER=$server
offered=$(completions "print-panels --printer velmora -o Dup" print-panels --printer velmora -o Dup)
check "completion of -o Dup: $offered" test "$offered" = "Duplex= "
offered=$(completions "print-panels --printer velmora -o Duplex=DuplexT" print-panels --printer velmora -o Duplex = DuplexT)
check "completion of -o Duplex=DuplexT: $offered" test "$offered" = "DuplexTumble "
stop_cupsd

# Removal leaves nothing behind.
if remove_packages; then pass "apt-get purge ${packages[*]}"; else cat "$work/purge.log"; fail "apt-get purge"; fi
installed=0
left=$(while read -r f; do if [ -e "$f" ] || [ -L "$f" ]; then echo "$f"; fi; done <"$work/files")
check "no file of the packages is left${left:+: $left}" test -z "$left"
check "/usr/share/print-panels is gone" test ! -e /usr/share/print-panels

echo "check_package: $failed failed"
[ "$failed" -eq 0 ]
