#!/usr/bin/env bash
# Runs a Windows program under Wine in the build tree's prefix. The test
# script sets WINEPREFIX and keeps a Wine server alive; standing alone this
# still works, only slower.
set -u
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml,winemenubuilder.exe=}
exec wine "$@"
