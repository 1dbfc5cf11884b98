/// Pictures in memory and as PNG files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

/// Pixels row by row from the top, each 0x00RRGGBB.
struct Picture {
    static constexpr int kMaxSide = 16384;  ///< Neither written nor read beyond.
    static constexpr std::size_t kMaxPixels = std::size_t{64} << 20;

    int width = 0, height = 0;
    std::vector<std::uint32_t> xRGB;  ///< width * height of them.

    /// Sides in range and as many pixels as they say.
    bool IsValid() const { return AreSidesValid(width, height) && xRGB.size() == PixelCount(width, height); }
    static bool AreSidesValid(std::int64_t cx, std::int64_t cy) {
        return cx > 0 && cy > 0 && cx <= kMaxSide && cy <= kMaxSide && PixelCount(cx, cy) <= kMaxPixels;
    }
    static std::size_t PixelCount(std::int64_t cx, std::int64_t cy) {
        return static_cast<std::size_t>(cx) * static_cast<std::size_t>(cy);
    }
};

/// Writes 8 bits a channel without alpha; what was in the file is replaced. False for a picture that is not
/// valid or a file that cannot be written.
bool WritePng(const std::filesystem::path& file, const Picture& picture);

/// Reads any PNG as 8 bits a channel; alpha is dropped. False, and picture unchanged, for a file that is
/// missing, damaged, no PNG, or larger than a Picture may be.
bool ReadPng(const std::filesystem::path& file, Picture& picture);
