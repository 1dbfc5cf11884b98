#include "data_dir.h"

#include <windows.h>

#include <system_error>

#include "core/text.h"

namespace gallery {

namespace {
std::filesystem::path ProgramDir() {
    char szFile[4096] = "";
    const DWORD cch = ::GetModuleFileNameA(nullptr, szFile, sizeof szFile);
    return PathFromGbk(std::string_view(szFile, cch)).parent_path();
}
}  // namespace

std::filesystem::path FindDataDir() {
    std::error_code ignored;
    for (const char* pszBeside : {"data", "../share/tavlon/data"}) {
        std::filesystem::path dir = ProgramDir() / pszBeside;
        if (std::filesystem::is_directory(dir, ignored)) return dir;
    }
    return TAVLON_GALLERY_DATA_DIR;
}

}  // namespace gallery
