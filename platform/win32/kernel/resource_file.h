/// The compiled resource file (.res) of 32-bit resource compilers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kernel/byte_reader.h"

namespace tavlon::win32 {

/// A resource's type or name: a number, or text that is compared without regard to ASCII case.
struct ResourceId {
    WORD number = 0;
    std::u16string text;  ///< In capitals; empty when the id is a number.

    bool operator==(const ResourceId&) const = default;
};

struct ResourceEntry {
    ResourceId type, name;
    Bytes data;  ///< Inside the file's own bytes.
};

/// The file's entries in file order; nothing when any of them is cut short or inconsistent.
std::optional<std::vector<ResourceEntry>> ParseResourceFile(Bytes file);

/// What a caller of FindResource and its like means: MAKEINTRESOURCE, "#123", or a name in code page 936.
ResourceId ResourceIdOf(LPCSTR pszName);

}  // namespace tavlon::win32
