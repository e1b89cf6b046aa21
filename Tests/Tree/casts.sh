#!/usr/bin/env bash
# casts.sh TREE: fails on a cast or a search by a class of the kit in what links both the library and the kit.
# Each of the two has a copy of these classes, and a widget that comes out of the library is of the library's copy: such a
# cast or search finds nothing. Classes of Qt, exported classes, object names and properties work across the edge.
set -euo pipefail
cd "$1"
folders=(Catalogue Examples Gallery Designer Tests/Consumer)

classes=$(sed -nE 's/^class ([A-Za-z]+)( final)? : .*/\1/p' Lib/UI/Kit/*.h Lib/UI/Kit/*/*.h | sort -u | paste -sd'|')
[ -n "$classes" ] || { echo "no classes in Lib/UI/Kit"; exit 1; }
for folder in "${folders[@]}"; do
    [ -d "$folder" ] || { echo "no folder $folder"; exit 1; }
done
found=$(grep -rnE "(qobject_cast|dynamic_cast|findChild|findChildren|qFindChild) *<(const )?(::)?($classes) *(const)? *\*" \
    --include='*.h' --include='*.cpp' "${folders[@]}" || true)
[ -z "$found" ] || { echo "cast or search by a class of the kit:"; echo "$found"; exit 1; }
