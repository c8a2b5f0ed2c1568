#!/usr/bin/env bash
# Plays one script of the line console and compares what it answers with the .out file beside it.
#   run.sh compare SONDA FILE.esc    shows the difference and fails when there is one
#   run.sh write   SONDA FILE.esc    writes the answer over the .out file (for tests/golden)
set -euo pipefail

mode=$1 sonda=$(realpath "$2") script=$(realpath "$3")
expected=${script%.esc}.out
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"

status=0
"$sonda" <"$script" >answer 2>complaint || status=$?
[ ! -s complaint ] || { echo "on the error stream:"; cat complaint; } >&2

# The console ends with 1 when a line of the script was refused, and only then.
refused=0
! grep -q '^error: ' answer || refused=1
if [ "$status" -ne "$refused" ]; then
    echo "$script: the console ended with status $status" >&2
    tail -n 20 answer >&2
    exit 1
fi

if [ "$mode" = write ]; then
    cp answer "$expected"
    exit 0
fi
if [ ! -f "$expected" ]; then
    echo "$expected is missing" >&2
    exit 1
fi
diff -u --label expected "$expected" --label answer answer
