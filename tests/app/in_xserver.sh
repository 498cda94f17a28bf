#!/bin/sh
# Runs some of the window's flows in a real X server with a window manager, and leaves a picture of each one's last
# screen. usage: in_xserver.sh WINDOW_TEST FOLDER_FOR_PICTURES. Exit code 77: not run, for want of an X server.
set -u
program=$1
shots=$2
for tool in Xvfb openbox; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIPPED: $tool is not installed"
        exit 77
    fi
done
mkdir -p "$shots"
rm -f "$shots/display"
server=
manager=
trap 'kill $manager $server 2>/dev/null' EXIT
Xvfb -displayfd 3 -screen 0 1280x900x24 3>"$shots/display" 2>/dev/null &
server=$!
for _ in 1 2 3 4 5 6 7 8 9 10; do
    [ -s "$shots/display" ] && break
    sleep 1
done
DISPLAY=:$(cat "$shots/display")
export DISPLAY
openbox 2>/dev/null &
manager=$!
sleep 1
QT_QPA_PLATFORM=xcb VANTOR_SHOTS=$shots "$program" \
    --gtest_filter='Flow.Photo*:Modes/RawFlow.*:Exit.ReturnIsYes:Exit.EscapeIsNo:Saving.SaveAll*:MoviePreview.SpaceAndClick*:MediaScreen.WhileTheSheet*'
