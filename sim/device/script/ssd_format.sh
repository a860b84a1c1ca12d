#!/bin/sh
# The local drive; its files stay, it is the desk's own.
. "$(dirname "$0")/stand_in.sh"
sleep 1
