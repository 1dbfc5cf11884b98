#!/usr/bin/env bash
# Formatting, the arrows between the layers, and clang-tidy with the project's own list.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh

sources=$(git ls-files -- '*.cpp' '*.h')
# shellcheck disable=SC2086
clang-format --dry-run --Werror $sources
scripts/check_includes.sh
scripts/check_budgets.sh
scripts/check_snippets.sh
quietly cmake --preset release -DBUILD_TESTING=ON -DTAVLON_WERROR=OFF
# GBK literals are the compiler's business; clang reads the same files with the charset it knows.
# shellcheck disable=SC2086
printf '%s\n' $sources | grep -E '^(platform|src|gallery)/.*\.cpp$' | grep -vE '_(gdiplus|windows)\.cpp$' |
    xargs -P 2 -n 8 clang-tidy --quiet -p build/release --extra-arg=-fexec-charset=UTF-8 2> >(grep -v 'warnings generated' >&2)
echo "lint: clean"
