#!/usr/bin/env bash
# Takes the screenshots in docs/: Morvane on a sample folder, on a private
# virtual display, with the mouse resting outside the window.
set -euo pipefail
source "$(dirname "$0")/common.sh"

build_morvane >/dev/null
prepare_wine_prefix "$build_dir/wineprefix"
start_virtual_display
cleanup() {
  wine reg delete 'HKCU\Control Panel\Desktop' /v LogPixels /f >/dev/null 2>&1 || true
  wineserver -k 2>/dev/null || true
  stop_virtual_display
}
trap cleanup EXIT
start_wine_server
unmanaged_windows N

# Waits up to $1 seconds for the command after it to succeed.
wait_until() {
  local deadline=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$deadline" ] || return 1
    sleep 0.2
  done
}
showing() { xdotool search --onlyvisible --name "$1"; }
gone() { ! showing "$1"; }

# The program and the sample folder sit on drive C, as on Windows, with short
# paths that the folder label and the recent list show whole. The program's
# folder is a copy, so that its recent list is the one written here.
program="$WINEPREFIX/drive_c/Morvane"
sample="$WINEPREFIX/drive_c/Holiday Photos"
rm -rf "$program" "$sample"
mkdir -p "$program" "$sample"
cp "$build_dir"/dist/* "$program/"
# Ten icon files opened before, most recent first, kept as the program keeps
# them: lower case, in [Recent] ARA01 to ARA10.
recent=(c:/morvane/iconos.dll c:/windows/system32/shell32.dll c:/windows/explorer.exe
  c:/windows/system32/ieframe.dll c:/windows/notepad.exe c:/windows/regedit.exe
  c:/windows/system32/user32.dll c:/windows/hh.exe c:/windows/system32/comdlg32.dll
  c:/windows/system32/setupapi.dll)
{
  printf '[Recent]\r\n'
  for i in "${!recent[@]}"; do printf 'ARA%02d=%s\r\n' $((i + 1)) "${recent[i]//\//\\}"; done
} >"$program/ARA.INI"
xdotool mousemove 5 5
read -r -a words <<<"$(winepath -w "$sample")"
mkdir -p "$repo_root/docs"

# The splash: from a copy of the program whose icon library is large, so that
# start-up lasts long enough to photograph it.
splash_copy=$(mktemp -d)
cp "$build_dir"/dist/* "$splash_copy/"
cp "$build_dir/tests/ICONS1234.DLL" "$splash_copy/iconos.dll"
wine "$splash_copy/Morvane.exe" "${words[@]}" &
morvane=$!
# Taken while the icons load, over the main window shown behind the splash.
timeout 20 xdotool search --sync --onlyvisible --name '^Morvane - ' >/dev/null
sleep 0.5
/usr/bin/import -window root -crop 442x323+291+222 +repage "$repo_root/docs/splash.png"
wine taskkill /im Morvane.exe >/dev/null 2>&1 || true
wait "$morvane" || true
rm -rf "$splash_copy"

wine "$program/Morvane.exe" "${words[@]}" &
morvane=$!
# Start-up closes the splash once the icons are listed.
wait_until 30 showing '^Morvane - '
wait_until 60 gone '^frmSplash$'
sleep 1

# The user's road: an icon picked for the preview, an info tip typed, Apply
# and Yes, which customise the folder and leave the window open; then the
# recent list opened. The folder starts plain because Wine's shell gives every
# folder whose Desktop.ini names an icon file a blank document (it reads the
# file's name and drops it), where Windows shows that icon.
xdotool mousemove 640 305 click 1 sleep 0.5
xdotool mousemove 350 430 click 1 sleep 0.3
xdotool type --delay 30 "Summer 2026 on the coast: beaches, boats and the old harbour."
xdotool mousemove 524 572 click 1
wait_until 10 showing '^Confirm$'
xdotool key Return
wait_until 10 test -f "$sample/Desktop.ini"
wait_until 10 gone '^Confirm$'
# Passing over the window's background repaints the buttons and the status
# strip in their resting state.
xdotool mousemove 483 370 sleep 0.5 mousemove 5 5 sleep 0.5
xdotool mousemove 468 540 click 1 sleep 0.5 mousemove 5 5 sleep 1

# The window is centred on the 1024 x 768 screen; the margin shows its
# shadow, and the taller crop the recent list hanging below the window.
/usr/bin/import -window root -crop 597x530+213+160 +repage "$repo_root/docs/main-window.png"
xdotool key Escape sleep 0.5

# The help link opens the about window, centred too.
xdotool mousemove 766 227 click 1 sleep 1.5 mousemove 5 5 sleep 0.5
/usr/bin/import -window root -crop 442x323+291+222 +repage "$repo_root/docs/about-window.png"
# Its OK button, then the main window's exit button: an orderly end.
xdotool mousemove 654 525 click 1 sleep 1 mousemove 755 572 click 1
wait "$morvane" || true
echo "docs/splash.png docs/main-window.png docs/about-window.png"

# docs/managed-window.png: Morvane under a window manager (openbox) with
# Wine's default Managed=Y, clicked back in front of another program's
# window: its shadow lies right beneath it, over the other window.
managed_window_screenshot() {
  start_window_manager
  unmanaged_windows Y
  wine "$build_dir/dist/Morvane.exe" "${words[@]}" &
  local morvane=$!
  # Polled: a search can meet a window that Wine destroys meanwhile.
  timeout 30 bash -c "until xdotool search --onlyvisible --name '^Morvane - '; do sleep 0.2; done" \
    >/dev/null 2>&1
  sleep "${MORVANE_SCREENSHOT_DELAY:-6}"
  xmessage -geometry 330x190+650+430 "Another program's window" &
  local other=$!
  sleep 1
  # The status strip, pressed as a user would to bring Morvane back.
  xdotool mousemove 641 572 click 1 sleep 1 mousemove 5 5 sleep 1
  /usr/bin/import -window root -crop 787x480+213+160 +repage "$repo_root/docs/managed-window.png"
  kill "$other"
  # The exit button: an orderly end.
  xdotool mousemove 755 572 click 1
  wait "$morvane" || true
  unmanaged_windows N
  stop_window_manager
  echo "docs/managed-window.png"
}
managed_window_screenshot

# docs/main-window-144.png and -192.png: the window at 150 % and 200 %, on
# a display large enough for it. Wine reads the prefix's LogPixels when a
# program starts. Positions are those of the 96 dpi road, scaled from the
# window's corner. With MORVANE_ABOUT_SHOT=PREFIX the about window at each
# scale is saved too, as PREFIX-DPI.png, for a look.
scaled_screenshot() {
  local dpi=$1
  # A plain folder again, whose current icon Wine's shell shows.
  rm -rf "$sample"
  mkdir -p "$sample"
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f \
    >/dev/null 2>&1 </dev/null
  wine "$program/Morvane.exe" "${words[@]}" &
  local morvane=$!
  wait_until 30 showing '^Morvane - '
  wait_until 60 gone '^frmSplash$'
  sleep 1
  local id X Y WIDTH HEIGHT
  id=$(xdotool search --onlyvisible --name '^Morvane - ' | head -n 1)
  eval "$(xdotool getwindowgeometry --shell "$id" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
  at() { echo $((X + $1 * dpi / 96)) $((Y + $2 * dpi / 96)); }
  xdotool mousemove $(at 417 135) click 1 sleep 0.5
  xdotool mousemove $(at 127 260) click 1 sleep 0.3
  xdotool type --delay 30 "Summer 2026 on the coast: beaches, boats and the old harbour."
  xdotool mousemove $(at 260 200) sleep 0.5 mousemove 5 5 sleep 1
  local margin=$((10 * dpi / 96))
  /usr/bin/import -window root -crop "$((WIDTH + 2 * margin))x$((HEIGHT + 2 * margin))+$((X - margin))+$((Y - margin))" \
    +repage "$repo_root/docs/main-window-$dpi.png"
  if [ -n "${MORVANE_ABOUT_SHOT:-}" ]; then
    xdotool mousemove $(at 543 57) click 1 sleep 1.5 mousemove 5 5 sleep 0.5
    /usr/bin/import -window root "$MORVANE_ABOUT_SHOT-$dpi.png"
    # A click on its background closes it.
    local about
    about=$(xdotool search --onlyvisible --name '^frmSplash$' | head -n 1)
    eval "$(xdotool getwindowgeometry --shell "$about" | grep -E '^(X|Y)=')"
    xdotool mousemove $(at 4 100) click 1
    wait_until 10 gone '^frmSplash$'
    eval "$(xdotool getwindowgeometry --shell "$id" | grep -E '^(X|Y)=')"
  fi
  xdotool mousemove $(at 532 402) click 1
  wait "$morvane" || true
  echo "docs/main-window-$dpi.png"
}
wineserver -k
stop_virtual_display
MORVANE_SCREEN_SIZE=1600x1200 start_virtual_display
start_wine_server
for dpi in 144 192; do scaled_screenshot "$dpi"; done
