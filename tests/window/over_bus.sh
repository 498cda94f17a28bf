#!/bin/sh
# Runs a test in a real X server and with an accessibility bus of its own.
# usage: over_bus.sh TEST. Exit code 77: not run, for want of one of them.
set -u
for tool in Xvfb openbox dbus-run-session; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIPPED: $tool is not installed"
        exit 77
    fi
done
if [ ! -e /usr/share/dbus-1/services/org.a11y.Bus.service ]; then
    echo "SKIPPED: at-spi2-core is not installed"
    exit 77
fi
. "$(dirname "$0")/xserver.sh"
QT_QPA_PLATFORM=xcb dbus-run-session -- "$1"
