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
    bool isLog;
    std::function<Outcome()> make;

    std::string FileName() const;  ///< KIND/SEED.png or .txt.
};

/// All of them, by kind in the order of the tables, then by seed. Two kinds of one name end the program.
std::vector<Scene> AllScenes();

/// 32 bits that change with any pixel or character.
std::uint32_t Checksum(const Outcome& outcome);

}  // namespace scenes
