#!/bin/sh
# FILE KIND: a package of this machine.
. "$(dirname "$0")/stand_in.sh"
[ -f "$1" ] || exit 1
sleep 2
