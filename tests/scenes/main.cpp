// Draws the scenes: tavlon_scenes draw DIR [KIND...] | smooth DIR [KIND...] | sums [KIND...] | check FILE.
// `draw` writes DIR/KIND/SEED.png or .txt without smoothing of text, `smooth` the kinds of smoothed text.
// `sums` prints a line of checksums a kind; `check` compares with such lines, prints every scene that
// differs, and fails for one.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "scenes/catalogue.h"

namespace {

using namespace scenes;
using Names = std::vector<std::string>;

bool IsWanted(const Scene& scene, Text text, const Names& kinds) {
    return scene.text == text && (kinds.empty() || std::ranges::count(kinds, scene.kind) != 0);
}

std::vector<Scene> Wanted(Text text, const Names& kinds) {
    std::vector<Scene> scenes = AllScenes();
    std::erase_if(scenes, [&](const Scene& scene) { return !IsWanted(scene, text, kinds); });
    return scenes;
}

bool Save(const std::filesystem::path& dir, const Scene& scene) {
    char number[8];
    std::snprintf(number, sizeof number, "%02u", scene.seed);
    std::filesystem::create_directories(dir / scene.kind);
    const Outcome outcome = scene.make();
    const std::filesystem::path file = dir / scene.kind / number;
    if (const auto* picture = std::get_if<Picture>(&outcome))
        return WritePng(std::filesystem::path(file).concat(".png"), *picture);
    std::ofstream out(std::filesystem::path(file).concat(".txt"), std::ios::binary);
    return static_cast<bool>(out << std::get<std::string>(outcome));
}

int Draw(const char* dir, Text text, const Names& kinds) {
    SystemParametersInfoA(SPI_SETFONTSMOOTHING, text == Text::kSmooth, nullptr, 0);
    const std::vector<Scene> scenes = Wanted(text, kinds);
    for (const Scene& scene : scenes)
        if (!Save(dir, scene)) return std::printf("cannot write to %s\n", dir), 1;
    return scenes.empty() ? 1 : 0;
}

/// Kinds in the order of the tables, each with the checksums of its seeds.
std::vector<std::pair<std::string, std::string>> Sums(const Names& kinds) {
    std::vector<std::pair<std::string, std::string>> sums;
    for (const Text text : {Text::kPlain, Text::kSmooth}) {
        SystemParametersInfoA(SPI_SETFONTSMOOTHING, text == Text::kSmooth, nullptr, 0);
        for (const Scene& scene : Wanted(text, kinds)) {
            if (sums.empty() || sums.back().first != scene.kind) sums.emplace_back(scene.kind, "");
            char sum[12];
            std::snprintf(sum, sizeof sum, " %08x", static_cast<unsigned>(Checksum(scene.make())));
            sums.back().second += sum;
        }
    }
    return sums;
}

int PrintSums(const Names& kinds) {
    for (const auto& [kind, sums] : Sums(kinds)) std::printf("%s%s\n", kind.c_str(), sums.c_str());
    return 0;
}

/// Prints the seeds of one kind whose checksums differ, and tells how many.
int Compare(const std::string& kind, const std::string& got, const std::string& want) {
    constexpr std::size_t kWidth = 9;
    int differing = 0;
    for (std::size_t at = 0; at < std::max(got.size(), want.size()); at += kWidth) {
        const std::string one = at < got.size() ? got.substr(at, kWidth) : " none";
        const std::string other = at < want.size() ? want.substr(at, kWidth) : " none";
        if (one == other) continue;
        std::printf("%s/%02zu: checksum%s, not%s\n", kind.c_str(), at / kWidth + 1, one.c_str(),
                    other.c_str());
        ++differing;
    }
    return differing;
}

int Check(const char* file) {
    std::ifstream in(file);
    if (!in) return std::printf("cannot read %s\n", file), 1;
    std::map<std::string, std::string> wanted;
    std::string kind, sums;
    while (in >> kind && std::getline(in, sums)) wanted[kind] = sums;
    int differing = 0;
    const auto got = Sums({});
    for (const auto& [name, line] : got) {
        differing += Compare(name, line, wanted[name]);
        wanted.erase(name);
    }
    for (const auto& [name, line] : wanted) differing += Compare(name, "", line);
    std::printf("scenes: %zu kinds, %u seeds each, %d differ from their checksums\n", got.size(), kSeeds,
                differing);
    return differing == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    static char display[] = "TAVLON_DISPLAY=headless";  // where the system owns the windows this says nothing
    putenv(display);
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "sums") return PrintSums(Names(argv + 2, argv + argc));
    if (argc > 2 && command == "check") return Check(argv[2]);
    if (argc > 2 && command == "draw") return Draw(argv[2], Text::kPlain, Names(argv + 3, argv + argc));
    if (argc > 2 && command == "smooth") return Draw(argv[2], Text::kSmooth, Names(argv + 3, argv + argc));
    std::fprintf(
        stderr,
        "usage: tavlon_scenes draw DIR [KIND...] | smooth DIR [KIND...] | sums [KIND...] | check FILE\n");
    return 2;
}
