#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test under Wine on a
# private virtual display. Exits non-zero when any test fails.
set -euo pipefail
source "$(dirname "$0")/common.sh"

build_morvane

prepare_wine_prefix "$build_dir/wineprefix"
cleanup() {
  stop_x_input_relay
  stop_window_manager
  unmanaged_windows N
  wineserver -k 2>/dev/null || true
  stop_virtual_display
}
trap cleanup EXIT

start_virtual_display
# A persistent server makes each test process start in milliseconds.
start_wine_server
unmanaged_windows N
ctest --test-dir "$build_dir" --output-on-failure "$@"

# Most Linux desktops run a window manager, and Wine then leaves stacking,
# activation and moves to it: the shadow's and the splash's tests again,
# under openbox.
if ctest --test-dir "$build_dir" -N "$@" | grep ' e2e_tests$' >/dev/null; then
  echo "Again under a window manager (openbox, Managed=Y):"
  start_window_manager
  start_x_input_relay
  unmanaged_windows Y
  GTEST_FILTER='Shadow.*:Splash.*' ctest --test-dir "$build_dir" --output-on-failure -R '^e2e_tests$'
fi
