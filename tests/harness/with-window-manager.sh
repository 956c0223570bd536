#!/bin/sh
# Runs a test with a window manager: without one no window ever becomes the active one. Waits until it is ready, because a
# window that is shown before keeps waiting for the focus.
folder=$(mktemp -d)
mkfifo "$folder/ready"
openbox --startup "sh -c 'echo >$folder/ready'" 2>/dev/null &
manager=$!
read -r _ <"$folder/ready"
"$@"
status=$?
kill "$manager"
rm -rf "$folder"
exit "$status"
