# A virtual screen and a private Windows environment under build/, both ended by stop_screen.

screen_pid=""

# start_screen WIDTHxHEIGHT [NAME]: sets DISPLAY to a free one of its own.
start_screen() {
  local size="$1" log="build/logs/screen${2:+-$2}.log" display_file
  mkdir -p build/logs
  display_file="$(mktemp)"
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$display_file" >"$log" 2>&1 &
  screen_pid=$!
  local tries=0
  until [ -s "$display_file" ]; do
    kill -0 "$screen_pid" 2>/dev/null || fail "starting the virtual screen" "read $log"
    [ $((tries += 1)) -lt 300 ] || fail "the virtual screen gives no sign" "read $log"
    sleep 0.1
  done
  DISPLAY=":$(cat "$display_file")"
  export DISPLAY
  rm -f "$display_file"
}

# use_wine_prefix NAME WIDTHxHEIGHT: a fresh private prefix below build/ with a desktop of that size.
use_wine_prefix() {
  local template="$PWD/build/wine-$2"
  # No offers to download a script engine or an HTML engine.
  export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
  mkdir -p build/logs
  (
    flock 9
    if [ ! -f "$template/complete" ]; then
      rm -rf "$template"
      WINEPREFIX="$template" step "preparing a Windows environment in build/wine-$2" \
        "read build/logs/wineboot.log" boot_wine_prefix "$2"
      touch "$template/complete"
    fi
  ) 9>build/wine.lock
  export WINEPREFIX="$PWD/build/wine-$1"
  copy_wine_prefix "$template"
}

# Every program of the prefix starts on the desktop "shell", which has a task bar with a
# notification area.
boot_wine_prefix() {
  {
    wineboot -i &&
      wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d shell /f &&
      wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v shell /d "$1" /f &&
      wineserver -w &&
      # The pictures of title bars are letters of this font, which Wine does not find by itself.
      cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  } >build/logs/wineboot.log 2>&1
}

# The system's programs are linked, not copied; only the registry is written in place.
copy_wine_prefix() {
  rm -rf "$WINEPREFIX"
  cp -al "$1" "$WINEPREFIX"
  cp --remove-destination "$1"/*.reg "$WINEPREFIX/"
}

# start_shell WIDTHxHEIGHT: the task bar; it keeps the Windows environment alive.
start_shell() { wine explorer "/desktop=shell,$1" >/dev/null 2>&1 & }

stop_screen() {
  if [ -n "${WINEPREFIX:-}" ] && [ -d "${WINEPREFIX:-}" ]; then
    wineserver -k 2>/dev/null || true
    wineserver -w 2>/dev/null || true
  fi
  if [ -n "$screen_pid" ]; then
    kill "$screen_pid" 2>/dev/null || true
    wait "$screen_pid" 2>/dev/null || true
    screen_pid=""
  fi
}
