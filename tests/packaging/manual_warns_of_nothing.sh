#!/bin/sh
# Formats the manual pages with every warning on, where the formatter is installed. usage: … FOLDER
set -eu
if ! command -v groff >/dev/null; then
    echo "SKIPPED: groff is not installed"
    exit 77
fi
for page in "$1"/*.1 "$1"/*/*.1; do
    warnings=$(groff -K utf8 -man -Tutf8 -ww -z "$page" 2>&1)
    if [ -n "$warnings" ]; then
        echo "$warnings"
        exit 1
    fi
    echo "$page: no warnings"
done
