# What ./run, ./test and ./bench share: installing what is missing, configuring and building one preset.
# Sourced by them; the current folder is the project's root.

set -euo pipefail

# The caller's own pass/fail is all that reaches the terminal; a failing step shows its whole log.
quietly() {
    local log
    log=$(mktemp)
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        echo "failed: $*" >&2
        return 1
    fi
    rm -f "$log"
}

is_installed() { [ "$(dpkg-query -W -f='${Status}' "$1" 2>/dev/null)" = "install ok installed" ]; }

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

# install_packages NAME...: those of the Debian packages that this machine lacks.
install_packages() {
    local missing=()
    for package in "$@"; do is_installed "$package" || missing+=("$package"); done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "installing: ${missing[*]}"
    quietly as_root apt-get update
    quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

native_packages=(g++ cmake ninja-build ccache pkg-config binutils-mingw-w64-x86-64
    libpixman-1-dev libfreetype-dev libfontconfig-dev libsdl2-dev libpng-dev
    fonts-arphic-ukai fonts-wqy-microhei fonts-urw-base35 fonts-dejavu-core)
test_packages=(libgtest-dev)
lint_packages=(clang-tidy clang-format git)
package_packages=(dpkg-dev file)
bench_packages=(libbenchmark-dev)
windows_packages=(g++-mingw-w64-x86-64-posix googletest wine wine64 xvfb xauth locales)

# build PRESET [-DOPTION=VALUE...] [-- TARGET...]: configures and builds build/PRESET.
build() {
    local preset=$1
    shift
    local options=()
    while [ $# -gt 0 ] && [ "$1" != "--" ]; do
        options+=("$1")
        shift
    done
    [ $# -gt 0 ] && shift
    quietly cmake --preset "$preset" "${options[@]}"
    quietly cmake --build --preset "$preset" ${1:+--target "$@"}
}
