#!/usr/bin/env bash
# Writes the checksums of the scenes, as they are drawn natively, anew, when the platforms agree but for the budgets.
cd "$(dirname "$(readlink -f "$0")")/.."
set -euo pipefail
scripts/test_windows.sh --gtest_filter='Compare*:Folders*:Budgets*:Checksums*'
build/release/bin/tavlon_scenes sums >build/checksums.txt
mv build/checksums.txt tests/scenes/checksums.txt
git diff --stat -- tests/scenes/checksums.txt
