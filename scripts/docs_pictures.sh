#!/usr/bin/env bash
# The pictures of README.md and docs/controls are what the gallery draws today. Without arguments: draws them anew into
# docs/pictures. check: fails when one of them differs in a pixel (both versions and their difference are left in
# build/docs_pictures/failures). into DIR: draws them there. TAVLON_BIN: a folder with the built programs, to be used instead of
# building them. on_windows.png is the Windows build's: after ./test windows it lies in build/pictures/gallery/637x411/windows.
callers_folder=$PWD
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh

bin=${TAVLON_BIN:-build/release/bin}
if [ -z "${TAVLON_BIN:-}" ]; then
    install_packages "${native_packages[@]}" "${test_packages[@]}"
    build release -DBUILD_TESTING=ON -- tavlon_gallery compare_pictures
fi
# A picture is named as the gallery's page that it shows.
mapfile -t pictures < <(grep -oh 'pictures/[a-z]*\.png' README.md docs/controls/*.md | sort -u | xargs -n 1 basename)
work=$PWD/build/docs_pictures

# draw DIR
draw() {
    rm -rf "$work/all"
    mkdir -p "$1" "$work/all"
    quietly "$bin/tavlon_gallery" --render "$work/all" --size 640x420
    # Room for twelve controls.
    quietly "$bin/tavlon_gallery" --render "$work/all" --page overview --size 1280x800
    (cd "$work/all" && cp "${pictures[@]}" "$1")
    # Beside the Windows build's, which has no smoothing under Wine.
    quietly "$bin/tavlon_gallery" --render "$work/all" --page wheel --size 637x411 --plain-text
    cp "$work/all/wheel.png" "$1/on_linux.png"
}

case "${1:-renew}" in
    renew) draw "$PWD/docs/pictures" ;;
    into)
        draw "$(cd "$callers_folder" && readlink -m "$2")"
        ;;
    check)
        rm -rf "$work"
        draw "$work/now"
        cp "$work/now/on_linux.png" "$work/now/on_windows.png"  # one and the same
        mkdir -p "$work/kept"
        (cd docs/pictures && cp "${pictures[@]}" on_linux.png on_windows.png "$work/kept")
        quietly "$bin/compare_pictures" "$work/now" "$work/kept" "$work/failures" || {
            echo "docs/pictures is not what the gallery draws: look, then scripts/docs_pictures.sh" >&2
            exit 1
        }
        ;;
    *)
        echo "usage: scripts/docs_pictures.sh [check|into DIR]" >&2
        exit 2
        ;;
esac
