#!/usr/bin/env bash
# Installs what is missing, builds and runs all tests: as played, then with the sanitisers; the mixer's and a session
# that it sounds in also with that for threads.
# A preset's name as argument (release, debug, asan) runs only that one.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

# shellcheck disable=SC2086
install_packages $BUILD_PACKAGES $TEST_PACKAGES
for preset in ${1:-release asan}; do
    cmake --preset "$preset" -DTERVALIS_TESTS=ON >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j "$(nproc)"
done
if [ $# -eq 0 ]; then
    cmake --preset tsan >/dev/null
    cmake --build --preset tsan
    build/tsan/tests/mixer_tests --gtest_brief=1
    build/tsan/tour tests/program/sounds_tour.txt build/tsan/tour_pictures
fi
