#!/bin/sh
# The command of an installed table. A script and not a link: the program works in the folder that
# it was started through, and that has to be the one with its files.
exec "$(dirname "$(readlink -f "$0")")/../lib/zovin/zovin" "$@"
