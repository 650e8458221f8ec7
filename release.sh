#!/usr/bin/env bash
# Builds everything that a release of the last commit consists of into build/release-files, with SHA-256 sums: sources,
# Debian package, and for Windows of 64 and of 32 bits an archive and an installer. CHANGELOG.md names the version.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh

files=$PWD/build/release-files
if [ -n "$(git status --porcelain)" ]; then
    say "There are changes that no commit has; a release is made of a commit."
    exit 1
fi
# shellcheck disable=SC2086
install_packages $BUILD_PACKAGES $DEBIAN_PACKAGES
rm -rf "$files"
mkdir -p "$files"
version=$(sed -n 's/^## \[\([0-9.]*\)\].*/\1/p' CHANGELOG.md | head -1)
git archive --prefix="tervalis-$version/" HEAD | gzip -9n >"$files/tervalis-$version.tar.gz"
tools/debian_package.sh "$files"
./windows.sh build
cp build/windows*/Tervalis-*.zip build/windows*/Tervalis-*-setup.exe "$files/"
(cd "$files" && sha256sum -- * >SHA256SUMS)
say "The release is in $files."
