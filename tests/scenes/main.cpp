// Draws the scenes:
//   tavlon_scenes draw DIR [KIND...]    DIR/KIND/SEED.png or .txt of each, text unsmoothed
//   tavlon_scenes smooth DIR [KIND...]  the same of the kinds whose text is smoothed
//   tavlon_scenes list draw|smooth      the names of those files
//   tavlon_scenes sums [KIND...]        a line of checksums a kind
//   tavlon_scenes check FILE            compares with such lines; prints every scene that differs, and fails
//   for one

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "compare/checksums.h"
#include "scenes/catalogue.h"

namespace {

using namespace scenes;
using Names = std::vector<std::string>;

std::vector<Scene> Wanted(Text text, const Names& kinds) {
    std::vector<Scene> scenes = AllScenes();
    std::erase_if(scenes, [&](const Scene& scene) {
        return scene.text != text || (!kinds.empty() && std::ranges::count(kinds, scene.kind) == 0);
    });
    return scenes;
}

void Smooth(Text text) { SystemParametersInfoA(SPI_SETFONTSMOOTHING, text == Text::kSmooth, nullptr, 0); }

bool Save(const std::filesystem::path& dir, const Scene& scene) {
    const std::filesystem::path file = dir / scene.FileName();
    std::filesystem::create_directories(file.parent_path());
    const Outcome outcome = scene.make();
    if (const auto* picture = std::get_if<Picture>(&outcome)) return WritePng(file, *picture);
    std::ofstream out(file, std::ios::binary);
    return static_cast<bool>(out << std::get<std::string>(outcome) << std::flush);
}

int Draw(const char* dir, Text text, const Names& kinds) {
    Smooth(text);
    const std::vector<Scene> scenes = Wanted(text, kinds);
    for (const Scene& scene : scenes)
        if (!Save(dir, scene)) return std::cerr << "cannot write to " << dir << "\n", 1;
    return scenes.empty() ? 1 : 0;
}

int List(Text text) {
    for (const Scene& scene : Wanted(text, {})) std::cout << scene.FileName() << "\n";
    return std::cout.flush() ? 0 : 1;
}

Checksums Sums(const Names& kinds) {
    Checksums sums;
    for (const Text text : {Text::kPlain, Text::kSmooth}) {
        Smooth(text);
        for (const Scene& scene : Wanted(text, kinds)) {
            char sum[12];
            std::snprintf(sum, sizeof sum, "%08x", static_cast<unsigned>(Checksum(scene.make())));
            sums[scene.kind].emplace_back(sum);
        }
    }
    return sums;
}

int PrintSums(const Names& kinds) {
    for (const auto& [kind, sums] : Sums(kinds)) {
        std::cout << kind;
        for (const std::string& sum : sums) std::cout << " " << sum;
        std::cout << "\n";
    }
    return std::cout.flush() ? 0 : 1;
}

int Check(const char* file) {
    std::ifstream in(file);
    Checksums want;
    if (!in || !ReadChecksums(in, want)) return std::cerr << file << ": not to be read\n", 1;
    const Checksums got = Sums({});
    const int differing = CompareChecksums(got, want, std::cout);
    std::cout << "scenes: " << got.size() << " kinds, " << kSeeds << " seeds each, " << differing
              << " differ from their checksums\n";
    return differing == 0 ? 0 : 1;
}

int Usage() {
    std::cerr << "usage: tavlon_scenes draw DIR [KIND...] | smooth DIR [KIND...] | list draw|smooth | sums "
                 "[KIND...] | "
                 "check FILE\n";
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    static char display[] = "TAVLON_DISPLAY=headless";  // where the system owns the windows this says nothing
    putenv(display);
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "sums") return PrintSums(Names(argv + 2, argv + argc));
    if (argc < 3) return Usage();
    const std::string what = argv[2];
    const Names kinds(argv + 3, argv + argc);
    if (command == "check") return Check(argv[2]);
    if (command == "draw") return Draw(argv[2], Text::kPlain, kinds);
    if (command == "smooth") return Draw(argv[2], Text::kSmooth, kinds);
    if (command == "list" && (what == "draw" || what == "smooth"))
        return List(what == "smooth" ? Text::kSmooth : Text::kPlain);
    return Usage();
}
