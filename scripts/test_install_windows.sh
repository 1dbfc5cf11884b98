#!/usr/bin/env bash
# What other programmers get for Windows: the zip unpacked elsewhere, the examples cross-built against it and run under Wine.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh
. scripts/wine.sh scripts/test_install_windows.sh "$@"
. scripts/install_checks.sh
trap 'rm -rf "$work"; kill_wine "$WINEPREFIX"' EXIT

quietly scripts/package.sh windows
(cd "$work" && cmake -E tar xf "$OLDPWD/build/packages/tavlon-$version-windows-x86_64.zip")
tree=$(echo "$work"/tavlon-*)
# Programs find the DLLs where the zip has them.
export WINEPATH
WINEPATH=$(winepath -w "$tree/bin")

# The gallery may: run from where it was built, it finds the data there.
! grep -rlF --exclude="tavlon_gallery*" "$PWD" "$tree" || fail "the files above mention the source tree"
for library in Tavlon TavlonFramework; do
    [ -f "$tree/bin/$library.dll" ] && [ -f "$tree/lib/lib$library.dll.a" ] || fail "$library is not complete in the zip"
done

# A native program that finds this tree is told why it cannot have it.
! cmake -G Ninja -S examples/cmake -B "$work/native" -DTavlon_DIR="$tree/lib/cmake/Tavlon" >"$work/log" 2>&1 ||
    fail "a native program may link DLLs"
contains "$(tr -s ' \n' '  ' <"$work/log")" "built for Windows, not for Linux" "the refusal of another system"

for example in cmake png; do
    cp -r examples/$example "$work/$example"
    quietly cmake -G Ninja -S "$work/$example" -B "$work/$example/build" -DTavlon_DIR="$tree/lib/cmake/Tavlon" \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake" -DCMAKE_BUILD_TYPE=Release
    quietly cmake --build "$work/$example/build"
done
compile_with x86_64-w64-mingw32-g++-posix "$tree" tavlon-picture -o "$work/count_colours.exe" tests/tools/count_colours.cpp
compile_with x86_64-w64-mingw32-g++-posix "$tree" tavlon -o "$work/close_window.exe" tests/tools/close_window.cpp

# colours FILE
colours() { wine "$work/count_colours.exe" "$(winepath -w "$1")" | tr -d '\r'; }

wine "$work/png/build/wheel_png.exe" "$(winepath -w "$work/wheel.png")" || fail "wheel_png.exe ends with $?"
many "$(colours "$work/wheel.png")" wheel_png.exe
quietly wine "$tree/bin/tavlon_gallery.exe" --render "$(winepath -w "$work/pages")" --size 400x300
for picture in "$work"/pages/*.png; do many "$(colours "$picture")" "$picture"; done

# The windowed host, closed as a user does.
wine "$work/cmake/build/stocks.exe" &
host=$!
wine "$work/close_window.exe" Stocks || fail "stocks.exe shows no window"
for _ in $(seq 100); do
    kill -0 $host 2>/dev/null || break
    sleep 0.1
done
! kill -0 $host 2>/dev/null || fail "stocks.exe does not close"
wait $host || fail "stocks.exe ends with $?"
echo "install: all hosts are served on Windows"
