# Sourced by play.sh, test.sh, windows.sh, arm64.sh, web.sh and .ci/run: installs Debian packages that are missing.

BUILD_PACKAGES="g++ cmake ninja-build pkg-config libsdl2-dev libfreetype-dev libfontconfig-dev libturbojpeg0-dev
    libtomlplusplus-dev libpng-dev libhwy-dev fonts-dejavu-core"
TEST_PACKAGES="libgtest-dev xvfb xdotool imagemagick openbox x11-utils x11-xserver-utils wmctrl python3 python3-numpy
    python3-pil"
BENCH_PACKAGES="libbenchmark-dev libpixman-1-dev libyuv-dev python3"
WINDOWS_PACKAGES="g++ g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix cmake ninja-build nasm dpkg-dev googletest
    nsis zip"
WINE_PACKAGES="wine wine64 xvfb xauth xdotool imagemagick openbox x11-utils wmctrl"
WEB_PACKAGES="g++ cmake ninja-build dpkg-dev emscripten libtomlplusplus-dev fonttools fonts-dejavu-core vorbis-tools
    python3"
WEB_TEST_PACKAGES="googletest libgtest-dev chromium-driver xvfb xauth python3 python3-numpy python3-pil
    python3-selenium"
ARM64_PACKAGES="g++ cmake ninja-build pkg-config qemu-user mmdebstrap binutils-aarch64-linux-gnu libc6-dev-arm64-cross"
DEBIAN_PACKAGES="git build-essential dpkg-dev debhelper"
CHECK_PACKAGES="clang clang-format clang-tidy desktop-file-utils appstream man-db groff-base lintian reuse
    cppcheck devscripts"

say() { printf '%s\n' "$*" >&2; }

missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q '^install ok installed' || printf '%s ' "$package"
    done
}

# install_packages PACKAGE...
install_packages() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        say "This is no Debian relative: nothing was installed. The build needs a C++20 compiler, CMake 3.25, Ninja,"
        say "pkg-config and the development files of SDL2, FreeType, fontconfig, TurboJPEG, toml++, libpng and Highway;"
        say "the tests also need GoogleTest, Xvfb, xdotool, wmctrl, ImageMagick, openbox, X11's utilities and"
        say "Python with NumPy and Pillow."
        return 0
    fi
    local missing
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    local as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            say "Packages are missing that only root can install:"
            say "    apt-get install --no-install-recommends $missing"
            return 1
        fi
        as_root="sudo"
    fi
    say "Installing: $missing"
    $as_root apt-get update -q >/dev/null
    # shellcheck disable=SC2086 # a list of words
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -yq --no-install-recommends $missing >/dev/null
}
