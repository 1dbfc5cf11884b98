/// Every kind of scene, and what each scene comes to.
#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "scenes/scene.h"

namespace scenes {

using Outcome = std::variant<Picture, std::string>;

/// A scene that can be made.
struct Scene {
    std::string kind;
    unsigned seed;
    Text text;
    std::function<Outcome()> make;
};

/// All of them, by kind in the order of the tables, then by seed.
std::vector<Scene> AllScenes();

/// 32 bits that change with any pixel or character.
std::uint32_t Checksum(const Outcome& outcome);

}  // namespace scenes
