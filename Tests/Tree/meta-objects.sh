#!/usr/bin/env bash
# meta-objects.sh PRINTER LIST [--write]: compares what PRINTER says about the meta-objects of the exported classes with LIST,
# on which applications depend. It is the same for each version of Qt. With --write it rewrites LIST.
set -euo pipefail
list=$2
printed=$("$1")
if [ "${3:-}" = --write ]; then
    printf '%s\n' "$printed" >"$list"
    exit
fi
diff "$list" - <<<"$printed" || {
    echo "If this is intended, build the target meta-objects and commit ${list##*/}."
    exit 1
}
