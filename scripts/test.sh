#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test under Wine on a
# private virtual display. Exits non-zero when any test fails.
set -euo pipefail
source "$(dirname "$0")/common.sh"

build_morvane

prepare_wine_prefix "$build_dir/wineprefix"
cleanup() {
  wineserver -k 2>/dev/null || true
  stop_virtual_display
}
trap cleanup EXIT

start_virtual_display
# A persistent server makes each test process start in milliseconds.
start_wine_server
unmanaged_windows N
ctest --test-dir "$build_dir" --output-on-failure "$@"
