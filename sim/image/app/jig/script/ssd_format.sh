#!/bin/sh
# The local drive; its files stay, it is the desk's own.
. /app/stand_in.sh
sleep 1
