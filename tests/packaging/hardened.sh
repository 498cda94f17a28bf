#!/bin/sh
# Reads from programs and plugins what keeps a mistake in them from becoming a way in; names each that lacks some of it.
# usage: hardened.sh PROGRAM...
set -eu
for tool in readelf objdump; do
    if ! command -v $tool >/dev/null; then
        echo "SKIPPED: $tool is not installed"
        exit 77
    fi
done
if [ $# -eq 0 ]; then
    echo "no programs to look at"
    exit 1
fi

failed=0
lacks() {
    echo "$file: $1"
    failed=1
}

# Of all together, since not every program has a place for each.
guards=0
fortified=0
checked=0
probes=0

for file in "$@"; do
    headers=$(readelf -hldW "$file")
    symbols=$(readelf --dyn-syms -W "$file")
    echo "$headers" | grep -q 'Type: *DYN' || lacks "lies at a fixed address"
    echo "$headers" | grep -q 'GNU_RELRO' || lacks "no part is read-only after the start"
    echo "$headers" | grep -q 'BIND_NOW' || lacks "library functions are looked up late"
    echo "$headers" | grep 'GNU_STACK' | grep -q ' RW ' || lacks "its stack is executable"
    echo "$headers" | grep -q ' RWE ' && lacks "something is writable and executable"
    # A plugin may be too small to hold an array on the stack; a program is not.
    if echo "$symbols" | grep -q '__stack_chk_fail'; then
        guards=$((guards + 1))
    elif ! echo "$headers" | grep -q 'Shared object'; then
        lacks "no stack is guarded"
    fi
    echo "$symbols" | grep -qE ' __[a-z]+_chk@' && fortified=$((fortified + 1))
    echo "$symbols" | grep -q '__glibcxx_assert_fail' && checked=$((checked + 1))
    case $(uname -m) in
        x86_64)
            code=$(objdump -d --no-show-raw-insn "$file")
            # Every function that can be reached by an address begins with a landing mark, the linker's few do not.
            entries=$(echo "$code" | grep -c 'endbr64' || true)
            [ "$entries" -ge 10 ] || lacks "indirect jumps land anywhere ($entries marks)"
            probes=$((probes + $(echo "$code" | grep -cE 'or[ql] +\$0x0,(0x[0-9a-f]+)?\(%rsp\)' || true)))
            ;;
        *) probes=1 ;;
    esac
done

file="all of them"
[ "$guards" -gt 0 ] || lacks "no stack is guarded"
[ "$fortified" -gt 0 ] || lacks "no call of the C library is checked for its room"
[ "$checked" -gt 0 ] || lacks "no container checks its indices"
[ "$probes" -gt 0 ] || lacks "large frames may step over the guard page"
echo "$# looked at: stacks guarded in $guards, calls checked in $fortified, indices checked in $checked, $probes probes"
exit $failed
