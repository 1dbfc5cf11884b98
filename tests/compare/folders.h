/// Two folders of scenes, FOLDER/KIND/SEED.png or .txt, side by side.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <ostream>
#include <set>
#include <string>

#include "compare/budgets.h"

/// How one scene compares.
struct SceneResult {
    std::size_t cPixels = 0, cLines = 0;  ///< That differ.
    double dMean = 0;                     ///< Mean difference of a channel over the drawn pixels, 0 to 255.
    bool bBroken = false;  ///< A file is missing, cannot be read, is empty or has another size.

    bool Differs() const { return bBroken || cPixels + cLines != 0; }
};

struct FolderResult {
    std::map<std::string, SceneResult> scenes;  ///< By name without extension.

    int Differing() const;
    std::size_t Pixels() const;
    std::size_t Lines() const;
    double LargestMean() const;
};

/// Compares everything that is in either folder, and whatever else of `expected` (names with extension) ought
/// to be. Reports a line a scene that differs, and leaves its two versions and, for a picture, their
/// difference in `failures`.
FolderResult CompareFolders(const std::filesystem::path& got, const std::filesystem::path& want,
                            const std::filesystem::path& failures, const std::set<std::string>& expected,
                            std::ostream& report);

/// Whether every scene keeps its budget to the pixel (none: no difference at all); reports those that do not.
/// False without any scene.
bool KeepsBudgets(const FolderResult& result, const Budgets& budgets, std::ostream& report);
