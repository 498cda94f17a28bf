#!/bin/sh
# Installs a build tree into a folder, moves that folder, and recovers the sample card with the command in it: the
# same files have to come out as from the build tree's own command. usage: installed_command.sh BUILD COMMAND
set -eu
build=$1
command=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/first" >/dev/null
# Where the program was put must not be written down in it.
mv "$work/first" "$work/moved to here"
prefix="$work/moved to here"

# Run from elsewhere, by a path with spaces, through a link as well.
cd /
ln -s "$prefix/bin/vantor-recovery-cli" "$work/link"
for mode in photo video rawfile; do
    "$work/link" --mode $mode --save "$work/installed/$mode" "$build/samples/card.img" >/dev/null
    "$command" --mode $mode --save "$work/built/$mode" "$build/samples/card.img" >/dev/null
done
diff -r "$work/built" "$work/installed"
files=$(find "$work/installed" -type f | wc -l)
echo "$files files, as from the build tree"
[ "$files" -ge 100 ]
