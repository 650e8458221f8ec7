#!/usr/bin/env bash
# fetch_sources.sh PACKAGE...: puts the sources of libraries that are linked in into build/sources, from Debian's source
# packages; the system's own package lists stay as they are.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh

packages=$*
target=$PWD/build/sources
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# The lists of source packages from wherever the binary packages come from.
prepare_lists() {
    mkdir -p "$scratch/parts" "$scratch/lists/partial" "$scratch/cache/archives/partial"
    local file
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -f "$file" ] && sed -n 's/^deb /deb-src /p' "$file" >"$scratch/parts/$(basename "${file%.list}").list"
    done
    for file in /etc/apt/sources.list.d/*.sources; do
        [ -f "$file" ] && sed 's/^Types:.*/Types: deb-src/' "$file" >"$scratch/parts/$(basename "$file")"
    done
    apt_get update -q >/dev/null
}

apt_get() {
    apt-get -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$scratch/parts" \
        -o Dir::State::Lists="$scratch/lists" -o Dir::Cache="$scratch/cache" -o APT::Sandbox::User=root "$@"
}

# fetch PACKAGE: its unpacked, patched sources as $target/PACKAGE.
fetch() {
    mkdir "$scratch/$1"
    (cd "$scratch/$1" && apt_get source -q "$1" >/dev/null 2>&1)
    mkdir -p "$target"
    mv "$scratch/$1/$1"-*/ "$target/$1"
}

missing=""
for package in $packages; do
    [ -d "$target/$package" ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0
if ! command -v apt-get >/dev/null; then
    say "This is no Debian relative: put the sources of$missing into build/sources, each in a folder of that name."
    exit 1
fi
say "Fetching the sources of$missing"
prepare_lists
for package in $missing; do
    fetch "$package"
done
