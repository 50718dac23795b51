#!/usr/bin/env bash
# morvane FOLDER: starts Morvane on FOLDER under Wine and, once it ends,
# shows the folder's customisation to Linux file managers. Installed as
# ~/.local/bin/morvane by install-linux.sh; desktop entries run it.
set -uo pipefail
home=${XDG_DATA_HOME:-$HOME/.local/share}/morvane
if [ $# -ne 1 ]; then
  echo "usage: morvane FOLDER" >&2
  exit 2
fi
export MORVANE_BUILD_DIR=$home
export MORVANE_WINEPREFIX=${MORVANE_WINEPREFIX:-$home/wineprefix}
bash "$home/scripts/run.sh" "$1"
status=$?
# Desktop.ini is read whatever Morvane did: one changed elsewhere since the
# last run shows too.
if [ -d "$1" ]; then
  WINEPREFIX=$MORVANE_WINEPREFIX /usr/bin/python3 "$home/scripts/mirror_folder_icon.py" \
    "$1" "$home/icons"
fi
exit $status
