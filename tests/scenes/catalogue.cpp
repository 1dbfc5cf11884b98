#include "scenes/catalogue.h"

#include <cstdio>
#include <cstdlib>
#include <set>

namespace scenes {

namespace {

void Add(std::vector<Scene>& all, const PictureKind& kind) {
    for (unsigned seed = 1; seed <= kSeeds; ++seed)
        all.push_back({kind.name, seed, kind.text, false, [&kind, seed]() -> Outcome {
                           Stage stage(kind.size, seed);
                           kind.draw(stage);
                           return stage.Pixels();
                       }});
}

void Add(std::vector<Scene>& all, const LogKind& kind) {
    for (unsigned seed = 1; seed <= kSeeds; ++seed)
        all.push_back({kind.name, seed, Text::kPlain, true, [&kind, seed]() -> Outcome {
                           Dice dice(seed);
                           std::string log;
                           kind.write(log, dice);
                           return log;
                       }});
}

/// FNV-1a.
class Hash {
public:
    void Byte(std::uint32_t byte) { m_value = (m_value ^ byte) * 16777619u; }
    void Number(std::uint32_t number) {
        for (int shift = 0; shift < 32; shift += 8) Byte(number >> shift & 255);
    }
    std::uint32_t Value() const { return m_value; }

private:
    std::uint32_t m_value = 2166136261u;
};

}  // namespace

std::string Scene::FileName() const {
    char seedName[16];
    std::snprintf(seedName, sizeof seedName, "/%02u.%s", seed, isLog ? "txt" : "png");
    return kind + seedName;
}

std::vector<Scene> AllScenes() {
    std::vector<Scene> all;
    for (const auto& kinds : {LineKinds(), CurveKinds(), RegionKinds(), BlockKinds(), TextKinds(),
                              ControlKinds(), WindowKinds(), MenuKinds()})
        for (const PictureKind& kind : kinds) Add(all, kind);
    for (const auto& kinds : {ContextLogs(), TextLogs(), WindowLogs(), MenuLogs()})
        for (const LogKind& kind : kinds) Add(all, kind);
    std::set<std::string> names;
    for (const Scene& scene : all)
        if (!names.insert(scene.FileName()).second) std::abort();
    return all;
}

std::uint32_t Checksum(const Outcome& outcome) {
    Hash hash;
    if (const auto* picture = std::get_if<Picture>(&outcome)) {
        hash.Number(static_cast<std::uint32_t>(picture->width));
        for (const std::uint32_t pixel : picture->xRGB) hash.Number(pixel);
    } else {
        for (const char c : std::get<std::string>(outcome)) hash.Byte(static_cast<unsigned char>(c));
    }
    return hash.Value();
}

}  // namespace scenes
