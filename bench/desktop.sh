#!/usr/bin/env bash
# Figures of the desktop on this machine, each beside its budget: start to painted table, memory, processor at
# rest at 1280 by 800; frames of a flight at 1920 by 1080 and 2560 by 1440, the longest draw.
#   bench/desktop.sh [build folder]      build/bench unless told otherwise
set -euo pipefail

here=$(cd "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/.." && pwd)
build=$(realpath "${1:-$here/build/bench}")
for program in zovin flight_bench; do
    [ -x "$build/bin/$program" ] || { echo "build the preset bench first: no $build/bin/$program" >&2; exit 2; }
done

"$here/packaging/install-packages" run bench

export ZOVIN_BIN=$build/bin
"$here/cmake/under_xvfb.sh" "$here/bench/desktop.py"

flight=$(mktemp --suffix=.sh)
trap 'rm -f "$flight"' EXIT
echo "exec '$build/bin/flight_bench'" >"$flight"
ZOVIN_SCREEN=2560x1440 "$here/cmake/under_xvfb.sh" "$flight"
