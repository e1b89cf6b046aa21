#!/usr/bin/env bash
# run.sh installed|packages|zip BUILD FOLDER: installs the build into FOLDER and moves it, or unpacks its Debian packages or
# its zip there, then builds and runs the program in this folder against the result, with CMake and with pkg-config.
set -euo pipefail
mode=$1
build=$2
folder=$3
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source=$(cd "$here/../.." && pwd)
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=$folder/runtime
CMAKE_CXX_COMPILER_LAUNCHER=$(command -v ccache || true)
export CMAKE_CXX_COMPILER_LAUNCHER
unset DESTDIR LD_LIBRARY_PATH CMAKE_PREFIX_PATH PKG_CONFIG_PATH

cache() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }

# The names for Qt 5, and for Qt 6 installed beside it.
if [ "$(cache VX_QT_VERSION)" = 5 ]; then
    qt=5 tag='' runtime=libvxuiwidgets1 other_qt=6
else
    qt=6 tag=-qt6 runtime=libvxuiwidgets-qt6-1 other_qt=5
fi
# CMake settings of the program, and its launcher.
settings=(-DVX_PACKAGE="VxUiWidgets$tag")
start=()
exe=

fail() { printf '%s\n' "$*"; exit 1; }

install_and_move() {
    for component in runtime development tools; do
        cmake --install "$build" --component "$component" --prefix "$folder/staged" --strip >/dev/null
    done
    mkdir "$folder/elsewhere"
    mv "$folder/staged" "$folder/elsewhere/moved"
    prefix=$folder/elsewhere/moved
    cmake --install "$build" --component Unspecified --prefix "$folder/staged" >/dev/null
    [ -z "$(find "$folder/staged" 2>/dev/null)" ] || fail "belongs to no component: $(find "$folder/staged" -type f)"
}

# need PACKAGE PATTERN: fails if PACKAGE has no dependency that matches PATTERN.
need() {
    dpkg-deb --field "$folder"/packages/"$1"_*.deb Depends | grep -qE "(^|, )$2" || fail "$1 does not depend on $2"
}

pack_and_unpack() {
    cpack -G DEB --config "$build/CPackConfig.cmake" -B "$folder/packages" -D CPACK_DEBIAN_COMPRESSION_TYPE=none \
        >"$folder/cpack.log" 2>&1 ||
        fail "$(tail -n 30 "$folder/cpack.log")"
    for package in "$folder"/packages/*.deb; do
        # dpkg refuses a file that belongs to two packages.
        both=$(comm -12 <(dpkg-deb --fsys-tarfile "$package" | tar -t | grep -v '/$' | sort) \
            <(cd "$folder" && find ./root -not -type d 2>/dev/null | sed 's|^\./root|.|' | sort))
        [ -z "$both" ] || fail "in two packages: $both"
        dpkg-deb --extract "$package" "$folder/root"
    done
    prefix=$folder/root/usr
    need "$runtime" "libqt${qt}widgets$qt \\(>="
    need "libvxuiwidgets$tag-dev" "$runtime \\(="
    need "vxuiwidgets$tag-tools" "$runtime \\(="
    "$here/notices.sh" packages "$source" "$folder/root" || fail "the packages lack notices"
}

unzip_and_go_to_wine() {
    cpack -G ZIP --config "$build/CPackConfig.cmake" -B "$folder/packages" >"$folder/cpack.log" 2>&1 ||
        fail "$(tail -n 30 "$folder/cpack.log")"
    mkdir "$folder/some where"
    (cd "$folder/some where" && cmake -E tar xf "$folder"/packages/*.zip)
    prefix=$(echo "$folder/some where"/*)
    settings+=(-DCMAKE_TOOLCHAIN_FILE="$source/cmake/VxWindowsToolchain.cmake" -DVX_WINDOWS_SDK="$(cache VX_WINDOWS_SDK)")
    "$here/notices.sh" zip "$source" "$prefix" || fail "the zip lacks notices"
    # Use libraries and plugins of the zip only.
    start=("$source/tools/windows/in-wine" "$prefix")
    exe=.exe
}

# runs_from_here FILE: fails if a program or library loads our libraries from elsewhere, or the other Qt.
runs_from_here() {
    local found
    found=$(ldd "$1")
    ! grep -q 'not found' <<<"$found" || fail "$1 does not find: $found"
    ! grep "libQt$other_qt" <<<"$found" || fail "$1 links Qt $other_qt"
    grep -q "libVxUiWidgets$tag.so.1 => $prefix/" <<<"$found" || fail "$1 takes the library from elsewhere: $found"
}

look_at_files() {
    ! grep -rIlF -e "$build" -e "$source" -e "$folder" "$prefix" || fail "these name a folder of the build"
    # Exactly one header per exported class.
    diff <(sed -n 's/^vtable for .*:://p; s/^vtable for //p' "$source/Tests/exported-symbols$tag.txt" | sort) \
        <(cd "$prefix/include/VxUiWidgets$tag/UI/Widgets" && basename -s .h ./*.h | sort) ||
        fail "the installed widget headers are not those of the exported classes"
}

build_with_cmake() {
    cmake -S "$here" -B "$folder/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" "${settings[@]}" >"$folder/cmake.log" 2>&1 &&
        cmake --build "$folder/cmake" >>"$folder/cmake.log" 2>&1 || fail "$(cat "$folder/cmake.log")"
    [ "$mode" = zip ] || runs_from_here "$folder/cmake/consumer$exe"
    "${start[@]}" "$folder/cmake/consumer$exe" || fail "the program built with CMake failed"
}

build_with_pkg_config() {
    local libraries compile=(${CMAKE_CXX_COMPILER_LAUNCHER:+"$CMAKE_CXX_COMPILER_LAUNCHER"} g++ -std=c++17 -Wall -Wextra -Werror)
    libraries=$(dirname "$prefix"/lib/*/"libVxUiWidgets$tag.so.1")
    export PKG_CONFIG_PATH=$libraries/pkgconfig
    # shellcheck disable=SC2046 # pkg-config prints several words
    "${compile[@]}" -c "$here/main.cpp" $(pkg-config --cflags "VxUiWidgetsKit$tag") -o "$folder/main.o"
    # shellcheck disable=SC2046
    g++ "$folder/main.o" $(pkg-config --libs "VxUiWidgetsKit$tag") -o "$folder/consumer"
    LD_LIBRARY_PATH=$libraries "$folder/consumer" ||
        fail "the program built with pkg-config failed"
    # Each installed header compiles.
    (cd "$prefix/include/VxUiWidgets$tag" && find . -name '*.h' -printf '#include <%P>\n' | sort) >"$folder/headers.cpp"
    # shellcheck disable=SC2046
    "${compile[@]}" -c "$folder/headers.cpp" $(pkg-config --cflags "VxUiWidgetsKit$tag") -o "$folder/headers.o"
}

# take_picture PROGRAM [ARG ...]: fails if an installed program writes no picture of its window.
take_picture() {
    local program=$1
    shift
    "${start[@]}" "$prefix/bin/$program$tag$exe" --language de --style "$prefix/share/VxUiWidgets$tag/Styles/Light.qss" \
        --after 0 --shot "$folder/$program.png" "$@" || fail "$program does not run from $prefix"
    [ -s "$folder/$program.png" ] || fail "$program wrote no picture"
}

build_examples() {
    # The examples use only what is installed: built from a copy, they cannot find headers of the source tree.
    cp -r "$source/Examples" "$folder/Examples"
    cmake -S "$folder/Examples" -B "$folder/examples" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" \
        -DVX_QT_VERSION=$qt >"$folder/examples.log" 2>&1 &&
        cmake --build "$folder/examples" >>"$folder/examples.log" 2>&1 || fail "$(tail -n 40 "$folder/examples.log")"
    runs_from_here "$folder/examples/VxRecorder"
    "$folder/examples/VxRecorder" --style light --shot "$folder/recorder.png" --after 0 ||
        fail "the recorder does not run with the installed library"
    # A window without widgets or style sheet is a file of a few kilobytes.
    [ "$(stat -c %s "$folder/recorder.png")" -gt 10000 ] || fail "the recorder's picture is empty"
}

run_tools() {
    # Under Wine, Qt must find its plugins by the qt.conf of the zip.
    [ "$mode" != zip ] || export QT_PLUGIN_PATH='Z:\nowhere'
    take_picture VxGallery --page ColorButton
    take_picture VxRecorder
}

check_libraries() {
    runs_from_here "$prefix/bin/VxGallery$tag"
    runs_from_here "$prefix/bin/VxRecorder$tag"
    while read -r plugin; do
        runs_from_here "$plugin"
    done < <(find "$prefix/lib" -path '*/plugins/designer/*.so')
}

rm -rf "$folder"
mkdir -p "$folder"
mkdir -m 700 "$XDG_RUNTIME_DIR"
case $mode in
installed) install_and_move ;;
packages) pack_and_unpack ;;
zip) unzip_and_go_to_wine ;;
*) fail "run.sh installed|packages|zip BUILD FOLDER" ;;
esac
look_at_files
build_with_cmake
if [ "$mode" != zip ]; then
    build_with_pkg_config
    check_libraries
fi
run_tools
if [ "$mode" = installed ]; then
    build_examples
fi
