#!/usr/bin/env bash
# The C++ in docs/controls compiles against the public headers: every block that starts with ```cpp, as a piece of one
# translation unit. A block that begins with a class or an #include stands by itself; any other is the inside of a member function
# of a window. Errors name the page and its line.
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/common.sh

install_packages g++
unit=$(mktemp --suffix=.cpp)
trap 'rm -f "$unit"' EXIT
{
    echo '#include <tavlon/tavlon.h>'
    awk '
        function close_block() { print (alone ? "}" : "}\n};\n}") }
        FNR == 1 && inside { close_block(); inside = 0 }
        /^```cpp$/ { inside = first = 1; start = FNR + 1; next }
        /^```$/ && inside { close_block(); inside = 0; next }
        inside && first {
            first = 0
            alone = /^(class|struct|#include) ?/
            blocks++
            print "namespace snippet_" blocks " {"
            if (!alone) print "class CHost : public CWnd {\nvoid Snippet() {"
            print "#line " start " \"" FILENAME "\""
        }
        inside
        END { if (blocks < 12) { print "#error fewer blocks of code than controls" } }
    ' docs/controls/*.md
} >"$unit"
quietly g++ -std=c++20 -fsyntax-only -Wall -Wextra -Werror -fexec-charset=GBK \
    -Isrc/wrappers/include -Iplatform/framework/include -Iplatform/win32/include "$unit"
