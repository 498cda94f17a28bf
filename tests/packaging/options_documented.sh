#!/bin/sh
# Every option that --help lists stands in the manual and in the completion, and neither has options of its own.
# usage: options_documented.sh COMMAND MANUAL COMPLETION
set -eu
options() { grep -oE -- '--[a-z][a-z-]+[a-z]' | sort -u; }
# Only where an option is introduced: a line that begins with it.
told=$("$1" --help | grep -E '^ +-' | options)
manual=$(sed 's/\\-/-/g' "$2" | grep -E '^\.B' | options)
completion=$(sed '/COMPREPLY=(.*help/,/-- "/!d; s/-- "\$cur"//' "$3" | options)
status=0
for place in manual completion; do
    eval "listed=\$$place"
    if [ "$listed" != "$told" ]; then
        echo "The $place and --help do not agree:"
        printf '%s\n' "$told" "$listed" | sort | uniq -u
        status=1
    fi
done
[ "$(echo "$told" | wc -l)" -ge 10 ] || { echo "--help lists hardly anything"; status=1; }
exit $status
