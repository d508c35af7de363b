# Sourced by whatever builds: brings in what a fresh Debian 12 lacks, and builds.
# shellcheck shell=bash

say() { printf '\n== %s\n' "$*"; }

packages_for_program=(
    clang cmake ninja-build
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 fontconfig fonts-dejavu-core
    libsqlite3-dev libcli11-dev libcsv-dev nlohmann-json3-dev nettle-dev zlib1g-dev
)
packages_for_checks=(libgtest-dev libgmock-dev clang-format)
packages_for_package=(dpkg-dev file lintian desktop-file-utils appstream xvfb xdotool)
packages_for_newcomer=(imagemagick libglib2.0-bin openbox passwd util-linux)
# And the compiler of the width. Making the kit takes dpkg-dev and tcl, packing icoutils, nsis and zip.
packages_for_windows=(
    wine wine64 fonts-wine libc6-i386 googletest dpkg-dev make tcl xvfb xdotool fonts-dejavu-core icoutils nsis zip
)
packages_for_deep=(g++ libclang-rt-14-dev llvm mold python3 binutils)

# The peers of the contests, and what runs those.
packages_for_bench=(libbenchmark-dev pkg-config libsimpleini-dev libinih-dev libboost-dev libglib2.0-dev)

# install_missing PACKAGE...: asks for root only if something has to be installed.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing: ${missing[*]}"
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Please install as root: ${missing[*]}" >&2; return 1; }
        root=(sudo)
    fi
    # An index that cannot be had, of an architecture or a source that nobody needs here, is no reason to stop: whether
    # the packages can be installed shows when they are.
    "${root[@]}" apt-get update -qq || echo "Not every index of packages could be fetched; going on" >&2
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build TARGET...: everything if no target is named.
build() {
    [ -f build/build.ninja ] || cmake --preset default >/dev/null
    if [ $# -eq 0 ]; then
        cmake --build build
    else
        cmake --build build --target "$@"
    fi
}
