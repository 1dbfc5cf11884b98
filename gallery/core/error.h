/// What the gallery reports to the person at the terminal.
#pragma once

#include <stdexcept>
#include <string>

namespace gallery {

/// Something the user can put right: a missing file, a malformed line. The text says where. Exit code 1.
struct Error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Wrong command line. Exit code 2, after the usage.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace gallery
