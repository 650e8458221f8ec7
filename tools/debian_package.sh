#!/usr/bin/env bash
# Makes the Debian package of the last commit:
#     tools/debian_package.sh FOLDER_TO_PUT_IT_INTO
set -euo pipefail
target=$(realpath "$1")
cd "$(dirname "$0")/.."

source=$PWD/build/debian/tervalis
rm -rf build/debian
mkdir -p "$source"
git archive HEAD | tar -x -C "$source"
cp -r "$source/packaging/debian" "$source/debian"
cp "$source/.reuse/dep5" "$source/debian/copyright"
"$source/tools/changelog" debian >"$source/debian/changelog"
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH DEB_BUILD_OPTIONS=noautodbgsym
(cd "$source" && dpkg-buildpackage -b -us -uc >../log 2>&1) || {
    cat build/debian/log >&2
    exit 1
}
mv build/debian/tervalis_*.deb "$target/"
