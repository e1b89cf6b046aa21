#!/usr/bin/env bash
# casts.sh TREE: fails on casts to and searches by kit classes in code that links both the library and the kit.
# The library contains its own copy of these classes, so that such a cast of a library's widget returns null. Use classes
# of Qt, exported classes, object names or properties instead.
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
[ -z "$found" ] || { echo "cast to or search by a kit class:"; echo "$found"; exit 1; }
