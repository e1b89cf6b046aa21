#!/usr/bin/env bash
# exported-symbols.sh LIBRARY LIST [--write]: compares the exported symbols of a shared library with LIST, on which
# existing binaries depend. With --write it rewrites LIST.
set -euo pipefail
library=$1
list=$2
export LC_ALL=C

# sort -u: the constructors of a class demangle to the same name.
case $library in
*.dll)
    [ "${3:-}" != --write ] || { echo "the list is written from the Linux library only"; exit 1; }
    symbols=$(objdump -p "$library" | sed -n '/^\[Ordinal\/Name Pointer\]/,/^$/s/^\t\[.* //p' | c++filt)
    # A DLL exports functions that Qt hides on Linux, and neither type names nor thunks of inlined functions.
    elsewhere='::qt_static_metacall\(|^typeinfo name for |^non-virtual thunk to '
    symbols=$(grep -vE "$elsewhere" <<<"$symbols" | sort -u)
    kept=$(grep -vE "$elsewhere" "$list")
    ;;
*)
    symbols=$(nm --dynamic --defined-only --demangle "$library" | cut -d' ' -f3- | sort -u)
    kept=$(cat "$list")
    ;;
esac
[ -n "$symbols" ] || { echo "$library exports no symbols"; exit 1; }
if [ "${3:-}" = --write ]; then
    printf '%s\n' "$symbols" >"$list"
    exit
fi
changes=$(diff --old-line-format='gone: %L' --new-line-format='new: %L' --unchanged-line-format='' - <(printf '%s\n' "$symbols") \
    <<<"$kept") || {
    printf '%s\n' "$changes" "If this is intended, build the target exported-symbols and commit ${list##*/}."
    exit 1
}
