#!/bin/sh
# Makes the Debian package of a build tree and has it judged by the distribution's own lint, where that is installed.
# usage: package_is_clean.sh BUILD
set -eu
for tool in dpkg-shlibdeps file lintian; do
    if ! command -v $tool >/dev/null; then
        echo "SKIPPED: $tool is not installed"
        exit 77
    fi
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cpack --config "$1/CPackConfig.cmake" -B "$work" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
package=$(find "$work" -maxdepth 1 -name 'vantor-recovery_*.deb')
dpkg-deb --info "$package"
dpkg-deb --extract "$package" "$work/extracted"
# shellcheck disable=SC2046 # the package's own names
"$(dirname "$0")/hardened.sh" $(find "$work/extracted/usr/bin" "$work/extracted/usr/libexec" -type f)
# Lint asks not to be run as root; it only reads.
lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$package"
