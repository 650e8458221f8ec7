#!/usr/bin/env bash
# Installs what is missing, builds the game and starts it. Without a display it plays a scripted game off-screen
# instead and leaves screenshots.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

# shellcheck disable=SC2086
install_packages $BUILD_PACKAGES
cmake --preset release -DTERVALIS_TESTS=OFF >/dev/null
cmake --build --preset release

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/tervalis
fi
shots=build/screenshots
say "There is no display here: playing a scripted game off-screen instead."
build/release/tour tools/tour.txt "$shots"
say "Screenshots of it are in $shots."
