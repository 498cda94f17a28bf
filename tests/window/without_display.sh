#!/bin/sh
# Help, version and wrong languages are told where there is nothing to show a window on. usage: without_display.sh PROGRAM
set -eu
program=$1
unset DISPLAY WAYLAND_DISPLAY
QT_QPA_PLATFORM=xcb
LC_ALL=C.UTF-8
export QT_QPA_PLATFORM LC_ALL

says() {
    wanted=$1
    shift
    told=$("$program" "$@" 2>&1) || { echo "$* ended with $?: $told" >&2; exit 1; }
    case $told in
        *"$wanted"*) ;;
        *) echo "$* says: $told" >&2; exit 1 ;;
    esac
}
says 'vantor-recovery ' --version
says 'Show this help.' --help
says 'Diese Hilfe zeigen.' --language de --help

code=0
"$program" --language tlh 2>/dev/null || code=$?
[ $code -eq 2 ] || { echo "a language that is none ended with $code" >&2; exit 1; }
