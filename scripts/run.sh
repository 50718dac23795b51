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

# Wine names Linux files in the character set of LC_CTYPE; only UTF-8 reaches
# every name (under "C" not even "é" does). The other categories stay.
if [ "$(locale charmap 2>/dev/null)" != UTF-8 ]; then
  if [ -n "${LC_ALL:-}" ]; then
    export LANG=$LC_ALL
    unset LC_ALL
  fi
  ctype=$(locale 2>/dev/null | sed -n 's/^LC_CTYPE="\{0,1\}\([^".@]*\).*/\1/p')
  if [ "$(LC_CTYPE="$ctype.UTF-8" locale charmap 2>/dev/null)" = UTF-8 ]; then
    export LC_CTYPE="$ctype.UTF-8"
  else
    export LC_CTYPE=C.UTF-8
  fi
fi

# A copy installed by install-linux.sh has no sources: it runs what it holds.
if [ -f "$repo_root/CMakeLists.txt" ]; then
  mkdir -p "$build_dir"
  log="$build_dir/build.log"
  echo "Building Morvane in $build_dir (the first build takes several minutes)..." >&2
  if ! build_morvane "${dist_targets[@]}" >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    echo "$0: the build failed; the whole log is in $log" >&2
    exit 1
  fi
fi
prepare_wine_prefix "${MORVANE_WINEPREFIX:-$HOME/.local/share/morvane/wineprefix}"

# Windows draws the letters a face lacks (Tahoma has no Greek, Chinese or
# symbols) from the fonts linked to it; Wine's prefix links only Windows
# fonts, which Linux does not have. The fonts this system has for those
# scripts are linked after them, once. Wine looks the bold face's links up
# under its own name.
link_fallback_fonts() {
  local key='HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink'
  local separator='\0' face links code font
  for face in Tahoma "Tahoma Bold"; do
    links=$(wine reg query "$key" /v "$face" 2>/dev/null </dev/null | tr -d '\r' |
      sed -n "s/^ *$face *REG_MULTI_SZ *//p") || links=""
    # Greek, Chinese, Japanese, Korean, Arabic, Hebrew, Devanagari, Thai and
    # a symbol.
    for code in 3b5 5199 3042 d55c 627 5d0 915 e01 2615; do
      font=$(fc-match -f '%{file}|%{family[0]}' ":charset=$code" 2>/dev/null) || continue
      font="${font##*/}"
      font="${font/|/,}"
      if [[ -n $font && $separator$links$separator != *"$separator$font$separator"* ]]; then
        links="${links:+$links$separator}$font"
      fi
    done
    wine reg add "$key" /v "$face" /t REG_MULTI_SZ /d "$links" /f >/dev/null 2>&1 </dev/null
  done
}
link_fallback_fonts

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

# winepath answers in at most MAX_PATH characters: a deeper folder is named
# through its deepest ancestor within that reach, the rest as it stands.
windows_path() {
  local path=$1 rest=""
  while [ ${#path} -gt 200 ] && [[ $path == /*/* ]]; do
    rest="\\${path##*/}$rest"
    path=${path%/*}
  done
  printf '%s%s' "$(winepath -w "$path")" "$rest"
}

# Morvane takes its whole command line after the program's name as the
# folder: blanks, quotes and all.
windows_folder=$(windows_path "$folder")
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
