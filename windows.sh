#!/usr/bin/env bash
# Installs what is missing, builds the Windows program, of 32 and of 64 bits, into archives and installers, and runs the
# tests of the one of 64 bits under Wine. With `build` as argument it only builds.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

# shellcheck disable=SC2086
install_packages $WINDOWS_PACKAGES
tools/fetch_sources.sh libjpeg-turbo highway
for preset in windows32 windows; do
    cmake --preset "$preset" >/dev/null
    rm -f build/"$preset"/Tervalis-* # of earlier versions
    cmake --build --preset "$preset" --target windows_package
    say "The program: $(ls build/"$preset"/Tervalis-*.zip build/"$preset"/Tervalis-*-setup.exe)"
done

[ "${1-}" != build ] || exit 0
# shellcheck disable=SC2086
install_packages $WINE_PACKAGES || say "Wine cannot be installed."
if ! command -v wine >/dev/null; then
    say "There is no Wine here: the Windows program was built, but neither it nor its tests were run."
    exit 0
fi
cmake --build --preset windows
xvfb-run -a -s "-screen 0 1280x1024x24" ctest --preset windows # a window is part of each recorded run
