#!/usr/bin/env bash
# Takes docs/linux-desktop.png and docs/linux-open-with.png: after
# install-linux.sh, folders given icons from Morvane's library as Caja (MATE's
# file manager, package caja) shows them once their Desktop.ini is mirrored,
# and a folder's context menu. Runs on a private display, D-Bus session and
# home.
set -euo pipefail
source "$(dirname "$0")/common.sh"
command -v caja >/dev/null || { echo "$0: needs caja (apt-get install caja)" >&2; exit 1; }

if [ -z "${MORVANE_SHOT_HOME:-}" ]; then
  build_morvane "${dist_targets[@]}" >/dev/null
  scratch=$(mktemp -d)
  trap 'rm -rf "$scratch"' EXIT
  mkdir "$scratch/home"
  env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_CACHE_HOME HOME="$scratch/home" \
    MORVANE_SHOT_HOME="$scratch" dbus-run-session -- bash "$0"
  exit
fi

MORVANE_BUILD_DIR=$build_dir bash "$repo_root/scripts/install-linux.sh" >/dev/null
documents=$HOME/Documents
library=$(printf 'Z:%s' "${build_dir//\//\\}\\dist\\iconos.dll")
for folder in "Holidays|3|Photos of the summer" "Music|5|" "Recipes|10|" "Plain folder||"; do
  IFS='|' read -r name index tip <<<"$folder"
  mkdir -p "$documents/$name"
  if [ -n "$index" ]; then
    printf '[.ShellClassInfo]\r\nIconFile=%s\r\nIconIndex=%s\r\nInfoTip=%s\r\n' \
      "$library" "$index" "$tip" >"$documents/$name/Desktop.ini"
  fi
  /usr/bin/python3 "$HOME/.local/share/morvane/scripts/mirror_folder_icon.py" "$documents/$name" \
    "$HOME/.local/share/morvane/icons"
done

start_virtual_display
caja --no-desktop --browser "$documents" >/dev/null 2>&1 &
caja=$!
trap 'kill $caja; stop_virtual_display' EXIT
for _ in $(seq 100); do
  window=$(xdotool search --onlyvisible --class caja 2>/dev/null | head -1) && [ -n "$window" ] && break
  sleep 0.2
done
xdotool windowsize "$window" 620 300
# Caja draws the folders' own icons a moment after its window shows.
sleep 3
eval "$(xdotool getwindowgeometry --shell "$window")"
/usr/bin/import -window root -crop "${WIDTH}x${HEIGHT}+${X}+${Y}" +repage \
  "$repo_root/docs/linux-desktop.png"
# A folder's context menu, Morvane among its "Open With" entries.
xdotool windowsize "$window" "$WIDTH" 600 sleep 1 mousemove $((X + 400)) $((Y + 500)) click 1 \
  type Holidays
xdotool key Escape mousemove $((X + 240)) $((Y + 200)) key shift+F10 sleep 1
/usr/bin/import -window root -crop "${WIDTH}x600+${X}+${Y}" +repage "$repo_root/docs/linux-open-with.png"
echo "Screenshots: $repo_root/docs/linux-desktop.png, $repo_root/docs/linux-open-with.png"
