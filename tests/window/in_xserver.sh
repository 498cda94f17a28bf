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
. "$(dirname "$0")/xserver.sh"
QT_QPA_PLATFORM=xcb VANTOR_SHOTS=$shots "$program" \
    --gtest_filter='Flow.Photo*:Modes/RawFlow.*:Exit.ReturnIsYes:Exit.EscapeIsNo:Saving.SaveAll*:MoviePreview.SpaceAndClick*:MediaScreen.WhileTheSheet*'
