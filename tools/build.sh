# What the commands share. To be sourced with `root` set to the top of the tree.

step() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# build PRESET [TARGET ...]: installs what is missing and builds; quiet unless something goes wrong. Of the Windows build
# it leaves in `sdk` where its libraries are.
build() {
    local preset=$1 needs=() settings=()
    shift
    sdk=
    [ "$preset" != windows ] || needs=(--windows)
    step "Looking for what the build needs"
    "$root/tools/install-deps" "${needs[@]}" || fail "cannot go on without the packages named above"
    if [ "$preset" = windows ]; then
        "$root/tools/windows/build-sdk" || fail "cannot go on without the libraries for Windows"
        sdk=$("$root/tools/windows/build-sdk" --where)
        settings=("-DVX_WINDOWS_SDK=$sdk")
    fi
    local log="$root/build/$preset.log"
    mkdir -p "$root/build"
    step "Configuring build/$preset"
    (cd "$root" && cmake --preset "$preset" "${settings[@]}") >"$log" 2>&1 || {
        tail -n 30 "$log"
        fail "configuring failed; the whole output is in build/$preset.log"
    }
    step "Building build/$preset"
    cmake --build "$root/build/$preset" ${*:+--target "$@"} >"$log" 2>&1 || {
        grep -E -A12 'error|warning|FAILED' "$log" | head -n 60
        fail "building failed; the whole output is in build/$preset.log"
    }
}
