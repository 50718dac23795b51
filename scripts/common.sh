# Shared by the build, run and test scripts: sourced, not run.
# Paths and the Wine environment of one build tree.

repo_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build_dir=${MORVANE_BUILD_DIR:-$repo_root/build}

export WINEDEBUG=${WINEDEBUG:--all}
# No Mono or Gecko installer prompts in a fresh prefix, and no desktop
# menu entries: a shell notification would otherwise start winemenubuilder.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml,winemenubuilder.exe=}

# What build/dist ships; the tests are not among them.
dist_targets=(Morvane iconos_dll)

# build_morvane [TARGET...]: installs what is missing and builds the given
# targets, or everything.
build_morvane() {
  bash "$repo_root/scripts/install-deps.sh"
  cmake -S "$repo_root" -B "$build_dir" \
    -DCMAKE_TOOLCHAIN_FILE="$repo_root/cmake/mingw-w64-x86_64.cmake" >/dev/null
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build "$build_dir" -j"$(nproc)" "${targets[@]}"
}

# Creates the prefix on first use (about 10 s), later a no-op.
prepare_wine_prefix() {
  export WINEPREFIX=$1
  if [ ! -f "$WINEPREFIX/system.reg" ]; then
    mkdir -p "$WINEPREFIX"
    wineboot -i >/dev/null 2>&1
    wineserver -w
  fi
  # Windows keeps Tahoma and friends in its Fonts folder; Debian's Wine has
  # them only in its data folder, where Wine 8 does not look.
  local fonts="$WINEPREFIX/drive_c/windows/Fonts"
  mkdir -p "$fonts"
  cp -n /usr/share/wine/fonts/*.ttf "$fonts"/ 2>/dev/null || true
  # Wine's Tahoma Bold draws 10 points and more with the regular strokes:
  # bold labels would look regular. Windows' draws bold, and so does the copy
  # made here (again whenever its script is newer).
  local bold=/usr/share/wine/fonts/tahomabd.ttf maker="$repo_root/scripts/make_bold_tahoma.py"
  if [ -f "$bold" ] && { cmp -s "$bold" "$fonts/tahomabd.ttf" || [ "$fonts/tahomabd.ttf" -ot "$maker" ]; }; then
    /usr/bin/python3 "$maker" /usr/share/wine/fonts/tahoma.ttf "$bold" "$fonts/tahomabd.ttf"
  fi
}

# Starts a persistent Wine server and Wine's own services. Their output goes
# nowhere: a service holding a test runner's pipe would keep it waiting.
start_wine_server() {
  wineserver -p
  wine cmd.exe /c exit >/dev/null 2>&1 </dev/null
}

# On a virtual display no window manager runs. Wine then waits 2 s for every
# visible top-level window it destroys, unless it manages windows itself.
unmanaged_windows() {
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d "$1" /f \
    >/dev/null 2>&1 </dev/null
}

xvfb_pid=""
# Starts a private X server for programs that need a display; sets DISPLAY.
start_virtual_display() {
  local fifo
  fifo=$(mktemp -u)
  mkfifo "$fifo"
  Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$fifo" >/dev/null 2>&1 &
  xvfb_pid=$!
  local number
  read -r number <"$fifo"
  rm -f "$fifo"
  export DISPLAY=":$number"
}

stop_virtual_display() {
  if [ -n "$xvfb_pid" ]; then
    kill "$xvfb_pid" 2>/dev/null
    wait "$xvfb_pid" 2>/dev/null
    xvfb_pid=""
  fi
}

# Runs a Windows command line exactly as written. Given separate arguments,
# Wine rebuilds the line and quotes every argument that holds a blank; its
# cmd runs a line as written, and a variable expanded after the line is
# parsed keeps runs of blanks, quotes, "&" and "^". Wine's cmd does expand
# %NAME% and !NAME! again inside that text when NAME is set in the
# environment: callers keep such text out. Returns when the program ends.
wine_command_line() {
  MORVANE_COMMAND_LINE=$1 wine cmd.exe /v:on /c '!MORVANE_COMMAND_LINE!' </dev/null
}
