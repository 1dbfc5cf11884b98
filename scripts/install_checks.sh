# What the tests of installed trees share. Sourced after common.sh; the caller removes $work, a folder outside the project.

version=$(sed -n 's/^project(Tavlon VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
work=$(mktemp -d)

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# contains TEXT PART WHERE
contains() { case "$1" in *"$2"*) ;; *) fail "$3: '$2' is missing in: $1" ;; esac; }

# many NUMBER WHAT: the fewest colours that a control with its texts has, be they unsmoothed; a window nobody painted has one.
many() { [ "$1" -ge 4 ] || fail "$2: $1 colours only"; }

# compile_with COMPILER TREE PACKAGES ARGUMENTS...: with what pkg-config says of the packages installed in the tree.
compile_with() {
    local flags
    # shellcheck disable=SC2086
    flags=$(PKG_CONFIG_PATH=$2/lib/pkgconfig pkg-config --cflags --libs $3)
    # shellcheck disable=SC2086
    "$1" -std=c++20 "${@:4}" $flags
}
