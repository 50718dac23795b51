#!/usr/bin/env bash
# Takes away what install-linux.sh installed for the current user. The
# folders' icons and the Wine prefix stay: folders customised on this
# machine still show their icons, and Morvane finds its settings again.
set -euo pipefail
data=${XDG_DATA_HOME:-$HOME/.local/share}
home=$data/morvane
rm -f "$HOME/.local/bin/morvane" "$data/applications/morvane.desktop" \
  "$data/kio/servicemenus/morvane.desktop"
rm -rf "$home/dist" "$home/scripts"
if command -v update-desktop-database >/dev/null 2>&1; then
  update-desktop-database "$data/applications" || true
fi
echo "Morvane is uninstalled. Kept: $home (the folders' icons and the Wine prefix); delete it to remove them too."
