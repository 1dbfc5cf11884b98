#!/usr/bin/env bash
# The whole suite, cross-built and run under Wine (arguments go to GoogleTest), the gallery's pictures beside the native
# ones, and the package for other machines in the hands of a host.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh
. scripts/wine.sh scripts/test_windows.sh "$@"

werror=()
[ -n "${CI:-}" ] && werror=(-DTAVLON_WERROR=ON)
build windows -DBUILD_TESTING=ON "${werror[@]}"

# The suite in two halves at a time, since much of it is waiting for windows. Each has a Wine and a screen of its own: there is
# one foreground window in each. Every window costs a thousand times what it costs natively: fewer random calls here.
second=$PWD/build/wine-second
kill_wine "$WINEPREFIX"
wineserver -w
rm -rf "$second"
cp -a "$WINEPREFIX" "$second"
trap 'kill_wine "$WINEPREFIX" "$second"' EXIT
run_half() {
    export GTEST_TOTAL_SHARDS=2 GTEST_SHARD_INDEX=$1 TAVLON_STEPS=${TAVLON_STEPS:-10000}
    shift
    "$@" wine build/windows/bin/tavlon_tests.exe --gtest_brief=1 "${tests[@]}"
}
tests=("$@") status=0
(WINEPREFIX=$second && run_half 1 xvfb-run -a -s "-screen 0 1920x1200x24") >build/second_half.txt 2>&1 &
run_half 0 || status=1
wait $! || status=1
cat build/second_half.txt

build release -DBUILD_TESTING=ON "${werror[@]}" -- tavlon_gallery tavlon_scenes compare_pictures
. scripts/compare_platforms.sh
scripts/test_install_windows.sh || status=1
exit $status
