#!/usr/bin/env bash
# The whole suite, cross-built and run under Wine (arguments go to GoogleTest), the gallery's pictures beside the native
# ones, and the package for other machines in the hands of a host.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh
. scripts/wine.sh scripts/test_windows.sh "$@"

werror=()
[ -n "${CI:-}" ] && werror=(-DTAVLON_WERROR=ON)
build windows -DBUILD_TESTING=ON "${werror[@]}"

# Every window costs Wine a thousand times what it costs natively: fewer random calls here.
status=0
TAVLON_STEPS=${TAVLON_STEPS:-10000} wine build/windows/bin/tavlon_tests.exe --gtest_brief=1 "$@" || status=1

build release -DBUILD_TESTING=ON "${werror[@]}" -- tavlon_gallery tavlon_scenes compare_pictures
. scripts/compare_platforms.sh
scripts/test_install_windows.sh || status=1
exit $status
