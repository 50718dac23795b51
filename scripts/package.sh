#!/usr/bin/env bash
# Builds the shipping folder and packs it for Windows users:
# build/packages/Morvane-<version>-portable.zip and Morvane-<version>-setup.exe.
set -euo pipefail
source "$(dirname "$0")/common.sh"

build_morvane "${dist_targets[@]}"
bash "$repo_root/packaging/make-packages.sh" "$build_dir" "$build_dir/packages"
