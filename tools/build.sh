# Functions shared by the commands. Source it with `root` set to the top of the tree.

step() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# progress LOG: writes the output of ninja to LOG and prints how far it is: in one line on a terminal, otherwise at each
# tenth.
progress() {
    local line percent tenth=0
    while IFS= read -r line; do
        printf '%s\n' "$line" >&3
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        percent=$((100 * BASH_REMATCH[1] / BASH_REMATCH[2]))
        if [ -t 1 ]; then
            printf '\r   %3d %%  %d:%02d ' "$percent" $((SECONDS / 60)) $((SECONDS % 60))
        elif ((percent / 10 > tenth)); then
            tenth=$((percent / 10))
            printf '   %d %%\n' "$percent"
        fi
    done 3>"$1"
    [ ! -t 1 ] || printf '\n'
}

# build PRESET [TARGET ...]: installs missing packages and builds; prints the log only on failure. With targets it installs
# no packages for tests. For the preset windows it sets `sdk` to the prefix of the SDK.
build() {
    local preset=$1 needs=() settings=()
    shift
    [ $# = 0 ] || needs=(--run)
    sdk=
    case $preset in
    windows) needs+=(--windows) ;;
    *-qt6) needs+=(--qt6) ;;
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
    SECONDS=0
    cmake --build "$root/build/$preset" ${*:+--target "$@"} 2>&1 | progress "$log" || {
        grep -E -A12 'error|warning|FAILED' "$log" | head -n 60
        fail "the build failed; see build/$preset.log for the whole output"
    }
}
