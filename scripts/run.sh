#!/usr/bin/env bash
# Starts Morvane on a Linux folder: installs what is missing, builds, and runs
# it under Wine. Without a display it runs on a virtual one, saves a
# screenshot to morvane-screenshot.png and ends.
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
  # Give the window time to open, then photograph the virtual screen.
  for _ in $(seq "${MORVANE_SCREENSHOT_DELAY:-5}"); do
    kill -0 "$morvane" 2>/dev/null || break
    sleep 1
  done
  if kill -0 "$morvane" 2>/dev/null; then
    screenshot=${MORVANE_SCREENSHOT:-$PWD/morvane-screenshot.png}
    /usr/bin/import -window root "$screenshot"
    echo "Screenshot: $screenshot"
    # Nobody can use a window on a virtual display: ask Morvane to close, so
    # that it ends in order (its font file goes), and stop it if it will not.
    wine taskkill /im Morvane.exe >/dev/null 2>&1 || true
    for _ in 1 2 3 4 5; do kill -0 "$morvane" 2>/dev/null || break; sleep 1; done
    kill "$morvane" 2>/dev/null || true
  else
    echo "Morvane ended before a window showed."
  fi
fi
wait "$morvane" || true
