#!/usr/bin/env bash
# Starts Morvane on a Linux folder: installs what is missing, builds, and runs
# it under Wine. Without a display it runs on a virtual one and saves a
# screenshot to morvane-screenshot.png.
set -euo pipefail
source "$(dirname "$0")/common.sh"

if [ $# -ne 1 ]; then
  echo "usage: $0 FOLDER" >&2
  exit 2
fi
folder=$1

build_morvane >/dev/null
prepare_wine_prefix "${MORVANE_WINEPREFIX:-$HOME/.local/share/morvane/wineprefix}"

headless=""
if [ -z "${DISPLAY:-}" ]; then
  headless=1
  start_virtual_display
  trap stop_virtual_display EXIT
  unmanaged_windows N
else
  unmanaged_windows Y
fi

windows_path=$(winepath -w "$folder")
# Wine rebuilds the command line from the arguments, quoting any that hold a
# blank; passing the path's words separately gives the plain path Morvane
# expects, since it takes the whole command line as the folder.
read -r -a words <<<"$windows_path"
wine "$build_dir/dist/Morvane.exe" "${words[@]}" &
morvane=$!

if [ -n "$headless" ]; then
  sleep "${MORVANE_SCREENSHOT_DELAY:-5}"
  screenshot=${MORVANE_SCREENSHOT:-$PWD/morvane-screenshot.png}
  /usr/bin/convert "x:root" "$screenshot" 2>/dev/null || xwd -root -silent | /usr/bin/convert xwd:- "$screenshot"
  echo "Screenshot: $screenshot"
fi
wait "$morvane"
