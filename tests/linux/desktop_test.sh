#!/usr/bin/env bash
# Installs Morvane for a private user under a private D-Bus session with the
# GVfs metadata service, mirrors Desktop.ini files as Morvane writes them,
# starts Morvane through the entry's %f, and uninstalls; in the prefix,
# server and display that scripts/test.sh prepared. Usage: desktop_test.sh BUILD_DIR
set -euo pipefail
if [ -z "${MORVANE_TEST_HOME:-}" ]; then
  scratch=$(mktemp -d)
  # The session's GVfs daemons may still be writing their metadata as it ends.
  trap 'for _ in 1 2 3 4 5; do rm -rf "$scratch" 2>/dev/null && break; sleep 0.2; done; true' EXIT
  # A desktop's file manager, the default for folders.
  mkdir -m 700 "$scratch/run" && mkdir -p "$scratch/system/applications"
  printf '[Desktop Entry]\nType=Application\nName=Files\nExec=true %%U\nMimeType=inode/directory;\n' \
    >"$scratch/system/applications/files.desktop"
  update-desktop-database "$scratch/system/applications"
  env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_CACHE_HOME HOME="$scratch/home" \
    XDG_RUNTIME_DIR="$scratch/run" XDG_DATA_DIRS="$scratch/system:/usr/share" MORVANE_TEST_HOME="$scratch" \
    dbus-run-session -- bash "$0" "$@"
  exit
fi
source_dir="$(dirname "$0")/../.."
source "$source_dir/scripts/common.sh"
scratch=$MORVANE_TEST_HOME
build_dir=$1
apps=$HOME/.local/share/applications
fail() { echo "FAILED: $*"; exit 1; }
listed() { gio mime inode/directory | grep -q 'morvane\.desktop'; }

MORVANE_BUILD_DIR=$build_dir bash "$source_dir/scripts/install-linux.sh" >/dev/null
desktop-file-validate "$apps/morvane.desktop" "$HOME/.local/share/kio/servicemenus/morvane.desktop" ||
  fail "the desktop entries are not valid"
listed || fail "gio lists no Morvane for folders: $(gio mime inode/directory)"
[ "$(xdg-mime query default inode/directory)" = files.desktop ] || fail "Morvane opens folders by default"

# Until the last case, a note of the folder handed on stands in for Morvane.
run=$HOME/.local/share/morvane/scripts/run.sh
printf '#!/bin/sh\nprintf %%s "$1" >"$HOME/handed"\n' >"$run"
export MORVANE_WINEPREFIX=$WINEPREFIX
windows() { printf 'Z:%s' "${1//\//\\}"; }
# desktop_ini FOLDER ENCODING ICON_FILE INDEX TIP: a Desktop.ini as Morvane writes it.
desktop_ini() {
  mkdir -p "$1"
  { printf '[.ShellClassInfo]\r\nConfirmFileOp=1\r\nNoSharing=0\r\nIconFile=%s\r\n' "$3"
    printf 'IconIndex=%s\r\nInfoTip=%s\r\n[Morvane]\r\nMark=-1\r\n' "$4" "$5"; } | iconv -t "$2" >"$1/Desktop.ini"
}
shown_icon() { gio info -a metadata::custom-icon "$1" | sed -n 's|^ *metadata::custom-icon: file://||p'; }
# same_pixels PNG ICO: the PNG is the icon file's 48 pixel image, as icotool reads it.
same_pixels() {
  rm -rf "$scratch/expected" && mkdir "$scratch/expected" && icotool -x -w 48 -o "$scratch/expected" "$2"
  /usr/bin/python3 -c 'import sys; from PIL import Image
a, b = ([p if p[3] else 0 for p in Image.open(f).convert("RGBA").getdata()] for f in sys.argv[1:])
sys.exit(a != b)' "$1" "$scratch"/expected/*.png
}

icons=$build_dir/resources/folder_icons
on_c="$WINEPREFIX/drive_c/Morvane test ☕"
mkdir -p "$on_c" && cp "$build_dir/tests/icons.ico" "$on_c/"
desktop_ini "$scratch/ansi" CP1252 "$(windows "$build_dir/dist/iconos.dll")" 3 "Fotos de año"
printf '[Desktop Entry]\nX-Foreign=kept\n[Other]\nIcon=kept\n' >"$scratch/ansi/.directory"
desktop_ini "$scratch/unicode 写真" UTF-16 'C:\Morvane test ☕\icons.ico' 0 "写真 ☕"
desktop_ini "$scratch/by number" CP1252 "$(windows "$build_dir/dist/iconos.dll")" -3 ""
for row in "ansi|$icons/04_red.ico|Fotos de año" "unicode 写真|$on_c/icons.ico|写真 ☕" \
  "by number|$icons/03_green.ico|"; do
  IFS='|' read -r name ico tip <<<"$row"
  "$HOME/.local/bin/morvane" "$scratch/$name" || fail "the launcher failed on $name"
  [ "$(cat "$HOME/handed")" = "$scratch/$name" ] || fail "the launcher handed on $(cat "$HOME/handed")"
  png=$(shown_icon "$scratch/$name")
  [ -n "$png" ] && same_pixels "$png" "$ico" || fail "$name shows ${png:-no icon}, not $ico"
  grep -qx "Icon=$png" "$scratch/$name/.directory" || fail "$name/.directory: no Icon=$png"
  [ "$(sed -n 's/^Comment=//p' "$scratch/$name/.directory")" = "$tip" ] || fail "$name: Comment"
done
grep -qx 'X-Foreign=kept' "$scratch/ansi/.directory" || fail "a foreign key went"

rm "$scratch/ansi/Desktop.ini"
"$HOME/.local/bin/morvane" "$scratch/ansi"
[ -z "$(shown_icon "$scratch/ansi")" ] || fail "the icon stayed after removal"
[ "$(grep -c -e '^Icon=/' -e '^Comment=' -e 'kept' "$scratch/ansi/.directory")" = 2 ] ||
  fail "after removal .directory holds: $(cat "$scratch/ansi/.directory")"

# Morvane shows a window only for an existing folder: a path that lost a
# blank or a letter on its way through %f, the launcher or Wine shows none.
# Started from the source tree, run.sh builds what is missing first.
cp "$source_dir/scripts/run.sh" "$run"
# On a display, run.sh leaves the prefix's windows to a window manager.
# A copy left running would make the next test's Morvane end at once, as a second copy.
trap 'wine taskkill /f /im Morvane.exe >/dev/null 2>&1 </dev/null || true
  within eval "! pgrep -f Morvane.exe"; unmanaged_windows N' EXIT
within() { for _ in $(seq 240); do "$@" >/dev/null 2>&1 && return 0; sleep 0.25; done; return 1; }
from_menu() { gio launch "$apps/morvane.desktop" "$1"; }
from_source() { MORVANE_BUILD_DIR=$build_dir bash "$source_dir/scripts/run.sh" "$1" & }
for row in "from_menu|$scratch/Fotos  de año ☕ & 'co'" "from_source|$on_c/写真 Ελλάδα"; do
  IFS='|' read -r start folder <<<"$row"
  mkdir -p "$folder" && "$start" "$folder"
  within xdotool search --onlyvisible --name '^Morvane - ' || fail "no window for $folder ($start)"
  wine taskkill /im Morvane.exe >/dev/null 2>&1 </dev/null
  within eval '! xdotool search --name "^Morvane - "' || fail "Morvane did not close when asked"
done

bash "$source_dir/scripts/uninstall-linux.sh" >/dev/null
! listed || fail "Morvane is still listed for folders"
[ ! -e "$HOME/.local/bin/morvane" ] || fail "the launcher stayed"
echo "passed"
