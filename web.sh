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
export NODE_PATH=/usr/share/nodejs # for a node that is not Debian's own
cmake --preset wasm >/dev/null
cmake --build --preset wasm
say "The home page with the game: build/web"

case ${1:-} in
serve)
    python3 -m http.server --bind 127.0.0.1 --directory build/web 8000
    ;;
test)
    # shellcheck disable=SC2086
    install_packages $WEB_TEST_PACKAGES
    xvfb-run -a -s "-screen 0 1280x1024x24" /usr/bin/python3 tests/web/play.py build/web build/wasm
    ;;
esac
