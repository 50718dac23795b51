#!/usr/bin/env bash
# Starts Morvane on a Linux folder: installs what is missing, builds, and runs
# it under Wine in a prefix of the user's own. Without a usable display it
# runs on a virtual one, saves a screenshot to morvane-screenshot.png and
# ends.
set -euo pipefail
source "$(dirname "$0")/common.sh"

if [ $# -ne 1 ]; then
  echo "usage: $0 FOLDER" >&2
  exit 2
fi
# Morvane ends without a word on a path that is not a folder.
if [ ! -d "$1" ]; then
  echo "$0: not a folder: $1" >&2
  exit 2
fi
folder=$(cd -- "$1" && pwd)

mkdir -p "$build_dir"
log="$build_dir/build.log"
echo "Building Morvane in $build_dir (the first build takes several minutes)..." >&2
if ! build_morvane "${dist_targets[@]}" >"$log" 2>&1; then
  tail -n 20 "$log" >&2
  echo "$0: the build failed; the whole log is in $log" >&2
  exit 1
fi
prepare_wine_prefix "${MORVANE_WINEPREFIX:-$HOME/.local/share/morvane/wineprefix}"

headless=""
if [ -z "${DISPLAY:-}" ] || ! xdpyinfo >/dev/null 2>&1; then
  headless=1
  start_virtual_display
  # Wine's desktop outlives the program by a few seconds; stopping the display
  # under it would make it complain.
  trap 'timeout 10 wineserver -w || true; stop_virtual_display' EXIT
  unmanaged_windows N
  # A pointer resting on the window would put a tool tip in the picture.
  xdotool mousemove 5 5
else
  unmanaged_windows Y
fi

# Morvane takes its whole command line after the program's name as the
# folder: blanks, quotes and all.
windows_folder=$(winepath -w "$folder")
program=$(winepath -w "$build_dir/dist/Morvane.exe")
if [[ $windows_folder != *[%!]* ]]; then
  wine_command_line "\"$program\" $windows_folder" &
elif [[ $windows_folder =~ ^\ |\ \ |\ $ ]]; then
  echo "$0: this path holds \"%\" or \"!\" and a run of blanks, which Wine cannot both pass on unchanged: $windows_folder" >&2
  exit 2
else
  # Separate words reach the program joined by one blank and unquoted.
  read -r -a words <<<"$windows_folder"
  wine "$build_dir/dist/Morvane.exe" "${words[@]}" &
fi
morvane=$!

running() { kill -0 "$morvane" 2>/dev/null; }

if [ -n "$headless" ]; then
  # The main window shows once start-up has listed the first icon file's
  # icons; a program that ends before then did not take the folder.
  for _ in $(seq $((${MORVANE_SCREENSHOT_DELAY:-30} * 4))); do
    running || break
    xdotool search --onlyvisible --name '^Morvane - ' >/dev/null 2>&1 && break
    sleep 0.25
  done
  if running && xdotool search --onlyvisible --name '^Morvane - ' >/dev/null 2>&1; then
    # The splash closes just after; passing over the window's background then
    # repaints the status strip, which still says it is loading.
    sleep 1
    xdotool mousemove 483 370 sleep 0.5 mousemove 5 5 sleep 1
    screenshot=${MORVANE_SCREENSHOT:-$PWD/morvane-screenshot.png}
    /usr/bin/import -window root "$screenshot"
    echo "Screenshot: $screenshot"
    # Nobody can use a window on a virtual display: ask Morvane to close, so
    # that it ends in order (its font file goes), and force it if it will not.
    wine taskkill /im Morvane.exe >/dev/null 2>&1 </dev/null || true
    for _ in $(seq 20); do running || break; sleep 0.25; done
    running && wine taskkill /f /im Morvane.exe >/dev/null 2>&1 </dev/null
  else
    echo "Morvane ended before its window showed." >&2
  fi
fi
wait "$morvane" || true
