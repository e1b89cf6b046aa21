#!/usr/bin/env bash
# exported-symbols.sh LIBRARY LIST [--write]: compares what a shared library shows with the list that is kept of it.
# Programs that are built against the library hang on each of these names, so a change of the list is a decision. With
# --write the list is made anew.
set -euo pipefail
library=$1
list=$2
export LC_ALL=C

# Several constructors of a class have one name here.
case $library in
*.dll)
    [ "${3:-}" != --write ] || { echo "the list is that of the library for Linux"; exit 1; }
    symbols=$(objdump -p "$library" | sed -n '/^\[Ordinal\/Name Pointer\]/,/^$/s/^\t\[.* //p' | c++filt)
    # By the compilers' own rules a DLL shows the functions that Qt hides elsewhere, but no names of types, and thunks of
    # what is inlined.
    elsewhere='::qt_static_metacall\(|^typeinfo name for |^non-virtual thunk to '
    symbols=$(grep -vE "$elsewhere" <<<"$symbols" | sort -u)
    kept=$(grep -vE "$elsewhere" "$list")
    ;;
*)
    symbols=$(nm --dynamic --defined-only --demangle "$library" | cut -d' ' -f3- | sort -u)
    kept=$(cat "$list")
    ;;
esac
[ -n "$symbols" ] || { echo "$library shows no symbols"; exit 1; }
if [ "${3:-}" = --write ]; then
    printf '%s\n' "$symbols" >"$list"
    exit
fi
changes=$(diff --old-line-format='gone: %L' --new-line-format='new: %L' --unchanged-line-format='' - <(printf '%s\n' "$symbols") \
    <<<"$kept") || {
    printf '%s\n' "$changes" "If this is meant, build the target exported-symbols and commit ${list##*/}."
    exit 1
}
