#!/usr/bin/env bash
# Installs what is missing and builds the home page with the game for the browser into build/web, which any web server can
# serve, under any path.
#
#     web.sh              builds
#     web.sh serve        builds and serves it to this machine alone, for trying: http://127.0.0.1:8000
#     web.sh test         builds and plays it in Chromium
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

# shellcheck disable=SC2086
install_packages $WEB_PACKAGES
tools/fetch_sources.sh libjpeg-turbo highway libsdl2 freetype

# build TERVALIS_TESTS
build() {
    # For a node that is not Debian's own.
    export NODE_PATH=/usr/share/nodejs
    cmake --preset wasm "-DTERVALIS_TESTS=$1" >/dev/null
    cmake --build --preset wasm
    add_downloads
    say "The home page with the game: build/web"
}

# What release.sh has left, beside the page, which links it.
add_downloads() {
    local names
    rm -rf build/web/downloads
    mkdir -p build/release-files
    cp -r build/release-files build/web/downloads
    names=$(cd build/web/downloads && find . -type f -printf '%f;')
    cmake -DFOLDER=build/web/downloads "-DNAMES=$names" -P cmake/list_files.cmake
}

# What the page must show, by the desktop's program with the page's font.
make_desktop_pictures() {
    cmake --preset release >/dev/null
    cmake --build --preset release --target tour
    FONTCONFIG_FILE=$PWD/tests/web/fonts.conf build/release/tour tests/web/game.txt build/wasm/desktop
}

case ${1:-} in
serve)
    build OFF
    python3 -m http.server --bind 127.0.0.1 --directory build/web 8000
    ;;
test)
    # shellcheck disable=SC2086
    install_packages $BUILD_PACKAGES $WEB_TEST_PACKAGES
    build ON
    make_desktop_pictures
    xvfb-run -a -s "-screen 0 1280x1024x24" /usr/bin/python3 tests/web/play.py build/web build/wasm
    ;;
*)
    build OFF
    ;;
esac
