#!/usr/bin/env bash
# Packages for other machines, into build/packages/. scripts/package.sh: both kinds. scripts/package.sh native: Debian packages
# of the libraries, of what hosts are built with, and of the gallery. scripts/package.sh windows: a .zip with all three.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh

# pack PRESET SUFFIX: what was packed before of this kind goes.
pack() {
    build "$1" -- tavlon_gallery # with all that it stands on
    rm -rf "build/$1/packages" build/packages/*"$2"
    mkdir -p build/packages
    quietly cpack --config "build/$1/CPackConfig.cmake" -B "build/$1/packages"
    mv "build/$1"/packages/*"$2" build/packages/
    rm -rf "build/$1/packages"
    ls build/packages/*"$2"
}

[ $# -eq 0 ] && set -- native windows
for kind in "$@"; do
    case "$kind" in
        native)
            install_packages "${native_packages[@]}" "${package_packages[@]}"
            pack release .deb
            ;;
        windows)
            install_packages "${native_packages[@]}" g++-mingw-w64-x86-64-posix
            pack windows .zip
            ;;
        *)
            echo "usage: scripts/package.sh [native] [windows]" >&2
            exit 2
            ;;
    esac
done
