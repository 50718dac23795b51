#!/usr/bin/env bash
# Wine keeps a file's or folder's hidden and system attributes in the Linux
# extended attribute user.DOSATTRIB, which is what Samba hands to Windows
# clients. Checks from Linux that a customised folder and its Desktop.ini
# carry them, and that removal takes them away.
# Usage: dosattrib_test.sh WINE_RUNNER CustomiseFolder.exe
set -euo pipefail
wine_run=$1
tool=$2

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
windows_folder=$(winepath -w "$folder")

# The attribute's text, or "none" when the path has none.
dosattrib() {
  getfattr --only-values --absolute-names -n user.DOSATTRIB "$1" 2>/dev/null || echo none
}
expect() {
  local got
  got=$(dosattrib "$1")
  if [ "$got" != "$2" ]; then
    echo "FAILED: $1 has user.DOSATTRIB $got, expected $2"
    exit 1
  fi
}

"$wine_run" "$tool" apply "$windows_folder"
expect "$folder/Desktop.ini" 0x6
expect "$folder" 0x4

"$wine_run" "$tool" remove "$windows_folder"
[ ! -e "$folder/Desktop.ini" ] || { echo "FAILED: Desktop.ini left behind"; exit 1; }
expect "$folder" none

# A folder hidden from Linux keeps that bit beside the system one.
setfattr -n user.DOSATTRIB -v '"0x2"' "$folder"
"$wine_run" "$tool" apply "$windows_folder"
expect "$folder" 0x6
echo "passed"
