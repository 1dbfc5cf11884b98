/// Where the data files are.
#pragma once

#include <filesystem>

namespace gallery {

/// The data that was installed beside the program, else that of the source tree it was built from.
std::filesystem::path FindDataDir();

}  // namespace gallery
