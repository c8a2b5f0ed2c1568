#!/usr/bin/env bash
# Runs one end-to-end test on a screen, a window manager and a home of its own, and takes all three
# away afterwards. The test finds the programs in $ZOVIN_BIN. ZOVIN_SCREEN is the size of the screen where
# 1280x800 is not what is wanted.
set -euo pipefail

scratch=$(mktemp -d)
started=()
clean_up() {
    local pid
    for pid in "${started[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$scratch"
}
trap clean_up EXIT

Xvfb -displayfd 3 -screen 0 "${ZOVIN_SCREEN:-1280x800}x24" -nolisten tcp 3>"$scratch/display" 2>"$scratch/xvfb.log" &
started+=($!)
for _ in $(seq 100); do
    [ ! -s "$scratch/display" ] || break
    sleep 0.1
done
[ -s "$scratch/display" ] || { cat "$scratch/xvfb.log" >&2; exit 1; }

DISPLAY=":$(tr -d '\n' <"$scratch/display")"
export DISPLAY
export HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/run" QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME
mkdir -p "$HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"

openbox >"$scratch/openbox.log" 2>&1 &
started+=($!)

cd "$HOME"
case $1 in
# With a bus of its own, as a desktop has one; the bindings to it are the system's, whichever python comes first.
*/a11y/*.py) dbus-run-session -- /usr/bin/python3 "$1" ;;
*.py) python3 "$1" ;;
*) bash -euo pipefail "$1" ;;
esac
