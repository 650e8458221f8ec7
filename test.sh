#!/usr/bin/env bash
# Installs what is missing, builds and runs all tests: as played, then with the sanitisers.
# A preset's name as argument (release, debug, asan) runs only that one.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

# These play against the clock, with a window manager: a second try tells a fault from a hiccup of the machine.
WINDOW_TESTS='^program\.window'

# shellcheck disable=SC2086
install_packages $BUILD_PACKAGES $TEST_PACKAGES
for preset in ${1:-release asan}; do
    cmake --preset "$preset" -DTERVALIS_TESTS=ON >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j "$(nproc)" -E "$WINDOW_TESTS"
    ctest --preset "$preset" -R "$WINDOW_TESTS" --repeat until-pass:2
done
