#!/usr/bin/env bash
# Plays seeded matches of a game with simula and compares their signature, one number over every card moved
# and every record, with the one kept in signatures.txt. Seats, levels, characters and direction are chosen
# from the seed of each match.
#   signatures.sh compare SIMULA OPTIONS...    shows both and fails when they differ
#   signatures.sh write   SIMULA               plays every line of signatures.txt and writes it anew
set -euo pipefail

mode=$1 simula=$2
shift 2
kept=$(dirname "$(realpath "${BASH_SOURCE[0]}")")/signatures.txt

# signature OPTIONS...: the line that is kept for them.
signature() {
    local answer
    answer=$("$simula" "$@" --azar --firma) || return
    printf '%s: %s\n' "$*" "$(grep -E '^(partidas|manos|firma) [0-9a-f]+$' <<<"$answer" | paste -sd ' ')"
}

if [ "$mode" = write ]; then
    lines=()
    while IFS=: read -r options _; do
        read -ra words <<<"$options"
        line=$(signature "${words[@]}")
        lines+=("$line")
    done <"$kept"
    printf '%s\n' "${lines[@]}" >"$kept"
    exit 0
fi

if ! expected=$(grep -F -- "$*: " "$kept"); then
    echo "$kept keeps nothing for $*" >&2
    exit 1
fi
diff -u --label kept <(echo "$expected") --label played <(signature "$@")
