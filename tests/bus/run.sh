#!/bin/bash
# run.sh TEST PROGRAM FOLDER [ARGUMENT...]: runs the test on a desktop of its own, which has a
# display, a session bus and the accessibility bus. PROGRAM is the one to drive, FOLDER holds its
# documents. Everything that was started ends with it.
set -u
if [ "${1:-}" != --on-the-bus ]; then
    scratch=$(mktemp -d)
    mkfifo "$scratch/display"
    Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3<>"$scratch/display" \
        2>"$scratch/complaints" &
    server=$!
    trap 'kill $server; wait $server; rm -rf "$scratch"' EXIT
    if ! read -r -t 30 number <>"$scratch/display"; then
        echo "run.sh: no display: $(cat "$scratch/complaints")" >&2
        exit 1
    fi
    # A folder of its own also means that no trace is left in the user's.
    HOME=$scratch DISPLAY=:$number dbus-run-session -- "$0" --on-the-bus "$@" 2>"$scratch/bus"
    status=$?
    grep -v '^dbus-daemon\|^SpiRegistry' "$scratch/bus" >&2
    exit $status
fi
shift
test=$1
shift
unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
"$test" "$@"
