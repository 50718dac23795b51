#!/usr/bin/env bash
# Installs Morvane for the current user, without root: the program under
# ~/.local/share/morvane, the launcher ~/.local/bin/morvane, an "Open With"
# entry for folders (not their default handler) and a Dolphin service menu.
# Builds the shipping folder first when there is none. Undone by
# uninstall-linux.sh.
set -euo pipefail
source "$(dirname "$0")/common.sh"

data=${XDG_DATA_HOME:-$HOME/.local/share}
home=$data/morvane
launcher=$HOME/.local/bin/morvane

missing=()
need() { command -v "$1" >/dev/null 2>&1 || missing+=("$2"); }
need wine wine
need wrestool icoutils
need gio libglib2.0-bin
need xdpyinfo x11-utils
# GIO lists a user's handlers of a type from the cache this tool writes.
need update-desktop-database desktop-file-utils
/usr/bin/python3 -c 'import PIL' 2>/dev/null || missing+=(python3-pil)
if [ ${#missing[@]} -gt 0 ]; then
  echo "$0: please install first (as root): apt-get install ${missing[*]}" >&2
  exit 1
fi
# The desktop entries name the launcher in quotes; these characters would
# need escapes that not every desktop reads alike.
if [[ $launcher == *[\"\`\$\\%]* ]]; then
  echo "$0: the home folder's path holds one of \" \` \$ \\ %: $HOME" >&2
  exit 1
fi

if [ -f "$build_dir/CMakeCache.txt" ]; then
  cmake --build "$build_dir" --target "${dist_targets[@]}" >/dev/null
elif [ ! -f "$build_dir/dist/Morvane.exe" ]; then
  echo "Building Morvane in $build_dir (the first build takes several minutes)..." >&2
  build_morvane "${dist_targets[@]}" >/dev/null
fi

folder_default() { LC_ALL=C gio mime inode/directory 2>/dev/null | sed -n 's/^Default application for .*: //p'; }
before=$(folder_default)

mkdir -p "$home/dist" "$home/scripts" "$home/icons" "${launcher%/*}" \
  "$data/applications" "$data/kio/servicemenus"
# The recent list and an edited Config.ini stay from an earlier install; a
# recent list or font file that runs from the build folder left is not shipped.
for file in "$build_dir"/dist/*; do
  case ${file##*/} in
    ARA.INI | Morvane.ttf) ;;
    Config.ini) cp -n "$file" "$home/dist/" ;;
    *) cp -f "$file" "$home/dist/" ;;
  esac
done
cp -f "$repo_root"/scripts/{run.sh,common.sh,make_bold_tahoma.py,mirror_folder_icon.py} \
  "$repo_root/scripts/uninstall-linux.sh" "$home/scripts/"
install -m 755 "$repo_root/scripts/morvane-launcher.sh" "$launcher"
icon=$(/usr/bin/python3 "$home/scripts/mirror_folder_icon.py" --png "$home/dist/Morvane.exe" 0 \
  "$home/icons") || icon=folder

cat >"$data/applications/morvane.desktop" <<ENTRY
[Desktop Entry]
Type=Application
Name=Morvane
GenericName=Folder icon and info tip
Comment=Give a folder an icon of its own and an info tip
Icon=$icon
Exec="$launcher" %f
Terminal=false
NoDisplay=true
MimeType=inode/directory;
Categories=Utility;
ENTRY

# Dolphin reads service menus only when they may be executed. It looks at
# their actions and types, not at Type: an application entry serves, and
# passes desktop-file-validate, which KDE's Type=Service does not.
service_menu=$data/kio/servicemenus/morvane.desktop
cat >"$service_menu" <<ENTRY
[Desktop Entry]
Type=Application
Name=Morvane
NoDisplay=true
Exec="$launcher" %f
MimeType=inode/directory;
Actions=morvane;
X-KDE-ServiceTypes=KonqPopupMenu/Plugin

[Desktop Action morvane]
Name=Folder icon and info tip...
Icon=$icon
Exec="$launcher" %f
ENTRY
chmod 755 "$service_menu"

update-desktop-database "$data/applications"
# Where no default for folders is chosen, the newest handler, Morvane, would
# become it: the file manager that opened folders before is chosen instead.
if [ -n "$before" ] && [ "$before" != morvane.desktop ] && [ "$(folder_default)" = morvane.desktop ]; then
  gio mime inode/directory "$before" >/dev/null
fi
echo "Morvane is installed: \"Open With > Morvane\" on folders, or $launcher FOLDER."
