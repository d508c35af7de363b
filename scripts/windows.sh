# Sourced by ./test: the Windows form, built on Debian on what scripts/windows-kit makes, and tried under Wine.
# shellcheck shell=bash

# Of MACHINE FORM; of the form "core" what needs no Qt.
windows_preset() {
    case $1-$2 in
    i686-whole) echo windows ;;
    i686-core) echo windows-core ;;
    x86_64-whole) echo windows64 ;;
    x86_64-core) echo windows64-core ;;
    *) echo "There is no such form: $1 $2" >&2; return 2 ;;
    esac
}

# Of the form "core": the layers whose tests are about Windows more than about forms.
windows_layers=(services platform naming config project binding suggest audit record drafts plan)

windows_parts() {
    echo libraries
    [ "$2" = core ] || echo qt
    [ "$1" = x86_64 ] || echo wine
}

# install_windows MACHINE
install_windows() {
    install_missing "${packages_for_checks[@]}" "${packages_for_windows[@]}" "g++-mingw-w64-${1/_/-}-posix"
}

# make_windows_kit MACHINE FORM: for most, a look at what was made long ago.
make_windows_kit() {
    install_windows "$1"
    # shellcheck disable=SC2046 # words are wanted
    scripts/windows-kit make "$1" $(windows_parts "$1" "$2")
}

# build_windows MACHINE FORM
build_windows() {
    local preset parts
    preset=$(windows_preset "$1" "$2")
    mapfile -t parts < <(windows_parts "$1" "$2")
    say "Windows, $1: build"
    GFC_WINDOWS_ROOTS=$(scripts/windows-kit roots "$1" "${parts[@]}") cmake --preset "$preset" >/dev/null
    if [ "$2" = core ]; then
        cmake --build "build/$preset" --target "${windows_layers[@]/%/_test}"
    else
        cmake --build "build/$preset"
    fi
}

# A screen of its own for as long as the shell lives; open_windows_screen [SIZE].
open_windows_screen() {
    local number
    exec {number}< <(exec Xvfb -displayfd 1 -screen 0 "${1:-1920x1200}x24" -nolisten tcp 2>/dev/null)
    windows_screen=$!
    trap 'kill "$windows_screen" 2>/dev/null' EXIT
    read -r -t 30 DISPLAY <&"$number" || { echo "no virtual screen" >&2; return 1; }
    export DISPLAY=:$DISPLAY
}

# in_real_windows MACHINE PREFIX PERCENT PROGRAM [ARGUMENT...]: on the platform "windows", scaled so. With a screen and a
# Windows of its own, since two programs on one screen would take the focus from each other.
in_real_windows() (
    open_windows_screen "$((1920 * $3 / 100))x$((1200 * $3 / 100))"
    scripts/windows-run "$1" "$2" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD \
        /d $((96 * $3 / 100)) /f >/dev/null
    QT_QPA_PLATFORM=windows scripts/windows-run "$1" "$2" "${@:4}"
)

# The suite as it is, with windows in memory; ctest starts each program by scripts/windows-run.
run_windows_tests() {
    say "Windows, $1: tests"
    local layers=()
    [ "$2" = whole ] || layers=(-R "^($(IFS='|'; echo "${windows_layers[*]}"))[.]")
    QT_QPA_PLATFORM=offscreen ctest --test-dir "build/$(windows_preset "$1" "$2")" --output-on-failure --no-tests=error -j "$(nproc)" \
        "${layers[@]}"
}

# tour_windows MACHINE PERCENT: the same program in its real windows, from splash to exit.
tour_windows() {
    local build name=tour-$2
    build=build/$(windows_preset "$1" whole)
    in_real_windows "$1" "$build/wine-$name" "$2" "$build/bin/gfc-tour.exe" "$build/$name" >"$build/$name.log" 2>&1 ||
        { tail -n 60 "$build/$name.log"; return 1; }
    printf 'At %s %%: ' "$2"
    grep ' pictures in ' "$build/$name.log"
}

# play_windows MACHINE PART PARTS: that part of the ways through the whole program, in its real windows.
play_windows() {
    local build name=play-$2
    build=build/$(windows_preset "$1" whole)
    GTEST_TOTAL_SHARDS=$3 GTEST_SHARD_INDEX=$2 in_real_windows "$1" "$build/wine-$name" 100 "$build/bin/qt_test.exe" \
        '--gtest_filter=*InWindows*' >"$build/$name.log" 2>&1 ||
        { grep -aE -A 8 'FAILED  \]|Failure' "$build/$name.log" | head -n 60; return 1; }
    grep -a 'PASSED' "$build/$name.log"
}

# Side by side: what they do most of the time is to wait for each other's windows.
run_in_windows() {
    local part started=() failed=
    say "Windows, $1: tour and scenarios in real windows"
    tour_windows "$1" 100 & started+=($!)
    tour_windows "$1" 200 & started+=($!)
    for part in 0 1 2; do
        play_windows "$1" "$part" 3 & started+=($!)
    done
    for part in "${started[@]}"; do
        wait "$part" || failed=yes
    done
    [ -z "$failed" ]
}

# check_windows MACHINE FORM
check_windows() {
    make_windows_kit "$1" "$2"
    build_windows "$1" "$2"
    open_windows_screen
    run_windows_tests "$1" "$2"
    [ "$2" = whole ] || return 0
    run_in_windows "$1"
    say "Windows, $1: setup"
    packaging/windows/check "$1" "build/$(windows_preset "$1" "$2")"
}
