# Where the component runs on Linux: a private Wine prefix and a virtual display. To be sourced; needs $root (the
# checkout). Everything is kept in build/wine (of the next release: build/wine-next) and made once.

export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
prefixes=$root/build/wine${NV_NEXT:+-next}
screen=${NV_SCREEN:-1280x1024}

# use_prefix 32|64: points Wine at a prefix of its own, made when it is missing.
use_prefix() {
  local bits=$1
  export WINEARCH=win$bits WINEPREFIX=$prefixes/prefix$bits
  [ -e "$WINEPREFIX/.ready" ] && return
  rm -rf "$WINEPREFIX"
  mkdir -p "$prefixes"
  echo "setup: making the $bits-bit Wine prefix" >&2
  wineboot --init >/dev/null 2>&1
  # Without these every form is drawn in a much wider fallback face.
  cp /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$WINEPREFIX/drive_c/windows/Fonts/"
  # A desktop of Wine's own: windows get captions, and the focus works without a window manager.
  wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null 2>&1
  wineserver -w
  touch "$WINEPREFIX/.ready"
}

# use_display: a virtual display for the rest of the script, unless NVHOST_DISPLAY names one to use (":0" for a person).
use_display() {
  if [ -n "${NVHOST_DISPLAY:-}" ]; then
    export DISPLAY=$NVHOST_DISPLAY
    return
  fi
  local number
  exec {display_fd}< <(exec Xvfb -displayfd 1 -screen 0 "${screen}x24" -nolisten tcp 2>/dev/null)
  display_pid=$!
  read -r number <&"$display_fd" || { echo "no virtual display: Xvfb did not start" >&2; return 1; }
  export DISPLAY=:$number
}

# use_wineserver: one server, with the desktop, for all that follows; a process start is then well under a second.
use_wineserver() {
  # A program waits for the server at each call and the server for the next one: two processors would spend their time
  # waking each other, and a dialog opens in a fifth of the time on one.
  local processor
  processor=$(taskset -cp $$ | sed -E 's/.*: *([0-9]+).*/\1/')
  taskset -cp "$processor" $$ >/dev/null
  # The desktop's size must be known before anything starts it: without one there is no desktop, and each window waits
  # two seconds for a window manager.
  if [ "$(cat "$WINEPREFIX/.screen" 2>/dev/null)" != "$screen" ]; then
    wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d "$screen" /f >/dev/null 2>&1
    wineserver -k >/dev/null 2>&1
    wineserver -w
    echo "$screen" >"$WINEPREFIX/.screen"
  fi
  wineserver -p >/dev/null 2>&1
  wine explorer /desktop=Default,"$screen" >/dev/null 2>&1 &
}

# leave_wine: ends what the functions above started.
leave_wine() {
  [ -z "${WINEPREFIX:-}" ] || wineserver -k >/dev/null 2>&1 || true # there may be none
  [ -z "${display_pid:-}" ] || kill "$display_pid" 2>/dev/null || true
  display_pid=
}
