#!/usr/bin/env bash
# Packs a built shipping folder for Windows users: a portable zip and a
# per-user installer, Morvane-<version>-portable.zip and -setup.exe in
# OUT_DIR. Builds nothing: scripts/package.sh builds first.
# Usage: make-packages.sh BUILD_DIR OUT_DIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build_dir=$(cd "$1" && pwd)
mkdir -p "$2"
out_dir=$(cd "$2" && pwd)

# The shipping folder may also hold what a run left beside the program
# (ARA.INI, Morvane.ttf): only these files go out.
shipped=(Morvane.exe LANG_ENG.DLL LANG_ESP.DLL Resource.DLL Config.ini iconos.dll)

# The version the program declares in its manifest (1.0.0.0), and its short
# form without trailing zero parts beyond the second (1.0).
file_version=$(sed -n 's/.*name="Morvane"[^>]*version="\([0-9.]*\)".*/\1/p' \
  "$here/../src/Morvane.manifest")
if [[ ! $file_version =~ ^[0-9]+\.[0-9]+\.[0-9]+\.[0-9]+$ ]]; then
  echo "$0: no four-part version for Morvane in src/Morvane.manifest" >&2
  exit 1
fi
version=$file_version
while [[ $version == *.*.* && $version == *.0 ]]; do version=${version%.0}; done

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
mkdir "$stage/Morvane-$version"
for name in "${shipped[@]}"; do
  cp "$build_dir/dist/$name" "$stage/Morvane-$version/"
done

zip="$out_dir/Morvane-$version-portable.zip"
rm -f "$zip"
(cd "$stage" && cmake -E tar cf "$zip" --format=zip "Morvane-$version")

# The installer's file list, for installing and for uninstalling.
{
  echo '!macro InstallShippedFiles'
  for name in "${shipped[@]}"; do
    # A Config.ini the user has edited survives an update.
    [ "$name" = Config.ini ] && echo '  SetOverwrite off'
    echo "  File \"$stage/Morvane-$version/$name\""
    [ "$name" = Config.ini ] && echo '  SetOverwrite on'
  done
  echo '!macroend'
  echo '!macro RemoveShippedFiles'
  for name in "${shipped[@]}"; do echo "  Delete \"\$INSTDIR\\$name\""; done
  echo '!macroend'
} >"$stage/shipped.nsh"

setup="$out_dir/Morvane-$version-setup.exe"
makensis -V2 -INPUTCHARSET UTF8 \
  -DVERSION="$version" -DFILE_VERSION="$file_version" \
  -DSHIPPED="$stage/shipped.nsh" -DICON="$build_dir/resources/art/morvane.ico" \
  -DOUTFILE="$setup" "$here/Morvane.nsi"

echo "$zip"
echo "$setup"
