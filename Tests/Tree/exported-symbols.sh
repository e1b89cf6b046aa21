#!/usr/bin/env bash
# exported-symbols.sh LIBRARY LIST [--write]: compares what a shared library shows with the list that is kept of it.
# Programs that are built against the library hang on each of these names, so a change of the list is a decision. With
# --write the list is made anew.
set -euo pipefail
library=$1
list=$2
export LC_ALL=C

# Several constructors of a class have one name here.
symbols=$(nm --dynamic --defined-only --demangle "$library" | cut -d' ' -f3- | sort -u)
[ -n "$symbols" ] || { echo "$library shows no symbols"; exit 1; }
if [ "${3:-}" = --write ]; then
    printf '%s\n' "$symbols" >"$list"
    exit
fi
changes=$(diff --old-line-format='gone: %L' --new-line-format='new: %L' --unchanged-line-format='' "$list" - \
    <<<"$symbols") || {
    printf '%s\n' "$changes" "If this is meant, build the target exported-symbols and commit ${list##*/}."
    exit 1
}
