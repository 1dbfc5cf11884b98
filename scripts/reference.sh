#!/usr/bin/env bash
# Renders the reference for programmers of hosts into build/reference/html, with the gallery's pictures as it draws them now; fails on
# any warning, so also when something exported has no documentation. TAVLON_BIN: see docs_pictures.sh.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh

install_packages doxygen
rm -rf build/reference
# Where the pages look for them: ../pictures, as in docs.
scripts/docs_pictures.sh into build/reference/pictures
quietly doxygen docs/Doxyfile
