#!/usr/bin/env bash
# Writes the checksums of the scenes anew, when the pictures of both platforms agree.
cd "$(dirname "$(readlink -f "$0")")/.."
set -euo pipefail
scripts/test_windows.sh --gtest_filter='Compare*:Folders*:Budgets*'
build/release/bin/tavlon_scenes sums >tests/scenes/checksums.txt
git diff --stat -- tests/scenes/checksums.txt
