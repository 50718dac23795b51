#!/usr/bin/env bash
# Builds and runs the benchmark of the icon browser, start-up and resource
# use under Wine on a private virtual display, and prints its figures as
# markdown (also kept in $build_dir/bench/results.md).
# Usage: scripts/bench.sh [RUNS]   (timed runs per median, default 5)
set -euo pipefail
source "$(dirname "$0")/common.sh"

runs=${1:-5}

build_morvane >/dev/null

prepare_wine_prefix "$build_dir/wineprefix"
cleanup() {
  wineserver -k 2>/dev/null || true
  stop_virtual_display
}
trap cleanup EXIT

start_virtual_display
start_wine_server
unmanaged_windows N

load_before=$(cut -d' ' -f1-3 /proc/loadavg)
results="$build_dir/bench/results.md"
{
  echo "## Morvane benchmark, $(date -u '+%Y-%m-%d %H:%M UTC')"
  echo
  echo "Machine: $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2- | xargs);" \
    "$(wine --version); load average before the run: $load_before."
  echo
  wine "$build_dir/bench/morvane_bench.exe" "$runs" </dev/null | tr -d '\r'
  echo
  echo "Load average after the run: $(cut -d' ' -f1-3 /proc/loadavg)."
} | tee "$results"
