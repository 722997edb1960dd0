#!/usr/bin/env bash
# Runs walk.py against the program in a session of its own: a virtual
# display (Xvfb), a private D-Bus session (dbus-run-session) and the
# accessibility bus on it (at-spi-bus-launcher). Everything it starts it
# ends again, by process id.
#
#   walk.sh PROGRAM
#
# Exit status: 0 passed, 1 failed, 77 skipped (a piece of the session is not
# installed here).
set -u

readonly SKIP=77
readonly LAUNCHER=/usr/libexec/at-spi-bus-launcher
readonly PYTHON=/usr/bin/python3 # the system's, which has the AT-SPI bindings
readonly HERE=$(cd "$(dirname "$0")" && pwd)
readonly WALK_SECONDS=50
readonly DISPLAY_SECONDS=10

skip() {
  echo "skipped: $*"
  exit "$SKIP"
}

# Ends a process we started and waits for it, gently first.
end() {
  local pid=$1
  [[ -n "$pid" ]] && kill -0 "$pid" 2>/dev/null || return 0
  kill -TERM "$pid" 2>/dev/null
  for _ in 1 2 3 4 5 6 7 8 9 10; do
    kill -0 "$pid" 2>/dev/null || return 0
    sleep 0.2
  done
  kill -KILL "$pid" 2>/dev/null
}

# Inside the private D-Bus session: the accessibility bus, then the walk.
launcher_pid=""
inner() {
  local program=$1 settings=$2
  finish() {
    if [[ -n "$launcher_pid" ]]; then
      # The launcher's own children: the accessibility bus and the registry.
      local children
      children=$(grep -l "^PPid:[[:space:]]*${launcher_pid}\$" /proc/[0-9]*/status 2>/dev/null | cut -d/ -f3)
      end "$launcher_pid"
      for child in $children; do end "$child"; done
    fi
  }
  trap finish EXIT
  "$LAUNCHER" --launch-immediately >/dev/null 2>&1 &
  launcher_pid=$!
  timeout --kill-after=5 $((WALK_SECONDS + 10)) \
    "$PYTHON" "$HERE/walk.py" --program "$program" --settings "$settings" --timeout "$WALK_SECONDS"
}

if [[ "${1:-}" == "--inner" ]]; then
  shift
  inner "$@"
  exit $?
fi

[[ $# -eq 1 ]] || { echo "usage: $0 PROGRAM" >&2; exit 64; }
program=$(realpath "$1")
[[ -x "$program" ]] || { echo "no program at $1" >&2; exit 1; }
command -v Xvfb >/dev/null || skip "no Xvfb"
command -v dbus-run-session >/dev/null || skip "no dbus-run-session"
[[ -x "$LAUNCHER" ]] || skip "no $LAUNCHER"
"$PYTHON" -c 'import gi; gi.require_version("Atspi", "2.0"); from gi.repository import Atspi' 2>/dev/null \
  || skip "no AT-SPI for Python (python3-gi, gir1.2-atspi-2.0)"

work=$(mktemp -d)
xvfb_pid=""
cleanup() {
  end "$xvfb_pid"
  rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 130' INT TERM

# A settings folder where the edition and the sound are chosen: the title
# screen leads straight to the year menu.
mkdir -p "$work/settings" "$work/runtime"
chmod 700 "$work/runtime"
echo 0 >"$work/settings/primary.inf"
echo 0 >"$work/settings/sound.inf"

# Xvfb picks a free display and writes its number once it is ready.
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >"$work/xvfb.log" 2>&1 &
xvfb_pid=$!
if ! read -r -t "$DISPLAY_SECONDS" number <"$work/display"; then
  cat "$work/xvfb.log" >&2
  echo "Xvfb did not start" >&2
  exit 1
fi

DISPLAY=":$number" XDG_RUNTIME_DIR="$work/runtime" \
  dbus-run-session -- "$0" --inner "$program" "$work/settings"
