#!/usr/bin/env bash
# Builds print-panels and takes pictures of the real dialog on a virtual X
# display: as it opens, with each panel of the plug-in selected, with the
# summary, and (for a PPD file without a queue) the lp command it shows. They go to docs/screenshots/ (old pictures are replaced), with a
# page that shows them all (docs/screenshots/README.md).
#
#   tools/screenshots.sh [print-panels arguments...]
#
# Without arguments the bundled sample printer is shown with README.md as
# the document; any arguments are passed to print-panels instead
# (e.g. --ppd FILE, --printer QUEUE, -o key=value, documents).
set -euo pipefail
cd "$(dirname "$0")/.."
./setup
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target print-panels

out=docs/screenshots
mkdir -p "$out"
rm -f "$out"/*.png
[ $# -eq 0 ] && set -- README.md

# English texts, whatever the caller's language; the window saves its own
# pictures (QWidget::grab) and quits.
shoot() {
  LC_ALL=C.UTF-8 LANG=C.UTF-8 LANGUAGE=en \
  PRINT_PANELS_SCREENSHOTS="$PWD/$out" \
    xvfb-run -a -s "-screen 0 1280x900x24" build/src/app/print-panels "$@" >/dev/null
}
shoot "$@"

# The sample printer's panels again with the settings that bring their other
# views: panel number, the view's name, the options.
if [ "$*" = README.md ]; then
  while IFS='|' read -r panel variant options; do
    [ -n "$panel" ] || continue
    # shellcheck disable=SC2086
    PRINT_PANELS_SCREENSHOTS_PANEL="$panel:$variant" shoot --ppd bundle/printers/velmora-c5500.ppd $options README.md
  done <<'VIEWS'
2|confidential|-o JobSetting=Confidential -o AccountType=Accounting
2|store|-o JobSetting=Store -o AccountType=Pincode
2|store-and-print|-o JobSetting=StoreNPrint -o AccountType=NewPin
2|delayed|-o JobSetting=Delay
3|c-fold|-o FoldingOptions=CFolding
3|v-fold|-o FoldingOptions=VFolding
4|secure-watermark|-o VELHardCopySecurity=Secure
4|password-job|-o VELHardCopySecurity=Password
5|release-on|-o VELSecureReleaseOption=On
7|long-edge|-o VELManualDuplexOption=LongEdge
9|binding-margin|-o VELMarginFor=BindingMargin
9|image-shift|-o VELMarginFor=ImageShift
VIEWS
fi

{
  echo "# Screenshots of the print dialog"
  echo
  echo "Made by \`tools/screenshots.sh\` on a virtual 1280x900 display."
  for f in "$out"/dialog.png "$out"/panel-*.png "$out"/summary.png "$out"/lp-command.png; do
    [ -f "$f" ] || continue
    name=$(basename "$f")
    case "$name" in
      dialog.png) title="The dialog as it opens" ;;
      summary.png) title="Summary" ;;
      lp-command.png) title="The lp command of a printer that is only a PPD file" ;;
      panel-*-tab-*)
        n=${name#panel-}; slug=${n#*-}; slug=${slug%.png}
        panel=${slug%%-tab-*}; tab=${slug#*-tab-}; tab=${tab#*-}
        title="Panel $((10#${n%%-*})): ${panel//-/ }, tab ${tab//-/ }" ;;
      panel-*)
        n=${name#panel-}; slug=${n#*-}; slug=${slug%.png}
        title="Panel $((10#${n%%-*})): ${slug//-/ }" ;;
      *) title="$name" ;;
    esac
    echo
    echo "## $title"
    echo
    echo "![$title]($name)"
  done
} > "$out/README.md"
ls "$out"
