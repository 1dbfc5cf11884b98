#!/usr/bin/env bash
# The whole suite, cross-built and run under Wine, and the gallery's pictures beside the native ones.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh

install_packages "${native_packages[@]}" "${windows_packages[@]}"
locale -a | grep -qi '^zh_CN\.utf-\?8$' || {
    grep -q '^zh_CN.UTF-8' /etc/locale.gen || echo 'zh_CN.UTF-8 UTF-8' | as_root tee -a /etc/locale.gen >/dev/null
    quietly as_root locale-gen
}

werror=()
[ -n "${CI:-}" ] && werror=(-DTAVLON_WERROR=ON)
build windows -DBUILD_TESTING=ON "${werror[@]}"

# A Wine set-up of our own, in code page 936, with the two named faces mapped as the native library maps them.
export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=" LC_ALL=zh_CN.UTF-8
in_wine() { xvfb-run -a -s "-screen 0 1920x1200x24" wine "$@"; }
if [ ! -f "$WINEPREFIX/.tavlon-ready" ] || [ -n "$(find scripts -name 'wine-*.reg' -newer "$WINEPREFIX/.tavlon-ready")" ]; then
    mkdir -p "$WINEPREFIX"
    quietly xvfb-run -a wineboot -i
    for settings in scripts/wine-*.reg; do quietly in_wine regedit /S "$settings"; done
    quietly wineserver -w
    touch "$WINEPREFIX/.tavlon-ready"
fi

bin=$PWD/build/windows/bin
in_wine "$bin/tavlon_tests.exe" --gtest_brief=1 ${GTEST_FILTER:+--gtest_filter="$GTEST_FILTER"}
rm -rf build/windows/pictures
mkdir -p build/windows/pictures
(cd build/windows && in_wine bin/tavlon_gallery.exe --data ../../data --render pictures)
wineserver -k || true
