#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test under Wine on a
# private virtual display. Exits non-zero when any test fails.
set -euo pipefail
source "$(dirname "$0")/common.sh"

build_morvane

start_private_wine_session
ctest --test-dir "$build_dir" --output-on-failure "$@"
