// count_colours FILE.png...: prints for each how many colours are in it.
#include <tavlon/picture.h>

#include <cstdio>
#include <set>

int main(int argc, char** argv) {
    for (int n = 1; n < argc; ++n) {
        Picture picture;
        if (!ReadPng(argv[n], picture)) return std::fprintf(stderr, "%s: no picture\n", argv[n]), 1;
        std::printf("%zu\n", std::set<std::uint32_t>(picture.xRGB.begin(), picture.xRGB.end()).size());
    }
    return 0;
}
