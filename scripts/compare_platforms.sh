# Draws the gallery's pages and the scenes on both platforms and compares them: what Windows shows is what is wanted.
# Sourced by test_windows.sh, with Wine set up and both builds there; sets status=1 on a difference.

native=$PWD/build/release/bin windows=$PWD/build/windows/bin
pictures=$PWD/build/pictures
rm -rf "$pictures"

# on_both SET PROGRAM ARGUMENTS...: runs the program in a folder of its own on both platforms.
on_both() {
    local set=$1 program=$2
    shift 2
    mkdir -p "$pictures/$set/native" "$pictures/$set/windows"
    (cd "$pictures/$set/windows" && wine "$windows/$program.exe" "$@" >/dev/null)
    (cd "$pictures/$set/native" && env -u FONTCONFIG_FILE "$native/$program" "$@" >/dev/null)
}

# compare SET [BUDGETS EXPECTED]
compare() {
    echo "$1:"
    "$native/compare_pictures" "$pictures/$1/native" "$pictures/$1/windows" "$pictures/$1/failures" "${@:2}" || status=1
}

for size in 800x600 637x411; do
    on_both "gallery/$size" tavlon_gallery --render . --size $size --plain-text
    compare "gallery/$size"
done
for script in tests/scripts/*.txt; do
    set=gallery/$(basename "$script" .txt)
    on_both "$set" tavlon_gallery --script "$PWD/$script" --plain-text
    compare "$set"
done
# Smoothing comes from Fontconfig under Wine; the machine's own set-up has it.
on_both draw tavlon_scenes draw .
(unset FONTCONFIG_FILE && on_both smooth tavlon_scenes smooth .)
for set in draw smooth; do
    "$native/tavlon_scenes" list $set >"$pictures/$set/expected.txt"
    compare $set tests/scenes/budgets_$set.txt "$pictures/$set/expected.txt"
done
