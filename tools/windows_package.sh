#!/usr/bin/env bash
# Makes archive and installer of a Windows build; the build's target `windows_package` calls it. The same commit gives the same
# bytes: no times, users or order of folders of this machine.
#     tools/windows_package.sh BUILD NAME VERSION ID x86_64|i686
set -euo pipefail
build=$1 name=$2 version=$3 id=$4
case $5 in
x86_64) target=amd64-unicode ;;
*) target=x86-unicode ;;
esac
cd "$(dirname "$0")/.."
export LC_ALL=C TZ=UTC
# In unpacked sources the files have the commit's time.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)}
export SOURCE_DATE_EPOCH

stage=$build/stage/$name
lists=$build/stage/lists
rm -rf "$build/stage" "$build/$name.zip"
mkdir -p "$lists"
cmake --install "$build" --prefix "$stage" >/dev/null
find "$stage" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
chmod -R u=rwX,go=rX "$stage"

(cd "$build/stage" && find "$name" -type f | sort | zip -q -X -@ "../$name.zip")

# Every file by name, so that the uninstaller removes those and no others.
find "$stage" -type f -printf '%P\n' | sort | while read -r file; do
    windowsFile=${file//\//\\}
    folder=${windowsFile%"${windowsFile##*\\}"}
    printf 'SetOutPath "$INSTDIR\\%s"\nFile "%s"\n' "${folder%\\}" "$stage/$file"
    printf 'Delete "$INSTDIR\\%s"\n' "$windowsFile" >&3
done >"$lists/install.nsh" 3>"$lists/uninstall.nsh"
find "$stage" -mindepth 1 -type d -printf '%P\n' | sort -r |
    sed 's|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|' >>"$lists/uninstall.nsh"
echo 'SetOutPath "$INSTDIR"' >>"$lists/install.nsh" # where the shortcut starts the program
makensis -V2 -DTARGET=$target -DID="$id" -DVERSION="$version" -DPUBLISHER="The Tervalis developers" -DLISTS="$lists" \
    -DOUTPUT="$build/$name-setup.exe" -DSIZE_K="$(du -sk --apparent-size "$stage" | cut -f1)" packaging/tervalis.nsi
