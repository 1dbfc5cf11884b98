#!/usr/bin/env bash
# The layers may only look down: fails when a file includes a header of a layer that it must not know.
cd "$(dirname "$(readlink -f "$0")")/.."
set -u
bad=0

# forbid WHY PATTERN FOLDER...: no #include matching PATTERN may stand in the folders.
forbid() {
    local why=$1 pattern=$2
    shift 2
    local hits
    hits=$(grep -rnE "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($pattern)" --include='*.h' --include='*.cpp' "$@" 2>/dev/null)
    if [ -n "$hits" ]; then
        printf '%s:\n%s\n' "$why" "$hits"
        bad=1
    fi
}

forbid "a display knows no windows" 'windows\.h|win32/|gdi/|user/|kernel/|tavlon/' platform/display
forbid "the layer knows nothing above it" 'tavlon/|foundation/|scatter/|wrappers/|gallery/' platform/win32
forbid "the framework stands on <windows.h> alone" \
    'win32/|gdi/|user/|kernel/|display/|pixman|ft2build|SDL|tavlon/(tavlon|records|proxies|value_radar)\.h|foundation/|scatter/' \
    platform/framework
# The layer's registration of a module's resources is the one thing that src/resources may ask of it.
forbid "a control sees only the framework and the foundation" \
    'win32/(base|gdi|user|kernel)|gdi/|user/|kernel/|display/|pixman|ft2build|SDL|fontconfig|gallery/' src
forbid "a control sees only the framework and the foundation" 'win32/' \
    src/foundation src/wrappers src/scatter src/wheel src/minute src/pie src/gauges src/tabs
forbid "the host uses only the public headers" \
    'win32/|gdi/|user/|kernel/|display/|pixman|ft2build|SDL|foundation/|scatter/|wheel/|minute/|pie/|gauges/|tabs/|wrappers/' \
    gallery examples
forbid "families of controls do not know one another" '(scatter|wheel|minute|pie|gauges|tabs)/' src/foundation
for family in scatter wheel minute pie gauges tabs; do
    others=$(printf '%s\n' scatter wheel minute pie gauges tabs | grep -vx "$family" | paste -sd'|')
    forbid "families of controls do not know one another" "($others)/" "src/$family"
done
conditional=$(grep -rlE '^[[:space:]]*#[[:space:]]*if.*_WIN32' --include='*.h' --include='*.cpp' src gallery platform/framework |
    grep -vE '^src/(resources/|foundation/(library|module)_[a-z_]*\.(cpp|h)$)|/export\.h$')
if [ -n "$conditional" ]; then
    printf 'platform conditions outside the resources and the load hook:\n%s\n' "$conditional"
    bad=1
fi
[ $bad -eq 0 ] && echo "includes: the arrows point down"
exit $bad
