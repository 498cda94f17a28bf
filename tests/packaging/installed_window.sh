#!/bin/sh
# Installs a build tree and starts the program in it without a display. Its decode helper has to come up, and to
# be that of the installation with the image plugins of the installation. usage: installed_window.sh BUILD
set -eu
build=$1
work=$(mktemp -d)
prefix=$work/prefix
program=
trap 'kill $program 2>/dev/null || true; rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$prefix" >/dev/null
mkdir -m 700 "$work/runtime"
cd /
XDG_RUNTIME_DIR=$work/runtime HOME=$work "$prefix/bin/vantor-recovery" "$build/samples/card.img" \
    2>"$work/complaints" &
program=$!

# The process that runs the installed helper, once there is one. Its command line tells: a helper hides the rest.
helper_of_program() {
    for process in /proc/[0-9]*; do
        case $(tr '\0' ' ' 2>/dev/null <"$process/cmdline") in
            "$prefix/"*"libexec/vantor-recovery/vantor-decode "*)
                basename "$process"
                return
                ;;
        esac
    done
}
helper=
tries=0
while [ -z "$helper" ]; do
    kill -0 "$program" # ends the test when the program did not stay
    tries=$((tries + 1))
    if [ $tries -gt 600 ]; then
        echo "no helper came up"
        cat "$work/complaints"
        exit 1
    fi
    sleep 0.1
    helper=$(helper_of_program)
done
echo "the helper is $helper"

if ! [ -r "/proc/$helper/maps" ]; then
    echo "SKIPPED: this system does not let a user see what a helper has loaded"
    exit 77
fi
status=0
for plugin in "$prefix/libexec/vantor-recovery/imageformats/"*.so; do
    found=
    tries=0
    while [ -z "$found" ] && [ $tries -le 100 ]; do
        if grep -qF "$plugin" "/proc/$helper/maps"; then
            found=yes
        else
            tries=$((tries + 1))
            sleep 0.1
        fi
    done
    if [ -z "$found" ]; then
        echo "not loaded: $plugin"
        status=1
    fi
done
exit $status
