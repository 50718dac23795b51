#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Morvane need.
# Safe to run again: packages already present are left alone.
set -euo pipefail

packages=(
  g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 mingw-w64-tools
  cmake make googletest
  wine wine64 fonts-wine
  xvfb xauth x11-utils xdotool openbox
  python3-fonttools python3-pil fonts-dejavu-core fonts-droid-fallback
  imagemagick icoutils attr nsis
  libglib2.0-bin gvfs dbus-daemon desktop-file-utils xdg-utils
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -ne 0 ]; then
  echo "Missing packages: ${missing[*]}; run this script as root (or install them) first." >&2
  exit 1
fi
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
