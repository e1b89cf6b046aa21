# Functions shared by the commands. Source it with `root` set to the top of the tree.

step() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# build PRESET [TARGET ...]: installs missing packages and builds; prints the log only on failure. For the preset windows
# it sets `sdk` to the prefix of the SDK.
build() {
    local preset=$1 needs=() settings=()
    shift
    sdk=
    case $preset in
    windows) needs=(--windows) ;;
    *-qt6) needs=(--qt6) ;;
    esac
    step "Checking for required packages"
    "$root/tools/install-deps" "${needs[@]}" || fail "required packages are missing, see above"
    if [ "$preset" = windows ]; then
        "$root/tools/windows/build-sdk" || fail "the Windows SDK could not be built, see above"
        sdk=$("$root/tools/windows/build-sdk" --where)
        settings=("-DVX_WINDOWS_SDK=$sdk")
    fi
    local log="$root/build/$preset.log"
    mkdir -p "$root/build"
    step "Configuring build/$preset"
    (cd "$root" && cmake --preset "$preset" "${settings[@]}") >"$log" 2>&1 || {
        tail -n 30 "$log"
        fail "configuring failed; see build/$preset.log for the whole output"
    }
    step "Building build/$preset"
    cmake --build "$root/build/$preset" ${*:+--target "$@"} >"$log" 2>&1 || {
        grep -E -A12 'error|warning|FAILED' "$log" | head -n 60
        fail "the build failed; see build/$preset.log for the whole output"
    }
}
