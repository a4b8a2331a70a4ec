#!/bin/sh
# soak.sh [--minutes N]: draws random scenes by both back ends and fails when memory grows or equal seeds differ.
set -eu
. "$(dirname "$0")/common.sh"

"$root/scripts/build.sh" default test -DDTKHDDVD_TESTS=ON
[ $# -gt 0 ] || set -- --minutes 60
log=$build/soak.log
say "soaking; what the drawing says about areas outside the target goes to $log ..."
minutes=''
[ "$1" != --minutes ] || minutes=${2-}
case $minutes in
    '' | *[!0-9]*) ;;
    *) watch "$log" $((60 * minutes)) ;;
esac
HOME=/nonexistent DISPLAY='' WAYLAND_DISPLAY='' DFBARGS='' ZUVOARGS='' "$build/soak" "$@" 2> "$log" || {
    tail -n 1 "$log" >&2
    fail "the soak failed"
}
watch_end
