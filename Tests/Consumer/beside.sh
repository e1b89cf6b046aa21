#!/usr/bin/env bash
# beside.sh BUILD5 BUILD6 FOLDER: installs the builds for Qt 5 and Qt 6 into one prefix, below FOLDER, then builds the program
# in this folder with each of them. Exits with 77 if there is no build for Qt 5.
set -euo pipefail
folder=$3
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export QT_QPA_PLATFORM=offscreen
CMAKE_CXX_COMPILER_LAUNCHER=$(command -v ccache || true)
export CMAKE_CXX_COMPILER_LAUNCHER
unset DESTDIR LD_LIBRARY_PATH CMAKE_PREFIX_PATH

fail() { printf '%s\n' "$*"; exit 1; }

# configure PREFIX NAME PACKAGE ...: configures the program with packages of which it uses the last.
configure() {
    local build=$folder/$2
    cmake -S "$here" -B "$build" -G Ninja -DCMAKE_PREFIX_PATH="$1" -DVX_PACKAGE="$3" "${@:4}" >"$build.log" 2>&1
}

# uses_only VERSION TAG: fails unless the program for this version of Qt builds, runs and links it alone.
uses_only() {
    configure "$folder/both" "qt$1" "VxUiWidgets$2" && cmake --build "$folder/qt$1" >>"$folder/qt$1.log" 2>&1 ||
        fail "$(cat "$folder/qt$1.log")"
    "$folder/qt$1/consumer" || fail "the program for Qt $1 failed"
    [ "$(ldd "$folder/qt$1/consumer" | grep -oE 'libQt[0-9]' | sort -u)" = "libQt$1" ] ||
        fail "the program for Qt $1 links: $(ldd "$folder/qt$1/consumer")"
}

[ -x "$1/bin/VxRecorder" ] || { echo "skipped: $1 contains no build for Qt 5"; exit 77; }
rm -rf "$folder"
mkdir -p "$folder"
for version in 5 6; do
    build=$1
    shift
    for component in runtime development tools; do
        cmake --install "$build" --component "$component" --prefix "$folder/qt$version-alone" >/dev/null
    done
    (cd "$folder/qt$version-alone" && find . -not -type d | sort) >"$folder/files$version"
    cp -r "$folder/qt$version-alone/." "$folder/both"
done
overwritten=$(comm -12 "$folder/files5" "$folder/files6")
[ -z "$overwritten" ] || fail "installed by both: $overwritten"

uses_only 5 ''
uses_only 6 -qt6
for pair in "5 VxUiWidgets-qt6" "6 VxUiWidgets"; do
    read -r version package <<<"$pair"
    ! configure "$folder/qt$version-alone" "not-$version" "$package" || fail "$package was found, but only that for Qt $version is installed"
done
echo 'find_package(VxUiWidgets-qt6 REQUIRED)' >"$folder/FindOther.cmake"
! configure "$folder/both" mixed VxUiWidgets -DCMAKE_PROJECT_INCLUDE="$folder/FindOther.cmake" || fail "one program uses both"
grep -q "another version of Qt was found before" "$folder/mixed.log" || fail "$(cat "$folder/mixed.log")"
