#!/usr/bin/env bash
# Builds a release of the last commit twice, in two folders, by two users, at two dates, in two time zones and locales,
# and compares all its files byte by byte. Only root can build as somebody else.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh

# shellcheck disable=SC2086
install_packages $BUILD_PACKAGES $DEBIAN_PACKAGES $WINDOWS_PACKAGES faketime
tools/fetch_sources.sh libjpeg-turbo highway
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
chmod 755 "$scratch"

# build FOLDER USER COMMAND...: in a clone of that user's own, by way of the command.
build() {
    local clone=$scratch/$1
    git clone -q . "$clone"
    mkdir "$clone/build"
    cp -r build/sources "$clone/build/"
    chown -R "$2" "$clone"
    (cd "$clone" && setpriv --reuid="$2" --clear-groups env HOME="$clone" TMPDIR="$clone" "${@:3}" ./release.sh)
}
build one root TZ=UTC LC_ALL=C
build two nobody TZ=Asia/Tokyo LC_ALL=C.UTF-8 faketime -f +300d
diff -r "$scratch"/{one,two}/build/release-files
say "Both builds gave the same files."
