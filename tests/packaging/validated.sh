#!/bin/sh
# Runs a validator, where it is installed. usage: validated.sh TOOL ARGUMENT...
set -eu
if ! command -v "$1" >/dev/null; then
    echo "SKIPPED: $1 is not installed"
    exit 77
fi
exec "$@"
