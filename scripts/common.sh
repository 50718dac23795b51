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
# MORVANE_SCREEN_SIZE (WIDTHxHEIGHT) makes it larger than 1024x768.
start_virtual_display() {
  local fifo
  fifo=$(mktemp -u)
  mkfifo "$fifo"
  Xvfb -displayfd 3 -screen 0 "${MORVANE_SCREEN_SIZE:-1024x768}x24" -nolisten tcp 3>"$fifo" >/dev/null 2>&1 &
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

wm_pid=""
# Starts Debian's openbox on the display, as a desktop would run a window
# manager, and returns once it manages windows.
start_window_manager() {
  local log="$build_dir/openbox.log"
  openbox --sm-disable >"$log" 2>&1 &
  wm_pid=$!
  for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && return 0
    sleep 0.1
  done
  echo "openbox did not start:" >&2
  cat "$log" >&2
  return 1
}

stop_window_manager() {
  if [ -n "$wm_pid" ]; then
    kill "$wm_pid" 2>/dev/null || true
    wait "$wm_pid" 2>/dev/null || true
    wm_pid=""
  fi
}

relay_pid=""
# Input sent with SendInput stays inside Wine: a window manager never sees
# it. While this relay runs, the end-to-end tests write their mouse input to
# its pipe (MORVANE_X_INPUT, a Windows path) as "X Y FLAGS", FLAGS being
# SendInput's button flags, and it goes through X instead.
start_x_input_relay() {
  local pipe="$build_dir/x-input"
  rm -f "$pipe"
  mkfifo "$pipe"
  # Open for writing too, so that the loop sees no end between writers.
  while read -r x y flags; do
    local buttons=()
    ((flags & 0x02)) && buttons+=(mousedown 1)
    ((flags & 0x04)) && buttons+=(mouseup 1)
    ((flags & 0x08)) && buttons+=(mousedown 3)
    ((flags & 0x10)) && buttons+=(mouseup 3)
    xdotool mousemove "$x" "$y" "${buttons[@]}" || true
  done <>"$pipe" &
  relay_pid=$!
  MORVANE_X_INPUT=$(winepath -w "$pipe")
  export MORVANE_X_INPUT
}

stop_x_input_relay() {
  if [ -n "$relay_pid" ]; then
    kill "$relay_pid" 2>/dev/null || true
    wait "$relay_pid" 2>/dev/null || true
    relay_pid=""
  fi
  unset MORVANE_X_INPUT
  rm -f "$build_dir/x-input"
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
