#!/bin/sh
# DEVICE: a stick; its files go.
. "$(dirname "$0")/stand_in.sh"
case $1 in /dev/sd*) ;; *) exit 1 ;; esac
sleep 1
[ ! -d /mnt/usb/usb1 ] || find /mnt/usb/usb1 -mindepth 1 -delete
