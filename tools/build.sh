# What the commands share. To be sourced with `root` set to the top of the tree.

step() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# build PRESET [TARGET ...]: installs what is missing and builds; quiet unless something goes wrong.
build() {
    local preset=$1
    shift
    step "Looking for what the build needs"
    "$root/tools/install-deps" || fail "cannot go on without the packages named above"
    local log="$root/build/$preset.log"
    mkdir -p "$root/build"
    step "Configuring build/$preset"
    (cd "$root" && cmake --preset "$preset") >"$log" 2>&1 || {
        tail -n 30 "$log"
        fail "configuring failed; the whole output is in build/$preset.log"
    }
    step "Building build/$preset"
    cmake --build "$root/build/$preset" ${*:+--target "$@"} >"$log" 2>&1 || {
        grep -E -A12 'error|warning|FAILED' "$log" | head -n 60
        fail "building failed; the whole output is in build/$preset.log"
    }
}
