/// Block transfers.
#include "scenes/block_scenes.h"

namespace scenes {

namespace {

using namespace blocks;

constexpr PictureKind kKinds[] = {
    {"block_copies", {160, 120}, Copies},
    {"block_backward_copies", {160, 120}, BackwardCopies},
    {"block_overlaps", {160, 120}, Overlaps},
    {"block_named_codes", {160, 120}, NamedCodes},
    {"block_all_codes", {160, 120}, AllCodes},
    {"block_overlaps_of_named_codes", {160, 120}, OverlapsOfNamedCodes},
    {"block_patterns", {160, 120}, Patterns},
    {"block_clipped", {160, 120}, ClippedCopies},
    {"block_colour_to_mono", {200, 120}, ColourToMono},
    {"block_mono_to_colour", {160, 120}, MonoToColour},
    {"block_mono_to_mono", {160, 120}, MonoToMono},
    {"block_named_codes_across_depths", {200, 160}, NamedCodesAcrossDepths},
    {"block_mono_patterns", {160, 120}, MonoPatterns},
    {"block_mono_drawing", {160, 120}, MonoDrawing},
    {"block_masked_sprites", {160, 120}, MaskedSprites},
    {"block_sprites", {160, 120}, Sprites},
    {"block_stretched_sprites", {160, 120}, StretchedSprites},
    {"block_mono_sprites", {160, 120}, MonoSprites},
    {"block_same_size", {160, 120}, SameSize},
    {"block_enlargements", {200, 150}, Enlargements},
    {"block_reductions", {160, 120}, Reductions},
    {"block_mixed_stretches", {160, 120}, MixedStretches},
    {"block_mirrored", {160, 120}, MirroredStretches},
    {"block_merged_stretches", {160, 120}, MergedStretches},
    {"block_mono_stretches", {160, 120}, MonoStretches},
    {"block_created_bitmaps", {160, 120}, CreatedBitmaps},
    {"block_sections", {160, 120}, Sections},
    {"block_loaded_dibs", {160, 120}, LoadedDibs},
    {"block_bits_read_back", {160, 120}, BitsReadBack},
    {"block_cursors", {160, 120}, Cursors},
    {"block_cut_out_cursors", {160, 120}, CutOutCursors},
    {"block_memory_canvases", {160, 120}, MemoryCanvases},
    {"block_resources", {160, 120}, ResourceBitmaps},
    {"block_section_sprites", {160, 120}, SectionSprites},
    {"block_resource_cursor", {160, 120}, ResourceCursor},
};

}  // namespace

std::span<const PictureKind> BlockKinds() { return kKinds; }

}  // namespace scenes
