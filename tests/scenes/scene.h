/// What is drawn, or written down, alike on both platforms. A scene is a kind and a seed: the kind says what
/// is done, the seed decides positions, sizes and colours.
#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "scenes/stage.h"

namespace scenes {

inline constexpr unsigned kSeeds = 25;  ///< Every kind is drawn with the seeds 1 to 25.

enum class Text { kPlain, kSmooth };

/// A picture: `draw` gets a stage of the given size, filled with one colour of the seed.
struct PictureKind {
    const char* name;
    SIZE size;
    void (*draw)(Stage&);
    Text text = Text::kPlain;  ///< Smoothed kinds are drawn in a run of their own.
};

/// Lines of text: what calls answered, or which messages came in what order.
struct LogKind {
    const char* name;
    void (*write)(std::string& log, Dice& dice);
};

// One table a file.
std::span<const PictureKind> LineKinds();
std::span<const PictureKind> CurveKinds();
std::span<const PictureKind> RegionKinds();
std::span<const PictureKind> BlockKinds();
std::span<const PictureKind> TextKinds();
std::span<const PictureKind> ControlKinds();
std::span<const PictureKind> WindowKinds();
std::span<const PictureKind> MenuKinds();
std::span<const LogKind> ContextLogs();
std::span<const LogKind> TextLogs();
std::span<const LogKind> WindowLogs();
std::span<const LogKind> MenuLogs();

}  // namespace scenes
