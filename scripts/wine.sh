# Wine for the scripts that source this, with their own name and arguments: a virtual screen, code page 936, a prefix of ours.
# Sourced after common.sh.

install_packages "${native_packages[@]}" "${windows_packages[@]}"
# One virtual screen for everything that the script runs: it is started again under it.
[ -n "${TAVLON_SCREEN_READY:-}" ] || TAVLON_SCREEN_READY=1 exec xvfb-run -a -s "-screen 0 1920x1200x24" "$@"
locale -a | grep -qi '^zh_CN\.utf-\?8$' || {
    grep -q '^zh_CN.UTF-8' /etc/locale.gen || echo 'zh_CN.UTF-8 UTF-8' | as_root tee -a /etc/locale.gen >/dev/null
    quietly as_root locale-gen
}

# A Wine set-up of our own, in code page 936, with the two named faces mapped as the native library maps them.
export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=" LC_ALL=zh_CN.UTF-8
if [ ! -f "$WINEPREFIX/.tavlon-ready" ] || [ -n "$(find scripts -name 'wine-*.reg' -newer "$WINEPREFIX/.tavlon-ready")" ]; then
    mkdir -p "$WINEPREFIX"
    quietly wineboot -i
    for settings in scripts/wine-*.reg; do quietly wine regedit /S "$settings"; done
    quietly wineserver -w
    touch "$WINEPREFIX/.tavlon-ready"
fi

# kill_wine PREFIX...: ends what still runs there.
kill_wine() {
    local prefix
    for prefix in "$@"; do WINEPREFIX=$prefix wineserver -k || true; done
}
trap 'kill_wine "$WINEPREFIX"' EXIT

# Unsmoothed text, in the system's own programs as in ours: the pictures are compared pixel by pixel.
export FONTCONFIG_FILE=$PWD/scripts/wine-fonts.conf
