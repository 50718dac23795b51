#!/usr/bin/env bash
# Packs the shipping folder as scripts/package.sh does, installs the result
# silently under Wine, starts Morvane through the folder context-menu command
# on a folder whose name holds two blanks in a row, and uninstalls silently.
# Runs in the prefix, server and display that scripts/test.sh prepared.
# Usage: installer_test.sh BUILD_DIR
set -euo pipefail
source "$(dirname "$0")/../../scripts/common.sh"
build_dir=$1

fail() { echo "FAILED: $*"; exit 1; }
# A registry value's data as `reg query` prints it, or nothing.
reg_value() {
  wine reg query "$1" "${@:2}" 2>/dev/null </dev/null | tr -d '\r' |
    sed -n 's/^ *[^ ].*REG_[A-Z_]* *//p'
}
reg_key_exists() { wine reg query "$1" >/dev/null 2>&1 </dev/null; }
windows_env() { wine cmd /c echo "%$1%" 2>/dev/null </dev/null | tr -d '\r'; }

scratch=$(mktemp -d)
morvane=""
cleanup() {
  if [ -n "$morvane" ] && kill -0 "$morvane" 2>/dev/null; then
    wine taskkill /f /im Morvane.exe >/dev/null 2>&1 </dev/null || true
  fi
  rm -rf "$scratch"
}
trap cleanup EXIT

bash "$repo_root/packaging/make-packages.sh" "$build_dir" "$scratch/packages" >/dev/null
shipped=$(cmake -E tar tf "$scratch"/packages/Morvane-*-portable.zip | sed -n 's|^[^/]*/\(.\)|\1|p' | sort)
[ "$(echo "$shipped" | xargs)" = "Config.ini LANG_ENG.DLL LANG_ESP.DLL Morvane.exe Resource.DLL iconos.dll" ] ||
  fail "the zip holds: $shipped"

wine "$scratch"/packages/Morvane-*-setup.exe /S </dev/null || fail "the installer returned $?"

install_dir="$(windows_env LOCALAPPDATA)\\Programs\\Morvane"
install_unix=$(winepath -u "$install_dir")
for name in $shipped; do
  cmp -s "$build_dir/dist/$name" "$install_unix/$name" || fail "$name not installed as built"
done
[ -f "$install_unix/Uninstall.exe" ] || fail "no uninstaller"
shortcut="$(winepath -u "$(windows_env APPDATA)")/Microsoft/Windows/Start Menu/Programs/Morvane.lnk"
[ -f "$shortcut" ] || fail "no Start-menu entry"
uninstall_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Morvane'
[ "$(reg_value "$uninstall_key" /v QuietUninstallString)" = "\"$install_dir\\Uninstall.exe\" /S" ] ||
  fail "uninstall entry: $(reg_value "$uninstall_key" /v QuietUninstallString)"
verb_key='HKCU\Software\Classes\Directory\shell\Morvane'
command=$(reg_value "$verb_key\\command" /ve)
[ "$command" = "\"$install_dir\\Morvane.exe\" %1" ] || fail "context-menu command: $command"

# Explorer puts the folder's path in place of %1 as it stands, without
# quotes. Wine's own shell reads no per-user classes, so the command runs as
# Explorer would run it. A path that did not arrive whole, or arrived quoted,
# would not be an existing folder, and Morvane would end without a window.
folder="$scratch/Holiday  Photos"
mkdir "$folder"
windows_folder=$(winepath -w "$folder")
wine_command_line "${command/\%1/"$windows_folder"}" &
morvane=$!
# Waits up to $1 quarter-seconds for the command after it to succeed.
within() {
  for _ in $(seq "$1"); do "${@:2}" && return 0; sleep 0.25; done
  return 1
}
within 80 xdotool search --onlyvisible --name '^Morvane - ' >/dev/null 2>&1 ||
  fail "Morvane showed no window on $folder"
wine taskkill /im Morvane.exe >/dev/null 2>&1 </dev/null
within 40 eval '! kill -0 "$morvane" 2>/dev/null' || fail "Morvane did not close when asked"
morvane=""

# A run that did not end in order leaves its font file; the recent list stays.
echo stale >"$install_unix/Morvane.ttf"
printf '[Recent]\r\nARA01=c:\\windows\\system32\\shell32.dll\r\n' >"$install_unix/ARA.INI"
# The uninstaller goes on from a copy of itself and returns at once; its
# last step takes away the uninstall entry.
wine "$install_unix/Uninstall.exe" /S </dev/null || fail "the uninstaller returned $?"
within 120 eval '! reg_key_exists "$uninstall_key"' || fail "the uninstall entry stayed"
[ ! -e "$install_unix" ] || fail "left behind: $(ls -A "$install_unix" | xargs)"
[ ! -e "$shortcut" ] || fail "the Start-menu entry stayed"
! reg_key_exists "$verb_key" || fail "the context-menu entry stayed"
echo "passed"
