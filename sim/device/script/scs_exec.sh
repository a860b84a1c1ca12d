#!/bin/sh
# A command on the control server.
. "$(dirname "$0")/stand_in.sh"
result=/tmp/scs_update_result
begun=/tmp/pws_update # when the update that can be asked has begun
case $1 in
"rm $result") rm -f "$result" ;;
"rm "*) ;;
*ktrPwsUpdate*Status) # five seconds
    percent=$((($(date +%s) - $(cat "$begun" 2>/dev/null || echo 0)) * 20))
    [ "$percent" -lt 100 ] || percent=100
    exit "$percent" ;;
*ktrPwsUpdate*) date +%s >"$begun" ;;
*" time"*) exit 1 ;; # a minute
*" -b"*)
    sleep 3
    echo "OK" >"$result.new"
    mv "$result.new" "$result" ;;
*) sleep 1 ;;
esac
exit 0
