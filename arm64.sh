#!/usr/bin/env bash
# Installs what is missing, builds for 64-bit ARM and runs the unit tests and those of the platform layer under QEMU, on a
# processor without and on one with scalable vectors. No ARM machine is needed, and the system's own packages stay apart.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

SYSTEM=build/arm64-system # the libraries to link with
TOOLS=build/arm64-tools   # the cross compiler, which as a package would drive out the one for -m32
LIBRARIES=libsdl2-dev,libfreetype-dev,libfontconfig-dev,libturbojpeg0-dev,libtomlplusplus-dev,libpng-dev,libhwy-dev,libgtest-dev
TOO_SLOW='*KilledAtAnyMoment*:*/one_player:*/two_players:*/laser_on_gold' # under emulation

# unpack ARCHITECTURE PACKAGES FOLDER
unpack() {
    [ ! -d "$3" ] || return 0
    say "Unpacking $2 into $3"
    # shellcheck disable=SC1091
    mmdebstrap --quiet --variant=extract --architectures="$1" --include="$2" \
        "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$3.part"
    mv "$3.part" "$3"
}

# shellcheck disable=SC2086
install_packages $ARM64_PACKAGES
mkdir -p build
unpack arm64 "$LIBRARIES" "$SYSTEM"
unpack "$(dpkg --print-architecture)" g++-aarch64-linux-gnu "$TOOLS"
cmake --preset arm64 >/dev/null
cmake --build --preset arm64

# run_tests PROCESSOR
run_tests() {
    local log=build/arm64/tests-$1.log
    if QEMU_CPU=$1 qemu-aarch64 -L "$SYSTEM" build/arm64/tests/unit_tests --gtest_brief=1 --gtest_filter="-$TOO_SLOW" >"$log" 2>&1 &&
        QEMU_CPU=$1 qemu-aarch64 -L "$SYSTEM" build/arm64/tests/platform_tests --gtest_brief=1 >>"$log" 2>&1; then
        say "The tests pass on $1."
    else
        cat "$log"
        return 1
    fi
}
run_tests max,sve=off &
run_tests max
wait $!
