/// Two folders of scenes, FOLDER/KIND/SEED.png or .txt, side by side.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <ostream>
#include <string>

#include "compare/budgets.h"

/// What one kind's scenes add up to.
struct KindResult {
    int nScenes = 0, nDiffer = 0;
    std::size_t cPixels = 0, cLines = 0;  ///< That differ.
    double dMean = 0;                     ///< Largest mean difference of a picture.
    bool bBroken = false;                 ///< A file is missing, cannot be read or has another size.
};

struct FolderResult {
    std::map<std::string, KindResult> kinds;

    int Scenes() const;
    int Differing() const;
    std::size_t Pixels() const;
    std::size_t Lines() const;
};

/// Compares everything that is in either folder. Reports a line a scene that differs, and leaves its two
/// versions and, for a picture, their difference in `failures`.
FolderResult CompareFolders(const std::filesystem::path& got, const std::filesystem::path& want,
                            const std::filesystem::path& failures, std::ostream& report);

/// Whether every kind keeps its budget to the pixel (none: no difference at all); reports those that do not.
bool KeepsBudgets(const FolderResult& result, const Budgets& budgets, std::ostream& report);
