#!/usr/bin/env bash
# What other programmers get: the release build installed and moved, and its Debian packages unpacked elsewhere. In both trees
# the examples are built with nothing but what is installed, and run without a display.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh
install_packages "${native_packages[@]}" "${package_packages[@]}" binutils make

. scripts/install_checks.sh
trap 'rm -rf "$work"' EXIT
root=$PWD
export TAVLON_DISPLAY=headless
unset PKG_CONFIG_PATH CMAKE_PREFIX_PATH LD_LIBRARY_PATH

# compiler TREE PACKAGES ARGUMENTS...
compiler() { compile_with g++ "$@" -Wl,-rpath,"$1/lib"; }

check_libraries() {
    local tree=$1 library soname
    for library in Tavlon TavlonFramework TavlonPlatform; do
        [ -f "$tree/lib/lib$library.so.$version" ] || fail "no lib$library.so.$version in $tree"
        soname=$(readelf -d "$tree/lib/lib$library.so" | sed -n 's/.*soname: \[\(.*\)\]/\1/p')
        [ "$soname" = "lib$library.so.${version%%.*}" ] || fail "lib$library.so calls itself '$soname'"
        [ -e "$tree/lib/$soname" ] || fail "no $soname in $tree"
    done
    # The gallery may: run from where it was built, it finds the data there.
    ! grep -rlF --exclude="tavlon_gallery*" "$root" "$tree" || fail "the files above mention the source tree"
    if readelf -d "$tree"/lib/*.so "$tree"/bin/* | grep -E 'R(UN)?PATH' | grep -v '\[\$ORIGIN:\$ORIGIN/../lib\]'; then
        fail "a run path that does not move with the tree"
    fi
}

# Each public header compiles on its own, and the ones that a host includes lead to all of them and to nothing else.
check_headers() {
    local tree=$1 flags
    flags=$(PKG_CONFIG_PATH=$tree/lib/pkgconfig pkg-config --cflags tavlon tavlon-picture)
    # shellcheck disable=SC2086,SC2016
    find "$tree/include" -name '*.h' -print0 |
        xargs -0 -P 2 -I {} g++ -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Werror $flags -include {} -x c++ /dev/null ||
        fail "a public header does not compile on its own"
    find "$tree/include" -name '*.h' | sort >"$work/installed.txt"
    # shellcheck disable=SC2086
    printf '#include <tavlon/%s.h>\n' tavlon picture | g++ -std=c++20 -M $flags -x c++ - | tr ' \\' '\n\n' |
        grep -v '^/usr/\(include\|lib\)/' | grep '\.h$' | xargs realpath | sort -u >"$work/reached.txt"
    diff "$work/installed.txt" "$work/reached.txt" || fail "headers installed (<) and reached from the public ones (>) differ"
}

# links TREE PROGRAM: it uses the libraries of the tree and no others.
links() {
    ! ldd "$2" | grep Tavlon | grep -v " => $1/lib/" || fail "$2 is linked to another Tavlon"
}

# show_and_close TREE PROGRAM: a windowed host, seen and closed.
show_and_close() {
    local colours
    links "$1" "$2"
    colours=$(timeout 30 env LD_PRELOAD="$1/close_host.so" "$2") || fail "$2 ends with $?"
    many "$colours" "$2"
}

check_hosts() {
    local tree=$1
    # Copies: an example may not lean on the tree around it.
    cp -r examples "$tree/examples"
    compiler "$tree" tavlon -shared -fPIC -o "$tree/close_host.so" tests/tools/close_host.cpp
    compiler "$tree" tavlon-picture -o "$tree/count_colours" tests/tools/count_colours.cpp

    for example in cmake png; do
        quietly cmake -G Ninja -S "$tree/examples/$example" -B "$tree/examples/$example/build" -DCMAKE_PREFIX_PATH="$tree"
        quietly cmake --build "$tree/examples/$example/build"
    done
    show_and_close "$tree" "$tree/examples/cmake/build/stocks"
    PKG_CONFIG_PATH=$tree/lib/pkgconfig quietly make -C "$tree/examples/make"
    show_and_close "$tree" "$tree/examples/make/position"

    (
        cd "$tree/examples/png"
        compiler "$tree" "tavlon tavlon-picture tavlon-gbk-literals" -o wheel_png main.cpp
        for program in ./build/wheel_png ./wheel_png; do
            links "$tree" $program
            $program wheel.png
            many "$("$tree/count_colours" wheel.png)" "$program"
        done
    )
    # The gallery on its own data.
    diff -r data "$tree/share/tavlon/data"
    quietly "$tree/bin/tavlon_gallery" --render "$tree/pages" --size 400x300
    for picture in "$tree"/pages/*.png; do many "$("$tree/count_colours" "$picture")" "$picture"; done
}

# A program that asks for what is not there is told so.
check_refusal() {
    printf '%s\n' 'cmake_minimum_required(VERSION 3.20)' 'project(x CXX)' 'find_package(Tavlon 0.0.1 REQUIRED)' >"$work/CMakeLists.txt"
    ! cmake -G Ninja -S "$work" -B "$work/refused" -DCMAKE_PREFIX_PATH="$1" >"$work/log" 2>&1 || fail "any version will do"
    contains "$(cat "$work/log")" "version: $version" "the refusal of another version"
}

depends() { dpkg-deb -f build/packages/"$1"_"$version"_amd64.deb Depends; }
check_packages() {
    local names
    for needed in fonts-arphic-ukai fonts-wqy-microhei fonts-urw-base35 fonts-dejavu-core libsdl2-2.0-0 libpixman-1-0 \
        libfontconfig1 libfreetype6 libc6; do
        contains "$(depends libtavlon0)" "$needed" "what the libraries depend on"
    done
    contains "$(depends libtavlon-dev)" "libtavlon0 (= $version)" "what hosts are built with depends on"
    contains "$(depends libtavlon-dev)" libpng-dev "what hosts are built with depends on"
    contains "$(depends tavlon-gallery)" "libtavlon0 (= $version)" "what the gallery depends on"
    contains "$(depends tavlon-gallery)" libpng16-16 "what the gallery depends on"
    names=$(dpkg-deb -c build/packages/libtavlon0_*.deb | awk '!/\/$/ { print $6 }')
    ! grep -v '/lib[A-Za-z]*\.so\.[0-9.]*$' <<<"$names" || fail "the library package has more than its libraries"
    quietly apt-get --simulate install --no-install-recommends ./build/packages/*.deb
}

sed -n '/^```cpp$/,/^```$/p' README.md | sed '/^```$/q' | sed '/^```/d' | diff - examples/cmake/main.cpp ||
    fail "the host in README.md (<), its first piece of C++, is not examples/cmake/main.cpp (>)"

build release -- tavlon_gallery
quietly cmake --install build/release --prefix "$work/first"
mv "$work/first" "$work/moved"
check_libraries "$work/moved"
check_headers "$work/moved"
check_refusal "$work/moved"
check_hosts "$work/moved"

quietly scripts/package.sh native
check_packages
for package in build/packages/*.deb; do dpkg -x "$package" "$work/unpacked"; done
check_libraries "$work/unpacked/usr"
check_hosts "$work/unpacked/usr"
cmp "$work"/{moved,unpacked/usr}/examples/png/wheel.png
echo "install: all hosts are served"
