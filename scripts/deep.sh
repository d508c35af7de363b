# Sourced by ./test: the steps that take minutes, each with a build of its own under build/.
# shellcheck shell=bash

# Built objects are kept where that can be.
use_ccache() {
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
}

# build_sanitized TARGET...
build_sanitized() {
    install_missing "${packages_for_deep[@]}"
    use_ccache
    cmake --preset sanitize >/dev/null
    cmake --build build/sanitize --target "$@"
}

# The whole suite, windows and tour too. A program at a time, so that leaks are looked for once in each.
check_sanitized() {
    say "Sanitizers"
    build_sanitized all
    local bin=build/sanitize/bin
    export QT_QPA_PLATFORM=offscreen
    export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1
    export UBSAN_OPTIONS=print_stacktrace=1
    # shellcheck disable=SC2016 # the shell that xargs starts is to see these
    find "$bin" -name '*_test' | sort | xargs -P "$(nproc)" -I{} sh -c \
        '"$1" --gtest_brief=1 >"$1.log" 2>&1 || { cat "$1.log"; exit 255; }; echo "$1 passes"' sh {}
    "$bin/gfc-tour" build/sanitize/tour >build/sanitize/tour.log 2>&1 || { tail -n 60 build/sanitize/tour.log; return 1; }
    echo "gfc-tour passes"
}

# Every fuzzer for some seconds from the kept corpus, under the sanitizers; a finding ends it and leaves its bytes.
check_fuzz() {
    local seconds=${1:-15}
    say "Fuzzers, $seconds s each"
    build_sanitized fuzzers
    # Each target has a folder of its name.
    find tests/fuzz/corpus -mindepth 1 -maxdepth 1 -type d -printf '%f\n' | sort |
        xargs -P "$(nproc)" -I{} scripts/fuzz build/sanitize {} -max_total_time="$seconds"
}

# What the tests do not reach below the window: lines, and both outcomes of every condition.
check_coverage() {
    say "Coverage"
    install_missing "${packages_for_deep[@]}"
    use_ccache
    cmake --preset coverage >/dev/null
    cmake --build --preset coverage
    scripts/coverage build/coverage
}
