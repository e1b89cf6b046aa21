#!/usr/bin/env bash
# exported-symbols.sh LIBRARY LIST: compares what a shared library shows with the list of classes that it shall show.
# Each symbol must belong to a class of the list, and each class must show its meta-object functions.
set -euo pipefail
library=$1
list=$2
failed=0

symbols=$(nm --dynamic --defined-only --demangle "$library" | cut -d' ' -f3-)
mapfile -t classes < <(grep -v '^ *$' "$list")
[ -n "$symbols" ] && [ ${#classes[@]} -gt 0 ] || { echo "no symbols, or no classes to compare them with"; exit 1; }

strays=$symbols
for class in "${classes[@]}"; do
    for part in metaObject qt_metacast qt_metacall staticMetaObject "${class##*::}" "~${class##*::}"; do
        grep -qE "^$class::$part(\(|$)" <<<"$symbols" || { echo "not shown: $class::$part"; failed=1; }
    done
    # A nested class is no part of what is shown: "Class::member(" or "Class::member", and what the compiler adds.
    strays=$(grep -vE "^((non-virtual|virtual) thunk to )?$class::~?[A-Za-z_0-9]+(\(.*)?$|^(vtable|typeinfo|typeinfo name) for $class$" <<<"$strays" || true)
done
[ -z "$strays" ] || { echo "shown, but of no class of the list:"; echo "$strays"; failed=1; }
exit $failed
